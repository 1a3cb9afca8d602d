#include "fb/model/FB_Connections.h"

#include "db/ProjectDatabase.h"
#include "fb/model/FB_Geometry.h"

#include <QHash>

#include <utility>

namespace {

using Kind = DB_Address_Binding::Kind;

/// What bindings have in common that connect their pins. A group address without a key, as older records have it, is
/// known by its numbers.
struct Identity {
  Kind mKind = Kind::None;
  QUuid mKey;
  int mMain = 0;
  int mMiddle = 0;
  int mSub = 0;

  explicit Identity(const DB_Address_Binding& binding) : mKind(binding.mKind), mKey(binding.mKey) {
    if (mKey.isNull() && mKind == Kind::GroupAddress) {
      mMain = binding.mMain;
      mMiddle = binding.mMiddle;
      mSub = binding.mSub;
    }
  }

  [[nodiscard]] bool isBound() const {
    return mKind != Kind::None && !(mKey.isNull() && mMain == 0 && mMiddle == 0 && mSub == 0);
  }

  friend bool operator==(const Identity&, const Identity&) = default;
  friend size_t qHash(const Identity& identity, size_t seed = 0) {
    return qHashMulti(seed, identity.mKey, identity.mMain, identity.mMiddle, identity.mSub);
  }
};

/// The bound pins of a page, with a number for what they are bound to. They are collected in one walk over the records,
/// for on a large page that is what takes the time.
class Pins {
public:
  static constexpr int cNone = -1;

  struct Pin {
    int mBlock = 0;
    int mIndex = 0;
    int mIdentity = 0;
    int mNext = cNone; ///< of an input: the next with the same identity
  };

  explicit Pins(const DB_FB_Page& page) {
    mNumbers.reserve(2 * page.mChildren.size());
    int block = 0;
    for (const auto& record : page.mChildren) {
      collect(record->mInputs, block, mInputs);
      collect(record->mOutputs, block, mOutputs);
      ++block;
    }
    mFirst.assign(static_cast<size_t>(mNumbers.size()), cNone);
    // From the last to the first, so that each chain begins with the first.
    for (size_t i = mInputs.size(); i-- > 0;) {
      int& first = mFirst[static_cast<size_t>(mInputs[i].mIdentity)];
      mInputs[i].mNext = std::exchange(first, static_cast<int>(i));
    }
  }

  [[nodiscard]] const std::vector<Pin>& outputs() const { return mOutputs; }
  /// The first input that an output is connected to, or `cNone`.
  [[nodiscard]] int firstInput(const Pin& output) const { return mFirst[static_cast<size_t>(output.mIdentity)]; }
  [[nodiscard]] const Pin& input(int index) const { return mInputs[static_cast<size_t>(index)]; }

private:
  void collect(const std::vector<DB_FB_Pin>& pins, int block, std::vector<Pin>& to) {
    int index = 0;
    for (const DB_FB_Pin& pin : pins) {
      const Identity identity(pin.mBinding);
      if (identity.isBound()) {
        int& number = mNumbers[identity]; // 0 for a new one
        number = number == 0 ? static_cast<int>(mNumbers.size()) : number;
        to.push_back({block, index, number - 1, cNone});
      }
      ++index;
    }
  }

  QHash<Identity, int> mNumbers; ///< from 1
  std::vector<Pin> mInputs;
  std::vector<Pin> mOutputs;
  std::vector<int> mFirst; ///< input by identity
};

const DB_FB_Pin* pinAt(const std::vector<DB_FB_Pin>& pins, int index) {
  return index >= 0 && index < static_cast<int>(pins.size()) ? &pins[static_cast<size_t>(index)] : nullptr;
}

} // namespace

bool FB_Connections::isShared(const DB_Address_Binding& a, const DB_Address_Binding& b) {
  const Identity identity(a);
  return identity.isBound() && identity == Identity(b);
}

std::vector<FB_Connections::Entry> FB_Connections::of(const DB_FB_Page& page) {
  std::vector<Entry> entries;
  const Pins pins(page);
  for (const Pins::Pin& output : pins.outputs()) {
    for (int at = pins.firstInput(output); at != Pins::cNone; at = pins.input(at).mNext) {
      const Pins::Pin& input = pins.input(at);
      if (input.mBlock != output.mBlock) {
        entries.push_back({output.mBlock, output.mIndex, input.mBlock, input.mIndex, output.mIdentity});
      }
      if (entries.size() == cLimit) {
        return entries;
      }
    }
  }
  return entries;
}

QString FB_Connections::describe(const ProjectDatabase& database, const FB_Connection& connection) {
  const DB_FB_Control* const source = database.mFbPages.child(connection.mSource);
  const DB_FB_Control* const target = database.mFbPages.child(connection.mTarget);
  const DB_FB_Pin* const output = source ? pinAt(source->mOutputs, connection.mOutput) : nullptr;
  const DB_FB_Pin* const input = target ? pinAt(target->mInputs, connection.mInput) : nullptr;
  if (!output || !input) {
    return {};
  }
  return QStringLiteral("%1 (%2)  ->  %3 (%4)")
      .arg(FB_Geometry::title(*source), output->mLongName, FB_Geometry::title(*target), input->mLongName);
}
