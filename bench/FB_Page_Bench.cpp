#include "base/App_Settings.h"
#include "bench/Bench_Table.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Parent_ScrollView.h"
#include "fb/model/FB_Pins.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTemporaryDir>

// What a logic page costs that holds 5,000 blocks of 4 pins and 8,000 wires, in a view of 1600 x 900 pixels.

namespace {

constexpr int cBlocks = 5'000;
constexpr int cManyBlocks = 20'000;
constexpr int cColumns = 100;
constexpr double cAcross = 220; // pixels between the blocks
constexpr double cDown = 120;
constexpr int cDragged = 100;
constexpr int cRuns = 9;

constexpr double cShowLimit = 300; // all in ms
constexpr double cZoomLimit = 33;
constexpr double cDragLimit = 16;
constexpr double cRebuildLimit = 15;
constexpr double cRebuildFactor = 5; // of four times as many blocks
constexpr double cHitLimit = 0.5;
constexpr double cSelectLimit = 50;
constexpr double cUndoLimit = 100;

DB_Address_Binding variable(const QUuid& key) {
  DB_Address_Binding binding;
  binding.mKind = DB_Address_Binding::Kind::Internal;
  binding.mKey = key;
  binding.mName = QStringLiteral("Merker");
  return binding;
}

/// Each block's output goes to the next one, of three in five blocks also to the one below.
QUuid fill(Project_Session& session, int count) {
  DB_Page_List<DB_FB_Page>& pages = session.database().mFbPages;
  const QUuid page = pages.appendPage(std::make_unique<DB_FB_Page>()).mGuid;
  std::vector<QUuid> keys(static_cast<size_t>(count));
  std::generate(keys.begin(), keys.end(), QUuid::createUuid);
  for (int i = 0; i < count; ++i) {
    const int row = i / cColumns;
    auto block = FB_Pins::makeBlock(50, {40 + i % cColumns * cAcross, 40 + row * cDown});
    block->mPageGuid = page;
    block->mParams[0] = QStringLiteral("3");
    FB_Pins::rebuild(*block);
    const auto at = [&](int index) { return variable(keys[static_cast<size_t>((index + count) % count)]); };
    block->mOutputs[0].mBinding = at(i);
    block->mInputs[0].mBinding = at(i - 1);
    if (i % 5 < 3) {
      block->mInputs[1].mBinding = at(i - cColumns);
    }
    pages.appendChild(std::move(block));
  }
  session.history().clear();
  return page;
}

double medianOf(const std::function<void()>& run) {
  std::vector<double> values;
  values.reserve(cRuns);
  for (int i = 0; i < cRuns; ++i) {
    values.push_back(Bench_Table::milliseconds(run));
  }
  return Bench_Table::median(values);
}

/// Of the connections of one page made anew, several pages in turn: with as many records in all as one large page has,
/// so that a small one does not stay in the processor's cache, where a large one finds no room.
double rebuilding(const std::vector<FB_Page*>& pages) {
  return medianOf([&] {
           for (FB_Page* const page : pages) {
             page->rebuildConnections();
           }
         }) /
         static_cast<double>(pages.size());
}

void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

struct Rig {
  Rig() {
    qputenv("TMPDIR", mFolder.path().toLocal8Bit());
    if (!mSession.create(mFolder.filePath(QStringLiteral("page.zpro")), {})) {
      Bench_Table::stop(QStringLiteral("no project"));
    }
  }

  [[nodiscard]] std::unique_ptr<FB_Page_Parent_ScrollView> show(const QUuid& page) {
    auto view = std::make_unique<FB_Page_Parent_ScrollView>(new FB_Page(mSession, mSettings, page));
    view->resize(1600, 900);
    view->show();
    settle();
    return view;
  }

  QTemporaryDir mFolder;
  Session_State mState;
  Project_Session mSession{mState};
  App_Settings mSettings{mFolder.filePath(QStringLiteral("studio.ini"))};
};

void sendMouse(FB_Base& block, QEvent::Type type, const QPointF& shift) {
  const QPointF local = QPointF(block.rect().center()) + shift;
  const bool isRelease = type == QEvent::MouseButtonRelease;
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, local, block.mapToGlobal(local), button, isRelease ? Qt::NoButton : Qt::LeftButton, {});
  QCoreApplication::sendEvent(&block, &event);
}

