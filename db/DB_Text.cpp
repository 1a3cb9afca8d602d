#include "db/DB_Text.h"

QString DB_Text::clean(const QString& text) {
  QString result = text;
  result.removeIf([](QChar c) { return c < u' ' && c != u'\t' && c != u'\n'; });
  return result;
}

QString DB_Text::singleLine(const QString& text) {
  return clean(text).simplified();
}

bool DB_Text::isSameLine(const QString& a, const QString& b) {
  return a == b || singleLine(a) == singleLine(b);
}
