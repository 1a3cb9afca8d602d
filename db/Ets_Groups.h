#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The group addresses and group ranges of an ETS export, as they stand in the file.
struct Ets_Groups {
  enum class Format { Esf, Xml, Csv };

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
    int mLine = 0;      ///< where it stands in the file, from 1
    QString mText;      ///< as the file writes the address
    QString mRangePath; ///< names of the ranges around it, outer first, divided by " / "
    QString mName;
    QString mDescription;
    QString mDpts;            ///< as the file names the type, or lists several
    Datapoint_Id mDpt;        ///< the type set on the address itself, the last of a list
    bool mDptGuessed = false; ///< the file tells the size only, or a type of another standard
    QStringList mConnected;   ///< further addresses that the file names as connected, as it writes them
    bool mCentral = false;
    bool mUnfiltered = false;
    QString mSecurity;
  };

  Format mFormat = Format::Xml;
  QString mProjectName;       ///< where the format tells one
  std::vector<Range> mRanges; ///< outer before inner
  std::vector<Address> mAddresses;
  QStringList mFaults; ///< one German sentence with the line number for each of the first elements that are left out or
                       ///< read in part
  qsizetype mFaultCount = 0; ///< of all of them
};
