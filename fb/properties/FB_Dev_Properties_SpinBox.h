#pragma once

#include "fb/properties/FB_Dev_Properties_Editor.h"

#include <QDoubleSpinBox>

/// The number field of a parameter. It reports a number when typing is finished or it is stepped, not with every key.
///
/// The range limits what is typed and stepped; a number outside of it that came with a file is shown as it is, and with
/// all its digits.
class FB_Dev_Properties_SpinBox : public QDoubleSpinBox, public FB_Dev_Properties_Editor {
  Q_OBJECT

public:
  static constexpr double cRange = 4294967295.0;

  explicit FB_Dev_Properties_SpinBox(int index, QWidget* parent = nullptr);

  // These hide the toolkit's: they leave the value that is shown as it is, and report nothing.
  void setRange(double minimum, double maximum);
  /// Of what is typed, and at least shown.
  void setDecimals(int decimals);
  /// Stands behind the number.
  void setUnit(const QString& unit);
  /// All of them at once.
  void setLimits(double minimum, double maximum, int decimals, const QString& unit);
  [[nodiscard]] double lowest() const { return mLowest; }
  [[nodiscard]] double highest() const { return mHighest; }

  [[nodiscard]] QWidget& widget() override { return *this; }
  /// A text that is no number is shown as 0.
  void showValue(const FB_Shared_Value& value) override;
  [[nodiscard]] QString storedText() const override;
  [[nodiscard]] bool isTyping() const override { return mIsTyping; }
  void finishTyping() override;
  /// What would be stored if typing stopped now; empty while nothing is typed, or no number.
  [[nodiscard]] QString typedText() const { return mTyped; }
  /// What is typed is outside of the range.
  [[nodiscard]] bool isTypedOutside() const { return mIsOutside; }
  /// Whether what is being typed has more digits behind the point than are kept.
  [[nodiscard]] bool isTypedTooFine() const { return mIsTooFine; }

  void stepBy(int steps) override;
  [[nodiscard]] QString textFromValue(double value) const override;
  [[nodiscard]] double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void fixup(QString& text) const override;

  using QDoubleSpinBox::valueChanged;

signals:
  void valueChanged(FB_Dev_Properties_SpinBox* editor);
  /// What is being typed is another number, or typing has stopped.
  void typed();

protected:
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private slots:
  void onValueChanged(double value);

private:
  void showAgain();
  void forgetTyping();
  void onTextEdited(const QString& text);
  void onEditingFinished();
  void stopTyping();
  void report();
  [[nodiscard]] QString withoutUnit(const QString& text) const;
  [[nodiscard]] double limited(double value) const;
  [[nodiscard]] bool isInRange(double value) const;
  [[nodiscard]] bool hasTooManyDigits(const QString& text) const;
  [[nodiscard]] bool isMixedText(const QString& text) const;

  double mLowest = -cRange;
  double mHighest = cRange;
  int mDecimals = 0;
  QString mUnit;
  FB_Shared_Value mValue;
  bool mIsMixed = false;
  bool mIsTyping = false;
  bool mIsOutside = false;
  bool mIsTooFine = false;
  QString mTyped;
};
