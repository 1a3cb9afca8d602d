#include "app/Ets_Import.h"
#include "tests/db/Session_Rig.h"

namespace {

QByteArray document(const QByteArray& addresses) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
         "<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\">"
         "<GroupRange Name=\"Licht\" RangeStart=\"2048\" RangeEnd=\"4095\">"
         "<GroupRange Name=\"Schalten\" RangeStart=\"2304\" RangeEnd=\"2559\">" +
         addresses + "</GroupRange></GroupRange></GroupAddress-Export>";
}

} // namespace

class Ets_Import_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de"))); }

  void theOutcomeIsToldInWords_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isDone");
    QTest::addColumn<int>("addresses");
    QTest::addColumn<QStringList>("said");
    const QByteArray kitchen = "<GroupAddress Name=\"Küche\" Address=\"1/1/1\"/>";
    QTest::newRow("all new") << document(kitchen + "<GroupAddress Name=\"Bad\" Address=\"1/1/2\"/>") << true << 3
                             << QStringList{"Neue Gruppenadressen aus \"export.xml\": 2."};
    QTest::newRow("one there already") << document("<GroupAddress Name=\"x\" Address=\"1/1/0\"/>" + kitchen) << true
                                       << 2 << QStringList{"export.xml\": 1.", "Schon vorhanden und unverändert: 1."};
    QTest::newRow("named twice") << document(kitchen + kitchen) << true << 2
                                 << QStringList{"der erste Eintrag zählt: 1."};
    QTest::newRow("with faults")
        << document(kitchen + QByteArray("<GroupAddress Name=\"y\" Address=\"99/9/999\"/>").repeated(1012)) << true << 2
        << QStringList{"Nicht übernommen: ", "99/9/999", "… und "};
    QTest::newRow("cut off") << document(kitchen).left(200) << false << 1
                             << QStringList{"Die Datei \"export.xml\" wurde nicht importiert."};
    QTest::newRow("no export") << QByteArray("<html/>") << false << 1 << QStringList{"wurde nicht importiert"};
  }

  void theOutcomeIsToldInWords() {
    QFETCH(QByteArray, file);
    QFETCH(bool, isDone);
    QFETCH(int, addresses);
    QFETCH(QStringList, said);
    Session_Rig rig;
    QVERIFY(rig.create());
    rig.addAddress({1, 1, 0}, QStringLiteral("da"));
    QFile out(rig.path(QStringLiteral("export.xml")));
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(file);
    out.close();
    const Ets_Import::Outcome outcome = Ets_Import::run(rig.mSession, out.fileName());
    QCOMPARE(outcome.mIsDone, isDone);
    for (const QString& part : said) {
      QVERIFY2(outcome.mText.contains(part), qPrintable(outcome.mText));
    }
    QVERIFY(outcome.mText.count(u'\n') < 20);
    const Address_Tree& tree = rig.mSession.database().mAddresses;
    QCOMPARE(tree.subGroupCount(), addresses);
    QCOMPARE(rig.mSession.isModified(), isDone);
    if (isDone) {
      QVERIFY(rig.mSession.history().undo());
      QCOMPARE(tree.subGroupCount(), 1);
    }
  }

  void theOperatingModeRefuses() {
    Session_Rig rig;
    QVERIFY(rig.create());
    rig.mState.setOperatingMode(true);
    QFile out(rig.path(QStringLiteral("export.xml")));
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(document("<GroupAddress Name=\"Bad\" Address=\"1/1/2\"/>"));
    out.close();
    const Ets_Import::Outcome outcome = Ets_Import::run(rig.mSession, out.fileName());
    QVERIFY(!outcome.mIsDone);
    QVERIFY(outcome.mText.contains(Session_State::operatingModeRefusal()));
    QCOMPARE(rig.mSession.database().mAddresses.subGroupCount(), 0);
  }
};

QTEST_GUILESS_MAIN(Ets_Import_Test)
#include "Ets_Import_Test.moc"
