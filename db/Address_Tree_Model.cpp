#include "db/Address_Tree_Model.h"

#include "base/Session_State.h"
#include "db/Address_Clipboard.h"
#include "db/Address_Type_Text.h"
#include "db/Address_Value_Text.h"
#include "db/Model_Roles.h"
#include "db/Project_Session.h"
#include "db/Variable_Edits.h"

#include <QMimeData>
#include <QRegularExpression>

#include <array>

namespace {

using Field = Address_Edits::Field;

/// A cell is one line high; records may hold line breaks.
QString inOneLine(const QString& text) {
  const bool hasBreak = text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r'));
  return hasBreak ? text.simplified() : text;
}

/// What is told of a column, and the field that is edited in it.
struct Column_Row {
  const char* mTitle = "";
  const char* mTip = "";
  std::optional<Field> mField;
  bool DB_Address_Sub_Group::*mFlag = nullptr;
};

// clang-format off
const std::array<Column_Row, Address_Rows::cColumnCount> cColumns{{
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Adresse"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Haupt/Mittel/Unter (0..31/0..7/0..255)"), {}},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Name"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Höchstens 255 Zeichen"), Field::Name},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Beschreibung"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Höchstens 4000 Zeichen"), Field::Description},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Datenpunkttyp"), QT_TRANSLATE_NOOP("Address_Tree_Model", "KNX-Datenpunkttyp wie 9.001; leer, wenn er nicht bekannt ist"), Field::Type},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Lesen Start"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Die Steuerung liest den Wert beim Start vom Bus"), Field::ReadAtStart, &DB_Address_Sub_Group::mReadAtStart},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Lesen zyklisch"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Die Steuerung liest den Wert in Abständen vom Bus"), Field::ReadCyclic, &DB_Address_Sub_Group::mReadCyclic},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Schreiben"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Die Steuerung darf den Wert auf den Bus schreiben"), Field::Write, &DB_Address_Sub_Group::mWrite},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Aktiv"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Die Steuerung verwendet die Adresse"), Field::Active, &DB_Address_Sub_Group::mActive},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Herkunft"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Wie die Adresse und ihre Bereiche in einem Import hießen, wo es hier anders steht"), {}},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Wert"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Der letzte Wert, der von der Steuerung kam oder an sie gesendet wurde. Sortiert wird nach dem Stand beim Anklicken."), {}},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Zeit"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Wann der Wert kam. Sortiert wird nach dem Stand beim Anklicken."), {}},
    {QT_TRANSLATE_NOOP("Address_Tree_Model", "Quelle"), QT_TRANSLATE_NOOP("Address_Tree_Model", "Wer den Wert gesendet hat: physikalische Adresse, Steuerung oder Studio. Sortiert wird nach dem Stand beim Anklicken."), {}},
}};
// clang-format on

const Column_Row& columnOf(int column) {
  return cColumns[static_cast<size_t>(column)];
}

} // namespace

Address_Tree_Model::Address_Tree_Model(Project_Session& session, QObject* parent)
    : QAbstractItemModel(parent),
      mSession(session),
      mRows(session.values()) {
  const ProjectDatabase& database = session.database();
  const Address_Tree& tree = database.mAddresses;
  connect(&tree, &Address_Tree::structureAboutToChange, this, &Address_Tree_Model::onStructureAboutToChange);
  connect(&tree, &Address_Tree::structureChanged, this, &Address_Tree_Model::onStructureChanged);
  connect(&tree, &Address_Tree::recordChanged, this, &Address_Tree_Model::onRecordChanged);
  mPagesTimer.setSingleShot(true);
  mPagesTimer.setInterval(0);
  connect(&mPagesTimer, &QTimer::timeout, this, &Address_Tree_Model::onPagesChanged);
  const auto later = [this] { mPagesTimer.start(); };
  connect(&database.mFbPages, &DB_Page_List_Signals::structureChanged, this, later);
  connect(&database.mWidgetPages, &DB_Page_List_Signals::structureChanged, this, later);
  connect(&database.mFbPages, &DB_Page_List_Signals::childChanged, this, later);
  connect(&database.mWidgetPages, &DB_Page_List_Signals::childChanged, this, later);
  connect(&session, &Project_Session::opened, this, &Address_Tree_Model::onPagesChanged);
  connect(&session, &Project_Session::closed, this, &Address_Tree_Model::onPagesChanged);
  mUsage = Address_Usage(database);
  rebuild();
}

