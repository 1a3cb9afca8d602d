#include "db/Ets_Csv_Layout.h"

#include "base/Group_Address.h"
#include "db/Table_Titles.h"

#include <algorithm>

namespace {

using Layout = Ets_Csv_Layout;
using Table_Titles::Column;
using Table_Titles::columnOf;

/// Digits, or nothing or '-' for a level that the row does not name; empty for anything else.
std::optional<int> levelOf(QStringView text) {
  constexpr int cMostDigits = 4;
  text = text.trimmed();
  if (text.isEmpty() || text == u"-") {
    return -1;
  }
  const bool isNumber = text.size() <= cMostDigits &&
                        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
  return isNumber ? std::optional(text.toInt()) : std::nullopt;
}

/// "1/-/-", "1/2/-", "1/-".
std::optional<Layout::Place> groupOf(QStringView text) {
  QList<int> levels;
  for (const QStringView part : text.trimmed().split(u'/')) {
    const std::optional<int> level = part.trimmed().isEmpty() ? std::nullopt : levelOf(part);
    if (!level) {
      return std::nullopt;
    }
    levels.append(*level);
  }
  const bool isGroup = (levels.size() == 2 || levels.size() == 3) && levels.last() < 0 && levels[0] >= 0 &&
                       levels[0] <= Group_Address::cMainMax;
  const int middle = levels.size() == 3 ? levels[1] : -1;
  return isGroup && middle <= Group_Address::cMiddleMax ? std::optional(Layout::Place{{}, levels[0], middle})
                                                        : std::nullopt;
}

bool isAddressCell(const QString& text) {
  return text.contains(u'/') && (Group_Address::parse(text) || groupOf(text));
}

void set(int& column, int index) {
  column = column < 0 ? index : column;
}

/// A level's title comes once for the names and, in the layout 3/3, once more for the numbers; beside one column of
/// names it is that of the numbers.
void setLevel(Layout& layout, size_t level, int& name, int index, bool hasName) {
  if (!hasName && name < 0) {
    name = index;
  } else {
    set(layout.mNumbers[level], index);
  }
}

Layout ofHeader(const QStringList& titles) {
  Layout layout;
  const bool hasName =
      std::any_of(titles.begin(), titles.end(), [](const QString& t) { return columnOf(t) == Column::Name; });
  for (int i = 0; i < static_cast<int>(titles.size()); ++i) {
    const std::optional<Column> column = columnOf(titles[i]);
    if (!column) {
      continue;
    }
    switch (*column) {
    case Column::Name:
      set(layout.mName, i);
      break;
    case Column::Main:
      setLevel(layout, 0, layout.mMain, i, hasName);
      break;
    case Column::Middle:
      setLevel(layout, 1, layout.mMiddle, i, hasName);
      break;
    case Column::Sub:
      setLevel(layout, 2, layout.mName, i, hasName);
      break;
    case Column::Address:
      set(layout.mAddress, i);
      break;
    case Column::Central:
      set(layout.mCentral, i);
      break;
    case Column::Unfiltered:
      set(layout.mUnfiltered, i);
      break;
    case Column::Description:
      set(layout.mDescription, i);
      break;
    case Column::Type:
      set(layout.mDpt, i);
      break;
    case Column::Security:
      set(layout.mSecurity, i);
      break;
    case Column::ReadAtStart:
    case Column::ReadCyclic:
    case Column::Write:
    case Column::Active:
      continue; // ETS knows none of them
    }
    layout.mHasHeader = true;
  }
  return layout;
}

/// A title for the names that we do not know stands where ETS has them, in front of the addresses.
void guessName(Layout& layout, const QStringList& titles) {
  const int addresses = layout.mAddress >= 0 ? layout.mAddress : layout.mNumbers[0];
  const int name = addresses == 0 ? 1 : addresses - 1;
  if (layout.mName < 0 && name < titles.size() && !columnOf(titles[name])) {
    layout.mName = name;
  }
}

bool hasAddresses(const Layout& layout) {
  return layout.mAddress >= 0 || layout.mNumbers[2] >= 0;
}

/// The column with the most address cells; -1 when none has one.
int addressColumn(const std::vector<QStringList>& rows) {
  constexpr qsizetype cColumns = 16;
  std::array<int, cColumns> counts{};
  for (const QStringList& fields : rows) {
    for (qsizetype i = 0; i < qMin(fields.size(), cColumns); ++i) {
      counts[static_cast<size_t>(i)] += isAddressCell(fields[i]) ? 1 : 0;
    }
  }
  const auto* const best = std::max_element(counts.begin(), counts.end());
  return *best == 0 ? -1 : static_cast<int>(best - counts.begin());
}

/// Whether three columns hold the numbers of addresses: in most rows nothing else, and in some row all of them.
bool areNumbers(const std::vector<QStringList>& rows, int first) {
  bool hasAddress = false;
  size_t fitting = 0;
  for (const QStringList& fields : rows) {
    int named = 0;
    bool isFitting = true;
    for (int i = first; i < first + 3; ++i) {
      const std::optional<int> level = levelOf(fields.value(i));
      isFitting = isFitting && level;
      named += level.value_or(-1) >= 0 ? 1 : 0;
    }
    fitting += isFitting ? 1 : 0;
    hasAddress = hasAddress || named == 3;
  }
  return hasAddress && 2 * fitting > rows.size();
}

/// What follows the addresses, in the order of ETS.
void setFurther(Layout& layout, int next) {
  layout.mCentral = next;
  layout.mUnfiltered = next + 1;
  layout.mDescription = next + 2;
  layout.mDpt = next + 3;
  layout.mSecurity = next + 4;
}

std::optional<Layout> ofContent(const std::vector<QStringList>& rows) {
  constexpr int cThree = 3;
  Layout layout;
  int next = addressColumn(rows);
  if (next >= 0) {
    layout.mAddress = next;
    layout.mName = next > 0 ? next - 1 : 1;
    layout.mMiddle = next >= cThree ? next - 2 : -1;
    layout.mMain = next >= cThree ? next - cThree : next - 2;
    setFurther(layout, qMax(next, layout.mName) + 1);
    return layout;
  }
  for (const int first : {cThree, 1}) {
    if (areNumbers(rows, first)) {
      layout.mName = first - 1;
      layout.mMain = first == cThree ? 0 : -1;
      layout.mMiddle = first == cThree ? 1 : -1;
      layout.mNumbers = {first, first + 1, first + 2};
      setFurther(layout, first + cThree);
      return layout;
    }
  }
  return std::nullopt;
}

} // namespace

