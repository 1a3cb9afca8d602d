#include "fb/model/FB_Pins.h"

#include "fb/model/FB_Register_Pins.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <span>
#include <utility>

namespace {

constexpr FB_Side cSides[] = {FB_Side::Input, FB_Side::Output};

/// The declaration that a block's pins follow; null when they are as its record says.
const FB_Type* declarationOf(const DB_FB_Control& block) {
  const FB_Type* const type = block.mOriginalType == 0 ? FB_Types::find(block.mType) : nullptr;
  return type && type->mHasPins ? type : nullptr;
}

/// Empty for a text that cannot count these pins.
std::optional<int> countIn(const QString& text, const FB_Pin_Group& group) {
  bool isNumber = false;
  const int count = text.toInt(&isNumber, 10);
  return isNumber && count >= group.mCount ? std::optional(count) : std::nullopt;
}

/// Empty as long as the parameters do not say it.
std::optional<int> sizeOf(const FB_Type& type, const FB_Pin_Group& group, const QStringList& parameters) {
  if (group.mParameter < 0) {
    return group.mCount;
  }
  const auto count = countIn(parameters.at(group.mParameter), group);
  return count ? std::optional(std::min(*count, FB_Pins::mostPins(type, group.mParameter))) : std::nullopt;
}

/// How many pins each counted group of a side has in a list that was made with another count. One parameter counts all
/// groups of a side.
int countBehind(size_t pins, const FB_Type& type, FB_Side side) {
  const auto counted = static_cast<int>(std::ranges::count_if(
      type.mPins, [side](const FB_Pin_Group& group) { return group.mSide == side && group.mParameter >= 0; }));
  const int behind = static_cast<int>(pins) - static_cast<int>(FB_Pins::fixedPins(type, side));
  return counted == 0 ? 0 : std::max(0, behind / counted);
}

std::vector<DB_FB_Pin> build(std::vector<DB_FB_Pin> old, const FB_Type& type, FB_Side side,
                             const QStringList& parameters) {
  std::vector<DB_FB_Pin> pins;
  const int countBefore = countBehind(old.size(), type, side);
  int oldStart = 0;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide != side) {
      continue;
    }
    const QString longName = FB_Types::text(group.mLongName);
    const QString shortName = FB_Types::text(group.mShortName);
    const auto numbered = [](const QString& word, int number) {
      return word.contains(u"%1") ? word.arg(number) : word;
    };
    const int oldCount = group.mParameter < 0 ? group.mCount : countBefore;
    const int count = sizeOf(type, group, parameters).value_or(group.mCount);
    for (int i = 0; i < count; ++i) {
      DB_FB_Pin pin{numbered(longName, i + 1), numbered(shortName, i + 1), {}};
      const auto before = static_cast<size_t>(oldStart) + static_cast<size_t>(i);
      if (i < oldCount && before < old.size()) {
        pin.mBinding = std::move(old[before].mBinding);
      }
      pins.push_back(std::move(pin));
    }
    oldStart += oldCount;
  }
  return pins;
}

/// The pins of the registers, bound as those behind the declared ones are in `old`.
std::vector<DB_FB_Pin> registerPins(const DB_FB_Control& block, const FB_Type& type, FB_Side side) {
  if (!type.mHasRegisterPins) {
    return {};
  }
  const std::span<const DB_FB_Pin> old = FB_Pins::pins(block, side);
  const size_t declared = FB_Pins::fixedPins(type, side);
  return FB_Register_Pins::build(block, side, old.subspan(std::min(declared, old.size())),
                                 FB_Pins::cMostPins - declared);
}

} // namespace

int FB_Pins::mostPins(const FB_Type& type, int parameter) {
  int most = cMostPins;
  int groups = 0;
  for (const FB_Side side : cSides) {
    const auto isCounted = [=](const FB_Pin_Group& group) {
      return group.mSide == side && group.mParameter == parameter;
    };
    const auto ofSide = static_cast<int>(std::ranges::count_if(type.mPins, isCounted));
    groups += ofSide;
    most = ofSide > 0 ? std::min(most, (cMostPins - static_cast<int>(fixedPins(type, side))) / ofSide) : most;
  }
  return std::min(most, cMostPins / std::max(1, groups));
}

size_t FB_Pins::fixedPins(const FB_Type& type, FB_Side side) {
  size_t count = 0;
  for (const FB_Pin_Group& group : type.mPins) {
    count += group.mSide == side && group.mParameter < 0 ? static_cast<size_t>(group.mCount) : 0;
  }
  return count;
}

std::unique_ptr<DB_FB_Control> FB_Pins::makeBlock(int type, const QPointF& position) {
  if (!FB_Types::find(type)) {
    return nullptr;
  }
  auto block = std::make_unique<DB_FB_Control>();
  block->mGuid = QUuid::createUuid();
  block->mType = type;
  block->mX = position.x();
  block->mY = position.y();
  rebuild(*block);
  return block;
}

