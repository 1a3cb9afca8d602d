#include "net/dialogs/Controller_Boxes.h"

#include "ui/File_Dialog.h"
#include "ui/Message_Box.h"

bool Controller_Boxes::askYesNo(QWidget* parent, const QString& text) {
  return Message_Box::askYesNo(parent, text);
}

void Controller_Boxes::showMessage(QWidget* parent, const QString& text) {
  Message_Box::showMessage(parent, text);
}

QString Controller_Boxes::chooseOpenFile(QWidget* parent, const QString& title, const QString& folder,
                                         const QString& filter) {
  return File_Dialog::chooseOpenFile(parent, title, folder, filter);
}

QString Controller_Boxes::chooseSaveFile(QWidget* parent, const QString& title, const QString& suggestion,
                                         const QString& filter) {
  return File_Dialog::chooseSaveFile(parent, title, suggestion, filter);
}
