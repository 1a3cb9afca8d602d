#include "base/Datapoint_Id.h"

#include <QtTest>

class Datapoint_Id_Test : public QObject {
  Q_OBJECT

private slots:
  void parse() {
    struct Case {
      const char* mText;
      const char* mShown;
      const char* mEts;
    };
    for (const Case& row : {Case{"9.001", "9.001", "DPST-9-1"},
                            {"9.1", "9.001", "DPST-9-1"},
                            {" 14.000 ", "14.000", "DPST-14-0"},
                            {"DPST-14-1200", "14.1200", "DPST-14-1200"},
                            {"dpt-9", "9", "DPT-9"},
                            {"DPT 5.001", "5.001", "DPST-5-1"},
                            {"65535", "65535", "DPT-65535"}}) {
      const std::optional<Datapoint_Id> id = Datapoint_Id::parse(QString::fromLatin1(row.mText));
      QVERIFY2(id, row.mText);
      QCOMPARE(id->toString(), row.mShown);
      QCOMPARE(id->toEtsText(), row.mEts);
      QCOMPARE(Datapoint_Id::parse(QString::fromLatin1(row.mEts)), id);
    }
    for (const char* const refused : {"", "0", "0.001", "9.", ".1", "9.001.2", "-9", "9,001", "65536", "1.65536",
                                      "DPST-", "DPST-9-1-1", "DPT--9", "EIS 5", "999999999999", "９.001"}) {
      QVERIFY2(!Datapoint_Id::parse(QString::fromUtf8(refused)), refused);
    }
  }
};

QTEST_APPLESS_MAIN(Datapoint_Id_Test)
#include "Datapoint_Id_Test.moc"
