#include "fb/model/FB_Binding_Search.h"

#include "base/Group_Address.h"
#include "db/DB_Text.h"
#include "db/ProjectDatabase.h"
#include "db/Variable_Edits.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringMatcher>

#include <algorithm>
#include <array>

namespace {

using Hit = FB_Binding_Search::Hit;
using Meaning = FB_Binding_Search::Meaning;
using Binding_Kind = DB_Address_Binding::Kind;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Binding_Search", text);
}

enum Rank { cSame, cBeginning, cWords, cNone };

/// What is searched for.
class Pattern {
public:
  explicit Pattern(const QString& text) : mText(text.simplified()), mWords(mText.split(u' ', Qt::SkipEmptyParts)) {
    for (const QString& word : std::as_const(mWords)) {
      mMatchers.emplace_back(word, Qt::CaseInsensitive);
    }
  }

  /// Whether the number of an address can matter that begins so ("1/2/").
  [[nodiscard]] bool isNear(const QString& group) const {
    return std::ranges::any_of(
        mWords, [&group](const QString& word) { return group.startsWith(word) || word.startsWith(group); });
  }

  /// `address` is its number; empty for a variable and where the number does not matter.
  [[nodiscard]] Rank rank(const QString& name, const QString& address) const {
    if (mWords.isEmpty()) {
      return cWords;
    }
    for (qsizetype i = 0; i < mWords.size(); ++i) {
      if (mMatchers[static_cast<size_t>(i)].indexIn(name) < 0 && !address.startsWith(mWords[i])) {
        return cNone;
      }
    }
    if (address == mText || name.compare(mText, Qt::CaseInsensitive) == 0) {
      return cSame;
    }
    return address.startsWith(mText) || name.startsWith(mText, Qt::CaseInsensitive) ? cBeginning : cWords;
  }

private:
  QString mText;
  QStringList mWords;
  std::vector<QStringMatcher> mMatchers; ///< of the words
};

/// Calls `onAddress` with every address, in order.
template <class On_Address>
void eachAddress(const Address_Tree& tree, On_Address&& onAddress) {
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        onAddress(*sub, Group_Address(main->mNumber, middle->mNumber, sub->mNumber));
      }
    }
  }
}

/// The number at the beginning of the text: "1/2/3 Licht", "1.2.3"; empty for none.
QString numberIn(const QString& text) {
  static const QRegularExpression three(QStringLiteral(R"(^(\d+)[/.](\d+)[/.](\d+)(?=\s|$))"));
  static const QRegularExpression two(QStringLiteral(R"(^\d+/\d+(?=\s|$))"));
  if (const QRegularExpressionMatch match = three.match(text); match.hasMatch()) {
    return QStringLiteral("%1/%2/%3").arg(match.captured(1), match.captured(2), match.captured(3));
  }
  return two.match(text).captured();
}

Meaning refused(const QString& reason) {
  return {Meaning::Kind::Refused, {}, reason};
}

} // namespace

FB_Binding_Search::FB_Binding_Search(const ProjectDatabase& database, const Address_Usage& usage)
    : mDatabase(database),
      mUsage(usage) {}

std::vector<Hit> FB_Binding_Search::find(const QString& text, size_t limit) const {
  const Pattern pattern(text);
  std::array<std::vector<Hit>, cNone> found;
  for (const Address_Usage::Variable& variable : mUsage.variables()) {
    const Rank rank = pattern.rank(variable.mName, {});
    if (rank != cNone && found[rank].size() < limit) {
      found[rank].push_back({Binding_Kind::Internal, variable.mKey, variable.mName});
    }
  }
  Group_Address group(-1, 0, 0);
  bool isNear = false;
  eachAddress(mDatabase.mAddresses, [&](const DB_Address_Sub_Group& sub, const Group_Address& address) {
    if (group.main() != address.main() || group.middle() != address.middle()) {
      group = address;
      isNear = pattern.isNear(QStringLiteral("%1/%2/").arg(address.main()).arg(address.middle()));
    }
    const Rank rank = pattern.rank(sub.mName, isNear ? address.toString() : QString());
    if (rank != cNone && found[rank].size() < limit) {
      found[rank].push_back(
          {Binding_Kind::GroupAddress, sub.mKey, (address.toString() + u' ' + sub.mName).simplified()});
    }
  });
  std::vector<Hit> hits;
  for (std::vector<Hit>& some : found) {
    const size_t room = std::min(some.size(), limit - hits.size());
    std::move(some.begin(), some.begin() + static_cast<qsizetype>(room), std::back_inserter(hits));
  }
  return hits;
}

Meaning FB_Binding_Search::meaning(const QString& text) const {
  const QString entered = DB_Text::singleLine(text).trimmed();
  if (entered.isEmpty()) {
    return {};
  }
  const QString number = numberIn(entered);
  if (number.isEmpty()) {
    return named(entered);
  }
  QString error;
  const std::optional<Group_Address> address = Group_Address::parse(number, &error);
  if (!address) {
    return refused(error);
  }
  if (const DB_Address_Sub_Group* const group = mDatabase.mAddresses.subGroup(*address)) {
    return {Meaning::Kind::Address, group->mKey, {}};
  }
  return refused(tr("Die Gruppenadresse %1 gibt es im Projekt nicht. Sie lässt sich unter \"Variablen\" anlegen.")
                     .arg(address->toString()));
}

Meaning FB_Binding_Search::named(const QString& name) const {
  for (const Address_Usage::Variable& variable : mUsage.variables()) {
    if (variable.mName == name) {
      return {Meaning::Kind::Variable, variable.mKey, {}};
    }
  }
  QUuid key;
  int count = 0;
  eachAddress(mDatabase.mAddresses, [&](const DB_Address_Sub_Group& sub, const Group_Address&) {
    if (sub.mName == name) {
      key = sub.mKey;
      ++count;
    }
  });
  if (count > 1) {
    return refused(tr("%1 Gruppenadressen heißen \"%2\". Ihre Nummer sagt, welche gemeint ist.").arg(count).arg(name));
  }
  if (count == 1) {
    return {Meaning::Kind::Address, key, {}};
  }
  const Edit_Result check = Variable_Edits::checkName(name);
  return check ? Meaning{Meaning::Kind::New_Variable, {}, name} : refused(check.mError);
}
