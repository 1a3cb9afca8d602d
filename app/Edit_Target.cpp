#include "app/Edit_Target.h"

#include "ui/Field_Keys.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTextEdit>
#include <QToolBar>

#include <functional>
#include <utility>

namespace {

using Command = Edit_Target::Command;
/// Empty when the command cannot be carried out.
using Runner = std::function<void()>;

bool isTextInClipboard() {
  const QMimeData* const data = QApplication::clipboard()->mimeData();
  return data && data->hasText();
}

Runner when(bool isPossible, Runner runner) {
  return isPossible ? std::move(runner) : Runner();
}

Runner ofLine(QLineEdit* line, Command command) {
  const bool isSelected = line->hasSelectedText();
  switch (command) {
  case Command::Cut:
    return when(isSelected && !line->isReadOnly(), [line] { line->cut(); });
  case Command::Copy:
    return when(isSelected, [line] { line->copy(); });
  case Command::Paste:
    return when(!line->isReadOnly() && isTextInClipboard(), [line] { line->paste(); });
  case Command::Delete:
    return when(isSelected && !line->isReadOnly(), [line] { line->del(); });
  case Command::Duplicate:
    return {};
  case Command::SelectAll:
    return when(!line->text().isEmpty(), [line] { line->selectAll(); });
  }
  return {};
}

Runner ofText(QTextEdit* text, Command command) {
  const bool isSelected = text->textCursor().hasSelection();
  switch (command) {
  case Command::Cut:
    return when(isSelected && !text->isReadOnly(), [text] { text->cut(); });
  case Command::Copy:
    return when(isSelected, [text] { text->copy(); });
  case Command::Paste:
    return when(text->canPaste(), [text] { text->paste(); });
  case Command::Delete:
    return when(isSelected && !text->isReadOnly(), [text] { text->textCursor().removeSelectedText(); });
  case Command::Duplicate:
    return {};
  case Command::SelectAll:
    return when(!text->document()->isEmpty(), [text] { text->selectAll(); });
  }
  return {};
}

QList<QKeySequence> keysOf(Command command) {
  switch (command) {
  case Command::Cut:
    return QKeySequence::keyBindings(QKeySequence::Cut);
  case Command::Copy:
    return QKeySequence::keyBindings(QKeySequence::Copy);
  case Command::Paste:
    return QKeySequence::keyBindings(QKeySequence::Paste);
  case Command::Delete:
    return {QKeySequence(Qt::Key_Delete)}; // Ctrl+D, which deletes in some desktops' texts, duplicates here
  case Command::Duplicate:
    return {QKeySequence(Qt::CTRL | Qt::Key_D)};
  case Command::SelectAll:
    return QKeySequence::keyBindings(QKeySequence::SelectAll);
  }
  return {};
}

/// A command that the widget, or one around it, has for the usual keys.
QAction* commandOf(const QWidget* widget, const QWidget& window, Command command) {
  const QList<QKeySequence> keys = keysOf(command);
  for (; widget && widget != &window; widget = widget->parentWidget()) {
    for (QAction* const action : widget->actions()) {
      if (action->isEnabled() && keys.contains(action->shortcut())) {
        return action;
      }
    }
  }
  return nullptr;
}

Runner runnerOf(QWidget* target, const QWidget& window, Command command) {
  if (QLineEdit* const line = Field_Keys::lineOf(target)) {
    return ofLine(line, command);
  }
  if (auto* const text = qobject_cast<QTextEdit*>(target)) {
    return ofText(text, command);
  }
  if (QAction* const action = commandOf(target, window, command)) {
    return [action] { action->trigger(); };
  }
  auto* const list = qobject_cast<QAbstractItemView*>(target);
  if (list && command == Command::SelectAll) {
    const auto mode = list->selectionMode();
    const bool isPossible =
        (mode == QAbstractItemView::ExtendedSelection || mode == QAbstractItemView::MultiSelection) && list->model() &&
        list->model()->rowCount() > 0;
    return when(isPossible, [list] { list->selectAll(); });
  }
  const auto* const label = qobject_cast<QLabel*>(target);
  if (label && command == Command::Copy) {
    return when(label->hasSelectedText(), [label] { QApplication::clipboard()->setText(label->selectedText()); });
  }
  return {};
}

} // namespace

Edit_Target::Edit_Target(QWidget& window) : QObject(&window), mWindow(window) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { onFocusChanged(now); });
  onFocusChanged(QApplication::focusWidget());
}

/// An editor that is told hands its text over.
void Edit_Target::tellWithheld() {
  if (QWidget* const field = std::exchange(mWithheld, nullptr)) {
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(field, &out);
  }
}

void Edit_Target::onFocusChanged(QWidget* now) {
  if (now && now == mWithheld) {
    mWithheld = nullptr;
  } else if (now && !qobject_cast<QMenuBar*>(now) && !qobject_cast<QMenu*>(now)) {
    tellWithheld();
  }
  if (!now || now->window() != &mWindow || now == mTarget || qobject_cast<QMenuBar*>(now) ||
      qobject_cast<QMenu*>(now) || qobject_cast<QToolBar*>(now->parentWidget())) {
    return;
  }
  if (mTarget) {
    mTarget->removeEventFilter(this);
  }
  mTarget = now;
  mTarget->installEventFilter(this);
  emit changed();
}

/// While the menu bar is walked through by keys a field keeps its selection, and the editor of a cell stays open: what
/// is chosen in the menu is about them.
bool Edit_Target::eventFilter(QObject* object, QEvent* event) {
  const bool isText = Field_Keys::lineOf(object) || qobject_cast<QTextEdit*>(object);
  const bool isWithheld = isText && event->type() == QEvent::FocusOut &&
                          static_cast<QFocusEvent*>(event)->reason() == Qt::MenuBarFocusReason;
  if (isWithheld) {
    mWithheld = static_cast<QWidget*>(object);
  }
  return isWithheld;
}

bool Edit_Target::can(Command command) const {
  return static_cast<bool>(runnerOf(mTarget, mWindow, command));
}

void Edit_Target::run(Command command) {
  if (const Runner runner = runnerOf(mTarget, mWindow, command)) {
    runner();
  }
}

/// Editors hand their text over when they lose the focus.
void Edit_Target::commit() {
  tellWithheld();
  const QPointer<QWidget> editor = mWindow.focusWidget();
  if (!editor || !editor->hasFocus()) {
    return;
  }
  QPointer<QWidget> around = editor->parentWidget();
  editor->clearFocus();
  if (editor && editor->isVisible()) {
    editor->setFocus();
    return;
  }
  // The editor of a cell is gone; the keys belong to its view again.
  while (around && (around->focusPolicy() & Qt::TabFocus) == 0) {
    around = around->parentWidget();
  }
  if (around) {
    around->setFocus();
  }
}
