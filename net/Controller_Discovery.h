#pragma once

#include "db/DB_Connections.h"
#include "net/DB_Discovery_Answer.h"

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

class QUdpSocket;

/// Searches controllers in the local networks: sends a datagram now and then while it is started, and collects the
/// answers. The port is shared with other studios of the machine.
class Controller_Discovery : public QObject {
  Q_OBJECT

public:
  static constexpr int cTickMs = 500;

  /// What answered.
  struct Found {
    DB_Connections::ITEM mConnection; ///< with the user and password that controllers have when they leave the factory
    QString mRuntimeVersion;
    [[nodiscard]] QString text() const; ///< name, address and serial number; what an entry is the same by
  };

  /// `addresses` is the user's setting: IPv4 addresses separated by commas; empty for the broadcast addresses of all
  /// networks and of this machine itself.
  explicit Controller_Discovery(const QString& addresses, quint16 port = DB_Discovery_Answer::cPort,
                                int tickMs = cTickMs, QObject* parent = nullptr);
  ~Controller_Discovery() override;

  /// Searches and listens from now on; the first search goes out with the second tick. False with a German `error` when
  /// the port cannot be used.
  bool start(QString* error = nullptr);
  /// Neither searches nor listens any more; what was found stays.
  void stop();
  [[nodiscard]] bool isSearching() const { return mTimer.isActive(); }
  [[nodiscard]] const std::vector<Found>& found() const { return mFound; }
  /// In their order, each once. What is no IPv4 address is left out.
  [[nodiscard]] static QList<QHostAddress> targets(const QString& addresses);

signals:
  /// At the end of `found`.
  void controllerFound();
  /// A search went out.
  void searched();

private slots:
  void onTick();

private:
  void onReadyRead();
  void take(const QByteArray& datagram, const QHostAddress& sender);

  QString mAddresses;
  quint16 mPort;
  QTimer mTimer;
  QUdpSocket* mSocket;
  int mTicks = 0;
  std::vector<Found> mFound;
};
