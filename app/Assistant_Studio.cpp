#include "app/Assistant_Studio.h"

#include "app/Program_Play.h"
#include "app/Project_Lifecycle.h"
#include "app/Project_Write.h"
#include "app/Window_Link.h"
#include "base/File_Copy.h"
#include "base/Session_State.h"
#include "base/Version.h"
#include "net/Main_Network_Client.h"
#include "net/dialogs/Controller_Commands.h"

#include <QApplication>
#include <QFileInfo>
#include <QThread>
#include <QWidget>

namespace {

QString busy() {
  return QStringLiteral("Im Studio laeuft gerade ein anderer Vorgang mit der Steuerung - bitte das Ende abwarten und "
                        "erneut aufrufen");
}

/// What keeps the project from being replaced: the event loop runs in the middle of what the user does, and that goes
/// on with pages of the project afterwards. Empty when nothing does.
QString obstacle() {
  if (const QWidget* const dialog = QApplication::activeModalWidget()) {
    const QString title = dialog->windowTitle().remove(QStringLiteral("[*]"));
    return QStringLiteral("Im Studio ist ein Dialog geoeffnet: \"%1\" - bitte zuerst schliessen").arg(title);
  }
  if (QApplication::activePopupWidget()) {
    return QStringLiteral("Im Studio ist ein Menue geoeffnet - bitte zuerst schliessen");
  }
  // The program's own loop is the first one.
  if (QThread::currentThread()->loopLevel() > 1) {
    return QStringLiteral("Im Studio zieht der Benutzer gerade etwas mit der Maus - bitte danach wiederholen");
  }
  return {};
}

/// Why a file cannot become the open project; empty when it can.
QString faultOf(const QString& path) {
  ProjectDatabase probe;
  if (!ProjectDatabase::isOlderLayout(path) && !probe.openProjectReadOnly(path)) {
    return probe.lastError();
  }
  return Version::isNewerThanStudio(probe.mProject.mVersion)
             ? QStringLiteral("Projekt wurde mit einer neueren Version des Studios erstellt (%1)")
                   .arg(probe.mProject.mVersion)
             : QString();
}

} // namespace

Assistant_Studio::Assistant_Studio(Parts parts, QWidget* window)
    : MCP_Studio(window),
      mParts(std::move(parts)),
      mWindow(window) {
  followLink();
}

void Assistant_Studio::followLink() {
  connect(&mParts.mLink.play(), &Program_Play::settled, this, &MCP_Studio::playSettled);
  connect(&mParts.mLink.write(), &Project_Write::started, this, &MCP_Studio::projectStarted);
  connect(&mParts.mLink.write(), &Project_Write::ended, this, &MCP_Studio::projectWriteEnded);
}

bool Assistant_Studio::hasWindow() const {
  const bool isClosed = mWindow->isHidden() && mWindow->testAttribute(Qt::WA_WState_ExplicitShowHide);
  return !isClosed;
}

/// Of what the studio would have told or asked last.
QString Assistant_Studio::reason() const {
  const QString text = mParts.mState.suppressedMessage().simplified();
  if (text.isEmpty()) {
    return QStringLiteral("Im Studio nicht moeglich");
  }
  return text.endsWith(u'?') ? QStringLiteral("Das muss der Benutzer im Studio entscheiden: \"%1\"").arg(text) : text;
}

Edit_Result Assistant_Studio::run(const Operation& operation) {
  if (mParts.mLifecycle.isBusy()) {
    return Edit_Result::refused(QStringLiteral("Im Studio ist gerade eine Frage zum Projekt offen"));
  }
  return mParts.mLifecycle.asAssistant(operation) ? Edit_Result::done() : Edit_Result::refused(reason());
}

/// An operation that leaves the open project: when it fails that is open again.
Edit_Result Assistant_Studio::replace(const Operation& operation) {
  if (const QString text = obstacle(); !text.isEmpty()) {
    return Edit_Result::refused(text);
  }
  const QString before = mParts.mSession.path();
  Edit_Result result = run(operation);
  if (result || before.isEmpty() || mParts.mSession.isOpen()) {
    return result;
  }
  const bool isBack = bool(run([this, &before] { return mParts.mLifecycle.open(before); }));
  result.mError += isBack ? QStringLiteral(" (das bisherige Projekt ist wieder geoeffnet)")
                          : QStringLiteral(" (es ist kein Projekt mehr geoeffnet, das bisherige ist gespeichert)");
  return result;
}

