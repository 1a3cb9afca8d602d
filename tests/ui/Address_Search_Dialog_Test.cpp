#include "base/App_Settings.h"
#include "tests/db/Usage_Sample.h"
#include "ui/Address_Search_Dialog.h"
#include "ui/Invalid_Address_Dialog.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeView>

/// The two windows of results, used through their keys and read from their widgets. Model testers stand beside.
class Address_Search_Dialog_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path("settings.ini"));
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
  }

  void cleanup() {
    mDialog.reset();
    mSettings.reset();
    mRig.reset();
  }

  void whatEachSearchShows_data() {
    QTest::addColumn<int>("search");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("rows"); // of the lists that are seen
    QTest::addColumn<QString>("count");
    const QString light = "1/2/3|Licht||4";
    const QString wind = "4/0/0|Wind||1";
    const QString choose = "Eine Adresse wählen; hier stehen ihre Verwendungen.";
    QTest::newRow("unused") << 0 << "" << QStringList{"1/2/4|Reserve|"} << "1 von 3 Adressen nicht verwendet";
    QTest::newRow("unused, filtered") << 0 << "res" << QStringList{"1/2/4|Reserve|"}
                                      << "1 von 3 Adressen nicht verwendet, 1 gezeigt";
    QTest::newRow("unused, but it is used")
        << 0 << "1/2/3" << QStringList{"Adresse 1/2/3 \"Licht\" ist verwendet."} << "1 von 3 Adressen nicht verwendet";
    QTest::newRow("used") << 1 << "" << QStringList{light, wind, choose} << "2 von 3 Adressen verwendet";
    QTest::newRow("used, no hit") << 1 << "garage" << QStringList{"Keine Zeile enthält \"garage\"."}
                                  << "2 von 3 Adressen verwendet";
    QTest::newRow("uses of one") << 2 << "4/0/0" << QStringList{"Programm 1|Flur|Ausgang 1|4/0/0|Wind"}
                                 << "5 Verwendungen, 1 gezeigt";
    QTest::newRow("uses of a group, with a word")
        << 2 << "1/* knopf" << QStringList{"Visu|Knopf|Adresse 2|1/2/3|Licht"} << "5 Verwendungen, 1 gezeigt";
    QTest::newRow("uses of what is unused")
        << 2 << "1/2/4" << QStringList{"Adresse 1/2/4 \"Reserve\" ist nicht verwendet."} << "5 Verwendungen";
    QTest::newRow("uses of what is not there")
        << 2 << "9/9/9" << QStringList{"Keine Zeile enthält \"9/9/9\"."} << "5 Verwendungen"; // 9 is no middle group
    QTest::newRow("uses of what could be there")
        << 2 << "9/1/9" << QStringList{"Das Projekt hat keine Adresse 9/1/9."} << "5 Verwendungen";
  }

  void whatEachSearchShows() {
    QFETCH(const int, search);
    QFETCH(const QString, filter);
    open<Address_Search_Dialog>();
    choose(search);
    setFilter(filter);
    QFETCH(const QStringList, rows);
    QTRY_COMPARE(shownRows(), rows);
    QFETCH(const QString, count);
    QTRY_COMPARE(countText(), count);
  }

  void usesFollowTheSelectedAddressAndEdits() {
    open<Address_Search_Dialog>();
    choose(1);
    QTest::keyClick(filterField(), Qt::Key_Down);
    QVERIFY(tree(0)->hasFocus());
    QCOMPARE(tree(1)->model()->rowCount(), 4);
    QTest::keyClick(tree(0), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(tree(1)->model()->rowCount(), 5);
    tree(0)->setCurrentIndex(tree(0)->model()->index(1, 0));
    mRig->addAddress({0, 0, 1}, QStringLiteral("Zentral"));
    mSample->element().mAddresses[0] = mSample->element().mAddresses[1];
    mSample->element().mAddresses[0].mKey = mSample->mUnused;
    QTRY_COMPARE(countText(), QStringLiteral("3 von 4 Adressen verwendet"));
    QCOMPARE(tree(0)->currentIndex().data().toString(), QStringLiteral("4/0/0"));
    QCOMPARE(tree(0)->currentIndex().row(), 2);
    QCOMPARE(tree(1)->model()->rowCount(), 1);
    mRig->mSession.close();
    QVERIFY(!mDialog->isVisible());
  }

  void enterLeadsToAddressAndPage() {
    open<Address_Search_Dialog>();
    const QSignalSpy address(mDialog.get(), &Result_Dialog::addressChosen);
    const QSignalSpy page(mDialog.get(), &Result_Dialog::pageChosen);
    QTest::keyClick(filterField(), Qt::Key_Return);
    QVERIFY(address.isEmpty());
    QTest::keyClick(tree(0), Qt::Key_Return);
    QCOMPARE(address.size(), 1);
    QCOMPARE(address[0][0].toUuid(), mSample->mUnused);
    choose(2);
    tree(1)->header()->setSortIndicator(0, Qt::DescendingOrder);
    tree(1)->setFocus();
    tree(1)->setCurrentIndex(tree(1)->model()->index(0, 0));
    QTest::keyClick(tree(1), Qt::Key_Return);
    QCOMPARE(page.size(), 1);
    QCOMPARE(page[0][0].toUuid(), mSample->element().mPageGuid);
    QTest::keyClick(tree(1), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Visu\tKnopf\tAdresse 2\t1/2/3\tLicht"));
    tree(1)->actions().value(1)->trigger();
    QCOMPARE(address.last()[0].toUuid(), mSample->mLight);
    QVERIFY(mDialog->isVisible());
  }

  void allUsedOrNoneThere() {
    Address_Tree& tree = mRig->mSession.database().mAddresses;
    tree.take(mSample->mUnused);
    open<Address_Search_Dialog>();
    QCOMPARE(shownRows(), QStringList{"Alle Adressen sind verwendet."});
    mRig->mSession.database().mFbPages.clear();
    mSample->element().mAddresses.clear();
    QTRY_COMPARE(countText(), QStringLiteral("2 von 2 Adressen nicht verwendet"));
    choose(2);
    QCOMPARE(shownRows(), QStringList{"Keine Adresse ist verwendet."});
    tree.clear();
    QTRY_COMPARE(shownRows(), QStringList{"Das Projekt hat keine Adressen."});
  }

  void invalidBindingsComeAndGo() {
    open<Invalid_Address_Dialog>();
    QCOMPARE(shownRows(), QStringList{"Alle Verknüpfungen zeigen auf vorhandene Adressen."});
    mRig->mSession.database().mAddresses.take(mSample->mWind);
    QTRY_COMPARE(countText(), QStringLiteral("1 ungültige Verknüpfung"));
    QCOMPARE(shownRows(), QStringList{"Programm 1|Flur|Ausgang 1|4/0/0|Wind|Die Adresse gibt es nicht mehr."});
    const QSignalSpy page(mDialog.get(), &Result_Dialog::pageChosen);
    QTest::keyClick(filterField(), Qt::Key_Down);
    QTest::keyClick(tree(0), Qt::Key_Return);
    QCOMPARE(page.size(), 1);
    QCOMPARE(page[0][0].toUuid(), mRig->mSession.database().mFbPages.pages().at(0).mGuid);
  }

  void columnsAreRemembered() {
    open<Invalid_Address_Dialog>();
    tree(0)->header()->resizeSection(0, 222);
    tree(0)->header()->moveSection(1, 3);
    mDialog.reset(); // while it is open
    open<Invalid_Address_Dialog>();
    QCOMPARE(tree(0)->header()->sectionSize(0), 222);
    QCOMPARE(tree(0)->header()->visualIndex(1), 3);
  }

  void escapeClearsBeforeItCloses() {
    open<Address_Search_Dialog>();
    setFilter(QStringLiteral("x"));
    QTest::keyClick(filterField(), Qt::Key_Escape);
    QVERIFY(filterField()->text().isEmpty() && mDialog->isVisible());
    QTest::keyClick(filterField(), Qt::Key_Escape);
    QVERIFY(!mDialog->isVisible());
  }

private:
  template <class Dialog>
  void open() {
    mDialog = std::make_unique<Dialog>(mRig->mSession, *mSettings);
    mTrees = mDialog->template findChildren<QTreeView*>();
    const auto isBefore = [](QTreeView* a, QTreeView* b) { return a->accessibleName() < b->accessibleName(); };
    std::sort(mTrees.begin(), mTrees.end(), isBefore); // "Adressen", "Verwendungen"
    for (QTreeView* const tree : std::as_const(mTrees)) {
      new QAbstractItemModelTester(tree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, tree);
    }
    mDialog->bringUp();
    QVERIFY(QTest::qWaitForWindowActive(mDialog.get()));
  }

  [[nodiscard]] QTreeView* tree(int index) const { return mTrees[index]; }
  [[nodiscard]] QLineEdit* filterField() const { return mDialog->findChild<QLineEdit*>(); }
  void choose(int search) const { mDialog->findChild<QComboBox*>()->setCurrentIndex(search); }
  [[nodiscard]] QString countText() const { return mDialog->findChild<QLabel*>("ui:mCount")->text(); }

  void setFilter(const QString& text) const {
    filterField()->setFocus();
    QTest::keyClicks(filterField(), text);
  }

  /// Of the lists that are seen; the text of an empty one.
  [[nodiscard]] QStringList shownRows() const {
    QStringList rows;
    for (const QTreeView* const tree : mTrees) {
      const auto* const list = static_cast<const QWidget*>(tree->parentWidget());
      if (!list->isVisible()) {
        continue;
      }
      for (int row = 0; row < tree->model()->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < tree->model()->columnCount(); ++column) {
          if (!tree->isColumnHidden(column)) {
            cells += tree->model()->index(row, column).data().toString();
          }
        }
        rows += cells.join('|');
      }
      for (const QLabel* const hint : list->findChildren<QLabel*>()) {
        if (hint->isVisible() && !hint->text().isEmpty()) {
          rows += hint->text();
        }
      }
    }
    return rows;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<Usage_Sample> mSample;
  std::unique_ptr<Result_Dialog> mDialog;
  QList<QTreeView*> mTrees;
};

QTEST_MAIN(Address_Search_Dialog_Test)
#include "Address_Search_Dialog_Test.moc"
