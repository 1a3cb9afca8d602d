#include "net/Main_Network_Client.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "db/Connection_Address.h"
#include "db/Connection_Defaults.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Main_Network_Client_Guards.h"
#include "net/Network_Frame.h"

#include <QDateTime>
#include <QNetworkProxy>
#include <QTcpSocket>

#include <optional>
#include <utility>

namespace {

constexpr int cRelayKind = 1;

} // namespace

Main_Network_Client::Main_Network_Client(Project_Session& session, QObject* parent)
    : QObject(parent),
      mSession(session),
      mSocket(new QTcpSocket(this)),
      mWatchdog(new QTimer(this)),
      mGoOn(new QTimer(this)),
      mCallNext(new QTimer(this)),
      mRelayHost(Connection_Defaults::relayHost()) {
  QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
  mWatchdog->setInterval(cRedialMs);
  // A timer, as an event of our own would be served again and again before any timer.
  mGoOn->setInterval(0);
  mGoOn->setSingleShot(true);
  mCallNext->setInterval(0);
  mCallNext->setSingleShot(true);
  mSocket->setReadBufferSize(cReadBuffer);
  connect(mWatchdog, &QTimer::timeout, this, &Main_Network_Client::onTimeout);
  connect(mGoOn, &QTimer::timeout, this, &Main_Network_Client::onSocketConnectionReadyRead);
  connect(mCallNext, &QTimer::timeout, this, &Main_Network_Client::callNext);
  connect(mSocket, &QTcpSocket::errorOccurred, this, &Main_Network_Client::onSocketConnectionError);
  connect(mSocket, &QTcpSocket::connected, this, &Main_Network_Client::onSocketConnectionOk);
  connect(mSocket, &QTcpSocket::disconnected, this, &Main_Network_Client::onSocketConnectionClosed);
  connect(mSocket, &QTcpSocket::readyRead, this, &Main_Network_Client::onSocketConnectionReadyRead);
}

Main_Network_Client::~Main_Network_Client() {
  mSocket->disconnect(this);
  if (mInSocket > 0) {
    // The socket goes on with its work when the slot returns.
    mSocket->setParent(nullptr);
    mSocket->abort();
    mSocket->deleteLater();
  }
}

Main_Network_Client::Target Main_Network_Client::targetOf(const DB_Connections::ITEM& connection) const {
  Target target{connection, {}, cControllerPort, false};
  if (connection.mKind == cRelayKind) {
    if (connection.mRelayHost.isEmpty()) {
      target.mConnection->mRelayHost = mRelayHost;
    }
    target.mHost = target.mConnection->mRelayHost;
    target.mPort = mRelayPort;
    return target;
  }
  const auto address = Connection_Address::parse(Connection_Address::normalised(connection.mAddress), cControllerPort);
  target.mHost = address.mHost;
  target.mPort = address.mPort;
  return target;
}

bool Main_Network_Client::connectToController(const DB_Connections::ITEM* connection) {
  if (!connection) {
    disconnectFromController();
    return false;
  }
  // A copy, as the record may be the client's own, or one that a receiver changes while the old link is taken down.
  return redial(targetOf(*connection));
}

bool Main_Network_Client::connectToRelay(const DB_Connections::ITEM* connection) {
  if (!connection) {
    disconnectFromController();
    return false;
  }
  return redial({*connection, mRelayHost, mRelayPort, true});
}

bool Main_Network_Client::connectToRelayServer() {
  return redial({std::nullopt, mRelayHost, mRelayPort, true});
}

void Main_Network_Client::setRelay(const QString& host, quint16 port) {
  mRelayHost = host;
  mRelayPort = port;
}

bool Main_Network_Client::redial(Target target) {
  // Who hears that the old link is down may dial in that very moment: the last one wins, and dials once.
  const bool isUnderWay = mNext.has_value();
  mNext = std::move(target);
  if (isUnderWay) {
    return true;
  }
  const QPointer<Main_Network_Client> self(this);
  disconnectFromController();
  if (!self) {
    return false;
  }
  dial(*std::exchange(mNext, std::nullopt));
  return true;
}

