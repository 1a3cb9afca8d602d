// What a block takes from the declaration of its type.
#include "fb/FB_Base.h"
#include "fb/FB_Property_Editors.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/properties/FB_Dev_Properties_ComboBox.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"
#include "fb/properties/FB_Dev_Properties_SpinBox.h"

namespace {

QList<FB_Dev_Properties_ComboBox::Entry> entriesOf(const FB_Parameter& parameter) {
  QList<FB_Dev_Properties_ComboBox::Entry> entries;
  for (const FB_Choice& choice : parameter.mChoices) {
    entries.append({FB_Types::text(choice.mText), QString::number(choice.mValue)});
  }
  return entries;
}

void add(FB_Property_Editors& editors, int index, const FB_Parameter& parameter, const QString& value) {
  switch (parameter.mEditor) {
  case FB_Editor::Number: {
    FB_Dev_Properties_SpinBox* const editor = editors.addNumber(index, parameter, value);
    editor->setLimits(parameter.mMinimum, parameter.mMaximum, parameter.mDecimals, FB_Types::text(parameter.mUnit));
    break;
  }
  case FB_Editor::Check:
    editors.addCheck(index, parameter, value);
    break;
  case FB_Editor::Choice:
    editors.addChoice(index, parameter, value)->setEntries(entriesOf(parameter));
    break;
  case FB_Editor::Text:
    editors.addText(index, parameter, value);
    break;
  case FB_Editor::File_Name:
    editors.addText(index, parameter, value)->setFileName();
    break;
  case FB_Editor::Window:
    break;
  }
}

} // namespace

void FB_Base::setupProperties(FB_Property_Editors& editors) const {
  const FB_Type* const type = FB_Types::find(mRecord.mType);
  if (!type) {
    return;
  }
  int index = 0;
  for (const FB_Parameter& parameter : type->mParameters) {
    const QString value =
        index < mRecord.mParams.size() ? mRecord.mParams.at(index) : QString::fromUtf8(parameter.mDefault);
    add(editors, index, parameter, value);
    ++index;
  }
}

QString FB_Base::helpFileName() const {
  return FB_Types::helpFileName(mRecord.mType);
}

void FB_Base::rebuildPins() {
  FB_Pins::rebuild(mRecord);
  measure();
}
