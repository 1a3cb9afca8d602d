#include "net/dialogs/Connection_List_Model.h"

#include "db/Model_Roles.h"

Connection_List_Model::Connection_List_Model(QObject* parent) : Row_Table_Model(cColumnCount, parent) {}

Connection_List_Model::Rows Connection_List_Model::rowsOf(const DB_Connections& connections) {
  Rows rows;
  rows.reserve(connections.mItems.size());
  for (const DB_Connections::ITEM& item : connections.mItems) {
    const int index = static_cast<int>(rows.size());
    rows.push_back({index, item.mName, item.isRelay() ? item.mRelayDns : item.mAddress, item.isRelay(), item.mUser,
                    item.mDescription.simplified(), index == connections.mSelected});
  }
  return rows;
}

QString Connection_List_Model::text(const Connection_Row& row, int column) {
  switch (column) {
  case cNumber:
    return QStringLiteral("#%1").arg(row.mIndex + 1);
  case cName:
    return row.mName;
  case cAddress:
    return row.mAddress;
  case cKind:
    return row.mIsRelay ? tr("Vermittlungsdienst") : tr("Direkt");
  case cUser:
    return row.mUser;
  case cSelected:
    return row.mIsSelected ? tr("ja") : QString();
  default:
    return row.mDescription;
  }
}

QVariant Connection_List_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Connection_Row& of = row(index.row());
  switch (role) {
  case Qt::DisplayRole:
    return text(of, index.column());
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(text(of, index.column()));
  case Model_Roles::cSortKey:
    return index.column() == cNumber ? QVariant(of.mIndex) : QVariant(text(of, index.column()));
  case Model_Roles::cIdentity:
    return of.mIndex;
  default:
    return {};
  }
}

QVariant Connection_List_Model::titleOf(int column) const {
  switch (column) {
  case cNumber:
    return tr("Nummer");
  case cName:
    return tr("Name");
  case cAddress:
    return tr("Adresse");
  case cKind:
    return tr("Art");
  case cUser:
    return tr("Benutzer");
  case cSelected:
    return tr("Ausgewählt");
  default:
    return tr("Beschreibung");
  }
}
