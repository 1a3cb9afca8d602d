#pragma once

#include "base/Group_Address.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

/// The values that a controller keeps over a restart, as they travel: a line of ASCII for each, ended by a line feed,
///
///     1/2/3;0C1A
///
/// group address and the value as it stands on the bus (see Datapoint_Codec), in hexadecimal digits, 1 to 255 bytes. A
/// carriage return before the line feed, a missing last line feed and empty lines are taken, too. Pure.
struct Persistent_Values {
  struct Value {
    Group_Address mAddress;
    QByteArray mPayload;
    friend bool operator==(const Value&, const Value&) = default;
  };
  static constexpr qsizetype cMostPayload = 255;

  std::vector<Value> mValues;

  [[nodiscard]] QByteArray toBytes() const;
  /// None with a German error that names the line. An address may come once.
  [[nodiscard]] static std::optional<Persistent_Values> fromBytes(QByteArrayView bytes, QString* error = nullptr);
};
