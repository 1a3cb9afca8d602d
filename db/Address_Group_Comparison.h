#pragma once

#include "db/Address_Import.h"
#include "db/Ets_Group_Names.h"

#include <QHash>

#include <vector>

class DB_Address_MainGroup;

/// Compares the main and middle groups of an ETS export with those of a project; used once. Both outlive it.
class Address_Group_Comparison {
public:
  Address_Group_Comparison(const ProjectDatabase& database, const Ets_Groups& groups,
                           const Address_Import::Options& options);

  /// The groups that an address stands in take part, whether or not the file names them. A new group is ticked when one
  /// of its addresses is.
  void need(const Group_Address& address, bool isTicked);

  /// After the addresses: appends a row for each group that is new or differs, and counts the others.
  void addRows(std::vector<Address_Import_Row>& rows, int& unchanged);

private:
  using Row = Address_Import_Row;

  /// Names of ESF files are divided anew so that they fit the project's main groups.
  void fitEsfNames();
  void fitEsfNames(const DB_Address_MainGroup& main);
  template <class Group>
  void compare(Row::Level level, const Group_Address& address, const Group* present, const Ets_Group_Names::Name& name,
               bool isTicked, std::vector<Row>& rows, int& unchanged) const;

  const ProjectDatabase& mDatabase;
  const Ets_Groups& mGroups;
  const Address_Import::Options& mOptions;
  Ets_Group_Names mNames;
  QHash<Group_Address, bool> mNeededMain; ///< and whether it is ticked
  QHash<Group_Address, bool> mNeededMiddle;
};
