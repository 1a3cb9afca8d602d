#include "app/Project_Lifecycle.h"
#include "base/App_Settings.h"
#include "db/DB_Legacy_Import.h"
#include "db/Demo_Project.h"
#include "db/Project_Edits.h"
#include "fb/model/FB_Pins.h"
#include "tests/app/Scripted_Dialogs.h"
#include "tests/db/Session_Rig.h"

#include <QRegularExpression>
#include <QTimer>

namespace {

using namespace Qt::StringLiterals;

const QString cUnsaved = u"Ja/Nein/Abbrechen: Das Projekt \"Haus\" wurde geändert. Änderungen speichern?"_s;
const QRegularExpression cWorkingHash(u"\\.[0-9a-f]{8}\\.tmp"_s);
const QStringList cAlreadyOpen = {u"Ja/Nein: Datei bereits geöffnet, soll diese noch einmal geöffnet werden?"_s};
const QStringList cRecovery = {u"Wiederherstellen/Verwerfen/Abbrechen: Das Projekt \"Anderes\" wurde nicht ordentlich "
                               u"geschlossen"_s};
const QString cUnreadable = u"Ja/Nein: Der Arbeitsstand \"TMP/~lock.Anderes.zpro\" kann nicht gelesen werden: file is "
                            u"not a database\n\nDen Arbeitsstand löschen und die Projektdatei öffnen?"_s;
const QString cSaveFailed = u"Meldung: Fehler beim Speichern der Datei\n"_s;
const QString cOlder = u"Ja/Nein: Projekt wurde mit einer älteren Version erstellt, auf neue Version aktualisieren?"_s;
const QString cNewer =
    u"Ja/Nein: Projekt wurde mit einer neueren Version des Studios erstellt! Weiter mit dieser Version bearbeiten?"_s;
const QStringList cChangedOnDisk = {
    u"Ja/Nein: Die Datei \"DIR/Haus.zpro\" wurde seit dem Öffnen geändert. Überschreiben?"_s};
const QString cOverwriteDamaged = u"Ja/Nein: Das Projekt war beim Öffnen beschädigt. Was nicht lesbar war, ist nach "
                                  u"dem Speichern verloren. Die Datei "
                                  "\"DIR/Anderes.zpro\" überschreiben?"_s;
const QStringList cReplaceOther = {u"Ja/Nein: Die Datei \"DIR/Anderes.zpro\" ist schon vorhanden. Ersetzen?"_s};
const QString cDamaged = u"Meldung: Das Projekt ist beschädigt. Geöffnet ist, was lesbar war:\n\n"_s;
const QString cDamage = cDamaged + u"Visualisierungsseiten: Die Tabelle fehlt."_s;
const QString cFewPins = u"Meldung: Diese Bausteine haben weniger Ein- oder Ausgänge, als ihre Anzahl sagt. Die Anzahl "
                         u"bleibt im Projekt, wie sie ist:\n\nKeller: Und: \"Anzahl Eingänge\" ist %1. Angelegt sind "
                         u"die ersten %2."_s;
const QString cOpenDialog = u"Datei: Datei öffnen, Projekte (*.zpro)"_s;
const QStringList cSaveDialog = {u"Datei: Datei speichern, Projekte (*.zpro)"_s};
const QStringList cNewDialog = {u"Datei: Neues Projekt, Projekte (*.zpro)"_s};
const QStringList cLoading = {u"Öffne Projekt... 10"_s};
const QStringList cBuilding = {u"Öffne Projekt... 40"_s, u"Öffne Projekt... 60"_s, u"Öffne Projekt... 80"_s};
const QStringList cOpening = cLoading + cBuilding;

/// A lifecycle in folders of its own. "Haus.zpro" is the project that is open, "Anderes.zpro" the other one.
struct Lifecycle_Rig : Session_Rig {
  QString other() const { return path(u"Anderes.zpro"_s); }
  void makeOther() { Project_Session(mState).create(other(), {}); }
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
  void write(const QString& file, const QByteArray& bytes) {
    QFile out(file);
    out.open(QIODevice::WriteOnly);
    out.write(bytes);
  }

