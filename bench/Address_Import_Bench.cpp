#include "base/Session_State.h"
#include "bench/Bench_Table.h"
#include "db/Address_Import.h"
#include "db/Address_Import_Model.h"
#include "db/Ets_Reader.h"
#include "db/Project_Session.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QTemporaryDir>

// Importing a bus that is nearly full: from the bytes of the export to the table that is seen, and what is ticked into
// the project and back.

namespace {

constexpr int cRuns = 5;
constexpr int cAddresses = 65'000;
constexpr double cPreviewLimit = 3000.0; // ms, as the four below
constexpr double cApplyLimit = 500.0;
constexpr double cUndoLimit = 1000.0;
constexpr double cSortLimit = 500.0;
constexpr double cFilterLimit = 300.0;

QByteArray range(const QByteArray& name, int start, int end) {
  return "<GroupRange Name=\"" + name + "\" RangeStart=\"" + QByteArray::number(start) + "\" RangeEnd=\"" +
         QByteArray::number(end) + "\">\r\n";
}

QByteArray exportBytes() {
  QByteArray xml = "<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\">\r\n";
  for (int number = 1; number <= cAddresses; ++number) {
    const Group_Address address = Group_Address::fromNumber(static_cast<quint16>(number));
    const bool isFirst = number == 1;
    if (isFirst || (address.middle() == 0 && address.sub() == 0)) {
      xml += isFirst ? "" : "</GroupRange></GroupRange>\r\n";
      const int start = address.main() * 2048;
      xml += range("Gebäude " + QByteArray::number(address.main()), start, start + 2047);
    } else if (address.sub() == 0) {
      xml += "</GroupRange>\r\n";
    }
    if (isFirst || address.sub() == 0) {
      const int start = number - address.sub();
      xml += range("Etage " + QByteArray::number(address.middle()), start, start + 255);
    }
    xml += "<GroupAddress Name=\"Raum " + QByteArray::number(number / 10) + " Licht " +
           QByteArray::number(number % 10) + " schalten\" Address=\"" + address.toString().toLatin1() +
           "\" Description=\"Verteiler " + QByteArray::number(number % 40) +
           "\" DPTs=\"DPST-1-1\" Security=\"Auto\"/>\r\n";
  }
  return xml + "</GroupRange></GroupRange></GroupAddress-Export>";
}

Address_Import_Plan preview(QByteArray bytes, const ProjectDatabase& database) {
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  Ets_Groups groups;
  QString error;
  if (!Ets_Reader::read(buffer, {}, groups, error)) {
    Bench_Table::stop(error);
  }
  return Address_Import::compare(database, groups);
}

struct Times {
  std::vector<double> mPreview;
  std::vector<double> mApply;
  std::vector<double> mUndo;
  std::vector<double> mRedo;
  std::vector<double> mAgain;
  std::vector<double> mSort;
  std::vector<double> mFilter;
};

void measure(const QByteArray& bytes, Project_Session& session, Times& times) {
  Address_Import_Plan plan;
  times.mPreview.push_back(Bench_Table::milliseconds([&] { plan = preview(bytes, session.database()); }));
  Address_Import_Model model;
  model.setPlan(plan);
  times.mSort.push_back(Bench_Table::milliseconds([&model] { model.sort(Address_Import_Model::cNameIncoming); }));
  times.mFilter.push_back(Bench_Table::milliseconds([&model] { model.setFilter(QStringLiteral("licht 4711")); }));
  Address_Import::Result result;
  times.mApply.push_back(Bench_Table::milliseconds([&] {
    if (!Address_Import::apply(session, plan, result)) {
      Bench_Table::stop(QStringLiteral("the import was refused"));
    }
  }));
  if (session.database().mAddresses.subGroupCount() != cAddresses || model.rowCount() == 0) {
    Bench_Table::stop(QStringLiteral("the export was not imported whole"));
  }
  times.mAgain.push_back(Bench_Table::milliseconds([&] {
    if (preview(bytes, session.database()).size() > 0) {
      Bench_Table::stop(QStringLiteral("the second comparison finds a difference"));
    }
  }));
  History& history = session.history();
  times.mUndo.push_back(Bench_Table::milliseconds([&history] { history.undo(); }));
  times.mRedo.push_back(Bench_Table::milliseconds([&history] { history.redo(); }));
  history.undo();
  if (session.database().mAddresses.subGroupCount() != 0) {
    Bench_Table::stop(QStringLiteral("the undo left addresses behind"));
  }
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QTemporaryDir folder;
  Session_State state;
  Project_Session session(state);
  if (!session.create(folder.filePath(QStringLiteral("Haus.zpro")), {})) {
    Bench_Table::stop(session.lastError());
  }
  const QByteArray bytes = exportBytes();
  Bench_Table::note("size of the export", double(bytes.size()) / 1024.0 / 1024.0, "MB");
  Times times;
  for (int run = 0; run < cRuns; ++run) {
    measure(bytes, session, times);
  }
  Bench_Table table;
  table.add("import: preview into an empty project", Bench_Table::median(times.mPreview), cPreviewLimit, "ms");
  table.add("import: preview where all is there", Bench_Table::median(times.mAgain), cPreviewLimit, "ms");
  table.add("import: sort the table by name", Bench_Table::median(times.mSort), cSortLimit, "ms");
  table.add("import: filter the table", Bench_Table::median(times.mFilter), cFilterLimit, "ms");
  table.add("import: apply", Bench_Table::median(times.mApply), cApplyLimit, "ms");
  table.add("import: undo", Bench_Table::median(times.mUndo), cUndoLimit, "ms");
  table.add("import: redo", Bench_Table::median(times.mRedo), cUndoLimit, "ms");
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
