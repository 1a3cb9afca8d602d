#include "net/dialogs/Partner_Model.h"

#include "db/Model_Roles.h"

#include <algorithm>

Partner_Model::Rows Partner_Model::rowsOf(const std::vector<DB_Controller>& controllers,
                                          const DB_Group_Status& status) {
  Rows rows;
  rows.reserve(controllers.size());
  for (const DB_Controller& controller : controllers) {
    Partner_Row row{controller.mNumber, controller.mName, controller.mAddress, -1, {}, 0};
    const auto member = std::find_if(status.mMembers.begin(), status.mMembers.end(),
                                     [&row](const auto& other) { return other.mIndex == row.mNumber; });
    if (member != status.mMembers.end()) {
      row.mState = member->mState;
      row.mVersion = member->mVersion;
      row.mGeneration = member->mGeneration;
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

QString Partner_Model::stateText(int state) {
  switch (state) {
  case 0:
    return tr("nicht erreichbar");
  case 1:
    return tr("verbunden");
  case 2:
    return tr("in Bereitschaft");
  case 3:
    return tr("andere Steuerung als erwartet");
  case 4:
    return tr("diese Steuerung");
  default:
    return tr("nicht bekannt");
  }
}

QVariant Partner_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Partner_Row& partner = row(index.row());
  if (role == Model_Roles::cIdentity) {
    return partner.mAddress;
  }
  const bool isSort = role == Model_Roles::cSortKey;
  if (role != Qt::DisplayRole && !isSort) {
    return {};
  }
  switch (index.column()) {
  case cNumber:
    return isSort ? QVariant(qint64(partner.mNumber)) : QVariant(QString::number(partner.mNumber));
  case cName:
    return partner.mName.simplified();
  case cAddress:
    return partner.mAddress;
  case cState:
    return stateText(partner.mState);
  case cVersion:
    return partner.mVersion;
  default:
    return isSort ? QVariant(qint64(partner.mGeneration))
                  : QVariant(partner.mGeneration == 0 ? QString() : QString::number(partner.mGeneration));
  }
}

QVariant Partner_Model::titleOf(int column) const {
  switch (column) {
  case cNumber:
    return tr("Nummer");
  case cName:
    return tr("Name");
  case cAddress:
    return tr("Adresse");
  case cState:
    return tr("Zustand");
  case cVersion:
    return tr("Version");
  default:
    return tr("Projektstand");
  }
}
