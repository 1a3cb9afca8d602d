#include "base/Version.h"

#include <QtTest>

class Version_Test : public QObject {
  Q_OBJECT

private slots:
  void isNewer_data() {
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isNewer");
    QTest::newRow("the studio's own") << Version::studio() << false;
    QTest::newRow("equal with a zero") << QStringLiteral("2.31460") << false;
    QTest::newRow("just above") << QStringLiteral("2.3147") << true;
    QTest::newRow("just below") << QStringLiteral("2.3145") << false;
    QTest::newRow("fewer decimals are a larger number") << QStringLiteral("2.4") << true;
    QTest::newRow("more decimals are a smaller number") << QStringLiteral("2.31459") << false;
    QTest::newRow("whole number") << QStringLiteral("3") << true;
    QTest::newRow("blanks around") << QStringLiteral(" 2.4 ") << true;
    QTest::newRow("older layout") << QStringLiteral("0.000") << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("text") << QStringLiteral("abc") << false;
    QTest::newRow("number and text") << QStringLiteral("3.0 beta") << false;
    QTest::newRow("three parts are no number") << QStringLiteral("2.4.1") << false;
    QTest::newRow("comma") << QStringLiteral("2,4") << false;
    QTest::newRow("comma between thousands") << QStringLiteral("2,314") << false;
    QTest::newRow("infinite") << QStringLiteral("inf") << false;
    QTest::newRow("not a number") << QStringLiteral("nan") << false;
    QTest::newRow("full-width digits") << QStringLiteral("３.0") << false;
  }

  void isNewer() {
    QFETCH(QString, version);
    QTEST(Version::isNewerThanStudio(version), "isNewer");
  }
};

QTEST_APPLESS_MAIN(Version_Test)
#include "Version_Test.moc"
