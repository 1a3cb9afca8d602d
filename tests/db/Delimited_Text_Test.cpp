#include "db/Delimited_Text.h"

#include <QtTest>

class Delimited_Text_Test : public QObject {
  Q_OBJECT

private slots:
  void rowsAreDivided_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rows"); // "line:cell|cell", divided by '~'; "!line" behind a row with an open quote
    const auto row = [](const char* name, const char* text, const char* rows) {
      QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(rows);
    };
    row("nothing", "", "");
    row("one cell", "a", "1:a");
    row("line ends", "a\nb\r\nc\rd\n", "1:a~2:b~3:c~4:d");
    row("empty lines", "\r\n\na\n\n", "1:~2:~3:a~4:");
    row("empty cells", ";;\n;", "1:||~2:|");
    row("quotes", "\"a;b\";\"\";\"say \"\"hi\"\"\"", "1:a;b||say \"hi\"");
    row("only quotes", "\"\"\"\"", "1:\"");
    row("line breaks in a cell", "x;\"a\r\nb\nc\rd\";y\nz", "1:x|a\nb\nc\nd|y~5:z");
    row("blank behind a quote", "\"a\" ;b", "1:a|b");
    row("a quote inside a plain cell", "5\" Rohr;b", "1:5\" Rohr|b");
    row("quotes that nobody doubled", "\"Licht \"groß\" an\";b\nc", "1:Licht \"groß\" an|b~2:c");
    row("no end at the last line", "a\n\"b;c", "1:a~2:b|c!2");
    row("no end, and no quotes behind", "\"a;b\nc;d\ne", "1:a|b!1~2:c|d~3:e");
    row("no end, and quotes behind", "\"a;b\n\"c\";d\ne", "1:a|b!1~2:c|d~3:e");
    row("no end behind a cell of two lines", "\"a\nb\";\"c\nd;\"e\"", "1:a\nb|c!2~3:d|e");
  }

  void rowsAreDivided() {
    QFETCH(QString, text);
    QFETCH(QString, rows);
    QStringList read;
    Delimited_Text reader(text, u';');
    for (Delimited_Text::Row row; reader.next(row);) {
      read.append(QStringLiteral("%1:%2").arg(row.mLine).arg(row.mFields.join(u'|')) +
                  (row.mOpenQuoteLine > 0 ? QStringLiteral("!%1").arg(row.mOpenQuoteLine) : QString()));
    }
    QCOMPARE(read.join(u'~'), rows);
    QCOMPARE(reader.position(), text.size());
  }

  void withoutQuotesAllIsText() {
    const QString text = QStringLiteral("\"a\t\"b\"\nc");
    Delimited_Text reader(text, u'\t', Delimited_Text::Quotes::None);
    Delimited_Text::Row row;
    QVERIFY(reader.next(row));
    QCOMPARE(row.mFields, QStringList({QStringLiteral("\"a"), QStringLiteral("\"b\"")}));
  }

  void aRowKeepsSoManyCells() {
    const QString text = QString(5'000'000, u';') + QStringLiteral("\nb");
    Delimited_Text reader(text, u';');
    Delimited_Text::Row row;
    QVERIFY(reader.next(row));
    QCOMPARE(row.mFields.size(), Delimited_Text::cCellLimit);
    QVERIFY(reader.next(row));
    QCOMPARE(row.mFields, QStringList(QStringLiteral("b")));
  }

  void openQuotesTakeNoTime() {
    QString text;
    for (int i = 0; i < 100'000; ++i) {
      text += QStringLiteral("\"a;\"\"\"\";x\n");
    }
    QElapsedTimer timer;
    timer.start();
    Delimited_Text reader(text, u';');
    int rows = 0;
    for (Delimited_Text::Row row; reader.next(row);) {
      ++rows;
    }
    QVERIFY(rows > 0);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
  }
};

QTEST_GUILESS_MAIN(Delimited_Text_Test)
#include "Delimited_Text_Test.moc"
