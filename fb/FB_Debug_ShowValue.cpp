#include "fb/FB_Debug_ShowValue.h"

#include "fb/FB_Block_Host.h"

#include <QLocale>

#include <algorithm>

namespace {

// The type's parameters.
constexpr int cDecimals = 0;
constexpr int cUnit = 1;

constexpr int cMostDecimals = 9;

} // namespace

void FB_Debug_ShowValue::valuesChanged() {
  update();
}

QString FB_Debug_ShowValue::bodyText() const {
  const std::vector<DB_FB_Pin>& inputs = record().mInputs;
  const FB_Live_Value value = inputs.empty() ? FB_Live_Value() : host().valueOf(inputs.front().mBinding);
  if (value.mText.isEmpty()) {
    return QStringLiteral("–");
  }
  const int decimals = std::clamp(record().mParams.value(cDecimals).toInt(), 0, cMostDecimals);
  const QString unit = record().mParams.value(cUnit);
  // Without a unit of its own it shows that of the datapoint type.
  const QString shown = !value.mNumber   ? value.mText + u' ' + unit
                        : unit.isEmpty() ? QLocale().toString(*value.mNumber, 'f', decimals) + value.mUnit
                                         : QLocale().toString(*value.mNumber, 'f', decimals) + u' ' + unit;
  return (value.mIsStale ? tr("%1 (veraltet)").arg(shown.simplified()) : shown).simplified();
}
