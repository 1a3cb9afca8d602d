#include "fb/model/FB_Binding_Search.h"
#include "fb/model/FB_Pin_Types.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variable_Generation.h"
#include "tests/fb/Logic_Rig.h"

using namespace FB_Page_Edits;
using namespace FB_Variable_Generation;
using Kind = DB_Address_Binding::Kind;
using Meaning = FB_Binding_Search::Meaning::Kind;

/// Which addresses are made and bound for pins, what stays connected, what is refused; everything comes back with one
/// undo. What a typed text means, and which types fit.
class FB_Variable_Generation_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Logic_Rig>();
    pages().changePage(mRig->mPage, [](DB_FB_Page& page) { page.mCaption = QStringLiteral("Keller"); });
    for (QUuid* const block : {&mA, &mB, &mC}) {
      *block = mRig->add();
    }
    mRig->history().commit();
  }

  void generating_data() {
    QTest::addColumn<std::function<void()>>("prepare");
    QTest::addColumn<Conflict>("conflict");
    QTest::addColumn<QStringList>("expected"); ///< of the pins of A, B and C
    QTest::addColumn<int>("blocks");
    const auto row = [](const char* name, const std::function<void()>& prepare, Conflict conflict,
                        const QString& expected,
                        int blocks) { QTest::newRow(name) << prepare << conflict << expected.split(u' ') << blocks; };
    const auto light = [this] { QVERIFY(bind(session(), in(mA), mRig->mLight)); };
    const auto wire = [this] { QVERIFY(connectPins(session(), out(mA), in(mB))); };
    const QString fresh = QStringLiteral("2/0/0 2/0/1 2/0/2 2/1/0 2/1/1 2/1/2 2/2/0 2/2/1 2/2/2");
    row(
        "nothing bound", [] {}, Conflict::Fail, fresh, 3);
    row("append keeps", light, Conflict::Append,
        QStringLiteral("1/2/3 2/0/0 2/0/1 2/1/0 2/1/1 2/1/2 2/2/0 2/2/1 2/2/2"), 3);
    row("overwrite replaces", light, Conflict::Overwrite, fresh, 3);
    row("append keeps a variable", wire, Conflict::Append,
        QStringLiteral("2/0/0 2/0/1 V V 2/1/0 2/1/1 2/2/0 2/2/1 2/2/2"), 3);
    row("the address stands in for a variable", wire, Conflict::Overwrite,
        QStringLiteral("2/0/0 2/0/1 2/0/2 2/0/2 2/1/0 2/1/1 2/2/0 2/2/1 2/2/2"), 3);
    row(
        "an input led by an address follows",
        [=, this] {
          QVERIFY(bind(session(), out(mA), mRig->mLight));
          wire();
        },
        Conflict::Overwrite, QStringLiteral("2/0/0 2/0/1 2/0/2 2/0/2 2/1/0 2/1/1 2/2/0 2/2/1 2/2/2"), 3);
    row(
        "an input keeps the address that leads to it",
        [=, this] {
          QVERIFY(bind(session(), out(mRig->add(Logic_Rig::cAnd, {}, mRig->mOther)), mRig->mLight));
          light();
        },
        Conflict::Overwrite, QStringLiteral("1/2/3 2/0/0 2/0/1 2/1/0 2/1/1 2/1/2 2/2/0 2/2/1 2/2/2"), 3);
    row(
        "all bound already", [this] { QVERIFY(generate(session(), requests(Conflict::Fail))); }, Conflict::Append,
        fresh, 0);
    row(
        "its own addresses again", [this] { QVERIFY(generate(session(), requests(Conflict::Fail))); },
        Conflict::Overwrite, fresh, 3);
  }

  void generating() {
    QFETCH(std::function<void()>, prepare);
    QFETCH(Conflict, conflict);
    QFETCH(QStringList, expected);
    QFETCH(int, blocks);
    prepare();
    mRig->history().commit();
    const QByteArray before = mRig->dump();
    const FB_Variable_Generation::Result result = generate(session(), requests(conflict));
    QVERIFY2(result, qPrintable(result.mError));
    QCOMPARE(bindings(), expected);
    QCOMPARE(result.mBlocks, blocks);
    const QByteArray after = mRig->dump();
    for (int round = 0; round < 2 && after != before; ++round) {
      QVERIFY(mRig->history().undo());
      QCOMPARE(mRig->dump(), before);
      QVERIFY(mRig->history().redo());
      QCOMPARE(mRig->dump(), after);
    }
  }

  void groupsAreNamedAfterPageBlockAndPin() {
    QVERIFY(setTitle(session(), mB, QStringLiteral("Lüfter")));
    QCOMPARE(generate(session(), requests(Conflict::Fail)).mAddresses, 9);
    const Address_Tree& tree = session().database().mAddresses;
    QCOMPARE(tree.mainGroup(2)->mName, QStringLiteral("Keller"));
    QCOMPARE(tree.middleGroup(2, 0)->mName, QStringLiteral("Und"));
    QCOMPARE(tree.middleGroup(2, 1)->mName, QStringLiteral("Lüfter"));
    QCOMPARE(tree.middleGroup(2, 2)->mName, QStringLiteral("Und (2)"));
    QCOMPARE(tree.subGroup({2, 0, 1})->mName, QStringLiteral("Und Eingang 2"));
    QVERIFY2(!tree.subGroup({2, 0, 2})->mDpt.isNone(), "a type");
  }

  void refused_data() {
    QTest::addColumn<std::function<void()>>("prepare");
    QTest::addColumn<QString>("part");
    QTest::newRow("a bound pin") << std::function<void()>([this] { bind(session(), in(mC), mRig->mLight); })
                                 << QStringLiteral("Variable bereits vorhanden");
    QTest::newRow("an address of that name") << std::function<void()>([this] {
      mRig->addAddress({5, 0, 0}, QStringLiteral("Und Ausgang"));
      Address_Tree& tree = session().database().mAddresses;
      tree.change(tree.mainGroup(5)->mKey, [](DB_Data_Base& record) {
        static_cast<DB_Address_MainGroup&>(record).mName = QStringLiteral("Keller");
      });
      tree.change(tree.middleGroup(5, 0)->mKey, [](DB_Data_Base& record) {
        static_cast<DB_Address_Middle_Group&>(record).mName = QStringLiteral("Und");
      });
    }) << QStringLiteral("Variable bereits vorhanden");
    QTest::newRow("no main group is free") << std::function<void()>([this] {
      for (int main = 0; main <= Group_Address::cMainMax; ++main) {
        mRig->addAddress({main, 1, 1}, QStringLiteral("voll"));
      }
    }) << QStringLiteral("kein Platz");
    QTest::newRow("a block that is gone")
        << std::function<void()>([this] { remove(session(), {mC}); }) << QStringLiteral("nicht mehr");
    QTest::newRow("operating mode") << std::function<void()>([this] { mRig->mState.setOperatingMode(true); })
                                    << Session_State::operatingModeRefusal();
  }

  void refused() {
    QFETCH(std::function<void()>, prepare);
    QFETCH(QString, part);
    prepare();
    mRig->history().commit();
    const QByteArray before = mRig->dump();
    const FB_Variable_Generation::Result result = generate(session(), requests(Conflict::Fail));
    QVERIFY2(result.mError.contains(part), qPrintable(result.mError));
    QCOMPARE(mRig->dump(), before);
  }

  void manyBlocksAndPins() {
    const QUuid wide = mRig->add();
    pages().changeChild(wide, [](DB_FB_Control& block) { // as a file may hold it
      block.mParams[0] = QStringLiteral("600");
      FB_Pins::rebuild(block);
    });
    QList<Request> all{{wide, Conflict::Fail}, {mRig->add(FB_Types::cComment), Conflict::Fail}};
    for (int i = 0; i < 30; ++i) {
      all.append({mRig->add(), Conflict::Fail});
    }
    const FB_Variable_Generation::Result result = generate(session(), all);
    QVERIFY2(result, qPrintable(result.mError));
    QCOMPARE(result.mBlocks, 31);
    QCOMPARE(result.mAddresses, 601 + 30 * 3);
    const Address_Tree& tree = session().database().mAddresses;
    QCOMPARE(tree.middleGroup(2, 2)->mName, QStringLiteral("Und (3)"));
    QCOMPARE(tree.mainGroup(3)->mName, QStringLiteral("Keller (2)"));
  }

  void typing_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<Meaning>("meaning");
    const auto row = [](const char* text, Meaning meaning) {
      QTest::newRow(text) << QString::fromUtf8(text) << meaning;
    };
    row(" ", Meaning::Nothing);
    row("1/2/3", Meaning::Address);
    row("1.2.3", Meaning::Address);
    row("1/2/3 was auch immer", Meaning::Address);
    row("1/515", Meaning::Address);
    row("1/2/9", Meaning::Refused);
    row("99/1/1", Meaning::Refused);
    row("Jalousie", Meaning::Address);
    row("doppelt", Meaning::Refused);
    row("Und Ausgang", Meaning::Variable);
    row("12 Volt", Meaning::New_Variable);
  }

  void typing() {
    QFETCH(QString, text);
    QFETCH(Meaning, meaning);
    QVERIFY(connectPins(session(), out(mA), in(mB)));
    mRig->addAddress({1, 2, 5}, QStringLiteral("doppelt"));
    mRig->addAddress({1, 2, 6}, QStringLiteral("doppelt"));
    const Address_Usage usage(session().database());
    const FB_Binding_Search search(session().database(), usage);
    const FB_Binding_Search::Meaning found = search.meaning(text);
    QCOMPARE(found.mKind, meaning);
    QCOMPARE(found.mText.isEmpty(), meaning != Meaning::Refused && meaning != Meaning::New_Variable);
    if (meaning == Meaning::New_Variable) {
      QVERIFY(bindNewVariable(session(), in(mC), found.mText));
      QVERIFY(!bindNewVariable(session(), in(mC, 1), found.mText));
      QVERIFY(bindVariable(session(), in(mC, 1), mRig->input(mC).mKey));
      QCOMPARE(mRig->input(mC, 1).mName, found.mText);
    }
  }

  void completing_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* text, const QStringList& expected) {
      QTest::newRow(text) << QString(text) << expected;
    };
    row("1/2/4",
        {QStringLiteral("1/2/4 Jalousie"), QStringLiteral("1/2/40 Dach"), QStringLiteral("1/2/41 Licht Dach")});
    row("licht", {QStringLiteral("1/2/3 Licht"), QStringLiteral("1/2/41 Licht Dach"), QStringLiteral("Rücklicht")});
    row("dach li", {QStringLiteral("1/2/41 Licht Dach")});
    row("2 dach", {});
  }

  void completing() {
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    mRig->addAddress({1, 2, 40}, QStringLiteral("Dach"));
    mRig->addAddress({1, 2, 41}, QStringLiteral("Licht Dach"));
    QVERIFY(bindNewVariable(session(), in(mA), QStringLiteral("Rücklicht")));
    const Address_Usage usage(session().database());
    QStringList found;
    for (const auto& hit : FB_Binding_Search(session().database(), usage).find(text, 3)) {
      found.append(hit.mText);
    }
    QCOMPARE(found, expected);
  }

  void fittingTypes_data() {
    QTest::addColumn<QString>("usual");
    QTest::addColumn<QString>("bound");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* usual, const char* bound, const char* reason) {
      QTest::addRow("%s at %s", bound, usual) << QString(usual) << QString(bound) << QString::fromUtf8(reason);
    };
    row("1.001", "1.008", "");
    row("9", "9.001", "");
    row("", "9.001", "");
    row("1.001", "", "");
    row("1.001", "9.001", "Typ 9.001 (2 Byte) statt 1.001 (1 Bit)");
    row("13.001", "14", "Typ 14 (4 Byte) statt 13.001 (4 Byte)");
  }

  void fittingTypes() {
    QFETCH(QString, usual);
    QFETCH(QString, bound);
    QFETCH(QString, reason);
    const auto type = [](const QString& text) { return Datapoint_Id::parse(text).value_or(Datapoint_Id()); };
    QCOMPARE(FB_Pin_Types::mismatch(type(usual), type(bound)), reason);
  }

