#pragma once

#include <QSet>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

/// Colours a script by five rules, one after the other; a later one paints over an earlier one: the language's words,
/// the controller's functions, strings from the first to the last quote of a line, comments to the end of the line, and
/// comments over several lines. A block's state is 1 when such a comment goes on behind it, else 0.
class FB_Lua_Script_Highlight : public QSyntaxHighlighter {
  Q_OBJECT

public:
  explicit FB_Lua_Script_Highlight(QTextDocument* document);

  /// Whether the block begins inside of a comment over several lines.
  [[nodiscard]] static bool isInsideComment(const QTextBlock& block);

protected:
  void highlightBlock(const QString& text) override;

private:
  void highlightWords(const QString& text);
  void highlightStrings(const QString& text);
  void highlightLineComment(const QString& text);
  void highlightBlockComments(const QString& text);

  QTextCharFormat mKeyword;
  QTextCharFormat mFunction;
  QTextCharFormat mString;
  QTextCharFormat mComment;
  QSet<QStringView> mKeywords; ///< of texts that never change
  QSet<QStringView> mFunctions;
  QList<QString> mWords; ///< what the two look into
};
