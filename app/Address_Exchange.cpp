#include "app/Address_Exchange.h"

#include "app/Lifecycle_Dialogs.h"
#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "db/Ets_Export.h"
#include "db/Project_Session.h"
#include "ui/Address_Import_Dialog.h"

#include <QDir>
#include <QFileInfo>

Address_Exchange::Address_Exchange(Project_Session& session, App_Settings& settings, Lifecycle_Dialogs& dialogs,
                                   QWidget& window)
    : QObject(&window),
      mSession(session),
      mSettings(settings),
      mDialogs(dialogs),
      mWindow(window) {}

QString Address_Exchange::folder() const {
  return mFolder.isEmpty() ? mSettings.lastProjectDir() : mFolder;
}

void Address_Exchange::importAddresses() {
  Address_Import_Dialog dialog(mSession, mSettings, folder(), &mWindow);
  const bool isImported = dialog.exec() == QDialog::Accepted;
  mFolder = dialog.folder();
  if (!isImported || !mSession.isOpen()) {
    return;
  }
  emit imported();
  const Address_Import::Result& result = dialog.importResult();
  const QString text = tr("Adressen importiert: %1.").arg(result.toString());
  if (result.mSkipped > 0) {
    mDialogs.showMessage(text);
  } else {
    emit info(text);
  }
}

/// Empty when the user cancels, or does not want a file replaced.
QString Address_Exchange::chooseExportFile() {
  const QString name = QFileInfo(mSession.path()).completeBaseName();
  const QString filter =
      tr("ETS-Export XML") + QStringLiteral(" (*.xml);;") + tr("ETS-Export ESF") + QStringLiteral(" (*.esf)");
  const QString path =
      mDialogs.chooseSaveFile(tr("Adressen exportieren"), folder() + u'/' + name + QStringLiteral(".xml"), filter);
  if (path.isEmpty() || !mSession.isOpen()) {
    return {};
  }
  mFolder = QFileInfo(path).absolutePath();
  const QString question = tr("Die Datei \"%1\" ist schon vorhanden. Ersetzen?").arg(QDir::toNativeSeparators(path));
  return !QFileInfo::exists(path) || mDialogs.askYesNo(question) ? path : QString();
}

void Address_Exchange::exportAddresses() {
  const QString path = chooseExportFile();
  if (path.isEmpty()) {
    return;
  }
  Ets_Write_Result result;
  const Edit_Result written = Ets_Export::write(mSession, path, result);
  if (!written) {
    mDialogs.showMessage(written.mError);
    return;
  }
  emit info(tr("Exportierte Gruppenadressen: %1.").arg(Decimal_Text::count(result.mAddresses)));
  if (!result.mOmitted.isEmpty()) {
    mDialogs.showMessage(tr("Exportiert, aber in diesem Format nicht enthalten:") + QStringLiteral("\n\n") +
                         result.mOmitted.join(u'\n'));
  }
}
