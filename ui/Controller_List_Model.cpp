#include "ui/Controller_List_Model.h"

#include "db/Model_Roles.h"
#include "ui/Theme.h"

#include <algorithm>

namespace {

using Field = Controller_Edits::Field;

Field fieldOf(int column) {
  switch (column) {
  case Controller_List_Model::cNumber:
    return Field::Number;
  case Controller_List_Model::cName:
    return Field::Name;
  case Controller_List_Model::cAddress:
    return Field::Address;
  default:
    return Field::Main;
  }
}

QVariant textOf(const DB_Controller& controller, int column) {
  switch (column) {
  case Controller_List_Model::cNumber:
    return controller.mNumber;
  case Controller_List_Model::cName:
    return controller.mName;
  case Controller_List_Model::cAddress:
    return controller.mAddress;
  default:
    return {};
  }
}

} // namespace

Controller_List_Model::Controller_List_Model(std::vector<DB_Controller> controllers, QObject* parent)
    : QAbstractTableModel(parent),
      mControllers(std::move(controllers)),
      mFaults(Controller_Edits::faultsOf(mControllers)) {}

QString Controller_List_Model::faultOf(const QModelIndex& cell) const {
  const auto found = std::find_if(mFaults.begin(), mFaults.end(), [&cell](const Controller_Edits::Fault& fault) {
    return fault.mRow == cell.row() && fault.mField == fieldOf(cell.column());
  });
  return found == mFaults.end() ? QString() : found->mText;
}

void Controller_List_Model::update() {
  mFaults = Controller_Edits::faultsOf(mControllers);
  if (!mControllers.empty()) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, cColumnCount - 1));
  }
  emit edited();
}

int Controller_List_Model::add() {
  DB_Controller added;
  added.mNumber = 1;
  for (const DB_Controller& controller : mControllers) {
    added.mNumber = std::max(added.mNumber, controller.mNumber + 1);
  }
  added.mName = tr("Steuerung %1").arg(added.mNumber);
  added.mIsMain = mControllers.empty();
  const int row = rowCount();
  beginInsertRows({}, row, row);
  mControllers.push_back(added);
  endInsertRows();
  update();
  return row;
}

void Controller_List_Model::remove(int row) {
  if (row < 0 || row >= rowCount()) {
    return;
  }
  beginRemoveRows({}, row, row);
  mControllers.erase(mControllers.begin() + row);
  endRemoveRows();
  update();
}

int Controller_List_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mControllers.size());
}

int Controller_List_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cColumnCount;
}

QVariant Controller_List_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const DB_Controller& controller = mControllers[static_cast<size_t>(index.row())];
  const QString fault = faultOf(index);
  switch (role) {
  case Qt::DisplayRole:
  case Qt::EditRole:
    return textOf(controller, index.column());
  case Qt::CheckStateRole:
    return index.column() == cMain ? QVariant(controller.mIsMain ? Qt::Checked : Qt::Unchecked) : QVariant();
  case Qt::DecorationRole:
    return fault.isEmpty() ? QVariant() : QVariant(Theme::icon(QStringLiteral("error_white")));
  case Qt::ForegroundRole:
    return fault.isEmpty() ? QVariant() : QVariant(Theme::color(Theme::Role::ErrorText));
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(fault);
  default:
    return {};
  }
}

QVariant Controller_List_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
    return {};
  }
  const bool isTip = role == Qt::ToolTipRole;
  switch (section) {
  case cNumber:
    return isTip ? tr("Eigene Nummer der Steuerung, ab 1") : tr("Nummer");
  case cName:
    return isTip ? tr("Name der Steuerung, 1 bis 255 Zeichen") : tr("Name");
  case cAddress:
    return isTip ? tr("IP-Adresse oder Rechnername, bei Bedarf mit \":\" und Port") : tr("Adresse");
  default:
    return isTip ? tr("Führt jede Seite aus, die keiner anderen Steuerung zugeordnet ist") : tr("Hauptsteuerung");
  }
}

Qt::ItemFlags Controller_List_Model::flags(const QModelIndex& index) const {
  const Qt::ItemFlag way = index.column() == cMain ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren | way : Qt::NoItemFlags;
}

/// One row only; taken off the row that has it, none has it until another gets it.
void Controller_List_Model::setMain(int row, bool isMain) {
  for (int i = 0; i < rowCount(); ++i) {
    DB_Controller& controller = mControllers[static_cast<size_t>(i)];
    controller.mIsMain = i == row ? isMain : controller.mIsMain && !isMain;
  }
}

bool Controller_List_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  const bool isCheck = role == Qt::CheckStateRole && index.column() == cMain;
  if (!index.isValid() || (!isCheck && (role != Qt::EditRole || index.column() == cMain))) {
    return false;
  }
  DB_Controller& controller = mControllers[static_cast<size_t>(index.row())];
  switch (index.column()) {
  case cNumber:
    controller.mNumber = value.toInt();
    break;
  case cName:
    controller.mName = value.toString();
    break;
  case cAddress:
    controller.mAddress = value.toString();
    break;
  default:
    setMain(index.row(), value.toInt() == Qt::Checked);
  }
  update();
  return true;
}
