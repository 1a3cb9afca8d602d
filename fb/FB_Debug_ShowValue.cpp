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
  const QString value = inputs.empty() ? QString() : host().valueOf(inputs.front().mBinding).simplified();
  if (value.isEmpty()) {
    return QStringLiteral("–");
  }
  const QLocale locale;
  bool isNumber = false;
  const double number = locale.toDouble(value, &isNumber);
  const bool isReal = isNumber && value.contains(locale.decimalPoint());
  const int decimals = std::clamp(record().mParams.value(cDecimals).toInt(), 0, cMostDecimals);
  const QString shown = isReal ? locale.toString(number, 'f', decimals) : value;
  return (shown + u' ' + record().mParams.value(cUnit)).simplified();
}
