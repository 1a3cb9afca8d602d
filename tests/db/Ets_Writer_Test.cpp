#include "base/Datapoint_Types.h"
#include "db/Address_Import.h"
#include "db/Ets_Esf_Types.h"
#include "db/Ets_Esf_Writer.h"
#include "db/Ets_Export.h"
#include "db/Ets_Xml_Writer.h"
#include "tests/db/Ets_Rig.h"
#include "tests/db/Session_Rig.h"

namespace {

QByteArray xmlOf(const Address_Tree& tree, Ets_Write_Result* result = nullptr) {
  return Ets_Rig::bytesOf([&](QIODevice& device) {
    const Ets_Write_Result written = Ets_Xml_Writer::write(tree, device);
    if (result) {
      *result = written;
    }
  });
}

QByteArray esfOf(const Address_Tree& tree, const QString& project, Ets_Write_Result* result = nullptr) {
  return Ets_Rig::bytesOf([&](QIODevice& device) {
    const Ets_Write_Result written = Ets_Esf_Writer::write(tree, project, device);
    if (result) {
      *result = written;
    }
  });
}

/// "Main.Middle" of each address, whose point an import may find elsewhere, with address and name.
QStringList joined(const Address_Tree& tree) {
  QStringList result;
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        result.append(main->mName + u'.' + middle->mName + u' ' + tree.addressOf(*sub).toString() + u' ' + sub->mName);
      }
    }
  }
  return result;
}

/// Makes a group of each line, "main|middle|1/2/3|name|type", or "main|middle|1/2" for a group without addresses.
void build(Address_Tree& tree, const QStringList& lines) {
  for (const QString& line : lines) {
    const QStringList cells = line.split(u'|');
    const QStringList numbers = cells[2].split(u'/');
    DB_Address_MainGroup* main = tree.mainGroup(numbers[0].toInt());
    if (!main) {
      auto group = std::make_unique<DB_Address_MainGroup>();
      group->mNumber = numbers[0].toInt();
      group->mName = cells[0];
      main = tree.add(std::move(group));
    }
    DB_Address_Middle_Group* middle = tree.middleGroup(main->mNumber, numbers[1].toInt());
    if (!middle) {
      auto group = std::make_unique<DB_Address_Middle_Group>();
      group->mMainKey = main->mKey;
      group->mNumber = numbers[1].toInt();
      group->mName = cells[1];
      middle = tree.add(std::move(group));
    }
    if (numbers.size() > 2) {
      auto group = std::make_unique<DB_Address_Sub_Group>();
      group->mMiddleKey = middle->mKey;
      group->mNumber = numbers[2].toInt();
      group->mName = cells[3];
      group->mDpt = Datapoint_Id::parse(cells.value(4)).value_or(Datapoint_Id());
      tree.add(std::move(group));
    }
  }
}

/// What a project can hold, but for types that the studio does not know, which only the XML tells.
void buildVaried(Address_Tree& tree, bool withUnknownTypes) {
  const auto s = [](const char* text) { return QString::fromUtf8(text); };
  build(tree, {s("Wärme. A/B|1. OG|0/1/0|Küche – 20 €|9.001"), s("Wärme. A/B|1. OG|0/1/1|a.1/2/3|1"),
               s("Wärme. A/B|2.OG.links|0/2/0|<x> & \"y\"|"), s("|ohne|1/0/1||1.001"), s("|ohne|1/0/2|b|5.010"),
               s("a.b/c||2/7/255|c|24.001"), s("a.b/c|z|2/6/1|d|16"), s("leer|ganz leer|3/0"), s("Licht|leer|4/0"),
               s("Licht|.|4/1/1|e|232.600")});
  if (withUnknownTypes) {
    build(tree, {s("fern|EG|5/0/0|a|25.1000"), s("fern|EG|5/0/1|b|30.1010"), s("fern|EG|5/0/2|c|244.600"),
                 s("fern|EG|5/0/3|d|9.999"), s("fern|EG|5/0/4|e|60000.65535")});
  }
  DB_Address_Sub_Group* const sub = tree.subGroup({0, 1, 0});
  sub->mDescription = s("erste\n zweite\n");
  sub->mCentral = sub->mUnfiltered = true;
  sub->mSecurity = s("On");
  tree.subGroup({1, 0, 1})->mDptGuessed = true;
  tree.subGroup({1, 0, 2})->mDptGuessed = true;
  tree.subGroup({1, 0, 2})->mDptRaw = s("Uncertain (1 Byte)");
  tree.mainGroup(0)->mDescription = s("alle\nRäume");
  tree.middleGroup(4, 0)->mDescription = s("noch leer");
}

} // namespace

