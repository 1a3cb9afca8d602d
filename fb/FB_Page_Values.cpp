// Live values on the page: at the pins, inside of blocks that show one, and by the looks of the wires.
#include "db/Address_Value_Text.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"

#include <algorithm>
#include <utility>

namespace {

bool isBoundToAny(const std::vector<DB_FB_Pin>& pins, const QSet<QUuid>& keys) {
  return std::ranges::any_of(pins, [&keys](const DB_FB_Pin& pin) {
    return pin.mBinding.mKind != DB_Address_Binding::Kind::None && keys.contains(pin.mBinding.mKey);
  });
}

} // namespace

void FB_Page::setValueSource(Value_Source source) {
  mValues = std::move(source);
  valuesChanged();
}

void FB_Page::showValues(bool isShown) {
  mShowsValues = isShown;
  valuesChanged();
}

void FB_Page::valuesChanged() {
  lightWires();
  for (int i = 0; i < mBlocks.count(); ++i) {
    mBlocks.at(i).valuesChanged();
  }
  update();
}

/// Widgets are not asked while nobody sees them; what is shown again is drawn anew anyway.
void FB_Page::valuesChanged(const QSet<QUuid>& keys) {
  if (!isVisible()) {
    return;
  }
  const QRectF seen = visiblePart();
  for (int i = 0; i < mBlocks.count(); ++i) {
    const DB_FB_Control& block = mBlocks.at(i).record();
    if (!mBlocks.isDisplayed(i) || (!isBoundToAny(block.mInputs, keys) && !isBoundToAny(block.mOutputs, keys))) {
      continue;
    }
    if (mBlocks.isShown(i)) {
      mBlocks.at(i).valuesChanged();
    }
    if (mShowsValues) {
      const QRectF labels = mBlocks.at(i).labelRect();
      if (labels.intersects(seen)) {
        update((labels & seen).toAlignedRect());
      }
    }
  }
  if (mShowsValues) {
    for (int wire = 0; wire < mBlocks.wires().count(); ++wire) {
      if (keys.contains(mBlocks.wires().at(wire).mKey) && mBlocks.wires().setLight(wire, lightOf(wire))) {
        update((mBlocks.wires().rect(wire) & seen).toAlignedRect());
      }
    }
  }
}

void FB_Page::lightWires() {
  FB_Wires& wires = mBlocks.wires();
  for (int wire = 0; wire < wires.count(); ++wire) {
    wires.setLight(wire, mShowsValues ? lightOf(wire) : FB_Wires::Light());
  }
}

FB_Wires::Light FB_Page::lightOf(int wire) const {
  const FB_Wires::Wire& drawn = mBlocks.wires().at(wire);
  if (drawn.mEntry.mSource >= mBlocks.count()) {
    return {}; // the page follows its records soon
  }
  const std::vector<DB_FB_Pin>& outputs = mBlocks.at(drawn.mEntry.mSource).record().mOutputs;
  const auto output = static_cast<size_t>(drawn.mEntry.mOutput);
  if (output >= outputs.size() || outputs[output].mBinding.mKey != drawn.mKey) {
    return {};
  }
  const FB_Live_Value value = valueOf(outputs[output].mBinding);
  return {value.mIsOn, value.mIsStale};
}

void FB_Page::sendValue(const DB_Address_Binding& binding, const QString& typed) {
  Value_Service* const service = mSession.valueService();
  if (binding.mKind != DB_Address_Binding::Kind::GroupAddress) {
    emit statusText(tr("Der Ausgang ist mit keiner Gruppenadresse verknüpft, es gibt nichts zu senden."));
    return;
  }
  QString error;
  const std::optional<QByteArray> payload = Address_Value_Text::parse(binding.mDpt, typed, &error);
  const Edit_Result result = !payload   ? Edit_Result::refused(error)
                             : !service ? Edit_Result::refused(tr("Keine Verbindung zur Steuerung"))
                                        : service->send(binding.mKey, *payload);
  const QString address = Group_Address(binding.mMain, binding.mMiddle, binding.mSub).toString();
  emit statusText(result ? tr("Gesendet an %1: %2").arg(address, typed) : result.mError);
}
