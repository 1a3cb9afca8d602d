#include "base/Datapoint_Codec.h"
#include "db/Address_Value_Text.h"
#include "db/ProjectDatabase.h"
#include "mcp/MCP_Address_Json.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Data_Type.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/Address_Tools.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace {

constexpr double cMostWhole = 9'007'199'254'740'992; ///< up to here a double holds every whole number

bool isOnline(const MCP_Call& call) {
  const Value_Service* const service = call.session().valueService();
  return service && service->isOnline();
}

/// Address, name and type: whose value it is.
QJsonObject headOf(const Group_Address& address, const DB_Address_Sub_Group& group) {
  QJsonObject object = MCP_Address_Json::of(address);
  object.insert(QStringLiteral("comment"), group.mName);
  MCP_Data_Type::add(object, group.mDpt);
  return object;
}

QJsonValue toJson(const Datapoint_Value::Scalar& scalar) {
  if (const qint64* const whole = std::get_if<qint64>(&scalar)) {
    return *whole;
  }
  if (const double* const number = std::get_if<double>(&scalar)) {
    return *number;
  }
  const QString* const text = std::get_if<QString>(&scalar);
  return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Undefined);
}

/// `value` as the number or text it is, or as an object of its valid parts.
void addValue(QJsonObject& object, const Datapoint_Value& value) {
  if (value.mParts.isEmpty()) {
    object.insert(QStringLiteral("value"), toJson(value.mScalar));
    return;
  }
  QJsonObject parts;
  for (const Datapoint_Value::Part& part : value.mParts) {
    parts.insert(part.mKey, toJson(part.mValue)); // nothing for what is not valid
  }
  object.insert(QStringLiteral("value"), parts);
}

/// The payload for a number in the type's unit.
std::optional<QByteArray> payloadOf(const Datapoint_Type& type, double number, QString& error) {
  const bool isWhole = number == std::trunc(number) && std::abs(number) <= cMostWhole;
  const Datapoint_Value value =
      isWhole ? Datapoint_Value::ofWhole(static_cast<qint64>(number)) : Datapoint_Value{number, {}};
  return Datapoint_Codec::encode(type, value, &error);
}

/// Why nothing can be sent there; empty when it can.
QString refusalFor(const Group_Address& address, const DB_Address_Sub_Group& group) {
  if (!address.isOnBus() || address == Group_Address()) {
    return QStringLiteral("An die Adresse %1 laesst sich auf dem Bus nichts senden").arg(address.toString());
  }
  if (group.mDpt.isNone()) {
    return QStringLiteral("Die Adresse %1 hat keinen Datentyp, der Wert laesst sich nicht verschluesseln. Zuerst mit "
                          "update_address den data_type setzen.")
        .arg(address.toString());
  }
  if (!Address_Value_Text::typeOf(group.mDpt)) {
    return QStringLiteral("Der Datentyp %1 der Adresse %2 ist zum Senden nicht genau genug. Zuerst mit update_address "
                          "einen data_type mit Unternummer setzen.")
        .arg(group.mDpt.toString(), address.toString());
  }
  return {};
}

/// Texts, times and other compounds do not.
bool takesNumber(const Datapoint_Id& id, const Datapoint_Type& type) {
  return Address_Value_Text::inputOf(id) != Address_Value_Text::Input::Text ||
         Datapoint_Codec::encode(type, Datapoint_Value::ofWhole(0));
}

