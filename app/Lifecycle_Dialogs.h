#pragma once

#include "ui/Message_Box.h"

#include <QString>

/// What the project lifecycle must ask or tell the user. The window implements it; calls return when answered.
class Lifecycle_Dialogs {
public:
  Lifecycle_Dialogs() = default;
  Lifecycle_Dialogs(const Lifecycle_Dialogs&) = delete;
  Lifecycle_Dialogs& operator=(const Lifecycle_Dialogs&) = delete;
  virtual ~Lifecycle_Dialogs() = default;

  /// "Nein" is the default.
  [[nodiscard]] virtual bool askYesNo(const QString& text) = 0;
  [[nodiscard]] virtual Message_Box::Answer askYesNoCancel(const QString& text, Message_Box::Answer defaultAnswer) = 0;
  enum class Recovery { Restore, Discard, Cancel };
  [[nodiscard]] virtual Recovery askRecovery(const QString& text, Recovery defaultAnswer) = 0;
  virtual void showMessage(const QString& text) = 0;

  /// Both answer an absolute path, or an empty one when the user cancels. Neither asks before replacing a file.
  [[nodiscard]] virtual QString chooseOpenFile(const QString& title, const QString& folder, const QString& filter) = 0;
  [[nodiscard]] virtual QString chooseSaveFile(const QString& title, const QString& suggestion,
                                               const QString& filter) = 0;

  /// 0 to 100 percent; visible at once, without an event loop.
  virtual void showProgress(const QString& text, int percent) = 0;
  virtual void hideProgress() = 0;
};
