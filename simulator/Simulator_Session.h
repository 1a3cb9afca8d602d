#pragma once

#include "net/Byte_Stream.h"
#include "simulator/Simulator_Frame_Reader.h"
#include "simulator/Simulator_Project.h"
#include "simulator/Simulator_Wire.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QUuid>

class QTcpSocket;
class Simulator_Server;

/// One connection to the stand-in: cuts what comes into messages and has them answered. Before the log-on little is
/// answered, and a long message ends the connection. Who does not read what is sent is not listened to either, and told
/// no more than bounded memory holds; then the connection ends.
class Simulator_Session : public QObject {
  Q_OBJECT

public:
  static constexpr quint32 cMostBeforeLogOn = 64U * 1024;
  static constexpr int cMostRefusedLogOns = 3;               ///< then the connection ends
  static constexpr int cLogOnMs = 60'000;                    ///< without a log-on until then it ends, too
  static constexpr qint64 cMostWaiting = 16LL * 1024 * 1024; ///< bytes to go out above which no request is taken
  static constexpr qint64 cMostTold = 64LL * 1024 * 1024;    ///< of them, what was told without being asked for
  static constexpr qint64 cReadBuffer = 1024LL * 1024;

  /// Takes the socket over. The server outlives it.
  Simulator_Session(QTcpSocket* socket, Simulator_Server& server, QObject* parent = nullptr);

  void send(quint32 command, QByteArrayView payload = {});
  /// With its zero byte.
  void sendText(quint32 command, const QString& text);
  void sendStream(quint32 beginCommand, quint32 dataCommand, QByteArrayView bytes, const QString& name = {});
  void refuse(quint32 command, const QString& reason);
  /// What it did not ask for, such as telegrams; nothing before its log-on. May end the connection.
  void tell(quint32 command, QByteArrayView payload);
  /// What is waiting goes out, if that does not take long.
  void close();

  /// Bytes that have not gone out.
  [[nodiscard]] qint64 waiting() const { return mWire.waiting(); }
  [[nodiscard]] bool isLoggedOn() const { return mIsLoggedOn; }
  void setLoggedOn();
  void countRefusedLogOn();
  /// A text payload without its terminating zero byte.
  [[nodiscard]] static QString text(QByteArrayView payload);

  /// What the connection has sent of a project that does not run yet.
  struct Staging {
    bool mIsWriting = false; ///< between 14 and 15
    bool mIsCleared = false; ///< the resources of the project that goes are not kept
    Simulator_Project mProject;
    Byte_Stream mProgram;
    bool mHasProgram = false;
    bool mHasStarted = false;    ///< 15 was answered, resources may follow
    QSet<QByteArray> mResources; ///< names of those that came since
  };
  [[nodiscard]] Staging& staging() { return mStaging; }
  /// Persistent values that are coming in.
  [[nodiscard]] Byte_Stream& values() { return mValues; }

  /// The script's messages go to this connection, too, for so long.
  static constexpr int cWatchMs = 10'000;
  void watch(const QUuid& block) { mWatched.insert(block, QDeadlineTimer(cWatchMs)); }
  [[nodiscard]] bool watches(const QUuid& block) const {
    const auto it = mWatched.constFind(block);
    return it != mWatched.cend() && !it->hasExpired();
  }

signals:
  void closed(Simulator_Session* session);

private:
  void onReadyRead();

  QTcpSocket* mSocket;
  Simulator_Server& mServer;
  Simulator_Wire mWire;
  Simulator_Frame_Reader mReader;
  Staging mStaging;
  Byte_Stream mValues;
  QHash<QUuid, QDeadlineTimer> mWatched;
  qint64 mTold = 0; ///< at most so many of the waiting bytes were told
  int mRefusedLogOns = 0;
  bool mIsLoggedOn = false;
  bool mIsAnswering = false;
  bool mIsClosing = false;
};
