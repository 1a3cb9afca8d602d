#include "db/DB_Text.h"

#include <algorithm>

QString DB_Text::clean(const QString& text) {
  QString result = text;
  result.removeIf([](QChar c) { return c < u' ' && c != u'\t' && c != u'\n'; });
  return result;
}

QString DB_Text::singleLine(const QString& text) {
  QString result = clean(text);
  const auto isBreak = [](QChar c) {
    return c == u'\t' || c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
  };
  std::replace_if(result.begin(), result.end(), isBreak, QChar(u' '));
  return result.trimmed();
}

bool DB_Text::isSameLine(const QString& a, const QString& b) {
  return a == b || clean(a).simplified() == clean(b).simplified();
}

QString DB_Text::rich(const QString& text) {
  return text.toHtmlEscaped()
      .replace(u'\n', QStringLiteral("<br>"))
      .replace(QStringLiteral("  "), QStringLiteral("&nbsp;&nbsp;"));
}
