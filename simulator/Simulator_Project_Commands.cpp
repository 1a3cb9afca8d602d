// Writing a project, bringing a program over, forgetting both.
#include "db/Project_Image.h"
#include "net/Controller_Command.h"
#include "net/Resource_Message.h"
#include "simulator/Simulator_Commands.h"
#include "simulator/Simulator_Server.h"
#include "simulator/Simulator_Session.h"

#include <QCoreApplication>

#include <optional>

namespace {

using namespace Controller_Command;
using Simulator_Commands::Access;
using Simulator_Commands::Request;

QString tr(const char* text) {
  return QCoreApplication::translate("Simulator_Commands", text);
}

void refuse(const Request& request, const char* text) {
  request.mSession.refuse(request.mCommand, tr(text));
}

/// Forgets what is staged; the project that was there runs again.
void runOld(const Request& request) {
  request.mSession.staging() = {};
  if (request.mServer.writer() == &request.mSession) {
    request.mServer.setWriter(nullptr);
    request.mController.setStopped(false);
  }
}

bool isWritingElsewhere(const Request& request) {
  return request.mServer.writer() && request.mServer.writer() != &request.mSession;
}

void clear(const Request& request) {
  request.mSession.staging().mIsCleared = true;
}

void begin(const Request& request) {
  if (isWritingElsewhere(request)) {
    refuse(request, "Ein anderes Studio überträgt gerade ein Projekt.");
    return;
  }
  request.mServer.setWriter(&request.mSession);
  request.mController.setStopped(true);
  request.mSession.staging().mIsWriting = true;
  request.mSession.staging().mProject = {};
}

void record(const Request& request) {
  if (!request.mSession.staging().mIsWriting) {
    refuse(request, "Es wird kein Projekt übertragen.");
    return;
  }
  const qsizetype end = request.mPayload.indexOf('\0');
  request.mSession.staging().mProject.mRecords.insert(
      request.mCommand, (end < 0 ? request.mPayload : request.mPayload.first(end)).toByteArray());
}

void start(const Request& request) {
  Simulator_Session::Staging staged = request.mSession.staging();
  if (!staged.mIsWriting) {
    refuse(request, "Es wird kein Projekt übertragen.");
    return;
  }
  const QString fault = staged.mProject.fault();
  if (!fault.isEmpty()) {
    runOld(request);
    request.mSession.refuse(request.mCommand, fault);
    return;
  }
  const Simulator_Project& old = request.mController.project();
  staged.mProject.mProgram = staged.mHasProgram ? staged.mProgram.bytes() : old.mProgram;
  staged.mProject.mResources = staged.mIsCleared ? QMap<QByteArray, QByteArray>() : old.mResources;
  if (!request.mController.startProject(staged.mProject)) {
    runOld(request);
    refuse(request, "Die Steuerung konnte das Projekt nicht speichern.");
    return;
  }
  runOld(request);
  // Resources that another studio still sends are those of a project that is gone.
  request.mServer.forgetStarted();
  request.mSession.staging().mHasStarted = true;
  request.mSession.send(Project_Started, request.mController.project().mRecords.value(Record_Project) + '\0');
}

void resource(const Request& request) {
  const std::optional<Resource_Message> resource = Resource_Message::unpack(request.mPayload);
  if (!resource) {
    refuse(request, "Die Ressource hat keinen Namen.");
    return;
  }
  if (!request.mSession.staging().mHasStarted) {
    refuse(request, "Es wird kein Projekt übertragen.");
    return;
  }
  request.mController.changeProject().mResources.insert(resource->mName, resource->mBytes);
  request.mSession.staging().mResources.insert(resource->mName);
  request.mSession.sendText(Resource_Stored, QString::fromUtf8(resource->mName));
}

void resourcesBegin(const Request& request) {
  request.mSession.staging().mResources.clear();
}

/// A project that has started has the resources that came since, and no others.
void finishResources(const Request& request) {
  Simulator_Session::Staging& staging = request.mSession.staging();
  if (staging.mHasStarted) {
    request.mController.changeProject().mResources.removeIf(
        [&staging](const auto& resource) { return !staging.mResources.contains(resource.key()); });
    staging = {};
  }
  request.mController.storeProject();
}

void compact(const Request& request) {
  finishResources(request);
  request.mSession.send(Compacted);
}

void programBegin(const Request& request) {
  QString error;
  request.mSession.staging().mHasProgram = false;
  if (!request.mSession.staging().mProgram.begin(request.mPayload, &error)) {
    request.mSession.refuse(request.mCommand, error);
  }
}

void programData(const Request& request) {
  QString error;
  if (!request.mSession.staging().mProgram.take(request.mPayload, &error)) {
    request.mSession.staging().mProgram = {};
    request.mSession.refuse(request.mCommand, error);
  }
}

void programEnd(const Request& request) {
  Simulator_Session::Staging& staging = request.mSession.staging();
  QString error = tr("Das Programm ist nicht vollständig angekommen.");
  if (!staging.mProgram.isComplete() || !Project_Image::fromBytes(staging.mProgram.bytes(), &error)) {
    staging.mProgram = {};
    request.mSession.refuse(request.mCommand, error);
    return;
  }
  staging.mHasProgram = true;
  request.mSession.send(Program_Staged);
}

void programStart(const Request& request) {
  if (!request.mSession.staging().mHasProgram) {
    refuse(request, "Es ist kein Programm übertragen.");
  } else if (request.mController.isStopped()) {
    refuse(request, "Die Steuerung steht, weil ein Projekt übertragen wird.");
  } else {
    request.mController.startProgram(request.mSession.staging().mProgram.bytes());
    request.mSession.staging() = {};
    request.mSession.send(Program_Started,
                          request.mController.project().told(request.mController.isRunning()).toData());
  }
}

void abortTransfer(const Request& request) {
  runOld(request);
  request.mSession.send(Transfer_Aborted);
}

void reset(const Request& request) {
  if (isWritingElsewhere(request)) {
    refuse(request, "Ein anderes Studio überträgt gerade ein Projekt.");
    return;
  }
  runOld(request);
  request.mServer.forgetStarted();
  request.mController.reset();
  request.mSession.send(Reset_Reply);
}

constexpr Simulator_Commands::Row cRows[] = {
    {Project_Clear, Access::Logged_On, clear},
    {Project_Begin, Access::Logged_On, begin},
    {Record_Project, Access::Logged_On, record},
    {Record_Connections, Access::Logged_On, record},
    {Record_Style, Access::Logged_On, record},
    {Record_M8800, Access::Logged_On, record},
    {Record_Mail, Access::Logged_On, record},
    {Record_Statistic, Access::Logged_On, record},
    {Record_TgmMon, Access::Logged_On, record},
    {Project_Start, Access::Logged_On, start},
    {Resources_Begin, Access::Logged_On, resourcesBegin},
    {Resource, Access::Logged_On, resource},
    {Compact, Access::Logged_On, compact},
    {Project_Closed, Access::Logged_On, finishResources},
    {Program_Begin, Access::Logged_On, programBegin},
    {Program_Data, Access::Logged_On, programData},
    {Program_End, Access::Logged_On, programEnd},
    {Program_Start, Access::Logged_On, programStart},
    {Transfer_Abort, Access::Logged_On, abortTransfer},
    {Reset, Access::Logged_On, reset},
};

} // namespace

std::span<const Simulator_Commands::Row> Simulator_Commands::projectRows() {
  return cRows;
}
