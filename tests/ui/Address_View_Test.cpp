#include "base/App_Settings.h"
#include "tests/db/Session_Rig.h"
#include "ui/Address_View.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeView>

/// The tab of group addresses, used through its keys and read from its widgets.
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
    mFilter = mView->findChild<QLineEdit*>();
  }

  void cleanup() {
    setOperatingMode(false);
    mView.reset();
    mRig.reset();
  }

  void emptyPlacesSaySo() {
    QVERIFY(!mTree->isVisible() && !visibleButton());
    QVERIFY(seesText(QStringLiteral("Kein Projekt")));
    QVERIFY(mRig->create());
    QPushButton* const button = visibleButton();
    QVERIFY(!mTree->isVisible() && button);
    const QSignalSpy imports(mView.get(), &Address_View::importRequested);
    button->click();
    QCOMPARE(imports.size(), 1);
    setOperatingMode(true);
    QVERIFY(!button->isEnabled());
    setOperatingMode(false);
    mRig->addAddress({1, 2, 3}, QStringLiteral("Licht"));
    QVERIFY(mTree->isVisible() && !visibleButton());
    mRig->mSession.close();
    QVERIFY(!mTree->isVisible() && !visibleButton());
  }

  void countsFollow() {
    fill();
    QVERIFY(seesText(QStringLiteral("2 Hauptgruppen, 3 Mittelgruppen, 5 Adressen")));
    setFilter(QStringLiteral("licht"));
    QTRY_VERIFY(seesText(QStringLiteral("2 von 5 Adressen")));
    setFilter(QStringLiteral("garage"));
    QTRY_VERIFY(seesText(QStringLiteral("0 von 5 Adressen")));
    QVERIFY(seesText(QStringLiteral("\"garage\"")) && !mTree->isVisible());
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

  void renameByKey() {
    fill();
    mTree->setFocus();
    mTree->setCurrentIndex(mTree->model()->index(0, 0));
    QTest::keyClick(mTree, Qt::Key_F2);
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(editor && editor != mFilter);
    QTest::keyClicks(editor, QStringLiteral("Neu"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(mRig->mSession.database().mAddresses.mainGroup(1)->mName, QStringLiteral("Neu"));
  }

  void escapeClosesTheEditorBeforeTheFilter() {
    fill();
    setFilter(QStringLiteral("licht"));
    QTRY_COMPARE(mTree->model()->rowCount(), 1);
    QTest::keyClick(mFilter, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), mTree);
    QTest::keyClick(mTree, Qt::Key_F2);
    QWidget* const editor = QApplication::focusWidget();
    QVERIFY(qobject_cast<QLineEdit*>(editor));
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_COMPARE(QApplication::focusWidget(), mTree);
    QCOMPARE(mFilter->text(), QStringLiteral("licht"));
    QTest::keyClick(mTree, Qt::Key_Escape);
    QVERIFY(mFilter->text().isEmpty());
  }

  void refusalComesOnce() {
    fill();
    const QSignalSpy refused(mView.get(), &Address_View::refused);
    mTree->setFocus();
    mTree->setCurrentIndex(mTree->model()->index(0, 0));
    QTest::keyClick(mTree, Qt::Key_F2);
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(editor);
    editor->setText(QString(300, QLatin1Char('x')));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(refused.size(), 0);
    QTRY_COMPARE(refused.size(), 1);
    setOperatingMode(true);
    QTest::keyClick(mTree, Qt::Key_F2);
    QCOMPARE(QApplication::focusWidget(), mTree);
  }

  void copiesRowsInTheOrderSeen() {
    fill();
    mTree->expandAll();
    mTree->setFocus();
    const QModelIndex main = mTree->model()->index(1, 0);
    QItemSelectionModel* const selection = mTree->selectionModel();
    selection->select(mTree->model()->index(0, 0, main), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    selection->select(main, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    mTree->header()->moveSection(1, 3);
    QTest::keyClick(mTree, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("4/*\t\t\tHaupt\n4/0/*\t\t\t"));
  }

  void columnsAreRemembered() {
    App_Settings settings(mRig->mFolder.filePath(QStringLiteral("a.ini")));
    mTree->header()->resizeSection(1, 321);
    mTree->header()->moveSection(3, 2);
    mView->saveState(settings);
    Address_View other(mRig->mSession);
    other.restoreState(settings);
    const QHeaderView* const header = other.findChild<QTreeView*>()->header();
    QCOMPARE(header->sectionSize(1), 321);
    QCOMPARE(header->logicalIndex(2), 3);
  }

private:
  void fill() {
    QVERIFY(mRig->create());
    mRig->addAddress({1, 2, 3}, QStringLiteral("Licht Küche"));
    mRig->addAddress({1, 2, 4}, QStringLiteral("Licht Bad"));
    mRig->addAddress({1, 3, 0}, QStringLiteral("Jalousie"));
    mRig->addAddress({4, 0, 0}, QStringLiteral("Wind"));
    mRig->addAddress({4, 0, 1}, QStringLiteral("Regen"));
    Address_Tree& tree = mRig->mSession.database().mAddresses;
    tree.change(tree.mainGroup(4)->mKey, [](DB_Data_Base& record) {
      dynamic_cast<DB_Address_MainGroup&>(record).mName = QStringLiteral("Haupt");
    });
  }

  void setFilter(const QString& text) {
    mFilter->setFocus();
    mFilter->clear();
    QTest::keyClicks(mFilter, text);
  }

  [[nodiscard]] QPushButton* visibleButton() const {
    const QList<QPushButton*> buttons = mView->findChildren<QPushButton*>();
    const auto isVisible = [](const QPushButton* button) { return button->isVisible(); };
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(), isVisible);
    return found == buttons.cend() ? nullptr : *found;
  }

  [[nodiscard]] bool seesText(const QString& text) const {
    const QList<QLabel*> labels = mView->findChildren<QLabel*>();
    return std::any_of(labels.cbegin(), labels.cend(),
                       [&text](const QLabel* label) { return label->isVisible() && label->text().contains(text); });
  }

  void setOperatingMode(bool on) {
    mRig->mState.setOperatingMode(on);
    Session_State::process().setOperatingMode(on);
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Address_View> mView;
  QTreeView* mTree = nullptr;
  QLineEdit* mFilter = nullptr;
};

QTEST_MAIN(Address_View_Test)
#include "Address_View_Test.moc"
