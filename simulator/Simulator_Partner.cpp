#include "simulator/Simulator_Partner.h"

#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "net/Network_Frame.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>

#include <optional>

namespace {

constexpr int cTimeoutMs = 3000;

} // namespace

Simulator_Partner::Simulator_Partner(const Simulator_Options& options, quint32 command, const QString& text,
                                     QObject* parent)
    : QObject(parent),
      mUser(options.mUser),
      mPassword(options.mPassword),
      mAddress(text.section(u'#', 0, 0)),
      mNumber(command == Controller_Command::Partner_Number_Set ? text.section(u'#', 1) : QString()),
      mSocket(new QTcpSocket(this)) {
  mSocket->setProxy(QNetworkProxy::NoProxy);
  mTimeout.setSingleShot(true);
  const auto fail = [this] { end(tr("Die Steuerung \"%1\" ist nicht erreichbar.").arg(mAddress)); };
  connect(&mTimeout, &QTimer::timeout, this, fail);
  connect(mSocket, &QTcpSocket::errorOccurred, this, fail);
  connect(mSocket, &QTcpSocket::readyRead, this, &Simulator_Partner::onReadyRead);
  connect(mSocket, &QTcpSocket::connected, this, [this] {
    DB_Log_On who;
    who.mUser = mUser;
    who.mPassword = mPassword;
    mSocket->write(Network_Frame::pack(Controller_Command::Log_On, who.toData()));
  });
}

void Simulator_Partner::start() {
  const QHostAddress host(mAddress.section(u':', 0, 0));
  const int port = mAddress.contains(u':') ? mAddress.section(u':', 1).toInt() : Simulator_Options::cPort;
  if (!host.isLoopback()) {
    QTimer::singleShot(0, this, [this] { end(tr("Die Steuerung \"%1\" ist nicht erreichbar.").arg(mAddress)); });
    return;
  }
  mTimeout.start(cTimeoutMs);
  mSocket->connectToHost(host, static_cast<quint16>(port));
}

void Simulator_Partner::onReadyRead() {
  mReader.append(mSocket->readAll());
  while (const std::optional<Simulator_Frame_Reader::Message> message = mReader.next()) {
    switch (message->mCommand) {
    case Controller_Command::Log_On_Accepted:
      mSocket->write(mNumber.isEmpty() ? Network_Frame::pack(Controller_Command::Number_Clear, {})
                                       : Network_Frame::pack(Controller_Command::Number_Set, mNumber.toUtf8() + '\0'));
      break;
    case Controller_Command::Number_Set_Reply:
    case Controller_Command::Number_Clear_Reply:
      end({});
      return;
    case Controller_Command::Log_On_Refused:
    case Controller_Command::Refused:
      end(tr("Die Steuerung \"%1\" lehnt ab.").arg(mAddress));
      return;
    default:
      break;
    }
  }
}

void Simulator_Partner::end(const QString& fault) {
  if (!mIsDone) {
    mIsDone = true;
    emit finished(fault);
    deleteLater();
  }
}
