#include "tests/db/Ets_Rig.h"

#include <QtTest>

class Ets_Csv_Reader_Test : public QObject {
  Q_OBJECT

private slots:
  void layoutsAreRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("addresses");
    QTest::addColumn<QString>("ranges");
    QTest::addColumn<QList<int>>("faultLines");
    const auto row = [](const char* name, const QByteArray& bytes, const char* addresses, const char* ranges = "",
                        const QList<int>& faultLines = {}) {
      QTest::newRow(name) << bytes << QString::fromUtf8(addresses) << QString::fromUtf8(ranges) << faultLines;
    };
    const char* const full = "1/2/3 Decke, an [Licht / EG] 1.001 C (erste\nzweite) Auto";
    const char* const both = "2048-4095 Licht\n 2560-2815 EG";
    row("1/1",
        "\"Group name\",\"Address\",\"Central\",\"Unfiltered\",\"Description\",\"DatapointType\",\"Security\"\r\n"
        "\"Licht\",\"1/-/-\",\"\",\"\",\"\",\"\",\"Auto\"\r\n\"EG\",\"1/2/-\",\"\",\"\",\"\",\"\",\"Auto\"\r\n"
        "\"Decke, an\",\"1/2/3\",\"true\",\"\",\"erste\r\nzweite\",\"DPST-1-1\",\"Auto\"\r\n",
        full, both);
    row("1/1 without a header",
        "Licht\t1/-/-\nEG\t1/2/-\n\"Decke, an\"\t1/2/3\tTrue\t\t\"erste\nzweite\"\tDPST-1-1\tAuto", full, both);
    row("1/1 without groups", "Decke;1/2/3\nWand;1/2/4", "1/2/3 Decke\n1/2/4 Wand");
    row("1/3", "Name;Hauptgruppe;Mittelgruppe;Untergruppe\nLicht;1;;\nDecke;1;2;3", "1/2/3 Decke [Licht]",
        "2048-4095 Licht");
    row("3/1",
        "\"Main\",\"Middle\",\"Sub\",\"Address\",\"Central\",\"Unfiltered\",\"Description\",\"DatapointType\","
        "\"Security\"\n"
        "\"Licht\", , ,\"1/-/-\",\"\",\"\",\"\",\"\",\"Auto\"\n ,\"EG\", ,\"1/2/-\",\"\",\"\",\"\",\"\",\"Auto\"\n"
        " , ,\"Decke, an\",\"1/2/3\",\"true\",\"\",\"erste\nzweite\",\"DPST-1-1\",\"Auto\"\n",
        full, both);
    row("3/1 with names beside each address", "Licht;EG;Decke;1/2/3\nLicht;EG;Wand;1/2/4",
        "1/2/3 Decke [Licht / EG]\n1/2/4 Wand [Licht / EG]", both);
    row("3/3",
        "Hauptgruppe;Mittelgruppe;Untergruppe;Hauptgruppe;Mittelgruppe;Untergruppe;Zentral;Ungefiltert;Beschreibung;"
        "Datenpunkttyp;Sicherheit\r\nLicht;;;1;;\r\n;EG;;1;2;\r\n;;Decke, "
        "an;1;2;3;true;;\"erste\nzweite\";DPST-1-1;Auto",
        full, both);
    row("3/3 without a header", "Licht;;;1;-;-\n;EG;;1;2;-\n;;Decke;1;2;3\n;;zu hoch;1;2;256",
        "1/2/3 Decke [Licht / EG]", both, {4});
    row("old, German",
        "\xef\xbb\xbf\"Hauptgruppe\";\"Mittelgruppe\";\"Untergruppe\";\"Adresse\"\n\"Wärme\"; ; ;\"0/-/-\"\n ; "
        ";\"Küche\";\"0/1/2\"",
        "0/1/2 Küche [Wärme]", "0-2047 Wärme");
    row("Windows-1252",
        "Name;Adresse;Ungefiltert\nK\xfc"
        "che;1/2/3;x",
        "1/2/3 Küche U");
    row("columns in another order", "Address,Description,Group name\n1/2/3,nachts,Decke", "1/2/3 Decke (nachts)");
    row("two levels", "Licht;;3/-\n;Decke;3/258", "3/1/2 Decke [Licht]", "6144-8191 Licht");
    row("free style", "Group name;Address\nDecke;2305", "1/1/1 Decke");
    row("separators in names", "a;b,1/2/3\n\"c,d\",1/2/4", "1/2/3 a;b\n1/2/4 c,d");
    row("several types", "Name;Address;DPT\na;1/2/3;DPST-1-1, DPT-9\nb;1/2/4;9.001\nc;1/2/5;EIS 5",
        "1/2/3 a 9\n1/2/4 b 9.001\n1/2/5 c");
    row("broken lines", "a;1/2/3\nb;32/0/0\nc\n\n;;\nd;1/9/-\ne;1/2/4", "1/2/3 a\n1/2/4 e", "", {2, 3, 6});
    row("open quote", "\"a;1/2/3\n\"b\";1/2/4\nc;\"1/2/5", "1/2/3 a\n1/2/4 b", "", {1, 3});
    row("3/3 with a faulty number", "Licht;;;1;-;-\n;EG;;1;2;-\n;;Decke;1;2;3\n;;Wand;1;2;x\n;;Tür;1;2;5",
        "1/2/3 Decke [Licht / EG]\n1/2/5 Tür [Licht / EG]", "2048-4095 Licht\n 2560-2815 EG", {4});
    row("3/3 with titles that nobody knows", "A;B;C;D;E;F\nLicht;EG;Decke;1;2;3\nLicht;EG;Wand;1;2;4",
        "1/2/3 Decke [Licht / EG]\n1/2/4 Wand [Licht / EG]", both, {1});
    row("a title of the names that nobody knows", "Nom;Address;DPT\nDecke;1/2/3;9.001", "1/2/3 Decke 9.001");
    row("names that nobody wrote", "Address;Description\n1/2/3;a", "1/2/3  (a)");
    row("open quote in a row without an address", "a;1/2/3\n\"b\nc;1/2/4", "1/2/3 a\n1/2/4 c", "", {2});
    row("titles of a table of the studio", "Adresse;Bezeichnung;Kommentar;Typ\n1/2/3;a;b;9.001", "1/2/3 a 9.001 (b)");
    row("a group called like a title", "Zentral;;;1;-;-\n;EG;;1;2;-\n;;a;1;2;3", "1/2/3 a [Zentral / EG]",
        "2048-4095 Zentral\n 2560-2815 EG");
  }

  void layoutsAreRead() {
    QFETCH(QByteArray, bytes);
    QFETCH(QList<int>, faultLines);
    const Ets_Rig::Outcome outcome = Ets_Rig::read(bytes);
    QVERIFY2(outcome.mIsRead, qPrintable(outcome.mError));
    QCOMPARE(outcome.mGroups.mFormat, Ets_Groups::Format::Csv);
    QTEST(Ets_Rig::texts(outcome.mGroups).join(u'\n'), "addresses");
    QTEST(Ets_Rig::rangeTexts(outcome.mGroups).join(u'\n'), "ranges");
    QCOMPARE(outcome.mGroups.mFaults.size(), faultLines.size());
    for (qsizetype i = 0; i < faultLines.size(); ++i) {
      const QString& fault = outcome.mGroups.mFaults[i];
      QVERIFY2(Ets_Rig::isFaultOfLine(fault, faultLines[i]), qPrintable(fault));
    }
  }

  void groupsKeepTheirDescriptions() {
    const Ets_Rig::Outcome outcome =
        Ets_Rig::read("Group name;Address;Description\nLicht;1/-/-;alle\nEG;1/2/-;unten\na;1/2/3;");
    QCOMPARE(outcome.mGroups.mRanges.size(), size_t(2));
    QCOMPARE(outcome.mGroups.mRanges[0].mDescription, QStringLiteral("alle"));
    QCOMPARE(outcome.mGroups.mRanges[1].mDescription, QStringLiteral("unten"));
    QCOMPARE(outcome.mGroups.mAddresses[0].mLine, 4);
  }
};

QTEST_GUILESS_MAIN(Ets_Csv_Reader_Test)
#include "Ets_Csv_Reader_Test.moc"
