#include "db/Address_Tree_Model.h"
#include "db/Model_Roles.h"
#include "tests/db/Session_Rig.h"
#include "ui/Address_Tree_View.h"
#include "ui/Address_Value_Dialog.h"
#include "ui/Address_Value_Menu.h"
#include "ui/Address_View.h"
#include "ui/Theme.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

namespace {

/// Keeps what it is asked for.
class Fake_Service : public Value_Service {
public:
  [[nodiscard]] bool isOnline() const override { return mIsOnline; }
  void read(const QList<QUuid>& keys) override { mRead = keys; }
  void cancelReading() override { mRead.clear(); }
  [[nodiscard]] bool isReading() const override { return !mRead.isEmpty(); }
  Edit_Result send(const QUuid&, const QByteArray& payload) override {
    mSent.append(payload);
    return Edit_Result::done();
  }

  bool mIsOnline = true;
  QList<QUuid> mRead;
  QList<QByteArray> mSent;
};

} // namespace

/// Live values in the tree of addresses, and how they are read and sent: 1/2/0 to 1/2/199, each with the type 9.001.
class Address_Values_View_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QLocale::setDefault(QLocale(QLocale::German));
    Theme::apply(*qApp);
  }

  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    for (int sub = 0; sub < cAddresses; ++sub) {
      DB_Address_Sub_Group* const group = mRig->addAddress({1, 2, sub}, QStringLiteral("Fühler %1").arg(sub));
      group->mDpt = {9, 1};
      mKeys.append(group->mKey);
    }
    mService = std::make_unique<Fake_Service>();
    mRig->mSession.setValueService(mService.get());
    mView = std::make_unique<Address_View>(mRig->mSession);
    mView->resize(900, 400);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    mTree = mView->findChild<Address_Tree_View*>();
    mTree->expandAll();
  }

  void cleanup() {
    mView.reset();
    mService.reset();
    mRig.reset();
    mKeys.clear();
  }

  void cellsShowWhatIsKnown() {
    QCOMPARE(cell(0, Address_Rows::cValue).data().toString(), QString());
    set(0, false);
    QCOMPARE(cell(0, Address_Rows::cValue).data().toString(), QStringLiteral("21,5 °C"));
    QCOMPARE(cell(0, Address_Rows::cSource).data().toString(), QStringLiteral("1.1.20"));
    QVERIFY(!cell(0, Address_Rows::cValue).data(Model_Roles::cIsStale).toBool());
    mRig->mSession.values().setAllStale();
    QVERIFY(cell(0, Address_Rows::cValue).data(Model_Roles::cIsStale).toBool());
    QVERIFY(cell(0, Address_Rows::cTime).data().toString().endsWith(QStringLiteral("veraltet")));
    QVERIFY(cell(0, Address_Rows::cValue).data(Qt::ToolTipRole).toString().contains(QStringLiteral("Veraltet")));
    QVERIFY(!cell(0, Address_Rows::cName).data(Model_Roles::cIsStale).toBool());
    QVERIFY(!cell(0, Address_Rows::cValue).flags().testFlag(Qt::ItemIsEditable));
  }

  void onlyRowsThatAreSeenAreTold() {
    QSignalSpy changed(mTree->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy reset(mTree->model(), &QAbstractItemModel::modelReset);
    for (int sub = 0; sub < cAddresses; ++sub) {
      set(sub, false);
    }
    QTRY_VERIFY(changed.count() > 5);
    QVERIFY2(changed.count() < 40, qPrintable(QString::number(changed.count())));
    changed.clear();
    set(cAddresses - 1, false); // far below
    QTest::qWait(2 * Address_Values::cTellMs);
    QCOMPARE(changed.count(), 0);
    mTree->scrollToBottom();
    set(cAddresses - 1, true);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toModelIndex(), cell(cAddresses - 1, Address_Rows::cValue));
    QCOMPARE(reset.count(), 0);
  }

  void sortingByValuesWaitsForTheNextClick() {
    set(3, false);
    mTree->sortByColumn(Address_Rows::cValue, Qt::AscendingOrder);
    QCOMPARE(cell(3, 0).row(), 0);
    set(7, false, QByteArray::fromHex("0001"));
    QTest::qWait(2 * Address_Values::cTellMs);
    QCOMPARE(cell(3, 0).row(), 0);
    mTree->sortByColumn(Address_Rows::cTime, Qt::AscendingOrder);
    mTree->sortByColumn(Address_Rows::cValue, Qt::AscendingOrder);
    QCOMPARE(cell(7, 0).row(), 0);
  }

  void theMenuTellsWhyNot_data() {
    QTest::addColumn<bool>("isOnline");
    QTest::addColumn<int>("selected");
    QTest::addColumn<bool>("mayRead");
    QTest::addColumn<bool>("maySend");
    QTest::newRow("one") << true << 1 << true << true;
    QTest::newRow("two") << true << 2 << true << false;
    QTest::newRow("none") << true << 0 << false << false;
    QTest::newRow("offline") << false << 1 << false << false;
  }

  void theMenuTellsWhyNot() {
    QFETCH(const int, selected);
    QFETCH(const bool, mayRead);
    QFETCH(const bool, maySend);
    QFETCH(const bool, isOnline);
    mService->mIsOnline = isOnline;
    QList<QUuid> keys = mKeys.first(selected);
    Address_Value_Menu menu(
        mRig->mSession, [&keys] { return keys; }, mView.get());
    emit menu.aboutToShow();
    QAction* const read = menu.actions().at(0);
    QAction* const send = menu.actions().at(1);
    QCOMPARE(read->isEnabled(), mayRead);
    QCOMPARE(send->isEnabled(), maySend);
    QVERIFY(read->toolTip().endsWith(u'.'));
    if (mayRead) {
      read->trigger();
      QCOMPARE(mService->mRead, keys);
    }
  }

  void aGroupIsReadWithAllItsAddresses() {
    mTree->selectionModel()->select(mTree->model()->index(0, 0),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    auto* const menu = mTree->findChild<Address_Value_Menu*>();
    emit menu->aboutToShow();
    menu->actions().at(0)->trigger();
    QCOMPARE(mService->mRead, mKeys);
  }

  void aNumberIsCheckedAndSent() {
    set(0, false);
    Address_Value_Dialog dialog(mRig->mSession, mKeys.constFirst());
    auto* const field = dialog.findChild<QLineEdit*>();
    QPushButton* const send = sendButton(dialog);
    QCOMPARE(field->text(), QStringLiteral("21,5"));
    field->setText(QStringLiteral("-300"));
    QVERIFY(!send->isEnabled());
    field->setText(QStringLiteral("22"));
    QVERIFY(send->isEnabled());
    mService->mIsOnline = false;
    emit mService->onlineChanged(false);
    QVERIFY(!send->isEnabled());
    mService->mIsOnline = true;
    emit mService->onlineChanged(true);
    send->click();
    QCOMPARE(mService->mSent, QList<QByteArray>{QByteArray::fromHex("0c4c")});
  }

  void aSwitchIsChosen() {
    mRig->mSession.database().mAddresses.subGroup(mKeys.constFirst())->mDpt = {1, 1};
    mRig->mSession.values().set(mKeys.constFirst(), {QByteArray(1, '\1'), Datapoint_Value::ofWhole(1), 1, {}, false});
    Address_Value_Dialog dialog(mRig->mSession, mKeys.constFirst());
    auto* const choice = dialog.findChild<QComboBox*>();
    QCOMPARE(choice->currentText(), QStringLiteral("Ein (1)"));
    choice->setCurrentIndex(0);
    sendButton(dialog)->click();
    QCOMPARE(mService->mSent, QList<QByteArray>{QByteArray(1, '\0')});
  }

private:
  static constexpr int cAddresses = 200;

  [[nodiscard]] static QPushButton* sendButton(const QDialog& dialog) {
    for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
      if (button->isDefault()) {
        return button;
      }
    }
    return nullptr;
  }

  [[nodiscard]] QModelIndex cell(int sub, int column) const {
    const auto& model = static_cast<const Address_Tree_Model&>(*mTree->model());
    return model.indexOf(mKeys.at(sub)).siblingAtColumn(column);
  }

  void set(int sub, bool isStale, const QByteArray& payload = QByteArray::fromHex("0c33")) {
    Datapoint_Value value;
    value.mScalar = payload == QByteArray::fromHex("0c33") ? 21.5 : 0.01;
    mRig->mSession.values().set(
        mKeys.at(sub), {payload, value, QDateTime::currentMSecsSinceEpoch(), QStringLiteral("1.1.20"), isStale});
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Fake_Service> mService;
  std::unique_ptr<Address_View> mView;
  Address_Tree_View* mTree = nullptr;
  QList<QUuid> mKeys;
};

QTEST_MAIN(Address_Values_View_Test)
#include "Address_Values_View_Test.moc"
