#pragma once

#include "db/Row_Table_Model.h"
#include "net/Controller_Records.h"

/// The backups that a controller keeps, as a table.
class Backup_List_Model : public Row_Table_Model<DB_Backup_List::Backup> {
  Q_OBJECT

public:
  enum Column { cTime, cDescription, cProject, cSize, cColumns };

  explicit Backup_List_Model(QObject* parent = nullptr) : Row_Table_Model(cColumns, parent) {}

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  /// Date and time of this computer's zone: "22.11.2026 14:03:07".
  [[nodiscard]] static QString timeText(const DB_Backup_List::Backup& backup);

protected:
  [[nodiscard]] QVariant titleOf(int column) const override;
};
