#include "db/Ets_Export.h"

#include "db/Ets_Esf_Writer.h"
#include "db/Ets_Xml_Writer.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Ets_Export", text);
}

QString reason(const QString& path, const QString& error) {
  const QFileInfo file(path);
  const QFileInfo folder(file.absolutePath());
  if (!folder.isDir()) {
    return tr("Den Ordner \"%1\" gibt es nicht.").arg(QDir::toNativeSeparators(folder.filePath()));
  }
  if (file.isDir()) {
    return tr("Unter diesem Namen gibt es schon einen Ordner.");
  }
  if (!folder.isWritable()) {
    return tr("In den Ordner \"%1\" darf nicht geschrieben werden.").arg(QDir::toNativeSeparators(folder.filePath()));
  }
  if (file.exists() && !file.isWritable()) {
    return tr("Die vorhandene Datei darf nicht überschrieben werden.");
  }
  return error;
}

} // namespace

Edit_Result Ets_Export::write(Project_Session& session, const QString& path, Ets_Write_Result& result) {
  const Address_Tree& tree = session.database().mAddresses;
  QSaveFile file(path);
  const bool isEsf = path.endsWith(QLatin1String(".esf"), Qt::CaseInsensitive);
  bool isWritten = file.open(QIODevice::WriteOnly);
  if (isWritten) {
    result = isEsf ? Ets_Esf_Writer::write(tree, QFileInfo(session.path()).completeBaseName(), file)
                   : Ets_Xml_Writer::write(tree, file);
    isWritten = result.mError.isEmpty() && file.commit();
  }
  if (isWritten) {
    return Edit_Result::done();
  }
  return Edit_Result::refused(
      tr("Die Datei \"%1\" konnte nicht geschrieben werden: %2")
          .arg(QFileInfo(path).fileName(), reason(path, result.mError.isEmpty() ? file.errorString() : result.mError)));
}
