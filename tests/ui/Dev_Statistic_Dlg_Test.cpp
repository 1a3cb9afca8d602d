#include "base/Access_Key.h"
#include "tests/db/Session_Rig.h"
#include "ui/Dev_Statistic_Dlg.h"
#include "ui/Dev_Statistic_Dlg_Model.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

using Model = Dev_Statistic_Dlg_Model;

class Dev_Statistic_Dlg_Test : public QObject {
  Q_OBJECT

  /// The dialog with its table, and its buttons by their access keys.
  struct Shown {
    explicit Shown(Session_Rig& rig) : mDialog(rig.mSession), mModel(*mDialog.findChild<Model*>()) {
      mDialog.show();
      mDialog.activateWindow();
      (void)QTest::qWaitForWindowActive(&mDialog);
      mTable = mDialog.findChild<QTreeView*>();
      for (QPushButton* const button : mDialog.findChildren<QPushButton*>()) {
        mButtons.insert(Access_Key::of(button->text()), button);
      }
    }
    bool set(int row, int column, const QVariant& value) {
      const bool isFlag = column >= Model::cActive;
      return mModel.setData(mModel.index(row, column), value, isFlag ? Qt::CheckStateRole : Qt::EditRole);
    }
    [[nodiscard]] QString text(int row, int column) const { return mModel.index(row, column).data().toString(); }
    [[nodiscard]] bool isFaulty(int row, int column) const {
      return !mModel.faultOf(mModel.index(row, column)).isEmpty();
    }
    void press(QChar key) { mButtons.value(key)->click(); }

    Dev_Statistic_Dlg mDialog;
    Model& mModel;
    QTreeView* mTable = nullptr;
    QHash<QChar, QPushButton*> mButtons;
  };