void Address_Tree_Model::restoreOrder() {
  if (mIsOrderStale) {
    reset();
  }
}

void Address_Tree_Model::rebuild() {
  mIsOrderStale = false;
  mRows.build(mSession.database(), mUsage, mWords, mOrder);
}

void Address_Tree_Model::reset() {
  beginResetModel();
  rebuild();
  endResetModel();
}

void Address_Tree_Model::onStructureAboutToChange() {
  beginResetModel();
  mIsResetting = true;
}

void Address_Tree_Model::onStructureChanged() {
  rebuild();
  mIsResetting = false;
  endResetModel();
}

void Address_Tree_Model::onRecordChanged(const QUuid& key) {
  // Inside a structure change the rows are out of date, and are all told to be new at its end.
  const QModelIndex first = mIsResetting ? QModelIndex() : indexOf(key);
  if (first.isValid()) {
    mIsOrderStale = mOrder.mColumn != Address_Rows::cAddress;
    emit dataChanged(first, first.siblingAtColumn(Address_Rows::cColumnCount - 1));
  }
}

void Address_Tree_Model::onPagesChanged() {
  mPagesTimer.stop();
  Address_Usage usage(mSession.database());
  if (usage == mUsage) {
    return;
  }
  beginResetModel();
  mUsage = std::move(usage);
  rebuild();
  endResetModel();
}

void Address_Tree_Model::setFilter(const QString& text) {
  static const QRegularExpression blanks(QStringLiteral("\\s+"));
  const QStringList words = text.split(blanks, Qt::SkipEmptyParts);
  if (words != mWords) {
    mWords = words;
    reset();
  }
}

void Address_Tree_Model::sort(int column, Qt::SortOrder order) {
  const bool isColumn = column >= 0 && column < Address_Rows::cColumnCount;
  const Address_Rows::Order wanted{isColumn ? column : Address_Rows::cAddress, order == Qt::DescendingOrder};
  if (mOrder != wanted) {
    mOrder = wanted;
    reset();
  }
}

const Address_Tree_Model::Row* Address_Tree_Model::rowOf(const QModelIndex& index) {
  return static_cast<const Row*>(index.constInternalPointer());
}

QUuid Address_Tree_Model::keyOf(const QModelIndex& index) const {
  const Row* const row = rowOf(index);
  return row ? mRows.keyOf(*row) : QUuid();
}

Address_Tree_Model::Kind Address_Tree_Model::kindOf(const QModelIndex& index) const {
  const Row* const row = rowOf(index);
  return row ? row->mKind : Kind::Variables;
}

const Address_Use& Address_Tree_Model::useOf(const QModelIndex& index) const {
  return mRows.useOf(*rowOf(index));
}

QModelIndex Address_Tree_Model::indexOf(const QUuid& key) const {
  const Row* const row = mRows.find(key);
  return row ? createIndex(row->mIndex, 0, row) : QModelIndex();
}

qsizetype Address_Tree_Model::shownSubGroupCount(const QModelIndex& index) const {
  switch (kindOf(index)) {
  case Kind::Sub:
    return 1;
  case Kind::Middle:
    return rowCount(index);
  case Kind::Main: {
    qsizetype count = 0;
    for (const Row& middle : rowOf(index)->mChildren) {
      count += static_cast<qsizetype>(middle.mChildren.size());
    }
    return count;
  }
  default:
    return 0;
  }
}

QModelIndex Address_Tree_Model::variablesIndex() const {
  const std::vector<Row>& top = mRows.top();
  const bool isShown = !top.empty() && top.back().mKind == Kind::Variables;
  return isShown ? createIndex(top.back().mIndex, 0, &top.back()) : QModelIndex();
}

QModelIndex Address_Tree_Model::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) {
    return {};
  }
  const Row* const parentRow = rowOf(parent);
  const std::vector<Row>& rows = parentRow ? parentRow->mChildren : mRows.top();
  return createIndex(row, column, &rows[static_cast<size_t>(row)]);
}

QModelIndex Address_Tree_Model::parent(const QModelIndex& child) const {
  const Row* const row = rowOf(child);
  return row && row->mParent ? createIndex(row->mParent->mIndex, 0, row->mParent) : QModelIndex();
}

int Address_Tree_Model::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) {
    return static_cast<int>(mRows.top().size());
  }
  return parent.column() == 0 ? static_cast<int>(rowOf(parent)->mChildren.size()) : 0;
}

