// The rows of the parameters.
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Parameter_Text.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/properties/FB_Dev_Properties_Checkbox.h"
#include "fb/properties/FB_Dev_Properties_ComboBox.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"
#include "fb/properties/FB_Dev_Properties_Page.h"
#include "fb/properties/FB_Dev_Properties_SpinBox.h"
#include "fb/properties/FB_Property_Row.h"

#include <QTreeWidget>

#include <algorithm>

namespace {

constexpr qsizetype cMostNamed = 4;

/// "Eingang 3, Eingang 4 und 12 weitere"; of two at least.
QString enumerated(const QStringList& names) {
  const bool areAll = names.size() <= cMostNamed;
  const qsizetype named = areAll ? names.size() - 1 : cMostNamed - 1;
  const QString rest = areAll ? names.last() : FB_Dev_Properties_Page::tr("%1 weitere").arg(names.size() - named);
  return FB_Dev_Properties_Page::tr("%1 und %2").arg(names.first(named).join(QStringLiteral(", ")), rest);
}

QString digitsText(int decimals) {
  return decimals > 0 ? FB_Dev_Properties_Page::tr("höchstens %n Nachkommastellen", nullptr, decimals)
                      : FB_Dev_Properties_Page::tr("nur ganze Zahlen");
}

} // namespace

QList<FB_Dev_Properties_Editor*> FB_Dev_Properties_Page::editors() const {
  QList<FB_Dev_Properties_Editor*> all;
  for (const auto& [index, field] : mRows) {
    all.append(field.mEditor);
  }
  return all;
}

FB_Dev_Properties_Editor* FB_Dev_Properties_Page::editor(int index) const {
  const auto at = mRows.find(index);
  return at == mRows.end() ? nullptr : at->second.mEditor;
}

template <class Editor, class Slot>
Editor* FB_Dev_Properties_Page::editorFor(int index, const FB_Parameter& parameter, const QString& value, Slot slot) {
  auto at = mRows.find(index);
  if (at != mRows.end() && !dynamic_cast<Editor*>(at->second.mEditor)) {
    delete at->second.mItem;
    at = mRows.erase(at);
  }
  if (at == mRows.end() || at->first != index) {
    auto* const made = new Editor(index);
    const auto place = static_cast<int>(std::distance(mRows.begin(), mRows.lower_bound(index)));
    Parameter_Field field;
    static_cast<Field&>(field) = addField(*mParameters, place, FB_Parameter_Text::name(parameter, index), *made);
    field.mParameter = parameter;
    describe(field, FB_Types::text(parameter.mDescription), FB_Parameter_Text::toolTip(parameter));
    made->showValue({value, false});
    connect(made, qOverload<Editor*>(&Editor::valueChanged), this, slot);
    connect(field.mRow, &FB_Property_Row::resetRequested, this,
            [this, made, usual = parameter.mDefault] { editParameter(*made, QString::fromUtf8(usual)); });
    at = mRows.emplace(index, field).first;
    mHasNewRows = true;
  }
  at->second.mIsAsked = true;
  return static_cast<Editor*>(at->second.mEditor);
}

FB_Dev_Properties_SpinBox* FB_Dev_Properties_Page::addNumber(int index, const FB_Parameter& parameter,
                                                             const QString& value) {
  const bool isNew = !editor(index);
  auto* const made = editorFor<FB_Dev_Properties_SpinBox>(index, parameter, value,
                                                          &FB_Dev_Properties_Page::onParam_SpinBox_valueChanged);
  if (isNew) {
    connect(made, &FB_Dev_Properties_SpinBox::typed, this,
            [this, index] { showRemark(mRows.at(index), index, records()); });
  }
  return made;
}

FB_Dev_Properties_Checkbox* FB_Dev_Properties_Page::addCheck(int index, const FB_Parameter& parameter,
                                                             const QString& value) {
  return editorFor<FB_Dev_Properties_Checkbox>(index, parameter, value,
                                               &FB_Dev_Properties_Page::onParam_Checkbox_valueChanged);
}

FB_Dev_Properties_ComboBox* FB_Dev_Properties_Page::addChoice(int index, const FB_Parameter& parameter,
                                                              const QString& value) {
  return editorFor<FB_Dev_Properties_ComboBox>(index, parameter, value,
                                               &FB_Dev_Properties_Page::onParam_Combobox_valueChanged);
}

