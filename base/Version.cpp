#include "base/Version.h"

#include <QtNumeric>

QString Version::studio() {
  return QStringLiteral("2.3146");
}

double Version::number(QStringView text) {
  bool ok = false;
  const double value = text.trimmed().toDouble(&ok);
  return ok && qIsFinite(value) ? value : 0.0;
}

bool Version::isNewerThanStudio(QStringView version) {
  return number(version) > number(studio());
}
