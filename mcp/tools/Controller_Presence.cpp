#include "mcp/tools/Controller_Presence.h"

#include "db/Address_Value_Text.h"
#include "db/House_Mode.h"
#include "db/ProjectDatabase.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Studio.h"

#include <cmath>

namespace {

bool isOnline(const MCP_Call& call) {
  const Value_Service* const service = call.session().valueService();
  return service && service->isOnline();
}

QString missing() {
  return QStringLiteral("Die Variable des Hausmodus (%1) existiert im Projekt nicht. Sie wird angelegt, sobald ein "
                        "Bedienelement im Projekt vorhanden ist.")
      .arg(House_Mode::cVariable);
}

QString wayToVariable() {
  return QStringLiteral("Von Hand: create_address an einer freien Adresse mit comment '%1' und data_type 5010, dann "
                        "write_project_to_controller.")
      .arg(House_Mode::cVariable);
}

/// Value and mode, as far as they are known.
void putValue(QJsonObject& object, const std::optional<double>& value) {
  if (!value) {
    object.insert(QStringLiteral("note"), QStringLiteral("Von der Variable ist noch kein Wert bekannt."));
    return;
  }
  object.insert(QStringLiteral("value"), *value);
  const bool isWhole = *value == std::trunc(*value) && *value >= 0 && *value <= House_Mode::cHighest;
  if (isWhole) {
    object.insert(QStringLiteral("mode"), House_Mode::name(static_cast<int>(*value)));
  } else {
    object.insert(QStringLiteral("note"),
                  QStringLiteral("Der Wert ist keiner des Hausmodus: present (0), absent (1), vacation (2)."));
  }
}

/// As the project's present state shows it.
QJsonObject presence(MCP_Call& call, const Group_Address& address) {
  const DB_Address_Sub_Group& group = *call.database().mAddresses.subGroup(address);
  const Address_Value* const value = call.session().values().find(group.mKey);
  QJsonObject object{{QStringLiteral("available"), true},
                     {QStringLiteral("address"), address.toString()},
                     {QStringLiteral("comment"), group.mName},
                     {QStringLiteral("connected"), isOnline(call)}};
  putValue(object, value && value->mValue ? value->mValue->number() : std::nullopt);
  return object;
}

MCP_Result getPresenceMode(MCP_Call& call) {
  if (!isOnline(call)) {
    call.warn(QStringLiteral("Runtime nicht verbunden - der Wert ist der letzte im Studio bekannte Stand."));
  }
  if (const auto address = House_Mode::address(call.database().mAddresses)) {
    return MCP_Result::done(presence(call, *address));
  }
  return MCP_Result::done({{QStringLiteral("available"), false},
                           {QStringLiteral("connected"), isOnline(call)},
                           {QStringLiteral("note"), missing()},
                           {QStringLiteral("hint"), wayToVariable()}});
}

struct Wanted {
  int mValue = 0;
  MCP_Result mFailure;
};

Wanted wantedOf(const MCP_Call& call) {
  if (!call.has("mode") && !call.has("value")) {
    return {0, MCP_Result::failed(QStringLiteral("Es fehlt der Zielmodus. Bitte 'mode' (present, absent oder vacation) "
                                                 "oder 'value' (0, 1 oder 2) angeben."))};
  }
  const QString mode = call.text("mode");
  const std::optional<int> named = House_Mode::value(mode);
  if (call.has("mode") && !named) {
    return {0,
            MCP_Result::failed(
                QStringLiteral("Ungueltiger Modus '%1'. Erlaubt: present (0), absent (1), vacation (2).").arg(mode))};
  }
  const int value = call.integer("value", named.value_or(0));
  if (value < 0 || value > House_Mode::cHighest) {
    return {0, MCP_Result::failed(
                   QStringLiteral("Ungueltiger Wert %1. Erlaubt: present (0), absent (1), vacation (2).").arg(value))};
  }
  if (named && *named != value) {
    return {0,
            MCP_Result::failed(QStringLiteral("'mode' (%1 = %2) und 'value' (%3) widersprechen sich. Bitte nur eines "
                                              "davon angeben.")
                                   .arg(mode)
                                   .arg(*named)
                                   .arg(value))};
  }
  return {value, MCP_Result::done()};
}

MCP_Result setPresenceMode(MCP_Call& call) {
  const Wanted wanted = wantedOf(call);
  if (!wanted.mFailure) {
    return wanted.mFailure;
  }
  if (!isOnline(call)) {
    return MCP_Result::failed(QStringLiteral(
        "Keine Verbindung zur Runtime. Der Anwesenheits-Status wird in der Runtime gehalten; ohne "
        "Verbindung wird die Aenderung verworfen. Bitte zuerst mit der Runtime verbinden und den Vorgang "
        "wiederholen."));
  }
  const auto address = House_Mode::address(call.database().mAddresses);
  if (!address) {
    MCP_Result failure = MCP_Result::failed(missing());
    failure.mObject.insert(QStringLiteral("hint"), wayToVariable());
    return failure;
  }
  const DB_Address_Sub_Group& group = *call.database().mAddresses.subGroup(*address);
  const QString number = QString::number(wanted.mValue);
  // Without a type a byte is typed in hexadecimal digits, in pairs.
  const QString typed =
      Address_Value_Text::inputOf(group.mDpt) == Address_Value_Text::Input::Bytes ? u'0' + number : number;
  QString error;
  const std::optional<QByteArray> payload = Address_Value_Text::parse(group.mDpt, typed, &error);
  if (!payload) {
    return MCP_Result::failed(QStringLiteral("Der Datentyp der Variable %1 (%2) kann den Wert %3 nicht halten: %4")
                                  .arg(House_Mode::cVariable)
                                  .arg(address->toString(), number, error));
  }
  if (const Edit_Result sent = call.session().valueService()->send(group.mKey, *payload); !sent) {
    return MCP_Result::failed(sent.mError);
  }
  return MCP_Result::done({{QStringLiteral("value"), wanted.mValue},
                           {QStringLiteral("mode"), House_Mode::name(wanted.mValue)},
                           {QStringLiteral("address"), address->toString()},
                           {QStringLiteral("comment"), group.mName}});
}

} // namespace

