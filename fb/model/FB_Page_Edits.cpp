#include "fb/model/FB_Page_Edits.h"

#include "db/DB_Bindings.h"
#include "db/DB_Text.h"
#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Positions.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Page_Edits", text);
}

FB_Page_Edits::Result refused(const QString& error) {
  return {Edit_Result::refused(error), {}, {}};
}

QSet<QUuid> variablesOf(const std::vector<const DB_FB_Control*>& blocks) {
  QSet<QUuid> keys;
  for (const DB_FB_Control* const block : blocks) {
    for (const auto* const pins : {&block->mInputs, &block->mOutputs}) {
      for (const DB_FB_Pin& pin : *pins) {
        if (pin.mBinding.mKind == DB_Address_Binding::Kind::Internal) {
          keys.insert(pin.mBinding.mKey);
        }
      }
    }
    if (block->mDisableAddress.mKind == DB_Address_Binding::Kind::Internal) {
      keys.insert(block->mDisableAddress.mKey);
    }
  }
  return keys;
}

Edit_Result checkLength(const QString& text, qsizetype limit) {
  if (text.size() > limit) {
    const QLocale locale;
    return Edit_Result::refused(tr("Der Text hat %1 Zeichen, erlaubt sind höchstens %2.")
                                    .arg(locale.toString(text.size()), locale.toString(limit)));
  }
  return Edit_Result::done();
}

/// Whether the value fits what the type declares. A number of pins that is too small or none is corrected later.
Edit_Result checkValue(const FB_Type& type, int index, const QString& value) {
  const FB_Parameter& parameter = type.mParameters[static_cast<size_t>(index)];
  const auto isMeant = [&value](const FB_Choice& choice) { return QString::number(choice.mValue) == value; };
  if (parameter.mEditor == FB_Editor::Choice && !std::ranges::any_of(parameter.mChoices, isMeant)) {
    return Edit_Result::refused(
        tr("\"%1\" steht bei \"%2\" nicht zur Wahl.").arg(value.left(40), FB_Types::text(parameter.mName)));
  }
  if (parameter.mEditor != FB_Editor::Number) {
    return Edit_Result::done();
  }
  const bool isCount = std::any_of(type.mPins.begin(), type.mPins.end(),
                                   [index](const FB_Pin_Group& group) { return group.mParameter == index; });
  bool isNumber = false;
  const double number = value.toDouble(&isNumber);
  const bool isTooLow = !isNumber || !(number >= parameter.mMinimum);
  if ((isTooLow && !isCount) || (isNumber && number > parameter.mMaximum)) {
    const QLocale locale;
    return Edit_Result::refused(tr("\"%1\" ist für \"%2\" nicht möglich, erlaubt sind Zahlen von %3 bis %4.")
                                    .arg(value.left(40), FB_Types::text(parameter.mName),
                                         locale.toString(parameter.mMinimum, 'f', parameter.mDecimals),
                                         locale.toString(parameter.mMaximum, 'f', parameter.mDecimals)));
  }
  return Edit_Result::done();
}

Edit_Result checkParameter(const DB_FB_Control& block, int index, const QString& value) {
  const FB_Type* const type = FB_Types::find(block.mType);
  const bool isDeclared = type && index >= 0 && index < static_cast<int>(type->mParameters.size());
  if (!isDeclared && (index < 0 || index >= block.mParams.size())) {
    return Edit_Result::refused(tr("Einen Parameter %1 hat der Baustein \"%2\" nicht.")
                                    .arg(QString::number(qint64(index) + 1), FB_Types::name(block.mType)));
  }
  const Edit_Result length = checkLength(value, FB_Page_Edits::cParameterLimit);
  return length && isDeclared ? checkValue(*type, index, value) : length;
}

} // namespace

QString FB_Page_Edits::onceRefusal() {
  return tr("Funktionsbaustein bereits vorhanden, dieser Baustein darf nur einmal im Projekt vorhanden sein!");
}

QString FB_Page_Edits::whyNot(const Project_Session& session, int type) {
  if (session.state().operatingMode()) {
    return Session_State::operatingModeRefusal();
  }
  const FB_Type* const declared = FB_Types::find(type);
  if (!declared) {
    return tr("Einen Baustein mit der Nummer %1 gibt es nicht.").arg(type);
  }
  if (declared->mIsOnce) {
    for (const auto& page : session.database().mFbPages.pages()) {
      for (const auto& block : page->mChildren) {
        if (block->mType == type) {
          return onceRefusal();
        }
      }
    }
  }
  return {};
}