double drag(FB_Page& page) {
  QList<QUuid> blocks;
  for (int i = 0; blocks.size() < cDragged && i < page.blocks().count(); ++i) {
    if (page.blocks().isShown(i)) {
      blocks.append(page.blocks().at(i).guid());
    }
  }
  if (blocks.size() < cDragged) {
    Bench_Table::stop(QStringLiteral("too few blocks are seen"));
  }
  page.select(blocks);
  FB_Base& block = *page.blocks().find(blocks.constFirst());
  const QPoint home = block.pos();
  sendMouse(block, QEvent::MouseButtonPress, {});
  int step = 0;
  const double time = medianOf([&] {
    sendMouse(block, QEvent::MouseMove, {++step % 2 == 0 ? -24.0 : 40.0, 16});
    settle();
  });
  if (block.pos() == home) {
    Bench_Table::stop(QStringLiteral("nothing was dragged"));
  }
  page.cancelGesture();
  settle();
  return time;
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Theme::apply(application);
  Rig rig;
  const QUuid page = fill(rig.mSession, cBlocks);
  Bench_Table table;
  constexpr int cShowings = 5;
  std::vector<double> showing;
  showing.reserve(cShowings);
  for (int i = 0; i < cShowings; ++i) {
    showing.push_back(Bench_Table::milliseconds([&] { const auto view = rig.show(page); }));
  }
  table.add("a page of 5,000 blocks is shown", Bench_Table::median(showing), cShowLimit, "ms");

  const auto view = rig.show(page);
  FB_Page& canvas = view->page();
  if (canvas.blocks().wires().count() != 8'000) {
    Bench_Table::note("wires, instead of 8,000", canvas.blocks().wires().count(), "");
  }
  std::vector<double> zooming;
  for (const int direction : {-1, 1}) {
    for (int i = 0; i < 5; ++i) {
      zooming.push_back(Bench_Table::milliseconds([&] {
        direction < 0 ? canvas.zoomOut() : canvas.zoomIn();
        settle();
      }));
    }
  }
  table.add("a zoom step between 0.5 and 1", Bench_Table::median(zooming), cZoomLimit, "ms");
  canvas.setZoom(0.7, {});
  settle();
  table.add("100 selected blocks are dragged, a repaint", drag(canvas), cDragLimit, "ms");
  canvas.setZoom(1, {});
  settle();

  int step = 0;
  table.add("a wire is hit", medianOf([&] {
              ++step;
              static_cast<void>(canvas.blocks().wires().hit({step * 150.0, step * 60.0}));
            }),
            cHitLimit, "ms");
  table.add("all are selected", medianOf([&] {
              canvas.selectOnly(nullptr);
              canvas.selectAll();
              settle();
            }),
            cSelectLimit, "ms");
  History& history = rig.mSession.history();
  std::vector<double> undoing;
  for (int i = 0; i < 5; ++i) {
    canvas.selectAll();
    canvas.nudge({8, 8});
    settle();
    undoing.push_back(Bench_Table::milliseconds([&] {
      static_cast<void>(history.undo());
      settle();
    }));
  }
  table.add("a move of all is undone", Bench_Table::median(undoing), cUndoLimit, "ms");

  std::vector<std::unique_ptr<FB_Page_Parent_ScrollView>> others;
  std::vector<FB_Page*> pages{&canvas};
  while (pages.size() < cManyBlocks / cBlocks) {
    pages.push_back(&others.emplace_back(rig.show(fill(rig.mSession, cBlocks)))->page());
  }
  const double few = rebuilding(pages);
  table.add("the connections are made anew", few, cRebuildLimit, "ms");
  const auto many = rig.show(fill(rig.mSession, cManyBlocks));
  table.add("connections of 20,000 blocks, compared", rebuilding({&many->page()}) / few, cRebuildFactor, "x");
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
