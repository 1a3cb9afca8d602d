#pragma once

#include "db/Address_Group_Comparison.h"
#include "db/Address_Import.h"
#include "db/Address_Usage.h"

#include <QHash>
#include <QStringList>

#include <utility>
#include <vector>

class DB_Address_Sub_Group;

/// Compares the groups of an ETS export with those of a project; used once. Both outlive it.
class Address_Comparison {
public:
  Address_Comparison(const ProjectDatabase& database, const Ets_Groups& groups, const Address_Import::Options& options);

  [[nodiscard]] Address_Import_Plan plan();

private:
  using Row = Address_Import_Row;
  using Values = Address_Import_Row::Values;

  /// What the file says of one address, entries of the same content taken together.
  struct Variant {
    Values mValues;
    const Ets_Groups::Address* mEntry = nullptr;
    QString mNote; ///< what is told of its values
  };

  void compareAddresses();
  void compareAddress(const std::vector<const Ets_Groups::Address*>& entries);
  /// `present` is null for a new address.
  [[nodiscard]] Variant incoming(const Ets_Groups::Address& entry, const Values* present) const;
  void keepPresent(Values& values, const Values& present) const;
  [[nodiscard]] bool keepsType(const Values& incoming, const Values& present) const;
  void addConnected(QString& description, const QStringList& connected) const;
  void addNew(const Variant& variant, const QString& note);
  void addPresent(const Variant& variant, const DB_Address_Sub_Group& present, const QString& note);

  void addVanished();
  void noteRenumbered();

  const ProjectDatabase& mDatabase;
  const Ets_Groups& mGroups;
  const Address_Import::Options& mOptions;
  bool mTellsFlags;
  Address_Group_Comparison mGroupComparison;
  Address_Usage mUsage;
  std::vector<Row> mRows;
  int mUnchanged = 0;
  int mRepeated = 0;
};
