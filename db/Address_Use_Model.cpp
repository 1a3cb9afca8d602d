#include "db/Address_Use_Model.h"

#include "db/Model_Roles.h"
#include "db/Page_Tree_Model.h"
#include "db/ProjectDatabase.h"

#include <limits>

namespace {

/// Address and name stand in cells of their own. The number may have been given to another address since.
QString reasonOf(const ProjectDatabase& database, const Group_Address& address) {
  const DB_Address_Sub_Group* const other = database.mAddresses.subGroup(address);
  return other ? Address_Use_Model::tr("Die Adresse gibt es nicht mehr; %1 ist jetzt \"%2\".")
                     .arg(address.toString(), other->mName.simplified())
               : Address_Use_Model::tr("Die Adresse gibt es nicht mehr.");
}

constexpr qint64 cLast = std::numeric_limits<qint64>::max(); // behind all addresses

} // namespace

void Address_Use_Model::append(Rows& rows, const ProjectDatabase& database, const Address_Usage& usage,
                               const QUuid& key, const Address_Usage::Type_Name& blockType) {
  std::optional<Group_Address> address;
  QString name;
  if (const DB_Address_Sub_Group* const group = database.mAddresses.subGroup(key)) {
    address = database.mAddresses.addressOf(*group);
    name = group->mName.simplified();
  } else if (const Address_Usage::Variable* const variable = usage.variable(key)) {
    name = variable->mName.simplified();
  } else {
    return;
  }
  for (const Address_Use& use : usage.uses(key)) {
    rows.push_back({use,
                    key,
                    Address_Usage::text(database, use, blockType),
                    Page_Tree_Model::pageIcon(database, use.mPageGuid),
                    address,
                    name,
                    {}});
  }
}

Address_Use_Model::Rows Address_Use_Model::allRows(const ProjectDatabase& database, const Address_Usage& usage,
                                                   const Address_Usage::Type_Name& blockType) {
  Rows rows;
  for (const auto& main : database.mAddresses.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        append(rows, database, usage, sub->mKey, blockType);
      }
    }
  }
  return rows;
}

Address_Use_Model::Rows Address_Use_Model::invalidRows(const ProjectDatabase& database, const Address_Usage& usage,
                                                       const Address_Usage::Type_Name& blockType) {
  Rows rows;
  for (const Address_Usage::Invalid& invalid : usage.invalid()) {
    rows.push_back({invalid.mUse, invalid.mKey, Address_Usage::text(database, invalid.mUse, blockType),
                    Page_Tree_Model::pageIcon(database, invalid.mUse.mPageGuid), invalid.mAddress,
                    invalid.mName.simplified(), reasonOf(database, invalid.mAddress)});
  }
  return rows;
}

QString Address_Use_Model::textOf(const Row& row, int column) {
  switch (column) {
  case cPage:
    return row.mText.mPage;
  case cOwner:
    return row.mText.mOwner;
  case cPlace:
    return row.mText.mPlace;
  case cAddress:
    return row.mAddress ? row.mAddress->toString() : tr("Variable");
  case cName:
    return row.mName;
  default:
    return row.mReason;
  }
}

QVariant Address_Use_Model::data(const QModelIndex& index, int role) const {
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
  case Model_Roles::cIconName:
    if (column == cReason) {
      return QStringLiteral("warning_white");
    }
    return column == cPage ? shown.mPageIcon : QVariant();
  case Model_Roles::cSortKey:
    return column == cAddress ? QVariant(shown.mAddress ? Model_Roles::sortKey(*shown.mAddress) : cLast)
                              : textOf(shown, column);
  case Model_Roles::cIdentity:
    return QVariantList{shown.mUse.mOwnerGuid, static_cast<int>(shown.mUse.mPlace), shown.mUse.mIndex};
  default:
    return {};
  }
}

QVariant Address_Use_Model::titleOf(int column) const {
  switch (column) {
  case cPage:
    return tr("Seite");
  case cOwner:
    return tr("Baustein/Element");
  case cPlace:
    return tr("Anschluss");
  case cAddress:
    return tr("Adresse");
  case cName:
    return tr("Name");
  case cReason:
    return tr("Grund");
  default:
    return {};
  }
}
