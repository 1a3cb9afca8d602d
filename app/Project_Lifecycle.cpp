#include "app/Project_Lifecycle.h"

#include "base/App_Settings.h"
#include "base/File_Copy.h"
#include "base/Session_State.h"
#include "base/Version.h"
#include "db/DB_Legacy_Import.h"
#include "db/Demo_Project.h"
#include "db/Working_Copy.h"
#include "fb/model/Demo_Logic.h"
#include "fb/model/FB_Normaliser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

constexpr int cFirstPercent = 10;
constexpr int cEditorPercents[] = {40, 60, 80};
constexpr int cEventLoopMs = 200;
constexpr qsizetype cShownLines = 15;

const QString cExtension = QStringLiteral(".zpro");

QString filter() {
  return Project_Lifecycle::tr("Projekte") + QStringLiteral(" (*.zpro)");
}

QString native(const QString& path) {
  return QDir::toNativeSeparators(path);
}

QString withExtension(const QString& path) {
  return path.endsWith(cExtension, Qt::CaseInsensitive) ? path : path + cExtension;
}

/// A file of the older extension is opened as a copy with the present one; any other file is opened itself.
QString targetOf(const QString& path) {
  const QFileInfo info(path);
  QString name = info.fileName();
  const QStringView older = DB_Legacy_Import::cExtension;
  const qsizetype at = name.lastIndexOf(older, -1, Qt::CaseInsensitive);
  return at < 0 ? path : info.absolutePath() + u'/' + name.replace(at, older.size(), cExtension);
}

bool isReadable(const QString& path) {
  ProjectDatabase probe;
  return QFileInfo::exists(path) && probe.openProjectReadOnly(path);
}

bool isDamaged(const QString& path) {
  ProjectDatabase probe;
  return !ProjectDatabase::isOlderLayout(path) && (!probe.openProjectReadOnly(path) || probe.loadReport().isDamaged());
}

} // namespace

/// Marks the lifecycle as busy while it lives, unless it is already.
class Project_Lifecycle::Operation {
public:
  explicit Operation(Project_Lifecycle& owner) : mOwner(owner) {
    if (owner.mIsBusy) {
      return;
    }
    if (!owner.mIsAssistant && !owner.isFreeOfAssistant()) {
      return;
    }
    owner.mIsBusy = true;
    emit owner.beginning();
    mIsAllowed = !owner.mMayBegin || owner.mMayBegin();
    owner.mIsBusy = mIsAllowed;
  }
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;
  ~Operation() {
    if (mIsAllowed) {
      mOwner.mIsBusy = false;
    }
  }
  explicit operator bool() const { return mIsAllowed; }

private:
  Project_Lifecycle& mOwner;
  bool mIsAllowed = false;
};

Project_Lifecycle::Project_Lifecycle(Project_Session& session, App_Settings& settings, Session_State& state,
                                     Lifecycle_Dialogs& dialogs, QObject* parent)
    : QObject(parent),
      mSession(session),
      mSettings(settings),
      mState(state),
      mDialogs(dialogs) {}

bool Project_Lifecycle::newProject() {
  const Operation operation(*this);
  if (!operation || !settleUnsaved()) {
    return false;
  }
  const QString suggestion = folder() + u'/' + tr("Neues Projekt") + cExtension;
  const QString chosen = mDialogs.chooseSaveFile(tr("Neues Projekt"), suggestion, filter());
  return !chosen.isEmpty() && isReplacingAccepted(withExtension(chosen)) && create(withExtension(chosen), {});
}

bool Project_Lifecycle::newProject(const QString& path, const New_Project::Options& options) {
  const Operation operation(*this);
  return operation && settleUnsaved() && create(withExtension(path), options);
}

