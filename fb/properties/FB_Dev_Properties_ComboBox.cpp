#include "fb/properties/FB_Dev_Properties_ComboBox.h"

#include <QSignalBlocker>
#include <QWheelEvent>

namespace {
constexpr int cLeastCharacters = 6;
} // namespace

FB_Dev_Properties_ComboBox::FB_Dev_Properties_ComboBox(int index, QWidget* parent)
    : QComboBox(parent),
      FB_Dev_Properties_Editor(Kind::Choice, index) {
  setFocusPolicy(Qt::StrongFocus); // the wheel scrolls the panel
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(cLeastCharacters);
  connect(this, &QComboBox::currentIndexChanged, this, &FB_Dev_Properties_ComboBox::onCurrentIndexChanged);
  connect(this, &QComboBox::currentTextChanged, this, &FB_Dev_Properties_ComboBox::onCurrentTextChanged);
}

void FB_Dev_Properties_ComboBox::setEntries(const QList<Entry>& entries) {
  if (entries == mEntries) {
    return;
  }
  const QSignalBlocker blocker(this);
  mEntries = entries;
  clear();
  for (const Entry& entry : entries) {
    addItem(entry.mText, entry.mValue);
  }
  showValue(mValue);
}

void FB_Dev_Properties_ComboBox::showValue(const FB_Shared_Value& value) {
  const QSignalBlocker blocker(this);
  mValue = value;
  setPlaceholderText(value.mIsMixed ? mixedText() : value.mText);
  setCurrentIndex(value.mIsMixed ? -1 : findData(value.mText));
}

QString FB_Dev_Properties_ComboBox::storedText() const {
  return currentIndex() < 0 ? mValue.mText : currentData().toString();
}

void FB_Dev_Properties_ComboBox::onCurrentIndexChanged(int /*index*/) {
  report();
}

void FB_Dev_Properties_ComboBox::onCurrentTextChanged(const QString& /*text*/) {
  report();
}

/// Index and text tell of the same choice.
void FB_Dev_Properties_ComboBox::report() {
  const FB_Shared_Value chosen{currentData().toString(), false};
  if (currentIndex() >= 0 && chosen != mValue) {
    mValue = chosen;
    emit valueChanged(this);
  }
}

void FB_Dev_Properties_ComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}
