#include "fb/model/FB_Modbus_Words.h"
#include "fb/model/FB_Page_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rig.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// A block with the registers A (read, bound to 1/2/3), B (written) and C (read), and one that is no master.
class Modbus_Tools_Test : public QObject {
  Q_OBJECT

  static QJsonObject object(const char* json) { return QJsonDocument::fromJson(json).object(); }

  [[nodiscard]] QJsonObject with(QJsonObject arguments) const {
    if (!arguments.contains(u"fb_guid"_s)) {
      arguments.insert(u"fb_guid"_s, mMaster.toString());
    }
    return arguments;
  }
  [[nodiscard]] QByteArray dump() const { return Project_Dump::project(mRig->mSession.database()); }

private slots:
  void init() {
    mRig = std::make_unique<Tool_Rig>();
    Project_Session& session = mRig->mSession;
    const QUuid page = session.database().mFbPages.pages().at(0).mGuid;
    mMaster = FB_Page_Edits::create(session, page, FB_Modbus_Words::cMaster, {64, 64}).mBlocks.first();
    mOther = FB_Page_Edits::create(session, page, 50, {320, 64}).mBlocks.first();
    const QJsonObject told =
        mRig->call(u"set_modbus_master_registers"_s,
                   with(object(R"({"registers":[{"address":0,"name":"A"},{"address":10,"function_code":16,"name":"B"},
                                     {"address":20,"function_code":4,"name":"C","count":2,"datatype":"float32"}]})")));
    QVERIFY(!told.contains(u"error"_s));
    const QUuid address = mRig->addAddress({1, 2, 3}, u"Leistung"_s)->mKey;
    QVERIFY(FB_Page_Edits::bind(session, {mMaster, FB_Side::Output, 2}, address));
    session.history().commit();
    session.history().clear();
    mStart = dump();
  }

