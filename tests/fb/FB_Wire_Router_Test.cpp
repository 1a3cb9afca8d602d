#include "fb/model/FB_Wire_Router.h"

#include <QtTest>

#include <random>

namespace {

using Route = FB_Wire_Router::Route;
constexpr int cSeed = 20261121;

QRectF lineOf(const Route& route, size_t i) {
  return QRectF(route[i - 1], route[i]).normalized();
}

/// What is wrong with the way; empty when nothing is.
QString fault(const Route& route, const QPointF& source, const QPointF& target, const std::vector<QRectF>& blocks) {
  if (route.size() < 2 || route.front() != source || route.back() != target) {
    return QStringLiteral("does not join the pins");
  }
  if (route[1].x() < source.x() || route[route.size() - 2].x() > target.x()) {
    return QStringLiteral("runs into the pins from inside");
  }
  for (size_t i = 1; i < route.size(); ++i) {
    const QRectF line = lineOf(route, i);
    if ((line.width() > 0) == (line.height() > 0)) {
      return QStringLiteral("piece %1 is neither a row nor a column").arg(i);
    }
    for (const QRectF& block : blocks) {
      if (line.left() < block.right() && line.right() > block.left() && line.top() < block.bottom() &&
          line.bottom() > block.top()) {
        return QStringLiteral("piece %1 runs through the block at %2, %3").arg(i).arg(block.x()).arg(block.y());
      }
    }
  }
  return {};
}

} // namespace

class FB_Wire_Router_Test : public QObject {
  Q_OBJECT

private slots:
  /// The source is the block at 0, 0 with its output at 128, 40; the target's input stands 40 below its upper edge.
  void aWay_data() {
    QTest::addColumn<QPointF>("target"); // the block's upper left corner
    QTest::addColumn<QList<QRectF>>("others");
    QTest::addColumn<int>("bends"); // at most
    using Others = QList<QRectF>;
    QTest::newRow("same row") << QPointF(300, 0) << Others{} << 0;
    QTest::newRow("lower") << QPointF(300, 200) << Others{} << 2;
    QTest::newRow("upper") << QPointF(300, -200) << Others{} << 2;
    QTest::newRow("a hair lower") << QPointF(300, 0.25) << Others{} << 2;
    QTest::newRow("pins very close") << QPointF(132, 3) << Others{} << 2;
    QTest::newRow("edges touch") << QPointF(128, 96) << Others{} << 4;
    QTest::newRow("block between, same row") << QPointF(500, 0) << Others{{250, 0, 128, 80}} << 4;
    QTest::newRow("block between, lower") << QPointF(500, 300) << Others{{130, 100, 300, 260}} << 4;
    QTest::newRow("block before the output") << QPointF(500, 200) << Others{{134, 0, 128, 80}} << 4;
    QTest::newRow("block before the input") << QPointF(500, 200) << Others{{366, 200, 128, 80}} << 4;
    QTest::newRow("block touches the output") << QPointF(500, 200) << Others{{128, 0, 128, 80}} << 4;
    QTest::newRow("narrow gap") << QPointF(500, 0) << Others{{250, -400, 128, 430}, {250, 38, 128, 400}} << 4;
    QTest::newRow("target above") << QPointF(0, -300) << Others{} << 4;
    QTest::newRow("target below, near") << QPointF(0, 90) << Others{} << 4;
    QTest::newRow("backward") << QPointF(-400, 0) << Others{} << 4;
    QTest::newRow("backward, lower, block between") << QPointF(-400, 300) << Others{{-200, 80, 328, 180}} << 4;
    QTest::newRow("backward around a tall block") << QPointF(-600, 0) << Others{{-300, -500, 128, 1064}} << 4;
    QTest::newRow("far out") << QPointF(300, 200) << Others{{1e9, 1e9, 128, 80}, {-1e9, 0, 128, 80}} << 2;
  }

