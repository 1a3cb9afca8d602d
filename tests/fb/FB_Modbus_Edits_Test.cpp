#include "fb/model/FB_Modbus_Edits.h"
#include "fb/model/FB_Modbus_Table.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Register_Pins.h"
#include "tests/fb/Logic_Rig.h"

using namespace FB_Modbus_Edits;
using FB_Modbus_Fields::Field;

/// Registers and the pins that follow them; each edit is taken back, done again and taken back.
class FB_Modbus_Edits_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Logic_Rig>();
    mBlock = mRig->add(FB_Modbus_Words::cMaster);
    QVERIFY(insertRegisters(mRig->mSession, mBlock, 0, {made("A", 3, 0), made("B", 16, 10), made("C", 4, 20, 2)}));
    // The outputs: connection, error, A, C [1], C [2]; the input: B.
    const auto bind = [this](FB_Side side, int index, const QUuid& address) {
      QVERIFY(FB_Page_Edits::bind(mRig->mSession, {mBlock, side, index}, address));
    };
    bind(FB_Side::Output, 2, mRig->mLight);
    bind(FB_Side::Output, 4, mRig->mBlind);
    bind(FB_Side::Input, 0, mRig->mLight);
    mRig->history().commit();
    mStart = mRig->dump();
  }

  void pinsFollow_data() {
    QTest::addColumn<std::function<Edit_Result()>>("edit");
    QTest::addColumn<QString>("outputs");
    QTest::addColumn<QString>("inputs");
    const auto row = [](const char* name, const std::function<Edit_Result()>& edit, const char* outputs,
                        const char* inputs) {
      QTest::newRow(name) << edit << QString::fromUtf8(outputs) << QString::fromUtf8(inputs);
    };
    const auto set = [this](int index, Field field, const char* text) {
      return setField(mRig->mSession, mBlock, {index}, field, QString::fromUtf8(text));
    };
    row(
        "remove", [this] { return removeRegisters(mRig->mSession, mBlock, {0}); }, "C [1], C [2]=Jalousie", "B=Licht");
    row(
        "move", [this] { return move(mRig->mSession, mBlock, {2}, -1); }, "A=Licht, C [1], C [2]=Jalousie", "B=Licht");
    row(
        "move to the front",
        [this] {
          return move(mRig->mSession, mBlock, {1, 2}, -1);
        },
        "C [1], C [2]=Jalousie, A=Licht", "B=Licht");
    row(
        "duplicate", [this] { return duplicate(mRig->mSession, mBlock, {0}); }, "A=Licht, A 2, C [1], C [2]=Jalousie",
        "B=Licht");
    row(
        "insert", [this] { return insertRegisters(mRig->mSession, mBlock, 0, {made("", 4, 7)}); },
        "Register 7, A=Licht, C [1], C [2]=Jalousie", "B=Licht");
    row(
        "rename", [set] { return set(0, Field::Name, "Neu"); }, "Neu=Licht, C [1], C [2]=Jalousie", "B=Licht");
    row(
        "write what was read", [set] { return set(0, Field::Function, "6"); }, "C [1], C [2]=Jalousie", "A, B=Licht");
    row(
        "fewer values", [set] { return set(2, Field::Count, "1"); }, "A=Licht, C", "B=Licht");
    row(
        "inactive", [set] { return set(0, Field::Active, "nein"); }, "A=Licht, C [1], C [2]=Jalousie", "B=Licht");
    row(
        "replace",
        [this] {
          return setRegisters(mRig->mSession, mBlock, {made("C", 3, 99, 2), made("X", 4, 0)});
        },
        "C [1], C [2]=Jalousie, X=Licht", "");
  }
  void pinsFollow() {
    QFETCH(std::function<Edit_Result()>, edit);
    const Edit_Result result = edit();
    QVERIFY2(result, qPrintable(result.mError));
    QTEST(pins(FB_Side::Output, 2), "outputs");
    QTEST(pins(FB_Side::Input, 0), "inputs");
    QVERIFY(FB_Pins::isBuilt(mRig->block(mBlock)));
    mRig->history().commit();
    const QByteArray after = mRig->dump();
    QVERIFY(mRig->history().undo());
    QCOMPARE(mRig->dump(), mStart);
    QVERIFY(mRig->history().redo());
    QCOMPARE(mRig->dump(), after);
  }

  void refused_data() {
    QTest::addColumn<std::function<Edit_Result()>>("edit");
    QTest::addColumn<QString>("part");
    const auto set = [this](const char* name, Field field, const char* text, const char* part) {
      const auto edit = [=, this] { return setField(mRig->mSession, mBlock, {0}, field, QString::fromUtf8(text)); };
      QTest::newRow(name) << std::function<Edit_Result()>(edit) << QString::fromUtf8(part);
    };
    set("address", Field::Address, "65536", "65.535");
    set("half an address", Field::Address, "1,5", "65.535");
    set("function", Field::Function, "7", "zur Wahl");
    set("data type", Field::Data_Type, "int24", "uint16");
    set("factor", Field::Factor, "0", "nicht 0");
    set("interval", Field::Interval, "10", "50");
    set("flag", Field::Active, "vielleicht", "\"ja\"");
    const auto row = [](const char* name, const std::function<Edit_Result()>& edit, const char* part) {
      QTest::newRow(name) << edit << QString::fromUtf8(part);
    };
    row(
        "too many pins",
        [this] {
          return addRegister(mRig->mSession, mBlock, made("D", 1, 0, 1000)).mError.isEmpty()
                     ? addRegister(mRig->mSession, mBlock, made("E", 1, 0, 1000))
                     : Edit_Result::done();
        },
        "1.024");
    row(
        "no such register", [this] { return removeRegisters(mRig->mSession, mBlock, {3}); }, "hat 3");
    row(
        "a record out of range", [this] { return addRegister(mRig->mSession, mBlock, made("D", 3, 70000)); }, "65.535");
    row(
        "another type", [this] { return addRegister(mRig->mSession, mRig->add(50), made("D", 3, 7)); }, "\"Und\"");
  }
  void refused() {
    QLocale::setDefault(QLocale(QLocale::German));
    QFETCH(std::function<Edit_Result()>, edit);
    QFETCH(QString, part);
    const Edit_Result result = edit();
    QVERIFY2(result.mError.contains(part), qPrintable(result.mError));
    mRig->mState.setOperatingMode(true);
    QCOMPARE(setField(mRig->mSession, mBlock, {0}, Field::Name, QStringLiteral("X")).mError,
             Session_State::operatingModeRefusal());
  }

  void faultsAreTold_data() {
    QTest::addColumn<DB_Modbus_Register>("item");
    QTest::addColumn<QString>("faults");
    DB_Modbus_Register good = made("A", 3, 65534);
    FB_Modbus_Words::setDataType(good, *FB_Modbus_Words::dataType(u"float32"));
    QTest::newRow("good") << good << "";
    good.mAddress = 65535;
    QTest::newRow("behind the last address") << good << "Adresse";
    good.mFunctionCode = 6;
    QTest::newRow("two words with one") << good << "Datentyp, Adresse";
    QTest::newRow("bits of words") << made("A", 1, 0) << "Datentyp";
    QTest::newRow("too many") << made("A", 4, 0, 126) << "Anzahl";
    DB_Modbus_Register foreign = made("A", 3, -1);
    foreign.mPollingInterval = 0;
    foreign.mByteOrder = 9;
    foreign.mWordCount = 3;
    QTest::newRow("from a file") << foreign << "Adresse, Reihenfolge, Intervall, Datentyp";
  }
  void faultsAreTold() {
    QFETCH(DB_Modbus_Register, item);
    QStringList fields;
    for (const FB_Modbus_Fields::Fault& fault : FB_Modbus_Fields::faults(item)) {
      fields.append(QString::fromUtf8(FB_Modbus_Fields::info(fault.mField).mTitle));
    }
    QTEST(fields.join(QStringLiteral(", ")), "faults");
  }

  /// What a register tells in the order of the columns, and how many faults there are.
  void tables_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    QTest::addColumn<int>("faults");
    const auto row = [](const char* name, const char* text, const char* read, int faults) {
      QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(read) << faults;
    };
    row("plain", "Leistung\t4\t100\tint32\tCDAB\t1\t0,1\t0\t5000\n", "Leistung 4 100 int32 CDAB 1 0,1 0 5000", 0);
    row("titles of tools", "address;function_code;name;datatype\n0x10;3;U;float32\n", "U 3 16 float32 ABCD 1 1 0 1000",
        0);
    row("titles with units", "Name\tAdresse\tIntervall [ms]\tNotiz\nT\t5\t200\tx\n", "T 3 5 uint16 ABCD 1 1 0 200", 1);
    row("a bad row", "A\t3\tabc\nB\t3\t7\n", "B 3 7 uint16 ABCD 1 1 0 1000", 1);
    row("no address", "Name;Funktion;Adresse\nA;3;\n", "", 1);
    row("bits", "Adresse\tFunktion\n3\t1\n", " 1 3 bool ABCD 1 1 0 1000", 0);
    row("a title twice", "Adresse;Name;Name\n3;A;B\n", "A 3 3 uint16 ABCD 1 1 0 1000", 1);
    row("quotes in names", "\"\"\"A\"\t3\t7\nB\"\t3\t8\n", "\"\"\"A\" 3 7 uint16 ABCD 1 1 0 1000", 0);
    row("prose", "Nichts davon ist eine Tabelle.", "", 1);
  }
  void tables() {
    QLocale::setDefault(QLocale(QLocale::German));
    QFETCH(QString, text);
    const FB_Modbus_Table::Result result = FB_Modbus_Table::read(text);
    const QString written = FB_Modbus_Table::write(result.mRegisters);
    QTEST(QString(written).replace(u'\t', u' ').section(u' ', 0, 8), "read");
    QTEST(int(result.mFaults.size()), "faults");
    QCOMPARE(FB_Modbus_Table::write(FB_Modbus_Table::read(written).mRegisters), written);
  }

  void aFilesCountMakesNoMorePinsThanThereCanBe() {
    DB_FB_Control& block = *mRig->mSession.database().mFbPages.child(mBlock);
    block.mModbusRegisters[2].mCount = 2'000'000'000;
    FB_Pins::rebuild(block);
    QCOMPARE(block.mOutputs.size(), size_t(FB_Pins::cMostPins));
    QVERIFY(FB_Pins::isBuilt(block) && FB_Pins::missingPins(block).contains(u"2"));
    QVERIFY(!setField(mRig->mSession, mBlock, {0}, Field::Count, QStringLiteral("2")));
    QVERIFY(removeRegisters(mRig->mSession, mBlock, {1}));
    QVERIFY(pins(FB_Side::Output, 0).startsWith(u"Verbindung OK, Fehlercode, A=Licht, C [1]"));
  }

private:
  static DB_Modbus_Register made(const char* name, int function, int address, int count = 1) {
    DB_Modbus_Register item;
    item.mName = QString::fromUtf8(name);
    item.mFunctionCode = function;
    item.mAddress = address;
    item.mCount = count;
    return item;
  }
  /// "A=Licht, B": name and binding of the pins from `first` on.
  QString pins(FB_Side side, size_t first) {
    QStringList texts;
    const auto& pins = FB_Pins::pins(mRig->block(mBlock), side);
    for (size_t i = first; i < pins.size(); ++i) {
      const QString bound = pins[i].mBinding.mName;
      texts.append(bound.isEmpty() ? pins[i].mLongName : pins[i].mLongName + u'=' + bound);
    }
    return texts.join(QStringLiteral(", "));
  }

  std::unique_ptr<Logic_Rig> mRig;
  QUuid mBlock;
  QByteArray mStart;
};

QTEST_GUILESS_MAIN(FB_Modbus_Edits_Test)
#include "FB_Modbus_Edits_Test.moc"
