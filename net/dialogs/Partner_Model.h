#pragma once

#include "db/DB_Project.h"
#include "db/Row_Table_Model.h"
#include "net/Controller_Records.h"

/// A controller of the project's list, and how it stands as far as the connected one knows.
struct Partner_Row {
  int mNumber = 0;
  QString mName;
  QString mAddress;
  int mState = -1; ///< as in DB_Group_Status; -1 when nothing is known
  QString mVersion;
  int mGeneration = 0;

  friend bool operator==(const Partner_Row&, const Partner_Row&) = default;
};

/// The controllers that run the project together, as a table.
class Partner_Model : public Row_Table_Model<Partner_Row> {
  Q_OBJECT

public:
  enum Column { cNumber, cName, cAddress, cState, cVersion, cGeneration, cColumns };

  explicit Partner_Model(QObject* parent = nullptr) : Row_Table_Model(cColumns, parent) {}

  [[nodiscard]] static Rows rowsOf(const std::vector<DB_Controller>& controllers, const DB_Group_Status& status);
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

protected:
  [[nodiscard]] QVariant titleOf(int column) const override;

private:
  [[nodiscard]] static QString stateText(int state);
};
