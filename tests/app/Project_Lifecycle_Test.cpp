#include "app/Project_Lifecycle.h"
#include "base/App_Settings.h"
#include "db/DB_Legacy_Import.h"
#include "db/Demo_Project.h"
#include "db/Project_Edits.h"
#include "tests/app/Scripted_Dialogs.h"
#include "tests/db/Session_Rig.h"

#include <QTimer>

namespace {

using namespace Qt::StringLiterals;

const QString cUnsaved = u"Ja/Nein/Abbrechen: Das Projekt \"Haus\" wurde geändert. Änderungen speichern?"_s;
const QString cAlreadyOpen = u"Ja/Nein: Datei bereits geöffnet, soll diese noch einmal geöffnet werden?"_s;
const QString cOlder = u"Ja/Nein: Projekt wurde mit einer älteren Version erstellt, auf neue Version aktualisieren?"_s;
const QString cNewer =
    u"Ja/Nein: Projekt wurde mit einer neueren Version des Studios erstellt! Weiter mit dieser Version bearbeiten?"_s;
const QString cChangedOnDisk = u"Ja/Nein: Die Datei \"DIR/Haus.zpro\" wurde seit dem Öffnen geändert. Überschreiben?"_s;
const QString cOverwriteDamaged = u"Ja/Nein: Das Projekt war beim Öffnen beschädigt. Was nicht lesbar war, ist nach "
                                  u"dem Speichern verloren. Die Datei "
                                  "\"DIR/Anderes.zpro\" überschreiben?"_s;
const QString cReplaceOther = u"Ja/Nein: Die Datei \"DIR/Anderes.zpro\" ist schon vorhanden. Ersetzen?"_s;
const QString cDamage =
    u"Meldung: Das Projekt ist beschädigt. Geöffnet ist, was lesbar war:\n\nVisualisierungsseiten: Die Tabelle fehlt."_s;
const QString cOpenDialog = u"Datei: Datei öffnen, Projekte (*.zpro)"_s;
const QString cSaveDialog = u"Datei: Datei speichern, Projekte (*.zpro)"_s;
const QString cNewDialog = u"Datei: Neues Projekt, Projekte (*.zpro)"_s;
const QStringList cLoading = {u"Öffne Projekt... 10"_s};
const QStringList cBuilding = {u"Öffne Projekt... 40"_s, u"Öffne Projekt... 60"_s, u"Öffne Projekt... 80"_s};
const QStringList cOpening = cLoading + cBuilding;

/// A lifecycle in folders of its own. "Haus.zpro" is the project that is open, "Anderes.zpro" the other one.
struct Lifecycle_Rig : Session_Rig {
  QString other() const { return path(u"Anderes.zpro"_s); }
  bool edit() {
    const QUuid page = mSession.database().mFbPages.pages().at(0).mGuid;
    return bool(Project_Edits::renamePage(mSession, page, u"Umbenannt"_s));
  }
  void makeOther() {
    Project_Session session(mState);
    session.create(other(), {});
  }
  void change(const QString& file, const QByteArray& sql) {
    DB_Sqlite database;
    database.open(file, DB_Sqlite::Mode::Create);
    database.execute(sql);
  }
  void makeOlder(const QString& file) {
    QByteArray sql = "BEGIN;";
    for (const DB_Table_Row& row : DB_Tables::all()) {
      sql += QByteArray("CREATE TABLE `") + row.mPlainName + "`(" + DB_Tables::layout(row.mTable) + ");";
    }
    change(file, sql + "INSERT INTO `project` VALUES('mVersion\x02"
                       "0.000\x03'); COMMIT");
  }
  void makeNewer(const char* version) {
    makeOther();
    ProjectDatabase database;
    database.openProject(other(), false);
    database.mProject.mVersion = QLatin1String(version);
    database.recordWriteAll(false);
  }
  static void write(const QString& file, const QByteArray& bytes) {
    QFile out(file);
    out.open(QIODevice::WriteOnly);
    out.write(bytes);
  }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Scripted_Dialogs mDialogs;
  Project_Lifecycle mLifecycle{mSession, mSettings, mState, mDialogs};
  Project_Session mElsewhere{mState}; ///< another studio
};

using Rig = Lifecycle_Rig;

/// `mAnswers` and `mTranscript` write DIR for the project folder.
struct Row {
  const char* mName;
  std::function<void(Rig&)> mPrepare;
  std::function<bool(Rig&)> mAct;
  QStringList mAnswers;
  QStringList mTranscript;
  bool mIsDone;
  QString mOpenAfter; ///< file name, empty for none
};

void nothing(Rig&) {}
void haus(Rig& rig) {
  rig.create();
}
void edited(Rig& rig) {
  rig.create();
  rig.edit();
}
void both(Rig& rig) {
  rig.makeOther();
  rig.create();
}
void bothEdited(Rig& rig) {
  rig.makeOther();
  edited(rig);
}
void otherElsewhere(Rig& rig) {
  both(rig);
  rig.mElsewhere.open(rig.other());
}
void damaged(Rig& rig) {
  rig.makeOther();
  rig.change(rig.other(), QByteArray("DROP TABLE `") + DB_Tables::name(DB_Table::Visu_Pages) + '`');
}
void damagedIsOpen(Rig& rig) {
  damaged(rig);
  rig.mLifecycle.open(rig.other());
  rig.mDialogs.mTranscript.clear();
}
void changedOnDisk(Rig& rig) {
  edited(rig);
  QFile file(rig.path());
  file.open(QIODevice::Append);
  file.write("x");
}
bool openOther(Rig& rig) {
  return rig.mLifecycle.open(rig.other());
}
bool openChosen(Rig& rig) {
  return rig.mLifecycle.open();
}
bool newProject(Rig& rig) {
  return rig.mLifecycle.newProject();
}
bool save(Rig& rig) {
  return rig.mLifecycle.save();
}
bool saveAs(Rig& rig) {
  return rig.mLifecycle.saveAs();
}
bool close(Rig& rig) {
  return rig.mLifecycle.close();
}
bool mayQuit(Rig& rig) {
  return rig.mLifecycle.mayQuit();
}

const QString cHaus = u"Haus.zpro"_s;
const QString cOther = u"Anderes.zpro"_s;
const QString cJa = u"Ja"_s;
const QString cNein = u"Nein"_s;
const QString cNeu = u"DIR/Neu.zpro"_s;
const QString cOtherPath = u"DIR/Anderes.zpro"_s;

const std::vector<Row>& rows() {
  // clang-format off
  static const std::vector<Row> rows = {
      {"close, nothing changed", haus, close, {}, {}, true, {}},
      {"close without a project", nothing, close, {}, {}, false, {}},
      {"close, changes saved", edited, close, {cJa}, {cUnsaved}, true, {}},
      {"close, changes dropped", edited, close, {cNein}, {cUnsaved}, true, {}},
      {"close, cancelled", edited, close, {}, {cUnsaved}, false, cHaus},
      {"close, saving fails", [](Rig& rig) { edited(rig); rig.mSession.database().execute("PRAGMA max_page_count=1");
         for (int i = 0; i < 250; ++i) { rig.addAddress({1, 1, i}, QString(500, u'x')); } }, close, {cJa}, {cUnsaved,
         u"Meldung: Fehler beim Speichern der Datei\n Error code: Error: recordWriteAddress"_s}, false, cHaus},
      {"quit, nothing changed", haus, mayQuit, {}, {}, true, cHaus},
      {"quit, cancelled", edited, mayQuit, {}, {cUnsaved}, false, cHaus},
      {"quit, changes dropped", edited, mayQuit, {cNein}, {cUnsaved}, true, cHaus},
      {"new", nothing, newProject, {cNeu}, QStringList{cNewDialog} + cBuilding, true, u"Neu.zpro"_s},
      {"new, extension added", nothing, newProject, {u"DIR/Neu"_s}, QStringList{cNewDialog} + cBuilding, true,
         u"Neu.zpro"_s},
      {"new, extension in capitals", nothing, newProject, {u"DIR/Neu.ZPRO"_s}, QStringList{cNewDialog} + cBuilding,
         true, u"Neu.ZPRO"_s},
      {"new, dialog cancelled", haus, newProject, {}, {cNewDialog}, false, cHaus},
      {"new, changes first", edited, newProject, {cNein, cNeu}, QStringList{cUnsaved, cNewDialog} + cBuilding, true,
         u"Neu.zpro"_s},
      {"new, changes first, cancelled", edited, newProject, {}, {cUnsaved}, false, cHaus},
      {"new over a file, kept", both, newProject, {cOtherPath, cNein}, {cNewDialog, cReplaceOther}, false, cHaus},
      {"new over a file, replaced", both, newProject, {cOtherPath, cJa}, QStringList{cNewDialog, cReplaceOther} +
         cBuilding, true, cOther},
      {"new over a file that is open elsewhere", otherElsewhere, newProject, {cOtherPath, cJa, cNein}, {cNewDialog,
         cReplaceOther, cAlreadyOpen}, false, cHaus},
      {"new where no file can be", nothing, newProject, {u"DIR/fehlt/Neu.zpro"_s}, {cNewDialog,
         u"Meldung: Fehler beim Speichern der Datei\nNo such file or directory"_s}, false, {}},
      {"open", both, openOther, {}, cOpening, true, cOther},
      {"open, chosen", both, openChosen, {cOtherPath}, QStringList{cOpenDialog} + cOpening, true, cOther},
      {"open, dialog cancelled", both, openChosen, {}, {cOpenDialog}, false, cHaus},
      {"open, changes first", bothEdited, openOther, {cJa}, QStringList{cUnsaved} + cOpening, true, cOther},
      {"open, changes first, cancelled", bothEdited, openOther, {}, {cUnsaved}, false, cHaus},
      {"open, chosen, changes before the dialog", bothEdited, openChosen, {cNein, cOtherPath}, QStringList{cUnsaved,
         cOpenDialog} + cOpening, true, cOther},
      {"open what is open elsewhere, no", otherElsewhere, openOther, {cNein}, {cAlreadyOpen}, false, cHaus},
      {"open what is open elsewhere, yes", otherElsewhere, openOther, {cJa}, QStringList{cAlreadyOpen} + cOpening, true,
         cOther},
      {"open what a crash left", [](Rig& rig) { both(rig); Rig::write(Working_Copy::pathFor(rig.other()), "x"); },
         openOther, {cJa}, QStringList{cAlreadyOpen} + cOpening, true, cOther},
      {"open what is open here", haus, [](Rig& rig) { return rig.mLifecycle.open(rig.path()); }, {cJa},
         QStringList{cAlreadyOpen} + cOpening, true, cHaus},
      {"open an older file, no", [](Rig& rig) { haus(rig); rig.makeOlder(rig.other()); }, openOther, {cNein}, {cOlder},
         false, cHaus},
      {"open an older file, yes", [](Rig& rig) { haus(rig); rig.makeOlder(rig.other()); }, openOther, {cJa},
         QStringList{cOlder} + cOpening, true, cOther},
      {"open a file of the older extension", [](Rig& rig) { rig.makeOlder(rig.path(u"Alt.ZPRJ"_s)); }, [](Rig& rig) {
         return rig.mLifecycle.open(rig.path(u"Alt.ZPRJ"_s)); }, {cJa}, QStringList{cOlder} + cOpening, true,
         u"Alt.zpro"_s},
      {"open a file of the older extension, copy kept", [](Rig& rig) { rig.makeOther();
         rig.makeOlder(rig.path(u"Anderes.zprj"_s)); }, [](Rig& rig) { return
         rig.mLifecycle.open(rig.path(u"Anderes.zprj"_s)); }, {cJa, cNein}, {cOlder, cReplaceOther}, false, {}},
      {"open a file of the older extension, copy replaced", [](Rig& rig) { rig.makeOther();
         rig.makeOlder(rig.path(u"Anderes.zprj"_s)); }, [](Rig& rig) { return
         rig.mLifecycle.open(rig.path(u"Anderes.zprj"_s)); }, {cJa, cJa}, QStringList{cOlder, cReplaceOther} + cOpening,
         true, cOther},
      {"open a newer project, no", [](Rig& rig) { rig.makeNewer("2.4"); }, openOther, {cNein}, cLoading +
         QStringList{cNewer}, false, {}},
      {"open a newer project, yes", [](Rig& rig) { rig.makeNewer("2.4"); }, openOther, {cJa}, cLoading +
         QStringList{cNewer} + cBuilding, true, cOther},
      {"open a project of this version", [](Rig& rig) { rig.makeNewer("2.3146"); }, openOther, {}, cOpening, true,
         cOther},
      {"open what is no project", [](Rig& rig) { haus(rig); Rig::write(rig.other(), QByteArray(4096, 'x')); },
         openOther, {}, cLoading + QStringList{u"Meldung: Fehler beim Öffnen der Datei: file is not a database"_s},
         false, {}},
      {"open a damaged project", damaged, openOther, {}, cOpening + QStringList{cDamage}, true, cOther},
      {"open what is missing", haus, openOther, {},
         {u"Meldung: Das Projekt \"DIR/Anderes.zpro\" wurde nicht gefunden."_s}, false, cHaus},
      {"save", edited, save, {}, {}, true, cHaus},
      {"save without a project", nothing, save, {}, {}, false, {}},
      {"save what changed on disk, no", changedOnDisk, save, {cNein}, {cChangedOnDisk}, false, cHaus},
      {"save what changed on disk, yes", changedOnDisk, save, {cJa}, {cChangedOnDisk}, true, cHaus},
      {"save what was deleted on disk", [](Rig& rig) { edited(rig); QFile::remove(rig.path()); }, save, {}, {}, true,
         cHaus},
      {"save over a damaged original, no", damagedIsOpen, save, {cNein}, {cOverwriteDamaged}, false, cOther},
      {"save over a damaged original, asked once", damagedIsOpen, [](Rig& rig) { return rig.mLifecycle.save() &&
         rig.mLifecycle.save(); }, {cJa}, {cOverwriteDamaged}, true, cOther},
      {"save, the folder is gone", [](Rig& rig) { QDir().mkpath(rig.path(u"Ordner"_s));
         rig.mSession.create(rig.path(u"Ordner/Haus.zpro"_s), {}); QDir(rig.path(u"Ordner"_s)).removeRecursively(); },
         save, {}, {u"Meldung: Fehler beim Speichern der Datei\nNo such file or directory"_s}, false, cHaus},
      {"save as", edited, saveAs, {u"DIR/Neu"_s}, {cSaveDialog}, true, u"Neu.zpro"_s},
      {"save as, cancelled", edited, saveAs, {}, {cSaveDialog}, false, cHaus},
      {"save as, same file", changedOnDisk, saveAs, {u"DIR/Haus"_s, cNein}, {cSaveDialog, cChangedOnDisk}, false,
         cHaus},
      {"save as over a file, kept", both, saveAs, {cOtherPath, cNein}, {cSaveDialog, cReplaceOther}, false, cHaus},
      {"save as over a file", both, saveAs, {cOtherPath, cJa}, {cSaveDialog, cReplaceOther}, true, cOther},
      {"save as over a file that is open elsewhere, no", otherElsewhere, saveAs, {cOtherPath, cJa, cNein}, {cSaveDialog,
         cReplaceOther, cAlreadyOpen}, false, cHaus},
      {"save as over a file that is open elsewhere, yes", otherElsewhere, saveAs, {cOtherPath, cJa, cJa}, {cSaveDialog,
         cReplaceOther, cAlreadyOpen}, true, cOther},
      {"save a damaged project elsewhere, then again", damagedIsOpen, [](Rig& rig) { return rig.mLifecycle.saveAs() &&
         rig.mLifecycle.save(); }, {cNeu}, {cSaveDialog}, true, u"Neu.zpro"_s},
      {"save as where no file can be", haus, saveAs, {u"DIR/fehlt/Neu.zpro"_s}, {cSaveDialog,
         u"Meldung: Fehler beim Speichern der Datei\nNo such file or directory"_s}, false, cHaus},
  };
  // clang-format on
  return rows;
}

} // namespace

