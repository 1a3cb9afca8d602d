#include "db/Address_Import_Model.h"

#include "base/Text_Order.h"
#include "db/Address_Type_Text.h"
#include "db/Model_Roles.h"

#include <algorithm>
#include <numeric>
#include <optional>

using Field = Address_Import_Row::Field;
using Level = Address_Import_Row::Level;

namespace {

QString typeText(const Address_Import_Row::Values& values) {
  return Address_Type_Text::shown(values.mDpt, values.mDptGuessed, values.mDptRaw);
}

/// A cell is one line high; descriptions may hold line breaks.
QString cellText(const QString& text) {
  return text.contains(u'\n') ? text.simplified() : text;
}

std::optional<Field> fieldOf(int column) {
  switch (column) {
  case Address_Import_Model::cNamePresent:
  case Address_Import_Model::cNameIncoming:
    return Field::Name;
  case Address_Import_Model::cTypePresent:
  case Address_Import_Model::cTypeIncoming:
    return Field::Type;
  case Address_Import_Model::cDescriptionPresent:
  case Address_Import_Model::cDescriptionIncoming:
    return Field::Description;
  default:
    return std::nullopt;
  }
}

QString iconName(Level level) {
  switch (level) {
  case Level::MainGroup:
    return QStringLiteral("main_group");
  case Level::MiddleGroup:
    return QStringLiteral("middle_group");
  case Level::Address:
    break;
  }
  return QStringLiteral("sub_group");
}

} // namespace

QString Address_Import_Model::kindText(Address_Import_Row::Kind kind) {
  switch (kind) {
  case Address_Import_Row::Kind::New:
    return tr("Neu");
  case Address_Import_Row::Kind::Changed:
    return tr("Geändert");
  case Address_Import_Row::Kind::Vanished:
    return tr("Entfällt");
  case Address_Import_Row::Kind::Conflict:
    break;
  }
  return tr("Konflikt");
}

QString Address_Import_Model::textOf(const Address_Import_Row& row, int column) {
  switch (column) {
  case cAddress:
    return row.addressText();
  case cKind:
    return kindText(row.mKind);
  case cNamePresent:
    return row.mPresent.mName;
  case cNameIncoming:
    return row.mIncoming.mName;
  case cTypePresent:
    return typeText(row.mPresent);
  case cTypeIncoming:
    return typeText(row.mIncoming);
  case cDescriptionPresent:
    return row.mPresent.mDescription;
  case cDescriptionIncoming:
    return row.mIncoming.mDescription;
  default:
    return row.mNote;
  }
}

void Address_Import_Model::setPlan(Address_Import_Plan plan) {
  mPlan = std::move(plan);
  rebuild();
  emit ticksChanged();
}

void Address_Import_Model::setFilter(const QString& text) {
  const QStringList words = text.simplified().split(u' ', Qt::SkipEmptyParts);
  if (words != mWords) {
    mWords = words;
    rebuild();
  }
}

void Address_Import_Model::setKindShown(Address_Import_Row::Kind kind, bool isShown) {
  if (mHidden.contains(kind) == isShown) {
    if (isShown) {
      mHidden.remove(kind);
    } else {
      mHidden.insert(kind);
    }
    rebuild();
  }
}

bool Address_Import_Model::passes(const Address_Import_Row& row) const {
  if (mHidden.contains(row.mKind)) {
    return false;
  }
  return std::all_of(mWords.begin(), mWords.end(), [&row](const QString& word) {
    for (int column = 0; column < cColumnCount; ++column) {
      if (textOf(row, column).contains(word, Qt::CaseInsensitive)) {
        return true;
      }
    }
    return false;
  });
}

void Address_Import_Model::rebuild() {
  beginResetModel();
  choose();
  order();
  endResetModel();
}

void Address_Import_Model::choose() {
  mShown.clear();
  for (qsizetype i = 0; i < mPlan.size(); ++i) {
    if (passes(mPlan.row(i))) {
      mShown.push_back(i);
    }
  }
}

