#include "db/Address_Tree_Model.h"

#include "base/Group_Address.h"
#include "base/Session_State.h"
#include "db/DB_Address_Groups.h"
#include "db/Model_Roles.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <type_traits>

namespace {

/// A cell is one line high; records may hold line breaks.
QString inOneLine(const QString& text) {
  const bool hasBreak = text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r'));
  return hasBreak ? text.simplified() : text;
}

template <class Group>
QString ownText(const Group& group, int column) {
  switch (column) {
  case Address_Tree_Model::cName:
    return group.mName;
  case Address_Tree_Model::cDescription:
    return group.mDescription;
  default:
    return {};
  }
}

} // namespace

Address_Tree_Model::Address_Tree_Model(Project_Session& session, QObject* parent)
    : QAbstractItemModel(parent),
      mSession(session) {
  const Address_Tree& tree = session.database().mAddresses;
  connect(&tree, &Address_Tree::structureAboutToChange, this, &Address_Tree_Model::onStructureAboutToChange);
  connect(&tree, &Address_Tree::structureChanged, this, &Address_Tree_Model::onStructureChanged);
  connect(&tree, &Address_Tree::recordChanged, this, &Address_Tree_Model::onRecordChanged);
  rebuild();
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
    emit dataChanged(first, first.siblingAtColumn(cColumnCount - 1));
  }
}

void Address_Tree_Model::setFilter(const QString& text) {
  static const QRegularExpression blanks(QStringLiteral("\\s+"));
  const QStringList words = text.split(blanks, Qt::SkipEmptyParts);
  if (words == mWords) {
    return;
  }
  beginResetModel();
  mWords = words;
  rebuild();
  endResetModel();
}

bool Address_Tree_Model::passes(const Node& node) const {
  QString all;
  for (int column = 0; column < cColumnCount; ++column) {
    all += textOf(node, column) + QLatin1Char('\n');
  }
  return std::all_of(mWords.begin(), mWords.end(),
                     [&all](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
}

template <class Group>
void Address_Tree_Model::build(Nodes& nodes, const Node* parent, const Group& groups) {
  // Children point to their parent's node, so the list must not move.
  nodes.reserve(static_cast<size_t>(groups.size()));
  for (const auto& group : groups) {
    using Record = std::remove_cvref_t<decltype(*group)>;
    Node& node = nodes.emplace_back(Node{parent, static_cast<int>(nodes.size()), group->mNumber, group.get(), {}});
    if constexpr (std::is_same_v<Record, DB_Address_MainGroup>) {
      build(node.mChildren, &node, group->mMiddleGroups);
    } else if constexpr (std::is_same_v<Record, DB_Address_Middle_Group>) {
      build(node.mChildren, &node, group->mSubGroups);
    }
    if (isFiltered() && node.mChildren.empty() && !passes(node)) {
      nodes.pop_back();
    } else if constexpr (std::is_same_v<Record, DB_Address_Sub_Group>) {
      ++mShownSubGroups;
    }
  }
}

void Address_Tree_Model::rebuild() {
  mMainNodes = Nodes();
  mShownSubGroups = 0;
  build(mMainNodes, nullptr, mSession.database().mAddresses.mainGroups());
}

Address_Tree_Model::Level Address_Tree_Model::levelOf(const Node& node) {
  if (!node.mParent) {
    return Level::Main;
  }
  return node.mParent->mParent ? Level::Sub : Level::Middle;
}

QString Address_Tree_Model::textOf(const Node& node, int column) {
  switch (levelOf(node)) {
  case Level::Main:
    return column == cAddress ? Group_Address::mainGroupText(node.mNumber)
                              : ownText(static_cast<const DB_Address_MainGroup&>(*node.mRecord), column);
  case Level::Middle:
    return column == cAddress ? Group_Address::middleGroupText(node.mParent->mNumber, node.mNumber)
                              : ownText(static_cast<const DB_Address_Middle_Group&>(*node.mRecord), column);
  case Level::Sub:
    break;
  }
  const auto& sub = static_cast<const DB_Address_Sub_Group&>(*node.mRecord);
  if (column == cAddress) {
    return Group_Address(node.mParent->mParent->mNumber, node.mParent->mNumber, node.mNumber).toString();
  }
  return column == cDatapointType ? sub.mDpt.toString() : ownText(sub, column);
}

const Address_Tree_Model::Node* Address_Tree_Model::nodeOf(const QModelIndex& index) {
  return static_cast<const Node*>(index.constInternalPointer());
}

const Address_Tree_Model::Node* Address_Tree_Model::find(const Nodes& nodes, int number, const DB_Data_Base* record) {
  const auto less = [](const Node& node, int value) { return node.mNumber < value; };
  auto at = std::lower_bound(nodes.begin(), nodes.end(), number, less);
  while (at != nodes.end() && at->mNumber == number && at->mRecord != record) {
    ++at;
  }
  return at != nodes.end() && at->mRecord == record ? &*at : nullptr;
}

const Address_Tree_Model::Node* Address_Tree_Model::find(const QUuid& key) const {
  const Address_Tree& tree = mSession.database().mAddresses;
  if (const DB_Address_Sub_Group* const sub = tree.subGroup(key)) {
    const Node* const middle = find(sub->mMiddleKey);
    return middle ? find(middle->mChildren, sub->mNumber, sub) : nullptr;
  }
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
    const Node* const main = find(middle->mMainKey);
    return main ? find(main->mChildren, middle->mNumber, middle) : nullptr;
  }
  const DB_Address_MainGroup* const main = tree.mainGroup(key);
  return main ? find(mMainNodes, main->mNumber, main) : nullptr;
}

QUuid Address_Tree_Model::keyOf(const QModelIndex& index) const {
  const Node* const node = nodeOf(index);
  if (!node) {
    return {};
  }
  switch (levelOf(*node)) {
  case Level::Main:
    return static_cast<const DB_Address_MainGroup*>(node->mRecord)->mKey;
  case Level::Middle:
    return static_cast<const DB_Address_Middle_Group*>(node->mRecord)->mKey;
  case Level::Sub:
    break;
  }
  return static_cast<const DB_Address_Sub_Group*>(node->mRecord)->mKey;
}

QModelIndex Address_Tree_Model::indexOf(const QUuid& key) const {
  const Node* const node = find(key);
  return node ? createIndex(node->mRow, 0, node) : QModelIndex();
}

QModelIndex Address_Tree_Model::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) {
    return {};
  }
  const Node* const node = nodeOf(parent);
  const Nodes& nodes = node ? node->mChildren : mMainNodes;
  return createIndex(row, column, &nodes[static_cast<size_t>(row)]);
}

