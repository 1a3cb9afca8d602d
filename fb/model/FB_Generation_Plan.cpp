#include "fb/model/FB_Generation_Plan.h"

#include "db/Address_Edits.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Pin_Text.h"
#include "fb/model/FB_Pin_Types.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Kind = DB_Address_Binding::Kind;
using Place = FB_Address_Places::Place;

constexpr FB_Side cSides[] = {FB_Side::Input, FB_Side::Output};
/// Of a pin of which nothing tells its type: any number fits into it.
constexpr Datapoint_Id cWidest{14};
constexpr qsizetype cNumberRoom = 20; ///< characters behind a name: " (Ausgang)", " (12)"

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Variable_Generation", text);
}

FB_Pin_Ref refOf(const Address_Use& use) {
  return {use.mOwnerGuid, use.mPlace == Address_Use::Place::Output ? FB_Side::Output : FB_Side::Input, use.mIndex};
}

bool isPin(const Address_Use& use) {
  return use.mPlace == Address_Use::Place::Input || use.mPlace == Address_Use::Place::Output;
}

int numberOf(const Place& place) {
  return Group_Address(place.mMain, place.mMiddle, 0).number();
}

QString nameOf(const DB_FB_Control& block) {
  return FB_Variables::ownerName(block).left(Address_Edits::cNameLimit);
}

/// "Und Eingang 1": on the page and in lists an address stands without its groups.
QString nameAt(const DB_FB_Control& block, const DB_FB_Pin& pin) {
  return FB_Variables::nameFor(block, pin).left(Address_Edits::cNameLimit - cNumberRoom);
}

} // namespace

FB_Generation_Plan::FB_Generation_Plan(const ProjectDatabase& database)
    : mDatabase(database),
      mUsage(database),
      mPlaces(database.mAddresses) {
  // A middle group belongs to the block that uses addresses there which are called like its pins.
  for (const auto& page : database.mFbPages.pages()) {
    for (const auto& block : page->mChildren) {
      const QString name = nameOf(*block);
      for (const FB_Side side : cSides) {
        for (const DB_FB_Pin& pin : FB_Pins::pins(*block, side)) {
          const DB_Address_Sub_Group* const sub =
              pin.mBinding.mKind == Kind::GroupAddress ? database.mAddresses.subGroup(pin.mBinding.mKey) : nullptr;
          if (sub && sub->mName.startsWith(nameAt(*block, pin)) && !mOwners.contains(sub->mMiddleKey, block->mGuid) &&
              FB_Address_Places::isNumbered(database.mAddresses.middleGroup(sub->mMiddleKey)->mName, name)) {
            mOwners.insert(sub->mMiddleKey, block->mGuid);
          }
        }
      }
    }
  }
}

std::vector<FB_Generation_Plan::Pin> FB_Generation_Plan::pinsOf(const DB_FB_Control& block) {
  std::vector<Pin> pins;
  QSet<QString> taken;
  for (const FB_Side side : cSides) {
    const std::vector<DB_FB_Pin>& list = FB_Pins::pins(block, side);
    for (size_t i = 0; i < list.size(); ++i) {
      QString name = nameAt(block, list[i]);
      if (taken.contains(name) && side == FB_Side::Output) {
        name += u' ' + tr("(Ausgang)");
      }
      const QString base = name;
      for (int number = 2; taken.contains(name); ++number) {
        name = QStringLiteral("%1 (%2)").arg(base).arg(number);
      }
      taken.insert(name);
      pins.push_back({{block.mGuid, side, static_cast<int>(i)}, &list[i], name});
    }
  }
  return pins;
}

FB_Generation_Plan::Home FB_Generation_Plan::homeOf(const DB_FB_Control& block) {
  const QString caption = mDatabase.mFbPages.page(block.mPageGuid)->mCaption.simplified();
  Home home{caption.isEmpty() ? tr("Programm") : caption.left(Address_Edits::cNameLimit), nameOf(block), {}, {}};
  // Its own first, else one that nobody has.
  for (const bool isOwn : {true, false}) {
    for (const Place& place : mPlaces.named(home.mMain, home.mName)) {
      const DB_Address_Middle_Group* const group = mDatabase.mAddresses.middleGroup(place.mMain, place.mMiddle);
      const bool isMeant = group && (isOwn ? mOwners.contains(group->mKey, block.mGuid)
                                           : home.mPlaces.empty() && !mOwners.contains(group->mKey));
      if (!isMeant || mReserved.contains(numberOf(place))) {
        continue;
      }
      home.mPlaces.push_back(place);
      mReserved.insert(numberOf(place));
      for (const auto& sub : group->mSubGroups) {
        if (!home.mAddresses.contains(sub->mName)) {
          home.mAddresses.insert(sub->mName, sub.get());
        }
      }
    }
  }
  return home;
}

QStringList FB_Generation_Plan::existing(const DB_FB_Control& block) {
  return existingIn(homeOf(block), block);
}

