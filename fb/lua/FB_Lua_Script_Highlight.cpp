#include "fb/lua/FB_Lua_Script_Highlight.h"

#include "fb/model/FB_Lua_Functions.h"
#include "ui/Theme.h"

#include <QFontDatabase>
#include <QTextBlock>

namespace {

constexpr int cInsideComment = 1;
constexpr int cLongestWord = 32;

QTextCharFormat formatOf(Theme::Role role) {
  QTextCharFormat format;
  format.setForeground(Theme::color(role));
  // Where a system has no such font it offers a thin one of other height instead; then the field's own is better.
  if (const QString family = QStringLiteral("Courier"); QFontDatabase::hasFamily(family)) {
    format.setFontFamilies({family});
  }
  return format;
}

/// What a regular expression's \w takes when it knows no letters beyond ASCII.
bool isOfWord(QChar c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_';
}

} // namespace

FB_Lua_Script_Highlight::FB_Lua_Script_Highlight(QTextDocument* document)
    : QSyntaxHighlighter(document),
      mKeyword(formatOf(Theme::Role::CodeKeyword)),
      mFunction(formatOf(Theme::Role::CodeFunction)),
      mString(formatOf(Theme::Role::CodeString)),
      mComment(formatOf(Theme::Role::CodeComment)) {
  const auto add = [this](std::span<const char* const> words, QSet<QStringView>& set) {
    for (const char* const word : words) {
      mWords.append(QString::fromLatin1(word));
      set.insert(mWords.last()); // the characters stay where they are
    }
  };
  add(FB_Lua_Functions::keywords(), mKeywords);
  add(FB_Lua_Functions::highlighted(), mFunctions);
}

bool FB_Lua_Script_Highlight::isInsideComment(const QTextBlock& block) {
  return block.previous().userState() == cInsideComment;
}

void FB_Lua_Script_Highlight::highlightBlock(const QString& text) {
  highlightWords(text);
  highlightStrings(text);
  highlightLineComment(text);
  highlightBlockComments(text);
}

void FB_Lua_Script_Highlight::highlightWords(const QString& text) {
  const qsizetype size = text.size();
  for (qsizetype i = 0; i < size; ++i) {
    if (!isOfWord(text[i])) {
      continue;
    }
    const qsizetype start = i;
    while (i < size && isOfWord(text[i])) {
      ++i;
    }
    const QStringView word = QStringView(text).sliced(start, i - start);
    if (word.size() > cLongestWord) {
      continue;
    }
    if (mKeywords.contains(word)) {
      setFormat(static_cast<int>(start), static_cast<int>(word.size()), mKeyword);
    } else if (mFunctions.contains(word)) {
      setFormat(static_cast<int>(start), static_cast<int>(word.size()), mFunction);
    }
  }
}

void FB_Lua_Script_Highlight::highlightStrings(const QString& text) {
  const qsizetype first = text.indexOf(u'"');
  const qsizetype last = text.lastIndexOf(u'"');
  if (first < last) {
    setFormat(static_cast<int>(first), static_cast<int>(last - first + 1), mString);
  }
}

void FB_Lua_Script_Highlight::highlightLineComment(const QString& text) {
  const qsizetype start = text.indexOf(QStringLiteral("--"));
  if (start >= 0) {
    setFormat(static_cast<int>(start), static_cast<int>(text.size() - start), mComment);
  }
}

void FB_Lua_Script_Highlight::highlightBlockComments(const QString& text) {
  static const QString cBegin = QStringLiteral("--[[");
  static const QString cEnd = QStringLiteral("]]");
  setCurrentBlockState(0);
  qsizetype start = previousBlockState() == cInsideComment ? 0 : text.indexOf(cBegin);
  while (start >= 0) {
    const qsizetype end = text.indexOf(cEnd, start);
    if (end < 0) {
      setCurrentBlockState(cInsideComment);
      setFormat(static_cast<int>(start), static_cast<int>(text.size() - start), mComment);
      return;
    }
    setFormat(static_cast<int>(start), static_cast<int>(end + cEnd.size() - start), mComment);
    start = text.indexOf(cBegin, end + cEnd.size());
  }
}
