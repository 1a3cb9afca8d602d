#include "fb/lua/FB_Lua_Script_Exchange.h"

#include "base/App_Settings.h"
#include "fb/lua/FB_Lua_Password_Dialog.h"
#include "ui/File_Dialog.h"
#include "ui/Message_Box.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

using State = FB_Lua_Script_File::State;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Lua_Script_Exchange", text);
}

QString folder(const App_Settings& settings) {
  const QString last = settings.lastProjectDir();
  return QFileInfo(last).isDir() ? last : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// Without what no file name may hold.
QString fileName(QString name) {
  name.removeIf([](QChar c) { return QStringView(u"\\/:*?\"<>|").contains(c) || c < u' '; });
  return (name.trimmed().isEmpty() ? tr("Script") : name.trimmed()) + QStringLiteral(".zscr");
}

/// Empty when the user cancels.
std::optional<QString> askPassword(QWidget* parent, FB_Lua_Password_Dialog::Purpose purpose) {
  FB_Lua_Password_Dialog dialog(purpose, parent);
  return dialog.exec() == QDialog::Accepted ? std::optional(dialog.password()) : std::nullopt;
}

} // namespace

QString FB_Lua_Script_Exchange::importFilter() {
  return tr("Script Export (*.zscr)");
}

QString FB_Lua_Script_Exchange::exportFilter() {
  return tr("Script Import (*.zscr)");
}

std::optional<FB_Lua_Script_File::Script> FB_Lua_Script_Exchange::importScript(QWidget* parent,
                                                                               App_Settings& settings) {
  const QString path = File_Dialog::chooseOpenFile(parent, tr("Datei öffnen"), folder(settings), importFilter());
  if (path.isEmpty()) {
    return std::nullopt;
  }
  FB_Lua_Script_File::Reading reading = FB_Lua_Script_File::readFile(path, {});
  if (reading.mState == State::Needs_Password) {
    const std::optional<QString> password = askPassword(parent, FB_Lua_Password_Dialog::Purpose::Read);
    if (!password) {
      return std::nullopt;
    }
    reading = FB_Lua_Script_File::readFile(path, *password);
  }
  if (reading.mState != State::Read) {
    Message_Box::showMessage(parent, FB_Lua_Script_File::message(reading.mState));
    return std::nullopt;
  }
  return reading.mScript;
}

QString FB_Lua_Script_Exchange::exportScript(QWidget* parent, App_Settings& settings,
                                             const FB_Lua_Script_File::Script& script, const QString& name) {
  const QString suggestion = QDir(folder(settings)).filePath(fileName(name));
  QString path = File_Dialog::chooseSaveFile(parent, tr("Datei speichern"), suggestion, exportFilter());
  if (path.isEmpty()) {
    return {};
  }
  if (QFileInfo(path).suffix().compare(QStringLiteral("zscr"), Qt::CaseInsensitive) != 0) {
    path += QStringLiteral(".zscr");
  }
  const QString question = tr("Die Datei \"%1\" ist schon vorhanden. Ersetzen?").arg(QDir::toNativeSeparators(path));
  if (QFileInfo::exists(path) && !Message_Box::askYesNo(parent, question)) {
    return {};
  }
  const std::optional<QString> password = askPassword(parent, FB_Lua_Password_Dialog::Purpose::Write);
  if (!password) {
    return {};
  }
  if (!FB_Lua_Script_File::writeFile(path, script, *password)) {
    Message_Box::showMessage(parent, FB_Lua_Script_File::writeFailure());
    return {};
  }
  return path;
}
