#pragma once

#include "db/Address_Import_Plan.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// The rows of an import's comparison as a table with ticks, what the project has beside what the file says. It decides
/// nothing: ticks are set in the plan. Filter and order are its own, so that 65,000 rows stay quick.
class Address_Import_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  enum Column {
    cAddress, ///< with the tick
    cKind,
    cNamePresent,
    cNameIncoming,
    cTypePresent, ///< "9.001", "9.001 (vermutet)"
    cTypeIncoming,
    cDescriptionPresent,
    cDescriptionIncoming,
    cNote,
    cColumnCount
  };

  /// bool: the cell's value differs from the one beside it.
  static constexpr int cDiffersRole = Qt::UserRole + 1;
  /// int: the row's `Address_Import_Row::Kind`.
  static constexpr int cKindRole = Qt::UserRole + 2;

  using QAbstractTableModel::QAbstractTableModel;

  void setPlan(Address_Import_Plan plan);
  [[nodiscard]] const Address_Import_Plan& plan() const { return mPlan; }

  /// Shows only rows in which every word stands, in whatever column and case.
  void setFilter(const QString& text);
  void setKindShown(Address_Import_Row::Kind kind, bool isShown);

  /// Of several rows of one address only one gets a tick: the first, unless another has one already.
  void setTicked(const QList<int>& rows, bool isTicked);
  /// All rows that are shown.
  void setShownTicked(bool isTicked);
  [[nodiscard]] bool isTicked(int row) const { return rowAt(row).mTicked; }

  /// "Neu", "Geändert", "Entfällt", "Konflikt".
  [[nodiscard]] static QString kindText(Address_Import_Row::Kind kind);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

signals:
  void ticksChanged();

private:
  [[nodiscard]] const Address_Import_Row& rowAt(int row) const { return mPlan.row(mShown[static_cast<size_t>(row)]); }
  [[nodiscard]] static QString textOf(const Address_Import_Row& row, int column);
  [[nodiscard]] bool passes(const Address_Import_Row& row) const;
  void choose();
  void order();
  void rebuild();
  void tellTicks();

  Address_Import_Plan mPlan;
  std::vector<qsizetype> mShown; ///< indices of the plan's rows, in the order that is seen
  QSet<Address_Import_Row::Kind> mHidden;
  QStringList mWords;
  int mSortColumn = cAddress;
  Qt::SortOrder mSortOrder = Qt::AscendingOrder;
};
