#include "db/Delimited_Text.h"

namespace {

constexpr QChar cQuote = u'"';

bool isLineBreak(QChar c) {
  return c == u'\n' || c == u'\r';
}

} // namespace

bool Delimited_Text::next(Row& row) {
  if (mAt >= mText.size()) {
    return false;
  }
  row = {mLine, {}, 0, -1};
  while (true) {
    QString cell;
    if (mQuotes == Quotes::Doubled && mAt < mText.size() && mText[mAt] == cQuote) {
      if (!quotedCell(cell)) {
        if (row.mOpenQuoteLine == 0) {
          row.mOpenQuoteLine = mLine;
          row.mOpenQuoteField = static_cast<int>(row.mFields.size());
        }
        ++mAt;
        cell = plainCell().toString();
      }
    } else {
      cell = plainCell().toString();
    }
    if (row.mFields.size() < cCellLimit) {
      row.mFields.append(cell);
    }
    if (mAt >= mText.size() || mText[mAt] != mSeparator) {
      break;
    }
    ++mAt;
  }
  endLine();
  return true;
}

bool Delimited_Text::endsCell(qsizetype at) const {
  while (at < mText.size() && mText[at] == u' ' && mSeparator != u' ') {
    ++at;
  }
  return at >= mText.size() || mText[at] == mSeparator || isLineBreak(mText[at]);
}

/// False when the quote at the present place has no end; nothing is read then.
bool Delimited_Text::quotedCell(QString& cell) {
  qsizetype at = mAt + 1;
  qsizetype end = mText.indexOf(cQuote, at);
  while (end >= 0 && end + 1 < mText.size() && mText[end + 1] == cQuote) {
    cell += mText.mid(at, end + 1 - at);
    at = end + 2;
    end = mText.indexOf(cQuote, at);
  }
  if (end < 0) {
    return false;
  }
  cell += mText.mid(at, end - at);
  cell.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  const int lineBreaks = static_cast<int>(cell.count(u'\n'));
  const bool isWhole = endsCell(end + 1);
  if (!isWhole && lineBreaks > 0) {
    return false;
  }
  mAt = end + 1;
  mLine += lineBreaks;
  const QStringView behind = plainCell();
  if (!isWhole) {
    // Quotes around a word that nobody doubled; the last one closes the cell.
    cell += cQuote + (behind.endsWith(cQuote) ? behind.chopped(1) : behind).toString();
  }
  return true;
}

QStringView Delimited_Text::plainCell() {
  const qsizetype start = mAt;
  while (mAt < mText.size() && mText[mAt] != mSeparator && !isLineBreak(mText[mAt])) {
    ++mAt;
  }
  return mText.mid(start, mAt - start);
}

void Delimited_Text::endLine() {
  if (mAt < mText.size()) {
    const bool isPair = mText[mAt] == u'\r' && mAt + 1 < mText.size() && mText[mAt + 1] == u'\n';
    mAt += isPair ? 2 : 1;
    ++mLine;
  }
}
