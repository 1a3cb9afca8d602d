#include "base/Datapoint_Types.h"

#include "base/datapoint/Table_Bits.h"
#include "base/datapoint/Table_Bitsets.h"
#include "base/datapoint/Table_Compounds.h"
#include "base/datapoint/Table_Enumerations.h"
#include "base/datapoint/Table_Numbers.h"
#include "base/datapoint/Table_Quantities.h"
#include "base/datapoint/Table_Texts.h"
#include "base/datapoint/Value_List.h"

#include <QCoreApplication>

#include <array>

namespace {

template <std::size_t... Sizes>
constexpr auto joined(const Datapoint_Type (&... parts)[Sizes]) {
  std::array<Datapoint_Type, (Sizes + ...)> table;
  auto to = table.begin();
  ((to = std::copy(std::begin(parts), std::end(parts), to)), ...);
  return table;
}

constexpr std::array cTypes =
    joined(Datapoint_Table::cBits, Datapoint_Table::cNumbers, Datapoint_Table::cQuantities, Datapoint_Table::cTexts,
           Datapoint_Table::cEnumerations, Datapoint_Table::cBitsets, Datapoint_Table::cCompounds);

// The search needs every number once and in order.
static_assert(std::adjacent_find(cTypes.begin(), cTypes.end(), [](const Datapoint_Type& a, const Datapoint_Type& b) {
                return a.mId >= b.mId;
              }) == cTypes.end());

QString tr(const char* text) {
  return QCoreApplication::translate("Datapoint_Types", text);
}

QString sizeText(int bits) {
  return bits < 8 ? tr("%1 Bit").arg(bits) : tr("%1 Byte").arg(bits / 8);
}

/// "Wirkenergie 64 Bit (Wh)" says its unit already.
bool saysUnit(const QString& name, const QString& unit) {
  constexpr qsizetype cLongestSign = 3;
  return name.endsWith(unit + u')') || (unit.size() > cLongestSign && name.contains(unit, Qt::CaseInsensitive));
}

/// What the types of a main number have in common; empty when it is not even the size.
QString shared(std::span<const Datapoint_Type> types) {
  const Datapoint_Type& first = types.front();
  const auto all = [types](auto isSame) { return std::all_of(types.begin(), types.end(), isSame); };
  if (!all([&first](const Datapoint_Type& type) { return type.mBits == first.mBits; })) {
    return {};
  }
  QString size = first.mBits > 0 ? sizeText(first.mBits) : tr("Text variabler Länge");
  if (!all([&first](const Datapoint_Type& type) { return type.mFormat == first.mFormat; })) {
    return size;
  }
  switch (first.mFormat) {
  case Datapoint_Format::Control:
    return tr("%1, Zwangsführung").arg(size);
  case Datapoint_Format::Step:
    return tr("%1, relative Steuerung").arg(size);
  case Datapoint_Format::Char:
    return tr("%1, Zeichen").arg(size);
  case Datapoint_Format::Unsigned:
    return tr("%1 ohne Vorzeichen").arg(size);
  case Datapoint_Format::Signed:
    return tr("%1 mit Vorzeichen").arg(size);
  case Datapoint_Format::Float16:
  case Datapoint_Format::Float32:
    return tr("%1-Byte-Gleitkommazahl").arg(first.bytes());
  case Datapoint_Format::Enum2:
  case Datapoint_Format::Enum8:
    return tr("%1, Aufzählung").arg(size);
  case Datapoint_Format::Bitset8:
    return tr("%1, Bitsatz").arg(size);
  default:
    return types.size() == 1 && first.mBits > 0 ? tr("%1, %2").arg(size, first.name()) : size;
  }
}

constexpr size_t cSearchRanks = 4;

/// The lower the better; none when a word is missing.
std::optional<size_t> searchRank(const QString& description, const QString& name, const QStringList& words) {
  bool isAtStarts = true;
  for (const QString& word : words) {
    qsizetype at = description.indexOf(word, 0, Qt::CaseInsensitive);
    if (at < 0) {
      return std::nullopt;
    }
    while (at > 0 && description[at - 1].isLetterOrNumber()) {
      at = description.indexOf(word, at + 1, Qt::CaseInsensitive);
    }
    isAtStarts = isAtStarts && at >= 0;
  }
  const QString text = words.join(u' ');
  const bool isStart = description.startsWith(text, Qt::CaseInsensitive) || name.startsWith(text, Qt::CaseInsensitive);
  return isStart ? 1 : isAtStarts ? 2 : 3;
}

} // namespace

