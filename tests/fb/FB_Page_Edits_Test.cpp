#include "db/DB_Bindings.h"
#include "fb/model/FB_Block_Edits.h"
#include "fb/model/FB_Clipboard.h"
#include "tests/fb/Logic_Rig.h"

#include <QSignalSpy>

#include <limits>

using namespace FB_Page_Edits;
using Kind = DB_Address_Binding::Kind;

/// What connects, what is left when something goes, where blocks come to stand, what a paste makes; each edit is taken
/// back, done again and taken back.
class FB_Page_Edits_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Logic_Rig>();
    for (QUuid* const block : {&mA, &mB, &mC}) {
      *block = mRig->add();
    }
    mRig->history().commit();
    mStart = mRig->dump();
  }

  void connecting_data() {
    QTest::addColumn<bool>("isFromOutput");
    QTest::addColumn<bool>("isOutputBound");
    QTest::addColumn<bool>("isInputBound");
    QTest::addColumn<QString>("expected");
    const QString light = QStringLiteral("Licht");
    const QString blind = QStringLiteral("Jalousie");
    QTest::newRow("neither") << true << false << false << QStringLiteral("Und Ausgang");
    QTest::newRow("neither, from the input") << false << false << false << QStringLiteral("Und Eingang 1");
    QTest::newRow("the beginning") << true << true << false << light;
    QTest::newRow("the end") << true << false << true << blind;
    QTest::newRow("both: the beginning wins") << true << true << true << light;
    QTest::newRow("both, from the input") << false << true << true << blind;
  }

  void connecting() {
    QFETCH(bool, isFromOutput);
    QFETCH(bool, isOutputBound);
    QFETCH(bool, isInputBound);
    QFETCH(QString, expected);
    if (isOutputBound) {
      QVERIFY(bind(session(), out(mA), mRig->mLight));
    }
    if (isInputBound) {
      QVERIFY(bind(session(), in(mB), mRig->mBlind));
    }
    QVERIFY(isFromOutput ? connectPins(session(), out(mA), in(mB)) : connectPins(session(), in(mB), out(mA)));
    QCOMPARE(mRig->output(mA).mName, expected);
    QCOMPARE(mRig->input(mB).mName, expected);
    QVERIFY(FB_Connections::isShared(mRig->output(mA), mRig->input(mB)));
    QCOMPARE(mRig->wires().size(), size_t(1));
    goBack();
  }

  void refused_data() {
    QTest::addColumn<std::function<Edit_Result()>>("edit");
    QTest::addColumn<QString>("part");
    const auto row = [](const char* name, const std::function<Edit_Result()>& edit, const QString& part) {
      QTest::newRow(name) << edit << part;
    };
    const QString side =
        QStringLiteral("Verbindungen sind nur zwischen Ausgang->Eingang und Eingang->Ausgang möglich.");
    const QString limits = QLocale().toString(cPositionLimit, 'f', 0);
    row(
        "same side", [this] { return connectPins(session(), in(mA), in(mB)); }, side);
    row(
        "same side of the same block", [this] { return connectPins(session(), in(mA, 0), in(mA, 1)); }, side);
    row(
        "same block", [this] { return connectPins(session(), in(mA), out(mA)); },
        QStringLiteral("Baustein Quelle und Ziel dürfen nicht gleich sein"));
    row(
        "no such pin", [this] { return connectPins(session(), in(mA, 2), out(mB)); }, QStringLiteral("Eingang 3"));
    row(
        "no such block",
        [this] {
          return remove(session(), {mA, QUuid::createUuid()});
        },
        QStringLiteral("gibt es"));
    row(
        "no number",
        [this] {
          return move(session(), {{mA, QPointF(0, qQNaN())}, {mB, {}}});
        },
        limits);
    row(
        "far away",
        [this] {
          return create(session(), mRig->mPage, 50, {1e300, 0});
        },
        limits);
    row(
        "no such type", [this] { return create(session(), mRig->mPage, 49, {}); }, QStringLiteral("49"));
    row(
        "too many pins", [this] { return setParameter(session(), mA, 0, QStringLiteral("999999999")); },
        QStringLiteral("64"));
    row(
        "one of several",
        [this] {
          return setParameter(session(), QList<QUuid>{mA, QUuid::createUuid()}, 0, QStringLiteral("3"));
        },
        QStringLiteral("gibt es"));
    row(
        "long name", [this] { return FB_Block_Edits::setName(session(), {mA}, QString(256, u'x')); },
        QStringLiteral("255"));
    row(
        "delay",
        [this] {
          return FB_Block_Edits::setStartDelay(session(), {mA, mB}, -1);
        },
        QStringLiteral("-1 s"));
    row(
        "no disabling address",
        [this] { return FB_Block_Edits::setDisableAddress(session(), {mA}, QUuid::createUuid()); },
        QStringLiteral("gibt es"));
    row(
        "no address", [this] { return bind(session(), in(mA), QUuid::createUuid()); }, QStringLiteral("gibt es"));
    row(
        "nothing packed", [this] { return FB_Clipboard::paste(session(), mRig->mPage, "QSBLOCKS", {}, true); },
        QStringLiteral("Zwischenablage"));
  }

  void refused() {
    QFETCH(std::function<Edit_Result()>, edit);
    QFETCH(QString, part);
    const Edit_Result result = edit();
    QVERIFY2(result.mError.contains(part), qPrintable(result.mError));
    mRig->mState.setOperatingMode(true);
    QCOMPARE(edit().mError, Session_State::operatingModeRefusal());
    mRig->mState.setOperatingMode(false);
    mRig->history().commit();
    QCOMPARE(mRig->dump(), mStart);
  }

  void fieldsOfSeveralBlocks() {
    QVERIFY(bind(session(), out(mA), mRig->mLight) && bind(session(), in(mB), mRig->mBlind));
    mRig->history().commit();
    const QList<QUuid> all{mA, mB, mC};
    const size_t steps = mRig->history().position();
    QVERIFY(FB_Block_Edits::takeNames(session(), all));
    mRig->history().commit();
    QCOMPARE(mRig->history().position(), steps + 1);
    QStringList names;
    for (const QUuid& block : all) {
      names.append(mRig->block(block).mName);
    }
    QCOMPARE(names, (QStringList{QStringLiteral("Licht"), QStringLiteral("Jalousie"), QStringLiteral("Und")}));
    QVERIFY(FB_Block_Edits::setComment(session(), all, QStringLiteral("Treppe")));
    QVERIFY(FB_Block_Edits::setCommentAsCaption(session(), {mC}, true));
    QCOMPARE(FB_Block_Edits::fittingName(mRig->block(mC)), QStringLiteral("Treppe"));
    QVERIFY(FB_Block_Edits::setDisabled(session(), all, true) && FB_Block_Edits::setUpdateCyclic(session(), all, true));
    QVERIFY(FB_Block_Edits::setUpdateAtStart(session(), all, false) &&
            FB_Block_Edits::setStartDelay(session(), all, 9));
    QVERIFY(FB_Block_Edits::setDisableAddress(session(), all, mRig->mLight));
    QCOMPARE(mRig->block(mB).mDisableAddress.mName, QStringLiteral("Licht"));
    QVERIFY(FB_Block_Edits::setDisableAddress(session(), {mB}, {}));
    QCOMPARE(mRig->block(mB).mDisableAddress.mKind, Kind::None);
    goBack();
  }

  /// After taking the wire from A to B away.
  void disconnecting_data() {
    QTest::addColumn<std::function<void()>>("prepare");
    QTest::addColumn<bool>("isOutputBound");
    const auto row = [](const char* name, const std::function<void()>& prepare, bool isOutputBound) {
      QTest::newRow(name) << prepare << isOutputBound;
    };
    row(
        "the only wire", [] {}, false);
    row(
        "another wire", [this] { connectPins(session(), out(mA), in(mC)); }, true);
    row(
        "an input of another page", [this] { connectPins(session(), out(mA), in(onOtherPage())); }, true);
    row(
        "another output only", [this] { connectPins(session(), in(mB), out(mC)); }, false);
    row(
        "an element shows it", [this] { show(mRig->output(mA)); }, true);
    row(
        "a group address",
        [this] {
          bind(session(), out(mA), mRig->mLight);
          connectPins(session(), out(mA), in(mB));
        },
        true);
  }

  void disconnecting() {
    QFETCH(std::function<void()>, prepare);
    QFETCH(bool, isOutputBound);
    QVERIFY(connectPins(session(), out(mA), in(mB)));
    prepare();
    mRig->history().commit();
    QVERIFY(removeConnection(session(), {mA, 0, mB, 0}));
    QCOMPARE(mRig->input(mB).mKind, Kind::None);
    QCOMPARE(mRig->output(mA).mKind != Kind::None, isOutputBound);
    mRig->history().commit();
    const size_t steps = mRig->history().position();
    QVERIFY2(removeConnection(session(), {mA, 0, mB, 0}) && removeConnection(session(), {mA, 7, mC, -1}), "stale");
    mRig->history().commit();
    QCOMPARE(mRig->history().position(), steps);
    goBack();
  }

  void movingAnEnd() {
    QVERIFY(connectPins(session(), out(mA), in(mB)));
    mRig->history().commit();
    QVERIFY(moveConnection(session(), {mA, 0, mB, 0}, FB_Side::Input, in(mC, 1)));
    QCOMPARE(mRig->wires(), (std::vector<FB_Connections::Entry>{{0, 0, 2, 1}}));
    QVERIFY(moveConnection(session(), {mA, 0, mC, 1}, FB_Side::Output, out(mB)));
    QCOMPARE(mRig->wires(), (std::vector<FB_Connections::Entry>{{1, 0, 2, 1}}));
    QCOMPARE(mRig->output(mA).mKind, Kind::None);
    QCOMPARE(mRig->output(mB).mName, QStringLiteral("Und Ausgang"));
    QVERIFY(!moveConnection(session(), {mB, 0, mC, 1}, FB_Side::Output, out(mC)));
    QVERIFY(!moveConnection(session(), {mB, 0, mC, 1}, FB_Side::Output, in(mA)));
    goBack();
  }

  void deleting() {
    QVERIFY(connectPins(session(), out(mA), in(mB)) && connectPins(session(), out(mC), in(mB, 1)));
    QVERIFY(connectPins(session(), out(mC), in(onOtherPage())));
    mRig->history().commit();
    QVERIFY(remove(session(), {mA}));
    QCOMPARE(mRig->input(mB).mKind, Kind::None);
    QVERIFY(remove(session(), {mC}));
    QCOMPARE(mRig->input(mB, 1).mKind, Kind::None); // also of several inputs: their wires are gone
    goBack();
  }

  void places() {
    const auto at = [this](const QUuid& block) { return QPointF(mRig->block(block).mX, mRig->block(block).mY); };
    QVERIFY(move(session(), {{mA, {14, 15}}, {mB, {-15, 4}}, {mC, {500, 300}}}));
    QVERIFY(alignToGrid(session(), {mA, mB, mC}, 0));
    QCOMPARE(at(mA), QPointF(14, 15));
    QVERIFY(alignToGrid(session(), {mA, mB}, 10));
    QCOMPARE(at(mA), QPointF(10, 20));
    QCOMPARE(at(mB), QPointF(-20, 0));
    QVERIFY(distribute(session(), {mC, mA}, Qt::Horizontal));
    QCOMPARE(at(mA), QPointF(10, 20));
    QVERIFY(distribute(session(), {mC, mA, mB}, Qt::Horizontal));
    QCOMPARE(at(mA), QPointF(240, 20));
    QVERIFY(align(session(), {mC, mA, mB}, Edge::Right) && align(session(), {mC, mA, mB}, Edge::Top));
    QCOMPARE(at(mA), QPointF(500, 0));
    goBack();
  }

  void onceOnly() {
    QVERIFY(!mRig->add(Logic_Rig::cOnce).isNull());
    QCOMPARE(create(session(), mRig->mOther, Logic_Rig::cOnce, {}).mError, onceRefusal());
    const QUuid last = mRig->mSession.database().mFbPages.page(mRig->mPage)->mChildren.at(3).mGuid;
    const QByteArray packed = FB_Clipboard::pack(session(), {mA, last});
    QCOMPARE(FB_Clipboard::duplicate(session(), {mA, last}, {}, true).mError, onceRefusal());
    QVERIFY(remove(session(), {last}));
    QVERIFY(FB_Clipboard::paste(session(), mRig->mOther, packed, {}, true));
    goBack();
  }

  void pasting_data() {
    QTest::addColumn<bool>("keepOutputs");
    QTest::newRow("outputs come without") << false;
    QTest::newRow("outputs keep what they write") << true;
  }

  /// A writes to B by a variable and to the group address that C reads; C writes to B, which stays behind.
  void pasting() {
    QFETCH(bool, keepOutputs);
    QVERIFY(connectPins(session(), out(mA), in(mB)) && connectPins(session(), out(mB), in(mC, 1)));
    QVERIFY(bind(session(), out(mC), mRig->mLight) && bind(session(), in(mA), mRig->mLight));
    QVERIFY(bind(session(), in(mA, 1), mRig->mBlind) && move(session(), {{mB, {100, 50}}}));
    mRig->history().commit();
    const auto made = FB_Clipboard::paste(session(), mRig->mOther, FB_Clipboard::pack(session(), {mA, mC, mB}),
                                          {-5, 30}, keepOutputs);
    QVERIFY2(made && made.mNote.isEmpty(), qPrintable(made.mError));
    const QUuid a = made.mBlocks.at(0);
    const QUuid b = made.mBlocks.at(1);
    const QUuid c = made.mBlocks.at(2);
    QCOMPARE(QPointF(mRig->block(b).mX, mRig->block(b).mY), QPointF(100, 80));
    QCOMPARE(mRig->wires(mRig->mOther).size(), size_t(3));
    QVERIFY2(mRig->output(a).mKey != mRig->output(mA).mKey, "a variable of its own");
    QCOMPARE(mRig->output(a).mName, QStringLiteral("Und Ausgang 3"));
    QCOMPARE(mRig->input(a, 1).mKey, mRig->mBlind);
    QCOMPARE(mRig->output(c).mKey == mRig->mLight, keepOutputs);
    QVERIFY(FB_Connections::isShared(mRig->output(c), mRig->input(a)));
    goBack();
  }

  void pastingIntoAnotherProject() {
    QVERIFY(bind(session(), in(mA), mRig->mLight) && bind(session(), in(mA, 1), mRig->mBlind));
    QVERIFY(connectPins(session(), out(mB), in(mC)) && setTitle(session(), mB, QStringLiteral("x\x02y\n")));
    QCOMPARE(mRig->block(mB).mTitle, QStringLiteral("xy"));
    const QByteArray packed = FB_Clipboard::pack(session(), {mA, mC});
    const Logic_Rig* const from = mRig.get();
    Logic_Rig other;
    other.mSession.database().mAddresses.take(other.mBlind);
    QVERIFY(FB_Clipboard::isPacked(packed) && from->mLight != other.mLight);
    const auto made = FB_Clipboard::paste(other.mSession, other.mPage, packed, {}, true);
    QCOMPARE(other.input(made.mBlocks.at(0)).mKey, other.mLight);
    QCOMPARE(other.input(made.mBlocks.at(0), 1).mKind, Kind::None);
    QVERIFY2(made.mNote.startsWith(QStringLiteral("Eine Gruppenadresse")), qPrintable(made.mNote));
    QVERIFY2(other.input(made.mBlocks.at(1)).mKind == Kind::None, "the variable is of the other project");
  }

  void aCountIsLimitedWhereItIsEdited_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("above the range") << 52 << "40"
                                     << "2";
    QTest::newRow("in the range") << 50 << "40"
                                  << "40";
    QTest::newRow("too few") << 50 << "1"
                             << "2";
  }
  void aCountIsLimitedWhereItIsEdited() {
    QFETCH(int, type);
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    const QUuid block = mRig->add(type);
    QCOMPARE(bool(setParameter(session(), block, 0, typed)), typed == kept || type == 50);
    QCOMPARE(mRig->block(block).mParams.at(0), kept);
    QCOMPARE(int(mRig->block(block).mInputs.size()), kept.toInt());
  }

  void aSmallerCountTellsWhatItTakesAndGivesItBack() {
    QVERIFY(setParameter(session(), mA, 0, QStringLiteral("4")));
    QVERIFY(bind(session(), in(mA), mRig->mLight) && bind(session(), in(mA, 3), mRig->mBlind));
    mRig->history().commit();
    QCOMPARE(lostBindings(session(), {mA}, 0, QStringLiteral("4")), QStringList());
    QCOMPARE(lostBindings(session(), {mA}, 0, QStringLiteral("3")), QStringList{"Eingang 4"});
    QCOMPARE(lostBindings(session(), {mA, mB}, 0, QStringLiteral("x")), QStringList{"Und: Eingang 4"});
    QVERIFY(setParameter(session(), mA, 0, QStringLiteral("3")));
    QCOMPARE(mRig->input(mA).mName, QStringLiteral("Licht"));
    mRig->history().commit();
    QVERIFY(mRig->history().undo());
    QCOMPARE(mRig->input(mA, 3).mName, QStringLiteral("Jalousie"));
    QVERIFY(mRig->history().redo());
    goBack();
  }

  void aStepTellsWhatItChanged() {
    QVERIFY(move(session(), {{mA, {1, 2}}, {mB, {3, 4}}}));
    mRig->history().commit();
    QSet<QUuid> told;
    QUuid page;
    connect(&mRig->history(), &History::stepApplied, this, [&](const std::vector<History::Applied>& records) {
      for (const History::Applied& record : records) {
        told.insert(record.mId);
        page = record.mOwner == &session().blockUndo() ? record.mPage : QUuid();
      }
    });
    QVERIFY(mRig->history().undo());
    QCOMPARE(told, (QSet<QUuid>{mA, mB}));
    QCOMPARE(page, mRig->mPage);
    told.clear();
    while (mRig->history().undo()) {
    }
    QVERIFY2(told.contains(mC) && page == mRig->mPage, "of blocks that are gone, too");
  }

