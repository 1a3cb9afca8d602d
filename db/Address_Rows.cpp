#include "db/Address_Rows.h"

#include "base/Text_Order.h"
#include "db/Address_Type_Text.h"
#include "db/Address_Value_Text.h"
#include "db/ProjectDatabase.h"

#include <QCoreApplication>
#include <QStringMatcher>

#include <algorithm>
#include <array>
#include <bitset>
#include <charconv>
#include <limits>
#include <tuple>
#include <type_traits>

namespace {

using Row = Address_Rows::Row;
using Kind = Address_Rows::Kind;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Rows", text);
}

template <class Group>
const Group& recordOf(const Row& row) {
  return static_cast<const Group&>(*row.mRecord);
}

const DB_Address_Sub_Group& subOf(const Row& row) {
  return recordOf<DB_Address_Sub_Group>(row);
}

template <class Group>
QString ownText(const Group& group, int column) {
  switch (column) {
  case Address_Rows::cName:
    return group.mName;
  case Address_Rows::cDescription:
    return group.mDescription;
  default:
    return {};
  }
}

/// An address or type as text without an allocation: the filter writes it 65,000 times.
class Short_Text {
public:
  void add(int number, qsizetype leastDigits = 1) {
    std::array<char, 12> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    for (qsizetype missing = leastDigits - (end - digits.data()); missing > 0; --missing) {
      add(u'0');
    }
    std::for_each(static_cast<const char*>(digits.data()), end, [this](char c) { add(char16_t(c)); });
  }
  void add(char16_t c) { mText[mSize++] = c; }
  [[nodiscard]] QStringView view() const { return {mText.data(), static_cast<qsizetype>(mSize)}; }

private:
  std::array<char16_t, 48> mText{};
  size_t mSize = 0;
};

/// "9.001", as `Datapoint_Id::toString` writes it.
Short_Text typeText(const Datapoint_Id& type) {
  Short_Text text;
  if (!type.isNone()) {
    text.add(type.mMain);
    if (type.hasSub()) {
      text.add(u'.');
      text.add(type.mSub, 3);
    }
  }
  return text;
}

/// Whether the cell says more than the number of the type.
bool hasDoubtfulType(const DB_Address_Sub_Group& group) {
  return group.mDptGuessed || (group.mDpt.isNone() && !group.mDptRaw.isEmpty());
}

/// One word of the filter. With a slash it is looked for at the start of an address: "1/2/3" is not in "11/2/3", and
/// "1/2/*" is the whole group.
class Word {
public:
  explicit Word(const QString& text) : mMatcher(text, Qt::CaseInsensitive) {
    if (text.contains(u'/')) {
      mAddress = text.endsWith(QLatin1String("/*")) ? text.chopped(1) : text;
    }
  }
  [[nodiscard]] bool isIn(QStringView text) const { return mMatcher.indexIn(text) >= 0; }
  [[nodiscard]] bool isInAddress(QStringView address) const {
    return mAddress.isEmpty() ? isIn(address) : address.startsWith(mAddress);
  }

private:
  QStringMatcher mMatcher;
  QString mAddress; ///< empty when the word is none
};

} // namespace

/// Makes the rows of one build.
class Address_Rows::Builder {
  using Words = std::bitset<32>; ///< of the first words of the filter

public:
  Builder(Address_Rows& rows, const QStringList& words) : mRows(rows) {
    mWords.reserve(static_cast<size_t>(words.size()));
    for (const QString& word : words) {
      mWords.emplace_back(word);
    }
  }

  template <class Groups>
  void addGroups(std::vector<Row>& rows, const Row* parent, const Groups& groups, Words named = {}) {
    // Children point to their parent's row, so the list must not move.
    rows.reserve(static_cast<size_t>(groups.size()) + (parent ? 0 : 1));
    for (const auto* const group : inOrder(groups)) {
      using Group = std::remove_cvref_t<decltype(*group)>;
      Row& row = add(rows, kindOf<Group>(), group->mNumber, parent);
      row.mRecord = group;
      if constexpr (std::is_same_v<Group, DB_Address_MainGroup>) {
        addGroups(row.mChildren, &row, group->mMiddleGroups, named | wordsIn(group->mName));
      } else if constexpr (std::is_same_v<Group, DB_Address_Middle_Group>) {
        addGroups(row.mChildren, &row, group->mSubGroups, named | wordsIn(group->mName));
      }
      if (row.mChildren.empty() && !passes(row, named)) {
        rows.pop_back();
      } else if constexpr (std::is_same_v<Group, DB_Address_Sub_Group>) {
        ++mRows.mSubCount;
      }
    }
  }

