#include "db/Ets_Export.h"

#include "db/Ets_Esf_Writer.h"
#include "db/Ets_Xml_Writer.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

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
      QCoreApplication::translate("Ets_Export", "Die Datei \"%1\" konnte nicht geschrieben werden: %2")
          .arg(QFileInfo(path).fileName(), result.mError.isEmpty() ? file.errorString() : result.mError));
}
