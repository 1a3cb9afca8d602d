#include "base/App_Settings.h"
#include "db/Address_Values.h"
#include "db/Value_Service.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Parent_ScrollView.h"
#include "fb/FB_Session_Values.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Page_Edits.h"
#include "tests/db/Session_Rig.h"
#include "ui/Theme.h"

#include <QPaintEvent>

namespace {

/// Keeps what is sent.
class Sent_Values : public Value_Service {
public:
  [[nodiscard]] bool isOnline() const override { return true; }
  void read(const QList<QUuid>& /*keys*/) override {}
  void cancelReading() override {}
  [[nodiscard]] bool isReading() const override { return false; }
  Edit_Result send(const QUuid& key, const QByteArray& payload) override {
    mSent.append({key, payload});
    return Edit_Result::done();
  }
  QList<std::pair<QUuid, QByteArray>> mSent;
};

} // namespace

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
    QTest::newRow("not shown") << false << 1 << true;
    QTest::newRow("unknown") << true << -1 << false;
    QTest::newRow("on") << true << 1 << false;
    QTest::newRow("off") << true << 0 << false;
    QTest::newRow("on, stale") << true << 1 << true;
  }

  void aWireShowsItsValue() {
    QFETCH(const bool, isShown);
    QFETCH(const int, value);
    QFETCH(const bool, isStale);
    mPage->showValues(isShown);
    if (value >= 0) {
      set(value, isStale);
    }
    QTest::qWait(2 * Address_Values::cTellMs);
    FB_Wires::Light expected;
    if (isShown && value >= 0) {
      expected = {value == 1, isStale};
    }
    QVERIFY(mPage->blocks().wires().light(0) == expected);
    mPage->showValues(false);
    QVERIFY(mPage->blocks().wires().light(0) == FB_Wires::Light());
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

  void aClickSendsAPresetValue_data() {
    QTest::addColumn<QString>("doing");
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("told");
    QTest::newRow("sent") << ""
                          << "1"
                          << "Gesendet an 1/2/3: 1";
    QTest::newRow("not while editing") << "edit"
                                       << "1"
                                       << "";
    QTest::newRow("not by the other button") << "right"
                                             << "1"
                                             << "";
    QTest::newRow("not beside the row") << "beside"
                                        << "1"
                                        << "";
    QTest::newRow("no link") << "offline"
                             << "1"
                             << "Keine Verbindung zur Steuerung";
    QTest::newRow("no address") << "unbound"
                                << "1"
                                << "Der Ausgang ist mit keiner Gruppenadresse verknüpft, es gibt nichts zu senden.";
  }

  void aClickSendsAPresetValue() {
    QFETCH(const QString, doing);
    QFETCH(const QString, preset);
    Project_Session& session = mRig->mSession;
    const QUuid block = FB_Page_Edits::create(session, mPage->pageGuid(), 1330, {64, 256}).mBlocks.value(0);
    QVERIFY(FB_Page_Edits::setParameter(session, block, 1, preset));
    if (doing != QStringLiteral("unbound")) {
      QVERIFY(FB_Page_Edits::bind(session, {block, FB_Side::Output, 0}, mKey));
    }
    Sent_Values service;
    session.setValueService(doing == QStringLiteral("offline") ? nullptr : &service);
    session.state().setOperatingMode(doing != QStringLiteral("edit"));
    QTRY_VERIFY(mPage->blocks().find(block));
    FB_Base* const widget = mPage->blocks().find(block);
    QString told;
    connect(mPage, &FB_Page::statusText, this, [&](const QString& text) { told = text; });
    const QPointF pin = FB_Geometry::pin(1330, FB_Side::Output, 0, widget->width(), widget->grid());
    const double y = doing == QStringLiteral("beside") ? 2 : pin.y();
    QTest::mouseClick(widget, doing == QStringLiteral("right") ? Qt::RightButton : Qt::LeftButton, {},
                      QPoint(widget->width() / 2, qRound(y)));
    const QList<std::pair<QUuid, QByteArray>> one{{mKey, QByteArray(1, '\1')}};
    QCOMPARE(service.mSent, QTest::currentDataTag() == QByteArray("sent") ? one : decltype(one)());
    QTEST(told, "told");
    session.setValueService(nullptr);
    session.state().setOperatingMode(false);
  }

protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == mPage && event->type() == QEvent::Paint) {
      mPainted |= static_cast<QPaintEvent*>(event)->region().boundingRect();
    }
    return false;
  }

private:
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
