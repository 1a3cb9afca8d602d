#include "base/Version.h"

#include <QtTest>

class Version_Test : public QObject {
  Q_OBJECT

private slots:
  void isNewer() {
    for (const char* const newer : {"2.3147", "2.4", "3", " 2.4 "}) {
      QVERIFY2(Version::isNewerThanStudio(QString::fromUtf8(newer)), newer);
    }
    // Decimals count as in a number; what is no number is not newer.
    for (const char* const other : {"2.3146", "2.31460", "2.3145", "2.31459", "0.000", "", "abc", "3.0 beta", "2.4.1",
                                    "2,4", "2,314", "inf", "nan", "３.0"}) {
      QVERIFY2(!Version::isNewerThanStudio(QString::fromUtf8(other)), other);
    }
    QVERIFY(!Version::isNewerThanStudio(Version::studio()));
  }
};

QTEST_APPLESS_MAIN(Version_Test)
#include "Version_Test.moc"
