#pragma once

#include <QString>

class QWidget;

/// What the commands about the controller ask or tell the user; calls return when answered. `parent` is the window that
/// it is about.
class Controller_Questions {
public:
  Controller_Questions() = default;
  Controller_Questions(const Controller_Questions&) = delete;
  Controller_Questions& operator=(const Controller_Questions&) = delete;
  virtual ~Controller_Questions() = default;

  /// "Nein" is the default.
  [[nodiscard]] virtual bool askYesNo(QWidget* parent, const QString& text) = 0;
  virtual void showMessage(QWidget* parent, const QString& text) = 0;

  /// Both answer an absolute path, or an empty one when the user cancels. Neither asks before replacing a file.
  [[nodiscard]] virtual QString chooseOpenFile(QWidget* parent, const QString& title, const QString& folder,
                                               const QString& filter) = 0;
  [[nodiscard]] virtual QString chooseSaveFile(QWidget* parent, const QString& title, const QString& suggestion,
                                               const QString& filter) = 0;
};
