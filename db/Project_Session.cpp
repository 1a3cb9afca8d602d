#include "db/Project_Session.h"

#include "base/File_Copy.h"
#include "base/Version.h"
#include "db/Binding_Refresh.h"

#include <QFile>
#include <QFileInfo>

Project_Session::Project_Session(Session_State& state, QObject* parent)
    : QObject(parent),
      mState(state),
      mHistory(state),
      mAddressUndo(mDatabase.mAddresses),
      mFbPageUndo(mDatabase.mFbPages),
      mWidgetPageUndo(mDatabase.mWidgetPages),
      mBlockUndo(mDatabase.mFbPages),
      mElementUndo(mDatabase.mWidgetPages),
      mProjectUndo(mDatabase, DB_Table::Project),
      mConnectionsUndo(mDatabase, DB_Table::Connections),
      mStatisticUndo(mDatabase, DB_Table::Statistics) {
  connect(&mDatabase, &ProjectDatabase::resourcesChanged, &mHistory, &History::setChangedOutside);
  const Address_Tree& tree = mDatabase.mAddresses;
  connect(&tree, &Address_Tree::recordChanged, this, &Project_Session::onAddressChanged);
  connect(&tree, &Address_Tree::structureChanged, this, &Project_Session::onAddressesChanged);
}

Project_Session::~Project_Session() {
  mDatabase.close();
}

void Project_Session::onAddressChanged(const QUuid& key) {
  if (!mDatabase.mAddresses.isChanging()) {
    Binding_Refresh::one(mDatabase, key);
  }
}

void Project_Session::onAddressesChanged() {
  Binding_Refresh::all(mDatabase);
}

void Project_Session::setValueService(Value_Service* service) {
  mValueService = service;
  emit valueServiceChanged();
}

bool Project_Session::fail(const QString& text) {
  mLastError = text;
  return false;
}

bool Project_Session::isChangedOnDisk() const {
  return isOpen() && File_State::of(mPath) != mFileState;
}

void Project_Session::setPath(const QString& path) {
  mPath = path;
  setFileState(File_State::of(path));
  emit pathChanged();
}

void Project_Session::setFileState(const File_State& state) {
  mFileState = state;
  mWorkingCopy.rememberBase(state);
}

void Project_Session::close() {
  if (isOpen()) {
    emit aboutToClose();
  }
  mHistory.clear();
  mDatabase.close();
  mWorkingCopy.release();
  if (isOpen()) {
    setPath({});
    mValues.clear();
    emit closed();
  }
}

bool Project_Session::claim(Working_Copy& copy, const QString& path, Working_Copy::Others others) {
  // The longest name beside the working file is its journal's.
  constexpr qsizetype cLongestName = 255;
  const QString name = QFileInfo(Working_Copy::pathFor(path)).fileName() + QStringLiteral("-journal");
  if (name.toUtf8().size() > cLongestName) {
    return fail(tr("Der Dateiname \"%1\" ist zu lang.").arg(QFileInfo(path).fileName()));
  }
  return copy.claim(path, others) ||
         fail(tr("Die Arbeitsdatei \"%1\" kann nicht angelegt werden.").arg(Working_Copy::pathFor(path)));
}

bool Project_Session::copyToWorkingFile(const QString& path, Working_Copy::Others others) {
  if (!claim(mWorkingCopy, path, others)) {
    return false;
  }
  QFile source(path);
  if (!source.copy(mWorkingCopy.path())) {
    return fail(source.errorString());
  }
  // A project file may be read only; the working copy is written to all the same.
  QFile::setPermissions(mWorkingCopy.path(), QFile::ReadOwner | QFile::WriteOwner);
  return true;
}

bool Project_Session::failOpening(const QString& error) {
  mDatabase.close();
  mWorkingCopy.release();
  return fail(error);
}

void Project_Session::finishOpening(const QString& path) {
  setPath(path);
  mHistory.clear();
  mWorkingState = mHistory.state();
  Binding_Refresh::all(mDatabase);
}

bool Project_Session::open(const QString& path, Working_Copy::Others others) {
  close();
  mLastError.clear();
  const QString absolutePath = QFileInfo(path).absoluteFilePath();
  const File_State state = File_State::of(absolutePath);
  if (!copyToWorkingFile(absolutePath, others) || !mDatabase.openProject(mWorkingCopy.path(), true)) {
    return failOpening(mLastError.isEmpty() ? mDatabase.lastError() : mLastError);
  }
  finishOpening(absolutePath);
  setFileState(state); // a change during the copying shows at the next save
  mWorkingCopy.settle(absolutePath);
  emit opened();
  return true;
}

