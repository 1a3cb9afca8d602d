#pragma once

#include "db/Address_Usage.h"
#include "db/Row_Table_Model.h"

#include <QString>
#include <QUuid>

#include <optional>

class ProjectDatabase;

/// A use of a group address, of an internal variable or of something else that has a name.
struct Address_Use_Row {
  Address_Use mUse;
  QUuid mKey; ///< of the address or variable
  Address_Usage::Use_Text mText;
  QString mPageIcon;                     ///< name of the icon
  std::optional<Group_Address> mAddress; ///< empty for anything else
  QString mName;
  QString mReason;

  friend bool operator==(const Address_Use_Row&, const Address_Use_Row&) = default;
};

/// Uses of group addresses and variables, one a row: where, which address, and what is wrong with it. A picture of the
/// moment in which the rows were made.
class Address_Use_Model : public Row_Table_Model<Address_Use_Row> {
  Q_OBJECT

public:
  static constexpr int cPage = 0;
  static constexpr int cOwner = 1;   ///< block or element
  static constexpr int cPlace = 2;   ///< "Eingang 1"
  static constexpr int cAddress = 3; ///< "1/2/3", "Variable"
  static constexpr int cName = 4;    ///< of the address or variable, in one line
  static constexpr int cReason = 5;  ///< what is wrong with the use; empty when nothing is
  static constexpr int cColumnCount = 6;

  using Row = Address_Use_Row;

  explicit Address_Use_Model(QObject* parent = nullptr) : Row_Table_Model(cColumnCount, parent) {}

  /// Appends the uses of one group address or internal variable.
  static void append(Rows& rows, const ProjectDatabase& database, const Address_Usage& usage, const QUuid& key,
                     const Address_Usage::Type_Name& blockType);
  /// The uses of all group addresses.
  [[nodiscard]] static Rows allRows(const ProjectDatabase& database, const Address_Usage& usage,
                                    const Address_Usage::Type_Name& blockType);
  /// The bindings to addresses that do not exist.
  [[nodiscard]] static Rows invalidRows(const ProjectDatabase& database, const Address_Usage& usage,
                                        const Address_Usage::Type_Name& blockType);

  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

protected:
  [[nodiscard]] QVariant titleOf(int column) const override;

private:
  [[nodiscard]] static QString textOf(const Row& row, int column);
};