  void addVariables() {
    const std::vector<Address_Usage::Variable>& variables = mRows.mUsage->variables();
    if (variables.empty()) {
      return;
    }
    Row& branch = add(mRows.mTop, Kind::Variables, 0, nullptr);
    branch.mChildren.reserve(variables.size());
    for (size_t i = 0; i < variables.size(); ++i) {
      Row& variable = add(branch.mChildren, Kind::Variable, static_cast<int>(i), &branch);
      if (!passes(variable)) {
        branch.mChildren.pop_back();
        continue;
      }
      mRows.mVariableByKey.insert(variables[i].mKey, variable.mIndex);
      const auto uses = static_cast<int>(mRows.mUsage->count(variables[i].mKey));
      variable.mChildren.reserve(static_cast<size_t>(uses));
      for (int use = 0; use < uses; ++use) {
        add(variable.mChildren, Kind::Use, use, &variable);
      }
    }
    if (branch.mChildren.empty()) {
      mRows.mTop.pop_back();
    }
  }

private:
  template <class Group>
  static constexpr Kind kindOf() {
    return std::is_same_v<Group, DB_Address_MainGroup>      ? Kind::Main
           : std::is_same_v<Group, DB_Address_Middle_Group> ? Kind::Middle
                                                            : Kind::Sub;
  }

  static Row& add(std::vector<Row>& rows, Kind kind, int number, const Row* parent) {
    return rows.emplace_back(Row{kind, static_cast<int>(rows.size()), number, parent, nullptr, {}});
  }

  /// The groups of one level as the order asks.
  template <class Groups>
  auto inOrder(const Groups& groups) {
    using Group = std::remove_cvref_t<decltype(groups.at(0))>;
    std::vector<const Group*> list;
    list.reserve(static_cast<size_t>(groups.size()));
    for (const auto& group : groups) {
      list.push_back(group.get());
    }
    const Order& order = mRows.mOrder;
    if (order.mColumn != cAddress) {
      sortByColumn(list);
    }
    if (order.mIsDescending) {
      std::reverse(list.begin(), list.end());
    }
    return list;
  }

  template <class Group>
  void sortByColumn(std::vector<const Group*>& list) {
    if constexpr (std::is_same_v<Group, DB_Address_Sub_Group>) {
      switch (mRows.mOrder.mColumn) {
      case cType:
        return sortBy(list, [](const Group& group) { return group.mDpt; });
      case cReadAtStart:
        return sortBy(list, [](const Group& group) { return !group.mReadAtStart; });
      case cReadCyclic:
        return sortBy(list, [](const Group& group) { return !group.mReadCyclic; });
      case cWrite:
        return sortBy(list, [](const Group& group) { return !group.mWrite; });
      case cActive:
        return sortBy(list, [](const Group& group) { return !group.mActive; });
      case cOrigin:
        return sortBy(list, [this](const Group& group) { return mCollator.sortKey(group.mOrigin); });
      case cValue:
        return sortBy(list, [this](const Group& group) { return valueKey(group); });
      case cTime:
        return sortBy(list, [this](const Group& group) {
          const Address_Value* const value = mRows.mValues.find(group.mKey);
          return value ? value->mTime : std::numeric_limits<qint64>::max();
        });
      case cSource:
        return sortBy(list, [this](const Group& group) {
          const Address_Value* const value = mRows.mValues.find(group.mKey);
          return mCollator.sortKey(value ? value->mSource : QString());
        });
      default:
        break;
      }
    }
    sortBy(list, [this](const Group& group) { return mCollator.sortKey(ownText(group, mRows.mOrder.mColumn)); });
  }

