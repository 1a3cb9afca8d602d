#include "net/Controller_Exchange.h"

#include "net/Controller_Command.h"
#include "net/Controller_Records.h"

Controller_Exchange::Controller_Exchange(Main_Network_Client& client, QObject* parent)
    : QObject(parent),
      mClient(client) {
  mTimer.setSingleShot(true);
  connect(&mTimer, &QTimer::timeout, this, &Controller_Exchange::onTimeout);
  connect(&mClient, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), this,
          &Controller_Exchange::onNetworkRead);
  connect(&mClient, &Main_Network_Client::onProcessNetworkConnect, this, &Controller_Exchange::onNetworkConnect);
}

Controller_Exchange::~Controller_Exchange() = default;

void Controller_Exchange::start() {
  if (mState != State::Idle) {
    return;
  }
  mState = State::Running;
  if (!mClient.isConnected()) {
    finish(End::NoLink, tr("Keine Verbindung zur Steuerung"));
    return;
  }
  restartTimeout();
  begin();
}

void Controller_Exchange::cancel() {
  if (mState == State::Idle) {
    mState = State::Running;
  }
  finish(End::Cancelled, {});
}

bool Controller_Exchange::send(quint32 command) {
  return send(command, {});
}

bool Controller_Exchange::send(quint32 command, QByteArrayView payload) {
  mSent.insert(command);
  if (isRunning() && mClient.sendMessage(command, static_cast<quint32>(payload.size()), payload.data())) {
    mToWrite = mClient.bytesToWrite();
    return true;
  }
  finish(End::NoLink, tr("Keine Verbindung zur Steuerung"));
  return false;
}

bool Controller_Exchange::sendText(quint32 command, const QString& text) {
  QByteArray bytes = text.toUtf8();
  bytes.append('\0');
  return send(command, bytes);
}

void Controller_Exchange::restartTimeout() {
  mToWrite = mClient.bytesToWrite();
  mTimer.start(mTimeoutMs);
}

void Controller_Exchange::onTimeout() {
  // Much that is sent over a slow way takes longer than an answer may.
  if (mClient.bytesToWrite() < mToWrite) {
    restartTimeout();
    return;
  }
  finish(End::NoAnswer, tr("Keine Antwort der Steuerung"));
}

QString Controller_Exchange::text(QByteArrayView payload) {
  const qsizetype end = payload.indexOf('\0');
  return QString::fromUtf8(end < 0 ? payload : payload.first(end));
}

void Controller_Exchange::finish(End end, const QString& text) {
  if (mState != State::Running) {
    return;
  }
  mState = State::Finished;
  mTimer.stop();
  mEnd = end;
  mErrorText = text;
  if (end != End::Done) {
    abort();
  }
  mClient.queue(this, [this] { emit finished(mEnd); });
}

void Controller_Exchange::onNetworkRead(Network_Message* message, uchar* data) {
  if (!isRunning()) {
    return;
  }
  const QByteArrayView payload(data, data ? static_cast<qsizetype>(message->mDataLength) : 0);
  if (message->mCommand == Controller_Command::Refused) {
    DB_Refusal refusal;
    refusal.setData(payload.toByteArray());
    refusal.fromData();
    if (mSent.contains(static_cast<quint32>(refusal.mCommand))) {
      finish(End::Refused, refusal.mReason);
    }
    return;
  }
  if (take(message->mCommand, payload) && isRunning() && mTimer.isActive()) {
    restartTimeout();
  }
}

void Controller_Exchange::onNetworkConnect(bool isConnected) {
  if (!isConnected) {
    finish(End::NoLink, tr("Keine Verbindung zur Steuerung"));
  }
}
