#include "db/Connection_Address.h"

#include <QRegularExpression>
#include <QStringList>

QString Connection_Address::normalised(const QString& text) {
  static const QRegularExpression blanks(QStringLiteral("[\\s\\x{200b}\\x{feff}]+"));
  static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*://"));
  static const QRegularExpression tail(QStringLiteral("[/?#].*$"));
  static const QRegularExpression user(QStringLiteral("^.*@"));
  static const QRegularExpression brackets(QStringLiteral("^\\[(.*)\\]$"));
  QString address = text;
  address.remove(blanks).remove(scheme).remove(tail).remove(user);
  return address.replace(brackets, QStringLiteral("\\1"));
}

Connection_Address Connection_Address::parse(const QString& normalised, quint16 defaultPort) {
  const QStringList parts = normalised.split(u':');
  if (parts.size() != 2) {
    return {normalised, defaultPort};
  }
  return {parts.at(0), static_cast<quint16>(parts.at(1).toUInt())};
}
