#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// What the window's commands cut, copy, paste, delete, duplicate and select all work on: the field or list of that
/// window that has the keyboard focus, or had it before the focus went to a menu or another window.
class Edit_Target : public QObject {
  Q_OBJECT

public:
  enum class Command { Cut, Copy, Paste, Delete, Duplicate, SelectAll };

  explicit Edit_Target(QWidget& window);

  [[nodiscard]] bool can(Command command) const;
  /// Nothing when it cannot be done.
  void run(Command command);
  /// Makes a text that is still being typed in the window part of the project.
  void commit();

protected:
  bool eventFilter(QObject* object, QEvent* event) override;

signals:
  /// Another field or list has the focus.
  void changed();

private:
  void tellWithheld();
  void onFocusChanged(QWidget* now);

  QWidget& mWindow;
  QPointer<QWidget> mTarget;
  QPointer<QWidget> mWithheld; ///< a field that has not been told yet that the menu bar took the focus
};
