#include "fb/model/FB_Block_Edits.h"

#include "db/DB_Text.h"
#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSet>

#include <algorithm>

namespace {

using Kind = DB_Address_Binding::Kind;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Block_Edits", text);
}

/// Applies the change to each of the blocks.
template <class Change>
Edit_Result changeAll(FB_Edit& edit, const QList<QUuid>& blocks, Change&& change) {
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  std::vector<const DB_FB_Control*> found;
  if (FB_Edit::find(edit.database(), blocks, found, result)) {
    for (const DB_FB_Control* const block : found) {
      edit.change(block->mGuid, change);
    }
  }
  return result;
}

template <class Field, class Value>
Edit_Result setField(Project_Session& session, const QString& step, const QList<QUuid>& blocks, Field field,
                     const Value& value, const Edit_Result& check = {}) {
  FB_Edit edit(session, step);
  if (edit && !check) {
    return check;
  }
  return changeAll(edit, blocks, [&](DB_FB_Control& block) { block.*field = value; });
}

Edit_Result checkLength(const QString& text, qsizetype limit) {
  const QLocale locale;
  return text.size() <= limit ? Edit_Result::done()
                              : Edit_Result::refused(tr("Der Text hat %1 Zeichen, erlaubt sind höchstens %2.")
                                                         .arg(locale.toString(text.size()), locale.toString(limit)));
}

Edit_Result checkDelay(int seconds) {
  const QLocale locale;
  return seconds >= 0 && seconds <= FB_Block_Edits::cStartDelayMaximum
             ? Edit_Result::done()
             : Edit_Result::refused(
                   tr("Eine Startverzögerung von %1 s ist nicht möglich, erlaubt sind 0 bis %2 s.")
                       .arg(locale.toString(seconds), locale.toString(FB_Block_Edits::cStartDelayMaximum)));
}

} // namespace

Edit_Result FB_Block_Edits::setName(Project_Session& session, const QList<QUuid>& blocks, const QString& name) {
  const QString clean = DB_Text::singleLine(name);
  return setField(session, tr("Name ändern"), blocks, &DB_FB_Control::mName, clean, checkLength(clean, cNameLimit));
}

Edit_Result FB_Block_Edits::takeNames(Project_Session& session, const QList<QUuid>& blocks) {
  FB_Edit edit(session, tr("Name übernehmen"));
  return changeAll(edit, blocks, [](DB_FB_Control& block) { block.mName = fittingName(block); });
}

Edit_Result FB_Block_Edits::setComment(Project_Session& session, const QList<QUuid>& blocks, const QString& comment) {
  const QString clean = DB_Text::clean(comment);
  return setField(session, tr("Kommentar ändern"), blocks, &DB_FB_Control::mComment, clean,
                  checkLength(clean, FB_Page_Edits::cCommentLimit));
}

Edit_Result FB_Block_Edits::setCommentAsCaption(Project_Session& session, const QList<QUuid>& blocks, bool isCaption) {
  return setField(session, tr("Kommentar als Überschrift"), blocks, &DB_FB_Control::mCommentAsCaption, isCaption);
}

Edit_Result FB_Block_Edits::setDisabled(Project_Session& session, const QList<QUuid>& blocks, bool isDisabled) {
  return setField(session, isDisabled ? tr("Baustein deaktivieren") : tr("Baustein aktivieren"), blocks,
                  &DB_FB_Control::mDisabled, isDisabled);
}

Edit_Result FB_Block_Edits::setUpdateAtStart(Project_Session& session, const QList<QUuid>& blocks, bool isUpdated) {
  return setField(session, tr("Beim Start aktualisieren"), blocks, &DB_FB_Control::mUpdateAtStart, isUpdated);
}

Edit_Result FB_Block_Edits::setUpdateCyclic(Project_Session& session, const QList<QUuid>& blocks, bool isUpdated) {
  return setField(session, tr("Zyklisch aktualisieren"), blocks, &DB_FB_Control::mUpdateCyclic, isUpdated);
}

Edit_Result FB_Block_Edits::setStartDelay(Project_Session& session, const QList<QUuid>& blocks, int seconds) {
  return setField(session, tr("Startverzögerung ändern"), blocks, &DB_FB_Control::mStartDelay, seconds,
                  checkDelay(seconds));
}

Edit_Result FB_Block_Edits::setDisableAddress(Project_Session& session, const QList<QUuid>& blocks,
                                              const QUuid& address) {
  FB_Edit edit(session, tr("Deaktivieren Adresse ändern"));
  DB_Address_Binding binding;
  if (edit && !address.isNull()) {
    const Address_Tree& tree = edit.database().mAddresses;
    const DB_Address_Sub_Group* const group = tree.subGroup(address);
    if (!group) {
      return Edit_Result::refused(tr("Die Gruppenadresse gibt es nicht mehr."));
    }
    binding.bindTo(*group, tree.addressOf(*group));
  }
  QSet<QUuid> variables;
  Edit_Result result = changeAll(edit, blocks, [&](DB_FB_Control& block) {
    if (block.mDisableAddress.mKind == Kind::Internal) {
      variables.insert(block.mDisableAddress.mKey);
    }
    block.mDisableAddress = binding;
  });
  if (result) {
    FB_Variables::release(edit, variables);
  }
  return result;
}

QString FB_Block_Edits::fittingName(const DB_FB_Control& block) {
  const auto isNamed = [](const DB_FB_Pin& pin) {
    return pin.mBinding.mKind != Kind::None && !pin.mBinding.mName.isEmpty();
  };
  for (const auto* const pins : {&block.mOutputs, &block.mInputs}) {
    if (const auto pin = std::ranges::find_if(*pins, isNamed); pin != pins->end()) {
      return DB_Text::singleLine(pin->mBinding.mName).left(cNameLimit);
    }
  }
  return DB_Text::singleLine(FB_Geometry::title(block)).left(cNameLimit);
}
