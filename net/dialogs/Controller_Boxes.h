#pragma once

#include "net/dialogs/Controller_Questions.h"

/// Asks with the program's boxes and file dialogs.
class Controller_Boxes : public Controller_Questions {
public:
  [[nodiscard]] bool askYesNo(QWidget* parent, const QString& text) override;
  void showMessage(QWidget* parent, const QString& text) override;
  [[nodiscard]] QString chooseOpenFile(QWidget* parent, const QString& title, const QString& folder,
                                       const QString& filter) override;
  [[nodiscard]] QString chooseSaveFile(QWidget* parent, const QString& title, const QString& suggestion,
                                       const QString& filter) override;
};