private:
  Project_Session& session() { return mRig->mSession; }
  static FB_Pin_Ref in(const QUuid& block, int index = 0) { return {block, FB_Side::Input, index}; }
  static FB_Pin_Ref out(const QUuid& block) { return {block, FB_Side::Output, 0}; }
  QUuid onOtherPage() { return mRig->add(Logic_Rig::cAnd, {}, mRig->mOther); }

  /// As the designer would; no step, so the start knows it too.
  void show(const DB_Address_Binding& binding) {
    auto element = std::make_unique<DB_Widget>();
    DB_Page_List<DB_Widget_Page>& pages = session().database().mWidgetPages;
    element->mPageGuid = pages.pages().at(0).mGuid;
    const QUuid guid = pages.appendChild(std::move(element))->mGuid;
    mStart = QByteArray();
    pages.changeChild(guid, [&](DB_Widget& record) { record.mAddresses.push_back(binding); });
  }

  /// Everything, to the start, forward and back again.
  void goBack() {
    History& history = mRig->history();
    history.commit();
    const QByteArray end = mRig->dump();
    for (int round = 0; round < 2; ++round) {
      while (history.position() > 1) {
        QVERIFY(history.undo());
      }
      QVERIFY(mStart.isEmpty() || mRig->dump() == mStart);
      while (history.redo()) {
      }
      QCOMPARE(mRig->dump(), end);
    }
  }

  std::unique_ptr<Logic_Rig> mRig;
  QUuid mA;
  QUuid mB;
  QUuid mC;
  QByteArray mStart;
};

QTEST_GUILESS_MAIN(FB_Page_Edits_Test)
#include "FB_Page_Edits_Test.moc"
