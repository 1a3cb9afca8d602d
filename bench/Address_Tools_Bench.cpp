#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "tests/mcp/Tool_Rig.h"

// What an assistant waits for when it looks for addresses in the largest bus: the whole call of the tool, with the
// answer as text.

namespace {

constexpr int cRuns = 9;
constexpr double cFilterLimit = 20; // ms

void measure(Tool_Rig& rig, Bench_Table& table, const char* filter) {
  const QJsonObject arguments{{QStringLiteral("filter"), QString::fromUtf8(filter)}};
  std::vector<double> times;
  times.reserve(cRuns);
  for (int run = 0; run < cRuns; ++run) {
    times.push_back(Bench_Table::milliseconds(
        [&] { (void)rig.mDispatcher.callTool(QStringLiteral("list_addresses"), arguments); }));
  }
  const QJsonObject answer = rig.call(QStringLiteral("list_addresses"), arguments);
  if (answer.value(QStringLiteral("count")).toInt() == 0) {
    Bench_Table::stop(QStringLiteral("nothing is found"));
  }
  table.add(qPrintable(QStringLiteral("list_addresses \"%1\": %2")
                           .arg(QString::fromUtf8(filter))
                           .arg(answer.value(QStringLiteral("total")).toInt())),
            Bench_Table::median(times), cFilterLimit, "ms");
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  Bench_Table table;
  Tool_Rig rig;
  rig.mSession.database().mFbPages.clear();
  rig.mSession.database().mWidgetPages.clear();
  Big_Project(rig.mSession.database(), Big_Project::cBusAddresses).fill();
  for (const char* const filter : {"31/7/25", "decke schalten 77", "licht", ""}) {
    measure(rig, table, filter);
  }
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
