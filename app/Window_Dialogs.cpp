#include "app/Window_Dialogs.h"

#include "ui/File_Dialog.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>

#include <algorithm>

namespace {

constexpr int cProgressWidth = 160;

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

Lifecycle_Dialogs::Recovery Window_Dialogs::askRecovery(const QString& text, Recovery defaultAnswer) {
  constexpr Recovery cAnswers[] = {Recovery::Restore, Recovery::Discard, Recovery::Cancel};
  const QStringList buttons = {QCoreApplication::translate("Window_Dialogs", "&Wiederherstellen"),
                               QCoreApplication::translate("Window_Dialogs", "&Verwerfen"),
                               QCoreApplication::translate("Window_Dialogs", "&Abbrechen")};
  const auto* const byDefault = std::find(std::begin(cAnswers), std::end(cAnswers), defaultAnswer);
  return cAnswers[Message_Box::choose(&mWindow, text, buttons, byDefault - std::begin(cAnswers))];
}

void Window_Dialogs::showMessage(const QString& text) {
  Message_Box::showMessage(&mWindow, text);
}

QString Window_Dialogs::chooseOpenFile(const QString& title, const QString& folder, const QString& filter) {
  return File_Dialog::chooseOpenFile(&mWindow, title, folder, filter);
}

QString Window_Dialogs::chooseSaveFile(const QString& title, const QString& suggestion, const QString& filter) {
  return File_Dialog::chooseSaveFile(&mWindow, title, suggestion, filter);
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
