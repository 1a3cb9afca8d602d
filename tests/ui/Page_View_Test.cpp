#include "db/Page_Tree_Model.h"
#include "tests/db/Session_Rig.h"
#include "ui/Page_View.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
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

  void blocksAreFollowedWithoutLosingTheSelection() {
    QVERIFY(mRig->create());
    auto& list = mRig->mSession.database().mFbPages;
    const QUuid page = list.pages().at(0).mGuid;
    QList<QUuid> blocks;
    for (int i = 0; i < 5; ++i) {
      auto block = std::make_unique<DB_FB_Control>();
      block->mType = 50;
      block->mTitle = QString::number(i);
      block->mPageGuid = page;
      blocks.append(list.appendChild(std::move(block))->mGuid);
    }
    mView->showBlock(page, blocks.at(3));
    const auto* const model = qobject_cast<const Page_Tree_Model*>(mTree->model());
    const QModelIndex pageIndex = model->indexOf(page);
    QTRY_COMPARE(model->blockOf(mTree->currentIndex()), blocks.at(3));
    QCOMPARE(mTree->currentIndex().data().toString(), QStringLiteral("3 (Und)"));
    const auto order = [&] {
      QString titles;
      for (int i = 0; i < model->rowCount(pageIndex); ++i) {
        titles += model->index(i, 0, pageIndex).data().toString().left(1);
      }
      return titles;
    };
    const auto add = [&](int at, const QString& title) {
      auto block = std::make_unique<DB_FB_Control>();
      block->mTitle = title;
      block->mPageGuid = page;
      list.insertChild(at, std::move(block));
    };
    list.takeChild(blocks.at(0));
    list.takeChild(blocks.at(2));
    list.insertChild(0, list.takeChild(blocks.at(4)));
    add(1, QStringLiteral("a"));
    add(2, QStringLiteral("b"));
    add(-1, QStringLiteral("c"));
    QTRY_COMPARE(order(), QStringLiteral("4ab13c"));
    QCOMPARE(model->blockOf(mTree->currentIndex()), blocks.at(3));
    QVERIFY(mTree->isExpanded(pageIndex));
    list.insertPage(0, std::make_unique<DB_FB_Page>());
    QCOMPARE(model->blockOf(mTree->currentIndex()), blocks.at(3));
    QCOMPARE(model->pageOf(mTree->currentIndex()), page);

    const QSignalSpy chosen(mView.get(), &Page_View::childChosen);
    QTest::keyClick(mTree, Qt::Key_Return);
    QCOMPARE(chosen.value(0).value(1).toUuid(), blocks.at(3));
  }

  void commandsOfLogicPages() {
    QVERIFY(mRig->create());
    auto& list = mRig->mSession.database().mFbPages;
    list.appendPage(std::make_unique<DB_FB_Page>());
    const QSignalSpy moved(mView.get(), &Page_View::moveRequested);
    const QSignalSpy removed(mView.get(), &Page_View::removeRequested);
    const QSignalSpy refused(mView.get(), &Page_View::refused);
    select(0, 1);
    QTest::keyClick(mTree, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(mTree, Qt::Key_Down, Qt::AltModifier); // is the last
    QTest::keyClick(mTree, Qt::Key_Delete);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(moved.at(0).at(1).toInt(), 0);
    QCOMPARE(removed.at(0).at(0).toUuid(), list.pages().at(1).mGuid);
    mRig->mState.setOperatingMode(true);
    QTest::keyClick(mTree, Qt::Key_Delete);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(refused.at(0).at(0).toString(), Session_State::operatingModeRefusal());
  }

  void dragging_data() {
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("before"); // -1 for the branch itself
    QTest::addColumn<int>("place");
    QTest::newRow("up") << 2 << 0 << 0;
    QTest::newRow("down") << 0 << 2 << 1;
    QTest::newRow("to the end") << 0 << 3 << 2;
    QTest::newRow("onto the branch") << 1 << -1 << 2;
  }

  void dragging() {
    QFETCH(const int, from);
    QFETCH(const int, before);
    QFETCH(const int, place);
    QVERIFY(mRig->create());
    for (int i = 0; i < 2; ++i) {
      mRig->mSession.database().mFbPages.appendPage(std::make_unique<DB_FB_Page>());
    }
    QAbstractItemModel& model = *mTree->model();
    const QSignalSpy moved(mView.get(), &Page_View::moveRequested);
    const QModelIndex logic = model.index(0, 0);
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(from, 0, logic)}));
    QVERIFY(!model.canDropMimeData(data.get(), Qt::MoveAction, 0, 0, model.index(1, 0)));
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, before, 0, logic));
    QTRY_COMPARE(moved.size(), 1);
    QCOMPARE(moved.at(0).at(1).toInt(), place);
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