std::optional<Ets_Csv_Layout> Ets_Csv_Layout::of(const std::vector<QStringList>& rows) {
  if (rows.empty()) {
    return std::nullopt;
  }
  // Groups may be called like titles, but no title is a number.
  const bool isTitle = std::none_of(rows.front().begin(), rows.front().end(), [](const QString& cell) {
    return isAddressCell(cell) || levelOf(cell).value_or(-1) >= 0;
  });
  Layout titled = isTitle ? ofHeader(rows.front()) : Layout();
  if (hasAddresses(titled)) {
    guessName(titled, rows.front());
    return titled;
  }
  std::optional<Layout> layout = ofContent(titled.mHasHeader ? std::vector(rows.begin() + 1, rows.end()) : rows);
  if (layout) {
    layout->mHasHeader = titled.mHasHeader;
  }
  return layout;
}

bool Ets_Csv_Layout::isOfAddress(int column) const {
  return column == mAddress || std::find(mNumbers.begin(), mNumbers.end(), column) != mNumbers.end();
}

std::optional<Ets_Csv_Layout::Place> Ets_Csv_Layout::placeOf(const QStringList& fields) const {
  if (mAddress >= 0) {
    const QString text = fields.value(mAddress).trimmed();
    if (std::optional<Place> group = groupOf(text)) {
      return group;
    }
    const std::optional<Group_Address> address = Group_Address::parse(text);
    return address ? std::optional(Place{text, address->main(), address->middle()}) : std::nullopt;
  }
  std::array<int, 3> levels{};
  for (size_t i = 0; i < levels.size(); ++i) {
    levels[i] = levelOf(fields.value(mNumbers[i])).value_or(-2);
  }
  const auto [main, middle, sub] = levels;
  if (sub == -1 && main >= 0 && main <= Group_Address::cMainMax && middle >= -1 &&
      middle <= Group_Address::cMiddleMax) {
    return Place{{}, main, middle};
  }
  const QString text = QStringLiteral("%1/%2/%3").arg(main).arg(middle).arg(sub);
  return Group_Address::parse(text) ? std::optional(Place{text, main, middle}) : std::nullopt;
}
