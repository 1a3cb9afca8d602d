#include "db/Address_Type_Text.h"

#include "base/Datapoint_Types.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Type_Text", text);
}

} // namespace

QString Address_Type_Text::shown(const Datapoint_Id& type, bool isGuessed, const QString& raw) {
  if (type.isNone()) {
    return raw.isEmpty() ? QString() : tr("unbekannt");
  }
  return isGuessed ? tr("%1 (vermutet)").arg(type.toString()) : type.toString();
}

QString Address_Type_Text::toolTip(const Datapoint_Id& type, bool isGuessed, const QString& raw) {
  const QString known = type.isNone() ? tr("Kein Datenpunkttyp") : Datapoint_Types::describe(type);
  const bool isLess = !raw.isEmpty() && (isGuessed || type.isNone());
  return isLess ? tr("%1; der Import nennt nur \"%2\".").arg(known, raw) : known;
}
