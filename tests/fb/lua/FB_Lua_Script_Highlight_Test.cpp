#include "fb/lua/FB_Lua_Script_Highlight.h"
#include "fb/lua/FB_Lua_Text_Edits.h"
#include "ui/Theme.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

/// What is coloured how, and what the keys of the editor do with a text.
class FB_Lua_Script_Highlight_Test : public QObject {
  Q_OBJECT

private slots:
  /// Each character is shown by a letter: k, f, s, c, or "." for none.
  void colours_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("colours");
    QTest::newRow("keywords") << "if x then ende end"
                              << "kk...kkkk......kkk";
    QTest::newRow("whole words") << "_end end1 äend"
                                 << "...........kkk";
    QTest::newRow("function") << "sys_get_value(1)"
                              << "fffffffffffff...";
    QTest::newRow("not of the list") << "sys_get_tick_count()"
                                     << "....................";
    QTest::newRow("greedy string") << "x = \"a\" .. \"b\" y"
                                   << "....ssssssssss..";
    QTest::newRow("one quote") << "x = \"a"
                               << "......";
    QTest::newRow("keyword in string") << "\"if\""
                                       << "ssss";
    QTest::newRow("comment over string") << "a = \"x -- y\" if"
                                         << "....ssscccccccc";
    QTest::newRow("block comment") << "--[[ if\nif\n\"x\"\n]] if\nif"
                                   << "ccccccc\ncc\nccc\ncc.kk\nkk";
    QTest::newRow("closed on its line") << "--[[ x ]] if"
                                        << "cccccccccccc";
  }
  void colours() {
    QFETCH(QString, text);
    QTextDocument document;
    document.documentLayout(); // nothing is told of changes without one
    FB_Lua_Script_Highlight highlight(&document);
    QCoreApplication::processEvents(); // until then it waits for the whole text
    document.setPlainText(text);
    QTEST(coloursOf(document), "colours");
  }

  void endOfCommentIsCarriedOn() {
    QTextDocument document;
    document.documentLayout(); // nothing is told of changes without one
    FB_Lua_Script_Highlight highlight(&document);
    QCoreApplication::processEvents(); // until then it waits for the whole text
    document.setPlainText(QStringLiteral("--[[\nif\nif"));
    QCOMPARE(coloursOf(document), QStringLiteral("cccc\ncc\ncc"));
    QTextCursor cursor(document.firstBlock());
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(QStringLiteral("]]"));
    QCOMPARE(coloursOf(document), QStringLiteral("cccccc\nkk\nkk"));
  }

  /// "|" is the cursor, "<" and ">" are the ends of the selection.
  void keys_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("new line") << "Return"
                              << "  x = 1|"
                              << "  x = 1\n  |";
    QTest::newRow("deeper") << "Return"
                            << "if x then|"
                            << "if x then\n  |";
    QTest::newRow("function") << "Return"
                              << "function f(a, b)|"
                              << "function f(a, b)\n  |";
    QTest::newRow("call") << "Return"
                          << "f(a)|"
                          << "f(a)\n|";
    QTest::newRow("comment opens nothing") << "Return"
                                           << "x = 1 -- then|"
                                           << "x = 1 -- then\n|";
    QTest::newRow("before end") << "Return"
                                << "if x then| end"
                                << "if x then\n  |\n end";
    QTest::newRow("tab") << "Tab"
                         << "a|"
                         << "a |";
    QTest::newRow("indent") << "Tab"
                            << "<a\n\n  b>\nc"
                            << "  a\n\n    b\nc";
    QTest::newRow("line not reached") << "Tab"
                                      << "<a\n>b"
                                      << "  a\nb";
    QTest::newRow("unindent") << "Backtab"
                              << "<  a\n b\n\tc\nd>"
                              << "a\nb\nc\nd";
    QTest::newRow("comment") << "#"
                             << "<  a\n\n    b>"
                             << "  -- a\n\n  --   b";
    QTest::newRow("no comment") << "#"
                                << "<  -- a\n  --b>"
                                << "  a\n  b";
    QTest::newRow("mixed") << "#"
                           << "<-- a\nb>"
                           << "-- -- a\n-- b";
    QTest::newRow("end") << "end"
                         << "if x then\n  y()\n  end|"
                         << "if x then\n  y()\nend|";
    QTest::newRow("end at once") << "end"
                                 << "  do\n    end|"
                                 << "  do\n  end|";
    QTest::newRow("end placed by hand") << "end"
                                        << "  y()\n    end|"
                                        << "  y()\n    end|";
  }
  void keys() {
    QFETCH(QString, key);
    QFETCH(QString, before);
    QTextDocument document;
    document.setPlainText(QString(before).remove(QRegularExpression("[|<>]")));
    QTextCursor cursor(&document);
    const qsizetype bar = before.indexOf(u'|');
    cursor.setPosition(static_cast<int>(bar >= 0 ? bar : before.indexOf(u'<')));
    if (bar < 0) {
      cursor.setPosition(static_cast<int>(before.indexOf(u'>') - 1), QTextCursor::KeepAnchor);
    }
    const QString start = document.toPlainText();
    using namespace FB_Lua_Text_Edits;
    (key == u"Return"    ? newLine
     : key == u"Tab"     ? indent
     : key == u"Backtab" ? unindent
     : key == u"#"       ? toggleComment
                         : alignClosing)(cursor);
    QString after = document.toPlainText();
    if (bar >= 0) {
      after.insert(cursor.position(), u'|');
    }
    QTEST(after, "after");
    if (document.toPlainText() != start) {
      document.undo();
      QCOMPARE(document.toPlainText(), start); // one step
    }
  }

  void brackets_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("at");
    QTest::addColumn<int>("partner");
    QTest::newRow("forward") << "f(a, {b})" << 1 << 8;
    QTest::newRow("backward") << "f(a, {b})" << 7 << 5;
    QTest::newRow("over lines") << "f(\n  \")\",\n  1)" << 1 << 13;
    QTest::newRow("in a comment") << "f( -- )\n)" << 1 << 8;
    QTest::newRow("alone") << "f(" << 1 << -1;
    QTest::newRow("none") << "f(a)" << 0 << -1;
  }
  void brackets() {
    QFETCH(QString, text);
    QFETCH(int, at);
    const QTextDocument document(text);
    QTEST(FB_Lua_Text_Edits::partner(document, at).value_or(-1), "partner");
  }

private:
  static QString coloursOf(const QTextDocument& document) {
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      QString line(block.text().size(), u'.');
      for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
        const QColor colour = range.format.foreground().color();
        const QChar letter = colour == Theme::color(Theme::Role::CodeKeyword)    ? u'k'
                             : colour == Theme::color(Theme::Role::CodeFunction) ? u'f'
                             : colour == Theme::color(Theme::Role::CodeString)   ? u's'
                                                                                 : u'c';
        line.replace(range.start, range.length, QString(range.length, letter));
      }
      lines.append(line);
    }
    return lines.join(u'\n');
  }
};

QTEST_MAIN(FB_Lua_Script_Highlight_Test)

#include "FB_Lua_Script_Highlight_Test.moc"