void FB_Pins::rebuild(DB_FB_Control& block) {
  const FB_Type* const type = declarationOf(block);
  if (!type) {
    return;
  }
  for (const FB_Parameter& parameter :
       type->mParameters.subspan(std::min(type->mParameters.size(), static_cast<size_t>(block.mParams.size())))) {
    block.mParams.append(QString::fromUtf8(parameter.mDefault));
  }
  for (const FB_Pin_Group& group : type->mPins) {
    if (group.mParameter >= 0 && !countIn(block.mParams.at(group.mParameter), group)) {
      block.mParams[group.mParameter] = QString::number(group.mCount);
    }
  }
  for (const FB_Side side : cSides) {
    auto& list = pins(block, side);
    std::vector<DB_FB_Pin> behind = registerPins(block, *type, side);
    list = build(std::move(list), *type, side, block.mParams);
    std::move(behind.begin(), behind.end(), std::back_inserter(list));
  }
}

bool FB_Pins::isBuilt(const DB_FB_Control& block) {
  const FB_Type* const type = declarationOf(block);
  if (!type) {
    return true;
  }
  if (static_cast<size_t>(block.mParams.size()) < type->mParameters.size()) {
    return false;
  }
  size_t inputs = 0;
  size_t outputs = 0;
  for (const FB_Pin_Group& group : type->mPins) {
    const auto count = sizeOf(*type, group, block.mParams);
    if (!count) {
      return false;
    }
    (group.mSide == FB_Side::Input ? inputs : outputs) += static_cast<size_t>(*count);
  }
  if (type->mHasRegisterPins) {
    inputs += FB_Register_Pins::count(block, FB_Side::Input, cMostPins - inputs);
    outputs += FB_Register_Pins::count(block, FB_Side::Output, cMostPins - outputs);
  }
  const auto isNamed = [](const DB_FB_Pin& pin) { return !pin.mLongName.isEmpty(); };
  return block.mInputs.size() == inputs && block.mOutputs.size() == outputs &&
         std::ranges::all_of(block.mInputs, isNamed) && std::ranges::all_of(block.mOutputs, isNamed);
}

QString FB_Pins::missingPins(const DB_FB_Control& block) {
  // Nearly every block is done with here, which keeps a walk over thousands of them short.
  const bool isSmall = block.mInputs.size() + block.mOutputs.size() < static_cast<size_t>(cMostPins) / 2;
  const FB_Type* const type = isSmall ? nullptr : declarationOf(block);
  if (!type) {
    return {};
  }
  const QLocale locale;
  for (const FB_Pin_Group& group : type->mPins) {
    const auto count = group.mParameter < 0 ? std::nullopt : countIn(block.mParams.value(group.mParameter), group);
    if (const int most = mostPins(*type, group.mParameter); count && *count > most) {
      const QString name = FB_Types::text(type->mParameters[static_cast<size_t>(group.mParameter)].mName);
      return QCoreApplication::translate("FB_Pins", "\"%1\" ist %2. Angelegt sind die ersten %3.")
          .arg(name, locale.toString(*count), locale.toString(most));
    }
  }
  for (const FB_Side side : type->mHasRegisterPins ? std::span(cSides) : std::span<const FB_Side>()) {
    const size_t most = static_cast<size_t>(cMostPins) - fixedPins(*type, side);
    const size_t values = FB_Register_Pins::count(block, side, std::numeric_limits<size_t>::max());
    if (values > most) {
      return QCoreApplication::translate("FB_Pins", "Die Register haben %1 Werte. Angelegt sind die ersten %2.")
          .arg(locale.toString(qulonglong(values)), locale.toString(qulonglong(most)));
    }
  }
  return {};
}

QStringList FB_Pins::lostBindings(const DB_FB_Control& block, int index, const QString& value) {
  if (index < 0 || index >= block.mParams.size()) {
    return {};
  }
  DB_FB_Control after = block;
  for (const FB_Side side : cSides) {
    int number = 0;
    for (DB_FB_Pin& pin : pins(after, side)) {
      pin.mBinding.mName = QString::number(number++);
    }
  }
  after.mParams[index] = value;
  rebuild(after);
  QStringList lost;
  for (const FB_Side side : cSides) {
    QSet<QString> kept;
    for (const DB_FB_Pin& pin : pins(after, side)) {
      kept.insert(pin.mBinding.mName);
    }
    int number = 0;
    for (const DB_FB_Pin& pin : pins(block, side)) {
      if (!kept.contains(QString::number(number++)) && pin.mBinding.mKind != DB_Address_Binding::Kind::None) {
        lost.append(pin.mLongName);
      }
    }
  }
  return lost;
}

std::vector<DB_FB_Pin>& FB_Pins::pins(DB_FB_Control& block, FB_Side side) {
  return side == FB_Side::Input ? block.mInputs : block.mOutputs;
}

const std::vector<DB_FB_Pin>& FB_Pins::pins(const DB_FB_Control& block, FB_Side side) {
  return side == FB_Side::Input ? block.mInputs : block.mOutputs;
}