class Project_Lifecycle_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
  void init() { mRig = std::make_unique<Rig>(); }

  void questions_data() {
    QTest::addColumn<size_t>("row");
    for (size_t i = 0; i < rows().size(); ++i) {
      QTest::newRow(rows()[i].mName) << i;
    }
  }

  void questions() {
    QFETCH(size_t, row);
    const Row& expected = rows()[row];
    expected.mPrepare(*mRig);
    mRig->mDialogs.mAnswers = QStringList(expected.mAnswers).replaceInStrings(u"DIR"_s, mRig->folder());
    const bool isDone = expected.mAct(*mRig);
    QStringList transcript = mRig->mDialogs.mTranscript;
    QCOMPARE(transcript.replaceInStrings(mRig->folder(), u"DIR"_s), expected.mTranscript);
    QCOMPARE(isDone, expected.mIsDone);
    QCOMPARE(QFileInfo(mRig->mSession.path()).fileName(), expected.mOpenAfter);
    QVERIFY(mRig->mDialogs.mAnswers.isEmpty());
    QVERIFY(!mRig->mDialogs.mIsProgressShown);
    QVERIFY(!mRig->mLifecycle.isBusy());
  }

  void savedChangesAreInTheFileAndDroppedOnesAreNot_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("caption");
    QTest::newRow("saved") << cJa << u"Umbenannt"_s;
    QTest::newRow("dropped") << cNein << u"Programm 1"_s;
  }

  void savedChangesAreInTheFileAndDroppedOnesAreNot() {
    QFETCH(QString, answer);
    QFETCH(QString, caption);
    edited(*mRig);
    mRig->mDialogs.mAnswers = {answer};
    QVERIFY(mRig->mLifecycle.close());
    QVERIFY(mRig->mLifecycle.open(mRig->path()));
    QCOMPARE(mRig->mSession.database().mFbPages.pages().at(0).mCaption, caption);
  }

  void anotherOperationIsRefusedQuietly_data() {
    QTest::addColumn<bool>("duringQuestion");
    QTest::newRow("while a question is open") << true;
    QTest::newRow("dropped while another file is being opened") << false;
  }

  void anotherOperationIsRefusedQuietly() {
    QFETCH(bool, duringQuestion);
    if (duringQuestion) {
      bothEdited(*mRig);
    } else {
      both(*mRig);
    }
    int refused = 0;
    const auto interfere = [&] {
      mRig->mDialogs.mWhileAsked = nullptr;
      Project_Lifecycle& lifecycle = mRig->mLifecycle;
      const bool isAnyDone = lifecycle.open(mRig->path()) || lifecycle.save() || lifecycle.saveAs() ||
                             lifecycle.close() || lifecycle.newProject() || lifecycle.openDemo() || lifecycle.mayQuit();
      refused = isAnyDone ? -1 : 1;
    };
    if (duringQuestion) {
      mRig->mDialogs.mWhileAsked = interfere;
      mRig->mDialogs.mAnswers = {cNein};
    } else {
      QTimer::singleShot(0, &mRig->mLifecycle, interfere);
    }
    QVERIFY(openOther(*mRig));
    QCOMPARE(refused, 1);
    QCOMPARE(mRig->mDialogs.mTranscript, (duringQuestion ? QStringList{cUnsaved} : QStringList{}) + cOpening);
    QCOMPARE(mRig->mSession.path(), mRig->other());
  }

  void changesMadeDuringTheWaitAreAskedAbout() {
    both(*mRig);
    QTimer::singleShot(0, &mRig->mLifecycle, [this] { mRig->edit(); });
    QVERIFY(!openOther(*mRig));
    QCOMPARE(mRig->mDialogs.mTranscript, cLoading + QStringList{cUnsaved});
    QCOMPARE(mRig->mSession.path(), mRig->path());
    QVERIFY(!mRig->mDialogs.mIsProgressShown);
  }

  void aRunningToolCallRefusesWithAWord() {
    edited(*mRig);
    mRig->makeOther();
    QStringList infos;
    connect(&mRig->mLifecycle, &Project_Lifecycle::info, [&infos](const QString& text) { infos.append(text); });
    mRig->mState.beginToolCall(0);
    QVERIFY(!openOther(*mRig));
    QVERIFY(!mayQuit(*mRig));
    QVERIFY(!close(*mRig));
    mRig->mState.endToolCall(1);
    QCOMPARE(infos, QStringList(3, u"Nicht möglich, solange der KI-Assistent arbeitet."_s));
    QCOMPARE(mRig->mDialogs.mTranscript, QStringList());
    QVERIFY(mRig->mSession.isModified());
  }

  void recentProjectsFollow() {
    both(*mRig);
    QVERIFY(openOther(*mRig));
    mRig->mDialogs.mAnswers = {mRig->path(u"Neu.zpro"_s)};
    QVERIFY(saveAs(*mRig));
    const QStringList both = {mRig->path(u"Neu.zpro"_s), mRig->other()};
    QCOMPARE(mRig->mSettings.lastProjects(), both);
    QCOMPARE(mRig->mSettings.lastProjectDir(), mRig->folder());
  }

  void aMissingRecentProjectIsOfferedForRemoval_data() {
    QTest::addColumn<QString>("answer");
    QTest::newRow("removed") << cJa;
    QTest::newRow("kept") << cNein;
  }

  void aMissingRecentProjectIsOfferedForRemoval() {
    QFETCH(QString, answer);
    mRig->mSettings.addLastProject(mRig->other());
    mRig->mDialogs.mAnswers = {answer};
    QVERIFY(!openOther(*mRig));
    QCOMPARE(mRig->mDialogs.mTranscript.size(), 1);
    QVERIFY(mRig->mDialogs.mTranscript.at(0).startsWith(u"Ja/Nein: Das Projekt"_s));
    QCOMPARE(mRig->mSettings.lastProjects().isEmpty(), answer == cJa);
  }

  void theDemoIsBuiltWhenItIsMissingOrBrokenElseOpenedAsItIs() {
    QFile::remove(Demo_Project::defaultPath());
    QVERIFY(mRig->mLifecycle.openDemo());
    QCOMPARE(mRig->mDialogs.mTranscript, cBuilding);
    QCOMPARE(mRig->mSession.path(), Demo_Project::defaultPath());
    const qsizetype addresses = mRig->mSession.database().mAddresses.subGroupCount();
    QVERIFY(addresses > 0);
    QVERIFY(mRig->edit() && save(*mRig) && close(*mRig));

    mRig->mDialogs.mTranscript.clear();
    QVERIFY(mRig->mLifecycle.openDemo());
    QCOMPARE(mRig->mDialogs.mTranscript, cOpening);
    QCOMPARE(mRig->mSession.database().mFbPages.pages().at(0).mCaption, u"Umbenannt"_s);
    QVERIFY(close(*mRig));

    Rig::write(Demo_Project::defaultPath(), "kein Projekt");
    QVERIFY(mRig->mLifecycle.openDemo());
    QCOMPARE(mRig->mSession.database().mAddresses.subGroupCount(), addresses);
    QCOMPARE(mRig->mSettings.lastProjects(), QStringList());
    QVERIFY(close(*mRig));
    QFile::remove(Demo_Project::defaultPath());
  }

  void unknownBlocksBecomeCommentsBeforeTheEditorsAreBuilt() {
    mRig->makeOther();
    QUuid block;
    {
      Project_Session session(mRig->mState);
      QVERIFY(session.open(mRig->other()));
      auto made = std::make_unique<DB_FB_Control>();
      made->mPageGuid = session.database().mFbPages.pages().at(0).mGuid;
      made->mType = 54321;
      block = session.database().mFbPages.appendChild(std::move(made))->mGuid;
      QCOMPARE(session.save(), Project_Session::Save_Result::Saved);
    }
    QList<int> types;
    connect(&mRig->mLifecycle, &Project_Lifecycle::buildEditors,
            [&] { types.append(mRig->mSession.database().mFbPages.child(block)->mType); });
    QVERIFY(openOther(*mRig));
    QCOMPARE(types, QList<int>(3, 10));
  }

private:
  std::unique_ptr<Rig> mRig;
};

QTEST_GUILESS_MAIN(Project_Lifecycle_Test)
#include "Project_Lifecycle_Test.moc"
