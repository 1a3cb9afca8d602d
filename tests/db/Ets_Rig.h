#pragma once

#include "db/Address_Tree.h"
#include "db/Ets_Reader.h"

#include <QBuffer>

/// What tests and fuzz targets of the ETS formats share.
namespace Ets_Rig {

struct Outcome {
  bool mIsRead = false;
  Ets_Groups mGroups;
  QString mError;
};

inline Outcome read(const QByteArray& bytes, const Ets_Reader::Options& options = {}) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  Outcome outcome;
  outcome.mIsRead = Ets_Reader::read(buffer, options, outcome.mGroups, outcome.mError);
  return outcome;
}

/// What `write` puts into a device.
template <class Write>
QByteArray bytesOf(const Write& write) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  write(buffer);
  return buffer.data();
}

/// The groups and addresses of an export as records; of an address that comes again the first counts. Ranges that are
/// no whole main or middle group give no names.
inline void fill(Address_Tree& tree, const Ets_Groups& groups) {
  const auto mainGroup = [&tree](int number) {
    if (DB_Address_MainGroup* const present = tree.mainGroup(number)) {
      return present;
    }
    auto group = std::make_unique<DB_Address_MainGroup>();
    group->mNumber = number;
    return tree.add(std::move(group));
  };
  const auto middleGroup = [&tree, &mainGroup](int main, int number) {
    if (DB_Address_Middle_Group* const present = tree.middleGroup(main, number)) {
      return present;
    }
    auto group = std::make_unique<DB_Address_Middle_Group>();
    group->mMainKey = mainGroup(main)->mKey;
    group->mNumber = number;
    return tree.add(std::move(group));
  };
  const auto name = [](auto& group, const Ets_Groups::Range& range) {
    if (group.mName.isEmpty()) {
      group.mName = range.mName;
      group.mDescription = range.mDescription;
    }
  };
  for (const Ets_Groups::Range& range : groups.mRanges) {
    const Group_Address first = Group_Address::fromNumber(static_cast<quint16>(range.mStart));
    if (range.mDepth == 0 && range.mEnd == range.mStart / Group_Address::cMainSpan * Group_Address::cMainSpan +
                                               Group_Address::cMainSpan - 1) {
      name(*mainGroup(first.main()), range);
    } else if (range.mDepth == 1 &&
               range.mEnd == range.mStart / Group_Address::cMiddleSpan * Group_Address::cMiddleSpan +
                                 Group_Address::cMiddleSpan - 1) {
      name(*middleGroup(first.main(), first.middle()), range);
    }
  }
  for (const Ets_Groups::Address& from : groups.mAddresses) {
    if (tree.subGroup(from.mAddress)) {
      continue;
    }
    auto group = std::make_unique<DB_Address_Sub_Group>();
    group->mMiddleKey = middleGroup(from.mAddress.main(), from.mAddress.middle())->mKey;
    group->mNumber = from.mAddress.sub();
    group->mName = from.mName;
    group->mDescription = from.mDescription;
    group->mDpt = from.mDpt;
    group->mDptGuessed = from.mDptGuessed;
    group->mDptRaw = from.mDpts;
    group->mCentral = from.mCentral;
    group->mUnfiltered = from.mUnfiltered;
    group->mSecurity = from.mSecurity;
    tree.add(std::move(group));
  }
}

/// Everything that is read of an address, "1/2/3 Licht [Haus / EG] 1.001~ C U (text) Auto"; '~' marks a guessed type.
inline QString text(const Ets_Groups::Address& address) {
  QStringList parts{address.mAddress.toString(), address.mName};
  if (!address.mRangePath.isEmpty()) {
    parts.append(u'[' + address.mRangePath + u']');
  }
  if (!address.mDpt.isNone()) {
    parts.append(address.mDpt.toString() + (address.mDptGuessed ? QStringLiteral("~") : QString()));
  }
  if (address.mCentral) {
    parts.append(QStringLiteral("C"));
  }
  if (address.mUnfiltered) {
    parts.append(QStringLiteral("U"));
  }
  if (!address.mDescription.isEmpty()) {
    parts.append(u'(' + address.mDescription + u')');
  }
  if (!address.mSecurity.isEmpty()) {
    parts.append(address.mSecurity);
  }
  return parts.join(u' ');
}

inline QStringList texts(const Ets_Groups& groups) {
  QStringList result;
  for (const Ets_Groups::Address& address : groups.mAddresses) {
    result.append(text(address));
  }
  return result;
}

/// A fault names its line and is a sentence.
inline bool isFaultOfLine(const QString& fault, int line) {
  const QString start = QStringLiteral("Zeile %1: ").arg(line);
  const QChar first = fault.mid(start.size()).front();
  return fault.startsWith(start) && (first.isUpper() || first == u'"') && fault.endsWith(u'.');
}

/// "2048-4095 Licht" of each range, with an indent of its depth.
inline QStringList rangeTexts(const Ets_Groups& groups) {
  QStringList result;
  for (const Ets_Groups::Range& range : groups.mRanges) {
    result.append(QString(range.mDepth, u' ') +
                  QStringLiteral("%1-%2 %3").arg(range.mStart).arg(range.mEnd).arg(range.mName));
  }
  return result;
}

} // namespace Ets_Rig
