#include "net/dialogs/Controller_File.h"

#include "base/App_Settings.h"
#include "base/File_Copy.h"
#include "db/Project_Session.h"
#include "db/Working_Copy.h"
#include "net/Byte_Stream.h"
#include "net/dialogs/Controller_Questions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QSaveFile>
#include <QWidget>

namespace {

constexpr qsizetype cNameMost = 80;

QString tr(const char* text) {
  return QCoreApplication::translate("Controller_File", text);
}

QString folderOf(const Controller_Access& access) {
  const QString last = access.mSettings.lastProjectDir();
  return access.mSession.isOpen() ? QFileInfo(access.mSession.path()).absolutePath()
         : last.isEmpty()         ? QDir::homePath()
                                  : last;
}

/// The name of the open project is no place for another one.
QString freePath(const Controller_Access& access, const QString& name, const QString& suffix) {
  const QDir folder(folderOf(access));
  const QString path = folder.filePath(name + suffix);
  return access.mSession.isOpen() && File_Copy::isSamePath(path, access.mSession.path())
             ? folder.filePath(tr("%1 (Steuerung)").arg(name) + suffix)
             : path;
}

/// What speaks against storing there (German); empty when nothing does.
QString objection(const Controller_Access& access, const QFileInfo& file) {
  if (access.mSession.isOpen() && File_Copy::isSamePath(file.filePath(), access.mSession.path())) {
    return tr("Das Projekt \"%1\" ist geöffnet und kann nicht ersetzt werden. Einen anderen Namen wählen.")
        .arg(file.fileName());
  }
  switch (Working_Copy::stateOf(file.absoluteFilePath())) {
  case Working_Copy::State::InUse:
    return tr("Das Projekt \"%1\" ist in einem anderen Studio geöffnet und kann nicht ersetzt werden. Einen anderen "
              "Namen wählen.")
        .arg(file.fileName());
  case Working_Copy::State::LeftBehind:
    return tr("Zum Projekt \"%1\" gibt es noch einen nicht gespeicherten Stand. Erst dieses Projekt öffnen oder einen "
              "anderen Namen wählen.")
        .arg(file.fileName());
  case Working_Copy::State::Free:
    break;
  }
  return {};
}

} // namespace

Controller_File::Kind Controller_File::project() {
  return {tr("Projekt aus Steuerung laden"), tr("Projekte (*.zpro);;Alle Dateien (*)"), QStringLiteral(".zpro")};
}

Controller_File::Kind Controller_File::values() {
  return {tr("Persistente Werte"), tr("Persistente Werte (*.zval);;Alle Dateien (*)"), QStringLiteral(".zval")};
}

Controller_File::Kind Controller_File::backup() {
  return {tr("Sicherung speichern"), tr("Sicherungen (*.zbak);;Alle Dateien (*)"), QStringLiteral(".zbak")};
}

QString Controller_File::nameOf(const QString& text) {
  static const QRegularExpression forbidden(QStringLiteral("[\\x00-\\x1f\\x7f<>:\"/\\\\|?*]+"));
  QString name = text;
  name = name.replace(forbidden, QStringLiteral(" ")).simplified().left(cNameMost);
  while (name.endsWith(u'.') || name.endsWith(u' ')) {
    name.chop(1);
  }
  while (name.startsWith(u'.') || name.startsWith(u' ')) {
    name.remove(0, 1);
  }
  return name.isEmpty() ? tr("Projekt") : name;
}

QString Controller_File::chooseToSave(const Controller_Access& access, QWidget* parent, const Kind& kind,
                                      const QString& name) {
  QString suggestion = freePath(access, nameOf(name), kind.mSuffix);
  const QPointer<QWidget> window(parent);
  while (true) {
    QString path = access.mQuestions.chooseSaveFile(parent, kind.mTitle, suggestion, kind.mFilter);
    if (path.isEmpty() || !window) {
      return {};
    }
    if (QFileInfo(path).suffix().isEmpty()) {
      path += kind.mSuffix;
    }
    const QFileInfo file(path);
    suggestion = path;
    if (const QString text = objection(access, file); !text.isEmpty()) {
      access.mQuestions.showMessage(parent, text);
    } else if (!file.exists() ||
               access.mQuestions.askYesNo(parent,
                                          tr("Die Datei \"%1\" ist schon vorhanden. Ersetzen?").arg(file.fileName()))) {
      return window ? path : QString();
    }
    if (!window) {
      return {};
    }
  }
}

QString Controller_File::chooseToOpen(const Controller_Access& access, QWidget* parent, const Kind& kind) {
  return access.mQuestions.chooseOpenFile(parent, kind.mTitle, folderOf(access), kind.mFilter);
}

bool Controller_File::write(const QString& path, const QByteArray& bytes, QString* error) {
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
    return true;
  }
  *error =
      tr("Die Datei \"%1\" kann nicht geschrieben werden: %2").arg(QDir::toNativeSeparators(path), file.errorString());
  return false;
}

std::optional<QByteArray> Controller_File::read(const QString& path, QString* error) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    *error =
        tr("Die Datei \"%1\" kann nicht gelesen werden: %2").arg(QDir::toNativeSeparators(path), file.errorString());
    return {};
  }
  if (file.size() > Byte_Stream::cMost) {
    *error = tr("Die Datei \"%1\" ist größer als %2 und wird nicht übertragen.")
                 .arg(QDir::toNativeSeparators(path), QLocale().formattedDataSize(Byte_Stream::cMost, 0));
    return {};
  }
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    *error =
        tr("Die Datei \"%1\" kann nicht gelesen werden: %2").arg(QDir::toNativeSeparators(path), file.errorString());
    return {};
  }
  return bytes;
}
