#pragma once

#include <QString>
#include <QStringList>

/// Says which names of the block catalogue are meant by a text.
class FB_Catalogue_Search {
public:
  /// White space around the text does not count. An empty text means every name.
  explicit FB_Catalogue_Search(const QString& text);

  [[nodiscard]] bool isEmpty() const { return mText.isEmpty(); }
  /// The text as it is searched for.
  [[nodiscard]] const QString& text() const { return mText; }

  /// True when the text stands in the name as it is, without regard to case.
  [[nodiscard]] bool isIn(const QString& name) const;
  /// True when each word stands in the name, in any order; "ue" and "u" are taken for "ü", as the like for "ä", "ö" and
  /// "ß", in the text as in the name.
  [[nodiscard]] bool areWordsIn(const QString& name) const;

private:
  QString mText;
  QStringList mWords;    ///< with "ue" for "ü"
  QStringList mUndotted; ///< the same words with "u" for "ü"
};
