#include "fb/FB_Session_Values.h"

#include "db/Address_Value_Text.h"
#include "db/Project_Session.h"

FB_Live_Value FB_Session_Values::of(const Project_Session& session, const DB_Address_Binding& binding) {
  const Address_Value* const value =
      binding.mKind == DB_Address_Binding::Kind::GroupAddress ? session.values().find(binding.mKey) : nullptr;
  if (!value) {
    return {};
  }
  FB_Live_Value live;
  live.mText = Address_Value_Text::text(binding.mDpt, *value);
  live.mIsStale = value->mIsStale;
  const std::optional<Datapoint_Type> type = value->mValue ? Address_Value_Text::typeOf(binding.mDpt) : std::nullopt;
  if (type && type->mFormat == Datapoint_Format::Bool) {
    live.mIsOn = value->mValue->number() == 1.0;
  } else if (type && std::holds_alternative<double>(value->mValue->mScalar)) {
    live.mNumber = value->mValue->number();
    live.mUnit = *type->mUnit ? u' ' + type->unit() : QString();
  }
  return live;
}
