#include "tests/db/Session_Rig.h"
#include "ui/Address_View.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QTreeView>

/// The tab of group addresses, used through its keys and read from its widgets. A model tester stands beside it.
class Address_View_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    mView = std::make_unique<Address_View>(mRig->mSession);
    mView->resize(500, 400);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    mTree = mView->findChild<QTreeView*>();
    new QAbstractItemModelTester(mTree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, mView.get());
    mFilter = mView->findChild<QLineEdit*>();
  }

  void cleanup() {
    mView.reset();
    mRig.reset();
  }

  void filterShowsHitsAndEscapeLeadsBack() {
    fill();
    const QModelIndex second = mTree->model()->index(1, 0);
    mTree->expand(second);
    mTree->setCurrentIndex(mTree->model()->index(0, 0, second));
    setFilter(QStringLiteral("licht"));
    QTRY_COMPARE(mTree->model()->rowCount(), 1);
    const QModelIndex main = mTree->model()->index(0, 0);
    QVERIFY(mTree->isExpanded(main) && mTree->isExpanded(main.model()->index(0, 0, main)));
    QTest::keyClick(mFilter, Qt::Key_Escape);
    QVERIFY(mFilter->text().isEmpty());
    QVERIFY(!mTree->isExpanded(mTree->model()->index(0, 0)));
    QVERIFY(mTree->isExpanded(mTree->model()->index(1, 0)));
    QCOMPARE(mTree->currentIndex().data().toString(), QStringLiteral("4/0/*"));
  }

  void filterKeepsHitsAndWhatTheyStandIn() {
    fill();
    const std::pair<const char*, QStringList> cases[] = {
        {"KÜCHE", {"1/*", "1/2/*", "1/2/3"}},
        {"bad licht", {"1/*", "1/2/*", "1/2/4"}},
        {"1/2 keller 9.001", {"1/*", "1/2/*", "1/2/4"}}, // words of several columns
        {"1/2/4", {"1/*", "1/2/*", "1/2/4"}},
        {"2/4", {}}, // an address is looked for from its start
        {"4/*", {"4/*", "4/0/*", "4/0/0", "4/0/1"}},
        {"garage", {}},
        {"bad keller 9.0012", {}},
        {"  ", {"1/*", "1/2/*", "1/2/3", "1/2/4", "1/3/*", "1/3/0", "4/*", "4/0/*", "4/0/0", "4/0/1"}}};
    for (const auto& [text, addresses] : cases) {
      setFilter(QString::fromUtf8(text));
      QTRY_COMPARE(shownAddresses(), addresses);
    }
    mRig->mSession.close();
    QCOMPARE(mTree->model()->rowCount(), 0);
  }

  void expansionAndCurrentSurviveEdits() {
    fill();
    mTree->expandAll();
    mTree->setCurrentIndex(mTree->model()->index(0, 0, mTree->model()->index(1, 0)));
    mTree->collapse(mTree->model()->index(0, 0));
    mRig->addAddress({0, 0, 1}, QStringLiteral("Zentral"));
    QCOMPARE(mTree->currentIndex().data().toString(), QStringLiteral("4/0/*"));
    QVERIFY(!mTree->isExpanded(mTree->model()->index(0, 0))); // the new one
    QVERIFY(!mTree->isExpanded(mTree->model()->index(1, 0)));
    QVERIFY(mTree->isExpanded(mTree->model()->index(2, 0)));
    QVERIFY(mTree->isExpanded(mTree->currentIndex()));
  }

private:
  void fill() {
    QVERIFY(mRig->create());
    mRig->addAddress({1, 2, 3}, QStringLiteral("Licht Küche"));
    DB_Address_Sub_Group* const bath = mRig->addAddress({1, 2, 4}, QStringLiteral("Licht Bad"));
    bath->mDescription = QStringLiteral("Keller");
    bath->mDpt = {9, 1};
    mRig->addAddress({1, 3, 0}, QStringLiteral("Jalousie"));
    mRig->addAddress({4, 0, 0}, QStringLiteral("Wind"));
    mRig->addAddress({4, 0, 1}, QStringLiteral("Regen"));
  }

  [[nodiscard]] QStringList shownAddresses(const QModelIndex& parent = {}) const {
    QStringList addresses;
    for (int row = 0; row < mTree->model()->rowCount(parent); ++row) {
      const QModelIndex index = mTree->model()->index(row, 0, parent);
      addresses += index.data().toString();
      addresses += shownAddresses(index);
    }
    return addresses;
  }

  void setFilter(const QString& text) {
    mFilter->setFocus();
    mFilter->clear();
    QTest::keyClicks(mFilter, text);
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Address_View> mView;
  QTreeView* mTree = nullptr;
  QLineEdit* mFilter = nullptr;
};

QTEST_MAIN(Address_View_Test)
#include "Address_View_Test.moc"
