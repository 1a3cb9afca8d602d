#include "base/Datapoint_Types.h"
#include "base/Decimal_Text.h"
#include "db/Address_Import.h"
#include "db/Address_Import_Choices.h"
#include "db/Ets_Export.h"
#include "db/Ets_Reader.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using Connected = Address_Import::Connected;
using Field = Address_Import_Row::Field;
using Format = Ets_Groups::Format;
using Kind = Address_Import_Row::Kind;
using Options = Address_Import::Options;

namespace {

Ets_Groups::Address entry(const QString& address, const QString& name, const QString& type = {}, bool isGuess = false) {
  Ets_Groups::Address result;
  result.mAddress = Group_Address::parse(address).value();
  result.mText = address;
  result.mName = name;
  result.mDpt = Datapoint_Id::parse(type).value_or(Datapoint_Id());
  result.mDptGuessed = isGuess;
  result.mDpts = result.mDpt.toEtsText();
  return result;
}

Ets_Groups::Range mainRange(int main, const QString& name) {
  return {name, {}, main * 2048, main * 2048 + 2047, 0};
}

Ets_Groups::Range middleRange(int main, int middle, const QString& name) {
  const int start = main * 2048 + middle * 256;
  return {name, {}, start, start + 255, 1};
}

/// "N+ 1/2/3", one line a row: the kind's letter, a plus for a tick, the address, the fields that differ.
QString summary(const Address_Import_Plan& plan) {
  QStringList lines;
  for (const Address_Import_Row& row : plan.rows()) {
    QString line = u"NCVK"_s.at(static_cast<int>(row.mKind)) + (row.mTicked ? u"+ "_s : u"- "_s) + row.addressText();
    for (const auto& [field, letter] : {std::pair(Field::Name, u"n"_s), std::pair(Field::Description, u"d"_s),
                                        std::pair(Field::Type, u"t"_s), std::pair(Field::Central, u"c"_s)}) {
      line += row.mDiffering.testFlag(field) ? u" "_s + letter : QString();
    }
    lines.append(line);
  }
  return lines.join(u", ");
}

/// A project with 1/1/1 "Licht" 1.001 (bound to two pins), 1/1/2 "Wert" 5.001, 1/1/3 "Temp" 9.001, 1/1/4 without type,
/// in the groups "Haus" and "EG".
struct Import_Rig : Session_Rig {
  Import_Rig() {
    QVERIFY(create());
    mBound = add({1, 1, 1}, u"Licht"_s, {1, 1})->mKey;
    add({1, 1, 2}, u"Wert"_s, {5, 1})->mDescription = u"Keller"_s;
    add({1, 1, 3}, u"Temp"_s, {9, 1})->mReadAtStart = true;
    add({1, 1, 4}, u"offen"_s, {});
    tree().mainGroup(1)->mName = u"Haus"_s;
    tree().middleGroup(1, 1)->mName = u"EG"_s;
    auto block = std::make_unique<DB_FB_Control>();
    block->mPageGuid = mSession.database().mFbPages.pages().at(0).mGuid;
    block->mInputs.resize(1);
    block->mInputs[0].mBinding.bindTo(*tree().subGroup(mBound), {1, 1, 1});
    block->mDisableAddress = block->mInputs[0].mBinding;
    mSession.database().mFbPages.appendChild(std::move(block));
    mSession.history().clear();
  }

  Address_Tree& tree() { return mSession.database().mAddresses; }
  DB_Address_Sub_Group* add(const Group_Address& address, const QString& name, const Datapoint_Id& type) {
    DB_Address_Sub_Group* const group = addAddress(address, name);
    group->mDpt = type;
    return group;
  }
  Address_Import_Plan compare(const Ets_Groups& groups, const Options& options = {}) {
    return Address_Import::compare(mSession.database(), groups, options);
  }
  QByteArray dump() { return Project_Dump::project(mSession.database()); }

