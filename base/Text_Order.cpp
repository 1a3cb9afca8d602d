#include "base/Text_Order.h"

#include <QLocale>

QCollator Text_Order::collator() {
  // A system without a language sorts by bytes, umlauts behind everything.
  const QLocale locale;
  QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::German) : locale);
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  return collator;
}
