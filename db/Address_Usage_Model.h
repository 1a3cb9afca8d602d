#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"

#include <QAbstractTableModel>
#include <QString>
#include <QUuid>

#include <vector>

class Address_Usage;
class ProjectDatabase;

/// Group addresses with the number of their uses, one a row, in the order of the address tree. A picture of the moment
/// in which the rows were made.
class Address_Usage_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cAddress = 0;       ///< "1/2/3"
  static constexpr int cName = 1;          ///< in one line
  static constexpr int cDatapointType = 2; ///< "9.001", empty for none
  static constexpr int cCount = 3;         ///< of the uses, empty for none
  static constexpr int cColumnCount = 4;

  struct Row {
    QUuid mKey;
    Group_Address mAddress;
    QString mName;
    Datapoint_Id mDpt;
    int mCount = 0;

    friend bool operator==(const Row&, const Row&) = default;
  };
  using Rows = std::vector<Row>;

  using QAbstractTableModel::QAbstractTableModel;

  /// The addresses that are used, or those that are not.
  [[nodiscard]] static Rows rowsOf(const ProjectDatabase& database, const Address_Usage& usage, bool isUsed);
  /// Equal rows change nothing.
  void setRows(Rows rows);
  [[nodiscard]] const Row& row(int row) const { return mRows[static_cast<size_t>(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  [[nodiscard]] static QString textOf(const Row& row, int column);
  [[nodiscard]] static QVariant sortKeyOf(const Row& row, int column);

  Rows mRows;
};
