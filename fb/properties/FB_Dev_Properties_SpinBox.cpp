#include "fb/properties/FB_Dev_Properties_SpinBox.h"

#include "fb/model/FB_Parameter_Text.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

FB_Dev_Properties_SpinBox::FB_Dev_Properties_SpinBox(int index, QWidget* parent)
    : QDoubleSpinBox(parent),
      FB_Dev_Properties_Editor(Kind::Number, index) {
  setKeyboardTracking(false);
  setFocusPolicy(Qt::StrongFocus); // the wheel scrolls the panel
  QLocale plain = locale();
  plain.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
  setLocale(plain);
  showAgain();
  connect(this, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &FB_Dev_Properties_SpinBox::onValueChanged);
  connect(lineEdit(), &QLineEdit::textEdited, this, &FB_Dev_Properties_SpinBox::onTextEdited);
  connect(this, &QAbstractSpinBox::editingFinished, this, &FB_Dev_Properties_SpinBox::onEditingFinished);
}

void FB_Dev_Properties_SpinBox::setRange(double minimum, double maximum) {
  mLowest = minimum;
  mHighest = maximum;
  showAgain();
}

void FB_Dev_Properties_SpinBox::setDecimals(int decimals) {
  mDecimals = decimals;
  showAgain();
}

void FB_Dev_Properties_SpinBox::setUnit(const QString& unit) {
  setLimits(mLowest, mHighest, mDecimals, unit);
}

void FB_Dev_Properties_SpinBox::setLimits(double minimum, double maximum, int decimals, const QString& unit) {
  mLowest = minimum;
  mHighest = maximum;
  mDecimals = decimals;
  mUnit = unit.isEmpty() ? QString() : u' ' + unit;
  showAgain();
}

void FB_Dev_Properties_SpinBox::showValue(const FB_Shared_Value& value) {
  mValue = value;
  showAgain();
}

/// The toolkit's own range is as wide as the number that is shown needs it: it would change the number otherwise.
void FB_Dev_Properties_SpinBox::showAgain() {
  if (mIsTyping) {
    return;
  }
  const QSignalBlocker blocker(this);
  mIsMixed = mValue.mIsMixed;
  const double number = FB_Parameter_Text::number(mValue.mText).value_or(0);
  setSuffix(mIsMixed ? QString() : mUnit);
  QDoubleSpinBox::setDecimals(std::max(mDecimals, FB_Parameter_Text::decimals(mValue.mText)));
  QDoubleSpinBox::setRange(std::min(mLowest, number), std::max(mHighest, number));
  setValue(number);
  forgetTyping();
}

/// Undo is the window's from now on, not the line's.
void FB_Dev_Properties_SpinBox::forgetTyping() {
  QLineEdit& line = *lineEdit();
  if (line.isUndoAvailable() || line.isRedoAvailable()) {
    const QSignalBlocker blocker(&line);
    const int cursor = line.cursorPosition();
    line.setText(line.text());
    line.setCursorPosition(cursor);
  }
}

QString FB_Dev_Properties_SpinBox::storedText() const {
  return FB_Parameter_Text::ofNumber(value(), decimals());
}

void FB_Dev_Properties_SpinBox::finishTyping() {
  if (mIsTyping) {
    interpretText();
    onEditingFinished();
  }
}

void FB_Dev_Properties_SpinBox::onTextEdited(const QString& text) {
  mIsTyping = true;
  bool isNumber = false;
  const double number = locale().toDouble(withoutUnit(text), &isNumber);
  mIsMixed = mValue.mIsMixed && !isNumber;
  mIsOutside = isNumber && !isInRange(number);
  mIsTooFine = isNumber && hasTooManyDigits(text);
  mTyped = isNumber ? FB_Parameter_Text::ofNumber(mIsOutside || mIsTooFine ? limited(number) : number, decimals())
                    : QString();
  emit typed();
}

/// Where the blocks differ, the number that one of them has is a change, too.
void FB_Dev_Properties_SpinBox::onEditingFinished() {
  if (!mIsTyping) {
    return;
  }
  if (mValue.mIsMixed && !mIsMixed) {
    report();
  } else {
    stopTyping();
    showAgain();
  }
}

