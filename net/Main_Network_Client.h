#pragma once

#include "db/DB_Connections.h"
#include "net/DB_Address_Network_Telegram.h"
#include "net/Message_Reader.h"
#include "net/Network_Message.h"

#include <QAbstractSocket>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>
#include <optional>

class Project_Session;
class QTcpSocket;

/// The studio's one link to the controller: a TCP socket whose messages are enciphered and framed (Network_Message).
/// Used from the user-interface thread.
///
/// Receivers of its signals are connected directly, copy what they keep, and never open a box or a nested event loop in
/// a delivery: they queue. While messages are delivered the event loop runs now and then, so a receiver may be deleted
/// and the link may be lost, closed or dialled anew in between; the client itself may be deleted too.
///
///     Idle -> Dialling -> Connected -> Idle
///
/// An attempt that fails is repeated every 10 s until it succeeds or is given up. A link that stood and was closed by
/// the peer is not dialled again.
class Main_Network_Client : public QObject {
  Q_OBJECT

public:
  static constexpr quint16 cControllerPort = 10001;
  static constexpr quint16 cRelayPort = 10003;
  static constexpr int cRedialMs = 10'000;
  /// What waits in memory to be read, unless one message is longer: the rest is left to the network.
  static constexpr qint64 cReadBuffer = 256LL * 1024;

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
  /// Another place for the built-in relay host, for trials on one machine.
  void setRelay(const QString& host, quint16 port = cRelayPort);
  void disconnectFromController();
  /// Connects with the stored record when the socket is unconnected and a link is wanted; without a record to where it
  /// was dialled last.
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
  /// What came is being delivered, also while the event loop runs meanwhile: a box that opens now would keep everything
  /// behind it waiting until it closes.
  [[nodiscard]] bool isReading() const { return mReading || mInSocket > 0; }
  /// Calls it later from the event loop, one after another, but never while it is reading: there a box may be opened.
  /// Nothing is called any more when the receiver is gone.
  void queue(QObject* receiver, std::function<void()> what);
  /// From a connect call until a disconnect.
  [[nodiscard]] bool isWanted() const { return mWanted; }
  /// The record in use, or last used.
  [[nodiscard]] const DB_Connections::ITEM& connection() const { return mConnection; }
  /// What is or was dialled last.
  [[nodiscard]] QString host() const { return mHost; }
  [[nodiscard]] quint16 port() const { return mPort; }
  /// The link leads, or is to lead, to the relay service itself and to no controller behind it.
  [[nodiscard]] bool isRelayService() const { return mIsRelayService; }
  /// Why the last attempt failed; German, for the user. Empty when it did not.
  [[nodiscard]] QString lastErrorText() const;
  /// Bytes that the socket has not yet sent.
  [[nodiscard]] qint64 bytesToWrite() const;
  /// Bytes that came and are not read yet.
  [[nodiscard]] qint64 bytesToRead() const;
  /// To hear what the client does not tell: each attempt's error.
  [[nodiscard]] const QAbstractSocket* socket() const;

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
  /// Where to dial, with which record.
  struct Target {
    std::optional<DB_Connections::ITEM> mConnection;
    QString mHost;
    quint16 mPort = 0;
    bool mIsRelayService = false;
  };
  /// Whether the client and its link are still those of the time when it was made.
  class Same_Link;
  /// A signal of the socket is being handled.
  class In_Socket;

  [[nodiscard]] Target targetOf(const DB_Connections::ITEM& connection) const;
  bool redial(Target target);
  void dial(const Target& target);
  void setReadLimit(qint64 limit);
  enum class Reading { Timely, WholeRest };
  void read(Reading reading);
  void waitForPayload(const Same_Link& link);
  void serveOthers(int ms);
  void callNext();
  void dispatch(Network_Message& message, QByteArray& payload, const Same_Link& link);
  void deliver(const DB_Address_Network_Telegram& telegram, const Same_Link& link);

  Project_Session& mSession;
  QTcpSocket* mSocket;
  QTimer* mWatchdog;
  QTimer* mGoOn;     ///< with reading, once the event loop has served others
  QTimer* mCallNext; ///< of what is queued
  struct Call {
    QPointer<QObject> mReceiver;
    std::function<void()> mWhat;
  };
  QList<Call> mCalls;
  DB_Connections::ITEM mConnection;
  bool mHasRecord = false;     ///< else `mConnection` is empty
  std::optional<Target> mNext; ///< while the link before it is taken down
  QString mHost;
  quint16 mPort = 0;
  QString mRelayHost;
  quint16 mRelayPort = cRelayPort;
  bool mIsRelayService = false;
  bool mWanted = false;
  bool mConnected = false;
  bool mReading = false;
  bool mIsClosing = false; ///< the peer has closed the link while what it sent before was read
  int mInSocket = 0;       ///< signals of the socket that are being handled
  quint64 mLinkCount = 0;  ///< tells whether the link is still the one it was before others were called
  Message_Reader mReader;
  DB_Address_Network_Telegram mTelegram; ///< that last came, kept for its memory
  int mDelivered = 0;                    ///< telegrams since the last yield
  QElapsedTimer mPass;                   ///< since reading began
};