  // What is there before the act.
  void nothing() {}
  void haus() { create(); }
  bool edit() {
    const QUuid page = mSession.database().mFbPages.pages().at(0).mGuid;
    return bool(Project_Edits::renamePage(mSession, page, u"Umbenannt"_s));
  }
  void edited() { static_cast<void>(create() && edit()); }
  void both() { makeOther(), haus(); }
  void bothEdited() { makeOther(), edited(); }
  void otherElsewhere() { both(), mElsewhere.open(other()); }
  [[nodiscard]] QString left(int number = 1) const { return Working_Copy::pathFor(other(), number); }
  /// As a studio leaves it that is killed: with what it had autosaved.
  void leaveChanged(const QString& leftPath, const QString& caption) {
    QFile::copy(other(), leftPath);
    ProjectDatabase database;
    database.openProject(leftPath, false);
    database.mFbPages.pages().at(0).mCaption = caption;
    database.recordWriteChanged();
  }
  void crashedUnchanged() { both(), QFile::copy(other(), left()); }
  void crashed() { both(), leaveChanged(left(), u"Arbeitsstand"_s); }
  void crashedEdited() { bothEdited(), leaveChanged(left(), u"Arbeitsstand"_s); }
  void crashedBeforeCopying() { both(), write(left(), {}); }
  void crashedUnreadable() { both(), write(left(), QByteArray(4096, 'x')); }
  void crashedDamaged() {
    both(), QFile::copy(other(), left());
    change(left(), QByteArray("DROP TABLE `") + DB_Tables::name(DB_Table::Visu_Pages) + '`');
  }
  void crashedOfDamaged() {
    damaged();
    leaveChanged(left(), u"Arbeitsstand"_s);
  }
  void crashedNewer() {
    otherNewer();
    leaveChanged(left(), u"Arbeitsstand"_s);
  }
  void crashedOlder() { otherOlder(), QFile::copy(other(), left()), change(left(), "CREATE TABLE x(y)"); }
  void crashedMissing() { crashed(), QFile::remove(other()); }
  void crashedBesideUnreadable() { crashed(), write(other(), QByteArray(4096, 'x')); }
  void crashedOvertakenEarlier() { crashed(), File_State{true, 1, 1}.write(left() + u".base"_s); }
  void crashedOvertaken() {
    crashed();
    QFile file(other());
    file.open(QIODevice::ReadWrite);
    file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
  }
  void crashedBesideRunning() { otherElsewhere(), leaveChanged(left(2), u"Arbeitsstand"_s); }
  void takenMeanwhile() {
    crashed();
    mDialogs.mWhileAsked = [this] {
      mDialogs.mWhileAsked = nullptr;
      static_cast<void>(mTaken.adopt(left()));
    };
  }
  void goneMeanwhile() {
    crashed();
    mDialogs.mWhileAsked = [this] { QFile::remove(left()); };
  }
  void otherOlder() { haus(), makeOlder(other()); }
  void oldExtension() { makeOther(), makeOlder(path(u"Anderes.zprj"_s)); }
  void otherNewer() {
    makeOther();
    ProjectDatabase database;
    database.openProject(other(), false);
    database.mProject.mVersion = u"2.4"_s;
    database.recordWriteAll(false);
  }
  void otherLarge() {
    makeOther();
    ProjectDatabase database;
    database.openProject(other(), false);
    DB_FB_Page& page = database.mFbPages.pages().at(0);
    page.mCaption = u"Keller"_s;
    auto block = FB_Pins::makeBlock(50, {});
    block->mPageGuid = page.mGuid;
    block->mParams[0] = u"1000000"_s;
    database.mFbPages.appendChild(std::move(block));
    database.recordWriteAll(false);
  }
  void noProject() { haus(), write(other(), QByteArray(4096, 'x')); }
  void otherEmpty() { haus(), write(other(), {}); }
  void damaged() {
    makeOther();
    change(other(), QByteArray("DROP TABLE `") + DB_Tables::name(DB_Table::Visu_Pages) + '`');
  }
  void damagedIsOpen() { damaged(), openOther(), mDialogs.mTranscript.clear(); }
  void changedOnDisk() { edited(), write(path(), bytesOf(path()) + 'x'); }
  void deletedOnDisk() { edited(), QFile::remove(path()); }
  void fileFull() {
    edited();
    mSession.database().execute("PRAGMA max_page_count=1");
    for (int i = 0; i < 250; ++i) {
      addAddress({1, 1, i}, QString(500, u'x'));
    }
  }
  void folderGone() {
    QDir().mkpath(path(u"Ordner"_s));
    mSession.create(path(u"Ordner/Haus.zpro"_s), {});
    QDir(path(u"Ordner"_s)).removeRecursively();
  }

