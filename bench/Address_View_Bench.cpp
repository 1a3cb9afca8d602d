#include "base/Session_State.h"
#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "db/Address_Edits.h"
#include "db/Address_Tree_Model.h"
#include "db/Project_Session.h"
#include "ui/Address_Tree_View.h"
#include "ui/Address_View.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryDir>

// The address tree as a user of the largest bus feels it: 65,536 addresses and 10,000 blocks; from the key to the
// painted result. Painted offscreen into an image of the size that the view has in a full window.

namespace {

constexpr int cRuns = 9;
constexpr int cSteps = 200; // of scrolling
constexpr QSize cViewSize(640, 900);
constexpr double cFilterLimit = 100; // ms
constexpr double cScrollLimit = 16;  // ms
constexpr double cEditLimit = 100;   // ms

void require(bool isTrue, const char* what) {
  if (!isTrue) {
    Bench_Table::stop(QString::fromUtf8(what));
  }
}

class Rig {
public:
  Rig() {
    qputenv("TMPDIR", mFolder.path().toLocal8Bit());
    require(mSession.create(mFolder.filePath(QStringLiteral("big.zpro")), {}), "no project");
    Big_Project(mSession.database(), Big_Project::cBusAddresses).fill();
    emit mSession.opened();
    mWindow.resize(cViewSize);
    mView.resize(cViewSize);
    mWindow.show();
    QCoreApplication::processEvents();
    mTree = mView.findChild<Address_Tree_View*>();
    mFilter = mView.findChild<QLineEdit*>();
    mModel = mView.findChild<Address_Tree_Model*>();
    require(mTree && mFilter && mModel && shown() == Big_Project::cBusAddresses, "not all addresses are shown");
  }

  [[nodiscard]] int shown() const { return mModel->shownSubGroupCount(); }

  /// What an edit or key has caused, until it is painted.
  void paint() {
    QCoreApplication::processEvents();
    QImage image(cViewSize, QImage::Format_RGB32);
    mView.render(&image);
  }

  double filter(const QString& text) {
    return Bench_Table::milliseconds([&] {
      mFilter->setText(text);
      paint();
    });
  }

  QTemporaryDir mFolder;
  Session_State mState;
  Project_Session mSession{mState};
  QWidget mWindow; ///< takes the view's changing least size, which the offscreen platform complains of
  Address_View mView{mSession, &mWindow};
  Address_Tree_View* mTree = nullptr;
  Address_Tree_Model* mModel = nullptr;
  QLineEdit* mFilter = nullptr;
};

void measureFilter(Rig& rig, Bench_Table& table) {
  struct Case {
    const char* mName;
    const char* mText;
    int mHits;
  };
  constexpr int cAll = Big_Project::cBusAddresses;
  for (const auto& [name, text, hits] : {Case{"filter: no hit", "gibtesnicht", 0},
                                         {"filter: 911 hits of two words", "wohnzimmer wand", 911},
                                         {"filter: 8,192 hits", "jalousie", 8192},
                                         {"filter: an address", "12/3/45", 1},
                                         {"filter: all 65,536 hits", "e", cAll}}) {
    std::vector<double> times;
    times.reserve(cRuns);
    for (int run = 0; run < cRuns; ++run) {
      times.push_back(rig.filter(QString::fromUtf8(text)));
      require(rig.shown() == hits, "the filter shows something else");
      rig.filter({});
      require(rig.shown() == cAll, "the filter is not cleared");
    }
    table.add(name, Bench_Table::median(times), cFilterLimit, "ms");
  }
  std::vector<double> times;
  times.reserve(cRuns);
  for (int run = 0; run < cRuns; ++run) {
    rig.filter(QStringLiteral("jalousie"));
    times.push_back(rig.filter({}));
  }
  table.add("filter: cleared", Bench_Table::median(times), cFilterLimit, "ms");
}

void measureScroll(Rig& rig, Bench_Table& table) {
  rig.mTree->expandAll();
  rig.paint();
  QScrollBar& bar = *rig.mTree->verticalScrollBar();
  require(bar.maximum() > Big_Project::cBusAddresses, "nothing to scroll");
  QImage image(cViewSize, QImage::Format_RGB32);
  std::vector<double> times;
  times.reserve(cSteps);
  for (int step = 0; step < cSteps; ++step) {
    times.push_back(Bench_Table::milliseconds([&] {
      bar.setValue(bar.value() + (step % 50 == 0 ? bar.maximum() / 5 : 3));
      rig.mView.render(&image);
    }));
  }
  table.add("scroll: one step, painted", Bench_Table::median(times), cScrollLimit, "ms");
  std::sort(times.begin(), times.end());
  table.add("scroll: the slowest of 20", times[times.size() * 19 / 20], cScrollLimit, "ms");
}

void measureEdits(Rig& rig, Bench_Table& table) {
  Address_Tree& tree = rig.mSession.database().mAddresses;
  const QUuid key = tree.subGroup(Group_Address(12, 3, 45))->mKey;
  const auto measure = [&](const char* name, double limit, const std::function<void(int)>& edit) {
    std::vector<double> times;
    times.reserve(cRuns);
    for (int run = 0; run < cRuns; ++run) {
      times.push_back(Bench_Table::milliseconds([&] {
        edit(run);
        rig.mSession.history().commit();
        rig.paint();
      }));
    }
    table.add(name, Bench_Table::median(times), limit, "ms");
  };
  using Field = Address_Edits::Field;
  const auto done = [](const Edit_Result& result) { require(static_cast<bool>(result), "an edit is refused"); };
  const auto undo = [&rig] { require(rig.mSession.history().undo(), "nothing is undone"); };
  measure("edit: a name", cEditLimit, [&](int run) {
    done(Address_Edits::set(rig.mSession, {key}, Field::Name, QStringLiteral("Name %1").arg(run)));
  });
  measure("edit: an address deleted and back", 2 * cEditLimit, [&](int) {
    done(Address_Edits::remove(rig.mSession, {key}));
    undo();
  });
  QList<QUuid> mains;
  for (const auto& main : tree.mainGroups()) {
    mains.append(main->mKey);
  }
  measure("edit: a flag of all 65,536", 1000,
          [&](int run) { done(Address_Edits::set(rig.mSession, mains, Field::Active, run % 2 == 1)); });
  measure("edit: undo of that", 1000, [&](int) { undo(); });
  measure("edit: all deleted and back", 2000, [&](int) {
    done(Address_Edits::remove(rig.mSession, mains));
    rig.mSession.history().commit();
    require(rig.shown() == 0, "not all are deleted");
    undo();
  });
  measure("sort by name", 300, [&](int run) {
    rig.mTree->sortByColumn(Address_Rows::cName, run % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
  });
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Theme::apply(application);
  Bench_Table table;
  Rig rig;
  measureFilter(rig, table);
  measureScroll(rig, table);
  measureEdits(rig, table);
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