  QUuid mBound;
};

/// The file that says what the project of the rig holds.
Ets_Groups same() {
  Ets_Groups groups;
  groups.mAddresses = {entry(u"1/1/1"_s, u"Licht"_s, u"1.001"_s), entry(u"1/1/2"_s, u" Wert\n"_s, u"5.001"_s),
                       entry(u"1/1/3"_s, u"Temp"_s, u"9.001"_s), entry(u"1/1/4"_s, u"offen"_s)};
  groups.mRanges = {mainRange(1, u"Haus"_s), middleRange(1, 1, u"EG"_s)};
  return groups;
}

} // namespace

class Address_Import_Test : public QObject {
  Q_OBJECT

private slots:
  void rows_data() {
    QTest::addColumn<Ets_Groups>("groups");
    QTest::addColumn<Options>("options");
    QTest::addColumn<QString>("rows");
    const auto row = [](const char* name, const QString& rows, const std::function<void(Ets_Groups&)>& change,
                        const Options& options = {}) {
      Ets_Groups groups = same();
      change(groups);
      QTest::newRow(name) << groups << options << rows;
    };
    const auto first = [](const Ets_Groups::Address& address, Format format = Format::Xml) {
      return [address, format](Ets_Groups& groups) {
        groups.mAddresses[0] = address;
        groups.mFormat = format;
      };
    };
    const auto second = [](const Ets_Groups::Address& address) {
      return [address](Ets_Groups& groups) { groups.mAddresses[1] = address; };
    };
    row("same", {}, [](Ets_Groups&) {});
    row("new with its groups", u"N+ 2/*, N+ 2/0/*, N+ 2/0/1"_s,
        [](Ets_Groups& groups) { groups.mAddresses.push_back(entry(u"2/1"_s, u"x"_s)); });
    row("renamed", u"C+ 1/1/1 n"_s, first(entry(u"1/1/1"_s, u"Lampe"_s, u"1.001"_s)));
    row("renamed, kept", {}, first(entry(u"1/1/1"_s, u"Lampe"_s, u"1.001"_s)), {.mKeepComment = true});
    row("renamed, new only", {}, first(entry(u"1/1/1"_s, u"Lampe"_s, u"1.001"_s)), {.mImportNewOnly = true});
    row("no type erases none", {}, first(entry(u"1/1/1"_s, u"Licht"_s)));
    row("type of the same size", u"C+ 1/1/1 t"_s, first(entry(u"1/1/1"_s, u"Licht"_s, u"1.008"_s)));
    row("guess of the same size", {}, first(entry(u"1/1/1"_s, u"Licht"_s, u"1.008"_s, true)));
    row("other size, used", u"K- 1/1/1 t"_s, first(entry(u"1/1/1"_s, u"Licht"_s, u"9.001"_s)));
    row("guess of other size, used", u"K- 1/1/1 t"_s, first(entry(u"1/1/1"_s, u"Licht"_s, u"5.001"_s, true)));
    row("other size, used, kept", {}, first(entry(u"1/1/1"_s, u"Licht"_s, u"9.001"_s)), {.mKeepType = true});
    row("other size, not used", u"C+ 1/1/2 t"_s, second(entry(u"1/1/2"_s, u"Wert"_s, u"9.001"_s)));
    row("guess where there is none", u"C+ 1/1/4 t"_s,
        [](Ets_Groups& groups) { groups.mAddresses[3] = entry(u"1/1/4"_s, u"offen"_s, u"5.001"_s, true); });
    row("a description that the file does not tell stays", u"C+ 1/1/1 d"_s,
        [](Ets_Groups& groups) { groups.mAddresses[0].mDescription = u"Flur"_s; });
    row("central", u"C+ 1/1/1 c"_s, [](Ets_Groups& groups) { groups.mAddresses[0].mCentral = true; });
    row("security that every address has", {}, [](Ets_Groups& groups) { groups.mAddresses[0].mSecurity = u"Auto"_s; });
    row("security", u"C+ 1/1/1"_s, [](Ets_Groups& groups) { groups.mAddresses[0].mSecurity = u"On"_s; });
    row("vanished", u"V- 1/1/4"_s, [](Ets_Groups& groups) { groups.mAddresses.pop_back(); });
    row("vanished, new only", {}, [](Ets_Groups& groups) { groups.mAddresses.pop_back(); }, {.mImportNewOnly = true});
    row("named again, the same", {}, [](Ets_Groups& groups) { groups.mAddresses.push_back(groups.mAddresses[0]); });
    row("named again, otherwise", u"K- 1/1/1, K- 1/1/1 n"_s,
        [](Ets_Groups& groups) { groups.mAddresses.push_back(entry(u"1/1/1"_s, u"Lampe"_s, u"1.001"_s)); });
    row("new, named twice", u"N- 1/2/*, K- 1/2/0, K- 1/2/0"_s, [](Ets_Groups& groups) {
      groups.mAddresses.push_back(entry(u"1/2/0"_s, u"a"_s));
      groups.mAddresses.push_back(entry(u"1/2/0"_s, u"b"_s));
      groups.mAddresses.push_back(entry(u"1/2/0"_s, u"b"_s));
    });
    row("groups renamed and new", u"C+ 1/* n, C+ 1/1/* n, N+ 1/2/*"_s, [](Ets_Groups& groups) {
      groups.mRanges = {mainRange(1, u"Hof"_s), middleRange(1, 1, u"OG"_s), middleRange(1, 2, u"leer"_s)};
    });
    row("a range around several groups renames none", {}, [](Ets_Groups& groups) {
      groups.mRanges = {{u"alles"_s, {}, 1, 65535, 0}};
    });
    const auto esf = [](const QString& main, const QString& middle) {
      return [main, middle](Ets_Groups& groups) {
        groups.mFormat = Format::Esf;
        groups.mRanges = {mainRange(1, main), middleRange(1, 1, middle)};
      };
    };
    row("ESF names", {}, esf(u"Haus"_s, u"EG"_s));
    row("ESF name of the middle group", u"C+ 1/1/* n"_s, esf(u"Haus.1"_s, u"OG"_s));
    row("ESF name of the main group, longer", u"C+ 1/* n"_s, esf(u"Haus.alt"_s, u"EG"_s));
    row("ESF name of the main group", u"C+ 1/* n"_s, esf(u"Hof"_s, u"EG"_s));
    row("connected alone is no change", {}, [](Ets_Groups& groups) { groups.mAddresses[0].mConnected = {u"1/0/1"_s}; },
        {.mConnected = Connected::Describe});
    auto lamp = entry(u"1/1/1"_s, u"Lampe"_s);
    lamp.mConnected = QStringList{u"1/0/1"_s};
    row("connected with a change", u"C+ 1/1/1 n d"_s, first(lamp, Format::Esf), {.mConnected = Connected::Describe});
  }