  /// Numbers before texts, and what is not known last.
  [[nodiscard]] std::tuple<int, double, QString> valueKey(const DB_Address_Sub_Group& group) const {
    const Address_Value* const value = mRows.mValues.find(group.mKey);
    if (!value) {
      return {2, 0, {}};
    }
    const std::optional<double> number = value->mValue ? value->mValue->number() : std::nullopt;
    return number ? std::tuple(0, *number, QString())
                  : std::tuple(1, 0.0, Address_Value_Text::text(group.mDpt, *value));
  }

  template <class Group, class Key_Of>
  static void sortBy(std::vector<const Group*>& list, Key_Of&& keyOf) {
    using Key = decltype(keyOf(*list.front()));
    std::vector<std::pair<Key, const Group*>> keyed;
    keyed.reserve(list.size());
    for (const Group* const group : list) {
      keyed.emplace_back(keyOf(*group), group);
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), list.begin(), [](const auto& pair) { return pair.second; });
  }

  /// The words that a group's name holds; what is in it need not hold them once more.
  [[nodiscard]] Words wordsIn(const QString& name) const {
    Words words;
    for (size_t i = 0; i < std::min(mWords.size(), words.size()); ++i) {
      words[i] = mWords[i].isIn(name);
    }
    return words;
  }

  [[nodiscard]] bool passes(const Row& row, const Words& named = {}) const {
    for (size_t i = 0; i < mWords.size(); ++i) {
      if (!(i < named.size() && named[i]) && !contains(row, mWords[i])) {
        return false;
      }
    }
    return true;
  }

  [[nodiscard]] bool contains(const Row& row, const Word& word) const {
    const auto in = [&word](QStringView text) { return word.isIn(text); };
    const auto inOwn = [&in](const auto& group) { return in(group.mName) || in(group.mDescription); };
    Short_Text address;
    switch (row.mKind) {
    case Kind::Main:
      address.add(row.mNumber);
      address.add(u'/');
      address.add(u'*');
      return inOwn(recordOf<DB_Address_MainGroup>(row)) || word.isInAddress(address.view());
    case Kind::Middle:
      address.add(row.mParent->mNumber);
      address.add(u'/');
      address.add(row.mNumber);
      address.add(u'/');
      address.add(u'*');
      return inOwn(recordOf<DB_Address_Middle_Group>(row)) || word.isInAddress(address.view());
    case Kind::Sub: {
      const DB_Address_Sub_Group& sub = subOf(row);
      address.add(row.mParent->mParent->mNumber);
      address.add(u'/');
      address.add(row.mParent->mNumber);
      address.add(u'/');
      address.add(row.mNumber);
      return inOwn(sub) || word.isInAddress(address.view()) || in(typeText(sub.mDpt).view()) || in(sub.mOrigin) ||
             (hasDoubtfulType(sub) && in(Address_Type_Text::shown(sub.mDpt, sub.mDptGuessed, sub.mDptRaw)));
    }
    default: {
      const Address_Usage::Variable& variable = mRows.mUsage->variables()[static_cast<size_t>(row.mNumber)];
      return in(variable.mName) || in(typeText(variable.mDpt).view());
    }
    }
  }

  Address_Rows& mRows;
  std::vector<Word> mWords;
  QCollator mCollator = Text_Order::collator();
};

void Address_Rows::build(const ProjectDatabase& database, const Address_Usage& usage, const QStringList& words,
                         const Order& order) {
  clear();
  mDatabase = &database;
  mUsage = &usage;
  mOrder = order;
  Builder builder(*this, words);
  builder.addGroups(mTop, nullptr, database.mAddresses.mainGroups());
  builder.addVariables();
}

void Address_Rows::clear() {
  mTop = {};
  mSubCount = 0;
  mVariableByKey.clear();
}

