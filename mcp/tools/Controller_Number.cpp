#include "mcp/tools/Controller_Number.h"

#include "db/ProjectDatabase.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Controller.h"
#include "mcp/MCP_Studio.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Controller_Records.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Outcome = MCP_Controller::Outcome;

constexpr int cHighestNumber = 255;
constexpr double cStatusSeconds = 10;
const auto cConnected = QStringLiteral("connected");

QString stateText(int state) {
  switch (state) {
  case 0:
    return QStringLiteral("nicht erreichbar");
  case 1:
    return QStringLiteral("verbunden");
  case 2:
    return QStringLiteral("Standby");
  case 3:
    return QStringLiteral("falsche Steuerung");
  case 4:
    return QStringLiteral("diese Steuerung");
  default:
    return QStringLiteral("unbekannt");
  }
}

QString distributionText(int distribution) {
  switch (distribution) {
  case 0:
    return QStringLiteral("nichts zu verteilen");
  case 1:
    return QStringLiteral("Projekt wird verteilt");
  case 2:
    return QStringLiteral("Projekt verteilt");
  case 3:
    return QStringLiteral("Verteilung fehlgeschlagen");
  default:
    return QStringLiteral("unbekannt");
  }
}

const DB_Controller* controllerOf(const MCP_Call& call, int number) {
  const std::vector<DB_Controller>& controllers = call.database().mProject.mControllers;
  const auto found = std::ranges::find(controllers, number, &DB_Controller::mNumber);
  return found == controllers.end() ? nullptr : &*found;
}

QJsonObject toJson(const DB_Group_Status::Member& member, const DB_Controller* known) {
  QJsonObject object{{QStringLiteral("index"), member.mIndex},
                     {QStringLiteral("state"), member.mState},
                     {QStringLiteral("state_text"), stateText(member.mState)},
                     {QStringLiteral("seconds_since"), member.mSecondsSince},
                     {QStringLiteral("version"), member.mVersion},
                     {QStringLiteral("generation"), member.mGeneration},
                     {QStringLiteral("distribution"), member.mDistribution},
                     {QStringLiteral("distribution_text"), distributionText(member.mDistribution)}};
  if (known) {
    object.insert(QStringLiteral("name"), known->mName);
    object.insert(QStringLiteral("address"), known->mAddress);
  }
  return object;
}

MCP_Result getControllerStatus(MCP_Call& call) {
  const MCP_Controller::Answer answer =
      MCP_Controller::ask(call.studio(), {Controller_Command::Group_Status, {}, Controller_Command::Group_Status_Reply},
                          MCP_Controller::waitOf(call.number("timeout_seconds", cStatusSeconds)));
  if (answer.mOutcome == Outcome::NoLink) {
    return MCP_Result::failed(QStringLiteral("Keine Verbindung zur Steuerung (connect_runtime aufrufen)"));
  }
  if (!answer) {
    return MCP_Result::failed(answer.mError);
  }
  DB_Group_Status status;
  status.setData(answer.mPayload);
  status.fromData();
  QJsonArray list;
  for (const DB_Group_Status::Member& member : status.mMembers) {
    list.append(toJson(member, controllerOf(call, member.mIndex)));
  }
  QJsonObject object{{QStringLiteral("controllers"), list},
                     {QStringLiteral("count"), list.size()},
                     {QStringLiteral("connected_controller_index"), status.mOwnIndex}};
  if (list.isEmpty()) {
    object.insert(QStringLiteral("note"), QStringLiteral("Die verbundene Steuerung fuehrt keinen Verbund - die "
                                                         "Steuerungsliste im eingespielten Projekt ist leer."));
  }
  return MCP_Result::done(object);
}

/// Whose number is meant: the connected controller's, without `mPartner`, or that of a partner.
struct Target {
  std::optional<DB_Controller> mPartner;
  MCP_Result mFailure;
};

Target noTarget(const QString& given) {
  return {{},
          MCP_Result::failed(QStringLiteral("Parameter 'target' nennt keine Steuerung: %1. Erlaubt: weglassen oder "
                                            "'connected' fuer die verbundene, sonst Nummer, Name oder Adresse aus "
                                            "get_controller_list")
                                 .arg(given))};
}

Target targetOf(const MCP_Call& call) {
  const QJsonValue value = call.value("target");
  const QString text = value.isDouble() ? QString::number(value.toDouble(), 'g', 12) : value.toString().trimmed();
  if (value.isNull() || text == cConnected) {
    return {{}, MCP_Result::done()};
  }
  if (!value.isDouble() && !value.isString()) {
    return noTarget(value.isBool() ? QStringLiteral("Wahrheitswert") : QStringLiteral("Liste oder Objekt"));
  }
  const auto isMeant = [&text, &value](const DB_Controller& controller) {
    return value.isDouble() ? QString::number(controller.mNumber) == text
                            : controller.mName.compare(text, Qt::CaseInsensitive) == 0 ||
                                  controller.mAddress.compare(text, Qt::CaseInsensitive) == 0;
  };
  const std::vector<DB_Controller>& controllers = call.database().mProject.mControllers;
  const auto found = std::ranges::find_if(controllers, isMeant);
  if (found == controllers.end()) {
    return noTarget(text);
  }
  if (std::ranges::count_if(controllers, isMeant) > 1) {
    return {{}, MCP_Result::failed(QStringLiteral("Parameter 'target' ist nicht eindeutig: %1").arg(text))};
  }
  return {*found, MCP_Result::done()};
}

