#include "simulator/Simulator_Controller.h"

#include "base/Version.h"
#include "db/Connection_Defaults.h"
#include "net/Persistent_Values.h"

#include <QDataStream>
#include <QDateTime>
#include <QIODevice>
#include <QRandomGenerator>
#include <QSysInfo>
#include <QUuid>

#include <optional>
#include <utility>

namespace {

const QString cSettingsFile = QStringLiteral("settings.txt");
const QString cProjectFile = QStringLiteral("project.bin");
const QString cValuesFile = QStringLiteral("values.txt");
const QString cScriptsFile = QStringLiteral("scripts.bin");
constexpr QDataStream::Version cLayout = QDataStream::Qt_6_0;
constexpr qint64 cMsecs = 1000;
constexpr int cSerialDigits = 8;
/// The physical address of the controller on the bus.
constexpr int cOwnArea = 1;
constexpr int cOwnLine = 0;
constexpr int cOwnDevice = 255;

} // namespace

Simulator_Controller::Simulator_Controller(Simulator_Options options, QObject* parent)
    : QObject(parent),
      mOptions(std::move(options)),
      mStore(mOptions.mFolder) {
  if (mOptions.mUser.isEmpty()) {
    mOptions.mUser = Connection_Defaults::user();
  }
  if (mOptions.mPassword.isNull()) {
    mOptions.mPassword = Connection_Defaults::password();
  }
  load();
}

void Simulator_Controller::load() {
  mSinceStart.start();
  mIsStopped = false;
  mSettings = {};
  mSettings.setData(mStore.read(cSettingsFile));
  if (mSettings.mSerialNumber.isEmpty()) {
    mSettings.mSerialNumber =
        QStringLiteral("SIM%1").arg(QRandomGenerator::global()->bounded(100'000'000), cSerialDigits, 10, QChar(u'0'));
    mSettings.mNetwork.mAddress = mOptions.mListen.toString();
    mSettings.mNetwork.mMask = QStringLiteral("255.0.0.0");
    storeSettings();
  }
  mProject = Simulator_Project::fromBytes(mStore.read(cProjectFile)).value_or(Simulator_Project());
  mValues.clear();
  mScriptValues.clear();
  mValues.take(Persistent_Values::fromBytes(mStore.read(cValuesFile)).value_or(Persistent_Values()));
  QDataStream scripts(mStore.read(cScriptsFile));
  scripts.setVersion(cLayout);
  scripts >> mScriptValues;
  readProgram();
}

bool Simulator_Controller::storeValues() {
  return mStore.write(cValuesFile, mValues.persistent().toBytes());
}

bool Simulator_Controller::storeSettings() {
  return mStore.write(cSettingsFile, mSettings.toData());
}

bool Simulator_Controller::storeProject() {
  return mStore.write(cProjectFile, mProject.toBytes());
}

bool Simulator_Controller::isLogOnRight(const QString& user, const QString& password) const {
  return user == mOptions.mUser && password == mOptions.mPassword;
}

DB_Controller_Informations Simulator_Controller::informations() const {
  const DB_Project project = mProject.header();
  DB_Controller_Informations told;
  told.mName = mOptions.mName;
  told.mSerialNumber = mSettings.mSerialNumber;
  told.mRuntimeVersion = QStringLiteral("%1 (Simulator)").arg(Version::studio());
  told.mSystemVersion = QSysInfo::prettyProductName();
  told.mProjectName = project.mName;
  told.mProjectTimestamp = project.mTimestamp;
  told.mNumber = mSettings.mNumber;
  told.mIsRunning = isRunning();
  return told;
}

qint64 Simulator_Controller::now() const {
  return QDateTime::currentMSecsSinceEpoch() + mSettings.mClockOffset;
}

void Simulator_Controller::setClock(qint64 msecs) {
  mSettings.mClockOffset = msecs - QDateTime::currentMSecsSinceEpoch();
  storeSettings();
}

bool Simulator_Controller::startProject(Simulator_Project project) {
  const DB_Project before = mProject.header();
  DB_Project header = project.header();
  header.mGeneration = ++mSettings.mGeneration;
  header.mControllerProjectId = before.mProjectId == header.mProjectId && !before.mControllerProjectId.isEmpty()
                                    ? before.mControllerProjectId
                                    : QUuid::createUuid().toString(QUuid::WithoutBraces);
  project.setHeader(header);
  mProject = std::move(project);
  mIsStopped = false;
  const bool isStored = storeProject() && storeSettings();
  readProgram();
  return storeValues() && isStored;
}

bool Simulator_Controller::startProgram(const QByteArray& program) {
  mProject.mProgram = program;
  const bool isStored = storeProject();
  readProgram();
  return isStored;
}

bool Simulator_Controller::restore(const Simulator_Project* project, const QByteArray* values) {
  bool isStored = true;
  if (project) {
    mProject = *project;
    isStored = storeProject();
  }
  if (values) {
    mValues.clear();
    mValues.take(Persistent_Values::fromBytes(*values).value_or(Persistent_Values()));
  }
  readProgram();
  return storeValues() && isStored;
}

void Simulator_Controller::reset() {
  mProject = {};
  mValues.clear();
  mScriptValues.clear();
  mStore.remove(cScriptsFile);
  storeProject();
  readProgram();
  storeValues();
}

void Simulator_Controller::readProgram() {
  mProgram = Simulator_Program::read(mProject.mProgram);
  mValues.setAddresses(mProgram.mAddresses);
  emit programStarted();
}

void Simulator_Controller::writeValue(const Group_Address& address, const QByteArray& payload, int area, int line,
                                      int device) {
  mValues.set(address, payload);
  DB_Address_Network_Telegram telegram =
      DB_Address_Network_Telegram::to(address, DB_Address_Network_Telegram::Write, payload);
  telegram.mKind = DB_Address_Network_Telegram::cKindBus;
  telegram.mSourceArea = static_cast<quint32>(area);
  telegram.mSourceLine = static_cast<quint32>(line);
  telegram.mSourceDevice = static_cast<quint32>(device);
  telegram.mTime = static_cast<quint32>(now() / cMsecs);
  emit told(telegram);
}

void Simulator_Controller::writeValue(const Group_Address& address, const QByteArray& payload) {
  writeValue(address, payload, cOwnArea, cOwnLine, cOwnDevice);
}

void Simulator_Controller::setScriptValue(const QString& name, const QString& value) {
  if (mScriptValues.value(name) != value || !mScriptValues.contains(name)) {
    mScriptValues.insert(name, value);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(cLayout);
    stream << mScriptValues;
    mStore.write(cScriptsFile, bytes);
  }
}
