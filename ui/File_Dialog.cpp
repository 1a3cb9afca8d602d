#include "ui/File_Dialog.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("File_Dialog", text);
}

/// The toolkit's own dialog speaks the system's language; the studio's labels are German all the same.
void setLabels(QFileDialog& dialog, const QString& accept) {
  dialog.setLabelText(QFileDialog::LookIn, tr("Ordner:"));
  dialog.setLabelText(QFileDialog::FileName, tr("Datei&name:"));
  dialog.setLabelText(QFileDialog::FileType, tr("Dateityp:"));
  dialog.setLabelText(QFileDialog::Accept, accept);
  dialog.setLabelText(QFileDialog::Reject, tr("Abbrechen"));
  // The toolkit's dialog takes a quote for the start of a list of names and would choose another file.
  if (auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
    name->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[^\"]*")), &dialog));
  }
}

/// Of several kinds of file the chosen one gives the ending to a name.
void giveSuffixOfFilter(QFileDialog& dialog) {
  const auto follow = [&dialog](const QString& filter) {
    dialog.setDefaultSuffix(filter.section(QStringLiteral("*."), 1).chopped(1));
    const QString name = QFileInfo(dialog.selectedFiles().value(0)).completeBaseName();
    if (!name.isEmpty()) {
      dialog.selectFile(name + u'.' + dialog.defaultSuffix());
    }
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
  follow(dialog.selectedNameFilter());
}

QString choose(QFileDialog& dialog) {
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString File_Dialog::chooseOpenFile(QWidget* parent, const QString& title, const QString& folder,
                                    const QString& filter) {
  QFileDialog dialog(parent, title, folder, filter);
  dialog.setFileMode(QFileDialog::ExistingFile);
  setLabels(dialog, tr("Öffnen"));
  return choose(dialog);
}

QString File_Dialog::chooseSaveFile(QWidget* parent, const QString& title, const QString& suggestion,
                                    const QString& filter) {
  QFileDialog dialog(parent, title, QFileInfo(suggestion).absolutePath(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(QFileInfo(suggestion).fileName());
  setLabels(dialog, tr("Speichern"));
  if (dialog.nameFilters().size() > 1) {
    giveSuffixOfFilter(dialog);
  }
  return choose(dialog);
}
