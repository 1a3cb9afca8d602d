#include "fb/properties/FB_Dev_Properties_LineEdit.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

FB_Dev_Properties_LineEdit::FB_Dev_Properties_LineEdit(int index, QWidget* parent)
    : QLineEdit(parent),
      FB_Dev_Properties_Editor(Kind::Text, index) {
  connect(this, &QLineEdit::textChanged, this, &FB_Dev_Properties_LineEdit::onTextChanged);
  connect(this, &QLineEdit::editingFinished, this, &FB_Dev_Properties_LineEdit::finishTyping);
}

void FB_Dev_Properties_LineEdit::setFileName() {
  static const QRegularExpression cFileName(QStringLiteral(R"([^/\\:*?"<>|]*)"));
  if (!validator()) {
    setValidator(new QRegularExpressionValidator(cFileName, this));
  }
  setToolTip(tr("Die Datei liegt immer im Projektverzeichnis. Die Zeichen / \\ : * ? \" < > | sind in einem Dateinamen "
                "nicht zulässig"));
}

void FB_Dev_Properties_LineEdit::showValue(const FB_Shared_Value& value) {
  mValue = value;
  if (mIsTyping) {
    return;
  }
  const QSignalBlocker blocker(this);
  setPlaceholderText(value.mIsMixed ? mixedText() : QString());
  const int cursor = cursorPosition();
  setText(value.mIsMixed ? QString() : value.mText); // also the same again: undo is the window's from now on
  setCursorPosition(hasFocus() ? cursor : 0);
}

/// With the focus elsewhere nobody is typing.
void FB_Dev_Properties_LineEdit::onTextChanged(const QString& /*text*/) {
  mIsTyping = true;
  if (!hasFocus()) {
    finishTyping();
  }
}

void FB_Dev_Properties_LineEdit::finishTyping() {
  if (!mIsTyping) {
    return;
  }
  mIsTyping = false;
  const FB_Shared_Value typed{text(), false};
  if (typed != mValue) {
    mValue = typed;
    emit valueChanged(this);
  } else {
    showValue(mValue);
  }
}

void FB_Dev_Properties_LineEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && mIsTyping) {
    mIsTyping = false;
    showValue(mValue);
  } else {
    QLineEdit::keyPressEvent(event);
  }
}
