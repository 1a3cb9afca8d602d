#include "net/Controller_Link.h"

#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"

namespace {

constexpr int cRelayKind = 1;
constexpr int cLogOnMs = 30'000;

} // namespace

Controller_Link::Controller_Link(Project_Session& session, QObject* parent)
    : QObject(parent),
      mSession(session),
      mClient(new Main_Network_Client(session, this)) {
  mLogOnTimer.setSingleShot(true);
  mLogOnTimer.setInterval(cLogOnMs);
  connect(&mLogOnTimer, &QTimer::timeout, this, [this] { refuse(tr("Keine Antwort der Steuerung")); });
  connect(mClient, &Main_Network_Client::onProcessNetworkConnect, this, &Controller_Link::onConnect);
  connect(mClient, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), this,
          &Controller_Link::onRead);
}

bool Controller_Link::connectToSelected(QString* error) {
  const DB_Connections& connections = mSession.database().mConnections;
  const int selected = connections.mSelected;
  if (selected < 0 || selected >= static_cast<int>(connections.mItems.size())) {
    if (error) {
      *error = tr("Im Projekt ist keine Verbindung zur Steuerung ausgewählt.");
    }
    return false;
  }
  connectTo(connections.mItems[static_cast<size_t>(selected)]);
  return true;
}

void Controller_Link::connectTo(const DB_Connections::ITEM& connection) {
  mIsEnding = true;
  mClient->disconnectFromController();
  mIsEnding = false;
  setState(State::Dialling);
  mClient->connectToController(&connection);
}

void Controller_Link::disconnectLink() {
  mIsEnding = true;
  mClient->disconnectFromController();
  mIsEnding = false;
  setState(State::Offline);
}

QString Controller_Link::connectionText() const {
  if (mState == State::Offline) {
    return {};
  }
  const DB_Connections::ITEM& connection = mClient->connection();
  return connection.mName.isEmpty() ? connection.mAddress
                                    : QStringLiteral("%1 (%2)").arg(connection.mName, connection.mAddress);
}

void Controller_Link::setState(State state) {
  if (mState == state) {
    return;
  }
  mState = state;
  if (state != State::LoggingOn) {
    mLogOnTimer.stop();
  }
  emit stateChanged(state);
}

void Controller_Link::onConnect(bool isConnected) {
  if (isConnected) {
    if (mState != State::Dialling) {
      return; // somebody else dialled: a test of a connection does not log on
    }
    setState(State::LoggingOn);
    mLogOnTimer.start();
    DB_Log_On logOn;
    logOn.mUser = mClient->connection().mUser;
    logOn.mPassword = mClient->connection().mPassword;
    const QByteArray data = logOn.toData();
    mClient->sendMessage(mClient->connection().mKind == cRelayKind ? Controller_Command::Relay_Log_On
                                                                   : Controller_Command::Log_On,
                         static_cast<quint32>(data.size()), data.constData());
    return;
  }
  // A new dial begins with a false, and while it is wanted the watchdog goes on dialling.
  if (mIsEnding || mState == State::Dialling || mState == State::Offline) {
    return;
  }
  const bool wasOnline = isOnline();
  setState(State::Offline);
  QMetaObject::invokeMethod(
      this,
      [this, wasOnline] {
        if (wasOnline) {
          emit lost();
        } else {
          emit refused(tr("Die Steuerung hat die Verbindung bei der Anmeldung beendet."));
        }
      },
      Qt::QueuedConnection);
}

void Controller_Link::onRead(Network_Message* message, uchar* data) {
  if (mState != State::LoggingOn) {
    return;
  }
  const QByteArrayView payload(data, data ? static_cast<qsizetype>(message->mDataLength) : 0);
  if (message->mCommand == Controller_Command::Log_On_Accepted) {
    DB_Controller_Informations& informations = mSession.database().mControllerInformations;
    informations.setData(payload.toByteArray());
    informations.fromData();
    setState(State::Online);
  } else if (message->mCommand == Controller_Command::Log_On_Refused) {
    const qsizetype end = payload.indexOf('\0');
    refuse(
        tr("Die Steuerung lehnt die Anmeldung ab: %1").arg(QString::fromUtf8(end < 0 ? payload : payload.first(end))));
  }
}

void Controller_Link::refuse(const QString& text) {
  // Queued: the link must not be taken down inside its own delivery, and who hears it may open a box.
  QMetaObject::invokeMethod(
      this,
      [this, text] {
        if (mState == State::LoggingOn) {
          disconnectLink();
          emit refused(text);
        }
      },
      Qt::QueuedConnection);
}