  void aWay() {
    QFETCH(const QPointF, target);
    QFETCH(const QList<QRectF>, others);
    QFETCH(const int, bends);
    std::vector<QRectF> blocks(others.cbegin(), others.cend());
    blocks.insert(blocks.end(), {QRectF(0, 0, 128, 80), QRectF(target, QSizeF(128, 80))});
    const FB_Wire_Router router(blocks);
    for (int lane = 0; lane < 12; ++lane) {
      const QPointF input = target + QPointF(0, 40);
      const Route route = router.route({128, 40}, input, lane);
      QCOMPARE(fault(route, {128, 40}, input, blocks), QString());
      QVERIFY2(static_cast<int>(route.size()) - 2 <= bends, qPrintable(QString::number(route.size() - 2)));
    }
  }

  void whereNoWayIsThereIsStillAWire() {
    const std::vector<QRectF> covered{{0, 0, 128, 80}, {300, 200, 128, 80}, {250, 150, 400, 400}, {100, -50, 100, 300}};
    for (const auto& blocks : {covered, {{-5000, -5000, 10000, 10000}}, {}}) {
      const Route route = FB_Wire_Router(blocks).route({128, 40}, {300, 240}, 1);
      QCOMPARE(fault(route, {128, 40}, {300, 240}, {}), QString());
    }
    QCOMPARE(FB_Wire_Router().route({0, 0}, {qQNaN(), 1}, 0).size(), size_t(2));
  }

  void wiresOfNeighboursDoNotLieOnEachOther() {
    const std::vector<QRectF> blocks{{0, 0, 128, 80}, {0, 96, 128, 80}, {300, 200, 128, 80}};
    const FB_Wire_Router router(blocks);
    const Route first = router.route({128, 40}, {300, 232}, 0);
    const Route second = router.route({128, 136}, {300, 248}, 1);
    QVERIFY(first[1].x() != second[1].x());
  }

  /// Blocks somewhere in the cells of a wide grid, so that streets lie between them; every wire finds its way.
  void aWayIsFoundWhereThereIsOne() {
    constexpr double cCellWidth = 240;
    constexpr double cCellHeight = 180;
    constexpr double cStreet = 24;
    std::mt19937 random(cSeed);
    const auto upTo = [&random](double most) { return std::uniform_int_distribution<int>(0, int(most))(random); };
    for (int round = 0; round < 40; ++round) {
      std::vector<QRectF> blocks;
      for (int row = 0; row < 12; ++row) {
        for (int column = 0; column < 12; ++column) {
          const QSizeF size(100 + upTo(100), 40 + upTo(90));
          blocks.emplace_back(QPointF(column * cCellWidth + upTo(cCellWidth - cStreet - size.width()),
                                      row * cCellHeight + upTo(cCellHeight - cStreet - size.height())),
                              size);
        }
      }
      const FB_Wire_Router router(blocks);
      for (int wire = 0; wire < 50; ++wire) {
        const QRectF& from = blocks[size_t(upTo(143))];
        const QRectF& to = blocks[size_t(upTo(143))];
        const QPointF source = from.topRight() + QPointF(0, 1 + upTo(from.height() - 2));
        const QPointF target = to.topLeft() + QPointF(0, 1 + upTo(to.height() - 2));
        const Route route = router.route(source, target, wire);
        const QString wrong = fault(route, source, target, blocks);
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("seed %1, round %2, wire %3: %4 (%5, %6 to %7, %8)")
                                                 .arg(cSeed)
                                                 .arg(round)
                                                 .arg(wire)
                                                 .arg(wrong)
                                                 .arg(source.x())
                                                 .arg(source.y())
                                                 .arg(target.x())
                                                 .arg(target.y())));
        const QRectF bounds = QRectF(source, target)
                                  .normalized()
                                  .adjusted(-router.reach(), -router.reach(), router.reach(), router.reach());
        for (const QPointF& point : route) {
          QVERIFY(bounds.contains(point));
        }
      }
    }
  }
};

QTEST_GUILESS_MAIN(FB_Wire_Router_Test)
#include "FB_Wire_Router_Test.moc"
