#include "db/Address_Filter_Model.h"

#include "base/Text_Order.h"
#include "db/Model_Roles.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace {

/// Comparing the cells themselves, each comparison asking the table twice, would take seconds for a large project.
template <class Key, class Less>
std::vector<int> ranksOf(const std::vector<Key>& keys, const Less& less) {
  std::vector<size_t> order(keys.size());
  std::iota(order.begin(), order.end(), size_t(0));
  std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return less(keys[a], keys[b]); });
  std::vector<int> ranks(keys.size());
  for (size_t i = 1; i < order.size(); ++i) {
    const bool isGreater = less(keys[order[i - 1]], keys[order[i]]);
    ranks[order[i]] = ranks[order[i - 1]] + (isGreater ? 1 : 0);
  }
  return ranks;
}

} // namespace

Address_Filter_Model::Address_Filter_Model(QAbstractItemModel& table, int addressColumn, QObject* parent)
    : QSortFilterProxyModel(parent),
      mAddressColumn(addressColumn) {
  // Connected before the base class does: it sorts anew when it hears of new rows.
  connect(&table, &QAbstractItemModel::modelAboutToBeReset, this, [this] { mRanks.clear(); });
  setSourceModel(&table);
}

void Address_Filter_Model::setFilter(const QString& text) {
  static const QRegularExpression blanks(QStringLiteral("\\s+"));
  std::vector<Word> words;
  for (const QString& word : text.split(blanks, Qt::SkipEmptyParts)) {
    words.push_back({word, Address_Pattern(word)});
  }
  const auto isSame = [](const Word& a, const Word& b) { return a.mText == b.mText; };
  if (std::equal(words.begin(), words.end(), mWords.begin(), mWords.end(), isSame)) {
    return;
  }
  mWords = std::move(words);
  // Not invalidateFilter(), which tells every gap in the rows by itself.
  invalidate();
}

bool Address_Filter_Model::filterAcceptsRow(int row, const QModelIndex&) const {
  if (mWords.empty()) {
    return true;
  }
  const QAbstractItemModel& table = *sourceModel();
  const auto cell = [&table, row](int column) { return table.index(row, column).data().toString(); };
  const QString address = cell(mAddressColumn);
  QString others;
  for (int column = 0; column < table.columnCount(); ++column) {
    if (column != mAddressColumn) {
      others += cell(column) + QLatin1Char('\n');
    }
  }
  return std::all_of(mWords.begin(), mWords.end(), [&](const Word& word) {
    const bool isInAddress = word.mAddress.isValid() ? word.mAddress.matches(address) : address.contains(word.mText);
    return isInAddress || others.contains(word.mText, Qt::CaseInsensitive);
  });
}

void Address_Filter_Model::sort(int column, Qt::SortOrder order) {
  if (column != sortColumn()) {
    mRanks.clear();
  }
  QSortFilterProxyModel::sort(column, order);
}

bool Address_Filter_Model::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  if (mRanks.empty()) {
    rank();
  }
  return mRanks[static_cast<size_t>(left.row())] < mRanks[static_cast<size_t>(right.row())];
}

void Address_Filter_Model::rank() const {
  const QAbstractItemModel& table = *sourceModel();
  const int count = table.rowCount();
  const auto key = [&](int row) { return table.index(row, sortColumn()).data(Model_Roles::cSortKey); };
  if (key(0).userType() != QMetaType::QString) {
    std::vector<qint64> numbers;
    numbers.reserve(static_cast<size_t>(count));
    for (int row = 0; row < count; ++row) {
      numbers.push_back(key(row).toLongLong());
    }
    mRanks = ranksOf(numbers, std::less<>());
    return;
  }
  const QCollator collator = Text_Order::collator();
  std::vector<QCollatorSortKey> texts;
  texts.reserve(static_cast<size_t>(count));
  for (int row = 0; row < count; ++row) {
    texts.push_back(collator.sortKey(key(row).toString()));
  }
  mRanks = ranksOf(texts, [](const QCollatorSortKey& a, const QCollatorSortKey& b) { return a.compare(b) < 0; });
}
