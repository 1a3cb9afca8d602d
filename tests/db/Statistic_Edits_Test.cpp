#include "db/Statistic_Edits.h"
#include "db/Statistic_Words.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

using namespace Qt::StringLiterals;

using Recording = Statistic_Edits::Recording;

Q_DECLARE_METATYPE(std::function<Edit_Result(Project_Session&, const QUuid&)>)

class Statistic_Edits_Test : public QObject {
  Q_OBJECT

  using Edit = std::function<Edit_Result(Project_Session&, const QUuid& address)>;

  static Recording recording(const QString& name, const QUuid& address) {
    Recording recording;
    recording.mName = name;
    recording.mAddressKey = address;
    return recording;
  }

  /// Recordings A, B, C of one address, on a project of the controllers 1 and 4.
  static QUuid fill(Session_Rig& rig) {
    const QUuid address = rig.addAddress({1, 2, 3}, u"Licht"_s)->mKey;
    ProjectDatabase& database = rig.mSession.database();
    database.mStatistic.mRecordings = {recording(u"A"_s, address), recording(u"B"_s, address),
                                       recording(u"C"_s, address)};
    database.mProject.mControllers = {{1, u"Keller"_s, u"a"_s, true}, {4, u"Dach"_s, u"b"_s, false}};
    return address;
  }

  static QString namesOf(Session_Rig& rig) {
    QString names;
    for (const Recording& one : rig.mSession.database().mStatistic.mRecordings) {
      names += one.mName;
    }
    return names;
  }

private slots:
  void edits_data() {
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("names"); // those of before: refused
    const auto row = [](const char* name, const QString& names, Edit edit) { QTest::newRow(name) << edit << names; };
    const auto with = [](auto set) {
      return [set](Project_Session& session, const QUuid& address) {
        Recording added = recording(u"D"_s, address);
        set(added);
        return Statistic_Edits::add(session, added);
      };
    };
    row("add", u"ABCD"_s, with([](Recording&) {}));
    row("without a name", u"ABC1/2/3"_s, with([](Recording& r) { r.mName = u" \n"_s; }));
    row("name of two lines", u"ABCD E"_s, with([](Recording& r) { r.mName = u"D\nE"_s; }));
    row("on a controller of the list", u"ABCD"_s, with([](Recording& r) { r.mControllerIndex = 4; }));
    row("values of another trigger", u"ABCD"_s, with([](Recording& r) {
          r.mTriggerType = Recording::cOnTelegram;
          r.mTriggerValue = -1;
          r.mTriggerTimeSecs = -1;
        }));
    row("whole minutes", u"ABCD"_s, with([](Recording& r) {
          r.mTriggerType = Recording::cPeriodically;
          r.mTriggerTimeType = 1;
          r.mTriggerTimeSecs = 120;
        }));
    row("no whole minutes", u"ABC"_s, with([](Recording& r) {
          r.mTriggerType = Recording::cPeriodically;
          r.mTriggerTimeType = 1;
          r.mTriggerTimeSecs = 90;
        }));
    row("never", u"ABC"_s, with([](Recording& r) { r.mTriggerType = Recording::cPeriodically; }));
    row("no such trigger", u"ABC"_s, with([](Recording& r) { r.mTriggerType = 3; }));
    row("threshold below zero", u"ABC"_s, with([](Recording& r) { r.mTriggerValue = -0.5; }));
    row("threshold no number", u"ABC"_s, with([](Recording& r) { r.mTriggerValue = qQNaN(); }));
    row("no such controller", u"ABC"_s, with([](Recording& r) { r.mControllerIndex = 2; }));
    row("no address", u"ABC"_s, with([](Recording& r) { r.mAddressKey = {}; }));
    row("strange address", u"ABC"_s, with([](Recording& r) { r.mAddressKey = QUuid::createUuid(); }));
    row("long name", u"ABC"_s, with([](Recording& r) { r.mName = QString(256, u'x'); }));
    row("group", u"ABC"_s, with([](Recording& r) { r.mTab = 100; }));
    row("change", u"ADC"_s, [](auto& s, auto& a) { return Statistic_Edits::change(s, 1, recording(u"D"_s, a)); });
    row("change none", u"ABC"_s, [](auto& s, auto& a) { return Statistic_Edits::change(s, 3, recording(u"D"_s, a)); });
    row("change to a strange address", u"ABC"_s,
        [](auto& s, auto&) { return Statistic_Edits::change(s, 0, recording(u"A"_s, QUuid::createUuid())); });
    row("remove", u"B"_s, [](auto& s, auto&) { return Statistic_Edits::remove(s, {2, 0, 2}); });
    row("remove none", u"ABC"_s, [](auto& s, auto&) { return Statistic_Edits::remove(s, {0, -1}); });
    row("down", u"BCA"_s, [](auto& s, auto&) { return Statistic_Edits::move(s, 0, 2); });
    row("up", u"ACB"_s, [](auto& s, auto&) { return Statistic_Edits::move(s, 2, 1); });
    row("out of the list", u"ABC"_s, [](auto& s, auto&) { return Statistic_Edits::move(s, 0, 3); });
    row("all", u"X"_s, [](auto& s, auto& a) { return Statistic_Edits::setRecordings(s, {recording(u"X"_s, a)}); });
    row("all but one", u"ABC"_s, [](auto& s, auto& a) {
      return Statistic_Edits::setRecordings(s, {recording(u"X"_s, a), recording(u"Y"_s, {})});
    });
    row("operating", u"ABC"_s, [](auto& s, auto&) {
      s.state().setOperatingMode(true);
      return Statistic_Edits::setRecordings(s, {});
    });
  }
  void edits() {
    QFETCH(Edit, edit);
    QFETCH(QString, names);
    Session_Rig rig;
    QVERIFY(rig.create());
    const QUuid address = fill(rig);
    const QByteArray before = Project_Dump::project(rig.mSession.database());
    const bool isDone = names != u"ABC"_s;
    QCOMPARE(bool(edit(rig.mSession, address)), isDone);
    QCOMPARE(namesOf(rig), names);
    QCOMPARE(rig.mSession.history().canUndo(), isDone);
    if (isDone) {
      const QByteArray after = Project_Dump::project(rig.mSession.database());
      rig.mSession.history().undo();
      QVERIFY(!rig.mSession.history().canUndo());
      QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
      rig.mSession.history().redo();
      QCOMPARE(Project_Dump::project(rig.mSession.database()), after);
    } else {
      QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
    }
  }