  void rows() {
    QFETCH(Ets_Groups, groups);
    QFETCH(Options, options);
    QFETCH(QString, rows);
    Import_Rig rig;
    const Address_Import_Plan plan = rig.compare(groups, options);
    QCOMPARE(summary(plan), rows);
    // What was ticked is the same as the file's afterwards, and everything comes back.
    const QByteArray before = rig.dump();
    Address_Import::Result result;
    QVERIFY(Address_Import::apply(rig.mSession, plan, result));
    const int inGroups = result.mGroupsNew + result.mGroupsChanged;
    QVERIFY(result.mNew + result.mChanged + result.mDeleted + inGroups == plan.tickedCount());
    const QByteArray after = rig.dump();
    QCOMPARE(rig.mSession.history().position(), size_t(plan.tickedCount() > 0));
    QCOMPARE(rig.compare(groups, options).tickedCount(), 0);
    QCOMPARE(rig.tree().subGroup({1, 1, 1})->mKey, rig.mBound);
    QVERIFY(rig.tree().subGroup({1, 1, 3})->mReadAtStart);
    if (plan.tickedCount() > 0) {
      QVERIFY(rig.mSession.history().undo());
      QCOMPARE(rig.dump(), before);
      QVERIFY(rig.mSession.history().redo());
    }
    QCOMPARE(rig.dump(), after);
  }

