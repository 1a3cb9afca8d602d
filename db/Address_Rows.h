#pragma once

#include "db/Address_Tree.h"
#include "db/Address_Usage.h"
#include "db/Address_Values.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <vector>

/// The rows of the address tree as a view shows them: main groups with their middle groups with their addresses, and
/// behind them the branch of internal variables, each with its uses; filtered by words, and every level sorted by one
/// column, by live values as they are when the rows are built. A row stays where it is in memory until the rows are
/// built anew.
class Address_Rows {
public:
  /// Outlives the rows.
  explicit Address_Rows(const Address_Values& values) : mValues(values) {}

  enum class Kind { Main, Middle, Sub, Variables, Variable, Use };

  enum Column {
    cAddress = 0,
    cName,
    cDescription,
    cType,
    cReadAtStart,
    cReadCyclic,
    cWrite,
    cActive,
    cOrigin, ///< of an import: how the address stood there
    cValue,  ///< the last that is known; this and what follows is live
    cTime,
    cSource,
    cColumnCount,
  };

  struct Row {
    Kind mKind = Kind::Main;
    int mIndex = 0;  ///< among its siblings
    int mNumber = 0; ///< of a group or address; index of a variable or use in the usage
    const Row* mParent = nullptr;
    const DB_Data_Base* mRecord = nullptr; ///< of a group or address
    std::vector<Row> mChildren;
  };

  struct Order {
    int mColumn = cAddress;
    bool mIsDescending = false;
    friend bool operator==(const Order&, const Order&) = default;
  };

  /// Shows only rows in which every word stands, in whatever column and case, and the groups around them. The database
  /// is asked in `text`, too; both it and `usage` outlive the rows.
  void build(const ProjectDatabase& database, const Address_Usage& usage, const QStringList& words, const Order& order);
  void clear();
  /// What the uses call a block without a name of its own.
  void setBlockTypeName(const Address_Usage::Type_Name& name) { mBlockType = name; }

  [[nodiscard]] const std::vector<Row>& top() const { return mTop; }
  /// Group addresses that pass the filter.
  [[nodiscard]] qsizetype subCount() const { return mSubCount; }

  /// Null when it is not among the rows. Uses have no key.
  [[nodiscard]] const Row* find(const QUuid& key) const;
  /// Null for the branch of variables and for uses.
  [[nodiscard]] QUuid keyOf(const Row& row) const;

  /// Of a row of that kind.
  [[nodiscard]] const Address_Use& useOf(const Row& row) const;

  /// The live value of an address; null for other rows, and while none is known.
  [[nodiscard]] const Address_Value* valueOf(const Row& row) const;

  /// What a cell says; flags are no texts.
  [[nodiscard]] QString text(const Row& row, int column) const;

private:
  class Builder;

  [[nodiscard]] QString valueText(const DB_Address_Sub_Group& group, int column) const;
  [[nodiscard]] const Row* find(const std::vector<Row>& rows, int number, const DB_Data_Base* record) const;

  const Address_Values& mValues;
  const ProjectDatabase* mDatabase = nullptr;
  const Address_Usage* mUsage = nullptr;
  Address_Usage::Type_Name mBlockType;
  Order mOrder;
  qsizetype mSubCount = 0;
  QHash<QUuid, int> mVariableByKey; ///< index in the branch of variables
  std::vector<Row> mTop;
};
