#include "fb/model/FB_Address_Places.h"

#include "db/Address_Edits.h"
#include "db/Address_Tree.h"

#include <algorithm>

namespace {

constexpr qsizetype cNumberRoom = 8; ///< characters that " (1000)" takes

/// The name, or with the first number behind it that nothing else has.
template <class Is_Taken>
QString numbered(const QString& name, Is_Taken&& isTaken) {
  const QString base = name.left(Address_Edits::cNameLimit - cNumberRoom);
  QString result = base;
  for (int number = 2; isTaken(result); ++number) {
    result = QStringLiteral("%1 (%2)").arg(base).arg(number);
  }
  return result;
}

} // namespace

FB_Address_Places::FB_Address_Places(const Address_Tree& tree) : mTree(tree) {
  for (int main = 0; main <= Group_Address::cMainMax; ++main) {
    const DB_Address_MainGroup* const group = tree.mainGroup(main);
    if (!group) {
      continue;
    }
    Main& known = mMains[static_cast<size_t>(main)].emplace();
    known.mName = group->mName;
    for (int middle = 0; middle <= Group_Address::cMiddleMax; ++middle) {
      if (const DB_Address_Middle_Group* const below = tree.middleGroup(main, middle)) {
        known.mMiddles[static_cast<size_t>(middle)] = Middle{below->mName, {}, false};
      }
    }
  }
}

bool FB_Address_Places::isNumbered(const QString& text, const QString& name) {
  const QString base = name.left(Address_Edits::cNameLimit - cNumberRoom);
  if (!text.startsWith(base)) {
    return false;
  }
  const QStringView rest = QStringView(text).sliced(base.size());
  if (rest.isEmpty()) {
    return true;
  }
  bool isNumber = false;
  const bool isFramed = rest.startsWith(QLatin1String(" (")) && rest.endsWith(u')');
  return isFramed && rest.sliced(2).chopped(1).toInt(&isNumber) > 1 && isNumber;
}

std::vector<FB_Address_Places::Place> FB_Address_Places::named(const QString& mainName, const QString& name) {
  std::vector<Place> places;
  for (size_t main = 0; main < mMains.size(); ++main) {
    if (!mMains[main] || !isNumbered(mMains[main]->mName, mainName)) {
      continue;
    }
    for (size_t middle = 0; middle < mMains[main]->mMiddles.size(); ++middle) {
      const std::optional<Middle>& known = mMains[main]->mMiddles[middle];
      if (known && isNumbered(known->mName, name)) {
        places.push_back({static_cast<int>(main), static_cast<int>(middle)});
      }
    }
  }
  return places;
}

std::optional<int> FB_Address_Places::mainWithRoom(const QString& name) const {
  for (size_t main = 0; main < mMains.size(); ++main) {
    if (mMains[main] && isNumbered(mMains[main]->mName, name) &&
        !std::ranges::all_of(mMains[main]->mMiddles, [](const auto& middle) { return middle.has_value(); })) {
      return static_cast<int>(main);
    }
  }
  return std::nullopt;
}

std::optional<int> FB_Address_Places::takeMain(const QString& name) {
  for (size_t i = 1; i <= mMains.size(); ++i) {
    const size_t main = i % mMains.size(); // 0 comes last: many keep it for the whole building
    if (!mMains[main]) {
      const QString free = numbered(name, [this](const QString& text) {
        return std::ranges::any_of(mMains, [&](const auto& known) { return known && known->mName == text; });
      });
      mMains[main].emplace().mName = free;
      mMade.push_back({static_cast<int>(main), -1, free});
      return static_cast<int>(main);
    }
  }
  return std::nullopt;
}

std::optional<FB_Address_Places::Place> FB_Address_Places::takeMiddle(const QString& mainName, const QString& name) {
  const QString free = numbered(name, [&](const QString& text) {
    return std::ranges::any_of(named(mainName, name), [&](const Place& place) {
      return mMains[static_cast<size_t>(place.mMain)]->mMiddles[static_cast<size_t>(place.mMiddle)]->mName == text;
    });
  });
  std::optional<int> main = mainWithRoom(mainName);
  main = main ? main : takeMain(mainName);
  if (!main) {
    return std::nullopt;
  }
  auto& middles = mMains[static_cast<size_t>(*main)]->mMiddles;
  const auto room = std::ranges::find_if(middles, [](const auto& middle) { return !middle.has_value(); });
  const auto middle = static_cast<int>(room - middles.begin());
  *room = Middle{free, {}, true};
  mMade.push_back({*main, middle, free});
  return Place{*main, middle};
}

std::optional<Group_Address> FB_Address_Places::takeSub(const Place& place) {
  Middle& middle = *mMains[static_cast<size_t>(place.mMain)]->mMiddles[static_cast<size_t>(place.mMiddle)];
  if (!middle.mIsRead) {
    for (size_t sub = 0; sub < middle.mTaken.size(); ++sub) {
      middle.mTaken[sub] = mTree.subGroup({place.mMain, place.mMiddle, static_cast<int>(sub)}) != nullptr;
    }
    middle.mIsRead = true;
  }
  const bool isFirstOfAll = place == Place{};
  for (size_t sub = isFirstOfAll ? 1 : 0; sub < middle.mTaken.size(); ++sub) { // 0/0/0 is the bus's own
    if (!middle.mTaken[sub]) {
      middle.mTaken[sub] = true;
      return Group_Address(place.mMain, place.mMiddle, static_cast<int>(sub));
    }
  }
  return std::nullopt;
}
