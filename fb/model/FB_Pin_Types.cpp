#include "fb/model/FB_Pin_Types.h"

#include "base/Datapoint_Types.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int cByte = 8; // bits

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Pin_Types", text);
}

/// Pins that each counted group of the side has: one parameter counts them all.
int countOfCounted(const FB_Type& type, FB_Side side, int pins) {
  int fixed = 0;
  int counted = 0;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide == side) {
      (group.mParameter < 0 ? fixed : counted) += group.mParameter < 0 ? group.mCount : 1;
    }
  }
  return counted == 0 ? 0 : std::max(0, (pins - fixed) / counted);
}

QString withSize(const Datapoint_Id& type) {
  const int bits = Datapoint_Types::bitsOf(type);
  if (bits == 0) {
    return type.toString();
  }
  const bool areBytes = bits % cByte == 0;
  return QStringLiteral("%1 (%2 %3)")
      .arg(type.toString(), QString::number(areBytes ? bits / cByte : bits), areBytes ? tr("Byte") : tr("Bit"));
}

} // namespace

const FB_Pin_Group* FB_Pin_Types::group(const DB_FB_Control& block, FB_Side side, int index) {
  const FB_Type* const type = block.mOriginalType == 0 ? FB_Types::find(block.mType) : nullptr;
  if (!type || !type->mHasPins || index < 0) {
    return nullptr;
  }
  const int counted = countOfCounted(*type, side, static_cast<int>(FB_Pins::pins(block, side).size()));
  int end = 0;
  for (const FB_Pin_Group& group : type->mPins) {
    if (group.mSide == side) {
      end += group.mParameter < 0 ? group.mCount : counted;
      if (index < end) {
        return &group;
      }
    }
  }
  return nullptr;
}

Datapoint_Id FB_Pin_Types::usual(const DB_FB_Control& block, FB_Side side, int index) {
  const FB_Pin_Group* const found = group(block, side, index);
  return found ? Datapoint_Id::parse(QString::fromLatin1(found->mDpt)).value_or(Datapoint_Id()) : Datapoint_Id();
}

QString FB_Pin_Types::mismatch(const Datapoint_Id& usual, const Datapoint_Id& bound) {
  if (usual.isNone() || bound.isNone()) {
    return {};
  }
  const int wanted = Datapoint_Types::bitsOf(usual);
  const int given = Datapoint_Types::bitsOf(bound);
  const bool isOtherSize = wanted != 0 && given != 0 && wanted != given;
  return usual.mMain != bound.mMain || isOtherSize ? tr("Typ %1 statt %2").arg(withSize(bound), withSize(usual))
                                                   : QString();
}
