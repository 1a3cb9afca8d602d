#include "db/DB_Scramble.h"
#include "db/DB_Tables.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

class DB_Scramble_Test : public QObject {
  Q_OBJECT

private slots:
  void roundTrip() {
    QRandomGenerator random(7);
    const QRegularExpression form(QStringLiteral("^[A-Za-z0-9+/]*!{0,2}$"));
    for (int size = 0; size <= 300; ++size) {
      QByteArray plain(size, '\0');
      std::generate(plain.begin(), plain.end(), [&random] { return static_cast<char>(random.bounded(256)); });
      const QByteArray scrambled = DB_Scramble::scramble(plain);
      QCOMPARE(scrambled.size(), (size + 2) / 3 * 4);
      QVERIFY2(form.match(QString::fromLatin1(scrambled)).hasMatch(), scrambled);
      QCOMPARE(scrambled.count('!'), (3 - size % 3) % 3);
      QVERIFY(size < 3 || scrambled != plain.toBase64());
      bool isWhole = false;
      QCOMPARE(DB_Scramble::unscramble(scrambled, &isWhole), plain);
      QVERIFY(isWhole);
    }
  }

  void everyCharacterOfTheAlphabet() {
    QByteArray plain;
    for (int i = 0; i < 64; ++i) {
      plain += static_cast<char>(i << 2);
    }
    QSet<char> alphabet;
    for (const char c : plain) {
      alphabet.insert(DB_Scramble::scramble(QByteArray(1, c)).front());
    }
    QCOMPARE(alphabet.size(), 64);
    QVERIFY(!alphabet.contains('='));
  }

  void broken_data() {
    QTest::addColumn<QByteArray>("scrambled");
    QTest::addColumn<QByteArray>("plain");
    QTest::addColumn<bool>("isWhole");
    const QByteArray six = DB_Scramble::scramble("abcdef");
    const QByteArray two = DB_Scramble::scramble("ab");
    QTest::newRow("nothing") << QByteArray() << QByteArray() << true;
    QTest::newRow("foreign character first") << "=" + six << QByteArray() << false;
    QTest::newRow("foreign character in the first group")
        << six.first(3) + '-' + six.mid(3) << QByteArray("ab") << false;
    QTest::newRow("foreign character between groups") << six.first(4) + ' ' + six.mid(4) << QByteArray("abc") << false;
    QTest::newRow("base64 padding") << two.first(3) + '=' << QByteArray("ab") << false;
    QTest::newRow("character above 127") << six.first(4) + "\xe4" + six.mid(4) << QByteArray("abc") << false;
    QTest::newRow("zero byte") << six.first(4) + '\0' + six.mid(4) << QByteArray("abc") << false;
    QTest::newRow("text behind the padding") << two + six << QByteArray("ab") << true;
    QTest::newRow("two left over") << six.first(6) << QByteArray("abcd") << true;
    QTest::newRow("three left over") << six.first(7) << QByteArray("abcde") << true;
    QTest::newRow("one left over yields nothing") << six.first(5) << QByteArray("abc") << false;
    QTest::newRow("one left over before the padding") << six.first(5) + '!' << QByteArray("abc") << false;
  }

  void broken() {
    QFETCH(QByteArray, scrambled);
    QFETCH(bool, isWhole);
    bool isReallyWhole = !isWhole;
    QTEST(DB_Scramble::unscramble(scrambled, &isReallyWhole), "plain");
    QCOMPARE(isReallyWhole, isWhole);
  }

  void tableNames() {
    QSet<QByteArray> names;
    for (const DB_Table_Row& row : DB_Tables::all()) {
      const QByteArray name = row.mName;
      QVERIFY2(name.size() >= 8 && name.size() <= 36, name);
      QCOMPARE(name, DB_Scramble::scramble(row.mPlainName));
      QCOMPARE(static_cast<size_t>(row.mTable), static_cast<size_t>(&row - DB_Tables::all().data()));
      QVERIFY(!DB_Tables::germanName(row.mTable).isEmpty());
      names.insert(name.toLower());
    }
    QCOMPARE(names.size(), 24);
  }
};

QTEST_APPLESS_MAIN(DB_Scramble_Test)
#include "DB_Scramble_Test.moc"
