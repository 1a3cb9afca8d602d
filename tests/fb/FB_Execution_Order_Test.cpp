#include "fb/model/FB_Execution_Order.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "tests/db/Session_Rig.h"

#include <QtTest>

/// Three pages: "And, comment, And" each.
class FB_Execution_Order_Test : public QObject {
  Q_OBJECT

private slots:
  void numbers_data() {
    QTest::addColumn<bool>("isFirstActive");
    QTest::addColumn<QList<int>>("controllers"); // of the pages
    QTest::addColumn<int>("own");                // number in the record of the last block
    QTest::addColumn<QList<int>>("numbers");     // of the last page
    QTest::newRow("page by page") << true << QList{0, 0, 0} << 0 << QList{5, 0, 6};
    QTest::newRow("page switched off") << false << QList{0, 0, 0} << 0 << QList{3, 0, 4};
    QTest::newRow("page of another controller") << true << QList{2, 0, 0} << 0 << QList{3, 0, 4};
    QTest::newRow("main controller by its number") << true << QList{1, 0, 2} << 0 << QList{1, 0, 2};
    QTest::newRow("controller that is gone") << true << QList{2, 9, 0} << 0 << QList{3, 0, 4};
    QTest::newRow("numbered by the record") << true << QList{0, 0, 0} << 70 << QList{5, 0, 70};
  }
  void numbers() {
    QFETCH(bool, isFirstActive);
    QFETCH(QList<int>, controllers);
    QFETCH(int, own);
    Session_Rig rig;
    QVERIFY(rig.create());
    ProjectDatabase& database = rig.mSession.database();
    database.mProject.mControllers.resize(2);
    database.mProject.mControllers[0].mNumber = 1;
    database.mProject.mControllers[0].mIsMain = true;
    database.mProject.mControllers[1].mNumber = 2;
    DB_Page_List<DB_FB_Page>& list = database.mFbPages;
    QUuid last;
    for (int i = 0; i < 3; ++i) {
      DB_FB_Page& page = i == 0 ? list.pages().at(0) : list.insertPage(i, std::make_unique<DB_FB_Page>());
      page.mActive = i > 0 || isFirstActive;
      page.mControllerIndex = controllers.at(i);
      for (const int type : {50, FB_Types::cComment, 50}) {
        auto block = FB_Pins::makeBlock(type, {});
        block->mPageGuid = page.mGuid;
        last = list.appendChild(std::move(block))->mGuid;
      }
    }
    list.child(last)->mExecutionNumber = own;
    const std::vector<int> found = FB_Execution_Order::ofPage(database, list.pages().at(2));
    QTEST(QList<int>(found.begin(), found.end()), "numbers");
    QCOMPARE(FB_Execution_Order::ofBlock(database, last), found.back());
    list.pages().at(2).mActive = false;
    QCOMPARE(FB_Execution_Order::ofBlock(database, last), 0);
    QCOMPARE(FB_Execution_Order::ofBlock(database, {}), 0);
  }
};

QTEST_GUILESS_MAIN(FB_Execution_Order_Test)
#include "FB_Execution_Order_Test.moc"
