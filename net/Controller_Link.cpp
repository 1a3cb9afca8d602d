#include "net/Controller_Link.h"

#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"

#include <QPointer>

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
  // Queued: the client itself may be deleted by who hears of it.
  connect(mClient->socket(), &QAbstractSocket::errorOccurred, this, &Controller_Link::onError, Qt::QueuedConnection);
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
  // A copy, as who hears that the old link is down may change the project's connections.
  const DB_Connections::ITEM copy = connection;
  const QPointer<Controller_Link> self(this);
  end();
  if (!self) {
    return;
  }
  mFailedAttempts = 0;
  mLastDialError.clear();
  mConnection = copy;
  const quint64 turn = mTurn;
  setState(State::Dialling);
  if (self && mTurn == turn) {
    mClient->connectToController(&copy);
  }
}

void Controller_Link::disconnectLink() {
  const QPointer<Controller_Link> self(this);
  end();
  if (self) {
    setState(State::Offline);
  }
}

void Controller_Link::lend() {
  const QPointer<Controller_Link> self(this);
  disconnectLink();
  if (self) {
    mIsLent = true;
  }
}

void Controller_Link::end() {
  const QPointer<Controller_Link> self(this);
  ++mTurn;
  mIsLent = false;
  mIsEnding = true;
  mClient->disconnectFromController();
  if (self) {
    mIsEnding = false;
  }
}

void Controller_Link::queue(const std::function<void()>& what) {
  mClient->queue(this, [this, what, turn = mTurn] {
    if (mTurn == turn) {
      what();
    }
  });
}

QString Controller_Link::connectionText() const {
  if (mState == State::Offline) {
    return {};
  }
  // Not the client's, which has another one until it dials; a relayed one leads to a name at the service.
  const QString& name = mConnection.mRelayDns.isEmpty() ? mConnection.mRelayMail : mConnection.mRelayDns;
  const QString& target = mConnection.isRelay() ? name : mConnection.mAddress;
  return mConnection.mName.isEmpty() ? target : QStringLiteral("%1 (%2)").arg(mConnection.mName, target);
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
  if (mIsLent) {
    return;
  }
  if (isConnected) {
    if (!mClient->isRelayService()) {
      logOn();
    }
    return;
  }
  if (mIsEnding || mState == State::Offline) {
    return;
  }
  if (mState == State::Dialling) {
    // Every dial begins with this. Nobody goes on dialling only when somebody has ended the client beside the link.
    queue([this] {
      if (mState == State::Dialling && !mClient->isWanted()) {
        setState(State::Offline);
      }
    });
    return;
  }
  const bool wasOnline = isOnline();
  const QPointer<Controller_Link> self(this);
  const quint64 turn = mTurn;
  setState(State::Offline);
  if (!self || mTurn != turn) {
    return;
  }
  queue([this, wasOnline] {
    if (wasOnline) {
      emit lost();
    } else {
      emit refused(tr("Die Steuerung hat die Verbindung bei der Anmeldung beendet."));
    }
  });
}

void Controller_Link::logOn() {
  const QPointer<Controller_Link> self(this);
  setState(State::LoggingOn);
  if (!self || mState != State::LoggingOn) {
    return;
  }
  mLogOnTimer.start();
  DB_Log_On logOn;
  logOn.mUser = mClient->connection().mUser;
  logOn.mPassword = mClient->connection().mPassword;
  const QByteArray data = logOn.toData();
  mClient->sendMessage(mClient->connection().mKind == cRelayKind ? Controller_Command::Relay_Log_On
                                                                 : Controller_Command::Log_On,
                       static_cast<quint32>(data.size()), data.constData());
}

void Controller_Link::onError() {
  const QString text = mClient->lastErrorText();
  if (mState == State::Dialling && !text.isEmpty()) {
    mLastDialError = text;
    emit dialFailed(text, ++mFailedAttempts);
  }
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
  queue([this, text] {
    if (mState == State::LoggingOn) {
      const QPointer<Controller_Link> self(this);
      disconnectLink();
      if (self) {
        emit refused(text);
      }
    }
  });
}