std::vector<MCP_Tool> Controller_Presence::all() {
  return {
      {QStringLiteral("get_presence_mode"),
       QStringLiteral(
           "Liest den Hausmodus (globaler Anwesenheits-Status der Steuerung): 'present' (Anwesend, 0), "
           "'absent' (Abwesend, 1) oder 'vacation' (Urlaub, 2). Der Hausmodus gilt steuerungsweit und "
           "bestimmt, welche Schaltzeiten ausloesen, ob die Anwesenheitssimulation laeuft und welche Werte "
           "die Bausteine bei einem Wechsel annehmen. Rueckgabe: available (gibt es die Variable im Projekt), "
           "value, mode, address, comment, connected. Ohne Verbindung der letzte im Studio bekannte Stand."),
       {},
       getPresenceMode,
       {}},
      {QStringLiteral("set_presence_mode"),
       QStringLiteral(
           "Schaltet den Hausmodus der Steuerung um. Entweder mode ('present', 'absent' oder 'vacation') oder "
           "value (0, 1 oder 2) angeben. Wirkt wie eine Bedienung am Bedienelement Anwesenheit: alle "
           "Bausteine, offene Visualisierungen und - ueber die Gruppenadresse - andere Teilnehmer am Bus "
           "erfahren davon. Braucht eine Verbindung (connect_runtime)."),
       {MCP_Parameter::text("mode", "present, absent oder vacation"),
        MCP_Parameter::integer("value", "0 = present, 1 = absent, 2 = vacation")},
       setPresenceMode,
       {}},
  };
}
