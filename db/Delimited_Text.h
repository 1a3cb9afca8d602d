#pragma once

#include <QStringList>
#include <QStringView>

/// The rows of a text that divides its cells by a separator (CSV, tables copied from a spreadsheet).
///
/// A cell that begins with a quote ends at the next single one, and holds separators, line breaks (as '\n') and,
/// doubled, quotes. Lines end with CRLF, LF or CR. Where people wrote quotes by hand, the rows around stay whole: a
/// quote in the middle of a line belongs to the text, and one that never ends, or ends lines later in the middle of a
/// cell, is taken for no quote at all and told. The time taken is linear to the text.
class Delimited_Text {
public:
  enum class Quotes { Doubled, None };

  /// Of a row; further ones are passed over.
  static constexpr qsizetype cCellLimit = 1000;

  struct Row {
    int mLine = 0; ///< where it begins, from 1
    QStringList mFields;
    int mOpenQuoteLine = 0;   ///< of the row's first quote without an end; 0 when there is none
    int mOpenQuoteField = -1; ///< the field with it
  };

  /// The text must live as long.
  explicit Delimited_Text(QStringView text, QChar separator, Quotes quotes = Quotes::Doubled)
      : mText(text),
        mSeparator(separator),
        mQuotes(quotes) {}

  /// False at the end of the text. An empty line is a row with one empty field.
  [[nodiscard]] bool next(Row& row);
  /// So many characters are read.
  [[nodiscard]] qsizetype position() const { return mAt; }

private:
  [[nodiscard]] bool endsCell(qsizetype at) const;
  [[nodiscard]] bool quotedCell(QString& cell);
  [[nodiscard]] QStringView plainCell();
  void endLine();

  QStringView mText;
  QChar mSeparator;
  Quotes mQuotes;
  qsizetype mAt = 0;
  int mLine = 1;
};
