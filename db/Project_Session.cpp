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
      mProjectUndo(mDatabase, DB_Table::Project) {
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

bool Project_Session::fail(const QString& text) {
  mLastError = text;
  return false;
}

Project_Session::Fingerprint Project_Session::fingerprintOf(const QString& path) {
  const QFileInfo info(path);
  return info.exists() ? Fingerprint{true, info.size(), info.lastModified()} : Fingerprint{};
}

bool Project_Session::isChangedOnDisk() const {
  return isOpen() && fingerprintOf(mPath) != mFingerprint;
}

void Project_Session::setPath(const QString& path) {
  mPath = path;
  mFingerprint = fingerprintOf(path);
  emit pathChanged();
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
    emit closed();
  }
}

bool Project_Session::claim(Working_Copy& copy, const QString& path) {
  // The longest name beside the working file is its journal's.
  constexpr qsizetype cLongestName = 255;
  const QString name = QFileInfo(Working_Copy::pathFor(path)).fileName() + QStringLiteral("-journal");
  if (name.toUtf8().size() > cLongestName) {
    return fail(tr("Der Dateiname \"%1\" ist zu lang.").arg(QFileInfo(path).fileName()));
  }
  return copy.claim(path) ||
         fail(tr("Die Arbeitsdatei \"%1\" kann nicht angelegt werden.").arg(Working_Copy::pathFor(path)));
}

bool Project_Session::copyToWorkingFile(const QString& path) {
  if (!claim(mWorkingCopy, path)) {
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

bool Project_Session::open(const QString& path) {
  close();
  mLastError.clear();
  const QString absolutePath = QFileInfo(path).absoluteFilePath();
  const Fingerprint fingerprint = fingerprintOf(absolutePath);
  if (!copyToWorkingFile(absolutePath) || !mDatabase.openProject(mWorkingCopy.path(), true)) {
    const QString error = mLastError.isEmpty() ? mDatabase.lastError() : mLastError;
    mDatabase.close();
    mWorkingCopy.release();
    return fail(error);
  }
  setPath(absolutePath);
  mFingerprint = fingerprint; // a change during the copying shows at the next save
  mHistory.clear();
  Binding_Refresh::all(mDatabase);
  emit opened();
  return true;
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
    const QString error = mLastError.isEmpty() ? mDatabase.lastError() : mLastError;
    mDatabase.close();
    mWorkingCopy.release();
    return fail(error);
  }
  setPath(absolutePath);
  mHistory.clear();
  Binding_Refresh::all(mDatabase);
  emit opened();
  return true;
}

Project_Session::Save_Result Project_Session::writeTo(const QString& path) {
  mLastError.clear();
  mHistory.commit();
  if (!mDatabase.isOpen() && !mDatabase.attach(mWorkingCopy.path())) {
    fail(mDatabase.lastError());
    return Save_Result::WriteFailed;
  }
  DB_Project& project = mDatabase.mProject;
  const DB_Project before = project;
  project.mName = QFileInfo(path).completeBaseName();
  project.mVersion = Version::studio();
  Save_Result result = Save_Result::Saved;
  if (!mDatabase.recordWriteAll(true) || !mDatabase.compact()) {
    fail(mDatabase.lastError());
    result = Save_Result::WriteFailed;
  } else if (!File_Copy::replace(mWorkingCopy.path(), path, mLastError)) {
    result = Save_Result::PublishFailed;
  }
  if (result != Save_Result::Saved) {
    project = before;
  }
  return result;
}

Project_Session::Save_Result Project_Session::save() {
  const Save_Result result = writeTo(mPath);
  if (result == Save_Result::Saved) {
    mFingerprint = fingerprintOf(mPath);
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
  const bool isMoved = QFile::rename(mWorkingCopy.path(), next.path());
  if (isMoved) {
    std::swap(mWorkingCopy, next);
  }
  mDatabase.attach(mWorkingCopy.path());
  setPath(absolutePath);
  mHistory.setSaved();
  return result;
}
