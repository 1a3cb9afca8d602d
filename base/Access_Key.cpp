#include "base/Access_Key.h"

QString Access_Key::mark(const QString& text, char16_t letter) {
  const QChar key(letter);
  qsizetype at = text.indexOf(key);
  if (at < 0) {
    at = text.indexOf(key, 0, Qt::CaseInsensitive);
  }
  return at < 0 ? text : QString(text).insert(at, u'&');
}

QChar Access_Key::of(const QString& markedText) {
  for (qsizetype i = 0; i + 1 < markedText.size(); ++i) {
    if (markedText[i] == u'&') {
      if (markedText[i + 1] != u'&') {
        return markedText[i + 1].toLower();
      }
      ++i;
    }
  }
  return {};
}
