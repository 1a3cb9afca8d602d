// What concerns the controller itself: network, numbers of a group, restart, cycle, relay.
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "simulator/Simulator_Commands.h"
#include "simulator/Simulator_Partner.h"
#include "simulator/Simulator_Server.h"
#include "simulator/Simulator_Session.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using namespace Controller_Command;
using Simulator_Commands::Access;
using Simulator_Commands::Request;

constexpr int cHighestNumber = 255;
constexpr int cLongestCycleMs = 3'600'000;
constexpr int cMostPartners = 8; // that are being dialled at once
constexpr int cStateUnreachable = 0;
constexpr int cStateThis = 4;

QString tr(const char* text) {
  return QCoreApplication::translate("Simulator_Commands", text);
}

QString textOf(const Request& request) {
  return Simulator_Session::text(request.mPayload);
}

void refuse(const Request& request, const char* text) {
  request.mSession.refuse(request.mCommand, tr(text));
}

void networkSettings(const Request& request) {
  request.mSession.send(Network_Settings_Reply, request.mController.settings().mNetwork.toData());
}

/// Who asks has reached it; nothing else is contacted.
void connectionCheck(const Request& request) {
  request.mSession.sendText(Connection_Check_Reply, textOf(request).isEmpty() ? tr("Die Adresse fehlt.") : QString());
}

/// What is wrong with the name under which a controller is asked for at the relay service.
QString faultOfName(const Request& request) {
  const QString& known = request.mController.options().mRelayName;
  const QString wanted = textOf(request);
  if (wanted.isEmpty()) {
    return tr("Der Name der Steuerung fehlt.");
  }
  return known.isEmpty() || wanted == known
             ? QString()
             : tr("Beim Relay-Dienst ist keine Steuerung mit dem Namen \"%1\" angemeldet.").arg(wanted);
}

void relayDns(const Request& request) {
  const QString fault = faultOfName(request);
  request.mSession.sendText(Relay_Dns_Reply,
                            fault.isEmpty() ? QStringLiteral("ok;") + request.mController.options().mListen.toString()
                                            : fault);
}

void relayCheck(const Request& request) {
  request.mSession.sendText(Relay_Check_Reply, faultOfName(request));
}

void debugLevel(const Request& request) {
  const QString level = textOf(request);
  if (level == u"0" || level == u"1") {
    request.mServer.setLoggingAll(level == u"1");
    request.mSession.send(Debug_Level_Reply);
  } else {
    refuse(request, "level muss 0 (nur wichtige Meldungen) oder 1 (alle Meldungen) sein");
  }
}

void numberGet(const Request& request) {
  request.mSession.sendText(Number_Get_Reply, QString::number(request.mController.settings().mNumber));
}

void setNumber(const Request& request, int number) {
  request.mController.settings().mNumber = number;
  request.mController.storeSettings();
}

void numberSet(const Request& request) {
  const int number = textOf(request).toInt();
  if (number < 1 || number > cHighestNumber) {
    refuse(request, "Die Nummer einer Steuerung ist 1 bis 255.");
    return;
  }
  setNumber(request, number);
  request.mSession.sendText(Number_Set_Reply, QString::number(number));
}

void numberClear(const Request& request) {
  setNumber(request, 0);
  request.mSession.send(Number_Clear_Reply);
}

void groupStatus(const Request& request) {
  DB_Group_Status status;
  const DB_Project project = request.mController.project().header();
  const int own = request.mController.settings().mNumber;
  status.mOwnIndex = own;
  for (const DB_Controller& controller : project.mControllers) {
    DB_Group_Status::Member member;
    member.mIndex = controller.mNumber;
    member.mState = controller.mNumber == own ? cStateThis : cStateUnreachable;
    if (member.mState == cStateThis) {
      member.mSecondsSince = 0;
      member.mVersion = request.mController.informations().mRuntimeVersion;
      member.mGeneration = project.mGeneration;
    }
    status.mMembers.push_back(member);
  }
  request.mSession.send(Group_Status_Reply, status.toData());
}

void partner(const Request& request) {
  if (request.mSession.findChildren<Simulator_Partner*>().size() >= cMostPartners) {
    refuse(request, "Die Steuerung spricht schon mit anderen Steuerungen.");
    return;
  }
  auto* const partner =
      new Simulator_Partner(request.mController.options(), request.mCommand, textOf(request), &request.mSession);
  QObject::connect(
      partner, &Simulator_Partner::finished, &request.mSession,
      [&session = request.mSession, command = request.mCommand, text = textOf(request)](const QString& fault) {
        if (!fault.isEmpty()) {
          session.refuse(command, fault);
        } else if (command == Partner_Number_Set) {
          session.sendText(Partner_Number_Set_Reply, text);
        } else {
          session.send(Partner_Number_Clear_Reply);
        }
      });
  partner->start();
}

void restart(const Request& request) {
  request.mSession.send(Restarting);
  request.mServer.restart();
}

void cycle(const Request& request) {
  bool isNumber = false;
  const int period = textOf(request).toInt(&isNumber);
  if (!isNumber || period < 0 || period > cLongestCycleMs) {
    refuse(request, "Die Periode ist 0 bis 3600000 Millisekunden.");
    return;
  }
  request.mServer.setCycle(period);
  request.mSession.send(Cycle_Reply);
}

constexpr Simulator_Commands::Row cRows[] = {
    {Network_Settings, Access::Logged_On, networkSettings},
    {Connection_Check, Access::Everyone, connectionCheck},
    {Relay_Dns_Check, Access::Everyone, relayDns},
    {Relay_Check, Access::Everyone, relayCheck},
    {Debug_Level, Access::Logged_On, debugLevel},
    {Number_Get, Access::Logged_On, numberGet},
    {Number_Set, Access::Logged_On, numberSet},
    {Number_Clear, Access::Logged_On, numberClear},
    {Group_Status, Access::Logged_On, groupStatus},
    {Partner_Number_Set, Access::Logged_On, partner},
    {Partner_Number_Clear, Access::Logged_On, partner},
    {Restart, Access::Logged_On, restart},
    {Cycle, Access::Logged_On, cycle},
};

} // namespace

std::span<const Simulator_Commands::Row> Simulator_Commands::serviceRows() {
  return cRows;
}