class Ets_Writer_Test : public QObject {
  Q_OBJECT

private slots:
  void xmlIsAsEtsWritesIt() {
    Address_Tree tree;
    build(tree, {QStringLiteral("Wärme|Küche|0/1/2|a < b & \"c\"|9.001"), QStringLiteral("Licht|leer|1/0")});
    const QUuid key = tree.subGroup({0, 1, 2})->mKey;
    tree.change(key, [](DB_Data_Base& record) {
      auto& group = static_cast<DB_Address_Sub_Group&>(record);
      group.mDescription = QStringLiteral("erste\nzweite");
      group.mCentral = true;
      group.mUnfiltered = true;
      group.mDptRaw = QStringLiteral("DPST-1-1, DPST-9-1");
      group.mSecurity = QStringLiteral("Auto");
    });
    tree.change(tree.mainGroup(1)->mKey, [](DB_Data_Base& record) {
      static_cast<DB_Address_MainGroup&>(record).mDescription = QStringLiteral("alle");
    });
    const QByteArray wanted =
        "\xef\xbb\xbf<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>\r\n"
        "<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\">\r\n"
        "  <GroupRange Name=\"Wärme\" RangeStart=\"1\" RangeEnd=\"2047\">\r\n"
        "    <GroupRange Name=\"Küche\" RangeStart=\"256\" RangeEnd=\"511\">\r\n"
        "      <GroupAddress Name=\"a &lt; b &amp; &quot;c&quot;\" Address=\"0/1/2\" Central=\"true\" "
        "Unfiltered=\"true\" "
        "Description=\"erste&#xA;zweite\" DPTs=\"DPST-1-1, DPST-9-1\" Security=\"Auto\" />\r\n"
        "    </GroupRange>\r\n"
        "  </GroupRange>\r\n"
        "  <GroupRange Name=\"Licht\" RangeStart=\"2048\" RangeEnd=\"4095\" Description=\"alle\">\r\n"
        "    <GroupRange Name=\"leer\" RangeStart=\"2048\" RangeEnd=\"2303\" />\r\n"
        "  </GroupRange>\r\n"
        "</GroupAddress-Export>";
    QCOMPARE(xmlOf(tree), wanted);
    tree.change(key, [](DB_Data_Base& record) { static_cast<DB_Address_Sub_Group&>(record).mDpt = {5, 1}; });
    QVERIFY(xmlOf(tree).contains("DPTs=\"DPST-5-1\""));
    const Address_Tree none;
    QVERIFY(xmlOf(none).endsWith("<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\" />"));
  }