  /// Working files of the other project whose studio does not run.
  [[nodiscard]] qsizetype leftCount() {
    qsizetype count = 0;
    for (int number = 1; number < 5; ++number) {
      Working_Copy copy;
      count += QFile::exists(left(number)) && copy.adopt(left(number)) ? 1 : 0;
    }
    return count;
  }

  // The acts.
  bool openOther() { return mLifecycle.open(other()); }
  bool openOtherThenSave() { return openOther() && save(); }
  bool openOtherAndSave() { return openOther() && save(); }
  bool openHere() { return mLifecycle.open(path()); }
  bool openOldExtension() { return mLifecycle.open(path(u"Anderes.zprj"_s)); }
  bool openChosen() { return mLifecycle.open(); }
  bool newProject() { return mLifecycle.newProject(); }
  bool save() { return mLifecycle.save(); }
  bool saveTwice() { return save() && save(); }
  bool saveAsThenSave() { return saveAs() && save(); }
  bool saveAs() { return mLifecycle.saveAs(); }
  bool close() { return mLifecycle.close(); }
  bool mayQuit() { return mLifecycle.mayQuit(); }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Scripted_Dialogs mDialogs;
  Project_Lifecycle mLifecycle{mSession, mSettings, mState, mDialogs};
  Project_Session mElsewhere{mState}; ///< another studio
  Working_Copy mTaken;                ///< by one more
};

using Rig = Lifecycle_Rig;

/// `mAnswers` and `mTranscript` write DIR for the project folder.
struct Row {
  const char* mName;
  void (Rig::*mPrepare)();
  bool (Rig::*mAct)();
  QStringList mAnswers;
  QStringList mTranscript;
  bool mIsDone;
  QString mOpenAfter;    ///< file name, empty for none
  QString mCaption = {}; ///< of the open project's first logic page, where that matters
  qsizetype mLeft = -1;  ///< how many working files without a running studio remain, where that matters
};

const QString cHaus = u"Haus.zpro"_s;
const QString cOther = u"Anderes.zpro"_s;
const QString cJa = u"Ja"_s;
const QString cNein = u"Nein"_s;
const QString cNeu = u"Neu.zpro"_s;
const QString cRestore = u"Wiederherstellen"_s;
const QString cDiscard = u"Verwerfen"_s;
const QString cSaved = u"Programm 1"_s;
const QString cLeft = u"Arbeitsstand"_s;
const QString cOtherPath = u"DIR/Anderes.zpro"_s;

const std::vector<Row>& rows() {
  // clang-format off
  static const std::vector<Row> rows = {
      {"close, nothing changed", &Rig::haus, &Rig::close, {}, {}, true, {}},
      {"close, changes saved", &Rig::edited, &Rig::close, {cJa}, {cUnsaved}, true, {}},
      {"close, changes dropped", &Rig::edited, &Rig::close, {cNein}, {cUnsaved}, true, {}},
      {"close, cancelled", &Rig::edited, &Rig::close, {}, {cUnsaved}, false, cHaus},
      {"close, saving fails", &Rig::fileFull, &Rig::close, {cJa}, {cUnsaved, cSaveFailed +
         u" Error code: Error: recordWriteAddress"_s}, false, cHaus},
      {"quit, cancelled", &Rig::edited, &Rig::mayQuit, {}, {cUnsaved}, false, cHaus},
      {"new, extension added", &Rig::nothing, &Rig::newProject, {u"DIR/Neu"_s}, cNewDialog + cBuilding, true, cNeu},
      {"new, changes first, cancelled", &Rig::edited, &Rig::newProject, {}, {cUnsaved}, false, cHaus},
      {"new over a file, kept", &Rig::both, &Rig::newProject, {cOtherPath, cNein}, cNewDialog + cReplaceOther, false,
         cHaus},
      {"new over a file, replaced", &Rig::both, &Rig::newProject, {cOtherPath, cJa}, cNewDialog + cReplaceOther +
         cBuilding, true, cOther},
      {"new over a file that is open elsewhere", &Rig::otherElsewhere, &Rig::newProject, {cOtherPath, cJa, cNein},
         cNewDialog + cReplaceOther + cAlreadyOpen, false, cHaus},
      {"new where no file can be", &Rig::nothing, &Rig::newProject, {u"DIR/fehlt/Neu.zpro"_s}, cNewDialog +
         QStringList{cSaveFailed + u"No such file or directory"_s}, false, {}},
      {"open", &Rig::both, &Rig::openOther, {}, cOpening, true, cOther},
      {"open, changes first", &Rig::bothEdited, &Rig::openOther, {cJa}, QStringList{cUnsaved} + cOpening, true, cOther},
      {"open, changes first, cancelled", &Rig::bothEdited, &Rig::openOther, {}, {cUnsaved}, false, cHaus},
      {"open, chosen, changes before the dialog", &Rig::bothEdited, &Rig::openChosen, {cNein, cOtherPath},
         QStringList{cUnsaved, cOpenDialog} + cOpening, true, cOther},
      {"open what is open elsewhere, no", &Rig::otherElsewhere, &Rig::openOther, {cNein}, cAlreadyOpen, false, cHaus},
      {"open what is open elsewhere, yes", &Rig::otherElsewhere, &Rig::openOther, {cJa}, cAlreadyOpen + cOpening, true,
         cOther},
      {"open what a crash left unchanged", &Rig::crashedUnchanged, &Rig::openOther, {cJa}, cAlreadyOpen + cOpening,
         true, cOther, cSaved, 0},
      {"open what a crash left before it was copied", &Rig::crashedBeforeCopying, &Rig::openOther, {cJa},
         cAlreadyOpen + cOpening, true, cOther, cSaved, 0},
      {"open what a crash left, recovered", &Rig::crashed, &Rig::openOther, {cRestore}, cRecovery + cOpening, true,
         cOther, cLeft, 0},
      {"open what a crash left, discarded", &Rig::crashed, &Rig::openOther, {cDiscard}, cRecovery + cOpening, true,
         cOther, cSaved, 0},
      {"open what a crash left, cancelled", &Rig::crashed, &Rig::openOther, {}, cRecovery, false, cHaus, cSaved, 1},
      {"open what a crash left, changes first", &Rig::crashedEdited, &Rig::openOther, {cNein, cRestore},
         QStringList{cUnsaved} + cRecovery + cOpening, true, cOther, cLeft, 0},
      {"open what a crash left, changes first, cancelled", &Rig::crashedEdited, &Rig::openOther, {cNein},
         QStringList{cUnsaved} + cRecovery, false, cHaus, u"Umbenannt"_s, 1},
      {"open what a crash left unreadable, no", &Rig::crashedUnreadable, &Rig::openOther, {cRestore, cNein},
         cRecovery + cLoading + QStringList{cUnreadable}, false, {}, {}, 1},
      {"open what a crash left unreadable, yes", &Rig::crashedUnreadable, &Rig::openOther, {cRestore, cJa},
         cRecovery + cLoading + QStringList{cUnreadable} + cBuilding, true, cOther, cSaved, 0},
      {"open what a crash left damaged", &Rig::crashedDamaged, &Rig::openOther, {cRestore},
         cRecovery + cOpening + QStringList{cDamage}, true, cOther, cSaved, 0},
      {"save what a crash left of a damaged project", &Rig::crashedOfDamaged, &Rig::openOtherThenSave,
         {cRestore, cNein}, cRecovery + cOpening + QStringList{cOverwriteDamaged}, false, cOther, cLeft, 0},
      {"open what a crash left of a newer project, no", &Rig::crashedNewer, &Rig::openOther, {cRestore, cNein},
         cRecovery + cLoading + QStringList{cNewer}, false, {}, {}, 1},
      {"open what a crash left of an older file", &Rig::crashedOlder, &Rig::openOther, {cJa, cRestore},
         QStringList{cOlder} + cRecovery + cOpening, true, cOther, {}, 0},
      {"open what a crash left and is missing", &Rig::crashedMissing, &Rig::openOther, {cRestore},
         cRecovery + cOpening, true, cOther, {}, 0},
      {"open what a crash left and is missing, no", &Rig::crashedMissing, &Rig::openOther, {u"Abbrechen"_s}, cRecovery,
         false, cHaus, {}, 1},
      {"save over what was written after the crash, no", &Rig::crashedOvertaken, &Rig::openOtherAndSave,
         {cRestore, cNein}, cRecovery + cOpening + QStringList{
         u"Ja/Nein: Die Datei \"DIR/Anderes.zpro\" wurde seit dem Öffnen geändert. Überschreiben?"_s}, false, cOther,
         cLeft, 0},
      {"open what a crash left and another studio has", &Rig::crashedBesideRunning, &Rig::openOther, {cJa},
         cAlreadyOpen + cOpening, true, cOther, cSaved, 1},
      {"open what a crash left, another studio is quicker", &Rig::takenMeanwhile, &Rig::openOther, {cRestore, cNein},
         cRecovery + cAlreadyOpen, false, cHaus, cSaved, 0},
      {"discard what another studio has taken meanwhile", &Rig::takenMeanwhile, &Rig::openOther, {cDiscard, cJa},
         cRecovery + cAlreadyOpen + cOpening, true, cOther, cSaved, 0},
      {"open what a crash left and is gone meanwhile", &Rig::goneMeanwhile, &Rig::openOther, {cRestore},
         cRecovery + QStringList{u"Meldung: Der Arbeitsstand ist nicht mehr vorhanden."_s}, false, cHaus, cSaved, 0},
      {"new over what a crash left", &Rig::crashed, &Rig::newProject, {cOtherPath, cJa, cNein},
         cNewDialog + cReplaceOther + QStringList{u"Ja/Nein: Von \"Anderes\" ist noch ein Arbeitsstand vorhanden"_s},
         false, cHaus, cSaved, 1},
      {"save as over what a crash left, no", &Rig::crashed, &Rig::saveAs, {cOtherPath, cJa, cNein},
         cSaveDialog + cReplaceOther + QStringList{u"Ja/Nein: Von \"Anderes\" ist noch ein Arbeitsstand vorhanden"_s},
         false, cHaus, cSaved, 1},
      {"discard what a crash left of an unreadable project", &Rig::crashedBesideUnreadable, &Rig::openOther,
         {cDiscard}, cRecovery + cLoading + QStringList{
         u"Meldung: Fehler beim Öffnen der Datei: file is not a database"_s}, false, {}, {}, 1},
      {"save what a crash left of a missing project", &Rig::crashedMissing, &Rig::openOtherAndSave, {cRestore},
         cRecovery + cOpening, true, cOther},
      {"save over what was written before the last autosave, no", &Rig::crashedOvertakenEarlier,
         &Rig::openOtherAndSave, {cRestore, cNein}, cRecovery + cOpening + QStringList{
         u"Ja/Nein: Die Datei \"DIR/Anderes.zpro\" wurde seit dem Öffnen geändert. Überschreiben?"_s}, false, cOther,
         cLeft, 0},
      {"open what is open here", &Rig::haus, &Rig::openHere, {cJa}, cAlreadyOpen + cOpening, true, cHaus},
      {"open an older file, no", &Rig::otherOlder, &Rig::openOther, {cNein}, {cOlder}, false, cHaus},
      {"open an older file, yes", &Rig::otherOlder, &Rig::openOther, {cJa}, QStringList{cOlder} + cOpening, true,
         cOther},
      {"open the older extension, copy kept", &Rig::oldExtension, &Rig::openOldExtension, {cJa, cNein},
         QStringList{cOlder} + cReplaceOther, false, {}},
      {"open the older extension, copy replaced", &Rig::oldExtension, &Rig::openOldExtension, {cJa, cJa},
         QStringList{cOlder} + cReplaceOther + cOpening, true, cOther},
      {"open a newer project, no", &Rig::otherNewer, &Rig::openOther, {cNein}, cLoading + QStringList{cNewer}, false,
         {}},
      {"open a newer project, yes", &Rig::otherNewer, &Rig::openOther, {cJa}, cLoading + QStringList{cNewer} +
         cBuilding, true, cOther},
      {"open what is no project", &Rig::noProject, &Rig::openOther, {}, cLoading +
         QStringList{u"Meldung: Fehler beim Öffnen der Datei: file is not a database"_s}, false, {}},
      {"open an empty file", &Rig::otherEmpty, &Rig::openOther, {}, cOpening +
         QStringList{cDamaged + u"Die Datei ist leer."_s}, true, cOther},
      {"open a damaged project", &Rig::damaged, &Rig::openOther, {}, cOpening + QStringList{cDamage}, true, cOther},
      {"open a project with an impossible count", &Rig::otherLarge, &Rig::openOther, {}, cOpening +
         QStringList{cFewPins.arg(QLocale().toString(1000000), QLocale().toString(1024))}, true, cOther},
      {"open what is missing", &Rig::haus, &Rig::openOther, {},
         {u"Meldung: Das Projekt \"DIR/Anderes.zpro\" wurde nicht gefunden."_s}, false, cHaus},
      {"save", &Rig::edited, &Rig::save, {}, {}, true, cHaus},
      {"save what changed on disk, no", &Rig::changedOnDisk, &Rig::save, {cNein}, cChangedOnDisk, false, cHaus},
      {"save what changed on disk, yes", &Rig::changedOnDisk, &Rig::save, {cJa}, cChangedOnDisk, true, cHaus},
      {"save what was deleted on disk", &Rig::deletedOnDisk, &Rig::save, {}, {}, true, cHaus},
      {"save over a damaged original, no", &Rig::damagedIsOpen, &Rig::save, {cNein}, {cOverwriteDamaged}, false,
         cOther},
      {"save over a damaged original, asked once", &Rig::damagedIsOpen, &Rig::saveTwice, {cJa}, {cOverwriteDamaged},
         true, cOther},
      {"save, the folder is gone", &Rig::folderGone, &Rig::save, {}, {cSaveFailed + u"No such file or directory"_s},
         false, cHaus},
      {"save as", &Rig::edited, &Rig::saveAs, {u"DIR/Neu"_s}, cSaveDialog, true, cNeu},
      {"save as, of what was deleted on disk", &Rig::deletedOnDisk, &Rig::saveAs, {u"DIR/Neu"_s}, cSaveDialog, true,
         cNeu},
      {"save as, same file", &Rig::changedOnDisk, &Rig::saveAs, {u"DIR/Haus"_s, cNein}, cSaveDialog + cChangedOnDisk,
         false, cHaus},
      {"save as over a file, kept", &Rig::both, &Rig::saveAs, {cOtherPath, cNein}, cSaveDialog + cReplaceOther, false,
         cHaus},
      {"save as over a file that is open elsewhere, yes", &Rig::otherElsewhere, &Rig::saveAs, {cOtherPath, cJa, cJa},
         cSaveDialog + cReplaceOther + cAlreadyOpen, true, cOther},
      {"save a damaged project elsewhere, then again", &Rig::damagedIsOpen, &Rig::saveAsThenSave, {u"DIR/Neu"_s},
         cSaveDialog, true, cNeu},
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
    (mRig.get()->*expected.mPrepare)();
    mRig->mDialogs.mAnswers = QStringList(expected.mAnswers).replaceInStrings(u"DIR"_s, mRig->folder());
    const QByteArray otherBefore = Rig::bytesOf(mRig->other());
    const bool isDone = (mRig.get()->*expected.mAct)();
    QStringList transcript = mRig->mDialogs.mTranscript;
    transcript.replaceInStrings(mRig->folder(), u"DIR"_s).replaceInStrings(mRig->tempFolder(), u"TMP"_s);
    static const QRegularExpression ageAndSize(u", der nie gespeichert wurde:.*"_s,
                                               QRegularExpression::DotMatchesEverythingOption);
    transcript.replaceInStrings(ageAndSize, {});
    QCOMPARE(transcript.replaceInStrings(cWorkingHash, {}), expected.mTranscript);
    QCOMPARE(isDone, expected.mIsDone);
    QCOMPARE(QFileInfo(mRig->mSession.path()).fileName(), expected.mOpenAfter);
    QVERIFY(mRig->mDialogs.mAnswers.isEmpty());
    QVERIFY(!mRig->mDialogs.mIsProgressShown);
    QVERIFY(!mRig->mLifecycle.isBusy());
    if (!expected.mCaption.isEmpty()) {
      QCOMPARE(mRig->mSession.database().mFbPages.pages().at(0).mCaption, expected.mCaption);
    }
    if (expected.mLeft >= 0) {
      QCOMPARE(mRig->leftCount(), expected.mLeft);
      QCOMPARE(Rig::bytesOf(mRig->other()), otherBefore);
      QVERIFY(expected.mCaption != cLeft || mRig->mSession.isModified());
    }
  }

  void theSafeAnswerIsTheDefault() {
    using Recovery = Lifecycle_Dialogs::Recovery;
    for (const auto& [prepare, answer] :
         {std::pair(&Rig::crashed, Recovery::Restore), std::pair(&Rig::crashedOvertaken, Recovery::Cancel)}) {
      init();
      (mRig.get()->*prepare)();
      QVERIFY(!mRig->openOther());
      QCOMPARE(mRig->mDialogs.mRecoveryDefault, answer);
    }
  }

  /// Nobody is there who could decide.
  void aKioskLeavesWhatACrashLeft() {
    mRig->crashed();
    mRig->mLifecycle.setKiosk();
    QVERIFY(mRig->openOther());
    QCOMPARE(mRig->mDialogs.mTranscript, cOpening);
    QCOMPARE(mRig->leftCount(), 1);
  }

  /// A kill in the middle of writing: the engine takes back what it had begun.
  void aJournalComesAlong() {
    mRig->crashed();
    const QString rolled = mRig->path(u"rolled"_s);
    {
      DB_Sqlite writing;
      QVERIFY(writing.open(mRig->left(), DB_Sqlite::Mode::ReadWrite));
      QVERIFY(writing.execute("PRAGMA cache_size=1; BEGIN; DELETE FROM `"_ba + DB_Tables::name(DB_Table::Logic_Pages) +
                              "`; CREATE TABLE filler(x); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n "
                              "WHERE i<200) INSERT INTO filler SELECT randomblob(4000) FROM n"));
      QVERIFY(QFile::copy(mRig->left(), rolled) && QFile::copy(mRig->left() + u"-journal"_s, rolled + u"-journal"_s));
    }
    QVERIFY(QFile::remove(mRig->left()) && QFile::rename(rolled, mRig->left()));
    QVERIFY(QFile::rename(rolled + u"-journal"_s, mRig->left() + u"-journal"_s));
    mRig->mDialogs.mAnswers = {cRestore};
    QVERIFY(mRig->openOther());
    QCOMPARE(mRig->mDialogs.mTranscript, cRecovery + cOpening);
    QCOMPARE(mRig->mSession.database().mFbPages.pages().at(0).mCaption, cLeft);
  }

  void theOlderOfSeveralIsOfferedNext() {
    mRig->crashed();
    mRig->leaveChanged(mRig->left(2), u"Zweiter"_s);
    QFile file(mRig->left());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
    file.close();
    for (const QString& caption : {u"Zweiter"_s, cLeft}) {
      mRig->mDialogs.mAnswers = {cRestore};
      QVERIFY(mRig->openOther());
      QCOMPARE(mRig->mSession.database().mFbPages.pages().at(0).mCaption, caption);
      mRig->mSession.close();
    }
    QCOMPARE(Working_Copy::stateOf(mRig->other()), Working_Copy::State::Free);
  }

  void theDemoIsRecovered() {
    QFile::remove(Demo_Project::defaultPath());
    QVERIFY(mRig->mLifecycle.openDemo() && mRig->close());
    const QString left = Working_Copy::pathFor(Demo_Project::defaultPath());
    QVERIFY(QFile::copy(Demo_Project::defaultPath(), left));
    mRig->change(left, "CREATE TABLE more(x)");
    mRig->mDialogs.mAnswers = {cRestore};
    QVERIFY(mRig->mLifecycle.openDemo() && mRig->mSession.isModified());
    mRig->mSession.close();
    QVERIFY(!QFile::exists(left) && QFile::remove(Demo_Project::defaultPath()));
  }

  void savedChangesAreInTheFileAndDroppedOnesAreNot() {
    mRig->edited();
    for (const QString& answer : {cNein, cJa}) {
      mRig->mDialogs.mAnswers = {answer};
      QVERIFY(mRig->close() && mRig->openHere());
      const QString caption = mRig->mSession.database().mFbPages.pages().at(0).mCaption;
      QCOMPARE(caption, answer == cJa ? u"Umbenannt"_s : u"Programm 1"_s);
      mRig->edit();
    }
  }

  void anotherOperationIsRefusedQuietly() {
    mRig->bothEdited();
    int refused = 0;
    const auto interfere = [&] {
      mRig->mDialogs.mWhileAsked = nullptr;
      const bool isAnyDone = mRig->openHere() || mRig->save() || mRig->saveAs() || mRig->close() ||
                             mRig->newProject() || mRig->mLifecycle.openDemo() || mRig->mayQuit();
      refused += isAnyDone ? 0 : 1;
    };
    mRig->mDialogs.mWhileAsked = interfere;
    mRig->mDialogs.mAnswers = {cNein};
    QTimer::singleShot(0, &mRig->mLifecycle, interfere); // comes while the other file is being opened
    QVERIFY(mRig->openOther());
    QCOMPARE(refused, 2);
    QCOMPARE(mRig->mDialogs.mTranscript, QStringList{cUnsaved} + cOpening);
    QCOMPARE(mRig->mSession.path(), mRig->other());
  }

  void changesMadeDuringTheWaitAreAskedAbout() {
    mRig->both();
    QTimer::singleShot(0, &mRig->mLifecycle, [this] { mRig->edit(); });
    QVERIFY(!mRig->openOther());
    QCOMPARE(mRig->mDialogs.mTranscript, cLoading + QStringList{cUnsaved});
    QCOMPARE(mRig->mSession.path(), mRig->path());
    QVERIFY(!mRig->mDialogs.mIsProgressShown);
  }

  void aRunningToolCallRefusesWithAWord() {
    mRig->bothEdited();
    QStringList infos;
    connect(&mRig->mLifecycle, &Project_Lifecycle::info, [&infos](const QString& text) { infos.append(text); });
    mRig->mState.beginToolCall(0);
    QVERIFY(!mRig->openOther() && !mRig->mayQuit() && !mRig->close());
    QCOMPARE(infos, QStringList(3, u"Nicht möglich, solange der KI-Assistent arbeitet."_s));
    QCOMPARE(mRig->mDialogs.mTranscript, QStringList());
    QVERIFY(mRig->mSession.isModified());
  }

  void theDemoIsBuiltWhenItIsMissingOrBrokenElseOpenedAsItIs() {
    QFile::remove(Demo_Project::defaultPath());
    QVERIFY(mRig->mLifecycle.openDemo());
    DB_Connections::ITEM& connection = mRig->mSession.database().mConnections.mItems.at(0);
    const QString password = std::exchange(connection.mPassword, QString()); // as older studios made it
    QVERIFY(mRig->edit() && mRig->save() && mRig->close());
    QVERIFY(mRig->mLifecycle.openDemo());
    QCOMPARE(mRig->mDialogs.mTranscript, cBuilding + cOpening);
    QCOMPARE(mRig->mSession.database().mFbPages.pages().at(0).mCaption, u"Umbenannt"_s);
    QCOMPARE(mRig->mSession.database().mConnections.mItems.at(0).mPassword, password);
    QVERIFY(!password.isEmpty());
    QVERIFY(mRig->close());
    mRig->write(Demo_Project::defaultPath(), "kein Projekt");
    mRig->mDialogs.mAnswers = {u"Nein"_s, u"Ja"_s};
    QVERIFY2(!mRig->mLifecycle.openDemo(), "not replaced unasked");
    QVERIFY(mRig->mLifecycle.openDemo());
    QVERIFY(mRig->mSession.database().mAddresses.subGroupCount() > 0);
    QCOMPARE(mRig->mSettings.lastProjects(), QStringList());
    QVERIFY(mRig->close() && QFile::remove(Demo_Project::defaultPath()));
  }

  void newProjectsBeginWithTheConnectionOfTheSettings() {
    mRig->mSettings.setText(Setting::AppDefaultConnection, u"Werkstatt"_s);
    mRig->mDialogs.mAnswers = {mRig->path(u"Neu.zpro"_s)};
    QVERIFY(mRig->newProject());
    const DB_Connections& connections = mRig->mSession.database().mConnections;
    QCOMPARE(connections.mItems.size(), 1U);
    QCOMPARE(connections.mItems.front().mName, u"Werkstatt"_s);
    QCOMPARE(connections.mSelected, 0);
  }

  void unknownBlocksBecomeCommentsBeforeTheEditorsAreBuilt() {
    mRig->haus();
    auto made = std::make_unique<DB_FB_Control>();
    made->mPageGuid = mRig->mSession.database().mFbPages.pages().at(0).mGuid;
    made->mType = 54321;
    const QUuid block = mRig->mSession.database().mFbPages.appendChild(std::move(made))->mGuid;
    QVERIFY(mRig->save());
    mRig->mSession.close();
    QList<int> types;
    connect(&mRig->mLifecycle, &Project_Lifecycle::buildEditors,
            [&] { types.append(mRig->mSession.database().mFbPages.child(block)->mType); });
    QVERIFY(mRig->openHere());
    QCOMPARE(types, QList<int>(3, 10));
  }

private:
  std::unique_ptr<Rig> mRig;
};

QTEST_GUILESS_MAIN(Project_Lifecycle_Test)
#include "Project_Lifecycle_Test.moc"
