#include "simulator/Simulator_Cycle.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "simulator/Simulator_Controller.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double cMiddle = 20;   // a measure drifts about this
constexpr double cAmplitude = 4; // so far to either side
constexpr double cRounds = 12;   // in about so many rounds
constexpr double cPercentStep = 20;
constexpr int cDevices = 250;
constexpr int cDeviceArea = 1;
constexpr int cDeviceLine = 1;

bool isFloat(const Datapoint_Type& type) {
  return type.mFormat == Datapoint_Format::Float16 || type.mFormat == Datapoint_Format::Float32;
}

/// The payload that follows; the same where a type has nothing that could change by itself.
QByteArray nextValue(const Datapoint_Type& type, const QByteArray& payload, qsizetype index, int round) {
  const std::optional<Datapoint_Value> value = Datapoint_Codec::decode(type, payload);
  const std::optional<double> number = value ? value->number() : std::nullopt;
  if (!number) {
    return payload;
  }
  Datapoint_Value next;
  if (type.mFormat == Datapoint_Format::Bool) {
    next = Datapoint_Value::ofWhole(*number == 0 ? 1 : 0);
  } else if (isFloat(type)) {
    const double middle = std::clamp(cMiddle, type.mMin, std::max(type.mMin, type.mMax));
    next.mScalar = middle + cAmplitude * std::sin((round + static_cast<double>(index)) / cRounds);
  } else {
    const double step = std::max(std::max(1.0, type.mStep), (type.mMax - type.mMin) / cPercentStep);
    const double wanted = type.mBits <= 8 ? *number + step : *number + std::max(1.0, type.mStep);
    next = Datapoint_Value::ofWhole(static_cast<qint64>(wanted > type.mMax ? type.mMin : wanted));
  }
  return Datapoint_Codec::encode(type, next).value_or(payload);
}

} // namespace

Simulator_Cycle::Simulator_Cycle(Simulator_Controller& controller, QObject* parent)
    : QObject(parent),
      mController(controller) {
  connect(&mTimer, &QTimer::timeout, this, &Simulator_Cycle::step);
}

void Simulator_Cycle::setPeriod(int ms) {
  if (ms > 0) {
    mTimer.start(ms);
  } else {
    mTimer.stop();
  }
}

void Simulator_Cycle::step() {
  const QList<Simulator_Values::Address>& addresses = mController.program().mAddresses;
  if (addresses.isEmpty() || mController.isStopped()) {
    return;
  }
  if (mNext >= addresses.size()) {
    mNext = 0;
    ++mRound;
  }
  const qsizetype index = mNext++;
  const Simulator_Values::Address& address = addresses.at(index);
  const QByteArray payload = mController.values().value(address.mAddress);
  const Datapoint_Type* const type = Datapoint_Types::find(address.mDpt);
  if (!payload.isEmpty()) {
    mController.writeValue(address.mAddress, type ? nextValue(*type, payload, index, mRound) : payload, cDeviceArea,
                           cDeviceLine, static_cast<int>(index % cDevices) + 1);
  }
}
