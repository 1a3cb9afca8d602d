#pragma once

#include <QUuid>

/// One place in the project that is bound to a group address or an internal variable.
struct Address_Use {
  enum class Place { Input, Output, Disable, Element };

  Place mPlace = Place::Input;
  int mIndex = 0; ///< of the pin, or of the element's binding; 0 for `Disable`
  QUuid mPageGuid;
  QUuid mOwnerGuid; ///< the block or element

  friend bool operator==(const Address_Use&, const Address_Use&) = default;
};
