#include "fb/model/FB_Help.h"
#include "fb/model/FB_Help_Page.h"
#include "fb/model/FB_Help_Search.h"
#include "fb/model/FB_Types.h"

#include <QDir>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Types whose pages are not written yet.
const QSet<qsizetype> cCategoriesToCome{0, 1, 2, 3, 4, 5, 6, 7, 8, 10};
const QSet<int> cTypesToCome{1311, 1312, 1313, 1314, 1315, 1317, 1319, 1320, 1928, 1946};

} // namespace

/// The help pages as they are compiled into the program, and what is made of them.
class FB_Help_Test : public QObject {
  Q_OBJECT

private slots:
  void everyFileIsAPageOfSimpleTags_data() {
    QTest::addColumn<QString>("page");
    for (const QString& page : QDir(u":/help"_s).entryList()) {
      QTest::newRow(qPrintable(page)) << page;
    }
  }
  void everyFileIsAPageOfSimpleTags() {
    QFETCH(QString, page);
    QVERIFY2(!FB_Help::title(page).isEmpty(), "belongs to no block type and no topic");
    static const QSet<QString> cTags{u"page"_s, u"p"_s,  u"h1"_s, u"h2"_s, u"h3"_s,  u"ul"_s,
                                     u"ol"_s,   u"li"_s, u"b"_s,  u"i"_s,  u"pre"_s, u"table"_s,
                                     u"tr"_s,   u"th"_s, u"td"_s, u"br"_s, u"a"_s,   u"code"_s};
    QString html = FB_Help::html(page);
    html.replace(u"<br>"_s, u"<br/>"_s).replace(u"&nbsp;"_s, u" "_s);
    QXmlStreamReader reader(u"<page>"_s + html + u"</page>"_s);
    while (!reader.atEnd()) {
      if (reader.readNext() == QXmlStreamReader::StartElement) {
        QVERIFY2(cTags.contains(reader.name().toString()), qPrintable(reader.name().toString()));
        const QString link = reader.attributes().value(u"href"_s).toString();
        QVERIFY2(link.isEmpty() || FB_Help::pages().contains(link), qPrintable(link));
      }
    }
    QVERIFY2(!reader.hasError(), qPrintable(u"%1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString())));
    QVERIFY(FB_Help_Page::purpose(FB_Help::fragment(page)).startsWith(u"<p>"_s));
  }

  void everyTypeHasAPage() {
    QStringList missing;
    for (const FB_Types::Category& category : FB_Types::categories()) {
      const auto index = &category - FB_Types::categories().data();
      for (const FB_Type& type : category.mTypes) {
        const bool isToCome = cCategoriesToCome.contains(index) || cTypesToCome.contains(type.mId);
        if (!isToCome && FB_Help::fragment(FB_Types::helpFileName(type.mId)).isEmpty()) {
          missing.append(FB_Types::helpFileName(type.mId));
        }
      }
    }
    QCOMPARE(missing, QStringList());
  }

  void aPageIsMadeOfFragmentAndDeclaration() {
    static constexpr FB_Choice cChoices[] = {{0, "Nie"}, {7, "Immer"}};
    static const FB_Parameter cParameters[] = {
        {.mName = "Anzahl", .mDefault = "2", .mMinimum = 2, .mMaximum = 64},
        {.mName = "Senden",
         .mDescription = "Wann",
         .mEditor = FB_Editor::Choice,
         .mDefault = "7",
         .mChoices = cChoices},
        {.mName = "Zeit %1",
         .mDefault = "0.5",
         .mMinimum = 0,
         .mMaximum = 10,
         .mDecimals = 2,
         .mUnit = "s",
         .mNeeds = 1,
         .mNeedsValue = 7},
        {.mName = "Wert %1", .mDefault = "0", .mMinimum = 0, .mMaximum = 9},
        {.mName = "Wert %1", .mDefault = "0"},
        {.mName = "Datei", .mEditor = FB_Editor::File_Name},
    };
    static const FB_Pin_Group cPins[] = {
        {.mLongName = "Freigabe", .mShortName = "F", .mDpt = "1.001", .mDescription = "<b> & mehr"},
        {.mLongName = "Eingang %1", .mShortName = "E%1", .mCount = 2, .mParameter = 0},
        {.mLongName = "Stufe %1", .mShortName = "S %1", .mCount = 4},
    };
    FB_Type type{.mId = 50,
                 .mName = "A<B",
                 .mClass = "FB_AND",
                 .mIsOnce = true,
                 .mHasPins = true,
                 .mParameters = cParameters,
                 .mPins = cPins,
                 .mNoOutput = "schreibt in eine Datei"};
    const QString fragment = u"<p>Wozu.</p>\n<h2>Beispiel</h2><p>So.</p>"_s;
    const QStringList lines = FB_Help::plain(FB_Help_Page::html(type, fragment)).split(u'\n');
    QCOMPARE(lines, QStringList({u"A<B"_s,
                                 u"Bausteintyp 50 · Logische Verknüpfungen · nur einmal im Projekt möglich"_s,
                                 u"Wozu."_s,
                                 u"Eingänge"_s,
                                 u"Name | Kurzname | Datenpunkttyp | Bedeutung"_s,
                                 u"Freigabe | F | 1.001 Schalten | <b> & mehr"_s,
                                 u"Eingang 1 … n | E1 … En | |"_s,
                                 u"Stufe 1 … 4 | S 1 … 4 | |"_s,
                                 u"n = Anzahl (2 bis 64)"_s,
                                 u"Ausgänge"_s,
                                 u"Keine: schreibt in eine Datei"_s,
                                 u"Parameter"_s,
                                 u"Name | Bedeutung | Bereich | Einheit | Vorgabe"_s,
                                 u"Anzahl | | 2 bis 64 | | 2"_s,
                                 u"Senden | Wann | Nie; Immer | | Immer"_s,
                                 u"Zeit 2 | nur bei Senden = Immer | 0 bis 10 | s | 0.5"_s,
                                 u"Wert 3 … 4 | | 0 bis 9 | | 0"_s,
                                 u"Datei | | | |"_s,
                                 u"Beispiel"_s,
                                 u"So."_s}));
    type.mHasPins = false;
    QVERIFY(FB_Help_Page::html(type, fragment)
                .contains(u"Ein- und Ausgänge dieses Bausteins sind in dieser Fassung noch nicht verfügbar."_s));
    QCOMPARE(FB_Help::html(u"fb_none.html"_s), QString());
  }

  void found_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("first"); // empty: nothing is found
    QTest::newRow("title before what only begins with it") << u"konstante"_s << u"fb_constant_value.html"_s;
    QTest::newRow("type id") << u" 1324 "_s << u"fb_pv_hot_water.html"_s;
    QTest::newRow("words in any order") << u"umluft FAN klima"_s << QString();
    QTest::newRow("all words, one in the purpose") << u"coil fenster"_s << u"fb_block_air_conditioner.html"_s;
    QTest::newRow("spelled umlaut") << u"ueberblick"_s << u"overview.html"_s;
    QTest::newRow("sharp s in capitals") << u"SCHLIESSEN TOR"_s << u"fb_block_gate_control.html"_s;
    QTest::newRow("a pin") << u"steigende flanke"_s << u"fb_edge_evaluation.html"_s;
    QTest::newRow("no word") << u"  "_s << QString();
    QTest::newRow("mark-up is no text") << u"href"_s << QString();
  }
  void found() {
    QFETCH(QString, text);
    QFETCH(QString, first);
    static const FB_Help_Search cSearch;
    const auto hits = cSearch.find(text);
    QCOMPARE(hits.isEmpty() ? QString() : hits.first().mPage, first);
    QVERIFY(hits.isEmpty() || !hits.first().mExcerpt.contains(u'\n'));
  }
};

QTEST_GUILESS_MAIN(FB_Help_Test)
#include "FB_Help_Test.moc"
