#include "fb/properties/FB_Dev_Properties_Checkbox.h"

#include "fb/model/FB_Parameter_Text.h"

#include <QSignalBlocker>

FB_Dev_Properties_Checkbox::FB_Dev_Properties_Checkbox(int index, QWidget* parent)
    : QCheckBox(parent),
      FB_Dev_Properties_Editor(Kind::Check, index) {
  connect(this, &QAbstractButton::clicked, this, &FB_Dev_Properties_Checkbox::onClicked);
}

void FB_Dev_Properties_Checkbox::showValue(const FB_Shared_Value& value) {
  const QSignalBlocker blocker(this);
  setTristate(value.mIsMixed);
  setText(value.mIsMixed ? mixedText() : QString());
  if (value.mIsMixed) {
    setCheckState(Qt::PartiallyChecked);
  } else {
    setChecked(FB_Parameter_Text::number(value.mText).value_or(0) != 0);
  }
}

QString FB_Dev_Properties_Checkbox::storedText() const {
  return isChecked() ? QStringLiteral("1") : QStringLiteral("0");
}

void FB_Dev_Properties_Checkbox::onClicked() {
  setTristate(false);
  setText({});
  emit valueChanged(this);
}
