#pragma once

#include "fb/model/FB_Type.h"

#include <QHashFunctions>
#include <QUuid>

/// Names one pin of a block in the project.
struct FB_Pin_Ref {
  QUuid mBlock;
  FB_Side mSide = FB_Side::Input;
  int mIndex = 0; ///< from 0

  friend bool operator==(const FB_Pin_Ref&, const FB_Pin_Ref&) = default;
};

/// Two pins of a page that share a binding: an output and an input.
struct FB_Connection {
  QUuid mSource;
  int mOutput = 0; ///< index of the source's output
  QUuid mTarget;
  int mInput = 0; ///< index of the target's input

  [[nodiscard]] FB_Pin_Ref source() const { return {mSource, FB_Side::Output, mOutput}; }
  [[nodiscard]] FB_Pin_Ref target() const { return {mTarget, FB_Side::Input, mInput}; }

  friend bool operator==(const FB_Connection&, const FB_Connection&) = default;
};

inline size_t qHash(const FB_Pin_Ref& pin, size_t seed = 0) noexcept {
  return qHashMulti(seed, pin.mBlock, static_cast<int>(pin.mSide), pin.mIndex);
}
