#include "simulator/Simulator_Values.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "net/Persistent_Values.h"
#include "net/Telegram_Batch.h"

#include <optional>
#include <utility>

namespace {

/// Types that cannot say 0, such as a date, get bytes of 0.
QByteArray zeroOf(Datapoint_Id id) {
  const Datapoint_Type* const type = Datapoint_Types::find(id);
  if (!type) {
    return {(Datapoint_Types::bitsOf(id) + 7) / 8, '\0'};
  }
  const std::optional<QByteArray> zero = Datapoint_Codec::encode(*type, Datapoint_Value::ofWhole(0));
  return zero ? *zero : QByteArray(type->bytes(), '\0');
}

} // namespace

bool Simulator_Values::isPossible(const Group_Address& address, const QByteArray& payload) {
  return address.isOnBus() && !payload.isEmpty() && payload.size() <= Persistent_Values::cMostPayload;
}

void Simulator_Values::set(const Group_Address& address, const QByteArray& payload) {
  if (isPossible(address, payload)) {
    mValues.insert(address, payload);
  }
}

void Simulator_Values::setAddresses(QList<Address> addresses) {
  mAddresses = std::move(addresses);
  mTypes.clear();
  QMap<Group_Address, QByteArray> values;
  for (const Address& address : mAddresses) {
    mTypes.insert(address.mAddress, address.mDpt);
    const QByteArray value = mValues.value(address.mAddress);
    const QByteArray zero = zeroOf(address.mDpt);
    // A value that the type of now cannot mean is of no use.
    const bool isOfUse = !value.isEmpty() && (zero.isEmpty() || zero.size() == value.size());
    if (isPossible(address.mAddress, isOfUse ? value : zero)) {
      values.insert(address.mAddress, isOfUse ? value : zero);
    }
  }
  mValues = values;
}

QList<QByteArray> Simulator_Values::batches() const {
  QList<QByteArray> batches;
  int inLast = cBatch;
  for (auto it = mValues.cbegin(); it != mValues.cend(); ++it) {
    if (inLast >= cBatch) {
      batches.append(QByteArray());
      inLast = 0;
    }
    Telegram_Batch::append(
        batches.last(), DB_Address_Network_Telegram::to(it.key(), DB_Address_Network_Telegram::Response, it.value()));
    ++inLast;
  }
  return batches;
}

Persistent_Values Simulator_Values::persistent() const {
  Persistent_Values values;
  for (auto it = mValues.cbegin(); it != mValues.cend(); ++it) {
    values.mValues.push_back({it.key(), it.value()});
  }
  return values;
}

void Simulator_Values::take(const Persistent_Values& values) {
  for (const Persistent_Values::Value& value : values.mValues) {
    set(value.mAddress, value.mPayload);
  }
}