/// What is equal stays in the order of addresses.
void Address_Import_Model::order() {
  const auto sortBy = [this](const auto& isLess) {
    const auto isBefore = [this, &isLess](qsizetype a, qsizetype b) {
      return mSortOrder == Qt::AscendingOrder ? isLess(a, b) : isLess(b, a);
    };
    std::stable_sort(mShown.begin(), mShown.end(), isBefore);
  };
  std::sort(mShown.begin(), mShown.end());
  switch (mSortColumn) {
  case cAddress:
    sortBy(std::less<>());
    break;
  case cKind:
    sortBy([this](qsizetype a, qsizetype b) { return mPlan.row(a).mKind < mPlan.row(b).mKind; });
    break;
  default: {
    const QCollator collator = Text_Order::collator();
    std::vector<std::optional<QCollatorSortKey>> keys(static_cast<size_t>(mPlan.size()));
    for (const qsizetype i : mShown) {
      keys[static_cast<size_t>(i)] = collator.sortKey(textOf(mPlan.row(i), mSortColumn));
    }
    sortBy([&keys](qsizetype a, qsizetype b) {
      return keys[static_cast<size_t>(a)]->compare(*keys[static_cast<size_t>(b)]) < 0;
    });
    break;
  }
  }
}

void Address_Import_Model::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= cColumnCount || (column == mSortColumn && order == mSortOrder)) {
    return;
  }
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  const std::vector<qsizetype> before = mShown;
  mSortColumn = column;
  mSortOrder = order;
  this->order();
  std::vector<int> rowOf(static_cast<size_t>(mPlan.size()));
  for (size_t row = 0; row < mShown.size(); ++row) {
    rowOf[static_cast<size_t>(mShown[row])] = static_cast<int>(row);
  }
  const QModelIndexList from = persistentIndexList();
  QModelIndexList to;
  for (const QModelIndex& old : from) {
    to.append(index(rowOf[static_cast<size_t>(before[static_cast<size_t>(old.row())])], old.column()));
  }
  changePersistentIndexList(from, to);
  emit layoutChanged({}, VerticalSortHint);
}

void Address_Import_Model::setTicked(const QList<int>& rows, bool isTicked) {
  for (const int row : rows) {
    const qsizetype at = mShown[static_cast<size_t>(row)];
    if (!isTicked || rows.size() == 1 || mPlan.tickedRival(at) < 0) {
      mPlan.setTicked(at, isTicked);
    }
  }
  tellTicks();
}

void Address_Import_Model::setShownTicked(bool isTicked) {
  QList<int> rows(rowCount());
  std::iota(rows.begin(), rows.end(), 0);
  setTicked(rows, isTicked);
}

void Address_Import_Model::tellTicks() {
  // A row may have lost its tick to another one.
  if (!mShown.empty()) {
    emit dataChanged(index(0, cAddress), index(rowCount() - 1, cAddress), {Qt::CheckStateRole});
  }
  emit ticksChanged();
}

int Address_Import_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mShown.size());
}

int Address_Import_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cColumnCount;
}

QVariant Address_Import_Model::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const Address_Import_Row& row = rowAt(index.row());
  const int column = index.column();
  switch (role) {
  case Qt::DisplayRole:
    return cellText(textOf(row, column));
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(textOf(row, column));
  case Qt::CheckStateRole:
    return column == cAddress ? QVariant(row.mTicked ? Qt::Checked : Qt::Unchecked) : QVariant();
  case Model_Roles::cIconName:
    return column == cAddress ? iconName(row.mLevel) : QVariant();
  case cKindRole:
    return static_cast<int>(row.mKind);
  case cDiffersRole: {
    const std::optional<Field> field = fieldOf(column);
    return field && row.mDiffering.testFlag(*field);
  }
  default:
    return {};
  }
}

QVariant Address_Import_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  switch (section) {
  case cAddress:
    return tr("Adresse");
  case cKind:
    return tr("Art");
  case cNamePresent:
    return tr("Name jetzt");
  case cNameIncoming:
    return tr("Name neu");
  case cTypePresent:
    return tr("Typ jetzt");
  case cTypeIncoming:
    return tr("Typ neu");
  case cDescriptionPresent:
    return tr("Beschreibung jetzt");
  case cDescriptionIncoming:
    return tr("Beschreibung neu");
  case cNote:
    return tr("Hinweis");
  default:
    return {};
  }
}

Qt::ItemFlags Address_Import_Model::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  flags.setFlag(Qt::ItemIsUserCheckable, index.column() == cAddress);
  return index.isValid() ? flags : Qt::NoItemFlags;
}

bool Address_Import_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || index.column() != cAddress || role != Qt::CheckStateRole) {
    return false;
  }
  setTicked({index.row()}, value.toInt() == Qt::Checked);
  return true;
}
