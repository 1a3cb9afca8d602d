#include "fb/lua/FB_Lua_Text_Edits.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace {

using FB_Lua_Text_Edits::cIndent;

constexpr int cBracketLines = 2'000; // how far a bracket's partner is looked for

QString leadingBlanks(const QString& line) {
  const auto* const end = std::find_if(line.cbegin(), line.cend(), [](QChar c) { return c != u' ' && c != u'\t'; });
  return line.first(end - line.cbegin());
}

QString shallower(const QString& blanks) {
  return blanks.endsWith(u'\t') ? blanks.chopped(1) : blanks.chopped(std::min<qsizetype>(blanks.size(), cIndent));
}

/// Without strings and comments, as far as one line tells.
QString codeOf(const QString& line) {
  QString code = line;
  QChar quote;
  for (qsizetype i = 0; i < code.size(); ++i) {
    const QChar c = line[i];
    if (quote.isNull() && c == u'-' && i + 1 < line.size() && line[i + 1] == u'-') {
      std::fill(code.begin() + i, code.end(), u' ');
      break;
    }
    const bool isQuote = c == u'"' || c == u'\'';
    if (quote.isNull()) {
      quote = isQuote ? c : QChar();
      code[i] = isQuote ? QChar(u' ') : c;
    } else {
      code[i] = u' ';
      if (c == u'\\' && i + 1 < code.size()) {
        code[++i] = u' ';
      } else if (c == quote) {
        quote = QChar();
      }
    }
  }
  return code;
}

bool opensBlock(const QString& line) {
  static const QRegularExpression open(
      QStringLiteral("(\\b(then|do|else|repeat)|\\bfunction\\b[^()]*\\([^()]*\\)|[{(])\\s*$"));
  return open.match(codeOf(line)).hasMatch();
}

struct Lines {
  QTextBlock mFirst;
  QTextBlock mLast;
};

/// The last one is none of them when the selection ends before its first character.
Lines linesOf(const QTextCursor& cursor) {
  const QTextDocument& document = *cursor.document();
  Lines lines{document.findBlock(cursor.selectionStart()), document.findBlock(cursor.selectionEnd())};
  if (lines.mLast != lines.mFirst && cursor.selectionEnd() == lines.mLast.position()) {
    lines.mLast = lines.mLast.previous();
  }
  return lines;
}

template <class Change>
void forLines(QTextCursor& cursor, const Change& change) {
  const Lines lines = linesOf(cursor);
  cursor.beginEditBlock();
  for (QTextBlock block = lines.mFirst; block.isValid(); block = block.next()) {
    QTextCursor at(block);
    change(at, block.text());
    if (block == lines.mLast) {
      break;
    }
  }
  cursor.endEditBlock();
}

void removeNext(QTextCursor& cursor, qsizetype count) {
  cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, static_cast<int>(count));
  cursor.removeSelectedText();
}

constexpr QStringView cOpening = u"([{";
constexpr QStringView cClosing = u")]}";

} // namespace

void FB_Lua_Text_Edits::newLine(QTextCursor& cursor) {
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  const QString line = cursor.block().text().first(cursor.positionInBlock());
  const QString rest = cursor.block().text().sliced(cursor.positionInBlock());
  const QString blanks = leadingBlanks(line);
  const bool isDeeper = opensBlock(line);
  static const QRegularExpression closes(QStringLiteral("^\\s*(end\\b|until\\b|[)}\\]])"));
  cursor.insertText(u'\n' + blanks + QString(isDeeper ? cIndent : 0, u' '));
  if (isDeeper && closes.match(rest).hasMatch()) {
    const int position = cursor.position();
    cursor.insertText(u'\n' + blanks);
    cursor.setPosition(position);
  }
  cursor.endEditBlock();
}

void FB_Lua_Text_Edits::indent(QTextCursor& cursor) {
  if (!cursor.hasSelection()) {
    cursor.insertText(QString(cIndent - cursor.positionInBlock() % cIndent, u' '));
    return;
  }
  forLines(cursor, [](QTextCursor& at, const QString& line) {
    if (!line.isEmpty()) {
      at.insertText(QString(cIndent, u' '));
    }
  });
}

void FB_Lua_Text_Edits::unindent(QTextCursor& cursor) {
  forLines(cursor, [](QTextCursor& at, const QString& line) {
    const QString blanks = leadingBlanks(line);
    const qsizetype size = line.startsWith(u'\t') ? 1 : blanks.size() - shallower(blanks).size();
    removeNext(at, size);
  });
}

