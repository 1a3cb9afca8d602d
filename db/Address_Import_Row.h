#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"

#include <QFlags>
#include <QString>
#include <QUuid>

class DB_Address_Sub_Group;

/// One difference between an ETS export and the project: a group address, or a main or middle group.
struct Address_Import_Row {
  enum class Kind {
    New,
    Changed,
    Vanished, ///< the project has it, the file does not name it
    Conflict, ///< needs a decision: named several times in the file, or its type changes size while it is in use
  };
  enum class Level { MainGroup, MiddleGroup, Address };
  enum class Field { Name = 1, Description = 2, Type = 4, Central = 8, Unfiltered = 16, Security = 32 };
  Q_DECLARE_FLAGS(Fields, Field)

  /// What an export tells of an address; of a group the first two.
  struct Values {
    QString mName;
    QString mDescription;
    Datapoint_Id mDpt;
    bool mDptGuessed = false;
    QString mDptRaw;
    bool mCentral = false;
    bool mUnfiltered = false;
    QString mSecurity;

    [[nodiscard]] static Values of(const DB_Address_Sub_Group& group);
    void applyTo(DB_Address_Sub_Group& group) const;
    /// What differs; how the type is written (`mDptRaw`) does not count.
    [[nodiscard]] Fields differenceTo(const Values& other) const;
  };

  Kind mKind = Kind::New;
  Level mLevel = Level::Address;
  Group_Address mAddress; ///< of a group the numbers of the lower levels are 0
  QUuid mKey;             ///< of the present record, null when there is none
  Values mPresent;        ///< defaults when there is no record
  Values mIncoming;       ///< what the record holds when the row is applied; defaults for `Vanished`
  Fields mDiffering;      ///< none where there is nothing to compare
  QString mNote;          ///< German, may be empty
  int mUses = 0;          ///< pins and elements that are bound to it
  int mLine = 0;          ///< where the file says this of the address; tells variants apart
  bool mTicked = false;
  bool mTickedFirst = false; ///< by the comparison

  /// For a new address, as its record tells it: how the file writes it when not in three levels, and the names of the
  /// ranges around it.
  QString mForeignText;
  QString mRangePath;

  /// "1/2/3", "1/2/*", "1/*".
  [[nodiscard]] QString addressText() const;
  /// In the order of the address tree: a group before what is in it.
  [[nodiscard]] static bool isBefore(const Address_Import_Row& a, const Address_Import_Row& b);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Address_Import_Row::Fields)
