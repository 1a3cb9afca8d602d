#include "base/Session_State.h"
#include "bench/Bench_Table.h"
#include "db/Project_Session.h"
#include "net/Main_Network_Client.h"
#include "net/Network_Cipher.h"
#include "tests/net/Flood.h"

#include <QCoreApplication>

// A flood of telegrams that the controller pushes as fast as the socket takes them: how fast the link delivers them,
// beside a loop that does the same reads and the same deciphering and nothing else, and what the user feels of it.

namespace {

constexpr int cTelegrams = 200'000;
constexpr int cRuns = 9;
constexpr int cPatienceMs = 60'000;

/// Telegrams in a second.
double rate(double milliseconds) {
  return cTelegrams / milliseconds * 1000.0;
}

double baseline(quint16 port) {
  QTcpSocket socket;
  socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
  if (!socket.waitForConnected(cPatienceMs)) {
    Bench_Table::stop(socket.errorString());
  }
  return Bench_Table::milliseconds([&] {
    const auto take = [&](QByteArray& bytes) {
      while (socket.bytesAvailable() < bytes.size()) {
        if (!socket.waitForReadyRead(cPatienceMs)) {
          Bench_Table::stop(socket.errorString());
        }
      }
      socket.read(bytes.data(), bytes.size());
      if (!Network_Cipher::decipher({bytes.data(), static_cast<std::size_t>(bytes.size())})) {
        Bench_Table::stop(QStringLiteral("no cipher"));
      }
    };
    QByteArray header(Network_Message::cSize, '\0');
    for (int number = 0; number < cTelegrams; ++number) {
      take(header);
      QByteArray payload(Network_Message::fromBytes(header).mPaddedLength, Qt::Uninitialized);
      take(payload);
    }
  });
}

struct Flooded {
  double mMs = 0;
  double mLateMs = 0;
  qint64 mWaiting = 0; ///< most bytes that waited in memory
};

Flooded client(Project_Session& session, quint16 port) {
  Main_Network_Client client(session);
  Flooded flooded;
  QEventLoop loop;
  quint32 next = 0;
  QObject::connect(&client, qOverload<DB_Address_Network_Telegram>(&Main_Network_Client::onProcessNetworkRead), &loop,
                   [&](const DB_Address_Network_Telegram& telegram) {
                     if (telegram.mTime != next++) {
                       Bench_Table::stop(QStringLiteral("telegram %1 is missing").arg(next - 1));
                     }
                     flooded.mWaiting = std::max(flooded.mWaiting, client.bytesToRead());
                     if (next == cTelegrams) {
                       loop.quit();
                     }
                   });
  QTimer::singleShot(cPatienceMs, &loop, [] { Bench_Table::stop(QStringLiteral("telegrams are missing")); });
  DB_Connections::ITEM item;
  item.mAddress = QStringLiteral("127.0.0.1:%1").arg(port);
  Lateness lateness;
  flooded.mMs = Bench_Table::milliseconds([&] {
    client.connectToController(&item);
    loop.exec();
  });
  flooded.mLateMs = lateness.mostMs();
  return flooded;
}

} // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  Session_State state;
  Project_Session session(state);
  const Flood peer(cTelegrams);
  std::vector<double> shares;
  Flooded worst;
  for (int run = 0; run < cRuns; ++run) {
    const double bare = baseline(peer.port());
    const Flooded flooded = client(session, peer.port());
    shares.push_back(flooded.mMs / bare);
    worst.mMs = std::max(worst.mMs, flooded.mMs);
    worst.mLateMs = std::max(worst.mLateMs, flooded.mLateMs);
    worst.mWaiting = std::max(worst.mWaiting, flooded.mWaiting);
    Bench_Table::note("bare reads, telegrams in a second", rate(bare), "");
    Bench_Table::note("the link, telegrams in a second", rate(flooded.mMs), "");
  }
  Bench_Table table;
  table.add("200,000 telegrams, times the bare reads", Bench_Table::median(shares), 2.0, "x");
  table.add("a timer of 20 ms is late by", worst.mLateMs, 200.0, "ms");
  table.add("waiting in memory", static_cast<double>(worst.mWaiting) / 1024.0,
            static_cast<double>(Main_Network_Client::cReadBuffer) / 1024.0 + 1, "kB");
  return table.missed() == 0 ? 0 : 1;
}
