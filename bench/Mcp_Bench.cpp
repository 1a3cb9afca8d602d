#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "tests/mcp/Server_Rig.h"

#include <QCoreApplication>
#include <QFile>

#include <cmath>
#include <limits>

// The assistant's server beside a bare exchange of the same bytes, and what an assistant waits for in a large project.

namespace {

constexpr int cRuns = 9;
constexpr int cExchanges = 300;

/// Answers each connection with the same bytes as soon as so many have come, in a thread, with nothing in between.
class Bare_Server {
public:
  Bare_Server(qsizetype requestSize, QByteArray answer)
      : mListener(::socket(AF_INET, SOCK_STREAM, 0)),
        mRequestSize(requestSize),
        mAnswer(std::move(answer)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    if (::bind(mListener, plain, size) != 0 || ::listen(mListener, 50) != 0 ||
        ::getsockname(mListener, plain, &size) != 0) {
      Bench_Table::stop(QStringLiteral("the bare server does not listen"));
    }
    mPort = ntohs(address.sin_port);
    mThread = std::thread([this] { serve(); });
  }
  ~Bare_Server() {
    ::shutdown(mListener, SHUT_RDWR);
    mThread.join();
    ::close(mListener);
  }
  Q_DISABLE_COPY_MOVE(Bare_Server)

  [[nodiscard]] quint16 port() const { return mPort; }

private:
  void serve() const {
    for (int socket = ::accept(mListener, nullptr, nullptr); socket >= 0;
         socket = ::accept(mListener, nullptr, nullptr)) {
      char piece[65536];
      qsizetype missing = mRequestSize;
      while (missing > 0) {
        const ssize_t count = ::recv(socket, piece, sizeof piece, 0);
        missing = count > 0 ? missing - count : 0;
      }
      for (qsizetype at = 0; at < mAnswer.size();) {
        const ssize_t sent = ::send(socket, mAnswer.constData() + at, size_t(mAnswer.size() - at), MSG_NOSIGNAL);
        at = sent > 0 ? at + sent : mAnswer.size();
      }
      ::close(socket);
    }
  }

