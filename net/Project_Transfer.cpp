#include "net/Project_Transfer.h"

#include "db/Project_Image.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Resource_Message.h"

#include <algorithm>

namespace {

constexpr int cPercent = 100;
constexpr int cSaving = 10;
constexpr int cStopping = 50;
constexpr int cWriting = 60;
constexpr int cStarted = 80;

constexpr std::array<quint32, 7> cRecordCommands = {
    Controller_Command::Record_Project, Controller_Command::Record_Connections, Controller_Command::Record_Style,
    Controller_Command::Record_M8800,   Controller_Command::Record_Mail,        Controller_Command::Record_Statistic,
    Controller_Command::Record_TgmMon,
};

} // namespace

Project_Transfer::Project_Transfer(Main_Network_Client& client, Project_Session& session, Options options,
                                   QObject* parent)
    : Controller_Exchange(client, parent),
      mSession(session),
      mOptions(options),
      mSender(client) {
  connect(&mSender, &Paced_Sender::moved, this, [this] {
    restartTimeout();
    if (mStep == Step::Staging) {
      const int done = mProgram->percent(this->client().bytesToWrite());
      emit progress(tr("Programm übertragen"), cSaving + done * (cStopping - cSaving) / cPercent, cPercent);
    }
  });
  connect(&session, &Project_Session::aboutToClose, this, [this] {
    if (isRunning()) {
      fail(tr("Das Projekt wurde geschlossen."));
    }
  });
}

Project_Transfer::~Project_Transfer() {
  if (isRunning()) {
    Project_Transfer::abort();
  }
}

void Project_Transfer::later(void (Project_Transfer::*step)()) {
  QTimer::singleShot(0, this, [this, step] {
    if (isRunning()) {
      (this->*step)();
    }
  });
}

void Project_Transfer::begin() {
  if (!mSession.isOpen()) {
    fail(tr("Es ist kein Projekt geöffnet."));
    return;
  }
  emit progress(tr("Projekt lokal speichern"), cSaving, cPercent);
  later(&Project_Transfer::saveFirst);
}

void Project_Transfer::saveFirst() {
  if (mSession.save() != Project_Session::Save_Result::Saved) {
    fail(tr("Das Projekt konnte nicht gespeichert werden, an der Steuerung ist nichts geändert: %1")
             .arg(mSession.lastError()));
    return;
  }
  if (!checkResources()) {
    return;
  }
  // What is edited from now on belongs to the next write.
  const ProjectDatabase& database = mSession.database();
  const std::array<const DB_Data_Base*, 7> records = {&database.mProject, &database.mConnections, &database.mStyle,
                                                      &database.mM8800,   &database.mMail,        &database.mStatistic,
                                                      &database.mTgmMon};
  std::transform(records.cbegin(), records.cend(), mRecords.begin(),
                 [](const DB_Data_Base* record) { return record->toData() + '\0'; });
  mProgram.emplace(Stream_Out::Commands{Controller_Command::Program_Begin, Controller_Command::Program_Data,
                                        Controller_Command::Program_End},
                   Project_Image::program(database).toBytes());
  mStep = Step::Staging;
  emit progress(tr("Programm übertragen"), cSaving, cPercent);
  if (!isRunning()) {
    return;
  }
  restartTimeout();
  mSender.start([this] {
    mMustForget = true;
    return mProgram->sendNext([this](quint32 command, QByteArrayView payload) { return send(command, payload); });
  });
}

/// Before anything has changed: a file that no message can carry would end the write half-way.
bool Project_Transfer::checkResources() {
  std::vector<ProjectDatabase::Resource_Size> sizes;
  if (!mSession.database().ressourceSizes(sizes)) {
    fail(mSession.database().lastError());
    return false;
  }
  for (const ProjectDatabase::Resource_Size& size : sizes) {
    if (size.mBytes > Resource_Message::cMostBytes) {
      fail(tr("Die Ressource \"%1\" ist mit %2 Byte zu groß für die Übertragung, erlaubt sind %3.")
               .arg(size.mName.left(60))
               .arg(size.mBytes)
               .arg(Resource_Message::cMostBytes));
      return false;
    }
  }
  return true;
}

void Project_Transfer::stopController() {
  if (mOptions.mClearFirst && !send(Controller_Command::Project_Clear)) {
    return;
  }
  emit progress(tr("Steuerung stopp"), cStopping, cPercent);
  if (send(Controller_Command::Project_Begin)) {
    emit progress(tr("Projekt..."), cWriting, cPercent);
    later(&Project_Transfer::sendRecords);
  }
}

void Project_Transfer::sendRecords() {
  for (size_t i = 0; i < cRecordCommands.size(); ++i) {
    if (!send(cRecordCommands[i], mRecords[i])) {
      return;
    }
  }
  emit progress(tr("Projekt übertragen, Runtime start..."), cWriting, cPercent);
  later(&Project_Transfer::startController);
}

