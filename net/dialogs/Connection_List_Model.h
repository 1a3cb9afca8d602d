#pragma once

#include "db/DB_Connections.h"
#include "db/Row_Table_Model.h"

/// A connection in the table "Verbindungen"; nothing secret is in it.
struct Connection_Row {
  int mIndex = 0; ///< in the project's list, from 0
  QString mName;
  QString mAddress; ///< of a relayed one the DNS name
  bool mIsRelay = false;
  QString mUser;
  QString mDescription;
  bool mIsSelected = false;
  friend bool operator==(const Connection_Row&, const Connection_Row&) = default;
};

class Connection_List_Model : public Row_Table_Model<Connection_Row> {
  Q_OBJECT

public:
  enum Column { cNumber, cName, cAddress, cKind, cUser, cSelected, cDescription, cColumnCount };

  explicit Connection_List_Model(QObject* parent = nullptr);

  [[nodiscard]] static Rows rowsOf(const DB_Connections& connections);
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

protected:
  [[nodiscard]] QVariant titleOf(int column) const override;

private:
  [[nodiscard]] static QString text(const Connection_Row& row, int column);
};
