#include "net/Main_Network_Client.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "db/Connection_Defaults.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Network_Cipher.h"
#include "net/Network_Frame.h"
#include "net/Telegram_Batch.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QNetworkProxy>
#include <QTcpSocket>

#include <optional>
#include <utility>

namespace {

constexpr int cRelayKind = 1;
constexpr int cWaitSliceMs = 50;
constexpr int cLongestWaitMs = 499;
constexpr int cYieldMs = 150;
constexpr int cTelegramsWithoutYield = 150;

bool decipher(QByteArray& bytes) {
  return Network_Cipher::decipher({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

Main_Network_Client::Main_Network_Client(Project_Session& session, QObject* parent)
    : QObject(parent),
      mSession(session),
      mSocket(new QTcpSocket(this)),
      mWatchdog(new QTimer(this)) {
  QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
  mWatchdog->setInterval(cRedialMs);
  connect(mWatchdog, &QTimer::timeout, this, &Main_Network_Client::onTimeout);
  connect(mSocket, &QTcpSocket::errorOccurred, this, &Main_Network_Client::onSocketConnectionError);
  connect(mSocket, &QTcpSocket::connected, this, &Main_Network_Client::onSocketConnectionOk);
  connect(mSocket, &QTcpSocket::disconnected, this, &Main_Network_Client::onSocketConnectionClosed);
  connect(mSocket, &QTcpSocket::readyRead, this, &Main_Network_Client::onSocketConnectionReadyRead);
}

Main_Network_Client::~Main_Network_Client() {
  mSocket->disconnect(this);
}

bool Main_Network_Client::connectToController(const DB_Connections::ITEM* connection) {
  // The record may be the client's own.
  const std::optional<DB_Connections::ITEM> copy = connection ? std::optional(*connection) : std::nullopt;
  disconnectFromController();
  if (!copy) {
    return false;
  }
  mConnection = *copy;
  if (mConnection.mKind == cRelayKind) {
    if (mConnection.mRelayHost.isEmpty()) {
      mConnection.mRelayHost = Connection_Defaults::relayHost();
    }
    dial(mConnection.mRelayHost, cRelayPort);
    return true;
  }
  QString host = mConnection.mAddress.trimmed();
  quint16 port = cControllerPort;
  const QStringList parts = host.split(u':');
  if (parts.size() == 2) {
    host = parts.at(0);
    port = static_cast<quint16>(parts.at(1).toUInt());
  }
  dial(host, port);
  return true;
}

bool Main_Network_Client::connectToRelay(const DB_Connections::ITEM* connection) {
  const std::optional<DB_Connections::ITEM> copy = connection ? std::optional(*connection) : std::nullopt;
  disconnectFromController();
  if (!copy) {
    return false;
  }
  mConnection = *copy;
  dial(Connection_Defaults::relayHost(), cRelayPort);
  return true;
}

bool Main_Network_Client::connectToRelayServer() {
  disconnectFromController();
  mConnection = {};
  dial(Connection_Defaults::relayHost(), cRelayPort);
  return true;
}

void Main_Network_Client::dial(const QString& host, quint16 port) {
  mHost = host;
  mPort = port;
  mSocket->connectToHost(host, port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
  mWanted = true;
  mWatchdog->start();
}

void Main_Network_Client::disconnectFromController() {
  mWatchdog->stop();
  mWanted = false;
  mSocket->abort();
  mSocket->close();
  onSocketConnectionClosed();
  mPending = {};
}

bool Main_Network_Client::reconnectIfLost() {
  if (mSocket->state() != QAbstractSocket::UnconnectedState || !mWanted) {
    return false;
  }
  return connectToController(&mConnection);
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
  mSession.values().set(group->mKey,
                        {*payload, wanted, QDateTime::currentMSecsSinceEpoch(), tr("Studio"), !mConnected});
  return sendTelegram(DB_Address_Network_Telegram::to(address, DB_Address_Network_Telegram::Write, *payload));
}

qint64 Main_Network_Client::bytesToWrite() const {
  return mSocket->bytesToWrite();
}

void Main_Network_Client::onSocketConnectionError(QAbstractSocket::SocketError) {
  // Failures show through the connection signal and the watchdog.
}

void Main_Network_Client::onTimeout() {
  reconnectIfLost();
}

void Main_Network_Client::onSocketConnectionOk() {
  mSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  mConnected = true;
  emit onProcessNetworkConnect(true, mConnection);
}

void Main_Network_Client::onSocketConnectionClosed() {
  mPending = {};
  mConnected = false;
  emit onProcessNetworkConnect(false, mConnection);
  if (mWanted) {
    disconnectFromController();
  }
}

void Main_Network_Client::onSocketConnectionReadyRead() {
  if (mReading) {
    return;
  }
  mReading = true;
  int waited = 0;
  for (;;) {
    if (mPending.mMagic == 0) {
      if (mSocket->bytesAvailable() < Network_Message::cSize) {
        break;
      }
      const std::optional<Network_Message> header = Network_Frame::header(mSocket->read(Network_Message::cSize));
      if (!header) {
        mSocket->readAll();
        break;
      }
      if (header->mPaddedLength == 0) {
        Network_Message message = *header;
        emit onProcessNetworkRead(&message, nullptr);
        continue;
      }
      mPending = *header;
    }
    if (mSocket->bytesAvailable() < mPending.mPaddedLength) {
      if (waited > cLongestWaitMs) {
        break;
      }
      QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers, cWaitSliceMs);
      if (mSocket->bytesAvailable() < mPending.mPaddedLength) {
        break;
      }
      waited += cWaitSliceMs;
      continue;
    }
    Network_Message message = std::exchange(mPending, {});
    QByteArray payload = mSocket->read(message.mPaddedLength);
    if (!decipher(payload)) {
      break;
    }
    const auto deliver = [this](const DB_Address_Network_Telegram& telegram) {
      if (!telegram.isAddressed()) {
        return;
      }
      emit onProcessNetworkRead(telegram);
      if (mDelivered++ > cTelegramsWithoutYield) {
        QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers, cYieldMs);
        mDelivered = 0;
      }
    };
    if (message.mCommand == Controller_Command::Telegram) {
      if (message.mDataLength >= DB_Address_Network_Telegram::cHead) {
        deliver(DB_Address_Network_Telegram::fromBytes(
            QByteArrayView(payload).first(std::min<qsizetype>(payload.size(), message.mDataLength))));
      }
    } else if (message.mCommand == Controller_Command::Telegram_Batch) {
      DB_Address_Network_Telegram telegram;
      qsizetype offset = 0;
      while (const qsizetype taken = Telegram_Batch::decode(payload, message.mDataLength, offset,
                                                            DB_Address_Network_Telegram::cMostData, telegram)) {
        offset += taken;
        telegram.mKind = DB_Address_Network_Telegram::cKindRuntime;
        telegram.mIsValid = 1;
        deliver(telegram);
      }
    } else {
      emit onProcessNetworkRead(&message, reinterpret_cast<uchar*>(payload.data()));
    }
    waited = 0;
  }
  mReading = false;
}
