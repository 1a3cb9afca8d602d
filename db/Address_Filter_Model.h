#pragma once

#include "db/Address_Pattern.h"

#include <QSortFilterProxyModel>
#include <QString>

#include <vector>

/// Sorts and filters the rows of a table of addresses (100,000 of them while one types). Sorted are the cells by their
/// sort keys, texts as the chosen language does and numbers in them by value.
class Address_Filter_Model : public QSortFilterProxyModel {
  Q_OBJECT

public:
  /// `addressColumn` is the one that holds texts like "1/2/3". The table outlives this model.
  Address_Filter_Model(QAbstractItemModel& table, int addressColumn, QObject* parent = nullptr);

  /// Shows only rows in which every word stands, in whatever column and case. A word "1/2/3" is that address and no
  /// longer one, "1/2/*", "1/2" and "1/*" are all addresses of that group.
  void setFilter(const QString& text);
  [[nodiscard]] bool isFiltered() const { return !mWords.empty(); }

  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
  [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
  struct Word {
    QString mText;
    Address_Pattern mAddress;
  };

  void rank() const;

  int mAddressColumn;
  std::vector<Word> mWords;
  mutable std::vector<int> mRanks; ///< of the rows of the table in the sorted column; empty when they are out of date
};
