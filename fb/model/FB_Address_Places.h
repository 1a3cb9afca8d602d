#pragma once

#include "base/Group_Address.h"

#include <QString>

#include <array>
#include <bitset>
#include <optional>
#include <vector>

class Address_Tree;

/// Finds free numbers for new group addresses, without making them: what it gives out counts as taken from then on. The
/// tree outlives it and stays as it is.
class FB_Address_Places {
public:
  explicit FB_Address_Places(const Address_Tree& tree);

  /// A group that has to be made, in the order in which it can be.
  struct Group {
    int mMain = 0;
    int mMiddle = -1; ///< -1 for a main group
    QString mName;
  };
  [[nodiscard]] const std::vector<Group>& made() const { return mMade; }

  /// A number of a middle group.
  struct Place {
    int mMain = 0;
    int mMiddle = 0;
    friend auto operator<=>(const Place&, const Place&) = default;
  };
  /// The middle groups of a name in main groups of a name, also of numbered ones ("Und (2)"), in order.
  [[nodiscard]] std::vector<Place> named(const QString& mainName, const QString& name);
  /// A new middle group of that name in the first main group of that name that has room, else in a new one. The names
  /// are numbered where they are taken. Empty when the tree is full.
  [[nodiscard]] std::optional<Place> takeMiddle(const QString& mainName, const QString& name);
  /// The first free address of the middle group; empty when it is full.
  [[nodiscard]] std::optional<Group_Address> takeSub(const Place& place);

  /// True for "Und" and "Und (2)" when `name` is "Und".
  [[nodiscard]] static bool isNumbered(const QString& text, const QString& name);

private:
  struct Middle {
    QString mName;
    std::bitset<Group_Address::cSubMax + 1> mTaken;
    bool mIsRead = false; ///< `mTaken` is known
  };
  struct Main {
    QString mName;
    std::array<std::optional<Middle>, Group_Address::cMiddleMax + 1> mMiddles;
  };

  [[nodiscard]] std::optional<int> mainWithRoom(const QString& name) const;
  [[nodiscard]] std::optional<int> takeMain(const QString& name);

  const Address_Tree& mTree;
  std::array<std::optional<Main>, Group_Address::cMainMax + 1> mMains;
  std::vector<Group> mMade;
};
