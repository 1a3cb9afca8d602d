#include "ui/Dev_Statistic_Dlg_Model.h"

#include "base/Decimal_Text.h"
#include "db/Model_Roles.h"
#include "db/ProjectDatabase.h"
#include "db/Statistic_Words.h"
#include "fb/model/FB_Binding_Search.h"
#include "ui/Theme.h"

#include <algorithm>

namespace {

using Recording = Statistic_Edits::Recording;
using Statistic_Edits::Field;
using Model = Dev_Statistic_Dlg_Model;

constexpr qsizetype cShownCharacters = 80;

/// Of the columns that have one.
std::optional<Field> fieldOf(const Recording& recording, int column) {
  switch (column) {
  case Model::cName:
    return Field::Name;
  case Model::cAddress:
    return Field::Address;
  case Model::cTab:
    return Field::Tab;
  case Model::cTrigger:
    return Field::Trigger;
  case Model::cCondition:
    return recording.mTriggerType == Recording::cPeriodically ? Field::Interval : Field::Value;
  case Model::cController:
    return Field::Controller;
  default:
    return std::nullopt;
  }
}

bool& flagOf(Recording& recording, int column) {
  return column == Model::cActive ? recording.mActive : recording.mWriteOnly;
}

bool isFlag(int column) {
  return column == Model::cActive || column == Model::cWriteOnly;
}

bool hasCondition(const Recording& recording) {
  return recording.mTriggerType != Recording::cOnTelegram;
}

} // namespace

Dev_Statistic_Dlg_Model::Dev_Statistic_Dlg_Model(const ProjectDatabase& database, QObject* parent)
    : QAbstractTableModel(parent),
      mDatabase(database) {
  for (const Recording& recording : database.mStatistic.mRecordings) {
    mRows.push_back({recording, {}});
  }
  update();
}

std::vector<Recording> Dev_Statistic_Dlg_Model::recordings() const {
  std::vector<Recording> recordings;
  for (const Row& row : mRows) {
    recordings.push_back(row.mRecording);
  }
  return recordings;
}

QString Dev_Statistic_Dlg_Model::faultOf(const Row& row, int column) const {
  if (row.mTyped.contains(column)) {
    const QString typed = row.mTyped.value(column).trimmed().left(cShownCharacters);
    if (column == cAddress) {
      return tr("Eine Gruppenadresse \"%1\" gibt es im Projekt nicht.").arg(typed);
    }
    return row.mRecording.mTriggerType == Recording::cPeriodically
               ? tr("\"%1\" ist kein Abstand; erlaubt ist eine ganze Zahl mit s, min, h oder d dahinter.").arg(typed)
               : tr("\"%1\" ist keine Zahl.").arg(typed);
  }
  const std::optional<Field> field = fieldOf(row.mRecording, column);
  return field ? Statistic_Edits::faultOf(mDatabase, row.mRecording, *field) : QString();
}

QString Dev_Statistic_Dlg_Model::faultOf(const QModelIndex& cell) const {
  return cell.isValid() ? faultOf(mRows[static_cast<size_t>(cell.row())], cell.column()) : QString();
}

void Dev_Statistic_Dlg_Model::update() {
  mFaults.clear();
  for (int i = 0; i < rowCount(); ++i) {
    for (int column = 0; column < cColumnCount; ++column) {
      if (const QString text = faultOf(index(i, column)); !text.isEmpty()) {
        mFaults.push_back({i, column, text});
      }
    }
  }
  if (!mRows.empty()) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, cColumnCount - 1));
  }
  emit edited();
}

QList<Model::Choice> Dev_Statistic_Dlg_Model::choices(int column) const {
  QList<Choice> choices;
  if (column == cTrigger) {
    for (const Statistic_Words::Word& word : Statistic_Words::triggers()) {
      choices.append({word.mValue, Statistic_Words::text(word.mText)});
    }
  } else if (column == cController) {
    choices.append({0, tr("Hauptsteuerung")});
    for (const DB_Controller& controller : mDatabase.mProject.mControllers) {
      choices.append({controller.mNumber, QStringLiteral("%1 %2").arg(controller.mNumber).arg(controller.mName)});
    }
  }
  return choices;
}

