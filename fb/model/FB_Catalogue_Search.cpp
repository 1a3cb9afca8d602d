#include "fb/model/FB_Catalogue_Search.h"

#include <algorithm>
#include <array>

namespace {

struct Letter {
  char16_t mLetter;
  const char16_t* mSpelled;
  const char16_t* mUndotted;
};

constexpr std::array cLetters{
    Letter{u'ä', u"ae", u"a"},
    Letter{u'ö', u"oe", u"o"},
    Letter{u'ü', u"ue", u"u"},
    Letter{u'ß', u"ss", u"ss"},
};

QString folded(const QString& text, const char16_t* Letter::*as) {
  QString result = text.normalized(QString::NormalizationForm_C).toLower();
  for (const Letter& letter : cLetters) {
    result.replace(QChar(letter.mLetter), QString::fromUtf16(letter.*as));
  }
  return result;
}

QStringList words(const QString& text, const char16_t* Letter::*as) {
  return folded(text, as).simplified().split(u' ', Qt::SkipEmptyParts);
}

} // namespace

FB_Catalogue_Search::FB_Catalogue_Search(const QString& text)
    : mText(text.trimmed()),
      mWords(words(mText, &Letter::mSpelled)),
      mUndotted(words(mText, &Letter::mUndotted)) {}

bool FB_Catalogue_Search::isIn(const QString& name) const {
  return name.contains(mText, Qt::CaseInsensitive);
}

bool FB_Catalogue_Search::areWordsIn(const QString& name) const {
  const QString spelled = folded(name, &Letter::mSpelled);
  const QString undotted = folded(name, &Letter::mUndotted);
  for (qsizetype i = 0; i < mWords.size(); ++i) {
    if (!spelled.contains(mWords.at(i)) && !undotted.contains(mUndotted.at(i))) {
      return false;
    }
  }
  return true;
}
