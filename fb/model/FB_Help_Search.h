#pragma once

#include <QList>
#include <QString>

/// Finds pages of the help by words that stand in them. Case does not count, and "ue" or "u" is taken for "ü", as the
/// like for "ä", "ö" and "ß". Reads all pages once, when it is made.
class FB_Help_Search {
public:
  struct Hit {
    QString mPage;
    QString mTitle;
    QString mExcerpt; ///< one line of the page
  };

  FB_Help_Search();

  /// The pages in which every word occurs: first those with all of them in the title or with this type id, then in what
  /// the page says first, then anywhere; alike in the order of the contents. None for an empty text.
  [[nodiscard]] QList<Hit> find(const QString& text) const;

private:
  struct Entry {
    QString mPage;
    QString mTitle;
    QString mId; ///< of the block type
    QString mPurpose;
    QString mText; ///< all of it
  };

  QList<Entry> mEntries;
};
