#include "db/Address_Edits.h"
#include "db/Edit_Scope.h"
#include "db/Project_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QRandomGenerator>
#include <QSignalSpy>

using Grouping = Edit_Scope::Grouping;

/// The history through its first users: names of addresses and pages, the project's settings, groups made and deleted.
class History_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mLight = mRig->addAddress({1, 2, 3}, QStringLiteral("Licht"))->mKey;
    mBlind = mRig->addAddress({1, 2, 4}, QStringLiteral("Jalousie"))->mKey;
    QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
  }

  void everyEditGoesForwardBackAndForward() {
    for (int edit = 0; edit < cEdits; ++edit) {
      const bool wasModified = session().isModified();
      const QByteArray before = dump();
      apply(edit, 7);
      history().commit();
      const QByteArray after = dump();
      QVERIFY(before != after);
      for (int round = 0; round < 3; ++round) {
        QVERIFY(session().isModified());
        QVERIFY(history().undo());
        QCOMPARE(dump(), before);
        QCOMPARE(session().isModified(), wasModified);
        QVERIFY(history().redo());
        QCOMPARE(dump(), after);
      }
    }
  }

  void theEditsOfOneTurnAreOneStep() {
    Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("A"));
    Address_Edits::set(session(), {mBlind}, Address_Edits::Field::Name, QStringLiteral("B"));
    Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("C"));
    QTRY_COMPARE(history().position(), size_t(1));
    QVERIFY(history().undo());
    QCOMPARE(name(mLight), QStringLiteral("Licht"));
    QCOMPARE(name(mBlind), QStringLiteral("Jalousie"));
    QVERIFY(!history().undo());
  }

  void aScopeOfItsOwnClosesAtItsEnd() {
    Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("A"));
    {
      Edit_Scope scope(history(), QStringLiteral("Eigener"), Grouping::Own);
      Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("B"));
      QVERIFY2(!history().undo(), "no undo while a scope is open");
    }
    QCOMPARE(history().position(), size_t(2));
    QCOMPARE(history().undoText(), QStringLiteral("Eigener"));
    QVERIFY(history().undo());
    QCOMPARE(name(mLight), QStringLiteral("A"));
  }

  void aRevertedScopeLeavesNoTrace_data() {
    QTest::addColumn<QList<int>>("edits");
    for (int edit = 0; edit < cEdits; ++edit) {
      QTest::addRow("edit %d", edit) << QList<int>{edit};
    }
    QTest::newRow("all") << QList<int>{0, 1, 2, 3, 4, 5, 6, 7};
    QTest::newRow("again and again") << QList<int>{7, 5, 6, 7, 6, 5, 7, 6};
  }

  void aRevertedScopeLeavesNoTrace() {
    QFETCH(const QList<int>, edits);
    apply(7, 1); // blocks to move and delete
    QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
    apply(0, 2);
    history().commit();
    const QByteArray undone = dump();
    QVERIFY(history().undo());
    const QByteArray before = dump();
    const size_t position = history().position();
    {
      Edit_Scope scope(history(), QStringLiteral("Gescheitert"), Grouping::Own);
      for (int number = 0; number < edits.size(); ++number) {
        apply(edits.at(number), 10 + number);
      }
      QVERIFY(dump() != before);
      scope.revert();
      QCOMPARE(dump(), before);
    }
    QVERIFY(!session().isModified());
    QCOMPARE(history().position(), position);
    QVERIFY2(history().redo(), "what was undone can still be done again");
    QCOMPARE(dump(), undone);
  }

  void whatFollowsARevertIsAStep() {
    const QByteArray before = dump();
    {
      Edit_Scope scope(history(), QStringLiteral("Zweiter Versuch"), Grouping::Own);
      apply(5, 1);
      scope.revert();
      apply(0, 2);
    }
    QCOMPARE(history().position(), size_t(1));
    QCOMPARE(name(mLight), QStringLiteral("Neu 2"));
    QVERIFY(history().undo());
    QCOMPARE(dump(), before);
  }

  void editsOfAFieldAreOneStep_data() {
    QTest::addColumn<QString>("edits");
    QTest::addColumn<QStringList>("names");
    // a, b: a letter typed into the field of that token; anything else see `type`.
    const auto row = [](const char* name, const char* edits, const char* names) {
      QTest::newRow(name) << QString::fromLatin1(edits) << QString::fromLatin1(names).split(u' ');
    };
    row("typed on", "aaa", "3 Licht");
    row("another field", "aabb", "4 2 Licht");
    row("back to the first field", "aba", "3 2 1 Licht");
    row("another edit in between", "a-a", "3 2 1 Licht");
    row("saved in between", "aSa", "2 1 Licht");
    row("undone in between", "aaua", "3 Licht");
    row("undone and done again", "aaura", "3 2 Licht");
    row("back to the beginning", "aa0", "Licht");
    row("back to the beginning and on", "aa0a", "4 Licht");
    row("the rest of a longer step", "-aa0a", "5 1 Licht");
    row("nothing changed in between", "a a", "3 Licht");
    row("fields in one turn", "Tabb", "3 1 Licht");
  }

  void editsOfAFieldAreOneStep() {
    QFETCH(QString, edits);
    QFETCH(QStringList, names);
    const bool isOneTurn = edits.startsWith(u'T');
    type(edits.mid(isOneTurn ? 1 : 0), isOneTurn);
    history().commit();
    const QByteArray after = dump();
    const bool wasModified = session().isModified();
    QStringList found{name(mLight)};
    while (history().undo()) {
      found.append(name(mLight));
    }
    QCOMPARE(found, names);
    while (history().redo()) {
    }
    QCOMPARE(dump(), after);
    QCOMPARE(session().isModified(), wasModified);
  }

  void badValuesAndTheOperatingModeAreRefused() {
    const QByteArray before = dump();
    const QUuid page = session().database().mFbPages.pages().at(0).mGuid;
    for (const Edit_Result& result :
         {Project_Edits::renamePage(session(), page, QString()),
          Project_Edits::renamePage(session(), page, QStringLiteral(" \t ")),
          Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QString(256, u'x')),
          Address_Edits::set(session(), {QUuid::createUuid()}, Address_Edits::Field::Name, QStringLiteral("x")),
          Project_Edits::setGeoposition(session(), 90.1, 0), Project_Edits::setGeoposition(session(), 0, qQNaN())}) {
      QVERIFY(!result.mError.isEmpty());
    }
    history().commit();
    QCOMPARE(dump(), before);
    QCOMPARE(history().position(), size_t(0));
    Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("A"));
    history().commit();
    mRig->mState.setOperatingMode(true);
    QVERIFY(!Project_Edits::setGeoposition(session(), 1, 2) && !history().undo());
    QCOMPARE(name(mLight), QStringLiteral("A"));
  }

  void theMarkFollowsTheSavedState() {
    QSignalSpy changed(&history(), &History::changed);
    Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("A"));
    QVERIFY2(session().isModified(), "before the turn ends");
    QVERIFY(!changed.isEmpty());
    QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
    QVERIFY(!session().isModified());
    QVERIFY2(history().canUndo(), "saving keeps the history");
    QVERIFY(history().undo());
    QVERIFY(session().isModified());
    Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QStringLiteral("B"));
    history().commit();
    QVERIFY(history().undo());
    QVERIFY2(session().isModified(), "the saved state can no longer be reached");
    QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
    QVERIFY(session().database().ressourceWriteRaw(QStringLiteral("a.png"), "x"));
    QVERIFY2(session().isModified(), "a resource is outside the history");
  }

  void undoLeavesWhatSavingWrites() {
    Project_Edits::setGeoposition(session(), 10, 20);
    history().commit();
    DB_Project& project = session().database().mProject;
    project.mControllerProjectId = QStringLiteral("von der Steuerung");
    project.mTimestamp = 12345;
    QVERIFY(history().undo());
    QCOMPARE(project.mGeopos_Latitude, 0.0);
    QCOMPARE(project.mControllerProjectId, QStringLiteral("von der Steuerung"));
    QCOMPARE(project.mTimestamp, 12345);
  }

  void onlyTheLatestStepsAreKept() {
    for (size_t i = 0; i < History::cLimit + 10; ++i) {
      Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, QString::number(i));
      history().commit();
    }
    QCOMPARE(history().position(), History::cLimit);
    while (history().undo()) {
    }
    QCOMPARE(name(mLight), QStringLiteral("9"));
    QVERIFY2(session().isModified(), "the saved state is gone");
  }

  void randomEditsComeBackStepByStep() {
    QRandomGenerator random(7);
    std::vector<QByteArray> states{dump()};
    for (int i = 0; i < 200; ++i) {
      const int back = random.bounded(3);
      for (int k = 0; k < back && states.size() > 1; ++k) {
        QVERIFY(history().undo());
        states.pop_back();
        QCOMPARE(dump(), states.back());
      }
      apply(random.bounded(cEdits), random.bounded(50));
      history().commit();
      const QByteArray state = dump();
      if (state != states.back()) {
        states.push_back(state);
      }
    }
  }

