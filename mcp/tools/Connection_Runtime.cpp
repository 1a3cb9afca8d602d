#include "mcp/tools/Connection_Runtime.h"

#include "db/ProjectDatabase.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Controller.h"
#include "mcp/MCP_Studio.h"
#include "mcp/MCP_Wait.h"
#include "net/Controller_Link.h"

#include <QPointer>

namespace {

using State = Controller_Link::State;

constexpr double cDefaultSeconds = 10;

QJsonObject told(const DB_Connections::ITEM& item, bool isConnected) {
  return {{QStringLiteral("connected"), isConnected},
          {QStringLiteral("connection"), item.mName},
          {QStringLiteral("target"), Connection_Runtime::target(item)},
          {QStringLiteral("vpn"), item.isRelay()}};
}

/// How an attempt to connect ends, as far as the link tells it.
class Attempt {
public:
  Attempt(Controller_Link& link, std::chrono::milliseconds most) : mLink(&link), mWait(most) {
    QObject::connect(&link, &Controller_Link::stateChanged, &mWait, [this](State state) { onState(state); });
    QObject::connect(&link, &Controller_Link::refused, &mWait, [this](const QString& text) { mReason = text; });
  }

  /// False when it was neither online nor given up in time.
  bool run() {
    onState(mLink->state());
    return mWait.run();
  }
  [[nodiscard]] const QString& reason() const { return mReason; }

private:
  void onState(State state) {
    if (state == State::Online) {
      mWait.done();
    } else if (state == State::Offline) {
      // The link queues its reason after this; behind it the wait ends.
      Main_Network_Client& client = mLink->client();
      client.queue(&mWait, [this, &client] { client.queue(&mWait, [this] { mWait.done(); }); });
    }
  }