void Main_Network_Client::dial(const Target& target) {
  mHasRecord = target.mConnection.has_value();
  mConnection = target.mConnection.value_or(DB_Connections::ITEM());
  mIsRelayService = target.mIsRelayService;
  mHost = target.mHost;
  mPort = target.mPort;
  mWanted = true;
  mWatchdog->start();
  mSocket->connectToHost(mHost, mPort, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

void Main_Network_Client::disconnectFromController() {
  const QPointer<Main_Network_Client> self(this);
  mWatchdog->stop();
  mWanted = false;
  mSocket->abort();
  if (!self || mWanted) {
    // Who heard of the end has dialled anew.
    return;
  }
  mSocket->close();
  onSocketConnectionClosed();
}

bool Main_Network_Client::reconnectIfLost() {
  if (mSocket->state() != QAbstractSocket::UnconnectedState || !mWanted || mConnected) {
    return false;
  }
  return mHasRecord ? connectToController(&mConnection) : connectToRelayServer();
}

bool Main_Network_Client::sendMessage(quint32 command, quint32 length, const void* data) {
  if (!mConnected) {
    return false;
  }
  const QByteArray bytes =
      Network_Frame::pack(command, {static_cast<const char*>(data), static_cast<qsizetype>(length)});
  return !bytes.isEmpty() && mSocket->write(bytes) > 0;
}

bool Main_Network_Client::sendCommand(quint32 command) {
  return sendMessage(command, 0, nullptr);
}

bool Main_Network_Client::sendText(quint32 command, const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return sendMessage(command, static_cast<quint32>(bytes.size() + 1), bytes.constData());
}

bool Main_Network_Client::sendTelegram(const DB_Address_Network_Telegram& telegram) {
  const QByteArray bytes = telegram.toBytes();
  return sendMessage(Controller_Command::Telegram, static_cast<quint32>(bytes.size()), bytes.constData());
}

bool Main_Network_Client::sendValue(const Group_Address& address, double value) {
  const DB_Address_Sub_Group* const group = mSession.database().mAddresses.subGroup(address);
  const Datapoint_Type* const type = group ? Datapoint_Types::find(group->mDpt) : nullptr;
  if (!type) {
    return false;
  }
  Datapoint_Value wanted;
  wanted.mScalar = value;
  const std::optional<QByteArray> payload = Datapoint_Codec::encode(*type, wanted);
  if (!payload) {
    return false;
  }
  mSession.values().set(group->mKey, {*payload, Datapoint_Codec::decode(*type, *payload),
                                      QDateTime::currentMSecsSinceEpoch(), tr("Studio"), !mConnected});
  return sendTelegram(DB_Address_Network_Telegram::to(address, DB_Address_Network_Telegram::Write, *payload));
}

qint64 Main_Network_Client::bytesToWrite() const {
  return mSocket->bytesToWrite();
}

qint64 Main_Network_Client::bytesToRead() const {
  return mSocket->bytesAvailable();
}

const QAbstractSocket* Main_Network_Client::socket() const {
  return mSocket;
}

QString Main_Network_Client::lastErrorText() const {
  if (!mWanted || mSocket->state() != QAbstractSocket::UnconnectedState) {
    return {};
  }
  switch (mSocket->error()) {
  case QAbstractSocket::ConnectionRefusedError:
    return tr("%1 nimmt auf Port %2 keine Verbindung an.").arg(mHost, QString::number(mPort));
  case QAbstractSocket::HostNotFoundError:
    return tr("Der Name \"%1\" ist im Netz nicht bekannt.").arg(mHost);
  case QAbstractSocket::SocketTimeoutError:
    return tr("%1 antwortet nicht.").arg(mHost);
  case QAbstractSocket::NetworkError:
    return tr("%1 ist im Netz nicht erreichbar.").arg(mHost);
  default:
    return tr("%1 ist nicht erreichbar: %2").arg(mHost, mSocket->errorString());
  }
}

void Main_Network_Client::onSocketConnectionError(QAbstractSocket::SocketError) {
  // Failures show through the connection signal and the watchdog.
}

void Main_Network_Client::onTimeout() {
  reconnectIfLost();
}

void Main_Network_Client::onSocketConnectionOk() {
  const In_Socket inSocket(this);
  mSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  mConnected = true;
  emit onProcessNetworkConnect(true, mConnection);
}

void Main_Network_Client::onSocketConnectionClosed() {
  const In_Socket inSocket(this);
  if (mWanted && mReading) {
    // Some event dispatchers serve sockets even when told not to. What has come is read first.
    mIsClosing = true;
    return;
  }
  if (mWanted) {
    // The peer closed the link; what it sent before counts.
    const Same_Link link(this);
    read(Reading::WholeRest);
    if (link.isGone()) {
      return;
    }
  }
  ++mLinkCount;
  mGoOn->stop();
  mReading = false;
  mIsClosing = false;
  mReader.clear();
  mConnected = false;
  const Same_Link link(this);
  emit onProcessNetworkConnect(false, mConnection);
  if (!link.isGone() && mWanted) {
    disconnectFromController();
  }
}

void Main_Network_Client::onSocketConnectionReadyRead() {
  const In_Socket inSocket(this);
  read(Reading::Timely);
}

void Main_Network_Client::queue(QObject* receiver, std::function<void()> what) {
  mCalls.append({receiver, std::move(what)});
  mCallNext->start();
}

void Main_Network_Client::callNext() {
  if (mCalls.isEmpty() || isReading()) {
    return; // goes on when reading ends
  }
  const Call call = mCalls.takeFirst();
  if (!mCalls.isEmpty()) {
    mCallNext->start(); // also while a box is open in this one
  }
  if (call.mReceiver) {
    call.mWhat();
  }
}