  int mListener;
  qsizetype mRequestSize;
  QByteArray mAnswer;
  quint16 mPort = 0;
  std::thread mThread;
};

/// Microseconds of one exchange.
double exchanges(quint16 port, const QByteArray& request, const QByteArray& answer) {
  return Raw_Client::beside([&] {
    const double all = Bench_Table::milliseconds([&] {
      for (int i = 0; i < cExchanges; ++i) {
        if (Server_Rig::exchange(port, request) != answer) {
          Bench_Table::stop(QStringLiteral("another answer"));
        }
      }
    });
    return all / cExchanges * 1000;
  });
}

void beside(Bench_Table& table, const Server_Rig& rig, const char* figure, const QByteArray& method) {
  const QByteArray request = Raw_Client::post("/mcp", "{\"jsonrpc\":\"2.0\",\"id\":0,\"method\":\"" + method + "\"}");
  const QByteArray answer = rig.exchange(request);
  const Bare_Server bare(request.size(), answer);
  std::vector<double> shares;
  std::vector<double> bares;
  std::vector<double> served;
  for (int run = 0; run < cRuns; ++run) {
    bares.push_back(exchanges(bare.port(), request, answer));
    served.push_back(exchanges(rig.port(), request, answer));
    shares.push_back(served.back() / bares.back());
  }
  Bench_Table::note("bytes of the answer", double(answer.size()), "B");
  Bench_Table::note("a bare exchange", Bench_Table::median(bares), "us");
  Bench_Table::note("an exchange with the server", Bench_Table::median(served), "us");
  table.add(figure, Bench_Table::median(shares), 3, "x");
}

QJsonObject called(Server_Rig& rig, const QString& tool, const QJsonObject& arguments) {
  QJsonObject object = rig.call(tool, arguments);
  if (object.contains("error")) {
    std::printf("%s: %s\n", qPrintable(tool), qPrintable(object.value("error").toString()));
  }
  return object;
}

/// Milliseconds of a call with all that is sent; not a number when it fails.
double timeOf(Server_Rig& rig, const QString& tool, const QJsonObject& arguments) {
  if (called(rig, tool, arguments).contains("error")) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  std::vector<double> times;
  times.reserve(cRuns);
  for (int run = 0; run < cRuns; ++run) {
    times.push_back(Bench_Table::milliseconds([&] {
      static_cast<void>(rig.mDispatcher.answer(
          {{"id", 1}, {"method", "tools/call"}, {"params", QJsonObject{{"name", tool}, {"arguments", arguments}}}}));
    }));
  }
  return Bench_Table::median(times);
}

QString page(Server_Rig& rig) {
  auto made = std::make_unique<DB_FB_Page>();
  made->mCaption = QStringLiteral("Logik");
  return rig.mSession.database().mFbPages.appendPage(std::move(made)).mGuid.toString(QUuid::WithoutBraces);
}

bool addBlocks(Server_Rig& rig, const QString& page, int count) {
  for (int i = 0; i < count; ++i) {
    const QJsonObject arguments{{"page_guid", page}, {"type", 50}, {"x", i % 25 * 200}, {"y", i / 25 * 160}};
    if (called(rig, "add_function_block", arguments).contains("error")) {
      return false;
    }
  }
  return true;
}

double residentMb() {
  QFile file(QStringLiteral("/proc/self/statm"));
  if (!file.open(QIODevice::ReadOnly)) {
    Bench_Table::stop(file.errorString());
  }
  return double(file.readAll().split(' ').at(1).toLongLong() * ::sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

/// Megabytes that 10,000 reading calls over sockets leave behind.
double keptByReading(const Server_Rig& rig, const QString& page) {
  const std::pair<const char*, QJsonObject> calls[] = {{"get_project_info", {}},
                                                       {"list_fb_pages", {{"include_summary", true}}},
                                                       {"get_fb_page", {{"guid", page}}},
                                                       {"list_addresses", {{"filter", "4711"}}},
                                                       {"list_connections", {}}};
  std::vector<QByteArray> requests;
  for (const auto& [tool, arguments] : calls) {
    const QJsonObject request{
        {"id", 1}, {"method", "tools/call"}, {"params", QJsonObject{{"name", tool}, {"arguments", arguments}}}};
    requests.push_back(Raw_Client::post("/mcp", QJsonDocument(request).toJson(QJsonDocument::Compact)));
  }
  bool isAnswered = true;
  const auto read = [&](int count) {
    return Raw_Client::beside([&, port = rig.port()] {
      for (int i = 0; i < count; ++i) {
        isAnswered = Server_Rig::exchange(port, requests[size_t(i) % requests.size()]).contains("\"isError\":false") &&
                     isAnswered;
      }
      return true;
    });
  };
  read(1000);
  const double before = residentMb();
  read(10'000);
  return isAnswered ? residentMb() - before : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  Bench_Table table;
  {
    Server_Rig rig;
    Bench_Table::note("tools listed", double(rig.mServer->dispatcher().catalogue().tools().size()), "");
    beside(table, rig, "initialize, times the bare exchange", "initialize");
    beside(table, rig, "tools/list, times the bare exchange", "tools/list");
  }
  {
    Server_Rig rig;
    const QString thousand = page(rig);
    bool isDone = false;
    const double ms = Bench_Table::milliseconds([&] { isDone = addBlocks(rig, thousand, 1000); });
    table.add("add_function_block, 1,000 times", isDone ? ms : std::numeric_limits<double>::quiet_NaN(), 3000, "ms");
  }
  Server_Rig rig;
  Big_Project(rig.mSession.database(), Big_Project::cBusAddresses).fill();
  table.add("list_addresses with a filter, of 65,536", timeOf(rig, "list_addresses", {{"filter", "4711"}}), 20, "ms");
  const QString large = page(rig);
  if (addBlocks(rig, large, 500)) {
    table.add("get_fb_page of 500 blocks", timeOf(rig, "get_fb_page", {{"guid", large}}), 30, "ms");
  } else {
    table.add("get_fb_page of 500 blocks", std::numeric_limits<double>::quiet_NaN(), 30, "ms");
  }
  const QString small = page(rig);
  addBlocks(rig, small, 20);
  table.add("kept by 10,000 reading calls", keptByReading(rig, small), 2, "MB");
  return table.missed() == 0 ? 0 : 1;
}