QString Address_Rows::text(const Row& row, int column) const {
  switch (row.mKind) {
  case Kind::Main:
    return column == cAddress ? Group_Address::mainGroupText(row.mNumber)
                              : ownText(recordOf<DB_Address_MainGroup>(row), column);
  case Kind::Middle:
    return column == cAddress ? Group_Address::middleGroupText(row.mParent->mNumber, row.mNumber)
                              : ownText(recordOf<DB_Address_Middle_Group>(row), column);
  case Kind::Sub:
    switch (column) {
    case cAddress:
      return Group_Address(row.mParent->mParent->mNumber, row.mParent->mNumber, row.mNumber).toString();
    case cType:
      return subOf(row).mDpt.toString();
    case cOrigin:
      return subOf(row).mOrigin;
    case cValue:
    case cTime:
    case cSource:
      return valueText(subOf(row), column);
    default:
      return ownText(subOf(row), column);
    }
  case Kind::Variables:
    return column == cAddress ? tr("Interne Variablen") : QString();
  case Kind::Variable: {
    const Address_Usage::Variable& variable = mUsage->variables()[static_cast<size_t>(row.mNumber)];
    return column == cAddress ? tr("intern")
           : column == cName  ? variable.mName
           : column == cType  ? variable.mDpt.toString()
                              : QString();
  }
  case Kind::Use: {
    const Address_Usage::Use_Text use = Address_Usage::text(*mDatabase, useOf(row), mBlockType);
    return column == cAddress ? use.mPlace
           : column == cName  ? QStringLiteral("%1 / %2").arg(use.mPage, use.mOwner)
                              : QString();
  }
  }
  return {};
}

QString Address_Rows::valueText(const DB_Address_Sub_Group& group, int column) const {
  const Address_Value* const value = mValues.find(group.mKey);
  if (!value) {
    return {};
  }
  return column == cValue  ? Address_Value_Text::text(group.mDpt, *value)
         : column == cTime ? Address_Value_Text::time(*value)
                           : value->mSource;
}

const Address_Value* Address_Rows::valueOf(const Row& row) const {
  return row.mKind == Kind::Sub ? mValues.find(subOf(row).mKey) : nullptr;
}

const Address_Use& Address_Rows::useOf(const Row& row) const {
  return mUsage->uses(keyOf(*row.mParent))[static_cast<size_t>(row.mNumber)];
}

const Row* Address_Rows::find(const std::vector<Row>& rows, int number, const DB_Data_Base* record) const {
  const auto isIt = [record](const Row& row) { return row.mRecord == record; };
  auto first = rows.begin();
  auto last = rows.end();
  if (mOrder == Order()) {
    while (last != first && std::prev(last)->mKind == Kind::Variables) {
      --last;
    }
    first = std::lower_bound(first, last, number, [](const Row& row, int value) { return row.mNumber < value; });
  }
  const auto at = std::find_if(first, last, isIt);
  return at == last ? nullptr : &*at;
}

const Row* Address_Rows::find(const QUuid& key) const {
  if (!mDatabase || key.isNull()) {
    return nullptr;
  }
  const Address_Tree& tree = mDatabase->mAddresses;
  if (const DB_Address_Sub_Group* const sub = tree.subGroup(key)) {
    const Row* const middle = find(sub->mMiddleKey);
    return middle ? find(middle->mChildren, sub->mNumber, sub) : nullptr;
  }
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
    const Row* const main = find(middle->mMainKey);
    return main ? find(main->mChildren, middle->mNumber, middle) : nullptr;
  }
  if (const DB_Address_MainGroup* const main = tree.mainGroup(key)) {
    return find(mTop, main->mNumber, main);
  }
  const auto variable = mVariableByKey.constFind(key);
  return variable == mVariableByKey.cend() ? nullptr : &mTop.back().mChildren[static_cast<size_t>(*variable)];
}

QUuid Address_Rows::keyOf(const Row& row) const {
  switch (row.mKind) {
  case Kind::Main:
    return recordOf<DB_Address_MainGroup>(row).mKey;
  case Kind::Middle:
    return recordOf<DB_Address_Middle_Group>(row).mKey;
  case Kind::Sub:
    return subOf(row).mKey;
  case Kind::Variable:
    return mUsage->variables()[static_cast<size_t>(row.mNumber)].mKey;
  default:
    return {};
  }
}