private:
  Project_Session& session() { return mRig->mSession; }
  DB_Page_List<DB_FB_Page>& pages() { return session().database().mFbPages; }
  static FB_Pin_Ref in(const QUuid& block, int index = 0) { return {block, FB_Side::Input, index}; }
  static FB_Pin_Ref out(const QUuid& block) { return {block, FB_Side::Output, 0}; }
  [[nodiscard]] QList<Request> requests(Conflict conflict) const {
    return {{mA, conflict}, {mB, conflict}, {mC, conflict}};
  }

  QStringList bindings() {
    QStringList texts;
    for (const QUuid& guid : {mA, mB, mC}) {
      for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
        for (const DB_FB_Pin& pin : FB_Pins::pins(mRig->block(guid), side)) {
          const DB_Address_Binding& binding = pin.mBinding;
          texts.append(binding.mKind == Kind::Internal
                           ? QStringLiteral("V")
                           : Group_Address(binding.mMain, binding.mMiddle, binding.mSub).toString());
        }
      }
    }
    return texts;
  }

  std::unique_ptr<Logic_Rig> mRig;
  QUuid mA;
  QUuid mB;
  QUuid mC;
};

QTEST_GUILESS_MAIN(FB_Variable_Generation_Test)
#include "FB_Variable_Generation_Test.moc"
