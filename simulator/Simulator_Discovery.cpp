#include "simulator/Simulator_Discovery.h"

#include "net/DB_Discovery_Answer.h"
#include "simulator/Simulator_Controller.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QUdpSocket>

namespace {

/// The broadcast address of the network that every machine has with itself.
const QHostAddress cLocalBroadcast(QStringLiteral("127.255.255.255"));

bool isOfThisMachine(const QHostAddress& sender) {
  return sender.isLoopback() || QNetworkInterface::allAddresses().contains(QHostAddress(sender.toIPv4Address()));
}

} // namespace

Simulator_Discovery::Simulator_Discovery(const Simulator_Controller& controller, QObject* parent)
    : QObject(parent),
      mController(controller),
      mSocket(new QUdpSocket(this)) {
  mSocket->setProxy(QNetworkProxy::NoProxy);
  connect(mSocket, &QUdpSocket::readyRead, this, &Simulator_Discovery::onReadyRead);
}

bool Simulator_Discovery::listen(quint16 controllerPort, QString* error) {
  mControllerPort = controllerPort;
  // Broadcasts do not reach a socket that is bound to one address.
  const bool isBound = mSocket->bind(QHostAddress(QHostAddress::AnyIPv4), mController.options().mDiscoveryPort,
                                     QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint);
  if (!isBound && error) {
    *error = tr("Am UDP-Port %1 kann nicht auf Suchen gewartet werden: %2")
                 .arg(mController.options().mDiscoveryPort)
                 .arg(mSocket->errorString());
  }
  return isBound;
}

bool Simulator_Discovery::isAnswered(const QHostAddress& sender) const {
  return mController.options().mAnswersRemoteSearch || isOfThisMachine(sender);
}

quint16 Simulator_Discovery::port() const {
  return mSocket->localPort();
}

void Simulator_Discovery::onReadyRead() {
  while (mSocket->hasPendingDatagrams()) {
    const QNetworkDatagram datagram = mSocket->receiveDatagram();
    if (datagram.data() != DB_Discovery_Answer::cSearch) {
      continue;
    }
    const QHostAddress sender(datagram.senderAddress().toIPv4Address());
    if (!isAnswered(sender)) {
      continue;
    }
    const bool isLocal = isOfThisMachine(sender);
    const DB_Controller_Informations informations = mController.informations();
    DB_Discovery_Answer answer;
    answer.mName = informations.mName;
    answer.mSerialNumber = informations.mSerialNumber;
    answer.mRuntimeVersion = informations.mRuntimeVersion;
    answer.mPort = mControllerPort;
    mSocket->writeDatagram(answer.toData(), isLocal ? cLocalBroadcast : sender,
                           isLocal ? mSocket->localPort() : static_cast<quint16>(datagram.senderPort()));
  }
}
