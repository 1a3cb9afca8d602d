#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"
#include "db/Row_Table_Model.h"

#include <QString>
#include <QUuid>

class Address_Usage;
class ProjectDatabase;

/// A group address and how often it is used.
struct Address_Usage_Row {
  QUuid mKey;
  Group_Address mAddress;
  QString mName;
  Datapoint_Id mDpt;
  int mCount = 0;

  friend bool operator==(const Address_Usage_Row&, const Address_Usage_Row&) = default;
};

/// Group addresses with the number of their uses, one a row, in the order of the address tree. A picture of the moment
/// in which the rows were made.
class Address_Usage_Model : public Row_Table_Model<Address_Usage_Row> {
  Q_OBJECT

public:
  static constexpr int cAddress = 0;       ///< "1/2/3"
  static constexpr int cName = 1;          ///< in one line
  static constexpr int cDatapointType = 2; ///< "9.001", empty for none
  static constexpr int cCount = 3;         ///< of the uses, empty for none
  static constexpr int cColumnCount = 4;

  using Row = Address_Usage_Row;

  explicit Address_Usage_Model(QObject* parent = nullptr) : Row_Table_Model(cColumnCount, parent) {}

  /// The addresses that are used, or those that are not.
  [[nodiscard]] static Rows rowsOf(const ProjectDatabase& database, const Address_Usage& usage, bool isUsed);

  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
  [[nodiscard]] QVariant titleOf(int column) const override;

private:
  [[nodiscard]] static QString textOf(const Row& row, int column);
  [[nodiscard]] static QVariant sortKeyOf(const Row& row, int column);
};