int Address_Tree_Model::columnCount(const QModelIndex&) const {
  return Address_Rows::cColumnCount;
}

QVariant Address_Tree_Model::displayText(const Row& row, int column) const {
  if (column == Address_Rows::cType && row.mKind == Kind::Sub) {
    const auto& sub = static_cast<const DB_Address_Sub_Group&>(*row.mRecord);
    return Address_Type_Text::shown(sub.mDpt, sub.mDptGuessed, sub.mDptRaw);
  }
  return inOneLine(mRows.text(row, column));
}

QString Address_Tree_Model::toolTip(const Row& row, int column) const {
  if (row.mKind == Kind::Variable) {
    return tr("Interne Variable \"%1\": lebt in den Verknüpfungen, die sie verwenden, und entsteht nur dort.")
        .arg(mRows.text(row, Address_Rows::cName));
  }
  const auto* const sub = row.mKind == Kind::Sub ? static_cast<const DB_Address_Sub_Group*>(row.mRecord) : nullptr;
  if (sub && column == Address_Rows::cAddress && !sub->mOrigin.isEmpty()) {
    return tr("%1, im Import: %2").arg(mRows.text(row, column), sub->mOrigin);
  }
  if (sub && column == Address_Rows::cType) {
    return Address_Type_Text::toolTip(sub->mDpt, sub->mDptGuessed, sub->mDptRaw);
  }
  if (sub && column >= Address_Rows::cValue) {
    const Address_Value* const value = mRows.valueOf(row);
    return value ? Address_Value_Text::toolTip(sub->mDpt, *value)
                 : tr("Es ist noch kein Wert bekannt. Werte kommen, sobald die Steuerung verbunden ist.");
  }
  return columnOf(column).mFlag ? tr(columnOf(column).mTip) : mRows.text(row, column);
}

QVariant Address_Tree_Model::checkState(const Row& row, int column) const {
  bool DB_Address_Sub_Group::*const flag = columnOf(column).mFlag;
  if (!flag || row.mKind != Kind::Sub) {
    return {};
  }
  return static_cast<const DB_Address_Sub_Group*>(row.mRecord)->*flag ? Qt::Checked : Qt::Unchecked;
}

QVariant Address_Tree_Model::data(const QModelIndex& index, int role) const {
  static const std::array icons{QStringLiteral("main_group"),
                                QStringLiteral("middle_group"),
                                QStringLiteral("sub_group"),
                                QStringLiteral("io_internal_connection"),
                                QStringLiteral("io_internal_connection"),
                                QStringLiteral("account_tree-white")};
  const Row* const row = rowOf(index);
  if (!row) {
    return {};
  }
  switch (role) {
  case Qt::DisplayRole:
    return displayText(*row, index.column());
  case Qt::EditRole:
    return mRows.text(*row, index.column());
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(toolTip(*row, index.column()));
  case Qt::CheckStateRole:
    return checkState(*row, index.column());
  case Model_Roles::cIsStale: {
    const Address_Value* const value = index.column() >= Address_Rows::cValue ? mRows.valueOf(*row) : nullptr;
    return value && value->mIsStale;
  }
  case Model_Roles::cIconName:
    return index.column() == Address_Rows::cAddress ? icons[static_cast<size_t>(row->mKind)] : QVariant();
  default:
    return {};
  }
}

void Address_Tree_Model::tellValues(const QSet<QUuid>& changed, const QModelIndexList& seen) {
  for (const QModelIndex& index : seen) {
    if (changed.contains(keyOf(index))) {
      emit dataChanged(index.siblingAtColumn(Address_Rows::cValue), index.siblingAtColumn(Address_Rows::cSource),
                       {Qt::DisplayRole, Qt::ToolTipRole, Model_Roles::cIsStale});
    }
  }
}

QVariant Address_Tree_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= Address_Rows::cColumnCount) {
    return {};
  }
  switch (role) {
  case Qt::DisplayRole:
    return tr(columnOf(section).mTitle);
  case Qt::ToolTipRole:
    return tr(columnOf(section).mTip);
  default:
    return {};
  }
}

