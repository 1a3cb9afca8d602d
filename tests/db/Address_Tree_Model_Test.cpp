#include "db/Address_Tree_Model.h"
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

  void cells() {
    const std::pair<QList<int>, QStringList> cases[] = {
        {{1}, {"4/*", "Außen", "", ""}},
        {{0, 1}, {"1/3/*", "", "", ""}},
        {{0, 0, 0}, {"1/2/3", "Licht Küche", "Verteiler Reihe 3", "9.001"}},
        {{0, 0, 1}, {"1/2/10", "Licht Bad", "", "5"}},
        {{1, 0, 0}, {"4/0/255", "<b>Wetter</b>", "", ""}}};
    for (const auto& [path, texts] : cases) {
      QModelIndex index;
      for (const int row : path) {
        index = mModel->index(row, 0, index);
      }
      for (int column = 0; column < Address_Tree_Model::cColumnCount; ++column) {
        QCOMPARE(index.siblingAtColumn(column).data().toString(), texts[column]);
      }
      QCOMPARE(mModel->indexOf(mModel->keyOf(index)), index);
    }
  }

  void filter() {
    const std::pair<const char*, QStringList> cases[] = {
        {"KÜCHE", {"1/*", "1/2/*", "1/2/3", "1/3/*", "1/3/0"}},
        {"küche licht", {"1/*", "1/2/*", "1/2/3"}},
        {"1/2 reihe 9.001", {"1/*", "1/2/*", "1/2/3"}}, // words of several columns
        {"außen", {"4/*"}},
        {"garage", {}},
        {"küche verteiler reihe 9.0012", {}},
        {"  ", {"1/*", "1/2/*", "1/2/3", "1/2/10", "1/3/*", "1/3/0", "4/*", "4/0/*", "4/0/255"}}};
    for (const auto& [text, addresses] : cases) {
      mModel->setFilter(QString::fromUtf8(text));
      QCOMPARE(shownAddresses(), addresses);
      QCOMPARE(mModel->indexOf(mKitchen).isValid(), addresses.contains("1/2/3"));
      const auto isSub = [](const QString& address) { return !address.contains(QLatin1Char('*')); };
      QCOMPARE(mModel->shownSubGroupCount(), std::count_if(addresses.cbegin(), addresses.cend(), isSub));
    }
  }

  void refusals() {
    const QSignalSpy refused(mModel.get(), &Address_Tree_Model::refused);
    QVERIFY(!mModel->setData(kitchenName(), QString(256, QLatin1Char('x'))));
    setOperatingMode(true);
    QVERIFY(!kitchenName().flags().testFlag(Qt::ItemIsEditable));
    QVERIFY(!mModel->setData(kitchenName(), QStringLiteral("Neu")));
    QCOMPARE(refused.size(), 2);
    QCOMPARE(kitchenName().data().toString(), QStringLiteral("Licht Küche"));
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