private:
  Project_Session& session() { return mRig->mSession; }
  History& history() { return session().history(); }
  QByteArray dump() { return Project_Dump::project(session().database()); }
  QString name(const QUuid& key) { return session().database().mAddresses.subGroup(key)->mName; }

  /// Letters are fields; 0 types the name that was there at first, a blank the present one, "-" is an edit without a
  /// field; S saves, u and r undo and redo.
  void type(const QString& edits, bool isOneTurn) {
    const quint64 tokens[] = {history().newMerge(), history().newMerge()};
    int count = 0;
    for (const QChar edit : edits) {
      if (edit == u'S') {
        QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
      } else if (edit == u'u' || edit == u'r') {
        QVERIFY(edit == u'u' ? history().undo() : history().redo());
      } else {
        ++count;
        const QString typed = edit == u' '   ? name(mLight)
                              : edit == u'0' ? QStringLiteral("Licht")
                                             : QString::number(count);
        const Edit_Scope scope(history(), Edit_Scope::Merge{edit == u'-' ? 0 : tokens[edit == u'b' ? 1 : 0]});
        Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, typed);
      }
      if (!isOneTurn) {
        history().commit();
      }
    }
  }

  /// Renames, a position, groups made and deleted, an order changed; `salt` makes each one another.
  void apply(int edit, int salt) {
    ProjectDatabase& database = session().database();
    const QString text = QStringLiteral("Neu %1").arg(salt);
    const std::function<void()> edits[cEdits] = {
        [&] { Address_Edits::set(session(), {mLight}, Address_Edits::Field::Name, text); },
        [&] {
          Address_Edits::set(session(), {database.mAddresses.mainGroup(1)->mKey}, Address_Edits::Field::Name, text);
        },
        [&] { Project_Edits::renamePage(session(), database.mFbPages.pages().at(0).mGuid, text); },
        [&] { Project_Edits::renamePage(session(), database.mWidgetPages.pages().at(1).mGuid, text); },
        [&] { Project_Edits::setGeoposition(session(), salt, -salt); },
        [&] { makeAndDelete(salt); },
        [&] { renumberAndMove(salt); },
        [&] { blocksComeAndGo(salt); }};
    edits[edit]();
  }

  void makeAndDelete(int salt) {
    Address_Tree& tree = session().database().mAddresses;
    Edit_Scope scope(history(), QStringLiteral("Gruppen"), Grouping::Own);
    Undo_Adapter& undo = session().addressUndo();
    if (tree.subGroup(mBlind)) {
      scope.deleted(undo, mBlind);
      tree.take(mBlind);
    }
    const bool isNewGroup = !tree.middleGroup(1, 5);
    const QUuid made = mRig->addAddress({1, 5, salt}, QStringLiteral("gemacht"))->mKey;
    if (isNewGroup) {
      scope.created(undo, tree.middleGroup(1, 5)->mKey);
    }
    scope.created(undo, made);
    scope.modified(undo, made);
    tree.change(made, [](DB_Data_Base& record) { dynamic_cast<DB_Address_Sub_Group&>(record).mDpt = {9, 1}; });
  }

  void renumberAndMove(int salt) {
    ProjectDatabase& database = session().database();
    Edit_Scope scope(history(), QStringLiteral("Ordnung"), Grouping::Own);
    scope.modified(session().addressUndo(), mLight);
    database.mAddresses.change(
        mLight, [salt](DB_Data_Base& record) { dynamic_cast<DB_Address_Sub_Group&>(record).mNumber = 100 + salt; });
    scope.moved(session().widgetPageUndo(), database.mWidgetPages.pages().at(0).mGuid);
    database.mWidgetPages.movePage(0, 1);
  }

  /// One block goes, another comes, a third goes to the end of its page.
  void blocksComeAndGo(int salt) {
    DB_Page_List<DB_FB_Page>& list = session().database().mFbPages;
    const DB_FB_Page& page = **list.pages().begin();
    Edit_Scope scope(history(), QStringLiteral("Bausteine"), Grouping::Own);
    Undo_Adapter& undo = session().blockUndo();
    if (page.mChildren.size() > 2) {
      const QUuid gone = page.mChildren.at(1).mGuid;
      scope.deleted(undo, gone);
      list.takeChild(gone);
      const QUuid moved = page.mChildren.at(0).mGuid;
      scope.moved(undo, moved);
      undo.move(moved, page.mChildren.size() - 1);
    }
    for (int i = 0; i < 2; ++i) {
      auto block = std::make_unique<DB_FB_Control>();
      block->mPageGuid = page.mGuid;
      block->mTitle = QStringLiteral("Baustein %1").arg(salt);
      scope.created(undo, list.appendChild(std::move(block))->mGuid);
    }
  }

  static constexpr int cEdits = 8;
  std::unique_ptr<Session_Rig> mRig;
  QUuid mLight;
  QUuid mBlind;
};

QTEST_GUILESS_MAIN(History_Test)
#include "History_Test.moc"