Qt::ItemFlags Address_Tree_Model::flags(const QModelIndex& index) const {
  const Row* const row = rowOf(index);
  const bool mayEdit = !mSession.state().operatingMode();
  if (!row) {
    return mayEdit ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
  }
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  flags.setFlag(Qt::ItemNeverHasChildren, row->mKind == Kind::Sub || row->mKind == Kind::Use);
  const int column = index.column();
  if (mayEdit && row->mKind == Kind::Variable) {
    flags.setFlag(Qt::ItemIsEditable, column == Address_Rows::cName || column == Address_Rows::cType);
  }
  if (!mayEdit || !row->mRecord) {
    return flags;
  }
  const bool isSub = row->mKind == Kind::Sub;
  const bool isOwnText = column <= Address_Rows::cDescription;
  flags.setFlag(Qt::ItemIsEditable, isOwnText || (isSub && column == Address_Rows::cType));
  flags.setFlag(Qt::ItemIsUserCheckable, isSub && columnOf(column).mFlag);
  flags.setFlag(Qt::ItemIsDragEnabled, row->mKind != Kind::Main);
  flags.setFlag(Qt::ItemIsDropEnabled, !isSub);
  return flags;
}

std::optional<Field> Address_Tree_Model::fieldOf(int column) {
  return columnOf(column).mField;
}

QString Address_Tree_Model::whyNot(const QModelIndex& index, const QString& text) const {
  if (!index.isValid()) {
    return {}; // the row is gone under its editor
  }
  if (index.column() == Address_Rows::cAddress) {
    return Address_Edits::checkNumber(mSession, keyOf(index), text).mError;
  }
  const std::optional<Field> field = fieldOf(index.column());
  if (field == Field::Name && kindOf(index) == Kind::Variable) {
    return Variable_Edits::checkName(text).mError;
  }
  return field ? Address_Edits::check(*field, text).mError : QString();
}

QList<QUuid> Address_Tree_Model::targetsOf(const QUuid& key) const {
  return mTargets ? mTargets(key) : QList<QUuid>{key};
}

bool Address_Tree_Model::tell(const Edit_Result& result) {
  if (!result) {
    emit refused(result.mError);
  }
  return static_cast<bool>(result);
}

bool Address_Tree_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  const Row* const row = rowOf(index);
  const bool isVariable = row && row->mKind == Kind::Variable;
  if (!row || (!row->mRecord && !isVariable)) {
    return false;
  }
  const QUuid key = mRows.keyOf(*row);
  const std::optional<Field> field = fieldOf(index.column());
  if (role == Qt::CheckStateRole && columnOf(index.column()).mFlag) {
    return tell(Address_Edits::set(mSession, targetsOf(key), *field, value.toInt() == Qt::Checked));
  }
  if (role != Qt::EditRole) {
    return false;
  }
  const QString text = value.toString();
  const QString present = mRows.text(*row, index.column());
  if (text == present || text == inOneLine(present)) {
    return true; // an editor that was only looked into
  }
  if (isVariable) {
    return tell(index.column() == Address_Rows::cType ? Variable_Edits::setType(mSession, key, text)
                                                      : Variable_Edits::rename(mSession, key, text));
  }
  if (index.column() == Address_Rows::cAddress) {
    const bool isDone = tell(Address_Edits::renumber(mSession, key, text));
    if (isDone) {
      emit renumbered(key);
    }
    return isDone;
  }
  return field && !columnOf(index.column()).mFlag && tell(Address_Edits::set(mSession, {key}, *field, text));
}

QStringList Address_Tree_Model::mimeTypes() const {
  return {Address_Clipboard::mimeType()};
}

QMimeData* Address_Tree_Model::mimeData(const QModelIndexList& indexes) const {
  QList<QUuid> keys;
  for (const QModelIndex& index : indexes) {
    const QUuid key = index.column() == 0 && rowOf(index)->mRecord ? keyOf(index) : QUuid();
    if (!key.isNull()) {
      keys.append(key);
    }
  }
  auto* const data = new QMimeData;
  Address_Clipboard::fill(*data, mSession, keys, Address_Clipboard::Use::Move);
  return data;
}

bool Address_Tree_Model::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                         const QModelIndex& parent) const {
  const Row* const row = rowOf(parent);
  return action == Qt::MoveAction && row && row->mRecord && Address_Clipboard::fits(mSession, *data, mRows.keyOf(*row));
}

bool Address_Tree_Model::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                      const QModelIndex& parent) {
  if (!canDropMimeData(data, action, row, column, parent)) {
    return false;
  }
  Address_Clipboard::Result result;
  return tell(Address_Clipboard::paste(mSession, data->data(Address_Clipboard::mimeType()), keyOf(parent), result));
}
