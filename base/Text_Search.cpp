#include "base/Text_Search.h"

#include <QVarLengthArray>

namespace {

constexpr int cUsualLength = 256;
constexpr char16_t cSharpS = 0xDF;

/// The character that begins at `at`, and the one that ends there.
char32_t characterAt(QStringView text, qsizetype at) {
  const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
  return isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
}

char32_t characterBefore(QStringView text, qsizetype at) {
  const bool isPair = at > 1 && text[at - 1].isLowSurrogate() && text[at - 2].isHighSurrogate();
  return isPair ? QChar::surrogateToUcs4(text[at - 2], text[at - 1]) : text[at - 1].unicode();
}

bool isOfWord(char32_t character) {
  return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == U'_';
}

/// Whether a word goes on over that place.
bool isInsideWord(QStringView text, qsizetype at) {
  return at > 0 && at < text.size() && isOfWord(characterBefore(text, at)) && isOfWord(characterAt(text, at));
}

/// Behind the character that begins at `at` and the marks that belong to it.
qsizetype letterEnd(QStringView text, qsizetype at) {
  const auto size = [&text](qsizetype i) { return QChar::requiresSurrogates(characterAt(text, i)) ? 2 : 1; };
  at += size(at);
  while (at < text.size() && QChar::isMark(characterAt(text, at))) {
    at += size(at);
  }
  return at;
}

} // namespace

Text_Search::Text_Search(const QString& text, Options options) : mOptions(options) {
  mNeedle = folded(text);
  for (char16_t c = 1; c < cPlainEnd; ++c) {
    mPlain[c] = mOptions.mMatchCase ? c : QChar::toCaseFolded(c);
  }
  if (!mOptions.mMatchCase) {
    mPlain[cSharpS] = 0;
  }
}

QString Text_Search::folded(const QString& text) const {
  QString normal = text.normalized(QString::NormalizationForm_C);
  if (mOptions.mMatchCase) {
    return normal;
  }
  // The toolkit folds one character to one.
  return normal.toCaseFolded().replace(QChar(cSharpS), QStringLiteral("ss"));
}

bool Text_Search::isWanted(QStringView text, const Match& match) const {
  return !mOptions.mWholeWords ||
         (!isInsideWord(text, match.mStart) && !isInsideWord(text, match.mStart + match.mLength));
}

/// `folded` has the same places as the text.
template <class On_Match>
void Text_Search::visitPlain(QStringView text, QStringView folded, On_Match&& onMatch) const {
  for (qsizetype at = folded.indexOf(mNeedle); at >= 0;) {
    const Match match{at, mNeedle.size()};
    const bool isMatch = isWanted(text, match);
    if (isMatch) {
      onMatch(match);
    }
    at = folded.indexOf(mNeedle, at + (isMatch ? mNeedle.size() : 1));
  }
}

template <class On_Match>
void Text_Search::visitAny(QStringView text, On_Match&& onMatch) const {
  QString all;
  QVarLengthArray<qsizetype, cUsualLength> from; // where in the text the letter begins that a unit of `all` is of
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype end = letterEnd(text, at);
    all += folded(text.mid(at, end - at).toString());
    from.resize(all.size(), at);
    at = end;
  }
  from.append(text.size());
  const auto isBetweenLetters = [&from](qsizetype at) { return at == 0 || from[at] != from[at - 1]; };
  for (qsizetype at = all.indexOf(mNeedle); at >= 0;) {
    const qsizetype end = at + mNeedle.size();
    const Match match{from[at], from[end] - from[at]};
    const bool isMatch = isBetweenLetters(at) && isBetweenLetters(end) && isWanted(text, match);
    if (isMatch) {
      onMatch(match);
    }
    at = all.indexOf(mNeedle, isMatch ? end : at + 1);
  }
}

template <class On_Match>
void Text_Search::visit(QStringView text, On_Match&& onMatch) const {
  if (mNeedle.isEmpty() || text.isEmpty()) {
    return;
  }
  QVarLengthArray<char16_t, cUsualLength> units(text.size());
  bool isPlain = true;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t c = text[i].unicode();
    units[i] = c < cPlainEnd ? mPlain[c] : u'\0';
    isPlain = isPlain && units[i] != 0;
  }
  if (isPlain) {
    visitPlain(text, QStringView(units.constData(), units.size()), onMatch);
  } else {
    visitAny(text, onMatch);
  }
}

std::vector<Text_Search::Match> Text_Search::find(QStringView text) const {
  std::vector<Match> matches;
  visit(text, [&matches](const Match& match) { matches.push_back(match); });
  return matches;
}

int Text_Search::count(QStringView text) const {
  int count = 0;
  visit(text, [&count](const Match&) { ++count; });
  return count;
}

QString Text_Search::replaced(const QString& text, const QString& by) const {
  QString result;
  qsizetype done = 0;
  visit(text, [&](const Match& match) {
    result += QStringView(text).mid(done, match.mStart - done);
    result += by;
    done = match.mStart + match.mLength;
  });
  return result.append(QStringView(text).mid(done));
}
