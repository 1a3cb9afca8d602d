#pragma once

#include "fb/properties/FB_Dev_Properties_Editor.h"

#include <QLineEdit>

/// The text field of a parameter. What is typed is reported once, when typing is finished; Escape takes it back.
class FB_Dev_Properties_LineEdit : public QLineEdit, public FB_Dev_Properties_Editor {
  Q_OBJECT

public:
  explicit FB_Dev_Properties_LineEdit(int index, QWidget* parent = nullptr);

  /// Takes only what may stand in a file name, and says so.
  void setFileName();

  [[nodiscard]] QWidget& widget() override { return *this; }
  void showValue(const FB_Shared_Value& value) override;
  [[nodiscard]] QString storedText() const override { return text(); }
  [[nodiscard]] bool isTyping() const override { return mIsTyping; }
  void finishTyping() override;
  /// What was shown, or typed since.
  [[nodiscard]] const FB_Shared_Value& value() const { return mValue; }

signals:
  void valueChanged(FB_Dev_Properties_LineEdit* editor);

protected:
  void keyPressEvent(QKeyEvent* event) override;

private slots:
  void onTextChanged(const QString& text);

private:
  FB_Shared_Value mValue;
  bool mIsTyping = false;
};
