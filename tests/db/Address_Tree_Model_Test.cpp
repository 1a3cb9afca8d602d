#include "db/Address_Tree_Model.h"
#include "db/Model_Roles.h"
#include "tests/db/Session_Rig.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

/// The tree of addresses as views see it. A model tester stands beside it in every case.
class Address_Tree_Model_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    DB_Address_Sub_Group* const kitchen = mRig->addAddress({1, 2, 3}, QStringLiteral("Licht Küche"));
    mKitchen = kitchen->mKey;
    tree().change(mKitchen, [](DB_Data_Base& record) {
      auto& sub = dynamic_cast<DB_Address_Sub_Group&>(record);
      sub.mDescription = QStringLiteral("Verteiler\nReihe 3");
      sub.mDptMain = 9;
      sub.mDptSub = 1;
    });
    tree().change(mRig->addAddress({1, 2, 10}, QStringLiteral("Licht Bad"))->mKey,
                  [](DB_Data_Base& record) { dynamic_cast<DB_Address_Sub_Group&>(record).mDptMain = 5; });
    mRig->addAddress({1, 3, 0}, QStringLiteral("Jalousie Küche"));
    mRig->addAddress({4, 0, 255}, QStringLiteral("<b>Wetter</b>"));
    tree().change(tree().mainGroup(4)->mKey, [](DB_Data_Base& record) {
      dynamic_cast<DB_Address_MainGroup&>(record).mName = QStringLiteral("Außen");
    });
    mModel = std::make_unique<Address_Tree_Model>(mRig->mSession);
    mTester = std::make_unique<QAbstractItemModelTester>(mModel.get(),
                                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
  }

  void cleanup() {
    setOperatingMode(false);
    mTester.reset();
    mModel.reset();
    mRig.reset();
  }

  void cells_data() {
    QTest::addColumn<QList<int>>("path");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("icon");
    QTest::newRow("main group") << QList{1} << QStringList{"4/*", "Außen", "", ""} << "main_group";
    QTest::newRow("middle group") << QList{0, 1} << QStringList{"1/3/*", "", "", ""} << "middle_group";
    QTest::newRow("type with sub number, text of two lines")
        << QList{0, 0, 0} << QStringList{"1/2/3", "Licht Küche", "Verteiler Reihe 3", "9.001"} << "sub_group";
    QTest::newRow("type without sub number")
        << QList{0, 0, 1} << QStringList{"1/2/10", "Licht Bad", "", "5"} << "sub_group";
    QTest::newRow("no type") << QList{1, 0, 0} << QStringList{"4/0/255", "<b>Wetter</b>", "", ""} << "sub_group";
  }

  void cells() {
    QFETCH(QList<int>, path);
    QFETCH(QStringList, texts);
    QFETCH(QString, icon);
    QModelIndex index;
    for (const int row : path) {
      index = mModel->index(row, 0, index);
    }
    for (int column = 0; column < Address_Tree_Model::cColumnCount; ++column) {
      QCOMPARE(index.siblingAtColumn(column).data().toString(), texts[column]);
    }
    QCOMPARE(index.data(Model_Roles::cIconName).toString(), icon);
    QCOMPARE(mModel->indexOf(mModel->keyOf(index)), index);
  }

  void toolTipsShowMarkUpAsText() {
    const QModelIndex name = mModel->index(0, Address_Tree_Model::cName, mModel->index(0, 0, mModel->index(1, 0)));
    QVERIFY(name.data(Qt::ToolTipRole).toString().contains(QStringLiteral("&lt;b&gt;")));
  }

  void filter_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("addresses"); ///< all that is shown, groups too
    QTest::newRow("none") << "  " << QStringList{"1/*",   "1/2/*", "1/2/3", "1/2/10", "1/3/*",
                                                 "1/3/0", "4/*",   "4/0/*", "4/0/255"};
    QTest::newRow("one word, any case") << "KÜCHE" << QStringList{"1/*", "1/2/*", "1/2/3", "1/3/*", "1/3/0"};
    QTest::newRow("two words, any order") << "küche licht" << QStringList{"1/*", "1/2/*", "1/2/3"};
    QTest::newRow("words of several columns") << "1/2 reihe 9.001" << QStringList{"1/*", "1/2/*", "1/2/3"};
    QTest::newRow("a group alone") << "außen" << QStringList{"4/*"};
    QTest::newRow("no hit") << "garage" << QStringList{};
    QTest::newRow("not across columns") << "küche verteiler reihe 9.0012" << QStringList{};
  }

  void filter() {
    QFETCH(QString, text);
    QFETCH(QStringList, addresses);
    mModel->setFilter(text);
    QCOMPARE(shownAddresses(), addresses);
    const auto isSub = [](const QString& address) { return !address.contains(QLatin1Char('*')); };
    QCOMPARE(mModel->shownSubGroupCount(), std::count_if(addresses.cbegin(), addresses.cend(), isSub));
    mModel->setFilter({});
    QCOMPARE(shownAddresses().size(), 9);
  }

  void keysOfFilteredRowsAreNotThere() {
    mModel->setFilter(QStringLiteral("jalousie"));
    QVERIFY(!mModel->indexOf(mKitchen).isValid());
    QVERIFY(mModel->indexOf(tree().subGroup(Group_Address(1, 3, 0))->mKey).isValid());
  }

  void renameIsOneStep() {
    const QSignalSpy changes(mModel.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(mModel->setData(kitchenName(), QStringLiteral("Licht  Essplatz ")));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][0].toModelIndex(), mModel->indexOf(mKitchen));
    QCOMPARE(kitchenName().data().toString(), QStringLiteral("Licht Essplatz"));
    QVERIFY(mRig->mSession.history().undo());
    QCOMPARE(kitchenName().data().toString(), QStringLiteral("Licht Küche"));
    QVERIFY(!mRig->mSession.history().canUndo());
    QVERIFY(mRig->mSession.history().redo());
    QCOMPARE(kitchenName().data().toString(), QStringLiteral("Licht Essplatz"));
  }

  void sameNameIsNoStep() {
    QVERIFY(mModel->setData(kitchenName(), QStringLiteral("Licht Küche")));
    QVERIFY(!mRig->mSession.history().canUndo());
  }

  void refusals_data() {
    QTest::addColumn<bool>("operating");
    QTest::addColumn<QString>("name");
    QTest::newRow("operating mode") << true << "Neu";
    QTest::newRow("too long") << false << QString(256, QLatin1Char('x'));
  }

  void refusals() {
    QFETCH(bool, operating);
    QFETCH(QString, name);
    setOperatingMode(operating);
    QCOMPARE(kitchenName().flags().testFlag(Qt::ItemIsEditable), !operating);
    const QSignalSpy refused(mModel.get(), &Address_Tree_Model::refused);
    QVERIFY(!mModel->setData(kitchenName(), name));
    QCOMPARE(refused.size(), 1);
    QVERIFY(!refused[0][0].toString().isEmpty());
    QCOMPARE(kitchenName().data().toString(), QStringLiteral("Licht Küche"));
  }

  void onlyNamesAreEditable() {
    for (int column = 0; column < Address_Tree_Model::cColumnCount; ++column) {
      const QModelIndex index = mModel->indexOf(mKitchen).siblingAtColumn(column);
      QCOMPARE(index.flags().testFlag(Qt::ItemIsEditable), column == Address_Tree_Model::cName);
    }
    QVERIFY(!mModel->setData(mModel->indexOf(mKitchen), QStringLiteral("9/9/9")));
  }

  void newGroupsAppear() {
    const QSignalSpy resets(mModel.get(), &QAbstractItemModel::modelReset);
    tree().beginChange();
    mRig->addAddress({0, 0, 1}, QStringLiteral("Zentral"));
    mRig->addAddress({0, 0, 0}, QStringLiteral("Zentral"));
    tree().endChange();
    QCOMPARE(resets.size(), 1);
    QCOMPARE(shownAddresses().first(4), (QStringList{"0/*", "0/0/*", "0/0/0", "0/0/1"}));
  }

  void followsTheProject() {
    mRig->mSession.close();
    QCOMPARE(mModel->rowCount(), 0);
    QVERIFY(!mModel->indexOf(mKitchen).isValid());
    QVERIFY(mRig->create());
    mRig->addAddress({7, 7, 7}, QStringLiteral("Neu"));
    QCOMPARE(shownAddresses(), (QStringList{"7/*", "7/7/*", "7/7/7"}));
  }

private:
  [[nodiscard]] Address_Tree& tree() { return mRig->mSession.database().mAddresses; }
  [[nodiscard]] QModelIndex kitchenName() const {
    return mModel->indexOf(mKitchen).siblingAtColumn(Address_Tree_Model::cName);
  }

  void setOperatingMode(bool on) {
    mRig->mState.setOperatingMode(on);
    Session_State::process().setOperatingMode(on);
  }

  [[nodiscard]] QStringList shownAddresses(const QModelIndex& parent = {}) const {
    QStringList addresses;
    for (int row = 0; row < mModel->rowCount(parent); ++row) {
      const QModelIndex index = mModel->index(row, 0, parent);
      addresses += index.data().toString();
      addresses += shownAddresses(index);
    }
    return addresses;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Address_Tree_Model> mModel;
  std::unique_ptr<QAbstractItemModelTester> mTester;
  QUuid mKitchen;
};

QTEST_GUILESS_MAIN(Address_Tree_Model_Test)
#include "Address_Tree_Model_Test.moc"