void FB_Dev_Properties_SpinBox::stopTyping() {
  if (std::exchange(mIsTyping, false)) {
    mIsOutside = false;
    mIsTooFine = false;
    mTyped.clear();
    emit typed();
  }
}

void FB_Dev_Properties_SpinBox::onValueChanged(double /*value*/) {
  report();
}

void FB_Dev_Properties_SpinBox::report() {
  stopTyping();
  mValue = {storedText(), false};
  showAgain();
  emit valueChanged(this);
}

void FB_Dev_Properties_SpinBox::stepBy(int steps) {
  finishTyping();
  const double target = limited(value() + steps * singleStep());
  if (target != value()) {
    mIsMixed = false;
    setValue(target);
  } else if (mIsMixed) {
    report();
  }
  selectAll();
}

/// In the range, and with as many digits as may be typed.
double FB_Dev_Properties_SpinBox::limited(double value) const {
  const double digits = std::pow(10.0, mDecimals);
  return std::clamp(std::round(value * digits) / digits, mLowest, mHighest);
}

bool FB_Dev_Properties_SpinBox::isMixedText(const QString& text) const {
  return mValue.mIsMixed && text == mixedText();
}

bool FB_Dev_Properties_SpinBox::isInRange(double value) const {
  return (value >= mLowest && value <= mHighest) || value == this->value();
}

bool FB_Dev_Properties_SpinBox::hasTooManyDigits(const QString& text) const {
  const QString number = withoutUnit(text);
  const qsizetype point = number.indexOf(locale().decimalPoint());
  return point >= 0 && number.size() - point - 1 > decimals();
}

QString FB_Dev_Properties_SpinBox::withoutUnit(const QString& text) const {
  const QString unit = mUnit.trimmed();
  QString number = text.trimmed();
  if (!unit.isEmpty() && number.endsWith(unit)) {
    number.chop(unit.size());
  }
  return number.trimmed();
}

QString FB_Dev_Properties_SpinBox::textFromValue(double value) const {
  return mIsMixed ? mixedText() : QDoubleSpinBox::textFromValue(value);
}

double FB_Dev_Properties_SpinBox::valueFromText(const QString& text) const {
  bool isNumber = false;
  const double typed = locale().toDouble(withoutUnit(text), &isNumber);
  return isNumber ? typed : value();
}

/// What may be a number in the range when it is typed to the end may be typed; also one outside, which is marked.
QValidator::State FB_Dev_Properties_SpinBox::validate(QString& text, int& /*position*/) const {
  if (isMixedText(text)) {
    return QValidator::Acceptable;
  }
  if (const QString sign = locale().decimalPoint(); sign != QStringLiteral(".")) {
    text.replace(u'.', sign);
  }
  const QString number = withoutUnit(text);
  const auto isPart = [this](QChar sign) {
    return sign.isDigit() || sign == u'-' || sign == u'+' || locale().decimalPoint().contains(sign);
  };
  if (!std::ranges::all_of(number, isPart)) {
    return mValue.mIsMixed ? QValidator::Intermediate : QValidator::Invalid; // the rest of the word that stood there
  }
  if (hasTooManyDigits(number)) {
    return QValidator::Intermediate;
  }
  bool isNumber = false;
  const double typed = locale().toDouble(number, &isNumber);
  const bool isKept = typed == value() || (typed == limited(typed));
  return isNumber && isKept ? QValidator::Acceptable : QValidator::Intermediate;
}

/// A number outside comes to the end of the range, one with too many digits is rounded.
void FB_Dev_Properties_SpinBox::fixup(QString& text) const {
  bool isNumber = false;
  const double typed = locale().toDouble(withoutUnit(text), &isNumber);
  if (isNumber) {
    text = QDoubleSpinBox::textFromValue(limited(typed));
  }
}

void FB_Dev_Properties_SpinBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QDoubleSpinBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void FB_Dev_Properties_SpinBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && mIsTyping) {
    stopTyping();
    showAgain();
    selectAll();
    return;
  }
  QDoubleSpinBox::keyPressEvent(event);
}
