// The property panel: shown for one block and for many, and one field of many blocks changed.
#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "db/Project_Session.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Block_Edits.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/properties/FB_Dev_Properties_Page.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int cAnd = 50;
constexpr int cSetValue = 1330;

class Panel_Rig {
public:
  Panel_Rig(int blocks, int type) {
    mSession.create(mFolder.filePath(QStringLiteral("Haus.zpro")), {});
    DB_Page_List<DB_FB_Page>& pages = mSession.database().mFbPages;
    pages.clear();
    const QUuid page = pages.appendPage(std::make_unique<DB_FB_Page>()).mGuid;
    for (int i = 0; i < blocks; ++i) {
      const int row = i / 20;
      mBlocks += FB_Page_Edits::create(mSession, page, type, {i % 20 * 200.0, row * 100.0}).mBlocks;
    }
    mSession.history().commit();
    mCanvas = std::make_unique<FB_Page>(mSession, mSettings, page);
    mPanel = std::make_unique<FB_Dev_Properties_Page>(mSession);
    mPanel->resize(400, 800);
    mPanel->show();
  }

  /// With nothing left from the blocks before, down to the picture.
  void show(const QList<QUuid>& blocks) {
    mCanvas->select(blocks);
    mPanel->showBlocks(*mCanvas);
    QApplication::processEvents();
    mPanel->grab();
  }

  Session_State mState;
  QTemporaryDir mFolder;
  App_Settings mSettings{mFolder.filePath(QStringLiteral("settings.ini"))};
  Project_Session mSession{mState};
  QList<QUuid> mBlocks;
  std::unique_ptr<FB_Page> mCanvas;
  std::unique_ptr<FB_Dev_Properties_Page> mPanel;
};

void showPanel(benchmark::State& state) {
  Panel_Rig rig(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  for (auto _ : state) {
    state.PauseTiming();
    rig.mPanel->clear();
    QApplication::processEvents();
    state.ResumeTiming();
    rig.show(rig.mBlocks);
  }
}
BENCHMARK(showPanel)
    ->ArgNames({"blocks", "type"})
    ->Args({1, cAnd})
    ->Args({1, cSetValue})
    ->Args({500, cAnd})
    ->Args({500, cSetValue})
    ->Unit(benchmark::kMillisecond);

void changeField(benchmark::State& state) {
  Panel_Rig rig(500, cAnd);
  int seconds = 0;
  for (auto _ : state) {
    FB_Block_Edits::setStartDelay(rig.mSession, rig.mBlocks, ++seconds % 100);
    rig.mSession.history().commit();
  }
}
BENCHMARK(changeField)->Unit(benchmark::kMillisecond);

/// Through the panel: page and panel follow.
void changeParameter(benchmark::State& state) {
  Panel_Rig rig(500, cAnd);
  rig.show(rig.mBlocks);
  int count = 0;
  for (auto _ : state) {
    FB_Page_Edits::setParameter(rig.mSession, rig.mBlocks, 0, QString::number(2 + ++count % 4));
    rig.mSession.history().commit();
    QApplication::processEvents();
  }
}
BENCHMARK(changeParameter)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
