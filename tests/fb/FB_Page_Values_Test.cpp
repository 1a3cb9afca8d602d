#include "base/App_Settings.h"
#include "db/Address_Values.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Parent_ScrollView.h"
#include "fb/FB_Session_Values.h"
#include "fb/model/FB_Page_Edits.h"
#include "tests/db/Session_Rig.h"
#include "ui/Theme.h"

#include <QPainterPath>

/// Live values on a page: two "Und" blocks, the first one's output and the second one's input are bound to 1/2/3, a
/// switch; a wire leads from one to the other.
class FB_Page_Values_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QLocale::setDefault(QLocale(QLocale::German));
    Theme::apply(*qApp);
  }

  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mSettings = std::make_unique<App_Settings>(mRig->path(QStringLiteral("studio.ini")));
    DB_Address_Sub_Group* const group = mRig->addAddress({1, 2, 3}, QStringLiteral("Licht"));
    group->mDpt = {1, 1};
    mKey = group->mKey;
    Project_Session& session = mRig->mSession;
    const QUuid page = session.database().mFbPages.pages().at(0).mGuid;
    const QUuid from = FB_Page_Edits::create(session, page, 50, {64, 64}).mBlocks.value(0);
    const QUuid to = FB_Page_Edits::create(session, page, 50, {640, 256}).mBlocks.value(0);
    QVERIFY(FB_Page_Edits::bind(session, {from, FB_Side::Output, 0}, mKey));
    QVERIFY(FB_Page_Edits::bind(session, {to, FB_Side::Input, 0}, mKey));
    mPage = new FB_Page(session, *mSettings, page);
    mView = std::make_unique<FB_Page_Parent_ScrollView>(mPage);
    mPage->setValueSource(
        [&session](const DB_Address_Binding& binding) { return FB_Session_Values::of(session, binding); });
    connect(&session.values(), &Address_Values::changed, mPage, qOverload<const QSet<QUuid>&>(&FB_Page::valuesChanged));
    mView->resize(1000, 600);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    QCOMPARE(mPage->blocks().wires().count(), 1);
  }

  void cleanup() {
    mView.reset();
    mSettings.reset();
    mRig.reset();
  }

  void aWireShowsItsValue_data() {
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<int>("value"); // -1: none known
    QTest::addColumn<bool>("isStale");
    QTest::addColumn<Theme::Role>("role");
    QTest::newRow("not shown") << false << 1 << false << Theme::Role::WireAddress;
    QTest::newRow("unknown") << true << -1 << false << Theme::Role::WireAddress;
    QTest::newRow("on") << true << 1 << false << Theme::Role::WireTrue;
    QTest::newRow("off") << true << 0 << false << Theme::Role::WireFalse;
    QTest::newRow("on, stale") << true << 1 << true << Theme::Role::WireTrue;
  }

  void aWireShowsItsValue() {
    QFETCH(const bool, isShown);
    QFETCH(const int, value);
    QFETCH(const bool, isStale);
    QFETCH(const Theme::Role, role);
    mPage->showValues(isShown);
    if (value >= 0) {
      set(value, isStale);
    }
    QTest::qWait(2 * Address_Values::cTellMs);
    const QImage image = mPage->grab().toImage();
    const QPainterPath path = mPage->blocks().wires().path(0);
    int inColour = 0;
    int ofGround = 0;
    constexpr int cPoints = 200;
    for (int i = 0; i < cPoints; ++i) {
      const QPoint point = path.pointAtPercent((i + 0.5) / cPoints).toPoint();
      inColour += countAround(image, point, Theme::color(role)) > 0 ? 1 : 0;
      ofGround += countAround(image, point, Theme::color(Theme::Role::Canvas)) == 9 ? 1 : 0;
    }
    QVERIFY2(inColour > cPoints / 10, qPrintable(QString::number(inColour)));
    QCOMPARE(ofGround > cPoints / 8, isStale);
  }

  void onlyWhatShowsItIsDrawnAnew() {
    mPage->showValues(true);
    QTest::qWait(50);
    mPainted = {};
    mPage->installEventFilter(this);
    mRig->mSession.values().set(QUuid::createUuid(), {});
    QTest::qWait(2 * Address_Values::cTellMs);
    QVERIFY(mPainted.isNull());
    set(1, false);
    QTRY_VERIFY(!mPainted.isNull());
    QVERIFY2(mPainted.height() < mView->height() - 100, "the whole page is drawn anew");
    mPage->removeEventFilter(this);
  }

  void textsOfPins() {
    DB_Address_Binding binding;
    binding.bindTo(*mRig->mSession.database().mAddresses.subGroup(mKey), {1, 2, 3});
    QVERIFY(FB_Session_Values::of(mRig->mSession, binding).mText.isEmpty());
    set(1, true);
    const FB_Live_Value live = FB_Session_Values::of(mRig->mSession, binding);
    QCOMPARE(live.mText, QStringLiteral("Ein"));
    QVERIFY(live.mIsStale && live.mIsOn == true);
    binding.mKind = DB_Address_Binding::Kind::Internal;
    QVERIFY(FB_Session_Values::of(mRig->mSession, binding).mText.isEmpty());
  }

protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == mPage && event->type() == QEvent::Paint) {
      mPainted |= static_cast<QPaintEvent*>(event)->region().boundingRect();
    }
    return false;
  }

private:
  static bool isNear(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) < 40;
  }

  /// So many of the 9 pixels there are of that colour.
  static int countAround(const QImage& image, const QPoint& point, const QColor& colour) {
    int count = 0;
    for (int x = -1; x <= 1; ++x) {
      for (int y = -1; y <= 1; ++y) {
        count += isNear(image.pixelColor(point + QPoint(x, y)), colour) ? 1 : 0;
      }
    }
    return count;
  }

  void set(int value, bool isStale) {
    mRig->mSession.values().set(
        mKey, {QByteArray(1, static_cast<char>(value)), Datapoint_Value::ofWhole(value), 1, {}, isStale});
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<FB_Page_Parent_ScrollView> mView;
  FB_Page* mPage = nullptr;
  QUuid mKey;
  QRect mPainted;
};

QTEST_MAIN(FB_Page_Values_Test)
#include "FB_Page_Values_Test.moc"
