#include "base/Version.h"

#include <QLocale>

QString Version::studio() {
  return QStringLiteral("2.3146");
}

double Version::number(QStringView text) {
  bool ok = false;
  const double value = QLocale::c().toDouble(text.trimmed(), &ok);
  return ok ? value : 0.0;
}

bool Version::isNewerThanStudio(QStringView version) {
  return number(version) > number(studio());
}
