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

#include <algorithm>
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

template <class Content, class Read>
Content Simulator_Controller::kept(const QString& name, Read read) {
  const QByteArray bytes = mStore.read(name);
  std::optional<Content> content = bytes.isEmpty() ? Content() : read(bytes);
  if (!content && mFault.isEmpty()) {
    mFault = tr("Die Datei \"%1\" im Ordner \"%2\" ist beschädigt. Mit einem anderen Ordner oder ohne diese Datei "
                "startet der Simulator.")
                 .arg(name, mOptions.mFolder);
  }
  return content.value_or(Content());
}

bool Simulator_Controller::load() {
  mFault = mStore.fault();
  auto settings = kept<Simulator_Settings>(cSettingsFile, [](const QByteArray& bytes) {
    Simulator_Settings read;
    read.setData(bytes);
    return read.mSerialNumber.isEmpty() ? std::nullopt : std::optional(read);
  });
  auto project = kept<Simulator_Project>(cProjectFile,
                                         [](const QByteArray& bytes) { return Simulator_Project::fromBytes(bytes); });
  const auto values =
      kept<Persistent_Values>(cValuesFile, [](const QByteArray& bytes) { return Persistent_Values::fromBytes(bytes); });
  auto scriptValues = kept<QMap<QString, QString>>(cScriptsFile, [](const QByteArray& bytes) {
    QDataStream stream(bytes);
    stream.setVersion(cLayout);
    QMap<QString, QString> read;
    stream >> read;
    return stream.status() == QDataStream::Ok ? std::optional(read) : std::nullopt;
  });
  if (!mFault.isEmpty()) {
    return false;
  }
  mSinceStart.start();
  mIsStopped = false;
  mSettings = std::move(settings);
  if (mSettings.mSerialNumber.isEmpty()) {
    mSettings.mSerialNumber =
        QStringLiteral("SIM%1").arg(QRandomGenerator::global()->bounded(100'000'000), cSerialDigits, 10, QChar(u'0'));
    mSettings.mNetwork.mAddress = mOptions.mListen.toString();
    mSettings.mNetwork.mMask = QStringLiteral("255.0.0.0");
    storeSettings();
  }
  mProject = std::move(project);
  // The project is stored before its count.
  mSettings.mGeneration = std::max(mSettings.mGeneration, mProject.header().mGeneration);
  mValues.clear();
  mValues.take(values);
  mScriptValues = std::move(scriptValues);
  readProgram();
  return true;
}

bool Simulator_Controller::storeValues() {
  return mFault.isEmpty() && mStore.write(cValuesFile, mValues.persistent().toBytes());
}

bool Simulator_Controller::storeSettings() {
  return mFault.isEmpty() && mStore.write(cSettingsFile, mSettings.toData());
}

bool Simulator_Controller::storeProject() {
  return mFault.isEmpty() && mStore.write(cProjectFile, mProject.toBytes());
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
  header.mGeneration = mSettings.mGeneration + 1;
  header.mControllerProjectId = before.mProjectId == header.mProjectId && !before.mControllerProjectId.isEmpty()
                                    ? before.mControllerProjectId
                                    : QUuid::createUuid().toString(QUuid::WithoutBraces);
  project.setHeader(header);
  if (!mStore.write(cProjectFile, project.toBytes())) {
    return false;
  }
  mProject = std::move(project);
  mSettings.mGeneration = header.mGeneration;
  mIsStopped = false;
  readProgram();
  // The project is the controller's already; what these keep comes again with the next write.
  storeSettings();
  storeValues();
  return true;
}

void Simulator_Controller::startProgram(const QByteArray& program) {
  mProject.mProgram = program;
  readProgram();
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
  if (!Simulator_Values::isPossible(address, payload)) {
    return;
  }
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
