#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"
#include "net/DB_Address_Network_Telegram.h"

#include <QByteArray>
#include <QList>
#include <QMap>

struct Persistent_Values;

/// The values of the stand-in's group addresses, and which addresses its program knows.
class Simulator_Values {
public:
  struct Address {
    Group_Address mAddress;
    Datapoint_Id mDpt;
  };

  /// The addresses of a program. Those without a value get the 0 of their type; values of addresses that the program
  /// lacks are forgotten.
  void setAddresses(QList<Address> addresses);
  [[nodiscard]] const QList<Address>& addresses() const { return mAddresses; }
  [[nodiscard]] Datapoint_Id typeOf(const Group_Address& address) const { return mTypes.value(address); }

  /// Whether it is a value that can be told and kept: of an address that a bus has, 1 to 255 bytes.
  [[nodiscard]] static bool isPossible(const Group_Address& address, const QByteArray& payload);
  /// Of a possible value; others change nothing.
  void set(const Group_Address& address, const QByteArray& payload);
  /// Null for an address that has none.
  [[nodiscard]] QByteArray value(const Group_Address& address) const { return mValues.value(address); }
  [[nodiscard]] qsizetype count() const { return mValues.size(); }
  void clear() { mValues.clear(); }

  /// All of them as payloads of command 36, each with at most `cBatch` telegrams.
  static constexpr int cBatch = 200;
  [[nodiscard]] QList<QByteArray> batches() const;

  [[nodiscard]] Persistent_Values persistent() const;
  void take(const Persistent_Values& values);

private:
  QList<Address> mAddresses;
  QMap<Group_Address, Datapoint_Id> mTypes;
  QMap<Group_Address, QByteArray> mValues;
};
