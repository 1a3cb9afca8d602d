#include "app/Palette_Search.h"
#include "tests/db/Session_Rig.h"

using namespace Qt::StringLiterals;

class Palette_Search_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mRig->addAddress({1, 2, 3}, u"Küche Licht schalten"_s);
    mRig->addAddress({1, 2, 30}, u"Licht Küche Status"_s);
    mRig->addAddress({11, 2, 3}, u"Speicher Temperatur"_s);
    for (int i = 0; i < 40; ++i) {
      mRig->addAddress({2, 0, i}, u"Raum %1"_s.arg(i));
    }
  }

  void finds_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("titles");
    const auto row = [](const char* name, const QString& text, const QStringList& titles) {
      QTest::newRow(name) << text << titles;
    };
    row("nothing", u"xyzzy"_s, {});
    row("the start of a command", u"speichern"_s,
        {u"Speichern"_s, u"Speichern unter"_s, u"Persistente Werte an Steuerung speichern!"_s,
         u"Bootprojekt erzeugen!"_s});
    row("a word inside, in any case", u"UNTER"_s,
        {u"Speichern unter"_s, u"Unten ausrichten!"_s, u"Unten ausrichten!"_s});
    row("words in any order", u"küche licht"_s, {u"1/2/3"_s, u"1/2/30"_s});
    row("an address, and longer ones behind it", u"1/2/3"_s, {u"1/2/3"_s, u"1/2/30"_s, u"11/2/3"_s});
    row("a page", u"programm 1"_s, {u"Programm 1"_s});
    row("menu and name of a command", u"extras export"_s,
        {u"Adressen ODBC Export"_s, u"Adressen ODBC Import (ESF/XML)"_s, u"GDAS Manager Import (JSON)!"_s});
    row("a number in a name", u"raum 7"_s, {u"2/0/7"_s, u"2/0/17"_s, u"2/0/27"_s, u"2/0/37"_s});
  }
  void finds() {
    QFETCH(QString, text);
    Action_State state;
    state.mIsOpen = true;
    QStringList titles;
    for (const Palette_Entry& entry : Palette_Search::find(text, state, mRig->mSession.database())) {
      titles.append(entry.mIsEnabled ? entry.mTitle : entry.mTitle + u'!');
    }
    QTEST(titles, "titles");
  }

  void offersAtMostSoMany() {
    const auto found = Palette_Search::find(u"Raum"_s, {}, mRig->mSession.database());
    QCOMPARE(found.size(), Palette_Search::cAddressLimit);
    for (const Palette_Entry& entry : Palette_Search::find({}, {}, mRig->mSession.database())) {
      QVERIFY(entry.mIsEnabled && entry.mKind != Palette_Entry::Kind::Address);
    }
  }

private:
  std::unique_ptr<Session_Rig> mRig;
};

QTEST_GUILESS_MAIN(Palette_Search_Test)
#include "Palette_Search_Test.moc"