bool Project_Lifecycle::create(const QString& path, New_Project::Options options) {
  if (!isOverwritingAccepted(path)) {
    return false;
  }
  if (options.mConnectionName.isEmpty()) {
    options.mConnectionName = mSettings.text(Setting::AppDefaultConnection);
  }
  if (!mSession.create(path, options)) {
    mDialogs.showMessage(tr("Fehler beim Speichern der Datei") + u'\n' + mSession.lastError());
    return false;
  }
  mIsDamaged = false;
  afterLoading(true);
  emit info(tr("Angelegt: %1").arg(native(mSession.path())));
  return true;
}

bool Project_Lifecycle::open() {
  const Operation operation(*this);
  if (!operation || !settleUnsaved()) {
    return false;
  }
  const QString path = mDialogs.chooseOpenFile(tr("Datei öffnen"), folder(), filter());
  return !path.isEmpty() && openFile(path);
}

bool Project_Lifecycle::open(const QString& path) {
  const Operation operation(*this);
  if (!operation) {
    return false;
  }
  // Of a project file that is gone there may be a working state yet.
  const bool isLeftBehind = !mIsKiosk && Working_Copy::findLeftBehind(path).has_value();
  if (!QFileInfo::exists(path) && !isLeftBehind) {
    reportMissing(path);
    return false;
  }
  if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) {
    mDialogs.showMessage(tr("Fehler beim Öffnen der Datei: ") + tr("\"%1\" ist keine Datei.").arg(native(path)));
    return false;
  }
  return settleUnsaved() && openFile(path);
}

bool Project_Lifecycle::openDemo() {
  const Operation operation(*this);
  if (!operation || !settleUnsaved()) {
    return false;
  }
  const QString path = Demo_Project::defaultPath();
  const bool isRecoverable = !mIsKiosk && Working_Copy::findLeftBehind(path);
  if (isRecoverable || isReadable(path)) {
    Opening opening = askHowToOpen(path);
    if (!opening.mIsAccepted || !load(path, std::move(opening))) {
      return false;
    }
    Demo_Project::completeConnection(mSession.database());
    afterLoading(false);
    return true;
  }
  const QString unreadable = tr("Das Demo-Projekt \"%1\" ist nicht lesbar. Neu anlegen?").arg(native(path));
  if (!isAlreadyOpenAccepted(path) || (QFileInfo::exists(path) && !mDialogs.askYesNo(unreadable))) {
    return false;
  }
  QString error;
  if (!Demo_Project::build(mSession, path, Demo_Logic::build, error)) {
    mDialogs.showMessage(tr("Das Demo-Projekt kann nicht angelegt werden.") + u'\n' + error);
    return false;
  }
  mIsDamaged = false;
  afterLoading(false);
  return true;
}

bool Project_Lifecycle::save() {
  const Operation operation(*this);
  return operation && saveFile();
}

bool Project_Lifecycle::maySave() {
  const Operation operation(*this);
  return operation && mayOverwrite();
}

bool Project_Lifecycle::saveAs() {
  const Operation operation(*this);
  if (!operation || !mSession.isOpen()) {
    return false;
  }
  const QString chosen = mDialogs.chooseSaveFile(tr("Datei speichern"), mSession.path(), filter());
  if (chosen.isEmpty()) {
    return false;
  }
  return saveCopy(withExtension(chosen));
}

bool Project_Lifecycle::saveAs(const QString& path) {
  const Operation operation(*this);
  return operation && mSession.isOpen() && saveCopy(withExtension(path));
}

bool Project_Lifecycle::saveCopy(const QString& path) {
  if (File_Copy::isSamePath(path, mSession.path())) {
    return saveFile();
  }
  if (!isReplacingAccepted(path) || !isOverwritingAccepted(path)) {
    return false;
  }
  if (!finishSaving(mSession.saveAs(path))) {
    return false;
  }
  remember(mSession.path());
  return true;
}

bool Project_Lifecycle::close() {
  const Operation operation(*this);
  if (!operation || !mSession.isOpen() || !settleUnsaved()) {
    return false;
  }
  const QString path = mSession.path();
  mSession.close();
  emit info(tr("Geschlossen: %1").arg(native(path)));
  return true;
}

