// Log-on, what the controller tells of itself, its clock, values.
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "simulator/Simulator_Commands.h"
#include "simulator/Simulator_Server.h"
#include "simulator/Simulator_Session.h"

#include <QCoreApplication>

namespace {

using namespace Controller_Command;
using Simulator_Commands::Access;
using Simulator_Commands::Request;
using Service = DB_Address_Network_Telegram::Service;

constexpr qint64 cMsecs = 1000;
constexpr qint64 cLatestMs = 253'402'300'799'999; // the end of the year 9999

QString tr(const char* text) {
  return QCoreApplication::translate("Simulator_Commands", text);
}

void sendValues(const Request& request) {
  const QList<QByteArray> batches = request.mController.values().batches();
  for (const QByteArray& batch : batches) {
    request.mSession.send(Telegram_Batch, batch);
  }
}

void logOn(const Request& request) {
  const bool isRelayed = request.mCommand == Relay_Log_On;
  if (isRelayed != request.mController.options().mIsRelay) {
    request.mSession.sendText(Log_On_Refused, isRelayed ? tr("Hier ist kein Relay-Dienst, sondern eine Steuerung.")
                                                        : tr("Hier ist ein Relay-Dienst und keine Steuerung."));
    return;
  }
  DB_Log_On who;
  who.setData(request.mPayload.toByteArray());
  if (!request.mController.isLogOnRight(who.mUser, who.mPassword)) {
    request.mSession.sendText(Log_On_Refused, tr("Benutzer oder Passwort ist falsch."));
    request.mSession.countRefusedLogOn();
    return;
  }
  request.mSession.setLoggedOn();
  request.mSession.send(Log_On_Accepted, request.mController.informations().toData());
  if (!request.mController.isStopped()) {
    sendValues(request);
  }
}

void information(const Request& request) {
  request.mSession.send(Information_Reply, request.mController.informations().toData());
}

void compare(const Request& request) {
  request.mSession.send(Compare_Reply, request.mController.project().told(request.mController.isRunning()).toData());
}

void clock(const Request& request) {
  if (request.mCommand == Clock_Set) {
    bool isNumber = false;
    const qint64 wanted = Simulator_Session::text(request.mPayload).toLongLong(&isNumber);
    if (!isNumber || wanted <= 0 || wanted > cLatestMs) {
      request.mSession.refuse(request.mCommand, tr("Das ist keine Uhrzeit."));
      return;
    }
    request.mController.setClock(wanted);
  }
  request.mSession.sendText(Clock_Reply, QString::number(request.mController.now()));
}

void telegram(const Request& request) {
  if (request.mPayload.size() < DB_Address_Network_Telegram::cHead || request.mController.isStopped()) {
    return;
  }
  const auto telegram = DB_Address_Network_Telegram::fromBytes(request.mPayload);
  if (!telegram.isAddressed()) {
    return;
  }
  const Group_Address address = telegram.address();
  if (telegram.mService == Service::Response || telegram.mService == Service::Write) {
    request.mController.writeValue(address, telegram.mData);
    return;
  }
  if (telegram.mService != Service::Read) {
    return;
  }
  const QByteArray value = request.mController.values().value(address);
  if (!value.isEmpty()) {
    auto answer = DB_Address_Network_Telegram::to(address, Service::Response, value);
    answer.mTime = static_cast<quint32>(request.mController.now() / cMsecs);
    request.mSession.send(Telegram, answer.toBytes());
  }
}

void values(const Request& request) {
  sendValues(request);
  request.mSession.sendText(Values_Sent, QString::number(request.mController.values().count()));
}

constexpr Simulator_Commands::Row cRows[] = {
    {Log_On, Access::Everyone, logOn},
    {Relay_Log_On, Access::Everyone, logOn},
    {Information, Access::Logged_On, information},
    {Compare, Access::Logged_On, compare},
    {Clock_Get, Access::Logged_On, clock},
    {Clock_Set, Access::Logged_On, clock},
    {Telegram, Access::Logged_On, telegram},
    {Values_Get, Access::Logged_On, values},
};

} // namespace

std::span<const Simulator_Commands::Row> Simulator_Commands::linkRows() {
  return cRows;
}
