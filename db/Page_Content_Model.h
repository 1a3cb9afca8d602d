#pragma once

#include "db/Address_Usage.h"

#include <QAbstractTableModel>
#include <QString>
#include <QUuid>

#include <vector>

class ProjectDatabase;

/// What stands on a page, one block or element a row, in the page's order. A picture of the moment in which the rows
/// were made.
class Page_Content_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cKind = 0; ///< the block's type
  static constexpr int cName = 1;
  static constexpr int cPosition = 2; ///< "120, 80", pixels of the unzoomed page
  static constexpr int cBindings = 3; ///< "1/2/3, 1/2/4", and names of variables
  static constexpr int cComment = 4;
  static constexpr int cColumnCount = 5;

  struct Row {
    QUuid mGuid;
    QString mKind;
    QString mName;
    int mX = 0; ///< pixels, as the one below
    int mY = 0;
    QString mBindings;
    QString mComment;

    friend bool operator==(const Row&, const Row&) = default;
  };
  using Rows = std::vector<Row>;

  using QAbstractTableModel::QAbstractTableModel;

  /// Of a logic or visualisation page; none when there is no such page.
  [[nodiscard]] static Rows rowsOf(const ProjectDatabase& database, const QUuid& page,
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
