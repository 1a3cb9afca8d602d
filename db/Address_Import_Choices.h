#pragma once

#include "db/Address_Import_Plan.h"

#include <QHash>

/// What a user ticked otherwise than the comparison did, kept from one comparison of a file to the next.
class Address_Import_Choices {
public:
  /// Takes over how the plan's rows are ticked; what the plan does not show stays as it was chosen.
  void note(const Address_Import_Plan& plan);
  void applyTo(Address_Import_Plan& plan) const;
  void clear() { mTicks.clear(); }

private:
  struct Place {
    Group_Address mAddress;
    Address_Import_Row::Level mLevel = Address_Import_Row::Level::Address;
    int mLine = 0;
    bool mIsDeletion = false;

    [[nodiscard]] static Place of(const Address_Import_Row& row);
    friend bool operator==(const Place&, const Place&) = default;
    friend size_t qHash(const Place& place, size_t seed = 0) {
      return qHash(place.mAddress, seed) ^ size_t(place.mLine);
    }
  };

  QHash<Place, bool> mTicks;
};
