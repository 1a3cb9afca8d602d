#pragma once

#include "db/Address_Usage.h"

#include <QAbstractTableModel>
#include <QString>
#include <QUuid>

#include <vector>

class ProjectDatabase;

/// Uses of group addresses, one a row: where, which address, and what is wrong with it. A picture of the moment in
/// which the rows were made.
class Address_Use_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cPage = 0;
  static constexpr int cOwner = 1;   ///< block or element
  static constexpr int cPlace = 2;   ///< "Eingang 1"
  static constexpr int cAddress = 3; ///< "1/2/3"
  static constexpr int cName = 4;    ///< of the address, in one line
  static constexpr int cReason = 5;  ///< why the use is invalid; empty when it is not
  static constexpr int cColumnCount = 6;

  struct Row {
    Address_Use mUse;
    QUuid mKey; ///< of the address
    Address_Usage::Use_Text mText;
    QString mPageIcon; ///< name of the icon
    Group_Address mAddress;
    QString mName;
    QString mReason;

    friend bool operator==(const Row&, const Row&) = default;
  };
  using Rows = std::vector<Row>;

  using QAbstractTableModel::QAbstractTableModel;

  /// Appends the uses of one group address.
  static void append(Rows& rows, const ProjectDatabase& database, const Address_Usage& usage, const QUuid& key,
                     const Address_Usage::Type_Name& blockType);
  /// The uses of all group addresses.
  [[nodiscard]] static Rows allRows(const ProjectDatabase& database, const Address_Usage& usage,
                                    const Address_Usage::Type_Name& blockType);
  /// The bindings to addresses that do not exist.
  [[nodiscard]] static Rows invalidRows(const ProjectDatabase& database, const Address_Usage& usage,
                                        const Address_Usage::Type_Name& blockType);
  /// Equal rows change nothing.
  void setRows(Rows rows);
  [[nodiscard]] const Row& row(int row) const { return mRows[static_cast<size_t>(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  [[nodiscard]] static QString textOf(const Row& row, int column);

  Rows mRows;
};
