#include "base/Text_Search.h"

#include <QtTest>

/// Each row marks in the text what is found.
class Text_Search_Test : public QObject {
  Q_OBJECT

private slots:
  void finds_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isCase");
    QTest::addColumn<bool>("isWord");
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("marked");
    const auto row = [](const char* name, const char* text, int options, const char* in, const char* marked) {
      QTest::newRow(name) << QString::fromUtf8(text) << (options % 2 == 1) << (options / 2 == 1)
                          << QString::fromUtf8(in) << QString::fromUtf8(marked);
    };
    enum { Any = 0, Case = 1, Word = 2, CaseWord = 3 };
    row("nothing sought", "", Any, "Licht", "Licht");
    row("in an empty text", "x", Any, "", "");
    row("longer than the text", "Lichter", Any, "Licht", "Licht");
    row("the whole text", "licht", Any, "LICHT", "[LICHT]");
    row("several", "t", Any, "Test mit T", "[T]es[t] mi[t] [T]");
    row("they do not overlap", "aa", Any, "aaa aaaa", "[aa]a [aa][aa]");
    row("characters of patterns are plain", ".*(a|b)[1]\\d$", Any, "x.*(a|b)[1]\\d$", "x[.*(a|b)[1]\\d$]");
    row("a point is no wildcard", "1.2", Any, "1x2 1.2", "1x2 [1.2]");
    row("blanks count", "a  b", Any, "a b a  b", "a b [a  b]");
    row("over a line break", "a\nb", Any, "a\nb", "[a\nb]");
    row("case matters", "Licht", Case, "licht Licht LICHT", "licht [Licht] LICHT");
    row("umlauts in any case", "KÜCHE", Any, "Küche küche", "[Küche] [küche]");
    row("umlauts in their case", "Ü", Case, "ü Ü", "ü [Ü]");
    row("umlaut is no vowel", "kuche", Any, "Küche", "Küche");
    row("composed in decomposed", "ü", Any, "Ku\u0308che", "K[u\u0308]che");
    row("decomposed in composed", "u\u0308", Case, "Küche", "K[ü]che");
    row("vowel of a decomposed umlaut", "Ku", Any, "Ku\u0308che", "Ku\u0308che");
    row("ss finds sz", "strasse", Any, "Straße 1", "[Straße] 1");
    row("sz finds ss", "Straße", Any, "STRASSE", "[STRASSE]");
    row("great sz", "straße", Any, "STRAẞE", "[STRAẞE]");
    row("no half of an sz", "as", Any, "Straße as", "Straße [as]");
    row("sz in its case", "ss", Case, "Straße Masse", "Straße Ma[ss]e");
    row("behind what is not Latin", "°c", Any, "20 – 25 °C, 20 € 💡 °C", "20 – 25 [°C], 20 € 💡 [°C]");
    row("micro and mu", "μ", Any, "µm", "[µ]m");
    row("other alphabets", "ПОЛ", Any, "пол, Πολ", "[пол], Πολ");
    row("words at both ends", "ein", Word, "Ein Stein, ein", "[Ein] Stein, [ein]");
    row("words between signs", "ein", Word, "(ein) ein/aus ein_1 ein1 ein-1", "([ein]) [ein]/aus ein_1 ein1 [ein]-1");
    row("a word before an umlaut", "t", Word, "tür t", "tür [t]");
    row("a word before a decomposed umlaut", "t", Word, "tu\u0308r t", "tu\u0308r [t]");
    row("a word beside a picture", "licht", Word, "💡Licht💡", "💡[Licht]💡");
    row("a sign is whole anywhere", "/", Word, "ein/aus", "ein[/]aus");
    row("refused ones hide no match", "a a", Word, "ba a a", "ba [a a]");
    row("whole and in its case", "Ein", CaseWord, "Ein ein Einer", "[Ein] ein Einer");
  }

  void finds() {
    QFETCH(const QString, text);
    QFETCH(const bool, isCase);
    QFETCH(const bool, isWord);
    QFETCH(const QString, in);
    const Text_Search search(text, {isCase, isWord});
    QString marked = in;
    const auto matches = search.find(in);
    for (auto match = matches.crbegin(); match != matches.crend(); ++match) {
      marked.insert(match->mStart + match->mLength, u']').insert(match->mStart, u'[');
    }
    QTEST(marked, "marked");
    QCOMPARE(search.count(in), static_cast<int>(matches.size()));
    QCOMPARE(search.isEmpty(), text.isEmpty());
  }

  void replaces_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("by");
    QTest::addColumn<QString>("result"); // of "Licht, Küche, Licht"
    QTest::newRow("nothing sought") << ""
                                    << "x"
                                    << "Licht, Küche, Licht";
    QTest::newRow("nothing found") << "Dach"
                                   << "x"
                                   << "Licht, Küche, Licht";
    QTest::newRow("at both ends") << "licht"
                                  << "Lampe"
                                  << "Lampe, Küche, Lampe";
    QTest::newRow("by what holds the text") << "Licht"
                                            << "LichtLicht"
                                            << "LichtLicht, Küche, LichtLicht";
    QTest::newRow("by nothing") << ", "
                                << ""
                                << "LichtKücheLicht";
    QTest::newRow("by what looks like a reference") << "k(ü)"
                                                    << "x"
                                                    << "Licht, Küche, Licht";
    QTest::newRow("references are plain") << "Küche"
                                          << "\\1$1&"
                                          << "Licht, \\1$1&, Licht";
  }

  void replaces() {
    QFETCH(const QString, text);
    QFETCH(const QString, by);
    QTEST(Text_Search(text).replaced(QStringLiteral("Licht, Küche, Licht"), by), "result");
  }
};

QTEST_APPLESS_MAIN(Text_Search_Test)
#include "Text_Search_Test.moc"