FB_Page_Edits::Result FB_Page_Edits::create(Project_Session& session, const QUuid& page, int type,
                                            const QPointF& position) {
  FB_Edit edit(session, tr("Baustein einfügen"));
  const QString reason = whyNot(session, type);
  if (!edit || !reason.isEmpty()) {
    return refused(reason);
  }
  if (!edit.database().mFbPages.page(page)) {
    return refused(tr("Die Seite gibt es nicht mehr."));
  }
  if (const Edit_Result check = FB_Positions::check(position); !check) {
    return refused(check.mError);
  }
  std::unique_ptr<DB_FB_Control> block = FB_Pins::makeBlock(type, position);
  block->mPageGuid = page;
  return {Edit_Result::done(), {edit.append(std::move(block))}, {}};
}

Edit_Result FB_Page_Edits::remove(Project_Session& session, const QList<QUuid>& blocks) {
  FB_Edit edit(session, blocks.size() == 1 ? tr("Baustein löschen") : tr("Bausteine löschen"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  std::vector<const DB_FB_Control*> found;
  if (!FB_Edit::find(edit.database(), blocks, found, result)) {
    return result;
  }
  const QSet<QUuid> variables = variablesOf(found);
  QSet<QUuid> written;
  for (const DB_FB_Control* const block : found) {
    for (const DB_FB_Pin& output : block->mOutputs) {
      written.insert(output.mBinding.mKey);
    }
  }
  for (const DB_FB_Control* const block : found) {
    edit.remove(QUuid(block->mGuid));
  }
  FB_Variables::releaseAfterRemoval(edit, variables, written);
  return result;
}

Edit_Result FB_Page_Edits::setTitle(Project_Session& session, const QUuid& block, const QString& title) {
  FB_Edit edit(session, tr("Titel ändern"));
  if (!edit) {
    return edit.refusal();
  }
  if (Edit_Result check = edit.check(block); !check) {
    return check;
  }
  const bool isComment = edit.block(block)->mType == FB_Types::cComment;
  const QString clean = isComment ? DB_Text::clean(title) : DB_Text::singleLine(title);
  Edit_Result result = checkLength(clean, isComment ? cCommentLimit : cTitleLimit);
  if (result) {
    edit.change(block, [&clean](DB_FB_Control& record) { record.mTitle = clean; });
  }
  return result;
}

Edit_Result FB_Page_Edits::setParameter(Project_Session& session, const QUuid& block, int index, const QString& value) {
  return setParameter(session, QList<QUuid>{block}, index, value);
}

Edit_Result FB_Page_Edits::setParameter(Project_Session& session, const QList<QUuid>& blocks, int index,
                                        const QString& value) {
  FB_Edit edit(session, tr("Parameter ändern"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  std::vector<const DB_FB_Control*> found;
  if (!FB_Edit::find(edit.database(), blocks, found, result)) {
    return result;
  }
  const QString clean = DB_Text::clean(value);
  for (const DB_FB_Control* const block : found) {
    if (result = checkParameter(*block, index, clean); !result) {
      return result;
    }
  }
  const QSet<QUuid> variables = variablesOf(found);
  for (const DB_FB_Control* const block : found) {
    edit.change(block->mGuid, [&](DB_FB_Control& record) {
      while (record.mParams.size() <= index) {
        record.mParams.append(QString());
      }
      record.mParams[index] = clean;
      FB_Pins::rebuild(record);
    });
  }
  FB_Variables::release(edit, variables - variablesOf(found)); // those of pins that are gone
  return result;
}

QStringList FB_Page_Edits::lostBindings(const Project_Session& session, const QList<QUuid>& blocks, int index,
                                        const QString& value) {
  QStringList lost;
  for (const QUuid& guid : blocks) {
    const DB_FB_Control* const block = session.database().mFbPages.child(guid);
    if (!block) {
      continue;
    }
    const QStringList pins = FB_Pins::lostBindings(*block, index, value);
    for (const QString& pin : pins) {
      lost.append(blocks.size() == 1 ? pin : QStringLiteral("%1: %2").arg(FB_Geometry::title(*block), pin));
    }
  }
  return lost;
}