void Project_Transfer::startController() {
  mStep = Step::Starting;
  restartTimeout();
  send(Controller_Command::Project_Start);
}

bool Project_Transfer::take(quint32 command, QByteArrayView payload) {
  if (mStep == Step::Staging && command == Controller_Command::Program_Staged && mProgram->isSent()) {
    mSender.stop();
    mStep = Step::Writing;
    later(&Project_Transfer::stopController);
    return true;
  }
  if (mStep == Step::Starting && command == Controller_Command::Project_Started && !text(payload).isEmpty()) {
    takeStarted(payload);
    return true;
  }
  const bool isStored = command == Controller_Command::Resource_Stored && !payload.isEmpty();
  if (mStep == Step::Resources && isStored && mOutstanding > mFiles.size() - mFilesTaken) {
    countResource();
    return true;
  }
  if (mStep == Step::Waiting && command == Controller_Command::Compacted) {
    emit progress(tr("Projekt erfolgreich gespeichert"), cPercent, cPercent);
    if (send(Controller_Command::Project_Closed)) {
      succeed();
    }
    return true;
  }
  return false;
}

/// At once, though it takes a moment: a link that is lost next must not lose what the controller calls the project.
void Project_Transfer::takeStarted(QByteArrayView payload) {
  mHasStarted = true;
  mStep = Step::Resources;
  DB_Project told;
  told.setData(text(payload).toUtf8());
  DB_Project& project = mSession.database().mProject;
  project.mControllerProjectId = told.mControllerProjectId;
  project.mGeneration = mGeneration = told.mGeneration;
  emit mSession.database().recordChanged(DB_Table::Project);
  emit progress(tr("Projekt erfolgreich auf Steuerung übertragen"), cStarted, cPercent);
  if (mSession.save() != Project_Session::Save_Result::Saved) {
    fail(tr("Das Projekt läuft auf der Steuerung, konnte aber hier nicht gespeichert werden: %1")
             .arg(mSession.lastError()));
    return;
  }
  later(&Project_Transfer::beginResources);
}

void Project_Transfer::beginResources() {
  emit projectStarted(mGeneration);
  std::vector<ProjectDatabase::Resource_Size> sizes;
  if (!mSession.database().ressourceSizes(sizes)) {
    fail(mSession.database().lastError());
    return;
  }
  for (const ProjectDatabase::Resource_Size& size : sizes) {
    if (size.mBytes > 0) {
      mFiles.append(size.mName);
    }
  }
  restartTimeout();
  if (mFiles.isEmpty()) {
    mStep = Step::Compacting;
    emit progress(tr("Datenbankoptimierung..."), cStarted, cPercent);
    later(&Project_Transfer::compact);
    return;
  }
  mOutstanding = mFiles.size();
  emit progress(tr("Übertrage Ressourcen"), 0, static_cast<int>(mFiles.size()));
  if (send(Controller_Command::Resources_Begin)) {
    mSender.start([this] { return sendNextResource(); });
  }
}

/// One that was deleted meanwhile is passed over.
bool Project_Transfer::sendNextResource() {
  while (isRunning() && mFilesTaken < mFiles.size()) {
    const QString name = mFiles.at(mFilesTaken++);
    QByteArray bytes;
    const bool isThere = mSession.database().ressourceReadRaw(name, bytes) && !bytes.isEmpty();
    if (isThere && bytes.size() <= Resource_Message::cMostBytes) {
      return send(Controller_Command::Resource, Resource_Message::pack(name, bytes));
    }
    countResource();
  }
  return false;
}

void Project_Transfer::countResource() {
  --mOutstanding;
  const int files = static_cast<int>(mFiles.size());
  emit progress(tr("Übertrage Ressourcen"), files - static_cast<int>(mOutstanding), files);
  if (mOutstanding == 0) {
    mStep = Step::Compacting;
    emit progress(tr("Alle Ressourcen übertragen"), files, files);
    emit progress(tr("Projektoptimierung"), files, files);
    later(&Project_Transfer::compact);
  }
}

void Project_Transfer::compact() {
  if (!mSession.database().compact()) {
    fail(mSession.database().lastError());
    return;
  }
  mStep = Step::Waiting;
  restartTimeout();
  sendText(Controller_Command::Compact, QStringLiteral("VACUUM"));
}

void Project_Transfer::abort() {
  mSender.stop();
  if (mHasStarted) {
    if (end() == End::Cancelled) {
      const int files = static_cast<int>(mFiles.size());
      emit progress(tr("Das Projekt läuft auf der Steuerung. Die Übertragung der Ressourcen ist abgebrochen."),
                    files - static_cast<int>(mOutstanding), files);
    }
  } else if (mMustForget) {
    client().sendCommand(Controller_Command::Transfer_Abort);
  }
}