  void esfNamesWithDotsAreDividedLikeTheProject() {
    Import_Rig rig;
    rig.tree().middleGroup(1, 1)->mName = u"1. OG"_s;
    Ets_Groups groups = same();
    groups.mFormat = Format::Esf;
    groups.mRanges = {mainRange(1, u"Haus.1"_s), middleRange(1, 1, u"OG"_s)};
    QCOMPARE(summary(rig.compare(groups)), QString());
  }

  void notesTellUsesAndRenumbering() {
    Import_Rig rig;
    Ets_Groups groups = same();
    groups.mAddresses[0] = entry(u"1/1/9"_s, u"Licht"_s, u"1.001"_s);
    const Address_Import_Plan plan = rig.compare(groups);
    QCOMPARE(summary(plan), u"V- 1/1/1, N+ 1/1/9"_s);
    QCOMPARE(plan.row(0).mUses, 2);
    QCOMPARE(plan.row(0).mNote, u"In 2 Verknüpfungen verwendet. Heißt wie 1/1/9, das neu ist."_s);
    QCOMPARE(plan.row(1).mNote, u"Heißt wie 1/1/1, das in der Datei fehlt."_s);
  }

  void oneVariantIsTickedAtMost() {
    Import_Rig rig;
    Ets_Groups groups = same();
    groups.mAddresses.push_back(entry(u"1/1/1"_s, u"A"_s));
    groups.mAddresses.push_back(entry(u"1/1/1"_s, u"B"_s));
    Address_Import_Plan plan = rig.compare(groups);
    QCOMPARE(plan.setTicked(1, true), -1);
    QCOMPARE(plan.setTicked(2, true), 1);
    QCOMPARE(plan.tickedCount(), 1);
    Address_Import::Result result;
    QVERIFY(Address_Import::apply(rig.mSession, plan, result));
    QCOMPARE(rig.tree().subGroup(rig.mBound)->mName, u"B"_s);
  }

  void longTextsAreCutAsInEveryEdit() {
    Import_Rig rig;
    const QString smile = QString::fromUcs4(U"\U0001F600", 1);
    const QString longLine = QString(254, u'n') + smile + u"rest"_s;
    Ets_Groups groups = same();
    groups.mRanges[0].mName = longLine;
    groups.mAddresses[0].mName = longLine;
    groups.mAddresses[1].mDescription = u"Keller"_s;
    groups.mAddresses.push_back(entry(u"1/1/9"_s, u"neu"_s));
    groups.mAddresses.back().mDescription = QString(5000, u'd');
    const Address_Import_Plan plan = rig.compare(groups);
    QCOMPARE(summary(plan), u"C+ 1/* n, C+ 1/1/1 n, N+ 1/1/9"_s);
    const QString cutName = u"Der Name wurde auf 255 Zeichen gekürzt."_s;
    QCOMPARE(plan.row(0).mNote, cutName);
    QCOMPARE(plan.row(1).mNote, cutName);
    QCOMPARE(plan.row(1).mIncoming.mName, QString(254, u'n'));
    QVERIFY(plan.row(2).mNote.startsWith(u"Die Beschreibung wurde auf "));
    Address_Import::Result result;
    QVERIFY(Address_Import::apply(rig.mSession, plan, result));
    QCOMPARE(rig.tree().subGroup({1, 1, 9})->mDescription.size(), qsizetype(4000));
    QCOMPARE(summary(rig.compare(groups)), QString());
  }

  void unknownTypeIsNoChangeAndToldOfWhatIsNew() {
    Import_Rig rig;
    Ets_Groups groups = same();
    groups.mFormat = Format::Esf;
    groups.mAddresses[3].mDpts = u"Unknown"_s;
    groups.mAddresses.push_back(entry(u"1/1/9"_s, u"neu"_s));
    groups.mAddresses.back().mDpts = u"Unknown"_s;
    groups.mAddresses.push_back(entry(u"1/1/10"_s, u"ohne"_s));
    const Address_Import_Plan plan = rig.compare(groups);
    QCOMPARE(summary(plan), u"N+ 1/1/9, N+ 1/1/10"_s);
    QCOMPARE(plan.row(0).mNote, u"Der Typ ist in der Datei unbekannt."_s);
    QCOMPARE(plan.row(1).mNote, QString());
  }

