#pragma once

#include "app/Lifecycle_Dialogs.h"

class QLabel;
class QMainWindow;
class QProgressBar;

/// Asks the lifecycle's questions in boxes above a main window; progress stands in its status bar.
class Window_Dialogs : public Lifecycle_Dialogs {
public:
  explicit Window_Dialogs(QMainWindow& window);

  [[nodiscard]] bool askYesNo(const QString& text) override;
  [[nodiscard]] Message_Box::Answer askYesNoCancel(const QString& text, Message_Box::Answer defaultAnswer) override;
  [[nodiscard]] Recovery askRecovery(const QString& text, Recovery defaultAnswer) override;
  void showMessage(const QString& text) override;
  [[nodiscard]] QString chooseOpenFile(const QString& title, const QString& folder, const QString& filter) override;
  [[nodiscard]] QString chooseSaveFile(const QString& title, const QString& suggestion, const QString& filter) override;
  void showProgress(const QString& text, int percent) override;
  void hideProgress() override;

private:
  QMainWindow& mWindow;
  QLabel* mProgressText;
  QProgressBar* mProgressBar;
};
