#include "fb/model/FB_Lua_Check.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <lua.hpp>

#include <cstdlib>
#include <memory>

namespace {

constexpr std::size_t cMemoryLimit = std::size_t{128} * 1024 * 1024;
constexpr qsizetype cQuoted = 40; // characters of the script in a message
constexpr int cLastAscii = 127;
constexpr const char* cChunk = "=s";

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Lua_Check", text);
}

/// The compiler's memory: it gets none beyond the limit.
void* allocate(void* budget, void* block, std::size_t oldSize, std::size_t newSize) {
  auto& used = *static_cast<std::size_t*>(budget);
  const std::size_t before = block ? oldSize : 0; // of a new block it is no size
  if (newSize == 0) {
    used -= before;
    std::free(block);
    return nullptr;
  }
  if (newSize > before && newSize - before > cMemoryLimit - used) {
    return nullptr;
  }
  void* const moved = std::realloc(block, newSize);
  if (moved) {
    used = used - before + newSize;
  }
  return moved;
}

struct Message {
  const char* mPattern = "";
  const char* mGerman = "";
};

/// What the compiler says, up to where it says it. A captured text takes the place of its number.
constexpr Message cMessages[] = {
    {"unexpected symbol", QT_TRANSLATE_NOOP("FB_Lua_Check", "Unverständlich")},
    {"'(.+)' expected \\(to close '(.+)' at line (\\d+)\\)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "\"%1\" fehlt, das \"%2\" aus Zeile %3 abschließt")},
    {"<name> expected", QT_TRANSLATE_NOOP("FB_Lua_Check", "Ein Name fehlt")},
    {"<eof> expected", QT_TRANSLATE_NOOP("FB_Lua_Check", "Hier schließt etwas, das nicht begonnen wurde,")},
    {"attempt to load a binary chunk .*",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Das ist ein übersetztes Programm und kein Script")},
    {"'=' or 'in' expected", QT_TRANSLATE_NOOP("FB_Lua_Check", "\"=\" oder \"in\" fehlt")},
    {"'(.+)' expected", QT_TRANSLATE_NOOP("FB_Lua_Check", "\"%1\" fehlt")},
    {"syntax error", QT_TRANSLATE_NOOP("FB_Lua_Check", "Keine vollständige Anweisung")},
    {"unfinished string", QT_TRANSLATE_NOOP("FB_Lua_Check", "Das Ende der Zeichenkette fehlt")},
    {"unfinished long string \\(starting at line (\\d+)\\)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Das Ende der Zeichenkette aus Zeile %1 fehlt")},
    {"unfinished long comment \\(starting at line (\\d+)\\)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Das Ende des Kommentars aus Zeile %1 fehlt")},
    {"invalid long string delimiter", QT_TRANSLATE_NOOP("FB_Lua_Check", "Ungültiger Beginn einer Zeichenkette")},
    {"malformed number", QT_TRANSLATE_NOOP("FB_Lua_Check", "Ungültige Zahl")},
    {"invalid escape sequence", QT_TRANSLATE_NOOP("FB_Lua_Check", "Unbekannte Zeichenfolge hinter \"\\\"")},
    {"hexadecimal digit expected", QT_TRANSLATE_NOOP("FB_Lua_Check", "Eine hexadezimale Ziffer fehlt")},
    {"decimal escape too large", QT_TRANSLATE_NOOP("FB_Lua_Check", "Hinter \"\\\" sind Zahlen bis 255 möglich")},
    {"UTF-8 value too large", QT_TRANSLATE_NOOP("FB_Lua_Check", "Zu große Nummer eines Zeichens")},
    {"break outside (?:a )?loop at line \\d+", QT_TRANSLATE_NOOP("FB_Lua_Check", "\"break\" steht in keiner Schleife")},
    {"no visible label '(.+)' for (?:goto|<goto>)(?: at line \\d+)?",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Die Sprungmarke \"%1\" gibt es hier nicht")},
    {"label '(.+)' already defined on line (\\d+)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Die Sprungmarke \"%1\" gibt es schon in Zeile %2")},
    {"<goto (.+)> at line \\d+ jumps into the scope of local '(.+)'",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "\"goto %1\" springt in den Bereich der lokalen Variablen \"%2\"")},
    {"attempt to assign to const variable '(.+)'",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Der Konstanten \"%1\" kann nichts zugewiesen werden")},
    {"unknown attribute '(.+)'", QT_TRANSLATE_NOOP("FB_Lua_Check", "Unbekannte Eigenschaft \"%1\"")},
    {"multiple to-be-closed variables in local list",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Nur eine Variable je Anweisung kann \"close\" sein")},
    {"cannot use '\\.\\.\\.' outside a vararg function",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "\"...\" ist nur in einer Funktion mit beliebig vielen Parametern möglich")},
    {"too many (?:.+) \\(limit is (\\d+)\\) in (?:main function|function at line \\d+)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Zu viel in einer Funktion, möglich sind %1")},
    {"function or expression needs too many registers",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Die Funktion oder der Ausdruck ist zu umfangreich")},
    {"control structure too long", QT_TRANSLATE_NOOP("FB_Lua_Check", "Die Schleife oder Bedingung ist zu lang")},
    {"(?:C stack overflow|chunk has too many syntax levels)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Zu tief verschachtelt")},
    {"(?:not enough memory|lexical element too long|chunk has too many lines)",
     QT_TRANSLATE_NOOP("FB_Lua_Check", "Das Script ist zu groß")},
};