  void noTypeIsLostByWayOfEsf() {
    Session_Rig rig;
    QVERIFY(rig.create());
    int number = 1;
    std::vector<Datapoint_Id> types{{25, 1000}, {30, 1010}, {244, 600}, {245, 600}, {999, 1}};
    for (const Datapoint_Type& type : Datapoint_Types::all()) {
      types.push_back(type.mId);
      if (types.back().mSub == 1) {
        types.push_back({type.mId.mMain, Datapoint_Id::cAnySub});
      }
    }
    for (const Datapoint_Id& type : types) {
      rig.addAddress(Group_Address::fromNumber(quint16(number++)), type.toString())->mDpt = type;
    }
    Ets_Write_Result written;
    QVERIFY(Ets_Export::write(rig.mSession, rig.path(u"export.esf"_s), written));
    QFile file(rig.path(u"export.esf"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    Ets_Groups groups;
    QString error;
    QVERIFY2(Ets_Reader::read(file, {}, groups, error), qPrintable(error));
    QCOMPARE(groups.mAddresses.size(), types.size());
    const Address_Import_Plan plan = Address_Import::compare(rig.mSession.database(), groups);
    QVERIFY2(plan.size() == 0,
             qPrintable(plan.size() > 0 ? plan.row(0).mPresent.mName + plan.row(0).mNote : QString()));
  }

  /// The size of these is told by what an ESF says of them alone.
  void guessOfAnotherSize_data() {
    QTest::addColumn<QString>("present");
    QTest::addColumn<QString>("guess");
    QTest::addColumn<QString>("rows");
    QTest::newRow("25.1000, same size") << u"25.1000"_s << u"5.001"_s << QString();
    QTest::newRow("244, same size") << u"244"_s << u"9.001"_s << QString();
    QTest::newRow("244, other size") << u"244"_s << u"1.001"_s << u"C+ 1/1/2 t"_s;
    QTest::newRow("245, of a size without a guess") << u"245.600"_s << u"1.001"_s << QString();
    QTest::newRow("unknown") << u"999.001"_s << u"1.001"_s << QString();
  }

  void guessOfAnotherSize() {
    QFETCH(QString, present);
    QFETCH(QString, guess);
    Import_Rig rig;
    rig.tree().subGroup({1, 1, 2})->mDpt = Datapoint_Id::parse(present).value();
    Ets_Groups groups = same();
    groups.mAddresses[1] = entry(u"1/1/2"_s, u"Wert"_s, guess, true);
    QTEST(summary(rig.compare(groups)), "rows");
  }

  /// Broken exports name one address over and over; the window must not stand still for them.
  void manyVariantsAreCountedNotShown() {
    Import_Rig rig;
    Ets_Groups groups = same();
    for (int i = 0; i < 100'000; ++i) {
      groups.mAddresses.push_back(entry(u"1/1/1"_s, u"L"_s + QString::number(i % 50'000), u"1.001"_s));
      groups.mAddresses.back().mLine = 10 + i;
    }
    QElapsedTimer timer;
    timer.start();
    Address_Import_Plan plan = rig.compare(groups);
    for (qsizetype i = 0; i < plan.size(); ++i) {
      plan.setTicked(i, true);
    }
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(plan.size(), 20);
    QCOMPARE(plan.count(Kind::Conflict), 20);
    QCOMPARE(plan.repeatedCount(), 50'000);
    QCOMPARE(plan.tickedCount(), 1);
    QVERIFY2(plan.row(1).mNote.startsWith(u"Zeile 10, anders in Zeile 0, 11, 12, 13, 14, …."),
             qPrintable(plan.row(1).mNote));
    QVERIFY(!plan.row(18).mNote.contains(u"weitere"));
    QVERIFY2(plan.row(19).mNote.endsWith(u"… und %1 weitere verschiedene Einträge."_s.arg(Decimal_Text::count(49'981))),
             qPrintable(plan.row(19).mNote));
  }

  void ticksSetByHandOutliveTheNextComparison() {
    Import_Rig rig;
    Ets_Groups groups = same();
    groups.mAddresses[1] = entry(u"1/1/2"_s, u"Zahl"_s, u"5.001"_s);
    groups.mAddresses.pop_back();
    for (const QString& name : {u"A"_s, u"B"_s}) {
      groups.mAddresses.push_back(entry(u"1/1/1"_s, name));
      groups.mAddresses.back().mLine = int(groups.mAddresses.size());
    }
    groups.mAddresses.push_back(entry(u"1/1/9"_s, u"neu"_s));
    Address_Import_Plan plan = rig.compare(groups);
    QCOMPARE(summary(plan), u"K- 1/1/1, K- 1/1/1 n, K- 1/1/1 n, C+ 1/1/2 n, V- 1/1/4, N+ 1/1/9"_s);
    plan.setTicked(2, true);
    plan.setTicked(3, false);
    plan.setTicked(4, true);
    const QString ticked = summary(plan);
    Address_Import_Choices choices;
    choices.note(plan);
    plan = rig.compare(groups, {.mImportNewOnly = true});
    choices.applyTo(plan);
    QCOMPARE(summary(plan), u"N+ 1/1/9"_s);
    plan.setTicked(0, false);
    choices.note(plan);
    plan = rig.compare(groups);
    choices.applyTo(plan);
    QCOMPARE(summary(plan), QString(ticked).replace(u"N+"_s, u"N-"_s));
    // What is set back by hand is no choice any more.
    plan.setTicked(5, true);
    choices.note(plan);
    plan = rig.compare(groups);
    choices.applyTo(plan);
    QCOMPARE(summary(plan), ticked);
  }

  void whatIsWrittenOfANewAddress() {
    Import_Rig rig;
    Ets_Groups groups = same();
    Ets_Groups::Address far = entry(u"5/515"_s, u"flach"_s, u"5.001"_s, true);
    far.mStyle = Ets_Groups::Style::TwoLevel;
    far.mRangePath = u"Halle / Tor"_s;
    far.mDescription = u"alt"_s;
    far.mConnected = {u"1/1/1"_s, u"1/1/2"_s};
    groups.mAddresses[1].mDescription = u"Keller"_s;
    groups.mAddresses.push_back(far);
    Address_Import_Plan plan = rig.compare(groups, {.mConnected = Connected::Describe});
    plan.setTicked(0, false); // the main group is made all the same
    Address_Import::Result result;
    QVERIFY(Address_Import::apply(rig.mSession, plan, result));
    QCOMPARE(result.toString(), u"1 Adresse neu, 2 Gruppen neu"_s);
    const DB_Address_Sub_Group* const made = rig.tree().subGroup({5, 2, 3});
    QVERIFY(made && made->mDptGuessed && made->mWrite && made->mActive);
    QCOMPARE(made->mDescription, u"alt\nVerbunden mit: 1/1/1, 1/1/2"_s);
    QCOMPARE(made->mOrigin, u"5/515, Halle / Tor"_s);
    // A second import with other words puts the line anew.
    groups.mAddresses.back().mDescription = u"neu"_s;
    groups.mAddresses[0].mName = u"Lampe"_s;
    groups.mRanges[0].mName = u"Hof"_s;
    QVERIFY(Address_Import::apply(rig.mSession, rig.compare(groups, {.mConnected = Connected::Describe}), result));
    QCOMPARE(result.toString(), u"2 Adressen geändert, 1 Gruppe geändert"_s);
    QCOMPARE(made->mDescription, u"neu\nVerbunden mit: 1/1/1, 1/1/2"_s);
  }

  void deletingKeepsBindings() {
    Import_Rig rig;
    Ets_Groups groups = same();
    groups.mAddresses.erase(groups.mAddresses.begin());
    Address_Import_Plan plan = rig.compare(groups);
    plan.setTicked(0, true);
    const QByteArray before = rig.dump();
    Address_Import::Result result;
    QVERIFY(Address_Import::apply(rig.mSession, plan, result));
    QVERIFY(!rig.tree().subGroup(rig.mBound));
    QCOMPARE(rig.mSession.database().mFbPages.pages().at(0).mChildren.at(0).mInputs[0].mBinding.mKey, rig.mBound);
    QVERIFY(rig.mSession.history().undo());
    QCOMPARE(rig.dump(), before);
  }

  /// Real exports lie beside the project on a developer's machine; they are never copied into it.
  void realExportsAreTheSameTheSecondTime() {
    const QDir folder(QFileInfo(QFINDTESTDATA("Address_Import_Test.cpp")).path() + u"/../../../shared/data/ets"_s);
    const QStringList files = folder.entryList({u"*.xml"_s, u"*.esf"_s, u"*.csv"_s}, QDir::Files);
    if (files.isEmpty()) {
      QSKIP("no real exports on this machine");
    }
    for (const QString& name : files) {
      QFile file(folder.filePath(name));
      QVERIFY(file.open(QIODevice::ReadOnly));
      Ets_Groups groups;
      QString error;
      QVERIFY2(Ets_Reader::read(file, {}, groups, error), qPrintable(name + u": "_s + error));
      Session_Rig rig;
      QVERIFY(rig.create());
      Address_Import::Result result;
      const Address_Import_Plan first = Address_Import::compare(rig.mSession.database(), groups);
      QVERIFY(Address_Import::apply(rig.mSession, first, result));
      const Address_Tree& tree = rig.mSession.database().mAddresses;
      const qsizetype conflicts = first.count(Kind::Conflict);
      QVERIFY2(tree.subGroupCount() > 0 || conflicts > 0, qPrintable(name));
      const qsizetype named = tree.subGroupCount() + conflicts + first.repeatedCount();
      QCOMPARE(named, qsizetype(groups.mAddresses.size()));
      const Address_Import_Plan second = Address_Import::compare(rig.mSession.database(), groups);
      QVERIFY2(second.size() == conflicts, qPrintable(name + u": "_s + summary(second)));
      QVERIFY(second.unchangedCount() >= tree.subGroupCount());
    }
  }

  void whatChangedSinceTheComparisonIsSkipped() {
    Import_Rig rig;
    Ets_Groups groups = same();
    groups.mAddresses[0].mName = u"Lampe"_s;
    groups.mAddresses[1].mName = u"Zahl"_s;
    groups.mAddresses.pop_back();
    groups.mAddresses.push_back(entry(u"1/1/7"_s, u"neu"_s));
    Address_Import_Plan plan = rig.compare(groups);
    QCOMPARE(summary(plan), u"C+ 1/1/1 n, C+ 1/1/2 n, V- 1/1/4, N+ 1/1/7"_s);
    plan.setTicked(2, true);
    rig.tree().take(rig.tree().subGroup({1, 1, 1})->mKey);
    rig.tree().subGroup({1, 1, 2})->mName = u"von Hand"_s;
    rig.tree().take(rig.tree().subGroup({1, 1, 4})->mKey);
    rig.add({1, 1, 7}, u"schon da"_s, {});
    const QByteArray before = rig.dump();
    Address_Import::Result result;
    QVERIFY(Address_Import::apply(rig.mSession, plan, result));
    QCOMPARE(result.mSkipped, 4);
    QCOMPARE(rig.dump(), before);
    QCOMPARE(rig.mSession.history().position(), size_t(0));
    rig.mState.setOperatingMode(true);
    QCOMPARE(Address_Import::apply(rig.mSession, plan, result).mError, Session_State::operatingModeRefusal());
  }
};

QTEST_GUILESS_MAIN(Address_Import_Test)
#include "Address_Import_Test.moc"
