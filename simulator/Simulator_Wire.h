#pragma once

#include "simulator/Simulator_Faults.h"

#include <QObject>
#include <QQueue>
#include <QTimer>

class QTcpSocket;

/// The sending side of a connection: messages go out whole and at once, unless faults say otherwise.
class Simulator_Wire : public QObject {
  Q_OBJECT

public:
  /// Socket and faults outlive it.
  Simulator_Wire(QTcpSocket& socket, const Simulator_Faults& faults, QObject* parent = nullptr);

  void send(quint32 command, QByteArrayView payload);
  /// Bytes that have not gone out.
  [[nodiscard]] qint64 waiting() const;

private:
  void pump();
  void writeNext();
  void write(const QByteArray& bytes);

  QTcpSocket& mSocket;
  const Simulator_Faults& mFaults;
  QQueue<Simulator_Faults::Piece> mPieces;
  QTimer mTimer;
  QByteArray mGathered; ///< waits to go out in one segment
  QTimer mGathering;
  qint64 mInPieces = 0; ///< bytes
  qint64 mSent = 0;
};
