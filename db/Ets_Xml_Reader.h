#pragma once

#include "base/Group_Address.h"

#include <QString>
#include <QStringList>

#include <vector>

class QIODevice;

/// The group addresses and group ranges of an ETS export, as they stand in the file.
struct Ets_Groups {
  /// How the export writes its addresses.
  enum class Style { ThreeLevel, TwoLevel, Free };

  struct Range {
    QString mName;
    QString mDescription;
    int mStart = 0; ///< 16-bit bus numbers, both inclusive
    int mEnd = 0;
    int mDepth = 0; ///< 0 for an outermost range
  };

  struct Address {
    Group_Address mAddress;
    Style mStyle = Style::ThreeLevel;
    QString mText;      ///< as the file writes the address
    QString mRangePath; ///< names of the ranges around it, outer first, divided by " / "
    QString mName;
    QString mDescription;
    QString mDpts;    ///< as the file lists the types
    int mDptMain = 0; ///< of the type set on the address itself, the last of the list; 0 for none
    int mDptSub = 0;  ///< 0 for any
    bool mCentral = false;
    bool mUnfiltered = false;
    QString mSecurity;
  };

  std::vector<Range> mRanges; ///< outer before inner
  std::vector<Address> mAddresses;
  QStringList mFaults;       ///< one German sentence with the line number for each of the first elements left out
  qsizetype mFaultCount = 0; ///< of all of them
};

/// Reads the XML export of ETS5 and ETS6 (root "GroupAddress-Export", namespace "http://knx.org/xml/ga-export/01").
namespace Ets_Xml_Reader {

/// Elements may be nested so deep; files of ETS need 4.
inline constexpr int cDepthLimit = 64;
/// A longer list of faults is cut.
inline constexpr int cFaultLimit = 200;

/// False with a German `error` when the file is no such export or is broken; `groups` then is empty. A single faulty
/// element is told in `groups.mFaults` and the rest is read.
[[nodiscard]] bool read(QIODevice& device, Ets_Groups& groups, QString& error);

} // namespace Ets_Xml_Reader
