#include "simulator/Simulator_Server.h"

#include "net/Controller_Command.h"
#include "simulator/Simulator_Commands.h"
#include "simulator/Simulator_Session.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QtEndian>

#include <utility>

Simulator_Server::Simulator_Server(const Simulator_Options& options, QObject* parent)
    : QObject(parent),
      mController(options),
      mCycle(mController),
      mDiscovery(mController),
      mScripts(mController) {
  for (const QString& fault : options.mFaults) {
    mFaults.add(fault);
  }
  mListener.setProxy(QNetworkProxy::NoProxy);
  connect(&mListener, &QTcpServer::newConnection, this, &Simulator_Server::onNewConnection);
  connect(&mController, &Simulator_Controller::told, this, &Simulator_Server::tell);
  connect(&mScripts, &Simulator_Scripts::wrote, this, [this](const QUuid& block, const QString& line) {
    QByteArray time(sizeof(qint64), '\0');
    qToLittleEndian(mController.now(), time.data());
    tellWatching(block, Controller_Command::Script_Console, time + line.toUtf8());
  });
  connect(&mScripts, &Simulator_Scripts::watched, this,
          [this](const QUuid& block, const QString& name, const QString& value) {
            tellWatching(block, Controller_Command::Script_Variable, name.toUtf8() + '\0' + value.toUtf8());
          });
  mRestarting.setSingleShot(true);
  mRestarting.setInterval(options.mRestartMs);
  connect(&mRestarting, &QTimer::timeout, this, [this] {
    if (!mController.load()) {
      emit logged(mController.fault());
    }
    if (!mListener.listen(mController.options().mListen, mPort)) {
      emit logged(mListener.errorString());
      mRestarting.start();
    }
  });
}

Simulator_Server::~Simulator_Server() {
  closeSessions();
}

bool Simulator_Server::listen(QString* error) {
  const Simulator_Options& options = mController.options();
  const auto fail = [error](const QString& text) {
    if (error) {
      *error = text;
    }
    return false;
  };
  if (!mController.fault().isEmpty()) {
    return fail(mController.fault());
  }
  if (!mListener.listen(options.mListen, options.mPort)) {
    return fail(tr("An %1, Port %2 kann nicht gewartet werden: %3")
                    .arg(options.mListen.toString())
                    .arg(options.mPort)
                    .arg(mListener.errorString()));
  }
  mPort = mListener.serverPort();
  setCycle(options.mCycleMs);
  return !options.mDiscovers || mDiscovery.listen(mPort, error);
}

void Simulator_Server::onNewConnection() {
  while (QTcpSocket* const socket = mListener.nextPendingConnection()) {
    if (mSessions.size() >= cMostSessions) {
      socket->abort();
      socket->deleteLater();
      continue;
    }
    auto* const session = new Simulator_Session(socket, *this, this);
    mSessions.append(session);
    connect(session, &Simulator_Session::closed, this, &Simulator_Server::onClosed);
    if (socket->state() != QAbstractSocket::ConnectedState) {
      onClosed(session);
    }
  }
}

void Simulator_Server::onClosed(Simulator_Session* session) {
  if (!mSessions.removeOne(session)) {
    return;
  }
  if (mWriter == session) {
    // The project that was there runs again.
    mWriter = nullptr;
    mController.setStopped(false);
  }
  if (session->staging().mHasStarted) {
    // Resources came, but not their end.
    mController.storeProject();
  }
  session->deleteLater();
}

void Simulator_Server::forgetStarted() {
  for (Simulator_Session* const session : std::as_const(mSessions)) {
    session->staging().mHasStarted = false;
    session->staging().mResources.clear();
  }
}

void Simulator_Server::closeSessions() {
  const QList<Simulator_Session*> sessions = mSessions;
  for (Simulator_Session* const session : sessions) {
    session->close();
  }
}

void Simulator_Server::restart() {
  mListener.close();
  closeSessions();
  mRestarting.start();
}

void Simulator_Server::answer(Simulator_Session& session, quint32 command, QByteArrayView payload) {
  log(true, command, payload.size());
  if (mFaults.isMute(command)) {
    return;
  }
  const Simulator_Commands::Row* const row = Simulator_Commands::find(command);
  if (mFaults.isRefused(command)) {
    if (command == Controller_Command::Log_On || command == Controller_Command::Relay_Log_On) {
      session.sendText(Controller_Command::Log_On_Refused, tr("auf Wunsch abgelehnt"));
    } else {
      session.refuse(command, tr("Die Steuerung lehnt den Befehl %1 auf Wunsch ab.").arg(command));
    }
  } else if (!row) {
    session.refuse(command, tr("Die Steuerung kennt den Befehl %1 nicht.").arg(command));
  } else if (!session.isLoggedOn() && row->mAccess == Simulator_Commands::Access::Logged_On) {
    session.refuse(command, tr("Die Steuerung verlangt zuerst eine Anmeldung."));
  } else {
    row->mAnswer({*this, mController, session, command, payload});
  }
}

void Simulator_Server::tell(const DB_Address_Network_Telegram& telegram) {
  if (mController.isStopped()) {
    return;
  }
  const QByteArray bytes = telegram.toBytes();
  // A copy, as a session may end by it.
  const QList<Simulator_Session*> sessions = mSessions;
  for (Simulator_Session* const session : sessions) {
    session->tell(Controller_Command::Telegram, bytes);
  }
}

void Simulator_Server::tellWatching(const QUuid& block, quint32 command, const QByteArray& payload) {
  const QList<Simulator_Session*> sessions = mSessions;
  for (Simulator_Session* const session : sessions) {
    if (session->watches(block)) {
      session->tell(command, block.toRfc4122() + payload);
    }
  }
}

void Simulator_Server::log(bool isIncoming, quint32 command, qsizetype length) const {
  const bool isTelegram = command == Controller_Command::Telegram || command == Controller_Command::Telegram_Batch;
  if (mController.options().mIsLogging && (mIsLoggingAll || !isTelegram)) {
    emit logged(QStringLiteral("%1 %2 (%3 Bytes)").arg(isIncoming ? u'<' : u'>').arg(command).arg(length));
  }
}
