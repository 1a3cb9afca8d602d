#include "app/Window_Dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QProgressBar>
#include <QRegularExpressionValidator>
#include <QStatusBar>

namespace {

constexpr int cProgressWidth = 160;

QString tr(const char* text) {
  return QCoreApplication::translate("Window_Dialogs", text);
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

QString choose(QFileDialog& dialog) {
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

Window_Dialogs::Window_Dialogs(QMainWindow& window)
    : mWindow(window),
      mProgressText(new QLabel(&window)),
      mProgressBar(new QProgressBar(&window)) {
  mProgressBar->setFixedWidth(cProgressWidth);
  window.statusBar()->addPermanentWidget(mProgressText);
  window.statusBar()->addPermanentWidget(mProgressBar);
  hideProgress();
}

bool Window_Dialogs::askYesNo(const QString& text) {
  return Message_Box::askYesNo(&mWindow, text);
}

Message_Box::Answer Window_Dialogs::askYesNoCancel(const QString& text, Message_Box::Answer defaultAnswer) {
  return Message_Box::askYesNoCancel(&mWindow, text, defaultAnswer);
}

void Window_Dialogs::showMessage(const QString& text) {
  Message_Box::showMessage(&mWindow, text);
}

QString Window_Dialogs::chooseOpenFile(const QString& title, const QString& folder, const QString& filter) {
  QFileDialog dialog(&mWindow, title, folder, filter);
  dialog.setFileMode(QFileDialog::ExistingFile);
  setLabels(dialog, tr("Öffnen"));
  return choose(dialog);
}

QString Window_Dialogs::chooseSaveFile(const QString& title, const QString& suggestion, const QString& filter) {
  QFileDialog dialog(&mWindow, title, QFileInfo(suggestion).absolutePath(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(QFileInfo(suggestion).fileName());
  setLabels(dialog, tr("Speichern"));
  // Of several kinds of file the chosen one gives the ending to a name without one.
  if (dialog.nameFilters().size() > 1) {
    const auto follow = [&dialog](const QString& nameFilter) {
      dialog.setDefaultSuffix(nameFilter.section(QStringLiteral("*."), 1).chopped(1));
      const QString name = QFileInfo(dialog.selectedFiles().value(0)).completeBaseName();
      if (!name.isEmpty()) {
        dialog.selectFile(name + u'.' + dialog.defaultSuffix());
      }
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow(dialog.selectedNameFilter());
  }
  return choose(dialog);
}

void Window_Dialogs::showProgress(const QString& text, int percent) {
  mProgressText->setText(text);
  mProgressBar->setValue(percent);
  mProgressText->show();
  mProgressBar->show();
  // Loading runs in this same turn of the event loop, so nothing else would paint it.
  mWindow.statusBar()->repaint();
}

void Window_Dialogs::hideProgress() {
  mProgressText->hide();
  mProgressBar->hide();
}