QString shortened(const QString& token) {
  const QString line = token.simplified();
  return line.size() > cQuoted ? line.first(cQuoted) + u'…' : line;
}

/// " vor ...", with the place that the compiler names.
QString place(const QString& token) {
  if (token.isEmpty()) {
    return {};
  }
  static const QRegularExpression byte(QStringLiteral("^<\\\\(\\d+)>$"));
  if (byte.match(token).captured(1).toInt() > cLastAscii) {
    return u' ' + tr("(Umlaute und Sonderzeichen sind nur in Texten und Kommentaren möglich)");
  }
  return u' ' + (token == u"<eof>" ? tr("(am Ende des Scripts)") : tr("bei \"%1\"").arg(shortened(token)));
}

FB_Lua_Check::Result resultOf(const QString& message) {
  static const QRegularExpression pattern(QStringLiteral("^s:(\\d+): (.*)$"),
                                          QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = pattern.match(message);
  return match.hasMatch() ? FB_Lua_Check::Result{match.captured(1).toInt(), FB_Lua_Check::translated(match.captured(2))}
                          : FB_Lua_Check::Result{1, FB_Lua_Check::translated(message)};
}

} // namespace

QString FB_Lua_Check::translated(const QString& message) {
  static const QRegularExpression near(QStringLiteral(" near (?:'(.*)'|(<eof>))$"),
                                       QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch at = near.match(message);
  const QString said = at.hasMatch() ? message.first(at.capturedStart()) : message;
  const QString where = place(at.captured(1) + at.captured(2));
  for (const Message& row : cMessages) {
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(QString::fromLatin1(row.mPattern)),
                                     QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(said);
    if (match.hasMatch()) {
      QString german = tr(row.mGerman);
      for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
        german.replace(QStringLiteral("%%1").arg(i), shortened(match.captured(i)));
      }
      return german + where;
    }
  }
  return shortened(said) + where;
}

FB_Lua_Check::Result FB_Lua_Check::check(const QString& script) {
  const QByteArray bytes = script.toUtf8();
  std::size_t used = 0;
  const std::unique_ptr<lua_State, decltype(&lua_close)> state(lua_newstate(allocate, &used), &lua_close);
  if (!state) {
    return {1, translated(QStringLiteral("not enough memory"))};
  }
  const auto size = static_cast<std::size_t>(bytes.size());
  if (luaL_loadbufferx(state.get(), bytes.constData(), size, cChunk, "t") == LUA_OK) {
    return {};
  }
  std::size_t length = 0;
  const char* const text = lua_tolstring(state.get(), -1, &length);
  return resultOf(text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : QString());
}
