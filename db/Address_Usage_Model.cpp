#include "db/Address_Usage_Model.h"

#include "base/Decimal_Text.h"
#include "db/Address_Usage.h"
#include "db/Model_Roles.h"
#include "db/ProjectDatabase.h"

namespace {

QVariant alignmentOf(int column) {
  return column == Address_Usage_Model::cCount ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
}

} // namespace

Address_Usage_Model::Rows Address_Usage_Model::rowsOf(const ProjectDatabase& database, const Address_Usage& usage,
                                                      bool isUsed) {
  Rows rows;
  for (const auto& main : database.mAddresses.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        const auto count = static_cast<int>(usage.count(sub->mKey));
        if ((count > 0) == isUsed) {
          const Group_Address address(main->mNumber, middle->mNumber, sub->mNumber);
          rows.push_back({sub->mKey, address, sub->mName.simplified(), sub->mDpt, count});
        }
      }
    }
  }
  return rows;
}

QString Address_Usage_Model::textOf(const Row& row, int column) {
  switch (column) {
  case cAddress:
    return row.mAddress.toString();
  case cName:
    return row.mName;
  case cDatapointType:
    return row.mDpt.toString();
  default:
    return row.mCount > 0 ? Decimal_Text::count(row.mCount) : QString();
  }
}

QVariant Address_Usage_Model::sortKeyOf(const Row& row, int column) {
  switch (column) {
  case cAddress:
    return Model_Roles::sortKey(row.mAddress);
  case cName:
    return row.mName;
  case cDatapointType:
    return (qint64(row.mDpt.mMain) << 32) + row.mDpt.mSub;
  default:
    return qint64(row.mCount);
  }
}

QVariant Address_Usage_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Row& shown = row(index.row());
  const int column = index.column();
  switch (role) {
  case Qt::DisplayRole:
    return textOf(shown, column);
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(textOf(shown, column));
  case Qt::TextAlignmentRole:
    return alignmentOf(column);
  case Model_Roles::cIconName:
    return column == cAddress ? QStringLiteral("sub_group") : QVariant();
  case Model_Roles::cSortKey:
    return sortKeyOf(shown, column);
  case Model_Roles::cIdentity:
    return shown.mKey;
  default:
    return {};
  }
}

QVariant Address_Usage_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
    return alignmentOf(section);
  }
  return Row_Table_Model::headerData(section, orientation, role);
}

QVariant Address_Usage_Model::titleOf(int column) const {
  switch (column) {
  case cAddress:
    return tr("Adresse");
  case cName:
    return tr("Name");
  case cDatapointType:
    return tr("Datenpunkttyp");
  case cCount:
    return tr("Verwendungen");
  default:
    return {};
  }
}
