#pragma once

#include "db/Address_Import.h"
#include "db/Ets_Group_Names.h"

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
    const Ets_Groups::Address* mEntry;
  };

  void compareAddresses();
  void compareAddress(const std::vector<const Ets_Groups::Address*>& entries);
  /// `present` is null for a new address.
  [[nodiscard]] Values incoming(const Ets_Groups::Address& entry, const Values* present) const;
  void keepPresent(Values& values, const Values& present) const;
  [[nodiscard]] bool keepsType(const Values& incoming, const Values& present) const;
  void addConnected(QString& description, const QStringList& connected) const;
  void addNew(const Variant& variant, const QString& note);
  void addPresent(const Variant& variant, const DB_Address_Sub_Group& present, const QString& note);

  void addVanished();
  void noteRenumbered();

  void compareGroups();
  /// Names of ESF files are divided anew so that they fit the project's main groups.
  void fitEsfNames();
  template <class Group>
  void compareGroup(Row::Level level, const Group_Address& address, const Group* present,
                    const Ets_Group_Names::Name& name, bool isTicked);
  /// Groups that addresses of the file stand in and the project does not have; ticked where a new address needs it.
  void noteNeededGroups(const Group_Address& address, bool isTicked);

  const ProjectDatabase& mDatabase;
  const Ets_Groups& mGroups;
  const Address_Import::Options& mOptions;
  Ets_Group_Names mNames;
  QHash<QUuid, int> mUses;
  bool mTellsDescriptions = false;
  bool mTellsFlags = false;
  QHash<Group_Address, bool> mNeededMain; ///< and whether it is ticked
  QHash<Group_Address, bool> mNeededMiddle;
  std::vector<Row> mRows;
  int mUnchanged = 0;
  int mRepeated = 0;
};