int Dev_Statistic_Dlg_Model::add() {
  Row added;
  added.mRecording.mTriggerTimeSecs = Statistic_Edits::cUsualSeconds;
  const int row = rowCount();
  beginInsertRows({}, row, row);
  mRows.push_back(std::move(added));
  endInsertRows();
  update();
  return row;
}

int Dev_Statistic_Dlg_Model::duplicate(int row) {
  if (!has(row)) {
    return -1;
  }
  Row copy = mRows[static_cast<size_t>(row)];
  beginInsertRows({}, row + 1, row + 1);
  mRows.insert(mRows.begin() + row + 1, std::move(copy));
  endInsertRows();
  update();
  return row + 1;
}

int Dev_Statistic_Dlg_Model::move(int row, int step) {
  const int to = row + step;
  if (!has(row) || !has(to)) {
    return has(row) ? row : -1;
  }
  beginMoveRows({}, row, row, {}, step > 0 ? to + 1 : to);
  Row moved = std::move(mRows[static_cast<size_t>(row)]);
  mRows.erase(mRows.begin() + row);
  mRows.insert(mRows.begin() + to, std::move(moved));
  endMoveRows();
  update();
  return to;
}

void Dev_Statistic_Dlg_Model::remove(int row) {
  if (!has(row)) {
    return;
  }
  beginRemoveRows({}, row, row);
  mRows.erase(mRows.begin() + row);
  endRemoveRows();
  update();
}

int Dev_Statistic_Dlg_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

int Dev_Statistic_Dlg_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cColumnCount;
}

QString Dev_Statistic_Dlg_Model::addressText(const Recording& recording) const {
  const DB_Address_Sub_Group* const group = mDatabase.mAddresses.subGroup(recording.mAddressKey);
  return group ? (mDatabase.mAddresses.addressOf(*group).toString() + u' ' + group->mName).simplified() : QString();
}

QString Dev_Statistic_Dlg_Model::textOf(const Row& row, int column, bool isEdit) const {
  const Recording& recording = row.mRecording;
  if (row.mTyped.contains(column)) {
    return row.mTyped.value(column);
  }
  if (column == cName) {
    return recording.mName;
  }
  if (column == cAddress) {
    return addressText(recording);
  }
  if (column == cTab) {
    return QString::number(recording.mTab);
  }
  if (column == cCondition) {
    if (!hasCondition(recording)) {
      return {};
    }
    if (recording.mTriggerType == Recording::cPeriodically) {
      const QString interval = Statistic_Words::interval(recording);
      return isEdit ? interval : tr("alle %1").arg(interval);
    }
    const QString value = Decimal_Text::print(recording.mTriggerValue);
    return isEdit ? value : recording.mTriggerValue == 0 ? tr("jede") : tr("ab %1").arg(value);
  }
  const int value = column == cTrigger ? recording.mTriggerType : recording.mControllerIndex;
  for (const Choice& choice : choices(column)) {
    if (choice.first == value) {
      return choice.second;
    }
  }
  return QString::number(value);
}