  /// A file may hold what no edit takes: it may stay while the rest is changed.
  void whatIsWrongAlreadyMayStay() {
    Session_Rig rig;
    QVERIFY(rig.create());
    fill(rig);
    std::vector<Recording>& list = rig.mSession.database().mStatistic.mRecordings;
    list[1].mAddressKey = QUuid::createUuid();
    list[1].mControllerIndex = 9;
    list[1].mTriggerType = 7;
    const auto faults = Statistic_Edits::faultsOf(rig.mSession.database(), list);
    QCOMPARE(faults.size(), size_t(3));
    QCOMPARE(faults.front().mRow, 1);
    Recording changed = list[1];
    changed.mActive = false;
    QVERIFY(Statistic_Edits::change(rig.mSession, 1, changed));
    QVERIFY(!list[1].mActive);
    changed.mControllerIndex = 8;
    QVERIFY(!Statistic_Edits::change(rig.mSession, 1, changed));
  }

  void intervals_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown"); // empty: refused
    const auto row = [](const char* typed, const char* shown) {
      QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(shown);
    };
    row("90", "90 s");
    row(" 15 Min. ", "15 min");
    row("2h", "2 h");
    row("1 Tag", "1 d");
    row("0", "0 s");
    row("", "");
    row("min", "");
    row("1,5 h", "");
    row("-5 s", "");
    row("3 Wochen", "");
    row("999999999 d", "");
  }
  void intervals() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    const auto interval = Statistic_Words::parseInterval(typed);
    Recording recording;
    if (interval) {
      recording.mTriggerTimeType = interval->mUnit;
      recording.mTriggerTimeSecs = interval->mSeconds;
    }
    QCOMPARE(interval ? Statistic_Words::interval(recording) : QString(), shown);
  }
};

QTEST_GUILESS_MAIN(Statistic_Edits_Test)
#include "Statistic_Edits_Test.moc"
