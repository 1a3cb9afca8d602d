#include "fb/FB_Inline_Edit.h"

#include <QApplication>
#include <QKeyEvent>

FB_Inline_Edit::FB_Inline_Edit(const QString& text, Lines lines, QWidget* parent) : QTextEdit(parent), mLines(lines) {
  setAcceptRichText(false);
  setTabChangesFocus(true);
  setPlainText(text);
  selectAll();
  if (lines == Lines::One) {
    setLineWrapMode(NoWrap);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(1);
  }
  setAccessibleName(tr("Text des Bausteins"));
  setToolTip(lines == Lines::Many ? tr("Strg+Eingabe übernimmt den Text, Esc verwirft ihn.")
                                  : tr("Eingabe übernimmt den Wert, Esc verwirft ihn."));
}

void FB_Inline_Edit::accept() {
  if (mIsClosed) {
    return;
  }
  QString text = toPlainText();
  if (mLines == Lines::One) {
    text = text.simplified();
  }
  close();
  if (document()->isModified()) { // a text that was only looked at stays as it is, to the last blank
    emit accepted(text);
  }
}

void FB_Inline_Edit::revert() {
  if (!mIsClosed) {
    close();
  }
}

void FB_Inline_Edit::close() {
  mIsClosed = true; // hiding takes the focus away, which would accept
  hide();
  deleteLater();
  emit closed();
}

/// The window has commands for these keys.
bool FB_Inline_Edit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QTextEdit::event(event);
}

void FB_Inline_Edit::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) {
    revert();
  } else if (isEnter && (mLines == Lines::One || event->modifiers().testFlag(Qt::ControlModifier))) {
    accept();
  } else {
    QTextEdit::keyPressEvent(event);
  }
}

/// A menu over the field is part of typing, another program's window is not the end of it. A window of this one is:
/// what is done there, saving and closing too, is done with what was typed.
void FB_Inline_Edit::focusOutEvent(QFocusEvent* event) {
  QTextEdit::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  const bool isAway = reason == Qt::ActiveWindowFocusReason && !QApplication::activeWindow();
  if (!isAway && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason) {
    accept();
  }
}
