#include "db/DB_Scramble.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

class DB_Scramble_Test : public QObject {
  Q_OBJECT

private slots:
  void roundTrip() {
    QRandomGenerator random(7);
    const QRegularExpression form(QStringLiteral("^[A-Za-z0-9+/]*!{0,2}$"));
    for (int size = 0; size <= 300; ++size) {
      QByteArray plain(size, '\0');
      std::generate(plain.begin(), plain.end(),
                    [&random, size] { return static_cast<char>(random.bounded(size % 2 ? 128 : 256)); });
      const QByteArray scrambled = DB_Scramble::scramble(plain);
      QCOMPARE(scrambled.size(), (size + 2) / 3 * 4);
      QVERIFY2(form.match(QString::fromLatin1(scrambled)).hasMatch(), scrambled);
      QCOMPARE(scrambled.count('!'), (3 - size % 3) % 3);
      QVERIFY(size < 3 || scrambled != plain.toBase64());
      DB_Scramble::Findings findings;
      QCOMPARE(DB_Scramble::unscramble(scrambled, &findings), plain);
      QVERIFY(findings.mIsWhole);
      QCOMPARE(findings.mIsAscii, std::none_of(plain.cbegin(), plain.cend(), [](char c) { return c & 0x80; }));
    }
  }

  void broken() {
    struct Case {
      QByteArray mScrambled;
      QByteArray mPlain;
      bool mIsWhole;
    };
    const QByteArray six = DB_Scramble::scramble("abcdef");
    const QByteArray two = DB_Scramble::scramble("ab");
    for (const Case& row : {Case{{}, {}, true},
                            {"=" + six, {}, false},
                            {six.first(3) + '-' + six.mid(3), "ab", false},
                            {six.first(4) + ' ' + six.mid(4), "abc", false},
                            {two.first(3) + '=', "ab", false},
                            {six.first(4) + "\xe4" + six.mid(4), "abc", false},
                            {six.first(4) + '\0' + six.mid(4), "abc", false},
                            {two + six, "ab", false},
                            {six.first(6), "abcd", false},
                            {six.first(7), "abcde", false},
                            {six.first(5), "abc", false},
                            {six.first(5) + '!', "abc", false}}) {
      DB_Scramble::Findings findings;
      QCOMPARE(DB_Scramble::unscramble(row.mScrambled, &findings), row.mPlain);
      QCOMPARE(findings.mIsWhole, row.mIsWhole);
    }
  }
};

QTEST_APPLESS_MAIN(DB_Scramble_Test)
#include "DB_Scramble_Test.moc"
