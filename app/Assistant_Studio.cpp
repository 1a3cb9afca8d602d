#include "app/Assistant_Studio.h"

#include "app/Program_Play.h"
#include "app/Project_Lifecycle.h"
#include "app/Project_Write.h"
#include "app/Window_Link.h"
#include "base/Session_State.h"
#include "net/Main_Network_Client.h"
#include "net/dialogs/Controller_Commands.h"

namespace {

QString busy() {
  return QStringLiteral("Im Studio laeuft gerade ein anderer Vorgang mit der Steuerung - bitte das Ende abwarten und "
                        "erneut aufrufen");
}

} // namespace

Assistant_Studio::Assistant_Studio(Parts parts, QObject* parent) : MCP_Studio(parent), mParts(std::move(parts)) {
  followLink();
}

void Assistant_Studio::followLink() {
  connect(&mParts.mLink.play(), &Program_Play::settled, this, &MCP_Studio::playSettled);
  connect(&mParts.mLink.write(), &Project_Write::started, this, &MCP_Studio::projectStarted);
  connect(&mParts.mLink.write(), &Project_Write::ended, this, &MCP_Studio::projectWriteEnded);
}

Edit_Result Assistant_Studio::run(const std::function<bool()>& operation) {
  if (mParts.mLifecycle.isBusy()) {
    return Edit_Result::refused(QStringLiteral("Im Studio ist gerade eine Frage zum Projekt offen"));
  }
  if (mParts.mLifecycle.asAssistant(operation)) {
    return Edit_Result::done();
  }
  const QString reason = mParts.mState.suppressedMessage();
  return Edit_Result::refused(reason.isEmpty() ? QStringLiteral("Im Studio nicht moeglich") : reason);
}

Edit_Result Assistant_Studio::saveProject() {
  return run([this] { return mParts.mLifecycle.save(); });
}

Edit_Result Assistant_Studio::openProject(const QString& path) {
  return run([this, &path] { return mParts.mLifecycle.open(path); });
}

Edit_Result Assistant_Studio::saveProjectAs(const QString& path) {
  return run([this, &path] { return mParts.mLifecycle.saveAs(path); });
}

Edit_Result Assistant_Studio::createProject(const QString& path, const New_Project::Options& options) {
  return run([this, &path, &options] { return mParts.mLifecycle.newProject(path, options); });
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
  if (const Edit_Result mayBegin = run([this] { return mParts.mLifecycle.maySave(); }); !mayBegin) {
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
