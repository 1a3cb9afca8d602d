#include "base/Decimal_Text.h"

#include <QLocale>

#include <algorithm>

namespace {
constexpr int cDecimals = 6;
} // namespace

std::optional<double> Decimal_Text::parse(QStringView text) {
  QString number = text.trimmed().toString();
  if (number.endsWith(u'°')) {
    number = number.chopped(1).trimmed();
  }
  number.replace(u',', u'.');
  const bool isPlain = std::all_of(number.cbegin(), number.cend(), [](QChar c) {
    return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+';
  });
  bool isNumber = false;
  const double value = QLocale::c().toDouble(number, &isNumber);
  return isPlain && isNumber ? std::optional(value) : std::nullopt;
}

QString Decimal_Text::print(double value) {
  const QLocale locale;
  QString text = locale.toString(value, 'f', cDecimals);
  while (text.endsWith(u'0')) {
    text.chop(1);
  }
  return text.endsWith(locale.decimalPoint()) ? text.chopped(1) : text;
}

QString Decimal_Text::count(qsizetype value) {
  return QLocale().toString(static_cast<qlonglong>(value));
}