FB_Dev_Properties_LineEdit* FB_Dev_Properties_Page::addText(int index, const FB_Parameter& parameter,
                                                            const QString& value) {
  return editorFor<FB_Dev_Properties_LineEdit>(index, parameter, value,
                                               &FB_Dev_Properties_Page::onParam_Edit_valueChanged);
}

void FB_Dev_Properties_Page::setEnabled(int index, bool isEnabled) {
  if (const auto at = mRows.find(index); at != mRows.end()) {
    setDisabledReason(at->second, isEnabled ? QString() : tr("Ist bei den anderen Einstellungen ohne Bedeutung."));
  }
}

void FB_Dev_Properties_Page::clearParameters() {
  for (const auto& [index, field] : mRows) {
    delete field.mItem;
  }
  mRows.clear();
  mType = -1;
}

/// The block asks for its rows anew each time: those that it asks for again stay as they are.
void FB_Dev_Properties_Page::showParameters(const Blocks& blocks) {
  const int type = blocks.front()->mType;
  const bool isOneType = std::ranges::all_of(blocks, [type](const auto* block) { return block->mType == type; });
  const FB_Base* const first = mCanvas->blocks().find(blocks.front()->mGuid);
  mTree->setUpdatesEnabled(false);
  if (!isOneType || !first || mType != type) {
    clearParameters();
  }
  if (isOneType && first) {
    mType = type;
    for (auto& [index, field] : mRows) {
      field.mIsAsked = false;
    }
    first->setupProperties(*this);
    std::erase_if(mRows, [](const auto& row) {
      if (!row.second.mIsAsked) {
        delete row.second.mItem;
      }
      return !row.second.mIsAsked;
    });
    for (auto& [index, field] : mRows) {
      showParameter(field, index, blocks);
    }
  }
  showParameterHint(blocks);
  mTree->setUpdatesEnabled(true);
}

void FB_Dev_Properties_Page::showParameter(Parameter_Field& field, int index, const Blocks& blocks) {
  const FB_Parameter& parameter = field.mParameter;
  const QString usual = QString::fromUtf8(parameter.mDefault);
  const auto valueOf = [&](const DB_FB_Control& block) {
    return index < block.mParams.size() ? block.mParams.at(index) : usual;
  };
  const FB_Shared_Value value = FB_Shared_Value::of(blocks, valueOf);
  field.mEditor->showValue(value);
  const bool isChanged = value.mIsMixed || !FB_Parameter_Text::isDefault(parameter, value.mText);
  QFont font = mTree->font();
  font.setBold(isChanged);
  if (field.mItem->font(0).bold() != isChanged) {
    field.mItem->setFont(0, font);
  }
  field.mRow->setReset(isChanged ? tr("Auf Vorgabe \"%1\" zurücksetzen").arg(FB_Parameter_Text::shown(parameter, usual))
                                 : QString());
  showRemark(field, index, blocks);
  if (const bool isHidden = isBeyondCount(field, index, blocks); isHidden != field.mItem->isHidden()) {
    field.mItem->setHidden(isHidden);
  }
}

void FB_Dev_Properties_Page::showRemark(Parameter_Field& field, int index, const Blocks& blocks) {
  const FB_Parameter& parameter = field.mParameter;
  const bool isCount = countsPins(index);
  if (const auto* const box = dynamic_cast<FB_Dev_Properties_SpinBox*>(field.mEditor); box && box->isTyping()) {
    const QString outside = FB_Parameter_Text::ofNumber(parameter.mMaximum + 1, 0);
    const QStringList lost = isCount && !box->typedText().isEmpty()
                                 ? FB_Page_Edits::lostBindings(mSession, mBlocks, index, box->typedText())
                                 : QStringList();
    field.mRow->setRemark(box->isTypedOutside()   ? FB_Parameter_Text::fault(parameter, outside)
                          : box->isTypedTooFine() ? digitsText(parameter.mDecimals)
                                                  : QString(),
                          lost.isEmpty()     ? QString()
                          : lost.size() == 1 ? tr("%1 verliert die Verknüpfung").arg(lost.first())
                                             : tr("%1 verlieren ihre Verknüpfung").arg(enumerated(lost)));
    return;
  }
  const FB_Shared_Value value = FB_Shared_Value::of(blocks, [&](const DB_FB_Control& block) {
    return index < block.mParams.size() ? block.mParams.at(index) : QString::fromUtf8(parameter.mDefault);
  });
  const bool isHuge =
      isCount && !value.mIsMixed && FB_Parameter_Text::number(value.mText).value_or(0) > FB_Pins::cMostPins;
  field.mRow->setRemark(value.mIsMixed ? QString() : FB_Parameter_Text::fault(parameter, value.mText),
                        isHuge ? FB_Pins::missingPins(*blocks.front()) : QString());
}

