#pragma once

#include "base/Group_Address.h"
#include "db/Ets_Groups.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

/// What an export calls the main groups and middle groups of three levels.
///
/// A group takes the name of the range that covers it and no more, else of the innermost range around it that is no
/// larger group's own.
struct Ets_Group_Names {
  struct Name {
    QString mName;
    QString mDescription;
    bool mIsOwn = false; ///< of a range that covers the group and no more
  };

  Ets_Group_Names() = default;
  /// `ranges` come outer before inner.
  explicit Ets_Group_Names(const std::vector<Ets_Groups::Range>& ranges);

  /// A middle group as an address with the sub group 0, a main group with 0 in both.
  [[nodiscard]] static Group_Address middleOf(const Group_Address& address) {
    return {address.main(), address.middle(), 0};
  }

  QHash<int, Name> mMain;
  QHash<Group_Address, Name> mMiddle;
  QSet<int> mOwnMain; ///< named by a range of their own: there even when they are empty
  QSet<Group_Address> mOwnMiddle;
};
