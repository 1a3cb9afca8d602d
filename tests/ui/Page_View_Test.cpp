#include "tests/db/Session_Rig.h"
#include "ui/Page_View.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeView>

/// The tab of pages, used through its keys and read from its widgets. A model tester stands beside it.
class Page_View_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    mView = std::make_unique<Page_View>(mRig->mSession);
    mView->resize(400, 600);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    mTree = mView->findChild<QTreeView*>();
    new QAbstractItemModelTester(mTree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, mView.get());
    mName = mView->findChild<QLineEdit*>();
  }

  void cleanup() {
    mView.reset();
    mRig.reset();
  }

  void renameInTheDetails() {
    QVERIFY(mRig->create());
    select(0, 0);
    for (const auto& [typed, key, isTaken] :
         {std::tuple("Neu", Qt::Key_Return, true), std::tuple("Neu", Qt::Key_Tab, true),
          std::tuple("Neu", Qt::Key_Escape, false), std::tuple(" ", Qt::Key_Return, false)}) {
      const QSignalSpy refused(mView.get(), &Page_View::refused);
      mName->setFocus();
      mName->selectAll();
      QTest::keyClicks(mName, QLatin1String(typed));
      QTest::keyClick(mName, key);
      mTree->setFocus();
      QCoreApplication::processEvents();
      QCOMPARE(refused.size(), *typed == ' ' ? 1 : 0);
      QCOMPARE(mName->text(), isTaken ? QStringLiteral("Neu") : QStringLiteral("Programm 1"));
      QCOMPARE(mTree->currentIndex().data().toString(), mName->text());
      mRig->mSession.history().undo();
      QCOMPARE(mName->text(), QStringLiteral("Programm 1"));
    }
  }

  void selectionSurvivesNewPages() {
    QVERIFY(mRig->create());
    select(0, 0);
    mTree->collapse(mTree->model()->index(1, 0));
    mRig->mSession.database().mFbPages.insertPage(0, std::make_unique<DB_FB_Page>());
    QCOMPARE(mTree->currentIndex().row(), 1);
    QCOMPARE(mName->text(), QStringLiteral("Programm 1"));
    QVERIFY(mTree->isExpanded(mTree->model()->index(0, 0)));
    QVERIFY(!mTree->isExpanded(mTree->model()->index(1, 0)));
  }

private:
  void select(int branch, int row) {
    mTree->setCurrentIndex(mTree->model()->index(row, 0, mTree->model()->index(branch, 0)));
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Page_View> mView;
  QTreeView* mTree = nullptr;
  QLineEdit* mName = nullptr;
};

QTEST_MAIN(Page_View_Test)
#include "Page_View_Test.moc"