MCP_Controller::Question question(int number, const std::optional<DB_Controller>& partner) {
  const auto text = [](const QString& content) { return content.toUtf8() + '\0'; };
  using namespace Controller_Command;
  if (partner) {
    return number == 0
               ? MCP_Controller::Question{Partner_Number_Clear, text(partner->mAddress), Partner_Number_Clear_Reply}
               : MCP_Controller::Question{Partner_Number_Set,
                                          text(QStringLiteral("%1#%2").arg(partner->mAddress).arg(number)),
                                          Partner_Number_Set_Reply};
  }
  return number == 0 ? MCP_Controller::Question{Number_Clear, {}, Number_Clear_Reply}
                     : MCP_Controller::Question{Number_Set, text(QString::number(number)), Number_Set_Reply};
}

MCP_Result setControllerIndex(MCP_Call& call) {
  if (!call.has("index")) {
    return MCP_Result::failed(QStringLiteral("Parameter 'index' fehlt"));
  }
  const double wanted = call.number("index");
  if (wanted != std::trunc(wanted)) {
    return MCP_Result::failed(QStringLiteral("Parameter 'index' muss eine ganze Zahl sein: %1 (erlaubt 0 bis %2)")
                                  .arg(wanted)
                                  .arg(cHighestNumber));
  }
  const Target target = targetOf(call);
  if (!target.mFailure) {
    return target.mFailure;
  }
  const int number = static_cast<int>(wanted);
  const MCP_Controller::Answer answer = MCP_Controller::ask(call.studio(), question(number, target.mPartner));
  if (!answer) {
    return MCP_Result::failed(answer.mError);
  }
  Controller_Link* const link = call.studio().link();
  if (!target.mPartner && call.session().isOpen() && link && link->isOnline()) {
    call.session().database().mControllerInformations.mNumber = number;
  }
  QJsonObject object{{QStringLiteral("index"), number},
                     {QStringLiteral("target"), target.mPartner ? target.mPartner->mName : cConnected}};
  if (number == 0) {
    object.insert(QStringLiteral("note"),
                  QStringLiteral("Ohne Nummer fuehrt die Steuerung im Verbund keine Programmseite aus."));
  } else if (call.session().isOpen() && !controllerOf(call, number)) {
    call.warn(QStringLiteral("Die Nummer %1 steht nicht in der Steuerungsliste des Projektes (get_controller_list).")
                  .arg(number));
  }
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Controller_Number::all() {
  return {
      {QStringLiteral("set_controller_index"),
       QStringLiteral(
           "Steuerungsverbund: setzt die eigene Nummer der VERBUNDENEN Steuerung. Sie wird auf der Steuerung "
           "gespeichert, nicht im Projekt - jedes Geraet braucht seine eigene. 0 bedeutet: keine Nummer, die "
           "Steuerung fuehrt dann nichts aus, wenn das Projekt eine Steuerungsliste hat. Mit target setzt die "
           "verbundene Steuerung stattdessen die Nummer eines Partners aus der Steuerungsliste. Welche Nummern "
           "es gibt, sagt get_controller_list; das Ergebnis zeigt get_controller_status. Braucht eine "
           "Verbindung (connect_runtime)."),
       {MCP_Parameter::number("index", "Nummer, ganze Zahl 1 bis 255; 0 loescht sie. Muss angegeben werden")
            .within(0, cHighestNumber),
        MCP_Parameter::any("target",
                           "Steuerung: weglassen oder 'connected' = die verbundene; sonst ein Partner mit Nummer "
                           "(Zahl), Name oder Adresse aus der Steuerungsliste")},
       setControllerIndex,
       {}},
      {QStringLiteral("get_controller_status"),
       QStringLiteral(
           "Liest das Lebendbild des Steuerungsverbunds von der verbundenen Steuerung: je Steuerung Zustand "
           "(verbunden / nicht erreichbar / Standby / falsche Steuerung ...), Sekunden seit der letzten "
           "Meldung, Runtime-Version, Projektstand (generation) und wie weit die Verteilung des Projekts ist. "
           "seconds_since ist -1, wenn noch nie eine Meldung kam; connected_controller_index ist die Nummer "
           "der verbundenen Steuerung, 0 = keine. Braucht eine Verbindung (connect_runtime)."),
       {MCP_Parameter::integer("timeout_seconds", "Wartezeit in Sekunden, begrenzt auf 1 bis 60 (Standard: 10)")},
       getControllerStatus,
       {}},
  };
}
