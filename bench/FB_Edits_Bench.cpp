// Edits of large logic pages: connections, moving and deleting everything, undo and redo of that.
#include "base/Session_State.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

/// A page of blocks with two inputs and two outputs; 1.6 wires start at each block.
class Page_Rig {
public:
  explicit Page_Rig(int blocks) {
    mSession.create(mFolder.filePath(QStringLiteral("Haus.zpro")), {});
    DB_Page_List<DB_FB_Page>& pages = mSession.database().mFbPages;
    pages.clear();
    mPage = pages.appendPage(std::make_unique<DB_FB_Page>()).mGuid;
    std::vector<DB_Address_Binding> variables;
    variables.reserve(2 * static_cast<size_t>(blocks));
    for (int i = 0; i < 2 * blocks; ++i) {
      variables.push_back(FB_Variables::make(QStringLiteral("Variable %1").arg(i)));
    }
    for (int i = 0; i < blocks; ++i) {
      const int row = i / 100;
      auto block = std::make_unique<DB_FB_Control>();
      block->mPageGuid = mPage;
      block->mType = 50;
      block->mX = i % 100 * 200;
      block->mY = row * 100;
      for (int pin = 0; pin < 2; ++pin) {
        const auto variable = [&](int of) { return variables[2 * static_cast<size_t>(of) + static_cast<size_t>(pin)]; };
        const bool isWired = i > 0 && (pin == 0 || i % 5 < 3);
        block->mOutputs.push_back({QStringLiteral("Ausgang"), QStringLiteral("A"), variable(i)});
        block->mInputs.push_back(
            {QStringLiteral("Eingang"), QStringLiteral("E"), isWired ? variable(i - 1) : DB_Address_Binding()});
      }
      mBlocks.append(pages.appendChild(std::move(block))->mGuid);
    }
  }

  [[nodiscard]] const DB_FB_Page& page() { return *mSession.database().mFbPages.page(mPage); }

  void moveAll(double by) {
    QHash<QUuid, QPointF> positions;
    for (const auto& block : page().mChildren) {
      positions.insert(block->mGuid, QPointF(block->mX + by, block->mY));
    }
    FB_Page_Edits::move(mSession, positions);
    mSession.history().commit();
  }

  Session_State mState;
  QTemporaryDir mFolder;
  Project_Session mSession{mState};
  QUuid mPage;
  QList<QUuid> mBlocks;
};

void connections(benchmark::State& state) {
  Page_Rig rig(static_cast<int>(state.range(0)));
  size_t count = 0;
  for (auto _ : state) {
    count = FB_Connections::of(rig.page()).size();
  }
  state.counters["wires"] = static_cast<double>(count);
}
BENCHMARK(connections)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

void moveAll(benchmark::State& state) {
  Page_Rig rig(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    rig.moveAll(16);
  }
}
BENCHMARK(moveAll)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(10);

void undoAndRedoOfMoveAll(benchmark::State& state) {
  Page_Rig rig(static_cast<int>(state.range(0)));
  rig.moveAll(16);
  History& history = rig.mSession.history();
  for (auto _ : state) {
    history.canUndo() ? history.undo() : history.redo();
  }
}
BENCHMARK(undoAndRedoOfMoveAll)->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

void removeAll(benchmark::State& state) {
  Page_Rig rig(static_cast<int>(state.range(0)));
  History& history = rig.mSession.history();
  for (auto _ : state) {
    FB_Page_Edits::remove(rig.mSession, rig.mBlocks);
    history.commit();
    state.PauseTiming();
    history.undo();
    state.ResumeTiming();
  }
}
BENCHMARK(removeAll)->Arg(5000)->Unit(benchmark::kMillisecond);

void undoAndRedoOfRemoveAll(benchmark::State& state) {
  Page_Rig rig(static_cast<int>(state.range(0)));
  FB_Page_Edits::remove(rig.mSession, rig.mBlocks);
  History& history = rig.mSession.history();
  for (auto _ : state) {
    history.canUndo() ? history.undo() : history.redo();
  }
}
BENCHMARK(undoAndRedoOfRemoveAll)->Arg(5000)->Unit(benchmark::kMillisecond);

void copyAndPaste(benchmark::State& state) {
  Page_Rig rig(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const QByteArray packed = FB_Clipboard::pack(rig.mSession, rig.mBlocks);
    benchmark::DoNotOptimize(FB_Clipboard::paste(rig.mSession, rig.mPage, packed, {}, false));
    rig.mSession.history().commit();
    state.PauseTiming();
    rig.mSession.history().undo();
    state.ResumeTiming();
  }
}
BENCHMARK(copyAndPaste)->Arg(5000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv); // for the timer that closes steps
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
