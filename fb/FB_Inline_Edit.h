#pragma once

#include <QTextEdit>

/// A field over a block, in which its text is typed. Ctrl+Enter (Enter where the text has one line) and leaving the
/// field accept, Escape reverts; afterwards the field deletes itself.
class FB_Inline_Edit : public QTextEdit {
  Q_OBJECT

public:
  enum class Lines { One, Many };

  FB_Inline_Edit(const QString& text, Lines lines, QWidget* parent);

  void accept();
  /// As if Escape had been pressed.
  void revert();

signals:
  /// The user changed the text.
  void accepted(const QString& text);
  void closed();

protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

private:
  void close();

  Lines mLines;
  bool mIsClosed = false;
};
