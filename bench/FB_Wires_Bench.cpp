#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "db/Address_Usage.h"
#include "fb/FB_Wires.h"
#include "fb/model/FB_Output_Check.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <numeric>
#include <random>

// Wires of the largest page that the studio is made for: 5,000 blocks with 4 pins each and 8,000 wires, most of them to
// blocks nearby.

namespace {

constexpr int cBlocks = 5000;
constexpr int cColumns = 71;
constexpr QPointF cPitch(224, 160);
constexpr QSize cView(1600, 900);
constexpr int cRuns = 15;
constexpr int cFarApart = 100; // one wire in so many leads anywhere

double median(const std::function<void()>& run) {
  std::vector<double> times;
  times.reserve(cRuns);
  for (int i = 0; i < cRuns; ++i) {
    times.push_back(Bench_Table::milliseconds(run));
  }
  return Bench_Table::median(times);
}

/// Every block has two outputs and two inputs; an input reads an output of a block at most a few rows and columns away.
void fill(DB_FB_Page& page, int blocks) {
  std::mt19937 random(1);
  const auto upTo = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  for (int i = 0; i < blocks; ++i) {
    const int row = i / cColumns;
    auto block = std::make_unique<DB_FB_Control>();
    block->mGuid = QUuid::createUuid();
    block->mType = 50;
    block->mX = i % cColumns * cPitch.x() + upTo(40);
    block->mY = row * cPitch.y() + upTo(40);
    block->mInputs.resize(2);
    block->mOutputs.resize(2);
    for (DB_FB_Pin& pin : block->mOutputs) {
      pin.mBinding.mKind = upTo(1) == 0 ? DB_Address_Binding::Kind::Internal : DB_Address_Binding::Kind::GroupAddress;
      pin.mBinding.mKey = QUuid::createUuid();
    }
    page.mChildren.append(std::move(block));
  }
  const int wires = blocks * 8 / 5;
  for (int i = 0; i < wires; ++i) {
    const int target = i % blocks;
    const int column = std::clamp(target % cColumns + upTo(8) - 5, 0, cColumns - 1);
    const int row = std::max(target / cColumns + upTo(6) - 3, 0);
    const int source = i % cFarApart == 0 ? upTo(blocks - 1) : std::min(row * cColumns + column, blocks - 1);
    page.mChildren.at(target).mInputs[static_cast<size_t>(i / blocks)].mBinding =
        page.mChildren.at(source).mOutputs[static_cast<size_t>(upTo(1))].mBinding;
  }
}

class Painting {
public:
  explicit Painting(FB_Wires& wires) : mWires(wires) {}

  void at(const QPointF& corner) {
    QPainter painter(&mImage);
    painter.translate(-corner);
    mWires.paint(painter, QRectF(corner, cView), {});
  }

private:
  FB_Wires& mWires;
  QImage mImage{cView, QImage::Format_RGB32};
};

void measure(Bench_Table& table, FB_Wires& wires, const DB_FB_Page& page, FB_Wires::Style style) {
  const bool isCurved = style == FB_Wires::Style::Curved;
  const auto name = [isCurved](const char* figure) {
    return QByteArray(isCurved ? "curved: " : "orthogonal: ") + figure;
  };
  wires.setStyle(style);
  Painting painting(wires);
  const QPointF corner(4000, 3000);
  for (const double zoom : {1.0, 0.5}) {
    wires.rebuild(page);
    wires.setZoom(zoom);
    table.add(name(zoom == 1 ? "first painting, zoom 1" : "first painting, zoom 0.5"),
              Bench_Table::milliseconds([&] { painting.at(corner * zoom); }), isCurved ? 12 : 100, "ms");
    table.add(name(zoom == 1 ? "painting, zoom 1" : "painting, zoom 0.5"), median([&] { painting.at(corner * zoom); }),
              12, "ms");
  }
  double zoom = 1;
  table.add(name("zoom step with painting"), median([&] {
              zoom = zoom > 3.9 ? 0.5 : zoom + 0.1;
              wires.setZoom(zoom);
              painting.at(corner * zoom);
            }),
            12, "ms");
  wires.setZoom(1);
  double y = 3000;
  table.add(name("hit of no wire"), median([&] { (void)wires.hit({4321, y += 7}); }), 0.5, "ms");
  const QPointF on = wires.path(wires.count() / 3).pointAtPercent(0.3);
  table.add(name("hit of a wire"), median([&] { (void)wires.hit(on); }), 0.5, "ms");
  table.add(name("moving 100 blocks"), median([&] {
              y += 1;
              for (int i = 0; i < 100; ++i) {
                wires.moveBlock(1500 + i, {4000.0 + i * 20, y});
              }
            }),
            2, "ms");
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  Bench_Table table;
  DB_FB_Page page;
  fill(page, cBlocks);
  DB_FB_Page four;
  fill(four, 4 * cBlocks);
  const double once = median([&] { (void)FB_Connections::of(page); });
  table.add("connections of 5,000 blocks", once, 15, "ms");
  table.add("connections of 20,000 blocks, times as long", median([&] { (void)FB_Connections::of(four); }) / once, 5,
            "");
  FB_Wires wires;
  table.add("rebuild with places and sizes", median([&] { wires.rebuild(page); }), 15, "ms");
  for (const FB_Wires::Style style : {FB_Wires::Style::Curved, FB_Wires::Style::Orthogonal}) {
    measure(table, wires, page, style);
  }
  std::vector<double> ways;
  ways.reserve(static_cast<size_t>(wires.count()));
  for (int i = 0; i < wires.count(); ++i) {
    ways.push_back(Bench_Table::milliseconds([&] { (void)wires.path(i); }));
  }
  Bench_Table::note("wires", wires.count(), "");
  table.add("way of one wire", Bench_Table::median(ways), 0.3, "ms");
  Bench_Table::note("ways of all wires", std::accumulate(ways.cbegin(), ways.cend(), 0.0), "ms");

  ProjectDatabase database;
  Big_Project(database).fill();
  table.add("all uses of 10,000 blocks on 200 pages", median([&] { (void)Address_Usage(database); }), 60, "ms");
  table.add("double outputs of them", median([&] { (void)FB_Output_Check::rows(database); }), 30, "ms");
  return table.missed() == 0 ? 0 : 1;
}