std::span<const Datapoint_Type> Datapoint_Types::all() {
  return cTypes;
}

std::span<const Datapoint_Type> Datapoint_Types::ofMain(int main) {
  const auto [from, to] =
      std::equal_range(cTypes.begin(), cTypes.end(), Datapoint_Type{{main, 0}},
                       [](const Datapoint_Type& a, const Datapoint_Type& b) { return a.mId.mMain < b.mId.mMain; });
  return {from, to};
}

const Datapoint_Type* Datapoint_Types::find(Datapoint_Id id) {
  const auto at = std::lower_bound(cTypes.begin(), cTypes.end(), id,
                                   [](const Datapoint_Type& type, Datapoint_Id wanted) { return type.mId < wanted; });
  return at != cTypes.end() && at->mId == id ? &*at : nullptr;
}

int Datapoint_Types::bitsOf(Datapoint_Id id) {
  if (const Datapoint_Type* const type = find(id)) {
    return type->mBits;
  }
  const std::span<const Datapoint_Type> types = ofMain(id.mMain);
  const bool isShared = !types.empty() && std::all_of(types.begin(), types.end(), [types](const Datapoint_Type& type) {
    return type.mBits == types.front().mBits;
  });
  return isShared ? types.front().mBits : 0;
}

QString Datapoint_Types::describe(Datapoint_Id id) {
  if (const Datapoint_Type* const type = find(id)) {
    QString text = id.toString() + u' ' + type->name();
    const QString unit = type->unit();
    if (unit.isEmpty() || saysUnit(type->name(), unit)) {
      return text;
    }
    return text.endsWith(u')') ? QStringLiteral("%1, %2").arg(text, unit) : QStringLiteral("%1 (%2)").arg(text, unit);
  }
  const std::span<const Datapoint_Type> types = ofMain(id.mMain);
  const QString known = types.empty() ? QString() : shared(types);
  return known.isEmpty() ? id.toString() : QStringLiteral("%1 (%2)").arg(id.toString(), known);
}

QString Datapoint_Types::numberIn(const QString& text) {
  const QString first = text.trimmed().section(u' ', 0, 0);
  return Datapoint_Id::parse(first) ? first : text;
}

QList<Datapoint_Id> Datapoint_Types::search(const QString& text) {
  const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
  const Datapoint_Id number = Datapoint_Id::parse(text).value_or(Datapoint_Id());
  std::array<QList<Datapoint_Id>, cSearchRanks> found;
  for (const Datapoint_Type& type : cTypes) {
    const std::optional<size_t> rank = type.mId == number ? 0 : searchRank(describe(type.mId), type.name(), words);
    if (rank) {
      found[*rank].append(type.mId);
    }
  }
  QList<Datapoint_Id> all;
  for (const QList<Datapoint_Id>& ids : found) {
    all += ids;
  }
  return all;
}

QList<Datapoint_Types::Value_Text> Datapoint_Types::valueTexts(const Datapoint_Type& type) {
  QList<Value_Text> texts;
  Value_List::each(type.mTexts, [&texts](int value, std::string_view text) {
    texts.append({value, Value_List::toQString(text)});
    return false;
  });
  return texts;
}

QString Datapoint_Types::valueText(const Datapoint_Type& type, qint64 value) {
  return Value_List::text(type.mTexts, value);
}

std::optional<int> Datapoint_Types::valueOfText(const Datapoint_Type& type, QStringView text) {
  for (const Value_Text& row : valueTexts(type)) {
    if (row.mText.compare(text, Qt::CaseInsensitive) == 0) {
      return row.mValue;
    }
  }
  return std::nullopt;
}