bool Project_Session::recover(const QString& path, Working_Copy adopted) {
  close();
  mLastError.clear();
  mWorkingCopy = std::move(adopted);
  const File_State now = File_State::of(path);
  const bool isNewer = QFileInfo(path).lastModified() > QFileInfo(mWorkingCopy.path()).lastModified();
  const File_State base = Working_Copy::baseOf(mWorkingCopy.path()).value_or(isNewer ? File_State() : now);
  {
    // What a file is, is told from its bytes: those are right only when the engine has rolled the journal back.
    DB_Sqlite database;
    database.open(mWorkingCopy.path(), DB_Sqlite::Mode::ReadWrite);
    database.execute("SELECT 1 FROM sqlite_master");
  }
  if (!mDatabase.openProject(mWorkingCopy.path(), true)) {
    return failOpening(mDatabase.lastError());
  }
  finishOpening(QFileInfo(path).absoluteFilePath());
  setFileState(base);
  mHistory.setChangedOutside();
  mWorkingState = mHistory.state();
  emit opened();
  return true;
}

void Project_Session::acceptRecovered() {
  mWorkingCopy.own();
  Working_Copy::removeNeedless(mPath);
}

bool Project_Session::create(const QString& path, const New_Project::Options& options) {
  close();
  mLastError.clear();
  const QString absolutePath = QFileInfo(path).absoluteFilePath();
  if (!claim(mWorkingCopy, absolutePath)) {
    return false;
  }
  bool isOk = mDatabase.openProject(mWorkingCopy.path(), false);
  if (isOk) {
    New_Project::fill(mDatabase, options);
    isOk = writeTo(absolutePath) == Save_Result::Saved;
  }
  if (!isOk) {
    return failOpening(mLastError.isEmpty() ? mDatabase.lastError() : mLastError);
  }
  finishOpening(absolutePath);
  mWorkingCopy.settle(absolutePath);
  emit opened();
  return true;
}

bool Project_Session::mayAutosave() const {
  return !mHistory.isStepOpen() && !mDatabase.mAddresses.isChanging() && !mDatabase.isInTransaction();
}

bool Project_Session::isAutosaveDue() const {
  return isOpen() && (mHistory.isStepOpen() || mHistory.state() != mWorkingState);
}

/// Another studio may have taken the working file after something had deleted it with its lock: then this one goes on
/// with a further one.
bool Project_Session::keepWorkingFile() {
  if (mWorkingCopy.keepLock()) {
    return true;
  }
  if (!claim(mWorkingCopy, mPath, Working_Copy::Others::Keep)) {
    return false;
  }
  mDatabase.moveTo(mWorkingCopy.path());
  mWorkingCopy.rememberBase(mFileState);
  return true;
}

bool Project_Session::autosave() {
  mLastError.clear();
  if (!isOpen() || !mayAutosave()) {
    return fail(tr("Das Projekt wird gerade geändert."));
  }
  if (!keepWorkingFile()) {
    return false;
  }
  if ((!mDatabase.isOpen() && !mDatabase.attach(mWorkingCopy.path())) || !mDatabase.recordWriteChanged()) {
    return fail(mDatabase.lastError());
  }
  mWorkingState = mHistory.state();
  return true;
}

Project_Session::Save_Result Project_Session::writeTo(const QString& path) {
  mLastError.clear();
  mHistory.commit();
  if (isOpen() && !keepWorkingFile()) {
    return Save_Result::WriteFailed;
  }
  if (!mDatabase.isOpen() && !mDatabase.attach(mWorkingCopy.path())) {
    fail(mDatabase.lastError());
    return Save_Result::WriteFailed;
  }
  DB_Project& project = mDatabase.mProject;
  const DB_Project before = project;
  project.mName = QFileInfo(path).completeBaseName();
  project.mVersion = Version::studio();
  Save_Result result = Save_Result::Saved;
  mWorkingState.reset();
  if (!mDatabase.recordWriteAll(true) || !mDatabase.compact()) {
    fail(mDatabase.lastError());
    result = Save_Result::WriteFailed;
  } else if (!File_Copy::replace(mWorkingCopy.path(), path, mLastError)) {
    result = Save_Result::PublishFailed;
  }
  if (result == Save_Result::Saved) {
    mWorkingState = mHistory.state();
  } else {
    project = before;
  }
  return result;
}

Project_Session::Save_Result Project_Session::save() {
  const Save_Result result = writeTo(mPath);
  if (result == Save_Result::Saved) {
    setFileState(File_State::of(mPath));
    mHistory.setSaved();
  }
  return result;
}

Project_Session::Save_Result Project_Session::saveAs(const QString& path) {
  const QString absolutePath = QFileInfo(path).absoluteFilePath();
  if (absolutePath == mPath) {
    return save();
  }
  Working_Copy next;
  if (!claim(next, absolutePath)) {
    return Save_Result::PublishFailed;
  }
  const Save_Result result = writeTo(absolutePath);
  if (result != Save_Result::Saved) {
    return result;
  }
  mDatabase.detach();
  // The lock of the other name is what tells a second studio.
  const bool isMoved = QFile::rename(mWorkingCopy.path(), next.path()) || QFile::copy(mWorkingCopy.path(), next.path());
  if (isMoved) {
    std::swap(mWorkingCopy, next);
  }
  mDatabase.attach(mWorkingCopy.path());
  setPath(absolutePath);
  if (isMoved) {
    mWorkingCopy.settle(absolutePath);
  }
  mHistory.setSaved();
  return result;
}