/// The project that is open already: saved, and read again where somebody else has changed its file.
Edit_Result Assistant_Studio::reopen() {
  if (mParts.mSession.isModified()) {
    return saveProject();
  }
  if (!mParts.mSession.isChangedOnDisk()) {
    return Edit_Result::done();
  }
  const QString path = mParts.mSession.path();
  const QString fault = faultOf(path);
  return fault.isEmpty() ? replace([this, &path] { return mParts.mLifecycle.close() && mParts.mLifecycle.open(path); })
                         : Edit_Result::refused(fault);
}

Edit_Result Assistant_Studio::saveProject() {
  return run([this] { return mParts.mLifecycle.save(); });
}

Edit_Result Assistant_Studio::openProject(const QString& path) {
  if (mParts.mSession.isOpen()) {
    if (File_Copy::isSamePath(path, mParts.mSession.path())) {
      return reopen();
    }
    if (const QString fault = faultOf(path); !fault.isEmpty()) {
      return Edit_Result::refused(fault);
    }
  }
  return replace([this, &path] { return mParts.mLifecycle.open(path); });
}

Edit_Result Assistant_Studio::saveProjectAs(const QString& path) {
  return run([this, &path] { return mParts.mLifecycle.saveAs(path); });
}

Edit_Result Assistant_Studio::createProject(const QString& path, const New_Project::Options& options) {
  return replace([this, &path, &options] { return mParts.mLifecycle.newProject(path, options); });
}

Edit_Result Assistant_Studio::showPage(const QUuid& page) {
  mParts.mShowPage(page);
  return Edit_Result::done();
}

Controller_Link* Assistant_Studio::link() {
  return &mParts.mLink.link();
}

Edit_Result Assistant_Studio::connectLink() {
  QString error;
  return mParts.mLink.dialQuietly(&error) ? Edit_Result::done() : Edit_Result::refused(error);
}

void Assistant_Studio::disconnectLink() {
  if (mParts.mLink.mayEnd()) {
    mParts.mLink.end();
  }
}

Edit_Result Assistant_Studio::setPlayMode(bool on, bool force) {
  Program_Play& play = mParts.mLink.play();
  if (on && (mParts.mLink.isSending() || (mParts.mLink.isOnline() && mParts.mLink.commands().isBusy()))) {
    return Edit_Result::refused(busy());
  }
  if (on && mParts.mCommitEdits) {
    mParts.mCommitEdits();
  }
  play.setOn(on, force);
  return Edit_Result::done();
}

bool Assistant_Studio::isPlayPending() const {
  return mParts.mLink.play().isRunning();
}

Edit_Result Assistant_Studio::writeProject() {
  Window_Link& link = mParts.mLink;
  if (!link.isOnline()) {
    return Edit_Result::refused(QStringLiteral("Keine Verbindung zur Steuerung"));
  }
  if (link.write().isRunning()) {
    return Edit_Result::refused(
        QStringLiteral("Das Projekt wird bereits auf die Steuerung geschrieben - bitte das Ende "
                       "abwarten"));
  }
  if (link.isSending() || link.commands().isBusy()) {
    return Edit_Result::refused(busy());
  }
  // The transfer saves it: what saving would ask is asked, and its default is to leave the file alone.
  if (Edit_Result mayBegin = run([this] { return mParts.mLifecycle.maySave(); }); !mayBegin) {
    return mayBegin;
  }
  link.write().start();
  return Edit_Result::done();
}

bool Assistant_Studio::isWritingProject() const {
  return mParts.mLink.write().isRunning();
}

bool Assistant_Studio::isRecordingDialogOpen() const {
  return mParts.mIsRecordingDialogOpen && mParts.mIsRecordingDialogOpen();
}

void Assistant_Studio::runOutsideReading(QObject* receiver, const std::function<void()>& what) {
  Main_Network_Client& client = mParts.mLink.link().client();
  if (client.isReading()) {
    client.queue(receiver, what);
  } else {
    what();
  }
}