bool Project_Lifecycle::isFreeOfAssistant() {
  if (mState.toolCallRunning()) {
    emit info(tr("Nicht möglich, solange der KI-Assistent arbeitet."));
    return false;
  }
  return true;
}

bool Project_Lifecycle::asAssistant(const std::function<bool()>& operation) {
  mIsAssistant = true;
  const bool isDone = operation();
  mIsAssistant = false;
  return isDone;
}

bool Project_Lifecycle::mayQuit() {
  const Operation operation(*this);
  return operation && settleUnsaved();
}

/// True when nothing stands in the way of leaving the present project: it is saved, or its changes may go.
bool Project_Lifecycle::settleUnsaved() {
  if (!mSession.isModified()) {
    return true;
  }
  if (mIsAssistant) {
    return saveFile();
  }
  const QString name = QFileInfo(mSession.path()).completeBaseName();
  const QString question = tr("Das Projekt \"%1\" wurde geändert. Änderungen speichern?").arg(name);
  switch (mDialogs.askYesNoCancel(question, Message_Box::Answer::Yes)) {
  case Message_Box::Answer::Yes:
    return saveFile();
  case Message_Box::Answer::No:
    return true;
  case Message_Box::Answer::Cancel:
    break;
  }
  return false;
}

bool Project_Lifecycle::isReplacingAccepted(const QString& path) {
  return !QFileInfo::exists(path) ||
         mDialogs.askYesNo(tr("Die Datei \"%1\" ist schon vorhanden. Ersetzen?").arg(native(path)));
}

bool Project_Lifecycle::askBeforeOpening(const QString& path, const QString& target) {
  const QString older = tr("Projekt wurde mit einer älteren Version erstellt, auf neue Version aktualisieren?");
  return (!ProjectDatabase::isOlderLayout(path) || mDialogs.askYesNo(older)) &&
         (target == path || (isReplacingAccepted(target) && isOverwritingAccepted(target)));
}

bool Project_Lifecycle::openFile(const QString& path) {
  const QString target = targetOf(path);
  if (!askBeforeOpening(path, target)) {
    return false;
  }
  Opening opening{true, Working_Copy::Others::Remove, {}};
  if (target == path) {
    opening = askHowToOpen(path);
  } else {
    QString error;
    if (!File_Copy::replace(path, target, error)) {
      mDialogs.showMessage(tr("Fehler beim Öffnen der Datei: ") + error);
      return false;
    }
  }
  if (!opening.mIsAccepted || !load(target, std::move(opening))) {
    return false;
  }
  afterLoading(true);
  emit info(tr("Geöffnet: %1").arg(native(mSession.path())));
  return true;
}

/// Leaves the progress shown when it succeeds.
bool Project_Lifecycle::load(const QString& target, Opening opening) {
  const bool wasModified = mSession.isModified();
  mDialogs.showProgress(tr("Öffne Projekt..."), cFirstPercent);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, cEventLoopMs);
  // Changes made during the wait were part of no question yet.
  if (!wasModified && !settleUnsaved()) {
    mDialogs.hideProgress();
    return false;
  }
  const bool isRecovered = !opening.mRecovered.path().isEmpty();
  if (!openRecords(target, opening)) {
    mSession.close();
    return false;
  }
  const QString newer = tr("Projekt wurde mit einer neueren Version des Studios erstellt! Weiter mit dieser Version "
                           "bearbeiten?");
  if (Version::isNewerThanStudio(mSession.database().mProject.mVersion) && !mDialogs.askYesNo(newer)) {
    mDialogs.hideProgress();
    mSession.close();
    return false;
  }
  mSession.acceptRecovered();
  // What is damaged of the project file is lost by saving, also where the working file is sound.
  mIsDamaged =
      mSession.database().loadReport().isDamaged() || (isRecovered && QFileInfo::exists(target) && isDamaged(target));
  return true;
}

