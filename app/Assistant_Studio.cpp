#include "app/Assistant_Studio.h"

#include "app/Program_Play.h"
#include "app/Project_Lifecycle.h"
#include "app/Window_Link.h"
#include "base/Session_State.h"
#include "net/Main_Network_Client.h"

Assistant_Studio::Assistant_Studio(Parts parts, QObject* parent) : MCP_Studio(parent), mParts(std::move(parts)) {}

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
  return mParts.mLink.link().connectToSelected(&error) ? Edit_Result::done() : Edit_Result::refused(error);
}

void Assistant_Studio::disconnectLink() {
  mParts.mLink.end();
}

Edit_Result Assistant_Studio::setPlayMode(bool on, bool force) {
  Q_UNUSED(on)
  Q_UNUSED(force)
  return Edit_Result::refused(QStringLiteral("Noch nicht verfuegbar"));
}

bool Assistant_Studio::isPlayPending() const {
  return mParts.mLink.play().isRunning();
}

Edit_Result Assistant_Studio::writeProject() {
  return Edit_Result::refused(QStringLiteral("Noch nicht verfuegbar"));
}

bool Assistant_Studio::isWritingProject() const {
  return false;
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