MCP_Result setValue(MCP_Call& call) {
  const auto group = MCP_Lookup::groupAddress(call, call.arguments());
  if (!group) {
    return group.mFailure;
  }
  const Group_Address address = call.database().mAddresses.addressOf(*group);
  QString error = refusalFor(address, *group);
  if (!error.isEmpty()) {
    return MCP_Result::failed(error);
  }
  const Datapoint_Type type = *Address_Value_Text::typeOf(group->mDpt);
  if (!takesNumber(group->mDpt, type)) {
    return MCP_Result::failed(
        QStringLiteral("Werte des Datentyps %1 der Adresse %2 sind keine einzelne Zahl und lassen "
                       "sich hier nicht senden")
            .arg(group->mDpt.toString(), address.toString()));
  }
  const std::optional<QByteArray> payload = payloadOf(type, call.number("value"), error);
  if (!payload) {
    return MCP_Result::failed(QStringLiteral("Wert %1 passt nicht zum Datentyp %2 der Adresse %3: %4")
                                  .arg(QString::number(call.number("value"), 'g', QLocale::FloatingPointShortest))
                                  .arg(group->mDpt.toString(), address.toString(), error));
  }
  QJsonObject object = headOf(address, *group);
  if (const std::optional<Datapoint_Value> value = Datapoint_Codec::decode(type, *payload)) {
    addValue(object, *value);
    object.insert(QStringLiteral("text"), Datapoint_Codec::display(type, *value));
  }
  object.insert(QStringLiteral("sent"), isOnline(call));
  if (!isOnline(call)) {
    call.warn(QStringLiteral("Runtime nicht verbunden - der Wert wurde nicht gesendet. Zuerst connect_runtime "
                             "aufrufen."));
    return MCP_Result::done(object);
  }
  return MCP_Result::of(call.session().valueService()->send(group->mKey, *payload), object);
}

QString timeText(qint64 ms) {
  const QDateTime time = QDateTime::fromMSecsSinceEpoch(ms);
  return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

MCP_Result getValue(MCP_Call& call) {
  const auto group = MCP_Lookup::groupAddress(call, call.arguments());
  if (!group) {
    return group.mFailure;
  }
  QJsonObject object = headOf(call.database().mAddresses.addressOf(*group), *group);
  const bool online = isOnline(call);
  object.insert(QStringLiteral("connected"), online);
  const Address_Value* const known = call.session().values().find(group->mKey);
  object.insert(QStringLiteral("available"), known != nullptr);
  if (!known) {
    object.insert(QStringLiteral("hint"),
                  online ? QStringLiteral("Von dieser Adresse kam noch kein Wert.")
                         : QStringLiteral("Runtime nicht verbunden - es ist noch kein Wert bekannt. Zuerst "
                                          "connect_runtime aufrufen."));
    return MCP_Result::done(object);
  }
  if (known->mValue) {
    addValue(object, *known->mValue);
  } else {
    object.insert(QStringLiteral("note"), QStringLiteral("Ohne passenden Datentyp ist nur die Nutzlast bekannt."));
  }
  object.insert(QStringLiteral("text"), Address_Value_Text::text(group->mDpt, *known));
  object.insert(QStringLiteral("payload"), Address_Value_Text::hex(known->mPayload));
  object.insert(QStringLiteral("time"), timeText(known->mTime));
  object.insert(QStringLiteral("source"), known->mSource);
  object.insert(QStringLiteral("stale"), known->mIsStale);
  if (!online) {
    call.warn(QStringLiteral("Runtime nicht verbunden - der Wert ist der letzte im Studio bekannte Stand."));
  }
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Address_Tools::values() {
  return {
      {QStringLiteral("set_address_value"),
       QStringLiteral("Sendet einen Wert an eine KNX-Gruppenadresse der verbundenen Runtime. Damit koennen Verbraucher "
                      "geschaltet (0/1), gedimmt (0-100) oder Sollwerte (z.B. Temperatur in Grad) gesetzt werden. Gibt "
                      "eine Warnung aus wenn die Runtime nicht verbunden ist: dann wird nichts gesendet (sent = "
                      "false). Die Adresse braucht einen Datentyp; der Wert gilt in dessen Einheit und Bereich."),
       withAddress({MCP_Parameter::number("value", "Zahl in der Einheit des Datentyps").required()}),
       setValue,
       {}},
      {QStringLiteral("get_address_value"),
       QStringLiteral("Liest den zuletzt empfangenen oder gesetzten Wert einer KNX-Gruppenadresse aus. Liefert den "
                      "numerischen Wert, einen lesbaren String, den Kommentar und den Datentyp."),
       withAddress(),
       getValue,
       {}}};
}
