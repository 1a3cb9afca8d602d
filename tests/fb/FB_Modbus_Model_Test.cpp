#include "fb/modbus/FB_Modbus_Model.h"
#include "fb/model/FB_Modbus_Edits.h"
#include "tests/fb/Logic_Rig.h"

#include <QAbstractItemModelTester>

/// What a selection and an open cell hang on, while somebody else changes the registers.
class FB_Modbus_Model_Test : public QObject {
  Q_OBJECT

  using Edit = std::function<Edit_Result(Project_Session& session, const QUuid& block)>;

private slots:
  void rowsStayWithTheirRegister_data() {
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("names"); // of the second register of A, B, C and of the third
    QTest::addColumn<int>("changed");   // rows that are told as changed or new
    using namespace FB_Modbus_Edits;
    using FB_Modbus_Fields::Field;
    const auto row = [](const char* name, const char* names, int changed, const Edit& edit) {
      QTest::newRow(name) << edit << QString::fromUtf8(names) << changed;
    };
    row("nothing", "B,C", 0, [](auto&, auto&) { return Edit_Result::done(); });
    row("another one changed", "B,C", 1,
        [](auto& s, auto& b) { return setField(s, b, {0}, Field::Address, QStringLiteral("77")); });
    row("one before removed", "B,C", 0, [](auto& s, auto& b) { return removeRegisters(s, b, {0}); });
    row("itself removed", ",C", 0, [](auto& s, auto& b) { return removeRegisters(s, b, {1}); });
    row("all removed", ",", 0, [](auto& s, auto& b) { return removeRegisters(s, b, {0, 1, 2}); });
    row("one inserted before", "B,C", 1, [](auto& s, auto& b) { return insertRegisters(s, b, 0, {made("N", 9)}); });
    row("between", "B,C", 2, [](auto& s, auto& b) { return insertRegisters(s, b, 2, {made("N", 9), made("M", 8)}); });
    row("all others", "X,Y", 3, [](auto& s, auto& b) {
      return setRegisters(s, b, {made("W", 7), made("X", 8), made("Y", 9)});
    });
  }

  void rowsStayWithTheirRegister() {
    QFETCH(const Edit, edit);
    QFETCH(const QString, names);
    QFETCH(const int, changed);
    Logic_Rig rig;
    const QUuid block = rig.add(FB_Modbus_Words::cMaster);
    QVERIFY(FB_Modbus_Edits::setRegisters(rig.mSession, block, {made("A", 0), made("B", 1), made("C", 2)}));
    FB_Modbus_Model model(rig.mSession, block);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.refresh();
    const auto column = static_cast<int>(FB_Modbus_Fields::Field::Name);
    const QPersistentModelIndex second = model.index(1, column);
    const QPersistentModelIndex third = model.index(2, column);
    int told = 0;
    connect(&model, &QAbstractItemModel::dataChanged, this,
            [&told](const QModelIndex& from, const QModelIndex& to) { told += to.row() - from.row() + 1; });
    QVERIFY(edit(rig.mSession, block));
    model.refresh();
    QCOMPARE(second.data().toString() + u',' + third.data().toString(), names);
    QCOMPARE(told, changed);
  }

private:
  static DB_Modbus_Register made(const char* name, int address) {
    DB_Modbus_Register item;
    item.mName = QString::fromUtf8(name);
    item.mAddress = address;
    return item;
  }
};

QTEST_GUILESS_MAIN(FB_Modbus_Model_Test)
#include "FB_Modbus_Model_Test.moc"
