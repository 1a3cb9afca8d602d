#pragma once

#include "net/Controller_Command.h"
#include "net/DB_Address_Network_Telegram.h"
#include "net/Network_Frame.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <ctime>
#include <memory>

/// A controller in a thread of its own that pushes telegrams as fast as the socket takes them, to one client after
/// another. Each telegram carries its number, from 0, as its time.
class Flood : public QThread {
public:
  explicit Flood(int telegrams) {
    for (int number = 0; number < telegrams; ++number) {
      auto telegram = DB_Address_Network_Telegram::to(Group_Address(1 + number % 31, number / 31 % 8, number % 256),
                                                      DB_Address_Network_Telegram::Write, QByteArray(2, '\1'));
      telegram.mTime = static_cast<quint32>(number);
      mBytes.append(Network_Frame::pack(Controller_Command::Telegram, telegram.toBytes()));
    }
    start();
    mListening.acquire();
  }
  ~Flood() override {
    requestInterruption();
    wait();
  }
  Q_DISABLE_COPY_MOVE(Flood)

  [[nodiscard]] quint16 port() const { return mPort; }

protected:
  void run() override {
    constexpr int cPatienceMs = 100;
    constexpr qsizetype cPiece = 64 * 1024;
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    mPort = server.serverPort();
    mListening.release();
    while (!isInterruptionRequested()) {
      if (!server.waitForNewConnection(cPatienceMs)) {
        continue;
      }
      const std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
      for (qsizetype at = 0; at < mBytes.size() && socket->isOpen() && !isInterruptionRequested(); at += cPiece) {
        socket->write(mBytes.constData() + at, std::min(cPiece, mBytes.size() - at));
        while (socket->bytesToWrite() > 0 && !isInterruptionRequested() &&
               socket->state() == QAbstractSocket::ConnectedState) {
          socket->waitForBytesWritten(cPatienceMs);
        }
      }
      while (socket->state() == QAbstractSocket::ConnectedState && !isInterruptionRequested()) {
        socket->waitForDisconnected(cPatienceMs);
      }
    }
  }

private:
  QByteArray mBytes;
  QSemaphore mListening;
  quint16 mPort = 0;
};

/// How late a timer of 20 ms is at the most because of what this program does: time that others had the processor for
/// does not count.
class Lateness {
public:
  Lateness() {
    mTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&mTimer, &QTimer::timeout, [this] { note(); });
    mElapsed.start();
    mTimer.start(cMs);
  }

  [[nodiscard]] double mostMs() {
    note();
    return mMost;
  }

private:
  static constexpr int cMs = 20;
  void note() {
    const double used = 1000.0 * static_cast<double>(std::clock() - mUsed) / CLOCKS_PER_SEC;
    mMost = std::max(mMost, std::min(static_cast<double>(mElapsed.restart() - cMs), used));
    mUsed = std::clock();
  }

  QTimer mTimer;
  QElapsedTimer mElapsed;
  std::clock_t mUsed = std::clock();
  double mMost = 0;
};
