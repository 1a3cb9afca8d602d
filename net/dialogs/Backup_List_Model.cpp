#include "net/dialogs/Backup_List_Model.h"

#include "db/Model_Roles.h"

#include <QDateTime>
#include <QLocale>

namespace {

QVariant alignmentOf(int column) {
  return column == Backup_List_Model::cSize ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
}

} // namespace

QString Backup_List_Model::timeText(const DB_Backup_List::Backup& backup) {
  return QDateTime::fromSecsSinceEpoch(backup.mTime).toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
}

QVariant Backup_List_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const DB_Backup_List::Backup& backup = row(index.row());
  const bool isSort = role == Model_Roles::cSortKey;
  if (role == Model_Roles::cIdentity) {
    return backup.mId;
  }
  if (role == Qt::TextAlignmentRole) {
    return alignmentOf(index.column());
  }
  if (role == Qt::ToolTipRole && index.column() == cDescription) {
    return Model_Roles::toolTip(backup.mDescription);
  }
  if (role != Qt::DisplayRole && !isSort) {
    return {};
  }
  switch (index.column()) {
  case cTime:
    return isSort ? QVariant(backup.mTime) : QVariant(timeText(backup));
  case cDescription:
    return backup.mDescription.simplified();
  case cProject:
    return backup.mProjectName.simplified();
  default:
    return isSort ? QVariant(backup.mSize) : QVariant(QLocale().formattedDataSize(backup.mSize, 1));
  }
}

QVariant Backup_List_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
    return alignmentOf(section);
  }
  return Row_Table_Model::headerData(section, orientation, role);
}

QVariant Backup_List_Model::titleOf(int column) const {
  switch (column) {
  case cTime:
    return tr("Zeit");
  case cDescription:
    return tr("Beschreibung");
  case cProject:
    return tr("Projekt");
  default:
    return tr("Größe");
  }
}