  QPointer<Controller_Link> mLink;
  MCP_Wait mWait;
  QString mReason;
};

MCP_Result failure(const DB_Connections::ITEM& item, bool isTimeout, const QString& reason) {
  MCP_Result result = MCP_Result::failed(
      QStringLiteral("Keine Verbindung zur Runtime (%1)")
          .arg(isTimeout ? QStringLiteral("Zeitueberschreitung") : QStringLiteral("Verbindung fehlgeschlagen")));
  const QJsonObject members = told(item, false);
  for (auto member = members.begin(); member != members.end(); ++member) {
    result.mObject.insert(member.key(), member.value());
  }
  if (!reason.isEmpty()) {
    result.mObject.insert(QStringLiteral("reason"), reason);
  }
  return result;
}

QString reasonOfTimeout(const Controller_Link& link) {
  switch (link.state()) {
  case State::LoggingOn:
    return QStringLiteral("Die Steuerung antwortet nicht auf die Anmeldung");
  case State::Dialling:
    return link.lastDialError();
  default:
    return {};
  }
}

MCP_Result dial(MCP_Call& call, const DB_Connections::ITEM& item) {
  const QPointer<Controller_Link> link = call.studio().link();
  if (const Edit_Result begun = call.studio().connectLink(); !begun) {
    return failure(item, false, begun.mError);
  }
  Attempt attempt(*link, MCP_Controller::waitOf(call.number("timeout_seconds", cDefaultSeconds)));
  const bool isTold = attempt.run();
  if (link && link->isOnline()) {
    return MCP_Result::done(told(item, true));
  }
  if (isTold || !link) {
    return failure(item, false, attempt.reason());
  }
  const QString reason = reasonOfTimeout(*link);
  // Else it would go on dialling, with nobody who wants it.
  call.studio().disconnectLink();
  return failure(item, true, reason);
}

MCP_Result disconnectNow(const MCP_Call& call) {
  const Controller_Link* const link = call.studio().link();
  const bool wasConnected = link && link->isOnline();
  if (wasConnected) {
    call.studio().disconnectLink();
    if (link->isOnline()) {
      return MCP_Result::failed(
          QStringLiteral("Mit der Steuerung laeuft noch ein Vorgang - bitte sein Ende abwarten und erneut aufrufen"));
    }
  }
  return MCP_Result::done({{QStringLiteral("connected"), false}, {QStringLiteral("was_connected"), wasConnected}});
}

/// The link as it stands, with a warning when another connection is selected.
MCP_Result alreadyConnected(MCP_Call& call, const DB_Connections::ITEM& used) {
  QJsonObject object = told(used, true);
  object.insert(QStringLiteral("already_connected"), true);
  const DB_Connections& connections = call.database().mConnections;
  if (connections.mSelected >= 0 && connections.mSelected < static_cast<int>(connections.mItems.size())) {
    const DB_Connections::ITEM& selected = connections.mItems[static_cast<size_t>(connections.mSelected)];
    if (selected.mKind != used.mKind || Connection_Runtime::target(selected) != Connection_Runtime::target(used)) {
      call.warn(
          QStringLiteral("Ausgewaehlt ist eine andere Verbindung: %1 (%2). Zu ihr erst mit connect: false trennen, "
                         "dann erneut verbinden.")
              .arg(selected.mName, Connection_Runtime::target(selected)));
    }
  }
  return MCP_Result::done(object);
}

MCP_Result connectRuntimeNow(MCP_Call& call) {
  Controller_Link* const link = call.studio().link();
  const bool isBusy = link && (link->state() == State::Dialling || link->state() == State::LoggingOn || link->isLent());
  if (isBusy) {
    return MCP_Result::failed(
        QStringLiteral("Ein Verbindungsaufbau laeuft bereits - bitte kurz warten und erneut aufrufen"));
  }
  if (!call.flag("connect", true)) {
    return disconnectNow(call);
  }
  if (link && link->isOnline()) {
    return alreadyConnected(call, link->client().connection());
  }
  const DB_Connections& connections = call.database().mConnections;
  if (connections.mSelected < 0 || connections.mSelected >= static_cast<int>(connections.mItems.size())) {
    return MCP_Result::failed(QStringLiteral(
        "Im Projekt ist keine Verbindung zur Steuerung hinterlegt (Menue Online -> Verbindung auswaehlen)"));
  }
  if (!link) {
    return MCP_Result::failed(QStringLiteral("Netzwerk-Client nicht verfuegbar"));
  }
  // A copy: the list may be another one after the wait.
  const DB_Connections::ITEM item = connections.mItems[static_cast<size_t>(connections.mSelected)];
  return dial(call, item);
}

} // namespace

QString Connection_Runtime::target(const DB_Connections::ITEM& item) {
  if (!item.isRelay()) {
    return item.mAddress;
  }
  return item.mRelayMail.isEmpty() ? item.mRelayDns : item.mRelayMail;
}

MCP_Tool Connection_Runtime::connectRuntime() {
  return {QStringLiteral("connect_runtime"),
          QStringLiteral(
              "Baut die Verbindung zur Runtime ueber die im Projekt hinterlegte Standardverbindung auf (entspricht "
              "Verbinden / F11, aber ohne Fortschrittsdialog) oder trennt sie. Wartet bis zu timeout_seconds auf das "
              "Ergebnis und meldet connected, connection, target und vpn; scheitert der Aufbau, steht in reason der "
              "Grund, soweit er bekannt ist, und der Versuch ist beendet. Eine Steuerung, die keine Verbindung "
              "annimmt (sie startet gerade neu), wird in dieser Zeit alle 10 Sekunden neu angewaehlt. Welche "
              "Verbindung benutzt wird, legt "
              "select_connection fest. Noetig vor allen Werkzeugen, die mit der laufenden Steuerung arbeiten."),
          {MCP_Parameter::flag("connect", "true = verbinden, false = trennen (Standard: true)"),
           MCP_Parameter::number("timeout_seconds", "Wartezeit in Sekunden, begrenzt auf 1 bis 60 (Standard: 10)")},
          connectRuntimeNow,
          {}};
}