  std::unique_ptr<Session_Rig> mRig;
  [[nodiscard]] const std::vector<Statistic_Edits::Recording>& stored() const {
    return std::as_const(mRig->mSession).database().mStatistic.mRecordings;
  }

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mRig->addAddress({1, 2, 3}, u"Licht Flur"_s);
    mRig->addAddress({1, 2, 4}, u"Leistung"_s);
  }

  void keyboardFillsARow() {
    Shown shown(*mRig);
    QCOMPARE(shown.mButtons.size(), 7); // each has an access key of its own
    shown.press(u'h');
    QVERIFY(!shown.mButtons.value(u'ü')->isEnabled());
    auto* const edit = shown.mTable->findChild<QLineEdit*>();
    QVERIFY(edit);
    QTest::keyClicks(edit, u"1/2/3"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(shown.text(0, Model::cAddress), u"1/2/3 Licht Flur"_s);
    QCOMPARE(shown.text(0, Model::cName), u"Licht Flur"_s);
    QVERIFY(shown.mTable->isColumnHidden(Model::cController));
    QTest::keyClick(shown.mTable, Qt::Key_Right);
    QTest::keyClick(shown.mTable, Qt::Key_Right);
    QCOMPARE(shown.mTable->currentIndex().column(), Model::cTrigger);
    QTest::keyClick(shown.mTable, Qt::Key_F2);
    auto* const list = shown.mTable->findChild<QComboBox*>();
    QVERIFY(list);
    QTest::keyClick(list, Qt::Key_Down);
    QVERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Return); // not the dialog's default button
    QVERIFY(shown.mDialog.isVisible());
    QCOMPARE(shown.text(0, Model::cTrigger), u"Bei jedem Telegramm"_s);
    for (int i = 0; i < 2; ++i) {
      QTest::keyClick(shown.mTable, Qt::Key_Right);
    }
    QTest::keyClick(shown.mTable, Qt::Key_Space);
    QCOMPARE(shown.mModel.recordings().front().mActive, false);
    shown.press(u'ü');
    QVERIFY(!shown.mDialog.isVisible());
    QCOMPARE(stored().size(), size_t(1));
    mRig->mSession.history().undo();
    QVERIFY(stored().empty());
    QVERIFY(!mRig->mSession.history().canUndo());
  }

  void whatIsTypedCountsWhenTakenOver() {
    Shown shown(*mRig);
    shown.press(u'h');
    auto* const edit = shown.mTable->findChild<QLineEdit*>();
    QVERIFY(edit);
    edit->setText(u"Leistung"_s);
    shown.mDialog.accept();
    QCOMPARE(stored().size(), size_t(1));
    QCOMPARE(stored().front().mName, u"Leistung"_s);
  }

  void cells_data() {
    QTest::addColumn<int>("trigger");
    QTest::addColumn<int>("column");
    QTest::addColumn<QVariant>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isRight");
    const auto row = [](const char* name, int trigger, int column, const QVariant& typed, const QString& shown,
                        bool isRight) { QTest::newRow(name) << trigger << column << typed << shown << isRight; };
    row("strange address", 0, Model::cAddress, u"9/9/9"_s, u"9/9/9"_s, false);
    row("no address", 0, Model::cAddress, QString(), QString(), false);
    row("threshold", 0, Model::cCondition, u"0,5"_s, u"ab 0,5"_s, true);
    row("each change", 0, Model::cCondition, QString(), u"jede"_s, true);
    row("threshold below zero", 0, Model::cCondition, u"-1"_s, u"ab -1"_s, false);
    row("no number", 0, Model::cCondition, u"15 min"_s, u"15 min"_s, false);
    row("interval", 2, Model::cCondition, u"15 min"_s, u"alle 15 min"_s, true);
    row("interval of seconds", 2, Model::cCondition, u"90"_s, u"alle 90 s"_s, true);
    row("no interval", 2, Model::cCondition, u"oft"_s, u"oft"_s, false);
    row("interval of nothing", 2, Model::cCondition, u"0 s"_s, u"alle 0 s"_s, false);
    row("controller that is gone", 0, Model::cController, 4, u"4"_s, false);
    row("group", 0, Model::cTab, 7, u"7"_s, true);
  }
  void cells() {
    QFETCH(int, trigger);
    QFETCH(int, column);
    QFETCH(QVariant, typed);
    QFETCH(QString, shown);
    QFETCH(bool, isRight);
    QLocale::setDefault(QLocale(u"de_DE"_s));
    Shown dialog(*mRig);
    dialog.press(u'h');
    QVERIFY(dialog.set(0, Model::cAddress, u"1/2/3"_s));
    QVERIFY(dialog.set(0, Model::cTrigger, trigger));
    QVERIFY(dialog.set(0, column, typed));
    QCOMPARE(dialog.text(0, column), shown);
    QCOMPARE(dialog.isFaulty(0, column), !isRight);
    QCOMPARE(dialog.mButtons.value(u'ü')->isEnabled(), isRight);
    dialog.mDialog.reject();
    QVERIFY(stored().empty());
    QVERIFY(!mRig->mSession.history().canUndo());
  }

  void ordersAndCopies() {
    mRig->mSession.database().mProject.mControllers = {{1, u"Keller"_s, u"a"_s, true}, {4, u"Dach"_s, u"b"_s, false}};
    Shown shown(*mRig);
    shown.press(u'h');
    QVERIFY(shown.set(0, Model::cAddress, u"1/2/3"_s));
    shown.press(u'd');
    QVERIFY(shown.set(1, Model::cName, u"B"_s));
    QVERIFY(shown.set(1, Model::cController, 4));
    QCOMPARE(shown.text(1, Model::cController), u"4 Dach"_s);
    QVERIFY(shown.set(1, Model::cActive, Qt::Unchecked));
    QVERIFY(!shown.mButtons.value(u'u')->isEnabled());
    shown.press(u'o');
    QCOMPARE(shown.text(0, Model::cName), u"B"_s);
    QCOMPARE(shown.mTable->currentIndex().row(), 0);
    shown.press(u'd');
    QTest::keyClick(shown.mTable, Qt::Key_Delete);
    QCOMPARE(shown.mModel.rowCount(), 2);
    shown.press(u'ü');
    QCOMPARE(stored().size(), size_t(2));
    QCOMPARE(stored()[0].mControllerIndex, 4);
    QVERIFY(!stored()[0].mActive);
    QVERIFY(stored()[1].mActive);
  }

  /// What an assistant does while the dialog is open.
  void narrowWindowLeavesNameAndAddressReadable() {
    mRig->mSession.database().mProject.mControllers = {{1, u"Erdgeschoss"_s, u"10.0.0.1"_s, true}};
    Shown shown(*mRig);
    shown.mDialog.resize(850, 480);
    QTest::qWait(0);
    for (const auto& [column, text] :
         {std::pair(Model::cName, u"Leistung am Netz"_s), std::pair(Model::cAddress, u"1/0/2 Wohnzimmer Licht"_s)}) {
      QVERIFY(shown.mTable->columnWidth(column) > shown.mTable->fontMetrics().horizontalAdvance(text));
    }
  }

  void projectChangesMeanwhile() {
    Shown shown(*mRig);
    shown.press(u'h');
    QVERIFY(shown.set(0, Model::cAddress, u"1/2/3"_s));
    mRig->mState.setOperatingMode(true);
    shown.press(u'ü');
    QVERIFY(shown.mDialog.isVisible());
    QVERIFY(stored().empty());
    mRig->mState.setOperatingMode(false);
    Address_Tree& tree = mRig->mSession.database().mAddresses;
    tree.take(tree.subGroup({1, 2, 3})->mKey);
    QVERIFY(shown.isFaulty(0, Model::cAddress));
    QVERIFY(!shown.mButtons.value(u'ü')->isEnabled());
    mRig->mSession.close();
    QVERIFY(!shown.mDialog.isVisible());
  }
};

QTEST_MAIN(Dev_Statistic_Dlg_Test)
#include "Dev_Statistic_Dlg_Test.moc"
