#include "base/Session_State.h"
#include "db/Address_Tree_Model.h"
#include "tests/db/Usage_Sample.h"
#include "ui/Address_Tree_View.h"
#include "ui/Address_View.h"
#include "ui/Checked_Line_Edit.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

/// The tree of group addresses, edited through its keys: 1/2/3 "Licht" and 4/0/0 "Wind" are in use, 1/2/4 "Reserve" is
/// not, "Merker" is an internal variable.
class Address_Tree_View_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mSample = std::make_unique<Usage_Sample>(*mRig);
    mView = std::make_unique<Address_View>(mRig->mSession);
    mView->resize(900, 500);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    mTree = mView->findChild<Address_Tree_View*>();
    new QAbstractItemModelTester(mTree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, mView.get());
    mTree->expandAll();
    mTree->setFocus();
    connect(mView.get(), &Address_View::refused, this, [this](const QString& text) { mRefused.append(text); });
    mRefused.clear();
    mRig->mSession.history().clear();
  }

  void cleanup() {
    mView.reset();
    mSample.reset();
    mRig.reset();
  }

  void insertMakesTheNextAddressAndAsksForItsName() {
    select({1, 2, 3});
    QTest::keyClick(mTree, Qt::Key_Insert);
    QTest::keyClicks(editor(), QStringLiteral("Neu"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(tree().subGroup(Group_Address(1, 2, 5))->mName, QStringLiteral("Neu"));
    QCOMPARE(mTree->currentIndex().siblingAtColumn(0).data().toString(), QStringLiteral("1/2/5"));
    QCoreApplication::processEvents();
    while (mRig->mSession.history().undo()) {
    }
    QVERIFY(!tree().subGroup(Group_Address(1, 2, 5)));
  }

  void anEmptyProjectIsFilledByHand() {
    cleanup();
    mRig = std::make_unique<Session_Rig>();
    mView = std::make_unique<Address_View>(mRig->mSession);
    mView->resize(900, 500);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    QVERIFY(mRig->create());
    mTree = mView->findChild<Address_Tree_View*>();
    const auto command = [this](int index) { return mTree->newCommands().at(index); };
    QVERIFY(command(2)->isEnabled() && !mTree->isVisible());
    QGuiApplication::clipboard()->setText(QStringLiteral("5/0/0\tRegen\n"));
    mView->findChild<QToolButton*>()->setFocus();
    QTest::keySequence(mView->window()->windowHandle(), QKeySequence::Paste);
    QVERIFY(mTree->isVisible() && tree().subGroup(Group_Address(5, 0, 0)));
    QVERIFY(mRig->mSession.history().undo());
    QVERIFY(!mTree->isVisible());
    command(0)->trigger(); // an address, and the groups it needs
    QVERIFY(mTree->isVisible() && tree().subGroup(Group_Address(0, 0, 1)));
  }

  void aCommandFinishesWhatIsBeingTyped() {
    select({1, 2, 3});
    for (const char* const name : {"Erster", "Zweiter"}) {
      QTest::keyClick(editor() ? static_cast<QWidget*>(editor()) : mTree, Qt::Key_Insert);
      QTest::keyClicks(editor(), QString::fromUtf8(name));
    }
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(tree().subGroup(Group_Address(1, 2, 6))->mName, QStringLiteral("Zweiter"));
    QCOMPARE(tree().subGroup(Group_Address(1, 2, 5))->mName, QStringLiteral("Erster"));
  }

  void renamingShowsTheNameAndTabStaysInTheRow() {
    mTree->setColumnHidden(Address_Rows::cName, true);
    select({1, 2, 4});
    QTest::keyClick(mTree, Qt::Key_F2);
    QVERIFY(!mTree->isColumnHidden(Address_Rows::cName));
    QTest::keyClicks(editor(), QStringLiteral("a"));
    QTest::keyClick(editor(), Qt::Key_Tab);
    QTRY_COMPARE(mTree->currentIndex(), indexOf({1, 2, 4}).siblingAtColumn(Address_Rows::cDescription));
    QTest::keyClicks(editor(), QStringLiteral("b"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(tree().subGroup(Group_Address(1, 2, 4))->mDescription, QStringLiteral("b"));
    QCOMPARE(tree().subGroup(Group_Address(1, 2, 4))->mName, QStringLiteral("a"));
  }

  void aRowThatMovesStaysInSight() {
    mRig->addAddress({31, 7, 1}, {});
    mTree->collapseAll();
    select({1, 2, 4});
    mTree->model()->setData(mTree->currentIndex(), QStringLiteral("31/7/255"));
    QTRY_COMPARE(mTree->currentIndex().data().toString(), QStringLiteral("31/7/255"));
    QVERIFY(mTree->isExpanded(mTree->currentIndex().parent()));
    mTree->sortByColumn(Address_Rows::cName, Qt::AscendingOrder);
    mTree->model()->setData(mTree->currentIndex().siblingAtColumn(Address_Rows::cName), QString());
    mTree->model()->setData(indexOf({31, 7, 1}).siblingAtColumn(Address_Rows::cName), QStringLiteral("z"));
    QTRY_COMPARE(indexOf({31, 7, 255}).row(), 0);
  }

  void sortingWaitsForTheEditor() {
    mTree->sortByColumn(Address_Rows::cName, Qt::AscendingOrder);
    select({1, 2, 3});
    QTest::keyClick(mTree, Qt::Key_F2);
    QTest::keyClicks(editor(), QStringLiteral("Zuletzt"));
    QTest::keyClick(editor(), Qt::Key_Tab);
    QTest::qWait(50); // whatever follows later
    QVERIFY(editor());
    QCOMPARE(indexOf({1, 2, 3}).row(), 0);
    QTest::keyClicks(editor(), QStringLiteral("b"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(indexOf({1, 2, 3}).row(), 1);
    QCOMPARE(tree().subGroup(Group_Address(1, 2, 3))->mDescription, QStringLiteral("b"));
  }

  void aFilterLeavesWhatItHidesAlone() {
    mRig->addAddress({1, 2, 9}, QStringLiteral("Decke"));
    auto* const filter = mView->findChild<QLineEdit*>();
    filter->setText(QStringLiteral("reserve"));
    QTRY_VERIFY(!indexOf({1, 2, 3}).isValid());
    mTree->setFocus();
    QTest::keySequence(mTree, QKeySequence::SelectAll);
    QCOMPARE(mTree->selectedKeys(), QList<QUuid>{mSample->mUnused});
    mTree->showKey(tree().middleGroup(1, 2)->mKey);
    QString question;
    answerSoon(Qt::Key_N, question);
    QTest::keyClick(mTree, Qt::Key_Delete);
    QVERIFY2(question.contains(QStringLiteral("Davon zeigt die Suche nicht: 2.")), qPrintable(question));
  }

  void whatMayNotBeIsToldInPlaceAndNotTakenOver() {
    select({1, 2, 4});
    mTree->edit(mTree->currentIndex().siblingAtColumn(Address_Rows::cAddress));
    for (const auto& [text, reason] :
         {std::pair("1/2/256", "0..255"), {"1/2/3", "\"Licht\""}, {"x", "keine Gruppenadresse"}}) {
      editor()->selectAll();
      QTest::keyClicks(editor(), QString::fromUtf8(text));
      QVERIFY(!editor()->isValid());
      const auto* const told = mView->findChild<QLabel*>(QStringLiteral("ui:mReason"));
      QVERIFY(told && told->isVisible() && told->text().contains(QString::fromUtf8(reason)));
      QTest::keyClick(editor(), Qt::Key_Return);
      QCoreApplication::processEvents();
      QVERIFY(editor()); // stays open
    }
    editor()->selectAll();
    QTest::keyClicks(editor(), QStringLiteral("6/1/9"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(mTree->hasFocus());
    QTRY_VERIFY(tree().subGroup(Group_Address(6, 1, 9)) && !tree().subGroup(Group_Address(1, 2, 4)));
    QTRY_VERIFY(!mView->findChild<QLabel*>(QStringLiteral("ui:mReason")));
  }

  void aTypeIsTypedOrFoundByItsName() {
    for (const auto& [text, shown] :
         {std::pair("9.1", "9.001"), {"14.056 Leistung", "14.056"}, {"", ""}, {"17", "17"}}) {
      select({1, 2, 4});
      mTree->edit(mTree->currentIndex().siblingAtColumn(Address_Rows::cType));
      editor()->setText(QString::fromUtf8(text));
      QTest::keyClick(editor(), Qt::Key_Return);
      QTRY_COMPARE(tree().subGroup(Group_Address(1, 2, 4))->mDpt.toString(), QString::fromUtf8(shown));
    }
  }

  void aCheckBoxCountsForAllSelected() {
    select({1, 2, 3});
    mTree->selectionModel()->select(indexOf({4, 0, 0}), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const auto check = [this](const Group_Address& address, Qt::CheckState state) {
      mTree->model()->setData(indexOf(address).siblingAtColumn(Address_Rows::cReadAtStart), state, Qt::CheckStateRole);
    };
    check({1, 2, 3}, Qt::Checked);
    QCOMPARE(flags(), "110");
    check({1, 2, 4}, Qt::Checked); // not selected: for itself
    QCOMPARE(flags(), "111");
    check({4, 0, 0}, Qt::Unchecked);
    QCOMPARE(flags(), "001");
    mRig->mState.setOperatingMode(true);
    check({1, 2, 3}, Qt::Checked);
    QCOMPARE(flags(), "001");
    QVERIFY(!(indexOf({1, 2, 3}).flags() & Qt::ItemIsEditable));
  }

  void deletingAsksWhenSomethingPointsToIt() {
    select({1, 2, 4});
    QTest::keyClick(mTree, Qt::Key_Delete); // nobody uses it
    QVERIFY(!tree().subGroup(Group_Address(1, 2, 4)));
    for (const Qt::Key answer : {Qt::Key_N, Qt::Key_J}) {
      select({1, 2, 3});
      QString question;
      answerSoon(answer, question);
      QTest::keyClick(mTree, Qt::Key_Delete);
      QVERIFY2(question.contains(QStringLiteral("Verknüpfungen: 4")), qPrintable(question));
      QCOMPARE(tree().subGroup(Group_Address(1, 2, 3)) == nullptr, answer == Qt::Key_J);
    }
  }

  void deletingAsksWhenItIsRecorded() {
    DB_Statistic::Recording recording;
    recording.mAddressKey = tree().subGroup(Group_Address(1, 2, 4))->mKey;
    mRig->mSession.database().mStatistic.mRecordings = {recording};
    for (const Qt::Key answer : {Qt::Key_N, Qt::Key_J}) {
      select({1, 2, 4});
      QString question;
      answerSoon(answer, question);
      QTest::keyClick(mTree, Qt::Key_Delete);
      QVERIFY2(question.contains(QStringLiteral("Aufzeichnungen: 1")), qPrintable(question));
      QVERIFY2(!question.contains(QStringLiteral("Verknüpfungen")), qPrintable(question));
      QCOMPARE(tree().subGroup(Group_Address(1, 2, 4)) == nullptr, answer == Qt::Key_J);
    }
  }

  void copyCutAndPaste() {
    select({1, 2, 3});
    QTest::keySequence(mTree, QKeySequence::Copy);
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY(copied.startsWith(QStringLiteral("Adresse\tName\t")) && copied.contains(u"\n1/2/3\tLicht\t"));
    const size_t position = mRig->mSession.history().position();
    QGuiApplication::clipboard()->setText(copied); // as it comes back from a spreadsheet
    QTest::keySequence(mTree, QKeySequence::Paste);
    QCOMPARE(mRig->mSession.history().position(), position);
    select({1, 2, 3});
    QTest::keySequence(mTree, QKeySequence::Copy);
    select({4, 0, 0});
    QTest::keySequence(mTree, QKeySequence::Paste);
    QCOMPARE(tree().subGroup(Group_Address(4, 0, 3))->mName, QStringLiteral("Licht"));
    select({1, 2, 3});
    QTest::keySequence(mTree, QKeySequence::Cut);
    QVERIFY(tree().subGroup(Group_Address(1, 2, 3))); // until it is pasted
    select({4, 0, 0});
    QTest::keySequence(mTree, QKeySequence::Paste);
    QCOMPARE(tree().subGroup(Group_Address(4, 0, 4))->mKey, mSample->mLight);
    QGuiApplication::clipboard()->setText(QStringLiteral("7/0/0\taus einer Tabelle\n"));
    QTest::keySequence(mTree, QKeySequence::Paste);
    QCOMPARE(tree().subGroup(Group_Address(7, 0, 0))->mName, QStringLiteral("aus einer Tabelle"));
  }

  void selectionSurvivesANewBuilding() {
    select({1, 2, 3});
    mTree->selectionModel()->select(indexOf({4, 0, 0}), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    mRig->addAddress({0, 0, 1}, {});
    QCOMPARE(mTree->selectedKeys(), QList<QUuid>({mSample->mLight, mSample->mWind}));
    mTree->sortByColumn(Address_Rows::cAddress, Qt::DescendingOrder);
    QCOMPARE(mTree->selectedKeys(), QList<QUuid>({mSample->mWind, mSample->mLight}));
  }

  void everyLevelIsSorted() {
    mRig->addAddress({1, 2, 9}, QStringLiteral("Äpfel 10"));
    mRig->addAddress({1, 2, 10}, QStringLiteral("äpfel 2"));
    const std::pair<int, QStringList> cases[] = {{Address_Rows::cName, {"äpfel 2", "Äpfel 10", "Licht", "Reserve"}},
                                                 {Address_Rows::cAddress, {"Licht", "Reserve", "Äpfel 10", "äpfel 2"}}};
    for (const auto& [column, names] : cases) {
      for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        mTree->sortByColumn(column, order);
        QStringList shown;
        const QModelIndex group = indexOf({1, 2, 3}).parent();
        for (int row = 0; row < 4; ++row) {
          shown.append(group.model()->index(row, Address_Rows::cName, group).data().toString());
        }
        if (order == Qt::DescendingOrder) {
          std::reverse(shown.begin(), shown.end());
        }
        QCOMPARE(shown, names);
        QCOMPARE(indexOf({1, 2, 9}).data().toString(), QStringLiteral("1/2/9"));
      }
    }
  }

  void variablesAreABranchWithTheirUses() {
    const QAbstractItemModel& model = *mTree->model();
    const QModelIndex branch = model.index(model.rowCount() - 1, 0);
    QCOMPARE(branch.data().toString(), QStringLiteral("Interne Variablen"));
    const QModelIndex variable = model.index(0, 0, branch);
    QCOMPARE(variable.siblingAtColumn(Address_Rows::cName).data().toString(), QStringLiteral("Merker"));
    QCOMPARE(variable.siblingAtColumn(Address_Rows::cType).data().toString(), QStringLiteral("1.001"));
    QCOMPARE(model.rowCount(variable), 2);
    const QModelIndex use = model.index(1, 0, variable);
    QCOMPARE(use.data().toString(), QStringLiteral("Eingang 1"));
    QVERIFY(use.siblingAtColumn(Address_Rows::cName).data().toString().endsWith(QStringLiteral(" / Flur")));
    for (const QModelIndex& index : {branch, variable, use}) {
      QVERIFY(!(index.flags() & (Qt::ItemIsEditable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled)));
    }
    QSignalSpy chosen(mView.get(), &Address_View::pageChosen);
    mTree->setCurrentIndex(use);
    QTest::keyClick(mTree, Qt::Key_Return);
    QCOMPARE(chosen.value(0).value(0).toUuid(), mRig->mSession.database().mFbPages.pages().at(0).mGuid);
    QVERIFY(mTree->model()->setData(variable.siblingAtColumn(Address_Rows::cName), QStringLiteral("Nacht")));
    const auto shownName = [&model] {
      return model.index(0, Address_Rows::cName, model.index(model.rowCount() - 1, 0)).data().toString();
    };
    QTRY_COMPARE(shownName(), QStringLiteral("Nacht"));
    mRig->mSession.close();
    QCOMPARE(model.rowCount(), 0);
  }

  void dragging() {
    auto& model = dynamic_cast<Address_Tree_Model&>(*mTree->model());
    const std::unique_ptr<QMimeData> data(model.mimeData({indexOf({1, 2, 3})}));
    const QModelIndex other = indexOf({4, 0, 0}).parent();
    for (const auto& [target, fits] : {std::pair(other, true), {other.parent(), false}, {QModelIndex(), false}}) {
      QCOMPARE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, target), fits);
    }
    QVERIFY(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, other));
    QCOMPARE(tree().subGroup(Group_Address(4, 0, 3))->mKey, mSample->mLight);
  }

private:
  [[nodiscard]] const Address_Tree& tree() const { return mRig->mSession.database().mAddresses; }

  [[nodiscard]] QModelIndex indexOf(const Group_Address& address) const {
    return dynamic_cast<Address_Tree_Model&>(*mTree->model()).indexOf(tree().subGroup(address)->mKey);
  }
  /// Answers the next question by the mnemonic of a button.
  static void answerSoon(Qt::Key answer, QString& question) {
    QTimer::singleShot(0, qApp, [answer, &question] {
      QWidget* const box = QApplication::activeModalWidget();
      QVERIFY(box && QTest::qWaitForWindowExposed(box));
      for (const auto* const text : box->findChildren<QTextEdit*>()) {
        question += text->toPlainText();
      }
      QTest::keyClick(box->focusWidget(), answer, Qt::AltModifier);
    });
  }
  void select(const Group_Address& address) { mTree->showKey(tree().subGroup(address)->mKey); }
  [[nodiscard]] Checked_Line_Edit* editor() const {
    return qobject_cast<Checked_Line_Edit*>(QApplication::focusWidget());
  }

  /// Which of 1/2/3, 4/0/0, 1/2/4 are read at start.
  [[nodiscard]] QByteArray flags() const {
    QByteArray flags;
    for (const Group_Address& address : {Group_Address(1, 2, 3), {4, 0, 0}, {1, 2, 4}}) {
      flags += tree().subGroup(address)->mReadAtStart ? '1' : '0';
    }
    return flags;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Usage_Sample> mSample;
  std::unique_ptr<Address_View> mView;
  Address_Tree_View* mTree = nullptr;
  QStringList mRefused;
};

QTEST_MAIN(Address_Tree_View_Test)
#include "Address_Tree_View_Test.moc"