void Project_Lifecycle::afterLoading(bool isRemembered) {
  // Before the editors, so that the saved file does not depend on which of them are looked at.
  const FB_Normaliser::Result normalised = FB_Normaliser::normalise(mSession.database().mFbPages);
  for (const int percent : cEditorPercents) {
    mDialogs.showProgress(tr("Öffne Projekt..."), percent);
    emit buildEditors(percent);
  }
  mDialogs.hideProgress();
  if (isRemembered) {
    remember(mSession.path());
  }
  tellDamage();
  if (!normalised.mMissingPins.isEmpty()) {
    mDialogs.showMessage(tr("Diese Bausteine haben weniger Ein- oder Ausgänge, als ihre Anzahl sagt. Die Anzahl bleibt "
                            "im Projekt, wie sie ist:") +
                         QStringLiteral("\n\n") + shortened(normalised.mMissingPins).join(u'\n'));
  }
}

QStringList Project_Lifecycle::shortened(QStringList lines) {
  if (lines.size() > cShownLines) {
    const qsizetype more = lines.size() - cShownLines;
    lines = lines.first(cShownLines);
    lines.append(tr("… und %1 weitere.").arg(more));
  }
  return lines;
}

void Project_Lifecycle::tellDamage() {
  if (!mSession.database().loadReport().isDamaged()) {
    return;
  }
  const QStringList lines = shortened(mSession.database().loadReport().lines());
  mDialogs.showMessage(tr("Das Projekt ist beschädigt. Geöffnet ist, was lesbar war:") + QStringLiteral("\n\n") +
                       lines.join(u'\n'));
}

void Project_Lifecycle::reportMissing(const QString& path) {
  const QString text = tr("Das Projekt \"%1\" wurde nicht gefunden.").arg(native(path));
  if (!mSettings.lastProjects().contains(path)) {
    mDialogs.showMessage(text);
    return;
  }
  if (mDialogs.askYesNo(text + u'\n' + tr("Aus der Liste der zuletzt geöffneten Projekte entfernen?"))) {
    mSettings.removeLastProject(path);
  }
}

bool Project_Lifecycle::mayOverwrite() {
  const QString path = native(mSession.path());
  // A file that is gone is only made anew.
  if (mSession.isChangedOnDisk() && QFileInfo::exists(mSession.path()) &&
      !mDialogs.askYesNo(tr("Die Datei \"%1\" wurde seit dem Öffnen geändert. Überschreiben?").arg(path))) {
    return false;
  }
  return !mIsDamaged || mDialogs.askYesNo(tr("Das Projekt war beim Öffnen beschädigt. Was nicht lesbar war, ist nach "
                                             "dem Speichern verloren. Die Datei \"%1\" überschreiben?")
                                              .arg(path));
}

bool Project_Lifecycle::saveFile() {
  return mSession.isOpen() && mayOverwrite() && finishSaving(mSession.save());
}

bool Project_Lifecycle::finishSaving(Project_Session::Save_Result result) {
  const QString failure = tr("Fehler beim Speichern der Datei");
  switch (result) {
  case Project_Session::Save_Result::Saved:
    mIsDamaged = false;
    emit info(tr("Gespeichert: %1").arg(native(mSession.path())));
    return true;
  case Project_Session::Save_Result::WriteFailed:
    mDialogs.showMessage(failure + QStringLiteral("\n Error code: ") + mSession.lastError());
    break;
  case Project_Session::Save_Result::PublishFailed:
    mDialogs.showMessage(mSession.lastError().isEmpty() ? failure : failure + u'\n' + mSession.lastError());
    break;
  }
  return false;
}

void Project_Lifecycle::remember(const QString& path) {
  mSettings.addLastProject(path);
  mSettings.setLastProjectDir(QFileInfo(path).absolutePath());
}

QString Project_Lifecycle::folder() const {
  const QString last = mSettings.lastProjectDir();
  return !last.isEmpty() && QFileInfo(last).isDir()
             ? last
             : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}
