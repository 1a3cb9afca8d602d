#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"

#include <QtTest>

class FB_Pins_Test : public QObject {
  Q_OBJECT

private slots:
  void theCountIsCorrected_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("corrected");
    QTest::addColumn<int>("inputs");
    for (const char* text : {"1", "", "abc", "-5", "2.5", "0x10", "4294967298", "99999999999999999999"}) {
      QTest::newRow(text) << 50 << text << "2" << 2;
    }
    QTest::newRow("9") << 50 << "9"
                       << "9" << 9;
    QTest::newRow("40") << 50 << "40"
                        << "40" << 40;
    QTest::newRow("above the editor") << 52 << "40"
                                      << "40" << 40;
    QTest::newRow("all") << 50 << "1024"
                         << "1024" << 1024;
    QTest::newRow("above all") << 50 << "1000000"
                               << "1000000" << 1024;
    QTest::newRow("above all, four pins each") << 1937 << "1000000"
                                               << "1000000" << 3 * 256;
    QTest::newRow("above all, behind a fixed pin") << 60 << "1000000"
                                                   << "1000000" << 1024;
    QTest::newRow("largest") << 50 << "2147483647"
                             << "2147483647" << 1024;
    QTest::newRow("no 32 bits") << 50 << "2147483648"
                                << "2" << 2;
    QTest::newRow("minimum of the type") << 53 << "1"
                                         << "1" << 1;
    QTest::newRow("behind a fixed pin") << 60 << "0"
                                        << "2" << 3;
  }
  void theCountIsCorrected() {
    QFETCH(int, type);
    QFETCH(QString, count);
    const auto block = FB_Pins::makeBlock(type, {});
    const bool isWrong = count != block->mParams.at(0);
    block->mParams[0] = count;
    QCOMPARE(FB_Pins::isBuilt(*block), !isWrong);
    FB_Pins::rebuild(*block);
    QCOMPARE(FB_Pins::missingPins(*block).isEmpty(), count.toInt() <= FB_Pins::cMostPins);
    QTEST(block->mParams.at(0), "corrected");
    QTEST(int(block->mInputs.size()), "inputs");
    QVERIFY(FB_Pins::isBuilt(*block));
  }

  void pinsAreNumbered() {
    const auto block = FB_Pins::makeBlock(50, {16, 32.5});
    QVERIFY(!block->mGuid.isNull() && block->mX == 16 && block->mY == 32.5);
    QCOMPARE(block->mParams, (QStringList{"2", "0", "0"}));
    block->mParams[0] = QStringLiteral("10");
    FB_Pins::rebuild(*block);
    QCOMPARE(block->mInputs[0].mLongName, QStringLiteral("Eingang 1"));
    QCOMPARE(block->mInputs[8].mShortName, QStringLiteral("E9"));
    QCOMPARE(block->mInputs[9].mLongName, QStringLiteral("Eingang 10"));
    QCOMPARE(block->mInputs[9].mShortName, QStringLiteral("E10"));
    QVERIFY(block->mOutputs.size() == 1 && block->mOutputs[0].mShortName == u"A");
    QVERIFY(!FB_Pins::makeBlock(49, {}));
  }

  void pinsThatStayKeepTheirBinding_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("bound");
    QTest::addColumn<QString>("count");
    QTest::addColumn<int>("foundAt");
    QTest::newRow("grown") << 50 << 1 << "5" << 1;
    QTest::newRow("shrunk, stays") << 50 << 1 << "2" << 1;
    QTest::newRow("shrunk, gone") << 50 << 3 << "2" << -1;
    QTest::newRow("shrunk by a wrong count") << 50 << 0 << "x" << 0;
    QTest::newRow("fixed pin") << 60 << 0 << "9" << 0;
    QTest::newRow("behind a fixed pin") << 60 << 2 << "2" << 2;
  }
  void pinsThatStayKeepTheirBinding() {
    QFETCH(int, type);
    QFETCH(int, bound);
    QFETCH(QString, count);
    QFETCH(int, foundAt);
    const auto block = FB_Pins::makeBlock(type, {});
    block->mParams[0] = QStringLiteral("4");
    FB_Pins::rebuild(*block);
    const auto key = QUuid::createUuid();
    block->mInputs.at(size_t(bound)).mBinding.mKey = key;
    block->mOutputs.at(0).mBinding.mKey = key;
    for (DB_FB_Pin* const pin : {&block->mInputs[size_t(bound)], &block->mOutputs[0]}) {
      pin->mBinding.mKind = DB_Address_Binding::Kind::Internal;
    }
    const QStringList lost = foundAt < 0 ? QStringList{block->mInputs[size_t(bound)].mLongName} : QStringList();
    QCOMPARE(FB_Pins::lostBindings(*block, 0, count), lost);
    block->mParams[0] = count;
    FB_Pins::rebuild(*block);
    for (int i = 0; i < int(block->mInputs.size()); ++i) {
      QCOMPARE(block->mInputs[size_t(i)].mBinding.mKey == key, i == foundAt);
    }
    QVERIFY(block->mOutputs.at(0).mBinding.mKey == key);
  }

  void whatIsNotDeclaredStays() {
    const auto block = FB_Pins::makeBlock(2048, {});
    QVERIFY(block && block->mInputs.empty());
    block->mInputs.resize(3);
    block->mParams = {QStringLiteral("x")};
    FB_Pins::rebuild(*block);
    QCOMPARE(block->mInputs.size(), size_t(3));
    QCOMPARE(block->mParams, QStringList{"x"});
    block->mType = FB_Types::cComment; // stands in for an unknown type
    block->mOriginalType = 54321;
    FB_Pins::rebuild(*block);
    QCOMPARE(block->mInputs.size(), size_t(3));
    QVERIFY(FB_Pins::isBuilt(*block));
  }

  void everyTypeIsMadeAsDeclared() {
    for (const FB_Type* type : FB_Types::all()) {
      const auto block = FB_Pins::makeBlock(type->mId, {});
      QCOMPARE(size_t(block->mParams.size()), type->mParameters.size());
      QVERIFY2(FB_Pins::isBuilt(*block), type->mClass);
    }
  }
};

QTEST_GUILESS_MAIN(FB_Pins_Test)
#include "FB_Pins_Test.moc"