void FB_Lua_Text_Edits::toggleComment(QTextCursor& cursor) {
  const Lines lines = linesOf(cursor);
  bool areComments = true;
  qsizetype depth = -1;
  for (QTextBlock block = lines.mFirst; block.isValid(); block = block.next()) {
    const QString line = block.text();
    const qsizetype start = leadingBlanks(line).size();
    if (start < line.size()) {
      areComments = areComments && QStringView(line).sliced(start).startsWith(u"--");
      depth = depth < 0 ? start : std::min(depth, start);
    }
    if (block == lines.mLast) {
      break;
    }
  }
  if (depth < 0) {
    return; // only empty lines
  }
  forLines(cursor, [areComments, depth](QTextCursor& at, const QString& line) {
    const qsizetype start = leadingBlanks(line).size();
    if (start == line.size()) {
      return;
    }
    at.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, static_cast<int>(areComments ? start : depth));
    if (areComments) {
      removeNext(at, QStringView(line).sliced(start).startsWith(u"-- ") ? 3 : 2);
    } else {
      at.insertText(QStringLiteral("-- "));
    }
  });
}

void FB_Lua_Text_Edits::alignClosing(QTextCursor& cursor) {
  static const QRegularExpression word(QStringLiteral("^(\\s*)(end|else|elseif|until|\\}|\\))$"));
  const QRegularExpressionMatch match = word.match(cursor.block().text().first(cursor.positionInBlock()));
  QTextBlock above = cursor.block().previous();
  while (above.isValid() && above.text().trimmed().isEmpty()) {
    above = above.previous();
  }
  if (!match.hasMatch() || !above.isValid()) {
    return;
  }
  const QString blanks = leadingBlanks(above.text());
  const QString wanted = opensBlock(above.text()) ? blanks : shallower(blanks);
  // Only what Return has put there; what was placed by hand stays.
  const QString given = opensBlock(above.text()) ? blanks + QString(cIndent, u' ') : blanks;
  if (match.captured(1) == given) {
    QTextCursor at(cursor.block());
    at.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, static_cast<int>(given.size()));
    at.insertText(wanted);
  }
}

std::optional<int> FB_Lua_Text_Edits::partner(const QTextDocument& document, int position) {
  QTextBlock block = document.findBlock(position);
  QString code = codeOf(block.text());
  qsizetype at = position - block.position();
  if (at >= code.size()) {
    return std::nullopt;
  }
  const QChar own = code[at];
  const bool isOpening = cOpening.contains(own);
  const qsizetype kind = (isOpening ? cOpening : cClosing).indexOf(own);
  if (kind < 0) {
    return std::nullopt;
  }
  const QChar other = (isOpening ? cClosing : cOpening)[kind];
  const int step = isOpening ? 1 : -1;
  int depth = 0;
  for (int lines = 0; lines < cBracketLines && block.isValid(); ++lines) {
    for (; at >= 0 && at < code.size(); at += step) {
      depth += code[at] == own ? 1 : code[at] == other ? -1 : 0;
      if (depth == 0) {
        return block.position() + static_cast<int>(at);
      }
    }
    block = isOpening ? block.next() : block.previous();
    code = codeOf(block.text());
    at = isOpening ? 0 : code.size() - 1;
  }
  return std::nullopt;
}

bool FB_Lua_Text_Edits::isCode(const QString& line, qsizetype position) {
  const QString before = line.first(position);
  return before.isEmpty() || codeOf(before).back() == before.back();
}

bool FB_Lua_Text_Edits::isOfWord(QChar c) {
  return c.isLetterOrNumber() || c == u'_';
}

QString FB_Lua_Text_Edits::wordBefore(const QString& line, qsizetype position) {
  qsizetype start = std::clamp<qsizetype>(position, 0, line.size());
  const qsizetype end = start;
  while (start > 0 && isOfWord(line[start - 1])) {
    --start;
  }
  return line.sliced(start, end - start);
}

QString FB_Lua_Text_Edits::wordAt(const QString& line, qsizetype position) {
  qsizetype end = std::clamp<qsizetype>(position, 0, line.size());
  while (end < line.size() && isOfWord(line[end])) {
    ++end;
  }
  return wordBefore(line, end);
}
