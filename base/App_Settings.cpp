#include "base/App_Settings.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qsizetype cLastProjectsLimit = 12;
constexpr qsizetype cFavoriteProjectsLimit = 100;

const QString cGroup = QStringLiteral("Settings/");
const QString cLastProjectsKey = QStringLiteral("mLastProjectsList");
const QString cFavoriteProjectsKey = QStringLiteral("mFavoriteProjectsList");
const QString cGerman = QStringLiteral("de");
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
  // The sections are read late; a file that is none would be told as empty and then written over.
  static_cast<void>(mStore->allKeys());
  if (file.isEmpty()) {
    putAsideWhenBroken();
    return;
  }
  if (QFileInfo(file).isDir() || mStore->status() != QSettings::NoError) {
    mError = QCoreApplication::translate("App_Settings", "Die Einstellungsdatei \"%1\" kann nicht gelesen werden.")
                 .arg(file);
  } else if (!mStore->isWritable()) {
    mError = QCoreApplication::translate("App_Settings", "Die Einstellungsdatei \"%1\" kann nicht geschrieben werden.")
                 .arg(file);
  }
}

void App_Settings::putAsideWhenBroken() {
  if (mStore->status() != QSettings::FormatError) {
    return;
  }
  const QString path = mStore->fileName();
  const QString aside = path + QStringLiteral(".defekt");
  QFile::remove(aside);
  if (QFile::copy(path, aside)) {
    mWarning =
        QCoreApplication::translate("App_Settings", "Die Einstellungen waren nicht lesbar; sie liegen in \"%1\".")
            .arg(aside);
  }
}

QVariant App_Settings::stored(const QString& key) const {
  return mStore->value(cGroup + key);
}

void App_Settings::store(const QString& key, const QVariant& value, const QVariant& defaultValue) {
  if (!mIsRemembering) {
    return;
  }
  if (value == defaultValue) {
    mStore->remove(cGroup + key);
  } else {
    mStore->setValue(cGroup + key, value);
  }
}

int App_Settings::value(Setting setting) const {
  const Setting_Row& row = Setting_Table::row(setting);
  const QString text = stored(QString::fromLatin1(row.mKey)).toString();
  // The store of one's own hand writes switches as words.
  if (row.mKind == Setting_Row::Kind::Switch && (text == u"true" || text == u"false")) {
    return text == u"true" ? 1 : 0;
  }
  bool isOk = false;
  const int value = text.toInt(&isOk);
  return isOk ? Setting_Table::valid(setting, value) : row.mDefault;
}

void App_Settings::setValue(Setting setting, int value) {
  value = Setting_Table::valid(setting, value);
  if (mIsRemembering && value != this->value(setting)) {
    const Setting_Row& row = Setting_Table::row(setting);
    store(QString::fromLatin1(row.mKey), value, row.mDefault);
    emit changed(setting);
  }
}

QString App_Settings::text(Setting setting) const {
  return stored(QString::fromLatin1(Setting_Table::row(setting).mKey)).toString();
}

void App_Settings::setText(Setting setting, const QString& text) {
  if (mIsRemembering && text != this->text(setting)) {
    store(QString::fromLatin1(Setting_Table::row(setting).mKey), text, QString());
    emit changed(setting);
  }
}

QString App_Settings::languageDev() const {
  const QString code = stored(QStringLiteral("LanguageDev")).toString();
  return code.isEmpty() ? cGerman : code;
}

void App_Settings::setLanguageDev(const QString& code) {
  store(QStringLiteral("LanguageDev"), code, cGerman);
}

QByteArray App_Settings::windowState() const {
  return stored(QStringLiteral("WindowState")).toByteArray();
}

void App_Settings::setWindowState(const QByteArray& state) {
  store(QStringLiteral("WindowState"), state, QByteArray());
}

QByteArray App_Settings::windowGeometry() const {
  return stored(QStringLiteral("WindowGeometry")).toByteArray();
}

void App_Settings::setWindowGeometry(const QByteArray& geometry) {
  store(QStringLiteral("WindowGeometry"), geometry, QByteArray());
}

QByteArray App_Settings::viewState(const QString& name) const {
  return stored(name).toByteArray();
}

void App_Settings::setViewState(const QString& name, const QByteArray& state) {
  store(name, state, QByteArray());
}

QStringList App_Settings::projects(const QString& key) const {
  QStringList paths;
  const int size = mStore->beginReadArray(cGroup + key);
  // A broken store may tell any size.
  for (int i = 0; i < size && i < cFavoriteProjectsLimit; ++i) {
    mStore->setArrayIndex(i);
    const QString path = mStore->value(cPathKey).toString();
    if (!path.isEmpty() && !paths.contains(path)) {
      paths.append(path);
    }
  }
  mStore->endArray();
  return paths;
}

void App_Settings::storeProjects(const QString& key, const QStringList& paths) {
  if (!mIsRemembering) {
    return;
  }
  mStore->remove(cGroup + key);
  mStore->beginWriteArray(cGroup + key, static_cast<int>(paths.size()));
  for (int i = 0; i < paths.size(); ++i) {
    mStore->setArrayIndex(i);
    mStore->setValue(cPathKey, paths[i]);
  }
  mStore->endArray();
  mStore->sync();
  emit projectListsChanged();
}

QStringList App_Settings::lastProjects() const {
  QStringList paths = projects(cLastProjectsKey);
  paths.resize(qMin(paths.size(), cLastProjectsLimit));
  return paths;
}

void App_Settings::addLastProject(const QString& path) {
  mStore->sync(); // another studio may have changed the list
  QStringList paths = lastProjects();
  paths.removeAll(path);
  paths.prepend(path);
  paths.resize(qMin(paths.size(), cLastProjectsLimit));
  storeProjects(cLastProjectsKey, paths);
}

void App_Settings::removeLastProject(const QString& path) {
  mStore->sync();
  QStringList paths = lastProjects();
  paths.removeAll(path);
  storeProjects(cLastProjectsKey, paths);
}

QStringList App_Settings::favoriteProjects() const {
  return projects(cFavoriteProjectsKey);
}

void App_Settings::setFavoriteProject(const QString& path, bool isFavorite) {
  mStore->sync();
  QStringList paths = favoriteProjects();
  if (paths.contains(path) == isFavorite || (isFavorite && paths.size() >= cFavoriteProjectsLimit)) {
    return;
  }
  if (isFavorite) {
    paths.append(path);
  } else {
    paths.removeAll(path);
  }
  storeProjects(cFavoriteProjectsKey, paths);
}

QString App_Settings::lastProjectDir() const {
  return stored(QStringLiteral("mLastProjectDir")).toString();
}

void App_Settings::setLastProjectDir(const QString& dir) {
  store(QStringLiteral("mLastProjectDir"), dir, QString());
}
