#include "base/App_Settings.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr int cLastProjectsLimit = 12;
constexpr int cHighestPort = 65535;

const QString cGroup = QStringLiteral("Settings/");
const QString cLastProjectsKey = QStringLiteral("mLastProjectsList");
const QString cPathKey = QStringLiteral("path");

std::unique_ptr<QSettings> openStore(const QString& file) {
  if (file.isEmpty()) {
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quarna"),
                                       QStringLiteral("Quarna-Studio"));
  }
  return std::make_unique<QSettings>(file, QSettings::IniFormat);
}

} // namespace

App_Settings::App_Settings(const QString& file) : mStore(openStore(file)) {
  if (file.isEmpty()) {
    return;
  }
  // The sections are read late; a file that is none would be told as empty and then written over.
  static_cast<void>(mStore->allKeys());
  if (QFileInfo(file).isDir() || mStore->status() != QSettings::NoError) {
    mError = QCoreApplication::translate("App_Settings", "Die Einstellungsdatei \"%1\" kann nicht gelesen werden.")
                 .arg(file);
  } else if (!mStore->isWritable()) {
    mError = QCoreApplication::translate("App_Settings", "Die Einstellungsdatei \"%1\" kann nicht geschrieben werden.")
                 .arg(file);
  }
}

QVariant App_Settings::value(const QString& key) const {
  return mStore->value(cGroup + key);
}

void App_Settings::setValue(const QString& key, const QVariant& value, const QVariant& defaultValue) {
  if (value == defaultValue) {
    mStore->remove(cGroup + key);
  } else {
    mStore->setValue(cGroup + key, value);
  }
}

QString App_Settings::languageDev() const {
  const QString code = value(QStringLiteral("LanguageDev")).toString();
  return code.isEmpty() ? QStringLiteral("de") : code;
}

void App_Settings::setLanguageDev(const QString& code) {
  setValue(QStringLiteral("LanguageDev"), code, QStringLiteral("de"));
}

QByteArray App_Settings::windowState() const {
  return value(QStringLiteral("WindowState")).toByteArray();
}

void App_Settings::setWindowState(const QByteArray& state) {
  setValue(QStringLiteral("WindowState"), state, QByteArray());
}

QByteArray App_Settings::windowGeometry() const {
  return value(QStringLiteral("WindowGeometry")).toByteArray();
}

void App_Settings::setWindowGeometry(const QByteArray& geometry) {
  setValue(QStringLiteral("WindowGeometry"), geometry, QByteArray());
}

QByteArray App_Settings::viewState(const QString& name) const {
  return value(name).toByteArray();
}

void App_Settings::setViewState(const QString& name, const QByteArray& state) {
  setValue(name, state, QByteArray());
}

QStringList App_Settings::lastProjects() const {
  QStringList paths;
  const int size = qMin(mStore->beginReadArray(cGroup + cLastProjectsKey), cLastProjectsLimit);
  for (int i = 0; i < size; ++i) {
    mStore->setArrayIndex(i);
    const QString path = mStore->value(cPathKey).toString();
    if (!path.isEmpty() && !paths.contains(path)) {
      paths.append(path);
    }
  }
  mStore->endArray();
  return paths;
}

void App_Settings::addLastProject(const QString& path) {
  QStringList paths = lastProjects();
  paths.removeAll(path);
  paths.prepend(path);
  paths = paths.first(qMin<qsizetype>(paths.size(), cLastProjectsLimit));
  mStore->remove(cGroup + cLastProjectsKey);
  mStore->beginWriteArray(cGroup + cLastProjectsKey, static_cast<int>(paths.size()));
  for (int i = 0; i < paths.size(); ++i) {
    mStore->setArrayIndex(i);
    mStore->setValue(cPathKey, paths[i]);
  }
  mStore->endArray();
}

void App_Settings::removeLastProject(const QString& path) {
  const QStringList paths = lastProjects();
  mStore->remove(cGroup + cLastProjectsKey);
  for (qsizetype i = paths.size() - 1; i >= 0; --i) {
    if (paths[i] != path) {
      addLastProject(paths[i]);
    }
  }
}

QString App_Settings::lastProjectDir() const {
  return value(QStringLiteral("mLastProjectDir")).toString();
}

void App_Settings::setLastProjectDir(const QString& dir) {
  setValue(QStringLiteral("mLastProjectDir"), dir, QString());
}

int App_Settings::mcpPort() const {
  bool ok = false;
  const int port = value(QStringLiteral("mMcpPort")).toInt(&ok);
  return ok && port >= 0 && port <= cHighestPort ? port : 0;
}

void App_Settings::setMcpPort(int port) {
  setValue(QStringLiteral("mMcpPort"), port, 0);
}
