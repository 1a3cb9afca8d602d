#pragma once

#include "fb/lua/FB_Lua_Word_Model.h"

#include <QCompleter>

/// What a word in a script may become: the controller's functions with signature and description, callbacks, the
/// language's words, and the words of the script itself.
class FB_Lua_Completion : public QCompleter {
  Q_OBJECT

public:
  explicit FB_Lua_Completion(QWidget& edit);

  /// The words of the script, as they are now.
  void setScript(const QString& script);
  /// Shows what holds that text, below the rectangle of the edit; hides when there is nothing, or only the text itself.
  void offer(const QString& prefix, const QRect& at);
  [[nodiscard]] bool isShown() const;
  /// The entry that Enter takes; empty for none.
  [[nodiscard]] QString current() const;

private:
  FB_Lua_Word_Model mModel;
};
