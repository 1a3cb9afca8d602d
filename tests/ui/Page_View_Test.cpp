#include "tests/db/Session_Rig.h"
#include "ui/Page_View.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSplitter>
#include <QTreeView>

/// The tab of pages, used through its keys and read from its widgets.
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
    mName = mView->findChild<QLineEdit*>();
  }

  void cleanup() {
    mView.reset();
    mRig.reset();
  }

  void splitterDividesOneToThree() {
    QCOMPARE(mView->splitter()->objectName(), QStringLiteral("ui:mSplitterRight"));
    const QList<int> sizes = mView->splitter()->sizes();
    QVERIFY2(std::abs(sizes[1] - 3 * sizes[0]) < 10, qPrintable(QStringLiteral("%1 %2").arg(sizes[0]).arg(sizes[1])));
  }

  void showsWhatIsThere() {
    QVERIFY(!mTree->isVisible() && !mName->isVisible());
    QVERIFY(mRig->create());
    QVERIFY(mTree->isVisible() && !mName->isVisible());
    QVERIFY(mTree->isExpanded(mTree->model()->index(0, 0)));
    select(0, 0);
    QVERIFY(mName->isVisible());
    QCOMPARE(mName->text(), QStringLiteral("Programm 1"));
    QVERIFY(seesText(QStringLiteral("Hauptsteuerung")));
    QCOMPARE(mView->findChildren<QLineEdit*>().last()->text(), page().mGuid.toString(QUuid::WithoutBraces));
    select(1, 0);
    QCOMPARE(mName->text(), QStringLiteral("Visu hoch"));
    QVERIFY(!seesText(QStringLiteral("Steuerung")));
    mRig->mSession.close();
    QVERIFY(!mTree->isVisible() && !mName->isVisible());
  }

  void renameInTheDetails_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("refusals");
    QTest::newRow("entered") << "Neu" << int(Qt::Key_Return) << "Neu" << 0;
    QTest::newRow("left with tab") << "Neu" << int(Qt::Key_Tab) << "Neu" << 0;
    QTest::newRow("escaped") << "Neu" << int(Qt::Key_Escape) << "Programm 1" << 0;
    QTest::newRow("empty") << " " << int(Qt::Key_Return) << "Programm 1" << 1;
  }

  void renameInTheDetails() {
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(QString, name);
    QFETCH(int, refusals);
    QVERIFY(mRig->create());
    select(0, 0);
    const QSignalSpy refused(mView.get(), &Page_View::refused);
    mName->setFocus();
    mName->selectAll();
    QTest::keyClicks(mName, typed);
    QTest::keyClick(mName, Qt::Key(key));
    mTree->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(refused.size(), refusals);
    QCOMPARE(page().mCaption, name);
    QCOMPARE(mName->text(), name);
    QCOMPARE(mTree->currentIndex().data().toString(), name);
    mRig->mSession.history().undo();
    QCOMPARE(mName->text(), QStringLiteral("Programm 1"));
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

  [[nodiscard]] const DB_FB_Page& page() { return mRig->mSession.database().mFbPages.pages().at(0); }

  [[nodiscard]] bool seesText(const QString& text) const {
    const QList<QLabel*> labels = mView->findChildren<QLabel*>();
    return std::any_of(labels.cbegin(), labels.cend(),
                       [&text](const QLabel* label) { return label->isVisible() && label->text().contains(text); });
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Page_View> mView;
  QTreeView* mTree = nullptr;
  QLineEdit* mName = nullptr;
};

QTEST_MAIN(Page_View_Test)
#include "Page_View_Test.moc"