  void xmlArrivesAgain() {
    const QByteArray body =
        "<GroupAddress-Export xmlns='http://knx.org/xml/ga-export/01'>"
        "<GroupRange Name='Licht' Description=' alle&#10;\tLampen' RangeStart='2048' RangeEnd='4095'>"
        "<GroupRange Name='' RangeStart='2304' RangeEnd='2559'>"
        "<GroupAddress Name='' Address='1/1/0'/>"
        "<GroupAddress Name='D&amp;&apos;&lt;x&gt; \xf0\x9f\x92\xa1' Address='1/1/255' DPTs='DPT-9' "
        "Unfiltered='1'/></GroupRange>"
        "<GroupRange Name='leer' RangeStart='2560' RangeEnd='2815'/></GroupRange>"
        "<GroupRange Name='ganz leer' RangeStart='4096' RangeEnd='6143'/>"
        "<GroupAddress Name='null' Address='0/0/0' Security='On' Description='&#x9;&#10;' /></GroupAddress-Export>";
    const Ets_Rig::Outcome first = Ets_Rig::read(body);
    QVERIFY2(first.mIsRead, qPrintable(first.mError));
    Address_Tree tree;
    Ets_Rig::fill(tree, first.mGroups);
    const QByteArray written = xmlOf(tree);
    const Ets_Rig::Outcome second = Ets_Rig::read(written);
    QVERIFY2(second.mIsRead && second.mGroups.mFaults.isEmpty(), qPrintable(second.mError));
    Address_Tree again;
    Ets_Rig::fill(again, second.mGroups);
    QCOMPARE(xmlOf(again), written);
    QCOMPARE(again.mainGroup(1)->mDescription, QStringLiteral(" alle\n Lampen"));
    QCOMPARE(again.subGroup({0, 0, 0})->mDescription, QStringLiteral("\t\n"));
    QCOMPARE(again.subGroup({1, 1, 255})->mName, QStringLiteral("D&'<x> 💡"));
    QCOMPARE(again.subGroup({1, 1, 255})->mDpt.toString(), QStringLiteral("9"));
    QVERIFY(again.mainGroup(2) && again.middleGroup(1, 2));
  }

