#pragma once

#include <QDialog>
#include <QString>

class QDialogButtonBox;
class QTextEdit;

/// A box with an icon, a plain text and buttons. A long text scrolls; it can be selected with mouse and keyboard, and
/// Ctrl+C copies all of it when nothing is selected.
class Message_Dialog : public QDialog {
  Q_OBJECT

public:
  Message_Dialog(QWidget* parent, const QString& text, const QString& iconName);

  /// Buttons stand in the order in which they are added; `result` is what `exec` answers. The escape button is pressed
  /// by Escape and by closing the window.
  void addButton(const QString& text, int result, bool isDefault, bool isEscape);

  void reject() override;

private:
  void fitText();
  void copyText();

  QTextEdit* mText;
  QDialogButtonBox* mButtons;
  int mEscapeResult = QDialog::Rejected;
};
