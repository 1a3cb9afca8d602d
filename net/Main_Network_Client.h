#pragma once

#include "db/DB_Connections.h"
#include "net/DB_Address_Network_Telegram.h"
#include "net/Network_Message.h"

#include <QAbstractSocket>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class Project_Session;
class QTcpSocket;

/// The studio's one link to the controller: a TCP socket whose messages are enciphered and framed (Network_Message).
/// Used from the user-interface thread.
///
/// Receivers of its signals are connected directly, copy what they keep, and never open a box or a nested event loop in
/// a delivery: they queue. While messages are delivered the event loop runs now and then, so a receiver may be deleted
/// and the link may be lost, closed or dialled anew in between.
class Main_Network_Client : public QObject {
  Q_OBJECT

public:
  static constexpr quint16 cControllerPort = 10001;
  static constexpr quint16 cRelayPort = 10003;
  static constexpr int cRedialMs = 10'000;

  /// The session, which outlives the client, holds the addresses that `sendValue` looks up. All network traffic of the
  /// program goes without a proxy from now on.
  explicit Main_Network_Client(Project_Session& session, QObject* parent = nullptr);
  ~Main_Network_Client() override;

  /// Disconnects, then dials as the record says; false only for a null record. The outcome comes as
  /// `onProcessNetworkConnect`, and before that one false from disconnecting: who waits must not take it for a failure.
  bool connectToController(const DB_Connections::ITEM* connection);
  /// The same, but to the built-in relay host.
  bool connectToRelay(const DB_Connections::ITEM* connection);
  /// To the built-in relay host, without a record.
  bool connectToRelayServer();
  void disconnectFromController();
  /// Dials again with the stored record when the socket is unconnected and a link is wanted.
  bool reconnectIfLost();

  /// False, and nothing is sent or queued, while not connected or when the socket takes nothing.
  bool sendMessage(quint32 command, quint32 length, const void* data);
  bool sendCommand(quint32 command);
  /// UTF-8 with its terminating zero byte.
  bool sendText(quint32 command, const QString& text);
  bool sendTelegram(const DB_Address_Network_Telegram& telegram);
  /// The value goes into the session's values and, encoded as the address's datapoint type says, to the controller.
  /// False for an address that the project lacks, and for a value that the type cannot hold.
  bool sendValue(const Group_Address& address, double value);

  [[nodiscard]] bool isConnected() const { return mConnected; }
  /// From a connect call until a disconnect.
  [[nodiscard]] bool isWanted() const { return mWanted; }
  /// The record in use, or last used.
  [[nodiscard]] const DB_Connections::ITEM& connection() const { return mConnection; }
  /// What is or was dialled last.
  [[nodiscard]] QString host() const { return mHost; }
  [[nodiscard]] quint16 port() const { return mPort; }
  /// Bytes that the socket has not yet sent.
  [[nodiscard]] qint64 bytesToWrite() const;

signals:
  /// A complete message other than a telegram. `dataIn` is the deciphered payload, null without one, and valid during
  /// the delivery only.
  void onProcessNetworkRead(Network_Message* msgIn, uchar* dataIn);
  /// A telegram of the controller.
  void onProcessNetworkRead(DB_Address_Network_Telegram netTgm);
  /// The link went up or down, with the record in use. Down may be told twice.
  void onProcessNetworkConnect(bool connected, DB_Connections::ITEM connectionIn);

private slots:
  void onSocketConnectionError(QAbstractSocket::SocketError error);
  void onTimeout();
  void onSocketConnectionOk();
  void onSocketConnectionClosed();
  void onSocketConnectionReadyRead();

private:
  void dial(const QString& host, quint16 port);

  Project_Session& mSession;
  QTcpSocket* mSocket;
  QTimer* mWatchdog;
  DB_Connections::ITEM mConnection;
  QString mHost;
  quint16 mPort = 0;
  bool mWanted = false;
  bool mConnected = false;
  bool mReading = false;
  Network_Message mPending; ///< magic 0: none
  int mDelivered = 0;       ///< telegrams since the last yield
};
