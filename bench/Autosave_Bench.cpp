#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <string>

// What an autosave takes of the user's time at as many group addresses as a bus can carry, with 10,000 blocks and
// 20,000 elements: after the usual edits, and when nothing or everything has changed.

namespace {

constexpr int cRuns = 9;
constexpr double cLimit = 300.0; // ms

using Edit = std::function<void(ProjectDatabase&, int run)>;

DB_Address_Sub_Group& someAddress(ProjectDatabase& store) {
  return *store.mAddresses.subGroup(Group_Address(3, 4, 5));
}

void measure(ProjectDatabase& store, const std::string& what, const Edit& edit, Bench_Table* table) {
  std::vector<double> times;
  times.reserve(cRuns);
  for (int run = 0; run < cRuns; ++run) {
    edit(store, run);
    times.push_back(Bench_Table::milliseconds([&store] {
      if (!store.recordWriteChanged()) {
        Bench_Table::stop(store.lastError());
      }
    }));
  }
  if (table) {
    table->add(what.c_str(), Bench_Table::median(times), cLimit, "ms");
  } else {
    Bench_Table::note(what.c_str(), Bench_Table::median(times), "ms");
  }
}

void renameOne(ProjectDatabase& store, int run) {
  someAddress(store).mName = QStringLiteral("Umbenannt %1").arg(run);
}

/// In the front of a middle group that is full, so that the most rows move.
void insertOne(ProjectDatabase& store, int run) {
  auto group = std::make_unique<DB_Address_Sub_Group>();
  group->mMiddleKey = someAddress(store).mMiddleKey;
  group->mName = QStringLiteral("Neu %1").arg(run);
  store.mAddresses.add(std::move(group), 0);
}

void deleteOne(ProjectDatabase& store, int run) {
  static_cast<void>(store.mAddresses.take(store.mAddresses.subGroup(Group_Address(5, 1, run))->mKey));
}

void moveBlocks(ProjectDatabase& store, int run) {
  for (const auto& block : store.mFbPages.pages().at(run).mChildren) {
    block->mX += 10;
  }
}

void deletePage(ProjectDatabase& store, int /*run*/) {
  store.mFbPages.takePage(store.mFbPages.pages().at(0).mGuid);
}

void everything(ProjectDatabase& store, int run) {
  for (const auto& main : store.mAddresses.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        sub->mSecurity = QString::number(run);
      }
    }
  }
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("big.sqlite"));
  ProjectDatabase store;
  const bool isOpen = store.openProject(path, false);
  Big_Project(store, Big_Project::cBusAddresses).fill();
  if (!isOpen || !store.recordWriteAll(true) || !store.openProject(path, false)) {
    Bench_Table::stop(store.lastError());
  }
  Bench_Table table;
  measure(
      store, "nothing changed", [](ProjectDatabase&, int) {}, &table);
  measure(store, "an address renamed", renameOne, &table);
  measure(store, "an address inserted", insertOne, &table);
  measure(store, "an address deleted", deleteOne, &table);
  measure(store, "50 blocks moved", moveBlocks, &table);
  measure(store, "a page deleted", deletePage, &table);
  measure(store, "every address changed", everything, nullptr);
  std::vector<double> times;
  times.reserve(cRuns);
  for (int run = 0; run < cRuns; ++run) {
    times.push_back(Bench_Table::milliseconds([&store] { static_cast<void>(store.recordWriteAll(false)); }));
  }
  Bench_Table::note("all records, as saving writes them", Bench_Table::median(times), "ms");
  const bool isReport = QCoreApplication::arguments().contains(QStringLiteral("--report"));
  return table.missed() > 0 && !isReport ? 1 : 0;
}
