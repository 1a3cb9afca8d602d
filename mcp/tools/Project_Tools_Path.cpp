#include "mcp/tools/Project_Tools_Path.h"

#include "db/Connection_Edits.h"
#include "db/Project_Edits.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Bytes: the working file's name is made from it and longer, and a file system takes 255.
constexpr qsizetype cLongestName = 220;

bool isControl(QChar character) {
  return character.category() == QChar::Other_Control;
}

} // namespace

QString Project_Tools_Path::withExtension(const QString& path) {
  const QString extension = QStringLiteral(".zpro");
  return path.isEmpty() || path.endsWith(extension, Qt::CaseInsensitive) ? path : path + extension;
}

QString Project_Tools_Path::fault(const QString& path) {
  if (path.isEmpty()) {
    return QStringLiteral("Parameter 'filename' fehlt");
  }
  if (std::ranges::any_of(path, isControl)) {
    return QStringLiteral("Parameter 'filename' enthaelt Zeichen, die in keinem Dateinamen stehen");
  }
  // A path of the program's resources counts as absolute, too.
  if (path.startsWith(u':') || !QDir::isAbsolutePath(path)) {
    return QStringLiteral("Parameter 'filename' muss ein vollstaendiger Pfad sein: %1").arg(path);
  }
  return {};
}

QString Project_Tools_Path::faultOfTarget(const QString& path) {
  QString ofPath = fault(path);
  if (!ofPath.isEmpty()) {
    return ofPath;
  }
  const QFileInfo file(path);
  const QFileInfo folder(file.absolutePath());
  if (file.isDir()) {
    return QStringLiteral("Parameter 'filename' nennt einen Ordner, keine Datei: %1").arg(path);
  }
  if (file.fileName().toUtf8().size() > cLongestName) {
    return QStringLiteral("Der Dateiname ist zu lang, erlaubt sind %1 Bytes: %2").arg(cLongestName).arg(path);
  }
  if (!folder.isDir()) {
    return QStringLiteral("Ordner nicht gefunden: %1").arg(folder.filePath());
  }
  if (!folder.isWritable()) {
    return QStringLiteral("Im Ordner darf nicht geschrieben werden: %1").arg(folder.filePath());
  }
  return {};
}

QString Project_Tools_Path::faultOfOptions(const QString& pageCaption, const QString& connectionName,
                                           const QString& connectionAddress) {
  if (const Edit_Result checked = Project_Edits::checkPageName(pageCaption); !pageCaption.isEmpty() && !checked) {
    return QStringLiteral("Parameter 'fb_page_caption': ") + checked.mError;
  }
  using Field = Connection_Edits::Field;
  DB_Connections::ITEM connection;
  connection.mName = connectionName;
  connection.mAddress = connectionAddress;
  const auto faultIn = [&connection](const char* parameter, const QString& text, Field field) {
    const QString found = text.isEmpty() ? QString() : Connection_Edits::faultOf(connection, field);
    return found.isEmpty() ? found : QStringLiteral("Parameter '%1': ").arg(QLatin1String(parameter)) + found;
  };
  const QString ofName = faultIn("connection_name", connectionName, Field::Name);
  return ofName.isEmpty() ? faultIn("connection_ip", connectionAddress, Field::Address) : ofName;
}
