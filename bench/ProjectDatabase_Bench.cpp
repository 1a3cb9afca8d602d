#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <limits>
#include <string>

// Opening and saving the largest project, as multiples of what SQLite alone needs for the same rows: so the figures say
// the same on every machine. A main of its own, because memory is a figure of a whole process; the project is made in
// another process too: the studio that opens one does not have the making's scattered heap.

namespace {

constexpr int cRuns = 5;
constexpr double cOpenLimit = 4.0;
constexpr double cSaveLimit = 3.0;
constexpr double cMemoryLimit = 250.0; // MB
constexpr double cNewOpenLimit = 50.0; // ms

constexpr QLatin1StringView cMakeStep("--make");
constexpr QLatin1StringView cGrowthStep("--growth");

using Rows = std::array<std::vector<QByteArray>, DB_Tables::cCount>;

QByteArray inTable(const char* sql, DB_Table table) {
  return QByteArray(sql) + " `" + DB_Tables::name(table) + '`';
}

void selectAll(const QString& path, Rows& rows) {
  DB_Sqlite database;
  if (!database.open(path, DB_Sqlite::Mode::Immutable)) {
    Bench_Table::stop(database.errorText());
  }
  for (const DB_Table_Row& row : DB_Tables::all()) {
    DB_Statement select = database.prepare(inTable("SELECT DATA FROM", row.mTable));
    std::vector<QByteArray>& texts = rows[static_cast<size_t>(row.mTable)];
    while (select.step() == DB_Statement::Step::Row) {
      texts.push_back(select.text(0).toByteArray());
    }
  }
}

void insertAll(DB_Sqlite& database, const Rows& rows) {
  bool isOk = database.execute("BEGIN TRANSACTION");
  for (const DB_Table_Row& row : DB_Tables::all()) {
    isOk = isOk && database.execute(inTable("DELETE FROM", row.mTable));
    DB_Statement insert = database.prepare(inTable("INSERT INTO", row.mTable) + "(DATA) VALUES(?)");
    for (const QByteArray& text : rows[static_cast<size_t>(row.mTable)]) {
      isOk = isOk && insert.bindText(1, text) && insert.step() == DB_Statement::Step::Done;
      insert.reset();
    }
  }
  if (!isOk || !database.execute("END TRANSACTION")) {
    Bench_Table::stop(database.errorText());
  }
}

void openIn(ProjectDatabase& store, const QString& path) {
  if (!store.openProject(path, false)) {
    Bench_Table::stop(store.lastError());
  }
}

void makeProject(const QString& path) {
  ProjectDatabase store;
  openIn(store, path);
  Big_Project(store).fill();
  if (!store.recordWriteAll(true)) {
    Bench_Table::stop(store.lastError());
  }
}

/// Milliseconds of SQLite alone and of the store, taken in turn.
struct Times {
  std::vector<double> mAlone;
  std::vector<double> mStore;

