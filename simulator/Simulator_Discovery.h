#pragma once

#include <QHostAddress>
#include <QObject>

class QUdpSocket;
class Simulator_Controller;

/// Answers the search for controllers (DB_Discovery_Answer). Searches from other machines are not answered unless
/// options say so; the answer to one from this machine goes to 127.255.255.255 at the port of searches, because a
/// datagram to one address would reach only one of the sockets that share that port.
class Simulator_Discovery : public QObject {
  Q_OBJECT

public:
  /// The controller outlives it.
  explicit Simulator_Discovery(const Simulator_Controller& controller, QObject* parent = nullptr);

  /// `controllerPort` is what the answers name. False with a German error.
  bool listen(quint16 controllerPort, QString* error = nullptr);
  [[nodiscard]] quint16 port() const;
  [[nodiscard]] bool isAnswered(const QHostAddress& sender) const;

private:
  void onReadyRead();

  const Simulator_Controller& mController;
  QUdpSocket* mSocket;
  quint16 mControllerPort = 0;
};
