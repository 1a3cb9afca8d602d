#include "base/App_Settings.h"
#include "db/Address_Rows.h"
#include "tests/db/Session_Rig.h"
#include "ui/Address_View.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
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
        {"haus",
         {"1/*", "1/2/*", "1/2/3", "1/2/4", "1/3/*", "1/3/0"}}, // what a group is called counts for its addresses
        {"haus bad", {"1/*", "1/2/*", "1/2/4"}},
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

  void columnsKeepPlaceAndVisibility() {
    fill();
    QHeaderView* const header = mTree->header();
    QTimer::singleShot(0, this, [] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      QVERIFY(menu);
      for (QAction* const action : menu->actions()) {
        if (action->text() == QStringLiteral("Beschreibung")) {
          action->trigger();
        }
      }
      menu->close();
    });
    emit header->customContextMenuRequested({5, 5});
    QVERIFY(mTree->isColumnHidden(Address_Rows::cDescription));
    header->moveSection(header->visualIndex(Address_Rows::cType), 1);
    App_Settings settings(mRig->path(QStringLiteral("s.ini")));
    mView->saveState(settings);

    Address_View other(mRig->mSession);
    other.restoreState(settings);
    const auto* const again = other.findChild<QTreeView*>();
    QVERIFY(again->isColumnHidden(Address_Rows::cDescription) && !again->isColumnHidden(Address_Rows::cName));
    QCOMPARE(again->header()->visualIndex(Address_Rows::cType), 1);
  }

  void countsAreTold() {
    fill();
    const auto isTold = [this](const QString& text) {
      const QList<QLabel*> labels = mView->findChildren<QLabel*>();
      return std::any_of(labels.begin(), labels.end(), [&text](const QLabel* label) { return label->text() == text; });
    };
    QVERIFY(isTold(QStringLiteral("2 Hauptgruppen, 3 Mittelgruppen, 5 Adressen")));
    setFilter(QStringLiteral("licht"));
    QTRY_VERIFY(isTold(QStringLiteral("2 von 5 Adressen")));
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
    mRig->mSession.database().mAddresses.mainGroup(1)->mName = QStringLiteral("Haus");
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