  /// The ratio is taken for each turn: what else the machine does meanwhile slows both halves of a turn alike.
  void tell(const std::string& what, double limit, Bench_Table& table) const {
    std::vector<double> ratios;
    std::transform(mStore.cbegin(), mStore.cend(), mAlone.cbegin(), std::back_inserter(ratios), std::divides<>());
    Bench_Table::note((what + ": SQLite alone").c_str(), Bench_Table::median(mAlone), "ms");
    Bench_Table::note((what + ": store").c_str(), Bench_Table::median(mStore), "ms");
    table.add((what + ": store / SQLite alone").c_str(), Bench_Table::median(ratios), limit, "x");
  }
};

void measureOpen(const QString& path, Bench_Table& table) {
  Times times;
  for (int run = 0; run < cRuns; ++run) {
    {
      Rows rows;
      times.mAlone.push_back(Bench_Table::milliseconds([&] { selectAll(path, rows); }));
    }
    ProjectDatabase project;
    times.mStore.push_back(Bench_Table::milliseconds([&] { openIn(project, path); }));
    if (project.mAddresses.subGroupCount() != Big_Project::cAddresses || project.loadReport().isDamaged()) {
      Bench_Table::stop(QStringLiteral("the project was not read whole"));
    }
  }
  times.tell("open", cOpenLimit, table);
}

void measureSave(const QString& path, const QString& twinPath, Bench_Table& table) {
  Rows rows;
  selectAll(path, rows);
  DB_Sqlite twin;
  if (!QFile::copy(path, twinPath) || !twin.open(twinPath, DB_Sqlite::Mode::ReadWrite) ||
      !twin.execute("PRAGMA synchronous=NORMAL")) {
    Bench_Table::stop(twin.errorText());
  }
  ProjectDatabase project;
  openIn(project, path);
  Times times;
  for (int run = 0; run < cRuns; ++run) {
    times.mAlone.push_back(Bench_Table::milliseconds([&] { insertAll(twin, rows); }));
    times.mStore.push_back(Bench_Table::milliseconds([&] {
      if (!project.recordWriteAll(false)) {
        Bench_Table::stop(project.lastError());
      }
    }));
  }
  times.tell("save", cSaveLimit, table);
  Bench_Table::note("save: VACUUM", Bench_Table::milliseconds([&] { project.execute("VACUUM"); }), "ms");
  const QString copyPath = twinPath + QStringLiteral(".copy");
  Bench_Table::note("save: copy of the file", Bench_Table::milliseconds([&] { QFile::copy(path, copyPath); }), "ms");
}

/// Not a number where the system does not tell.
double residentMegabytes() {
  QFile file(QStringLiteral("/proc/self/status"));
  if (file.open(QIODevice::ReadOnly)) {
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (line.startsWith("VmRSS:")) {
        return line.mid(6).replace("kB", "").trimmed().toDouble() / 1024.0;
      }
    }
  }
  return std::numeric_limits<double>::quiet_NaN();
}

/// What the child process prints.
void printGrowth(const QString& path) {
  ProjectDatabase project;
  const double before = residentMegabytes();
  openIn(project, path);
  std::printf("%f\n", residentMegabytes() - before);
}

/// Runs one step in a fresh process; the result is what it printed.
QByteArray inChild(const QString& step, const QString& path) {
  QProcess child;
  child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  child.start(QCoreApplication::applicationFilePath(), {step, path});
  if (!child.waitForFinished(120'000) || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0) {
    Bench_Table::stop(QStringLiteral("the step %1 failed").arg(step));
  }
  return child.readAllStandardOutput().trimmed();
}

void measureNew(const QTemporaryDir& folder, Bench_Table& table) {
  std::vector<double> times;
  for (int run = 0; run < cRuns; ++run) {
    ProjectDatabase project;
    const QString path = folder.filePath(QStringLiteral("new%1.sqlite").arg(run));
    times.push_back(Bench_Table::milliseconds([&] { openIn(project, path); }));
  }
  table.add("open: a new project", Bench_Table::median(times), cNewOpenLimit, "ms");
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 3 && arguments[1] == cMakeStep) {
    makeProject(arguments[2]);
    return 0;
  }
  if (arguments.size() == 3 && arguments[1] == cGrowthStep) {
    printGrowth(arguments[2]);
    return 0;
  }
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("big.sqlite"));
  inChild(cMakeStep, path);
  Bench_Table::note("size of the file", double(QFile(path).size()) / 1024.0 / 1024.0, "MB");
  Bench_Table table;
  measureOpen(path, table);
  measureSave(path, folder.filePath(QStringLiteral("twin.sqlite")), table);
  table.add("open: growth of resident memory", inChild(cGrowthStep, path).toDouble(), cMemoryLimit, "MB");
  measureNew(folder, table);
  return table.missed() > 0 && !arguments.contains(QStringLiteral("--report")) ? 1 : 0;
}
