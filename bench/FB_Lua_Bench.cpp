#include "bench/Bench_Table.h"
#include "fb/lua/FB_Lua_Code_Edit.h"
#include "fb/lua/FB_Lua_Script_Highlight.h"
#include "fb/model/FB_Lua_Check.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QTextDocument>

// What a script of 20,000 lines costs in the editor.

namespace {

constexpr int cLines = 20'000;
constexpr int cKeys = 50;
constexpr int cRuns = 5;

constexpr double cHighlightLimit = 300; // all in ms
constexpr double cKeyLimit = 16;

/// As one writes: functions, strings, comments, and a comment over several lines now and then.
QString script() {
  static const QStringList lines = {QStringLiteral("-- Prüft den Fühler und meldet ihn"),
                                    QStringLiteral("function onTimer%1()"),
                                    QStringLiteral("  local wert = sys_get_value(\"1/2/3\")"),
                                    QStringLiteral("  if wert > 21.5 and not alarm then"),
                                    QStringLiteral("    sys_set_value(\"1/2/4\",wert * 2,true) -- senden"),
                                    QStringLiteral("    sys_debug_print(\"Wert: \",wert)"),
                                    QStringLiteral("  end --[[ bis hier"),
                                    QStringLiteral("  geht der Kommentar ]]"),
                                    QStringLiteral("end"),
                                    QString()};
  QStringList text;
  for (int i = 0; i < cLines; ++i) {
    const QString& line = lines.at(i % lines.size());
    text.append(line.contains(u"%1") ? line.arg(i) : line);
  }
  return text.join(u'\n');
}

template <class Run>
double median(const Run& run) {
  std::vector<double> times;
  times.reserve(cRuns);
  for (int i = 0; i < cRuns; ++i) {
    times.push_back(Bench_Table::milliseconds(run));
  }
  return Bench_Table::median(times);
}

/// With the painting that a key brings; the slowest of them is told beside.
double keyAt(FB_Lua_Code_Edit& edit, int line, const QString& keys) {
  edit.goToLine(line);
  QApplication::processEvents();
  std::vector<double> times;
  times.reserve(cKeys);
  for (int i = 0; i < cKeys; ++i) {
    times.push_back(Bench_Table::milliseconds([&] {
      QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(keys.at(i % keys.size())));
      QApplication::sendEvent(&edit, &event);
      QApplication::processEvents();
    }));
  }
  Bench_Table::note("  the slowest of the following", *std::ranges::max_element(times), "ms");
  return Bench_Table::median(times);
}

} // namespace

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Theme::apply(application);
  const QString text = script();
  Bench_Table table;

  QTextDocument document;
  document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
  document.setPlainText(text);
  FB_Lua_Script_Highlight highlight(&document);
  table.add("20,000 lines are highlighted", median([&] { highlight.rehighlight(); }), cHighlightLimit, "ms");

  FB_Lua_Code_Edit edit;
  edit.resize(1000, 700);
  edit.show();
  Bench_Table::note("they are put into the editor", median([&] {
                      edit.setPlainText(text);
                      QApplication::processEvents();
                    }),
                    "ms");
  Bench_Table::note("they are checked", median([&] {
                      if (!FB_Lua_Check::check(text)) {
                        Bench_Table::stop(QStringLiteral("the script has an error"));
                      }
                    }),
                    "ms");
  Bench_Table::note("their words are learned", median([&] { edit.learnWords(text); }), "ms");
  table.add("a key at the beginning", keyAt(edit, 1, QStringLiteral("wert ")), cKeyLimit, "ms");
  table.add("a key in the middle", keyAt(edit, cLines / 2 + 4, QStringLiteral("sys_( ")), cKeyLimit, "ms");
  table.add("a key at the end", keyAt(edit, cLines, QStringLiteral("end\"x ")), cKeyLimit, "ms");
  // Nothing closes the comment, so all that follows is coloured anew.
  edit.setPlainText(QString(text).remove(QStringLiteral("]]")).remove(QStringLiteral("[[")));
  edit.goToLine(1);
  QApplication::processEvents();
  table.add("a comment is opened before all lines", Bench_Table::milliseconds([&] {
              edit.insertPlainText(QStringLiteral("--[["));
              QApplication::processEvents();
            }),
            cHighlightLimit, "ms");
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
