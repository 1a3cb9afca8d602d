#include "db/DB_Text_Pool.h"

QString DB_Text_Pool::fromUtf8(QByteArrayView utf8) {
  QString text = QString::fromUtf8(utf8);
  // The toolkit takes a leading byte order mark away, but a text that begins with one must stay as it is.
  if (utf8.startsWith("\xef\xbb\xbf")) {
    text.prepend(QChar(QChar::ByteOrderMark));
  }
  return text;
}

QString DB_Text_Pool::text(QByteArrayView utf8) {
  if (utf8.size() > cLongest) {
    return fromUtf8(utf8);
  }
  quint32 hash = 0;
  quint8 allBits = 0;
  for (const char c : utf8) {
    hash = hash * 31 + static_cast<quint8>(c);
    allBits |= static_cast<quint8>(c);
  }
  if (allBits > 127) {
    return fromUtf8(utf8);
  }
  QString& known = mTexts[hash % cSize];
  if (known != QLatin1StringView(utf8)) {
    known = QString::fromLatin1(utf8);
  }
  return known;
}
