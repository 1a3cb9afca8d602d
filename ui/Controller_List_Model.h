#pragma once

#include "db/Controller_Edits.h"

#include <QAbstractTableModel>

#include <vector>

/// The controllers of a group while they are edited, one a row. Every cell tells what is wrong with it.
class Controller_List_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cNumber = 0;
  static constexpr int cName = 1;
  static constexpr int cAddress = 2;
  static constexpr int cMain = 3; ///< checked at one row
  static constexpr int cColumnCount = 4;

  explicit Controller_List_Model(std::vector<DB_Controller> controllers, QObject* parent = nullptr);

  [[nodiscard]] const std::vector<DB_Controller>& controllers() const { return mControllers; }
  [[nodiscard]] const std::vector<Controller_Edits::Fault>& faults() const { return mFaults; }
  /// Empty when the cell is right.
  [[nodiscard]] QString faultOf(const QModelIndex& cell) const;

  /// With the next free number; the first one is the main controller. Answers its row.
  int add();
  void remove(int row);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

signals:
  /// The list or its faults are other ones.
  void edited();

private:
  void update();
  void setMain(int row, bool isMain);

  std::vector<DB_Controller> mControllers;
  std::vector<Controller_Edits::Fault> mFaults;
};
