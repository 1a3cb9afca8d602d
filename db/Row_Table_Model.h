#pragma once

#include <QAbstractTableModel>

#include <utility>
#include <vector>

/// A table that shows rows made by somebody else, a picture of the moment in which they were made. The model that
/// derives from it says what stands in the cells.
template <class RowType>
class Row_Table_Model : public QAbstractTableModel {
public:
  using Rows = std::vector<RowType>;

  /// Equal rows change nothing.
  void setRows(Rows rows) {
    if (rows != mRows) {
      beginResetModel();
      mRows = std::move(rows);
      endResetModel();
    }
  }
  [[nodiscard]] const RowType& row(int row) const { return mRows[static_cast<size_t>(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(mRows.size());
  }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : mColumnCount;
  }
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? titleOf(section) : QVariant();
  }

protected:
  explicit Row_Table_Model(int columnCount, QObject* parent) : QAbstractTableModel(parent), mColumnCount(columnCount) {}

  /// What stands above a column; null for none.
  [[nodiscard]] virtual QVariant titleOf(int column) const = 0;

private:
  int mColumnCount;
  Rows mRows;
};
