#include "fb/model/FB_Register_Pins.h"

#include "fb/model/FB_Modbus_Words.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr qsizetype cShortName = 20;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Register_Pins", text);
}

QString nameOf(const DB_Modbus_Register& item, size_t value) {
  const QString name = item.mName.isEmpty() ? tr("Register %1").arg(item.mAddress) : item.mName;
  return item.mCount > 1 ? tr("%1 [%2]").arg(name).arg(value + 1) : name;
}

QString shortened(const QString& name) {
  return name.size() > cShortName ? name.left(cShortName - 1) + u'…' : name;
}

} // namespace

FB_Side FB_Register_Pins::sideOf(const DB_Modbus_Register& item) {
  return FB_Modbus_Words::isWriting(item) ? FB_Side::Input : FB_Side::Output;
}

size_t FB_Register_Pins::count(const DB_FB_Control& block, FB_Side side, size_t limit) {
  size_t pins = 0;
  for (const DB_Modbus_Register& item : block.mModbusRegisters) {
    pins += sideOf(item) == side ? static_cast<size_t>(std::max(1, item.mCount)) : 0;
  }
  return std::min(pins, limit);
}

std::vector<DB_FB_Pin> FB_Register_Pins::build(const DB_FB_Control& block, FB_Side side, std::span<const DB_FB_Pin> old,
                                               size_t limit) {
  std::vector<DB_FB_Pin> pins;
  pins.reserve(count(block, side, limit));
  for (const DB_Modbus_Register& item : block.mModbusRegisters) {
    const size_t values = sideOf(item) == side ? static_cast<size_t>(std::max(1, item.mCount)) : 0;
    for (size_t value = 0; value < values && pins.size() < limit; ++value) {
      const QString name = nameOf(item, value);
      const size_t at = pins.size();
      pins.push_back({name, shortened(name), at < old.size() ? old[at].mBinding : DB_Address_Binding()});
    }
  }
  return pins;
}
