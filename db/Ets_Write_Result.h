#pragma once

#include "base/Group_Address.h"

#include <QStringList>

class DB_Address_MainGroup;
class DB_Address_Middle_Group;
class DB_Address_Sub_Group;

/// What went into an export for ETS, and what such a file cannot hold.
struct Ets_Write_Result {
  /// A longer list is cut.
  static constexpr int cListLimit = 200;

  QString mError;       ///< German; empty when the file is written
  int mAddresses = 0;   ///< written
  int mLeftOut = 0;     ///< addresses that are not in the file
  QStringList mOmitted; ///< German sentences: one for each kind of attribute that the format does not know, then one
                        ///< for each of the first things left out, groups as a whole

  [[nodiscard]] bool isOk() const { return mError.isEmpty(); }

  /// The address is in the file.
  void add(const DB_Address_Sub_Group& group);
  /// What of it the file cannot hold; told by `tellLosses`, in one sentence for each kind of thing.
  void loseDescription() { ++mDescriptions; }
  void loseType() { ++mTypes; }
  void loseGuess() { ++mGuesses; }
  void loseEtsAttributes() { ++mEtsAttributes; }
  /// In front of what is omitted.
  void tellLosses();

  /// Numbers that no bus has; everything in the group counts as left out.
  void omit(const DB_Address_MainGroup& group);
  void omit(int main, const DB_Address_Middle_Group& group);
  void omit(const Group_Address& address, const DB_Address_Sub_Group& group);
  /// The number stands in the file already.
  void omitRepeated(const Group_Address& address, const DB_Address_Sub_Group& group);
  /// A group that is not told because it has no addresses.
  void omitEmpty(const QString& groupText, const QString& name);

private:
  void tell(const QString& sentence);

  qsizetype mDescriptions = 0;
  qsizetype mTypes = 0;
  qsizetype mGuesses = 0;
  qsizetype mEtsAttributes = 0;
  qsizetype mFlags = 0;
};