QStringList FB_Generation_Plan::existingIn(const Home& home, const DB_FB_Control& block) const {
  QStringList texts;
  const auto addressText = [](const Group_Address& address, const QString& name) {
    return (address.toString() + u' ' + name).trimmed();
  };
  for (const Pin& pin : pinsOf(block)) {
    const DB_Address_Binding& binding = pin.mPin->mBinding;
    const DB_Address_Sub_Group* const same = home.mAddresses.value(pin.mName);
    QString variable;
    if (binding.mKind == Kind::GroupAddress) {
      variable = addressText({binding.mMain, binding.mMiddle, binding.mSub}, binding.mName);
    } else if (binding.mKind == Kind::Internal) {
      variable = FB_Pin_Text::binding(binding);
    } else if (same) {
      variable = addressText(mDatabase.mAddresses.addressOf(*same), same->mName);
    } else {
      continue;
    }
    texts.append(QStringLiteral("%1: %2").arg(pin.mPin->mLongName, variable));
  }
  return texts;
}

bool FB_Generation_Plan::isDone(const Pin& pin) const {
  const DB_Address_Binding& binding = pin.mPin->mBinding;
  return mPins.contains(pin.mRef) || (binding.mKind == Kind::Internal && mVariables.contains(binding.mKey));
}

bool FB_Generation_Plan::isLedByAddress(const Pin& pin) const {
  return pin.mRef.mSide == FB_Side::Input && pin.mPin->mBinding.mKind == Kind::GroupAddress &&
         std::ranges::any_of(mUsage.uses(pin.mPin->mBinding.mKey), [&](const Address_Use& use) {
           return use.mPlace == Address_Use::Place::Output && use.mOwnerGuid != pin.mRef.mBlock;
         });
}

Datapoint_Id FB_Generation_Plan::typeFor(const Pin& pin) const {
  const auto usual = [this](const FB_Pin_Ref& ref) {
    const DB_FB_Control* const block = mDatabase.mFbPages.child(ref.mBlock);
    return block ? FB_Pin_Types::usual(*block, ref.mSide, ref.mIndex) : Datapoint_Id();
  };
  if (const Datapoint_Id own = usual(pin.mRef); !own.isNone()) {
    return own;
  }
  const DB_Address_Binding& binding = pin.mPin->mBinding;
  if (binding.mKind != Kind::None) {
    for (const Address_Use& use : mUsage.uses(binding.mKey)) {
      if (const Datapoint_Id other = isPin(use) ? usual(refOf(use)) : Datapoint_Id(); !other.isNone()) {
        return other;
      }
    }
    if (!binding.mDpt.isNone()) {
      return binding.mDpt;
    }
  }
  return cWidest;
}

std::optional<size_t> FB_Generation_Plan::targetFor(const Pin& pin, Home& home) {
  if (const DB_Address_Sub_Group* const there = home.mAddresses.value(pin.mName)) {
    mTargets.push_back({there->mKey, mDatabase.mAddresses.addressOf(*there), there->mName, there->mDpt});
    return mTargets.size() - 1;
  }
  std::optional<Group_Address> address;
  for (const Place& place : home.mPlaces) {
    address = address ? address : mPlaces.takeSub(place);
  }
  if (!address) {
    const std::optional<Place> place = mPlaces.takeMiddle(home.mMain, home.mName);
    if (!place) {
      return std::nullopt;
    }
    home.mPlaces.push_back(*place);
    mReserved.insert(numberOf(*place));
    address = mPlaces.takeSub(*place);
  }
  mTargets.push_back({{}, *address, pin.mName, typeFor(pin)});
  return mTargets.size() - 1;
}

void FB_Generation_Plan::bind(const Pin& pin, size_t target) {
  const DB_Address_Binding& binding = pin.mPin->mBinding;
  if (binding.mKind == Kind::Internal) {
    mVariables.insert(binding.mKey, target);
    return;
  }
  mPins.insert(pin.mRef, target);
  if (binding.mKind != Kind::GroupAddress || pin.mRef.mSide == FB_Side::Input) {
    return;
  }
  const auto isOtherOutput = [&](const Address_Use& use) {
    return use.mPlace == Address_Use::Place::Output && refOf(use) != pin.mRef;
  };
  if (std::ranges::none_of(mUsage.uses(binding.mKey), isOtherOutput)) {
    for (const Address_Use& use : mUsage.uses(binding.mKey)) {
      if (use.mPlace == Address_Use::Place::Input) {
        mPins.insert(refOf(use), target);
      }
    }
  }
}

bool FB_Generation_Plan::add(const DB_FB_Control& block, Conflict conflict, QString& refusal) {
  Home home = homeOf(block);
  if (conflict == Conflict::Fail) {
    if (const QStringList there = existingIn(home, block); !there.isEmpty()) {
      refusal = tr("Variable bereits vorhanden") + QStringLiteral(": %1, %2").arg(nameOf(block), there.first());
      return false;
    }
  }
  bool hasVariables = false;
  for (const Pin& pin : pinsOf(block)) {
    const Kind kind = pin.mPin->mBinding.mKind;
    const bool isKept = kind != Kind::None && (conflict != Conflict::Overwrite || isLedByAddress(pin));
    if (isDone(pin)) {
      hasVariables = true;
    } else if (!isKept) {
      const std::optional<size_t> target = targetFor(pin, home);
      if (!target) {
        refusal = tr("Für \"%1\" ist unter den Gruppenadressen kein Platz: alle Hauptgruppen von 0 bis 31 sind "
                     "vergeben, und in \"%2\" ist keine Mittelgruppe mehr frei. Es wurde nichts geändert.")
                      .arg(nameOf(block), home.mMain);
        return false;
      }
      bind(pin, *target);
      hasVariables = true;
    }
  }
  return hasVariables;
}
