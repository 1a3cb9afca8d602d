#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "app/Palette_Search.h"
#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Normaliser.h"

#include <QApplication>
#include <QTemporaryDir>

// What the window costs with a project of the largest bus: 65,536 addresses and 10,000 blocks.

namespace {

constexpr int cRuns = 9;
constexpr double cKeyLimit = 50;   // ms, from a key in the palette to its list
constexpr double cEditLimit = 20;  // ms, what the window does about an edit
constexpr double cTabLimit = 100;  // ms, a page shown for the first time
constexpr double cMakeLimit = 250; // ms, the window itself
constexpr double cOpenLimit = 500; // ms, what opening costs beside reading the file

struct Rig {
  Rig() {
    qputenv("TMPDIR", mFolder.path().toLocal8Bit());
    if (!mSession.create(mFolder.filePath(QStringLiteral("big.zpro")), {})) {
      Bench_Table::stop(QStringLiteral("no project"));
    }
    Big_Project(mSession.database(), Big_Project::cBusAddresses).fill();
    mWindow.show();
    QCoreApplication::processEvents();
    mOpening = Bench_Table::milliseconds([this] {
      FB_Normaliser::normalise(mSession.database().mFbPages);
      emit mSession.opened();
      QCoreApplication::processEvents();
    });
  }

  double mOpening = 0; ///< ms, once

  QTemporaryDir mFolder;
  Session_State mState;
  Project_Session mSession{mState};
  App_Settings mSettings{mFolder.filePath(QStringLiteral("studio.ini"))};
  Main_Window_Dev mWindow{mSession, mSettings, mState, false};
};

double medianOf(const std::function<void()>& run) {
  std::vector<double> values;
  values.reserve(cRuns);
  for (int i = 0; i < cRuns; ++i) {
    values.push_back(Bench_Table::milliseconds(run));
  }
  return Bench_Table::median(values);
}

double find(Rig& rig, const char* text) {
  const ProjectDatabase& database = rig.mSession.database();
  Action_State state;
  state.mIsOpen = true;
  return medianOf([&] { static_cast<void>(Palette_Search::find(QString::fromUtf8(text), state, database)); });
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  Rig rig;
  Bench_Table table;
  table.add("opening 10,000 blocks, after the file is read", rig.mOpening, cOpenLimit, "ms");
  table.add("palette: a letter that many have", find(rig, "e"), cKeyLimit, "ms");
  table.add("palette: words that none has", find(rig, "licht xyzzy"), cKeyLimit, "ms");
  table.add("palette: an address", find(rig, "31/7/255"), cKeyLimit, "ms");

  const QUuid page = rig.mSession.database().mFbPages.pages().at(0).mGuid;
  int step = 0;
  table.add("an edit, with all that the window shows of it", medianOf([&] {
              static_cast<void>(Project_Edits::renamePage(rig.mSession, page, QStringLiteral("Seite %1").arg(++step)));
              QCoreApplication::processEvents();
            }),
            cEditLimit, "ms");
  auto& tabs = *rig.mWindow.findChild<Page_Tabs*>();
  table.add("a page in its tab", medianOf([&] {
              tabs.showPage(page);
              QCoreApplication::processEvents();
              tabs.closeCurrent();
              QCoreApplication::processEvents();
            }),
            cTabLimit, "ms");
  table.add("making the window", medianOf([&] {
              Session_State state;
              Project_Session session(state);
              const Main_Window_Dev window(session, rig.mSettings, state, false);
            }),
            cMakeLimit, "ms");
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
