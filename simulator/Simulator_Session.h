#pragma once

#include "net/Byte_Stream.h"
#include "simulator/Simulator_Frame_Reader.h"
#include "simulator/Simulator_Project.h"
#include "simulator/Simulator_Wire.h"

#include <QObject>
#include <QSet>
#include <QString>

class QTcpSocket;
class Simulator_Server;

/// One connection to the stand-in: cuts what comes into messages and has them answered. Before the log-on little is
/// answered, and a long message ends the connection.
class Simulator_Session : public QObject {
  Q_OBJECT

public:
  static constexpr quint32 cMostBeforeLogOn = 64 * 1024;

  /// Takes the socket over. The server outlives it.
  Simulator_Session(QTcpSocket* socket, Simulator_Server& server, QObject* parent = nullptr);

  void send(quint32 command, QByteArrayView payload = {});
  /// With its zero byte.
  void sendText(quint32 command, const QString& text);
  void sendStream(quint32 beginCommand, quint32 dataCommand, QByteArrayView bytes, const QString& name = {});
  void refuse(quint32 command, const QString& reason);
  void close();

  [[nodiscard]] bool isLoggedOn() const { return mIsLoggedOn; }
  void setLoggedOn();
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
  bool mIsLoggedOn = false;
};
