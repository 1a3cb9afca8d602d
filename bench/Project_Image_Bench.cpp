#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "db/Project_Image.h"
#include "net/Stream_Out.h"

#include <QCoreApplication>

// What the window waits for before a program travels: its image and the digest that announces it.

namespace {

constexpr int cRuns = 9;
constexpr double cLimit = 300.0; // ms

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  ProjectDatabase store;
  Big_Project(store, Big_Project::cBusAddresses).fill();
  Bench_Table table;
  std::vector<double> images;
  std::vector<double> streams;
  qsizetype size = 0;
  for (int run = 0; run < cRuns; ++run) {
    QByteArray bytes;
    images.push_back(Bench_Table::milliseconds([&] { bytes = Project_Image::program(store).toBytes(); }));
    size = bytes.size();
    streams.push_back(images.back() + Bench_Table::milliseconds([&] { const Stream_Out stream({}, bytes); }));
  }
  Bench_Table::note("size of the program", double(size) / 1024.0 / 1024.0, "MB");
  Bench_Table::note("image of the program", Bench_Table::median(images), "ms");
  table.add("image and digest of the program", Bench_Table::median(streams), cLimit, "ms");
  const bool isReport = QCoreApplication::arguments().contains(QStringLiteral("--report"));
  return table.missed() > 0 && !isReport ? 1 : 0;
}
