#include "db/Ets_Esf_Names.h"
#include "tests/db/Ets_Rig.h"

#include <QtTest>

using Ets_Rig::read;

namespace {

const QByteArray cLine = "Licht.EG.1/2/3\tDecke\tEIS 1 'Switching' (1 Bit)\tLow\t\n";

} // namespace

class Ets_Esf_Reader_Test : public QObject {
  Q_OBJECT

private slots:
  void linesAreRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("project");
    QTest::addColumn<QStringList>("addresses");
    QTest::addColumn<int>("faultLine");
    const auto row = [](const char* name, const QByteArray& bytes, const char* project, const QStringList& addresses,
                        int faultLine = 0) {
      QTest::newRow(name) << bytes << QString::fromUtf8(project) << addresses << faultLine;
    };
    const QStringList one{QStringLiteral("1/2/3 Decke [Licht / EG] 1.001~")};
    const QStringList umlauts{QStringLiteral("1/2/3 Küche – 20 € [Wärme / EG] 9.001~")};
    row("project name", "Mein Haus\n" + cLine, "Mein Haus", one);
    row("no project name", cLine, "", one);
    row("blank project name", "\n" + cLine, "", one);
    row("project name in a table", "Mein Haus\t\t\t\t\n" + cLine, "Mein Haus", one);
    row("address without a name first", "Licht.EG.1/2/3\t\t\t\t\n", "", {QStringLiteral("1/2/3  [Licht / EG]")});
    row("comments", "# alt\nMein Haus\n#" + cLine + cLine, "Mein Haus", one);
    row("CRLF, no end", "Haus\r\n" + cLine.trimmed(), "Haus", one);
    row("more trailing tabs", cLine.trimmed() + "\t\t\t", "", one);
    row("two levels", "Licht. unten.1/258\tDecke\tUnknown\tLow\t", "", {QStringLiteral("1/1/2 Decke [Licht. unten]")});
    row("slashes in names", "Auf/Ab.<1/1>.1/2/3\t1/2/4\tUnknown\tLow\t", "",
        {QStringLiteral("1/2/3 1/2/4 [Auf/Ab / <1/1>]")});
    row("repeated address", cLine + "Licht.EG.1/2/3\tWand\tUnknown\tLow\t", "",
        one + QStringList{QStringLiteral("1/2/3 Wand [Licht / EG]")});
    row("group with two names", cLine + "Lampen.Küche.1/2/4\tWand\tUnknown\tLow\t", "",
        one + QStringList{QStringLiteral("1/2/4 Wand [Licht / EG]")});
    row("UTF-8", "Wärme.EG.1/2/3\tKüche – 20 €\tEIS 5 'Value' (2 Byte)\tLow\t", "", umlauts);
    row("UTF-8 with mark", "\xef\xbb\xbfWärme.EG.1/2/3\tKüche – 20 €\tEIS 5 'Value' (2 Byte)\tLow\t", "", umlauts);
    row("Windows-1252",
        "W\xe4rme.EG.1/2/3\tK\xfc"
        "che \x96 20 \x80\tEIS 5 'Value' (2 Byte)\tLow\t",
        "", umlauts);
    row("three columns", "Haus\n" + cLine + "Licht.EG.1/2/4\tWand\tUnknown\n", "Haus", one, 3);
    row("seven columns", cLine + "Licht.EG.1/2/4\tWand\tUnknown\tLow\t\t\tx\n", "", one, 2);
    row("no columns", cLine + "Licht\n", "", one, 2);
    row("no address", cLine + "Licht.EG\tWand\tUnknown\tLow\t\n", "", one, 2);
    row("free style", cLine + "Licht.EG.2305\tWand\tUnknown\tLow\t\n", "", one, 2);
    row("not on the bus", cLine + "Licht.EG.32/0/1\tWand\tUnknown\tLow\t\n", "", one, 2);
  }

  void linesAreRead() {
    QFETCH(QByteArray, bytes);
    QFETCH(int, faultLine);
    const Ets_Rig::Outcome outcome = read(bytes);
    QVERIFY2(outcome.mIsRead, qPrintable(outcome.mError));
    QCOMPARE(outcome.mGroups.mFormat, Ets_Groups::Format::Esf);
    QTEST(outcome.mGroups.mProjectName, "project");
    QTEST(Ets_Rig::texts(outcome.mGroups), "addresses");
    QCOMPARE(outcome.mGroups.mFaultCount, faultLine > 0 ? 1 : 0);
    QVERIFY(faultLine == 0 || Ets_Rig::isFaultOfLine(outcome.mGroups.mFaults[0], faultLine));
  }

  void fourColumnsAndConnectedAddressesAreRead() {
    const Ets_Rig::Outcome outcome = read(cLine + "Licht.EG.1/2/4\tWand\tUncertain (1 Byte)\tLow\n" +
                                          "Licht.EG.1/2/5\tTür\tUncertain (1 Byte)\tLow\t0/2/0  1/0/13 \n");
    QVERIFY2(outcome.mIsRead, qPrintable(outcome.mError));
    const std::vector<Ets_Groups::Address>& addresses = outcome.mGroups.mAddresses;
    QCOMPARE(addresses.size(), size_t(3));
    QVERIFY(addresses[1].mConnected.isEmpty());
    QCOMPARE(addresses[2].mConnected, QStringList({QStringLiteral("0/2/0"), QStringLiteral("1/0/13")}));
    QCOMPARE(addresses[2].mLine, 3);
    QCOMPARE(addresses[2].mDpts, QStringLiteral("Uncertain (1 Byte)"));
  }

  void typesFollowFromSizeAndEis_data() {
    QTest::addColumn<QString>("type");
    const auto row = [](const char* text, const char* type) { QTest::newRow(text) << QString::fromLatin1(type); };
    row("EIS 1 'Switching' (1 Bit)", "1.001");
    row("EIS 2 'Dimmen – Steuerung' (4 Bit)", "3.007");
    row("EIS 3 'Time' (3 Byte)", "10.001");
    row("EIS 4 'Date' (3 Byte)", "11.001");
    row("EIS 7 'Drive' (1 Bit)", "1.008");
    row("EIS 9 'Float' (4 Byte)", "14");
    row("EIS 12 'Access' (4 Byte)", "15.000");
    row("EIS 14", "5");
    row("EIS 15 'Zeichenkette' (14 Byte)", "16.001");
    row("eis 15", "16.001");
    row("EIS 5 'Wert (fein)' (2 Byte)", "9.001");
    row("EIS 5 '?' (1 Byte)", "5.010");
    row("EIS 99 '?' (2 Bit)", "2.001");
    row("Uncertain (1 Byte)", "5.010");
    row("Unbestimmt (2 Byte)", "7.001");
    row("Uncertain (3 Byte)", "10.001");
    row("Unbestimmt (4 Byte)", "");
    row("Uncertain (14 Byte)", "16.001");
    row("Uncertain (77 Byte)", "");
    row("Unknown", "");
    row("Unbekannt", "");
    row("", "");
  }

  void typesFollowFromSizeAndEis() {
    QFETCH(QString, type);
    Ets_Reader::Options options;
    options.mUncertain1Byte = {5, 10};
    options.mUncertain2Byte = {7, 1};
    options.mUncertain4Byte = {};
    const Ets_Rig::Outcome outcome = read("A.B.1/2/3\tx\t" + QByteArray(QTest::currentDataTag()) + "\tLow\t", options);
    QVERIFY2(outcome.mIsRead, qPrintable(outcome.mError));
    QCOMPARE(outcome.mGroups.mAddresses[0].mDpt.toString(), type);
    QCOMPARE(outcome.mGroups.mAddresses[0].mDptGuessed, !type.isEmpty());
  }

  void namesAreSplit_data() {
    QTest::addColumn<QStringList>("names"); // the main group's, then each middle group's
    const auto row = [](const char* texts, const QStringList& names) { QTest::newRow(texts) << names; };
    const auto s = [](const char* text) { return QString::fromUtf8(text); };
    row("Licht.EG", {s("Licht"), s("EG")});
    row("Licht", {s("Licht"), QString()});
    row("Licht.", {s("Licht"), QString()});
    row(".EG", {QString(), s("EG")});
    row(".", {QString(), QString()});
    row("1.OG.Bad", {s("1.OG"), s("Bad")});
    row("1. OG.Bad", {s("1. OG"), s("Bad")});
    row("Licht.1. OG", {s("Licht"), s("1. OG")});
    row("Haus.1. OG|Haus.1. DG", {s("Haus"), s("1. OG"), s("1. DG")});
    row("1.OG.Bad|1.OG.Flur", {s("1.OG"), s("Bad"), s("Flur")});
    row("Haus.1.OG|Haus.EG|Haus.2.OG", {s("Haus"), s("1.OG"), s("EG"), s("2.OG")});
    row("Haus.|Haus.EG", {s("Haus"), QString(), s("EG")});
    row("Licht|Licht.EG", {s("Licht"), QString(), s("EG")});
    row("Licht.EG|Lampen.OG|Licht.DG", {s("Licht"), s("EG"), s("OG"), s("DG")});
  }

  void namesAreSplit() {
    QFETCH(QStringList, names);
    const QStringList texts = QString::fromUtf8(QTest::currentDataTag()).split(u'|');
    const Ets_Esf_Names::Split split = Ets_Esf_Names::split(texts);
    QCOMPARE(QStringList(split.mMain) + split.mMiddle, names);
  }

  void groupsBecomeRanges() {
    const Ets_Rig::Outcome outcome =
        read("B.y.3/1/0\ta\t\tLow\t\nA.x.0/7/0\ta\t\tLow\t\nB.x.3/0/1\ta\t\tLow\t\nC.5/300\ta\t\tLow\t\n");
    QVERIFY2(outcome.mIsRead, qPrintable(outcome.mError));
    QCOMPARE(Ets_Rig::rangeTexts(outcome.mGroups).join(u'\n'),
             QStringLiteral("0-2047 A\n 1792-2047 x\n6144-8191 B\n 6144-6399 x\n 6400-6655 y\n10240-12287 C"));
  }
};

QTEST_GUILESS_MAIN(Ets_Esf_Reader_Test)
#include "Ets_Esf_Reader_Test.moc"
