#include "fb/FB_Wires.h"
#include "ui/Theme.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

/// Wires of a page of a few blocks, 128 wide: an output stands at 128, 32 of its block, an input at 0, 32.
class FB_Wires_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mPage = std::make_unique<DB_FB_Page>();
    mWires = FB_Wires();
  }

  void aCurveBowsByTheDistance_data() {
    QTest::addColumn<QPointF>("target");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("bow");
    QTest::newRow("near") << QPointF(30, 40) << 1.0 << 37.5;
    QTest::newRow("far") << QPointF(300, 400) << 1.0 << 96.0;
    QTest::newRow("far, zoomed") << QPointF(300, 400) << 2.0 << 192.0;
    QTest::newRow("backward") << QPointF(-300, -400) << 0.5 << 48.0;
    QTest::newRow("no zoom") << QPointF(300, 400) << 0.0 << 96.0;
    QTest::newRow("negative zoom") << QPointF(300, 400) << -2.0 << 96.0;
  }

  void aCurveBowsByTheDistance() {
    QFETCH(const QPointF, target);
    QFETCH(const double, zoom);
    QFETCH(const double, bow);
    const QPainterPath path = FB_Wires::curve({7, 5}, target + QPointF(7, 5), zoom);
    QCOMPARE(path.elementCount(), 4);
    QCOMPARE(QPointF(path.elementAt(0)), QPointF(7, 5));
    QCOMPARE(QPointF(path.elementAt(1)), QPointF(7 + bow, 5));
    QCOMPARE(QPointF(path.elementAt(2)), target + QPointF(7 - bow, 5));
    QCOMPARE(QPointF(path.elementAt(3)), target + QPointF(7, 5));
  }

  void aWireIsHitWithinHalfAPen_data() {
    QTest::addColumn<FB_Wires::Style>("style");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("reach"); // px of the screen
    for (const auto& [name, style] :
         {std::pair("curved", FB_Wires::Style::Curved), {"orthogonal", FB_Wires::Style::Orthogonal}}) {
      for (const auto& [zoom, reach] : {std::pair(0.5, 4.0), {1.0, 4.0}, {2.0, 8.0}, {0.0, 4.0}}) {
        QTest::addRow("%s, %g", name, zoom) << style << zoom << reach;
      }
    }
  }

  void aWireIsHitWithinHalfAPen() {
    const QUuid key = QUuid::createUuid();
    add({0, 0}, {}, {key});
    add({300, 0}, {key}, {});
    QFETCH(const FB_Wires::Style, style);
    QFETCH(const double, zoom);
    QFETCH(const double, reach);
    mWires.setStyle(style);
    mWires.setZoom(zoom);
    mWires.rebuild(*mPage);
    const QPointF middle = QPointF(200, 32) * (zoom > 0 ? zoom : 1);
    QCOMPARE(mWires.hit(middle + QPointF(0, reach - 0.1)), 0);
    QCOMPARE(mWires.hit(middle + QPointF(0, reach + 0.1)), -1);
  }

  void theTopmostWireThatIsShownIsHit() {
    const QUuid first = QUuid::createUuid();
    const QUuid second = QUuid::createUuid();
    const QUuid hidden = QUuid::createUuid();
    for (const QUuid& key : {first, second, hidden}) { // one on the other
      add({0, 0}, {}, {key});
      add({300, 0}, {key}, {});
    }
    mPage->mChildren.at(5).mDisplay = false;
    mWires.rebuild(*mPage);
    QCOMPARE(mWires.count(), 3);
    QCOMPARE(mWires.hit({200, 32}), 1);
    mWires.moveBlock(2, {0, 500}); // and its wire with it
    QCOMPARE(mWires.hit({200, 32}), 0);
    QVERIFY(mWires.path(1).boundingRect().bottom() > 500);
    mWires.moveBlock(2, {0, 0});
    QCOMPARE(mWires.hit({200, 32}), 1);
  }

  void aNetIsAllThatSharesABinding() {
    const QUuid shared = QUuid::createUuid();
    const QUuid other = QUuid::createUuid();
    add({0, 0}, {}, {shared, other});
    add({300, 0}, {other, shared}, {});
    add({300, 200}, {shared}, {});
    add({0, 200}, {}, {shared});
    mWires.rebuild(*mPage);
    QCOMPARE(mWires.count(), 5);
    QCOMPARE(mWires.netOf(0, FB_Side::Output, 0).size(), 4);
    QCOMPARE(mWires.netOf(2, FB_Side::Input, 0), mWires.netOf(3, FB_Side::Output, 0));
    const QList<int> single = mWires.netOf(1, FB_Side::Input, 0);
    QCOMPARE(single.size(), 1);
    QCOMPARE(mWires.net(single[0]), single);
    QCOMPARE(mWires.netOf(2, FB_Side::Output, 0), QList<int>());
    QCOMPARE(mWires.netOf(9, FB_Side::Output, 0), QList<int>());
  }

  /// What is painted of a part of the page is what is painted of the whole page there.
  void aPartIsPaintedLikeTheWhole() {
    const QUuid far = QUuid::createUuid();
    const QUuid back = QUuid::createUuid();
    add({0, 0}, {back}, {far});
    add({150, 200}, {}, {});
    add({320, 300}, {far}, {back});
    for (const FB_Wires::Style style : {FB_Wires::Style::Curved, FB_Wires::Style::Orthogonal}) {
      const QRect part(220, 100, 100, 300);
      mWires.setStyle(style);
      const QImage whole = painted(QRect(0, 0, 500, 500));
      QCOMPARE(painted(part).copy(part), whole.copy(part));
      QVERIFY(painted(part, {0}) != painted(part));
    }
  }

  void aWireIsPaintedAsItsValueIs_data() {
    QTest::addColumn<std::optional<bool>>("isOn");
    QTest::addColumn<bool>("isStale");
    QTest::addColumn<Theme::Role>("role");
    QTest::newRow("none") << std::optional<bool>() << false << Theme::Role::WireVariable;
    QTest::newRow("on") << std::optional(true) << false << Theme::Role::WireTrue;
    QTest::newRow("off") << std::optional(false) << false << Theme::Role::WireFalse;
    QTest::newRow("on, stale") << std::optional(true) << true << Theme::Role::WireTrue;
    QTest::newRow("neither, stale") << std::optional<bool>() << true << Theme::Role::WireVariable;
  }

  void aWireIsPaintedAsItsValueIs() {
    QFETCH(const std::optional<bool>, isOn);
    QFETCH(const bool, isStale);
    QFETCH(const Theme::Role, role);
    const QUuid key = QUuid::createUuid();
    add({0, 0}, {}, {key});
    add({300, 0}, {key}, {});
    mWires.setStyle(FB_Wires::Style::Orthogonal);
    mWires.rebuild(*mPage);
    mWires.setLight(0, {isOn, isStale});
    const QImage image = paint(QRect(0, 0, 500, 500));
    int colored = 0;
    int between = 0;
    for (int x = 150; x < 280; ++x) {
      colored += image.pixelColor(x, 32) == Theme::color(role) ? 1 : 0;
      between += image.pixelColor(x, 32) == Qt::black ? 1 : 0;
    }
    QVERIFY2(isStale ? colored >= 40 && between >= 40 : colored == 130,
             qPrintable(QStringLiteral("%1 colored, %2 between").arg(colored).arg(between)));
  }

private:
  [[nodiscard]] QImage painted(const QRect& region, const QSet<int>& net = {}) {
    mWires.rebuild(*mPage);
    return paint(region, net);
  }

  [[nodiscard]] QImage paint(const QRect& region, const QSet<int>& net = {}) const {
    QImage image(500, 500, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setClipRect(region);
    mWires.paint(painter, region, net);
    return image;
  }

  void add(const QPointF& position, const QList<QUuid>& inputs, const QList<QUuid>& outputs) {
    auto block = std::make_unique<DB_FB_Control>();
    block->mType = 50;
    block->mX = position.x();
    block->mY = position.y();
    const auto fill = [](std::vector<DB_FB_Pin>& pins, const QList<QUuid>& keys) {
      for (const QUuid& key : keys) {
        pins.emplace_back().mBinding.mKind = DB_Address_Binding::Kind::Internal;
        pins.back().mBinding.mKey = key;
      }
    };
    fill(block->mInputs, inputs);
    fill(block->mOutputs, outputs);
    mPage->mChildren.append(std::move(block));
  }

  std::unique_ptr<DB_FB_Page> mPage;
  FB_Wires mWires;
};

QTEST_MAIN(FB_Wires_Test)
#include "FB_Wires_Test.moc"