QVariant Dev_Statistic_Dlg_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Row& row = mRows[static_cast<size_t>(index.row())];
  const int column = index.column();
  const QString fault = role == Qt::EditRole || role == Qt::CheckStateRole ? QString() : faultOf(row, column);
  switch (role) {
  case Qt::DisplayRole:
    return isFlag(column) ? QVariant() : textOf(row, column, false);
  case Qt::EditRole:
    if (!choices(column).isEmpty()) {
      return column == cTrigger ? row.mRecording.mTriggerType : row.mRecording.mControllerIndex;
    }
    return column == cTab ? QVariant(row.mRecording.mTab) : QVariant(textOf(row, column, true));
  case Qt::CheckStateRole: {
    Recording recording = row.mRecording;
    return isFlag(column) ? QVariant(flagOf(recording, column) ? Qt::Checked : Qt::Unchecked) : QVariant();
  }
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

QVariant Dev_Statistic_Dlg_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
    return {};
  }
  const bool isTip = role == Qt::ToolTipRole;
  switch (section) {
  case cName:
    return isTip ? tr("Name der Aufzeichnung, bis 255 Zeichen; ohne Namen wird die Adresse eingetragen") : tr("Name");
  case cAddress:
    return isTip ? tr("Gruppenadresse, deren Werte aufgezeichnet werden: Nummer oder Name") : tr("Adresse");
  case cTab:
    return isTip ? tr("Gruppe in der Anzeige, 0 bis 99") : tr("Gruppe");
  case cTrigger:
    return isTip ? tr("Wann ein Wert aufgezeichnet wird") : tr("Auslöser");
  case cCondition:
    return isTip
               ? tr("Bei Änderung die kleinste, die zählt (0: jede); zyklisch der Abstand, etwa 90 s, 15 min, 1 h, 1 d")
               : tr("Schwelle, Abstand");
  case cController:
    return isTip ? tr("Steuerung des verteilten Projekts, die aufzeichnet") : tr("Steuerung");
  case cActive:
    return isTip ? tr("Ob aufgezeichnet wird") : tr("Aktiv");
  default:
    return isTip ? tr("Antworten auf Leseanfragen werden nicht aufgezeichnet") : tr("Nur Schreiben");
  }
}

Qt::ItemFlags Dev_Statistic_Dlg_Model::flags(const QModelIndex& index) const {
  if (!index.isValid()) {
    return Qt::NoItemFlags;
  }
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (isFlag(index.column())) {
    return flags | Qt::ItemIsUserCheckable;
  }
  const bool isIdle = index.column() == cCondition && !hasCondition(mRows[static_cast<size_t>(index.row())].mRecording);
  return isIdle ? flags : flags | Qt::ItemIsEditable;
}

void Dev_Statistic_Dlg_Model::takeAddress(Row& row, const QString& text) {
  using Kind = FB_Binding_Search::Meaning::Kind;
  const FB_Binding_Search::Meaning meaning = FB_Binding_Search(mDatabase, Address_Usage()).meaning(text);
  row.mTyped.remove(cAddress);
  if (meaning.mKind != Kind::Nothing && meaning.mKind != Kind::Address) {
    row.mTyped.insert(cAddress, text);
    return;
  }
  row.mRecording.mAddressKey = meaning.mKey;
  if (const auto* const group = mDatabase.mAddresses.subGroup(meaning.mKey); group && row.mRecording.mName.isEmpty()) {
    row.mRecording.mName = group->mName;
  }
}

void Dev_Statistic_Dlg_Model::takeCondition(Row& row, const QString& text) {
  row.mTyped.remove(cCondition);
  Recording& recording = row.mRecording;
  if (recording.mTriggerType == Recording::cPeriodically) {
    const auto interval = Statistic_Words::parseInterval(text);
    if (interval) {
      recording.mTriggerTimeType = interval->mUnit;
      recording.mTriggerTimeSecs = interval->mSeconds;
      return;
    }
  } else if (const auto value = Decimal_Text::parse(text.trimmed().isEmpty() ? QStringLiteral("0") : text)) {
    recording.mTriggerValue = *value;
    return;
  }
  row.mTyped.insert(cCondition, text);
}

bool Dev_Statistic_Dlg_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  const int column = index.column();
  if (!index.isValid() || role != (isFlag(column) ? Qt::CheckStateRole : Qt::EditRole)) {
    return false;
  }
  Row& row = mRows[static_cast<size_t>(index.row())];
  switch (column) {
  case cName:
    row.mRecording.mName = value.toString();
    break;
  case cAddress:
    takeAddress(row, value.toString());
    break;
  case cTab:
    row.mRecording.mTab = value.toInt();
    break;
  case cTrigger:
    row.mRecording.mTriggerType = value.toInt();
    row.mTyped.remove(cCondition);
    break;
  case cCondition:
    takeCondition(row, value.toString());
    break;
  case cController:
    row.mRecording.mControllerIndex = value.toInt();
    break;
  default:
    flagOf(row.mRecording, column) = value.toInt() == Qt::Checked;
  }
  update();
  return true;
}