QModelIndex Address_Tree_Model::parent(const QModelIndex& child) const {
  const Node* const node = nodeOf(child);
  return node && node->mParent ? createIndex(node->mParent->mRow, 0, node->mParent) : QModelIndex();
}

int Address_Tree_Model::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) {
    return static_cast<int>(mMainNodes.size());
  }
  return parent.column() == 0 ? static_cast<int>(nodeOf(parent)->mChildren.size()) : 0;
}

int Address_Tree_Model::columnCount(const QModelIndex&) const {
  return cColumnCount;
}

QVariant Address_Tree_Model::data(const QModelIndex& index, int role) const {
  static const std::array icons{QStringLiteral("main_group"), QStringLiteral("middle_group"),
                                QStringLiteral("sub_group")};
  const Node* const node = nodeOf(index);
  if (!node) {
    return {};
  }
  switch (role) {
  case Qt::DisplayRole:
    return inOneLine(textOf(*node, index.column()));
  case Qt::EditRole:
    return textOf(*node, index.column());
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(textOf(*node, index.column()));
  case Model_Roles::cIconName:
    return index.column() == cAddress ? icons[static_cast<size_t>(levelOf(*node))] : QVariant();
  default:
    return {};
  }
}

QVariant Address_Tree_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  switch (section) {
  case cAddress:
    return tr("Adresse");
  case cName:
    return tr("Name");
  case cDescription:
    return tr("Beschreibung");
  case cDatapointType:
    return tr("Datenpunkttyp");
  default:
    return {};
  }
}

Qt::ItemFlags Address_Tree_Model::flags(const QModelIndex& index) const {
  const Node* const node = nodeOf(index);
  if (!node) {
    return Qt::NoItemFlags;
  }
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  flags.setFlag(Qt::ItemNeverHasChildren, levelOf(*node) == Level::Sub);
  flags.setFlag(Qt::ItemIsEditable, index.column() == cName && !mSession.state().operatingMode());
  return flags;
}

bool Address_Tree_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || index.column() != cName || role != Qt::EditRole) {
    return false;
  }
  if (value.toString() == textOf(*nodeOf(index), cName)) {
    return true;
  }
  const Edit_Result result = Project_Edits::renameAddress(mSession, keyOf(index), value.toString());
  if (!result) {
    emit refused(result.mError);
  }
  return static_cast<bool>(result);
}
