#include "fb/modbus/FB_Modbus_Model.h"

#include "db/Project_Session.h"
#include "fb/model/FB_Modbus_Edits.h"
#include "ui/Theme.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

using namespace FB_Modbus_Fields;

QString fieldText(const char* text) {
  return QCoreApplication::translate("FB_Modbus_Fields", text);
}

bool isFlag(const QModelIndex& index) {
  return info(FB_Modbus_Model::fieldOf(index)).mKind == Kind::Flag;
}

/// What does not matter with the register's function is pale.
bool matters(const DB_Modbus_Register& item, Field field) {
  const bool isWriting = FB_Modbus_Words::isWriting(item);
  const auto* const function = FB_Modbus_Words::function(item.mFunctionCode);
  switch (field) {
  case Field::Write_Mode:
    return isWriting;
  case Field::On_Change:
    return !isWriting;
  case Field::Interval:
    return !isWriting || item.mWriteMode == 2;
  case Field::Byte_Order:
  case Field::Factor:
  case Field::Offset:
    return !function || !function->mIsBits;
  default:
    return true;
  }
}

} // namespace

FB_Modbus_Model::FB_Modbus_Model(Project_Session& session, const QUuid& block, QObject* parent)
    : QAbstractTableModel(parent),
      mSession(session),
      mBlock(block) {}

void FB_Modbus_Model::refresh() {
  const DB_FB_Control* const record = std::as_const(mSession).database().mFbPages.child(mBlock);
  const Registers now = record ? record->mModbusRegisters : Registers();
  // Only the rows that differ are touched, so that the selection and the cell in which somebody types stay with their
  // register while an assistant works on others.
  const auto [oldEnd, newEnd] = std::ranges::mismatch(mRegisters, now);
  const auto first = static_cast<int>(oldEnd - mRegisters.begin());
  const int behind = static_cast<int>(std::min(mRegisters.end() - oldEnd, now.end() - newEnd));
  int same = 0; // at the end
  while (same < behind && mRegisters[mRegisters.size() - 1 - same] == now[now.size() - 1 - same]) {
    ++same;
  }
  const auto oldCount = static_cast<int>(mRegisters.size());
  const auto newCount = static_cast<int>(now.size());
  if (newCount < oldCount) {
    beginRemoveRows({}, newCount - same, oldCount - same - 1);
  } else if (newCount > oldCount) {
    beginInsertRows({}, oldCount - same, newCount - same - 1);
  }
  mRegisters = now;
  mFaults.clear();
  std::ranges::transform(mRegisters, std::back_inserter(mFaults), &FB_Modbus_Fields::faults);
  if (newCount < oldCount) {
    endRemoveRows();
  } else if (newCount > oldCount) {
    endInsertRows();
  }
  if (first < newCount - same) {
    emit dataChanged(index(first, 0), index(newCount - same - 1, columnCount() - 1));
  }
}

void FB_Modbus_Model::setReadOnly(bool isReadOnly) {
  mIsReadOnly = isReadOnly;
}

QString FB_Modbus_Model::faultOf(const QModelIndex& cell) const {
  if (!cell.isValid()) {
    return {};
  }
  for (const Fault& fault : mFaults[static_cast<size_t>(cell.row())]) {
    if (fault.mField == fieldOf(cell)) {
      return fault.mText;
    }
  }
  return {};
}

QString FB_Modbus_Model::faultNear(const QModelIndex& cell) const {
  QString ofCell = faultOf(cell);
  if (!cell.isValid() || !ofCell.isEmpty() || mFaults[static_cast<size_t>(cell.row())].isEmpty()) {
    return ofCell;
  }
  const Fault& first = mFaults[static_cast<size_t>(cell.row())].first();
  return tr("%1: %2").arg(fieldText(info(first.mField).mTitle), first.mText);
}

int FB_Modbus_Model::faultyCount() const {
  return static_cast<int>(std::ranges::count_if(mFaults, [](const auto& faults) { return !faults.isEmpty(); }));
}

int FB_Modbus_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mRegisters.size());
}

int FB_Modbus_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : FB_Modbus_Fields::cCount;
}

QString FB_Modbus_Model::toolTip(const QModelIndex& index) const {
  const Info& field = info(fieldOf(index));
  QStringList lines{fieldText(field.mDescription)};
  if (const QString range = rangeText(field.mField); !range.isEmpty()) {
    lines.append(tr("Erlaubt: %1").arg(range));
  }
  if (!matters(item(index), field.mField)) {
    lines.append(tr("Ohne Bedeutung bei dieser Funktion."));
  }
  if (const QString fault = faultOf(index); !fault.isEmpty()) {
    lines.prepend(fault);
  }
  return lines.join(u'\n');
}

QVariant FB_Modbus_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Field field = fieldOf(index);
  const Kind kind = info(field).mKind;
  const QString fault = faultOf(index);
  switch (role) {
  case Qt::DisplayRole:
    return isFlag(index) ? QVariant() : shown(item(index), field);
  case Qt::EditRole:
    return shown(item(index), field);
  case Qt::CheckStateRole:
    return !isFlag(index) ? QVariant() : QVariant(isSet(item(index), field) ? Qt::Checked : Qt::Unchecked);
  case Qt::ToolTipRole:
    return toolTip(index);
  case Qt::DecorationRole:
    return fault.isEmpty() ? QVariant() : Theme::icon(QStringLiteral("error_white"));
  case Qt::ForegroundRole:
    if (!fault.isEmpty()) {
      return Theme::color(Theme::Role::ErrorText);
    }
    return item(index).mActive && matters(item(index), field) ? QVariant() : Theme::color(Theme::Role::SecondaryText);
  case Qt::TextAlignmentRole:
    return kind == Kind::Integer || kind == Kind::Real ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
  case Qt::AccessibleTextRole:
    return fault.isEmpty() ? shown(item(index), field) : tr("%1, %2").arg(shown(item(index), field), fault);
  default:
    return {};
  }
}

QVariant FB_Modbus_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  }
  const Info& field = info(static_cast<Field>(section));
  if (role == Qt::DisplayRole) {
    const QString title = fieldText(field.mTitle);
    return *field.mUnit ? tr("%1 [%2]").arg(title, QLatin1String(field.mUnit)) : title;
  }
  return role == Qt::ToolTipRole ? QVariant(fieldText(field.mDescription)) : QVariant();
}

Qt::ItemFlags FB_Modbus_Model::flags(const QModelIndex& index) const {
  if (!index.isValid()) {
    return Qt::NoItemFlags;
  }
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return mIsReadOnly ? flags : flags | (isFlag(index) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool FB_Modbus_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || (role != Qt::EditRole && role != Qt::CheckStateRole)) {
    return false;
  }
  const bool isCheck = role == Qt::CheckStateRole;
  const QString text = !isCheck                       ? value.toString()
                       : value.toInt() == Qt::Checked ? QStringLiteral("1")
                                                      : QStringLiteral("0");
  if (!isCheck && text == shown(item(index), fieldOf(index))) {
    return true;
  }
  const Edit_Result result = FB_Modbus_Edits::setField(mSession, mBlock, {index.row()}, fieldOf(index), text);
  if (!result) {
    emit refused(result.mError);
    return false;
  }
  refresh();
  return true;
}
