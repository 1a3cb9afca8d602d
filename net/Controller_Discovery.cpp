#include "net/Controller_Discovery.h"

#include "db/Connection_Defaults.h"
#include "net/Main_Network_Client.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QStringList>
#include <QUdpSocket>

#include <algorithm>

namespace {

constexpr int cTickStep = 10;
constexpr int cSearchAt = 10;
constexpr int cRoundEnd = 100;
constexpr size_t cMostFound = 1000;

} // namespace

QString Controller_Discovery::Found::text() const {
  return QStringLiteral("%1 (%2) %3").arg(mConnection.mName, mConnection.mAddress, mConnection.mSerialNumber).trimmed();
}

Controller_Discovery::Controller_Discovery(const QString& addresses, quint16 port, int tickMs, QObject* parent)
    : QObject(parent),
      mAddresses(addresses),
      mPort(port),
      mSocket(new QUdpSocket(this)) {
  mTimer.setInterval(tickMs);
  connect(&mTimer, &QTimer::timeout, this, &Controller_Discovery::onTick);
  connect(mSocket, &QUdpSocket::readyRead, this, &Controller_Discovery::onReadyRead);
}

Controller_Discovery::~Controller_Discovery() {
  mSocket->disconnect(this);
}

bool Controller_Discovery::start(QString* error) {
  stop();
  if (!mSocket->bind(QHostAddress::AnyIPv4, mPort, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint)) {
    if (error) {
      *error = tr("Die Suche kann den UDP-Port %1 nicht benutzen: %2").arg(mPort).arg(mSocket->errorString());
    }
    return false;
  }
  mTicks = 0;
  mTimer.start();
  return true;
}

void Controller_Discovery::stop() {
  mTimer.stop();
  mSocket->close();
}

QList<QHostAddress> Controller_Discovery::targets(const QString& addresses) {
  QList<QHostAddress> targets;
  const auto add = [&targets](const QHostAddress& address) {
    if (address.protocol() == QAbstractSocket::IPv4Protocol && !targets.contains(address)) {
      targets.append(address);
    }
  };
  const QStringList listed = addresses.split(u',', Qt::SkipEmptyParts);
  for (const QString& text : listed) {
    add(QHostAddress(text.trimmed()));
  }
  // A list without a single address must not turn into a search of all networks.
  if (!addresses.trimmed().isEmpty()) {
    return targets;
  }
  add(QHostAddress(QHostAddress::Broadcast));
  const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
  for (const QNetworkInterface& one : interfaces) {
    const QList<QNetworkAddressEntry> entries = one.addressEntries();
    for (const QNetworkAddressEntry& entry : entries) {
      add(entry.broadcast());
    }
  }
  add(QHostAddress(QStringLiteral("127.255.255.255")));
  return targets;
}

void Controller_Discovery::onTick() {
  if (mTicks == cSearchAt) {
    const QList<QHostAddress> all = targets(mAddresses);
    for (const QHostAddress& address : all) {
      mSocket->writeDatagram(DB_Discovery_Answer::cSearch.data(), DB_Discovery_Answer::cSearch.size(), address, mPort);
    }
    emit searched();
  }
  mTicks += cTickStep;
  if (mTicks == cRoundEnd) {
    mTicks = cSearchAt;
  }
}

void Controller_Discovery::onReadyRead() {
  while (mSocket->hasPendingDatagrams()) {
    const QNetworkDatagram datagram = mSocket->receiveDatagram();
    take(datagram.data(), datagram.senderAddress());
  }
}

void Controller_Discovery::take(const QByteArray& datagram, const QHostAddress& sender) {
  if (datagram == DB_Discovery_Answer::cSearch || mFound.size() >= cMostFound) {
    return;
  }
  const std::optional<DB_Discovery_Answer> answer = DB_Discovery_Answer::parse(datagram);
  bool isIpv4 = false;
  const QHostAddress address(sender.toIPv4Address(&isIpv4));
  if (!answer || !isIpv4) {
    return;
  }
  Found found;
  DB_Connections::ITEM& connection = found.mConnection;
  connection.mName = answer->mName;
  connection.mSerialNumber = answer->mSerialNumber;
  connection.mUser = Connection_Defaults::user();
  connection.mPassword = Connection_Defaults::password();
  connection.mAddress = address.toString();
  if (answer->mPort != Main_Network_Client::cControllerPort) {
    connection.mAddress += QStringLiteral(":%1").arg(answer->mPort);
  }
  found.mRuntimeVersion = answer->mRuntimeVersion;
  const QString text = found.text();
  if (std::none_of(mFound.begin(), mFound.end(), [&text](const Found& other) { return other.text() == text; })) {
    mFound.push_back(found);
    emit controllerFound();
  }
}