bool FB_Dev_Properties_Page::isBeyondCount(const Parameter_Field& field, int index, const Blocks& blocks) const {
  const FB_Type* const type = FB_Types::find(mType);
  if (!type || !QByteArrayView(field.mParameter.mName).contains("%1")) {
    return false; // only rows that are numbered like pins
  }
  const auto counted = std::ranges::find_if(type->mPins, [](const auto& group) { return group.mParameter >= 0; });
  return counted != type->mPins.end() && std::ranges::all_of(blocks, [&](const DB_FB_Control* block) {
           return index > FB_Parameter_Text::number(block->mParams.value(counted->mParameter)).value_or(0);
         });
}

void FB_Dev_Properties_Page::showParameterHint(const Blocks& blocks) {
  const int type = blocks.front()->mType;
  const bool isOneType = std::ranges::all_of(blocks, [type](const auto* block) { return block->mType == type; });
  const FB_Type* const declared = FB_Types::find(type);
  mHint->setText(0, !isOneType                       ? tr("Nur für Bausteine eines Typs")
                    : declared && declared->mHasPins ? tr("Der Baustein hat keine Parameter.")
                                                     : tr("Parameter noch nicht verfügbar"));
  mHint->setHidden(!mRows.empty());
}

/// Why the row does not matter, with the blocks as they are; empty when it does for one of them.
QString FB_Dev_Properties_Page::whyUseless(const Parameter_Field& field, const Blocks& blocks) const {
  const FB_Parameter& parameter = field.mParameter;
  const auto needed = mRows.find(parameter.mNeeds);
  if (parameter.mNeeds < 0 || needed == mRows.end()) {
    return {};
  }
  const auto matters = [&](const DB_FB_Control* block) {
    return FB_Parameter_Text::number(block->mParams.value(parameter.mNeeds)) == double(parameter.mNeedsValue);
  };
  return std::ranges::any_of(blocks, matters)
             ? QString()
             : tr("Nur von Bedeutung, wenn \"%1\" auf \"%2\" steht.")
                   .arg(FB_Parameter_Text::name(needed->second.mParameter, parameter.mNeeds),
                        FB_Parameter_Text::shown(needed->second.mParameter, QString::number(parameter.mNeedsValue)));
}

bool FB_Dev_Properties_Page::countsPins(int index) const {
  const FB_Type* const type = FB_Types::find(mType);
  return type && std::any_of(type->mPins.begin(), type->mPins.end(),
                             [index](const FB_Pin_Group& group) { return group.mParameter == index; });
}

void FB_Dev_Properties_Page::editParameter(FB_Dev_Properties_Editor& editor, const QString& value) {
  const int index = editor.index();
  const QStringList lost =
      countsPins(index) ? FB_Page_Edits::lostBindings(mSession, mBlocks, index, value) : QStringList();
  if (!edit(editor.widget(), [&] { return FB_Page_Edits::setParameter(mSession, mBlocks, index, value); })) {
    return;
  }
  if (!lost.isEmpty()) {
    setNotice(lost.size() == 1
                  ? tr("%1 hat die Verknüpfung verloren. Rückgängig bringt sie zurück.").arg(lost.first())
                  : tr("%1 haben ihre Verknüpfung verloren. Rückgängig bringt sie zurück.").arg(enumerated(lost)));
  }
  const FB_Base* const first = mCanvas ? mCanvas->blocks().find(mBlocks.value(0)) : nullptr;
  if (first && !mRows.empty()) {
    first->parameterEdited(*this, index);
  }
}

void FB_Dev_Properties_Page::onParam_SpinBox_valueChanged(FB_Dev_Properties_SpinBox* editor) {
  editParameter(*editor, editor->storedText());
}

void FB_Dev_Properties_Page::onParam_Checkbox_valueChanged(FB_Dev_Properties_Checkbox* editor) {
  editParameter(*editor, editor->storedText());
}

void FB_Dev_Properties_Page::onParam_Combobox_valueChanged(FB_Dev_Properties_ComboBox* editor) {
  editParameter(*editor, editor->storedText());
}

void FB_Dev_Properties_Page::onParam_Edit_valueChanged(FB_Dev_Properties_LineEdit* editor) {
  editParameter(*editor, editor->storedText());
}
