#include "fb/model/FB_Formula_Language.h"
#include "fb/model/FB_Formula_Words.h"

#include <QtTest>

#include <clocale>

/// What formulas compute, and where their faults are told.
class FB_Formula_Language_Test : public QObject {
  Q_OBJECT

private slots:
  /// With E1 = 3, E2 = 4.
  void results_data() {
    QTest::addColumn<QString>("formula");
    QTest::addColumn<double>("result");
    const auto row = [](const char* formula, double result) {
      QTest::newRow(formula) << QString::fromUtf8(formula) << result;
    };
    row("1 + 2 * E1", 7);
    row("-2^2", -4);
    row("2^-E1^2", std::pow(2, -9));
    row("2^3^2", 512);
    row("10 - 3 - 2", 5);
    row("0,5 + .25 + 1.5", 2.25);
    row("7 % 4 * 2", 6);
    row("E1 <> E2 and not (e1 > E2)", 1);
    row("0 or 1 ? 5 : 6", 5);
    row("1 ? 0 ? 1 : 2 : 3", 2);
    row("if(E1 = 3; MAX(1; 2,5; E1 - 4); 1 / 0)", 2.5);
    row("E2 == 0 ? E1 / 0 : 8", 8);
    row("-if(1; 2; 3)^2", -4);
    row("2 × E1 − 1", 5);
    row("round(2,567; 1) + round(1234; -2)", 1202.6);
    row("bit(5; 2) + bitand(12; 10)", 9);
    row("scale(5; 0; 10; -50; 50)", 0);
  }
  void results() {
    QFETCH(QString, formula);
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    const double values[] = {3, 4};
    const FB_Formula_Language::Result result = FB_Formula_Language::evaluate(formula, values);
    QVERIFY2(result.mNumber, qPrintable(result.mError));
    QTEST(*result.mNumber, "result");
  }

  void faults_data() {
    QTest::addColumn<QString>("formula");
    QTest::addColumn<int>("at");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("part");
    const auto row = [](const char* formula, int at, int length, const char* part) {
      QTest::newRow(formula) << QString::fromUtf8(formula) << at << length << QString::fromUtf8(part);
    };
    row("", 0, 0, "leer");
    row("1 + ", 4, 0, "fehlt ein Wert");
    row("E1 E2", 3, 2, "Operator");
    row("2E1", 1, 2, "Operator");
    row("E5 + 1", 0, 2, "E1 bis E4");
    row("1 + Temp", 4, 4, "\"Temp\"");
    row("(1 + 2", 0, 1, "')'");
    row("2 * max(1; 2", 4, 3, "\"max\"");
    row("1)", 1, 1, "'('");
    row("max(E1, E2)", 6, 1, "';'");
    row("max(1,2)", 0, 3, "zu wenige");
    row("abs(1; 2)", 0, 3, "zu viele");
    row("max + 1", 0, 3, "in Klammern");
    row("1,2,3", 0, 5, "Dezimalzeichen");
    row("E1 § 2", 3, 1, "Unerwartetes Zeichen");
    row("1 < E1 < 5", 7, 1, "and");
    row("E1 ? 2", 3, 1, "':'");
    row("E1 : 2", 3, 1, "'?'");
    row("2 * * 3", 4, 1, "davor fehlt ein Wert");
    row("--1", 1, 1, "Vorzeichen");
    QTest::newRow("long") << QString(3000, u'1') << 2000 << 1000 << "höchstens";
    QTest::newRow("deep") << QString(100, u'(') << 32 << 1 << "ineinander";
    QTest::newRow("many questions") << QStringLiteral("1?").repeated(100) << 65 << 1 << "ineinander";
  }
  void faults() {
    QFETCH(QString, formula);
    const FB_Formula_Language::Fault fault = FB_Formula_Language::check(formula, 4);
    QFETCH(QString, part);
    QVERIFY2(fault.mText.contains(part), qPrintable(fault.mText));
    QTEST(int(fault.mAt), "at");
    QTEST(int(fault.mLength), "length");
  }

  void noResult_data() {
    QTest::addColumn<QString>("part");
    QTest::newRow("1 / (E1 - E1)") << "durch null";
    QTest::newRow("sqrt(-E1)") << "\"sqrt\"";
    QTest::newRow("10^308 * 10") << "zu groß";
    QTest::newRow("1 and ln(0)") << "\"ln\"";
    QTest::newRow("limit(1; 5; 2)") << "Grenze";
    QTest::newRow("bitand(0.5; 1)") << "ganze Zahlen";
  }
  void noResult() {
    const double value = 3;
    const QString formula = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(!FB_Formula_Language::check(formula, 1));
    const FB_Formula_Language::Result result = FB_Formula_Language::evaluate(formula, {&value, 1});
    QFETCH(QString, part);
    QVERIFY2(!result.mNumber && result.mError.contains(part), qPrintable(result.mError));
  }

  void everyWordsExampleHasAResult() {
    const double values[] = {1, 1, 1, 1, 1, 1, 1, 1};
    const QString reference = FB_Formula_Language::referenceHtml();
    for (const FB_Formula_Word& word : FB_Formula_Words::all()) {
      const QString example = QString::fromUtf8(word.mExample);
      const FB_Formula_Language::Result result = FB_Formula_Language::evaluate(example, values);
      QVERIFY2(result.mNumber && example.contains(QLatin1String(word.mName)), qPrintable(example + result.mError));
      QVERIFY2(reference.contains(example.toHtmlEscaped()), qPrintable(example));
    }
  }

  void resultsAreRounded() {
    QCOMPARE(FB_Formula_Language::rounded(-2.345, 1), -2.3);
    QCOMPARE(FB_Formula_Language::rounded(2.5, 0), 3.0);
    QCOMPARE(FB_Formula_Language::rounded(2.345, -1), 2.345);
    QCOMPARE(FB_Formula_Language::rounded(1e308, 6), 1e308);
  }
};

QTEST_GUILESS_MAIN(FB_Formula_Language_Test)
#include "FB_Formula_Language_Test.moc"