  void edits_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("answer"); // these members at least, of the register where there is one; or the error
    const auto row = [](const char* name, const char* tool, const char* arguments, const char* answer) {
      QTest::newRow(name) << QString(QLatin1String(tool)) << QByteArray(arguments) << QByteArray(answer);
    };
    const char* const add = "add_modbus_master_register";
    const char* const update = "update_modbus_master_register";
    const char* const remove = "delete_modbus_master_register";
    const char* const config = "set_modbus_master_config";
    const char* const list = "set_modbus_master_registers";
    row("add", add, R"({"address":30})",
        R"({"index":3,"address":30,"function_code":3,"function":"readHolding","datatype":"uint16","word_count":1,
            "count":1,"factor":1,"offset":0,"polling_interval":1000,"active":1,"write_mode":0,"update_on_change":0,
            "name":"","byte_order":0,"signed":0})");
    row("add all", add,
        R"({"address":30,"function_code":16,"datatype":"INT32","count":2,"byte_order":1,"factor":0.1,"offset":-5.5,
            "polling_interval":5000,"active":false,"write_mode":2,"update_on_change":1,"name":"X"})",
        R"({"datatype":"int32","datatype_register":0,"word_count":2,"signed":1,"count":2,"byte_order":1,"factor":0.1,
            "offset":-5.5,"polling_interval":5000,"active":0,"write_mode":2,"update_on_change":1,"name":"X"})");
    row("bits", add, R"({"address":1,"function_code":1})", R"({"datatype":"bool","datatype_register":2})");
    row("parts of a type", add, R"({"address":1,"word_count":2,"datatype_register":1})", R"({"datatype":"float32"})");
    row("name goes before parts", add, R"({"address":1,"datatype":"float32","word_count":4,"signed":0})",
        R"({"datatype":"float32","word_count":2,"warning":
            "datatype 'float32' gilt, abweichende Angaben ignoriert: word_count, signed."})");
    row("update", update, R"({"index":2,"name":"D","count":null})",
        R"({"index":2,"name":"D","count":2,"address":20,"datatype":"float32"})");
    row("what is no parameter changes nothing", update, R"({"index":0,"name":"N","update_on_change":1})",
        R"({"name":"N","update_on_change":0,"warning":"Unbekannte Parameter ignoriert: update_on_change."})");
    row("update the type", update, R"({"index":0,"datatype":"int64"})",
        R"({"datatype":"int64","word_count":4,"signed":1,"name":"A"})");
    row("loses a binding", update, R"({"index":0,"function_code":6})",
        R"({"function_code":6,"warning":"Verknuepfungen verloren (1): A (1/2/3)."})");
    row("delete", remove, R"({"index":0})", R"({"total":2,"warning":"Verknuepfungen verloren (1): A (1/2/3)."})");
    row("delete another", remove, R"({"index":1})", R"({"total":2})");
    row("list", list, R"({"registers":[{"address":7,"name":"Z"},{"address":8,"name":"A"}]})",
        R"({"total":2,"count":2})");
    row("empty list", list, R"({"registers":[]})",
        R"({"total":0,"count":0,"warning":"Verknuepfungen verloren (1): A (1/2/3)."})");
    row("list of strange members", list, R"({"registers":[{"address":7,"baud":1}]})",
        R"({"total":1,"warning":"Unbekannte Angaben ignoriert: registers[0].baud. )"
        R"(Verknuepfungen verloren (1): A (1/2/3)."})");
    row("connection", config,
        R"({"slave_id":7,"protocol":1,"ip_address":" 10.0.0.9 ","ip_port":1502,"timeout":500,"address_offset":-1,
            "telegram_sleeptime":0})",
        R"({"slave_id":7,"protocol":1,"ip_address":"10.0.0.9","ip_port":1502,"timeout":500,"address_offset":-1,
            "telegram_sleeptime":0,"commport":"/dev/ttyONBOARD-485"})");
    row("serial", config, R"({"protocol":0,"commport":""})",
        R"({"protocol":0,"warning":"commport ist leer - ohne sie erreicht der Baustein das Geraet nicht."})");

    row("no guid", add, R"({"fb_guid":"x","address":1})", "Funktionsbaustein nicht gefunden: x");
    row("address missing", add, "{}", "Parameter 'address' fehlt");
    row("address too high", add, R"({"address":65536})",
        "Parameter 'address' ausserhalb des gueltigen Bereichs: 65536 (erlaubt 0 bis 65535)");
    row("factor 0", add, R"({"address":1,"factor":0})", "Parameter 'factor' darf nicht 0 sein");
    row("no such type", add, R"({"address":1,"datatype":"real"})",
        "datatype 'real' unbekannt, erlaubt: bool, int16, uint16, int32, uint32, int64, uint64, float32, float64");
    row("no such parts", update, R"({"index":0,"word_count":3})",
        "Einen Datentyp mit datatype_register 0, word_count 3, signed 0 gibt es nicht; datatype verwenden: bool, "
        "int16, "
        "uint16, int32, uint32, int64, uint64, float32, float64");
    row("no such function", update, R"({"index":0,"function_code":7})",
        "function_code 7 unbekannt, erlaubt: 1 (readCoils), 2 (readDiscrete), 3 (readHolding), 4 (readInput), 5 "
        "(writeCoil), 6 (writeSingle), 15 (writeCoils), 16 (writeMultiple)");
    row("index", update, R"({"index":3})", "index ausserhalb der Liste (0..2)");
    row("index below zero", remove, R"({"index":-1})", "index ausserhalb der Liste (0..2)");
    row("no list", list, R"({"registers":{"address":1}})",
        "Parameter 'registers' hat den falschen Typ: erwartet Liste, erhalten Objekt");
    row("null in a list", list, R"({"registers":[{"address":1},null]})",
        "registers[1]: erwartet ein Objekt mit Angaben");
    row("member missing", list, R"({"registers":[{"address":1},{"name":"X"}]})",
        "registers[1]: Parameter 'address' fehlt");
    row("member of another type", list, R"({"registers":[{"address":1,"factor":"2"}]})",
        "registers[0]: Parameter 'factor' hat den falschen Typ: erwartet Zahl, erhalten Text");
    row("type in a list", list, R"({"registers":[{"address":1},{"address":2,"function_code":0}]})",
        "registers[1]: function_code 0 unbekannt, erlaubt: 1 (readCoils), 2 (readDiscrete), 3 (readHolding), 4 "
        "(readInput), 5 (writeCoil), 6 (writeSingle), 15 (writeCoils), 16 (writeMultiple)");
    row("slave", config, R"({"ip_port":1502,"slave_id":248})",
        "Parameter 'slave_id' ausserhalb des gueltigen Bereichs: 248 (erlaubt 1 bis 247)");
    row("host", config, R"({"slave_id":3,"ip_address":"10.0.0.9:502"})",
        "ip_address '10.0.0.9:502' ist weder IP-Adresse noch Rechnername; der Port gehoert nach ip_port");
    row("port of two lines", config, R"({"commport":"a\nb"})",
        "commport ist keine Schnittstelle: eine Zeile mit hoechstens 255 Zeichen erwartet");
  }
  void edits() {
    QFETCH(const QString, tool);
    QFETCH(const QByteArray, arguments);
    QFETCH(const QByteArray, answer);
    const QJsonObject given = object(arguments);
    QVERIFY(arguments == "{}" || !given.isEmpty());
    const QJsonObject told = mRig->call(tool, with(given));
    const QJsonObject expected = object(answer);
    const QJsonObject item = told.value(u"register"_s).toObject();
    for (auto it = expected.begin(); it != expected.end(); ++it) {
      const QJsonValue value = item.contains(it.key()) ? item.value(it.key()) : told.value(it.key());
      QVERIFY2(value == it.value(), qPrintable(it.key() + u": "_s + value.toVariant().toString()));
    }
    QCOMPARE(told.contains(u"warning"_s), expected.contains(u"warning"_s));
    QCOMPARE(told.value(u"error"_s).toString(), expected.isEmpty() ? QString::fromUtf8(answer) : QString());
    QCOMPARE(mRig->mSession.history().canUndo(), !expected.isEmpty());
    mRig->mSession.history().undo();
    QVERIFY(!mRig->mSession.history().canUndo());
    QCOMPARE(dump(), mStart);
  }

  void manyPinsOnOneAddress() {
    const QJsonArray thousand = [] {
      QJsonArray registers;
      for (int i = 0; i < 1000; ++i) {
        registers.append(QJsonObject{{u"address"_s, i}, {u"name"_s, u"R%1"_s.arg(i)}});
      }
      return registers;
    }();
    const QUuid light = mRig->addAddress({1, 2, 4}, u"Licht"_s)->mKey;
    QVERIFY(!mRig->call(u"set_modbus_master_registers"_s, with({{u"registers"_s, thousand}})).contains(u"error"_s));
    for (int i = 0; i < 1000; ++i) {
      QVERIFY(FB_Page_Edits::bind(mRig->mSession, {mMaster, FB_Side::Output, 2 + i}, light));
    }
    QCOMPARE(mRig->call(u"update_modbus_master_register"_s, with({{u"index"_s, 5}, {u"function_code"_s, 6}}))
                 .value(u"warning"_s)
                 .toString(),
             u"Verknuepfungen verloren (1): R5 (1/2/4)."_s);

    const QJsonObject detail = mRig->call(u"get_fb_detail"_s, {{u"guid"_s, mMaster.toString()}});
    QCOMPARE(detail.value(u"outputs"_s).toArray().last().toObject().value(u"also_bound_count"_s).toInt(), 998);
    QVERIFY(QJsonDocument(detail).toJson(QJsonDocument::Compact).size() < 600'000);
  }

  void refusesOtherBlocks() {
    const QString guid = mOther.toString();
    for (const char* const tool :
         {"get_modbus_master_config", "set_modbus_master_config", "add_modbus_master_register",
          "update_modbus_master_register", "delete_modbus_master_register", "set_modbus_master_registers"}) {
      const QJsonObject arguments{
          {u"fb_guid"_s, guid}, {u"address"_s, 1}, {u"index"_s, 0}, {u"registers"_s, QJsonArray()}};
      QCOMPARE(mRig->errorOf(QString::fromLatin1(tool), arguments),
               u"Der Baustein ist kein Modbus Master, sondern \"Und\" (Typ 50): %1"_s.arg(guid));
    }
    mRig->mState.setOperatingMode(true);
    QVERIFY(!mRig->errorOf(u"delete_modbus_master_register"_s, with(object(R"({"index":0})"))).isEmpty());
    QVERIFY(!mRig->call(u"get_modbus_master_config"_s, with({})).contains(u"error"_s));
    QCOMPARE(dump(), mStart);
  }

  void readsPageByPage() {
    const QString tool = u"get_modbus_master_config"_s;
    QJsonObject told = mRig->call(tool, with(object(R"({"offset":1,"limit":1})")));
    QCOMPARE(told.value(u"total"_s).toInt(), 3);
    QCOMPARE(told.value(u"count"_s).toInt(), 1);
    QCOMPARE(told.value(u"truncated"_s).toBool(), true);
    QCOMPARE(told.value(u"hint"_s).toString(), u"Weitere Register mit offset=2."_s);
    QCOMPARE(told.value(u"registers"_s).toArray().at(0).toObject().value(u"name"_s).toString(), u"B"_s);
    QCOMPARE(mRig->call(tool, with(object(R"({"offset":9})"))).value(u"count"_s).toInt(-1), 0);
    told = mRig->call(tool, with({}));
    QVERIFY(!told.value(u"truncated"_s).toBool(true));
    const QJsonArray registers = told.value(u"registers"_s).toArray();
    QCOMPARE(registers.size(), 3);
    const auto pins = [&registers](int i) {
      return QString::fromUtf8(
          QJsonDocument(registers.at(i).toObject().value(u"pins"_s).toArray()).toJson(QJsonDocument::Compact));
    };
    QCOMPARE(pins(0), uR"([{"binding":{"address":"1/2/3","comment":"Leistung","kind":"address"},)"
                      uR"("io_index":2,"io_type":1,"name":"A"}])"_s);
    QCOMPARE(pins(1), uR"([{"io_index":0,"io_type":0,"name":"B"}])"_s);
    QCOMPARE(pins(2), uR"([{"io_index":3,"io_type":1,"name":"C [1]"},{"io_index":4,"io_type":1,"name":"C [2]"}])"_s);
  }

private:
  std::unique_ptr<Tool_Rig> mRig;
  QUuid mMaster;
  QUuid mOther;
  QByteArray mStart;
};

QTEST_GUILESS_MAIN(Modbus_Tools_Test)
#include "Modbus_Tools_Test.moc"