  void esfArrivesAgain_data() {
    QTest::addColumn<QString>("project");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, const char* project, const QStringList& lines) {
      QTest::newRow(name) << QString::fromUtf8(project) << lines;
    };
    const auto s = [](const char* text) { return QString::fromUtf8(text); };
    row("plain", "Haus", {s("Licht|EG|1/2/3|Decke|1.001"), s("Licht|OG|1/3/0|Wand|")});
    row("umlauts and dashes", "Größe €", {s("Wärme|Küche – Bad|0/0/1|20 €|9.001")});
    row("not in Windows-1252", "Дом", {s("Свет|1. этаж|0/0/1|→|1.001")});
    row("1252 that looks like UTF-8", "", {s("Ã¼|b|0/0/1|a|1.001")});
    row("1252 that looks like a mark of UTF-16", "þÿ", {s("Licht|b|0/0/1|a|1.001")});
    row("1252 that looks like the other mark", "ÿþ", {s("Licht|b|0/0/1|a|1.001")});
    row("1252 that looks like the mark of UTF-8", "ï»¿ü", {s("Licht|b|0/0/1|a|1.001")});
    row("comment marks", "#1", {s("#Licht|#EG|1/2/3|#|1.001")});
    row("no names", "", {s("||1/2/3||"), s("||1/3/3||"), s("x||2/2/3||"), s("|y|3/2/3||")});
    row("points", "a.b",
        {s("1. OG|Bad.oben|1/2/3|x.1/2/3|"), s("1. OG|Bad.unten|1/3/3|x|"), s(".|..|2/0/0|.|"),
         s("a. b.c|d .e|3/0/0|x|")});
    row("XML in names", "<?xml?>", {s("<Licht>|&amp;|1/2/3|\"x\"|")});
    row("white space in names", "Haus", {s("Li\tcht|E\nG|1/2/3|De\tcke\r\nan|1.001")});
  }

  void esfArrivesAgain() {
    QFETCH(QString, project);
    QFETCH(QStringList, lines);
    Address_Tree tree;
    build(tree, lines);
    const QByteArray written = esfOf(tree, project);
    QVERIFY(written.endsWith("\tLow\t\r\n"));
    const Ets_Rig::Outcome read = Ets_Rig::read(written);
    QVERIFY2(read.mIsRead && read.mGroups.mFaults.isEmpty(),
             qPrintable(read.mError + read.mGroups.mFaults.join(u'\n')));
    QCOMPARE(read.mGroups.mProjectName, project);
    Address_Tree again;
    Ets_Rig::fill(again, read.mGroups);
    QStringList wanted = joined(tree);
    wanted.replaceInStrings(QRegularExpression(QStringLiteral("[\\t\\r\\n]+")), QStringLiteral(" "));
    QCOMPARE(joined(again), wanted);
    QCOMPARE(esfOf(again, project), written);
  }

  void esfTellsTypesBySize_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    const auto row = [](const char* type, const char* text, const char* read) {
      QTest::newRow(type) << QString::fromLatin1(text) << QString::fromLatin1(read);
    };
    row("1.001", "EIS 1 'Switching' (1 Bit)", "1.001");
    row("1.008", "EIS 7 'Drive control' (1 Bit)", "1.008");
    row("1.019", "EIS 1 'Switching' (1 Bit)", "1.001");
    row("3.007", "EIS 2 'Dimming - control' (4 Bit)", "3.007");
    row("5.001", "EIS 6 'Scaling - percent' (1 Byte)", "5.001");
    row("11.001", "EIS 4 'Date' (3 Byte)", "11.001");
    row("13.010", "EIS 11 'Counter 32bit' (4 Byte)", "12.001");
    row("14.056", "EIS 9 'Float value' (4 Byte)", "14");
    row("17.001", "Uncertain (1 Byte)", "5.001");
    row("19.001", "Uncertain (8 Byte)", "19.001");
    row("232.600", "Uncertain (3 Byte)", "10.001");
    row("16.000", "EIS 15 'Character String' (14 Byte)", "16.001");
    row("24.001", "Unknown", "");
    row("", "Unknown", "");
  }

  void esfTellsTypesBySize() {
    QFETCH(QString, text);
    Address_Tree tree;
    build(tree, {QStringLiteral("a|b|1/2/3|c|") + QString::fromLatin1(QTest::currentDataTag())});
    const QByteArray written = esfOf(tree, {});
    QCOMPARE(written, "\r\na.b.1/2/3\tc\t" + text.toLatin1() + "\tLow\t\r\n");
    QTEST(Ets_Rig::read(written).mGroups.mAddresses[0].mDpt.toString(), "read");
  }

  void esfTellsTheSizeOfEveryType() {
    static const QRegularExpression size(QStringLiteral("\\((\\d+) (Bit|Byte)\\)$"));
    for (const Datapoint_Type& type : Datapoint_Types::all()) {
      const QRegularExpressionMatch told = size.match(Ets_Esf_Types::textOf(type.mId));
      const int bits = told.captured(1).toInt() * (told.captured(2) == u"Byte" ? 8 : 1);
      QVERIFY2(bits == Datapoint_Types::bitsOf(type.mId), qPrintable(type.mId.toString()));
    }
  }

  void esfKeepsTheTextOfTheImport() {
    const QByteArray bytes = "Haus\r\nLicht.EG.1/2/3\tDecke\tUnbestimmt (2 Byte)\tLow\t\r\n";
    Address_Tree tree;
    Ets_Rig::fill(tree, Ets_Rig::read(bytes).mGroups);
    QCOMPARE(esfOf(tree, QStringLiteral("Haus")), bytes);
  }

  void whatDoesNotFitIsTold() {
    Address_Tree tree;
    build(tree, {QStringLiteral("Licht|EG|1/2/3|gut|"), QStringLiteral("Licht|EG|1/2/256|x|"),
                 QStringLiteral("Licht|hoch|1/8/0|x|"), QStringLiteral("fern|a|32/0/1|x|"),
                 QStringLiteral("fern|b|32/1/1|x|"), QStringLiteral("Licht|leer|1/3")});
    auto repeated = std::make_unique<DB_Address_Sub_Group>();
    repeated->mMiddleKey = tree.middleGroup(1, 2)->mKey;
    repeated->mNumber = 3;
    repeated->mName = QStringLiteral("doppelt");
    tree.add(std::move(repeated));
    Ets_Write_Result xml;
    const QByteArray xmlBytes = xmlOf(tree, &xml);
    Ets_Write_Result esf;
    const QByteArray esfBytes = esfOf(tree, {}, &esf);
    QVERIFY(xml.isOk() && esf.isOk());
    QCOMPARE(xml.mAddresses, 1);
    QCOMPARE(xml.mLeftOut, 5);
    QCOMPARE(xml.mOmitted.size(), 4);
    QVERIFY2(xml.mOmitted[0].contains(QStringLiteral("1/2/3 \"doppelt\"")), qPrintable(xml.mOmitted[0]));
    QVERIFY2(xml.mOmitted[3].contains(QStringLiteral("32 \"fern\" (Gruppenadressen: 2)")), qPrintable(xml.mOmitted[3]));
    QCOMPARE(esf.mLeftOut, 5);
    QCOMPARE(esf.mOmitted.size(), 5);
    for (const QByteArray& bytes : {xmlBytes, esfBytes}) {
      const Ets_Rig::Outcome read = Ets_Rig::read(bytes);
      QVERIFY2(read.mIsRead && read.mGroups.mFaults.isEmpty(), qPrintable(read.mError));
      QCOMPARE(read.mGroups.mAddresses.size(), size_t(1));
      QCOMPARE(read.mGroups.mAddresses[0].mName, QStringLiteral("gut"));
    }
    QBuffer closed;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): device not open");
    QVERIFY(!Ets_Xml_Writer::write(tree, closed).isOk());
  }

  void whatTheFormatDoesNotKnowIsTold() {
    Address_Tree tree;
    buildVaried(tree, false);
    Ets_Write_Result plain;
    xmlOf(tree, &plain);
    const QString guesses = QStringLiteral("Vermutete Datenpunkttypen: 2; die Datei nennt nur bestätigte.");
    QCOMPARE(plain.mOmitted, QStringList(guesses));
    for (const Group_Address address : {Group_Address(0, 1, 0), Group_Address(1, 0, 1), Group_Address(2, 6, 1)}) {
      tree.subGroup(address)->mReadAtStart = true;
    }
    tree.subGroup({0, 1, 1})->mActive = false;
    tree.subGroup({0, 2, 0})->mSecurity = QStringLiteral("Auto");
    Ets_Write_Result xml;
    xmlOf(tree, &xml);
    const QString flags = QStringLiteral("Gruppenadressen: 4.");
    QVERIFY2(xml.mOmitted.size() == 2 && xml.mOmitted[1].endsWith(flags), qPrintable(xml.mOmitted.join(u'\n')));
    Ets_Write_Result esf;
    esfOf(tree, {}, &esf);
    // 1, 24.001, 16 and 232.600; what was guessed from a size is no loss.
    QCOMPARE(esf.mOmitted.mid(0, 4).join(u'|'),
             QStringLiteral("Beschreibungen: 3.|Genaue Datenpunkttypen: 4; die Datei nennt nur ihre Größe.|"
                            "Gesetzte Angaben zu Zentral, Ungefiltert und Sicherheit, Gruppenadressen: 1.|"
                            "Eigene Angaben zu Lesen Start, Lesen zyklisch, Schreiben und Aktiv, ") +
                 flags);
    QCOMPARE(esf.mOmitted.size(), 6); // and two groups without addresses
  }

  void aFileIsReplacedAsAWhole() {
    Session_Rig rig;
    QVERIFY(rig.create());
    rig.addAddress({1, 2, 3}, QStringLiteral("Decke"));
    for (const QString& name : {QStringLiteral("a.xml"), QStringLiteral("a.ESF")}) {
      QFile old(rig.path(name));
      QVERIFY(old.open(QIODevice::WriteOnly) && old.write(QByteArray(100'000, 'x')) > 0);
      old.close();
      Ets_Write_Result result;
      const Edit_Result written = Ets_Export::write(rig.mSession, rig.path(name), result);
      QVERIFY2(bool(written), qPrintable(written.mError));
      const QByteArray bytes = Session_Rig::bytesOf(rig.path(name));
      QCOMPARE(bytes, name == u"a.xml" ? xmlOf(rig.mSession.database().mAddresses)
                                       : esfOf(rig.mSession.database().mAddresses, QStringLiteral("Haus")));
      QCOMPARE(Ets_Rig::texts(Ets_Rig::read(bytes).mGroups), QStringList(QStringLiteral("1/2/3 Decke")));
    }
  }

  void aFileThatCannotBeWrittenIsToldAndTheOldOneStays() {
    Session_Rig rig;
    QVERIFY(rig.create());
    rig.addAddress({1, 2, 3}, QStringLiteral("Decke"));
    QDir folder(rig.folder());
    QVERIFY(folder.mkdir(QStringLiteral("fest")) && folder.mkdir(QStringLiteral("ordner.xml")));
    QFile old(rig.path(QStringLiteral("fest/alt.xml")));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("alt") == 3);
    old.close();
    const QString locked = rig.path(QStringLiteral("fest"));
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
    QFile probe(locked + QStringLiteral("/probe"));
    const bool isLocked = !probe.open(QIODevice::WriteOnly);
    probe.remove();
    for (const QString& name : {QStringLiteral("fehlt/a.xml"), QStringLiteral("fehlt/a.esf"),
                                QStringLiteral("ordner.xml"), QStringLiteral("fest/alt.xml")}) {
      if (name.startsWith(u"fest") && !isLocked) {
        continue; // root may write everywhere
      }
      Ets_Write_Result result;
      const Edit_Result written = Ets_Export::write(rig.mSession, rig.path(name), result);
      QVERIFY2(!written, qPrintable(name));
      const QString start =
          QStringLiteral("Die Datei \"%1\" konnte nicht geschrieben werden: ").arg(name.section(u'/', -1));
      QVERIFY2(written.mError.startsWith(start), qPrintable(written.mError));
      QVERIFY2(written.mError.contains(QStringLiteral("Ordner")), qPrintable(written.mError));
    }
    QCOMPARE(Session_Rig::bytesOf(old.fileName()), QByteArray("alt"));
    QVERIFY(QFile::setPermissions(locked, all));
    QCOMPARE(QDir(locked).entryList(QDir::Files), QStringList(QStringLiteral("alt.xml")));
    QVERIFY(!folder.exists(QStringLiteral("fehlt")));
  }

  void anExportChangesNothingWhenItIsImported_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("XML") << QStringLiteral("a.xml");
    QTest::newRow("ESF") << QStringLiteral("a.ESF");
  }

  void anExportChangesNothingWhenItIsImported() {
    QFETCH(QString, file);
    Session_Rig rig;
    QVERIFY(rig.create());
    ProjectDatabase& database = rig.mSession.database();
    buildVaried(database.mAddresses, true);
    Ets_Write_Result result;
    const Edit_Result written = Ets_Export::write(rig.mSession, rig.path(file), result);
    QVERIFY2(bool(written), qPrintable(written.mError));
    QCOMPARE(result.mAddresses, 13);
    const Ets_Rig::Outcome read = Ets_Rig::read(Session_Rig::bytesOf(rig.path(file)));
    QVERIFY2(read.mIsRead && read.mGroups.mFaults.isEmpty(), qPrintable(read.mError));
    QCOMPARE(read.mGroups.mAddresses.size(), size_t(result.mAddresses));
    QCOMPARE(read.mGroups.mFormat, file.endsWith(u".xml") ? Ets_Groups::Format::Xml : Ets_Groups::Format::Esf);
    QStringList rows;
    const Address_Import_Plan plan = Address_Import::compare(database, read.mGroups);
    for (const Address_Import_Row& row : plan.rows()) {
      rows.append(QStringLiteral("%1 %2 %3 %4")
                      .arg(static_cast<int>(row.mKind))
                      .arg(row.addressText(), row.mIncoming.mName, row.mIncoming.mDpt.toString()));
    }
    QCOMPARE(rows.join(u'\n'), QString());
  }
};

QTEST_GUILESS_MAIN(Ets_Writer_Test)
#include "Ets_Writer_Test.moc"
