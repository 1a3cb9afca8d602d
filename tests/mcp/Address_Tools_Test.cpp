#include "db/Address_Edits.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Data_Type.h"
#include "net/Controller_Values.h"
#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rig.h"
#include "tests/simulator/Simulator_Rig.h"

using namespace Qt::StringLiterals;

namespace {

/// An error that is told, whatever it says.
const QString cAnyError = u"*"_s;

QJsonObject json(QByteArray text) {
  QJsonParseError error;
  const QJsonObject object = QJsonDocument::fromJson(text.replace('\'', '"'), &error).object();
  if (error.error != QJsonParseError::NoError) {
    qFatal("%s: %s", text.constData(), qPrintable(error.errorString()));
  }
  return object;
}

/// Where `actual` lacks something of `expected` or has it otherwise; further members of objects do not count.
QString difference(const QJsonValue& expected, const QJsonValue& actual, const QString& path = {}) {
  if (expected.isObject()) {
    for (const QString& key : expected.toObject().keys()) {
      const QString found = difference(expected[key], actual[key], path + u'.' + key);
      if (!found.isEmpty()) {
        return found;
      }
    }
    return {};
  }
  if (expected.isArray() && expected.toArray().size() == actual.toArray().size()) {
    for (qsizetype i = 0; i < expected.toArray().size(); ++i) {
      const QString found = difference(expected[i], actual[i], path + u'[' + QString::number(i) + u']');
      if (!found.isEmpty()) {
        return found;
      }
    }
    return {};
  }
  return expected == actual ? QString()
                            : path + u": "_s + QString::fromUtf8(QJsonDocument(QJsonArray{actual}).toJson());
}

/// 1/2/3 "Licht Küche" 1.001, bound to an input of an AND; 1/2/4 "Temperatur" 9.001; 1/2/5 without type; 1/3/* empty;
/// 31/7/255 "Wert" of any 20.xxx.
struct Address_Rig : Tool_Rig {
  Address_Rig() {
    addAddress({1, 2, 3}, u"Licht Küche"_s)->mDpt = {1, 1};
    DB_Address_Sub_Group* const temperature = addAddress({1, 2, 4}, u"Temperatur"_s);
    temperature->mDpt = {9, 1};
    temperature->mDescription = u"Wohnen\nNord"_s;
    temperature->mReadAtStart = true;
    addAddress({1, 2, 5}, u"Reserve"_s);
    addAddress({31, 7, 255}, u"Wert"_s)->mDpt = {20, Datapoint_Id::cAnySub};
    Address_Edits::addMiddleGroup(mSession, 1, 3, {u"leer"_s, {}, {}});
    const QUuid page = mSession.database().mFbPages.pages().at(0).mGuid;
    mAnd = FB_Page_Edits::create(mSession, page, cAnd, {}).mBlocks.first();
    mNote = FB_Page_Edits::create(mSession, page, FB_Types::cComment, {}).mBlocks.first();
    FB_Page_Edits::bind(mSession, {mAnd, FB_Side::Input, 0}, mSession.database().mAddresses.subGroup({1, 2, 3})->mKey);
    mSession.history().commit();
  }

  [[nodiscard]] QJsonObject arguments(QByteArray text) const {
    return json(text.replace("$AND", mAnd.toByteArray()).replace("$NOTE", mNote.toByteArray()));
  }
  [[nodiscard]] QByteArray dump() { return Project_Dump::project(mSession.database()); }

  static constexpr int cAnd = 50;
  QUuid mAnd;
  QUuid mNote;
};

/// A studio on the stand-in; its page of values goes over the link.
struct Online_Rig : Simulator_Rig {
  QJsonObject call(const QString& tool, const QJsonObject& arguments) {
    const QJsonObject result = mDispatcher.callTool(tool, arguments);
    const QString text = result[u"content"_s].toArray().first()[u"text"_s].toString();
    return QJsonDocument::fromJson(text.toUtf8()).object();
  }

  Controller_Values mValues{mSession, mLink};
  Windowless_Studio mStudio{mSession};
  MCP_Dispatcher mDispatcher{mStudio, mState};
};

} // namespace

class Address_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

  void numbersOfTypes() {
    for (const auto& [number, text] : {std::pair(0, u""_s),
                                       {1001, u"1.001"_s},
                                       {15'000, u"15.000"_s},
                                       {14, u"14"_s},
                                       {20'102, u"20.102"_s},
                                       {141'200, u"14.1200"_s},
                                       {232'600, u"232.600"_s}}) {
      QCOMPARE(MCP_Data_Type::parse(number).value_or(Datapoint_Id{999}).toString(), text);
      QCOMPARE(MCP_Data_Type::number(*MCP_Data_Type::parse(number)), number);
    }
    for (const int wrong : {-1, -1001, 99, 999, 1000, 1999, 10'001'001, INT_MAX, INT_MIN}) {
      QVERIFY2(!MCP_Data_Type::parse(wrong), QByteArray::number(wrong));
    }
  }

  void lists_data();
  void lists() {
    QFETCH(const QByteArray, arguments);
    QFETCH(const QString, addresses);
    QFETCH(const QByteArray, result);
    Address_Rig rig;
    const QJsonObject object = rig.call(u"list_addresses"_s, rig.arguments(arguments));
    QStringList found;
    for (const QJsonValue& main : object[u"main_groups"_s].toArray()) {
      for (const QJsonValue& middle : main[u"middle_groups"_s].toArray()) {
        for (const QJsonValue& sub : middle[u"addresses"_s].toArray()) {
          found.append(sub[u"address"_s].toString());
        }
      }
    }
    QCOMPARE(found.join(u' '), addresses);
    QCOMPARE(difference(json(result), object), QString());
  }

  void aLongListIsCutAndSaysSo() {
    Tool_Rig rig;
    for (int number = 0; number < 1100; ++number) {
      rig.addAddress(Group_Address::fromNumber(quint16(number)), u"Lampe"_s);
    }
    const QJsonObject object = rig.call(u"list_addresses"_s, {{u"filter"_s, u"lampe"_s}});
    QCOMPARE(difference(json("{'count':500,'total':1100,'truncated':true}"), object), QString());
    QVERIFY(object[u"hint"_s].toString().contains(u"filter"_s));
    const QJsonArray middles = object[u"main_groups"_s][0][u"middle_groups"_s].toArray();
    QCOMPARE(middles.last()[u"address_count"_s].toInt(), 76);
    QCOMPARE(middles.last()[u"addresses"_s].toArray().size(), 0);
  }

  void edits_data();
  void edits() {
    QFETCH(const QString, tool);
    QFETCH(const QByteArray, arguments);
    QFETCH(const QString, error);
    QFETCH(const QByteArray, result);
    Address_Rig rig;
    const QByteArray before = rig.dump();
    const History::State state = rig.mSession.history().state();
    const QJsonObject object = rig.call(tool, rig.arguments(arguments));
    if (!error.isEmpty()) {
      const QString told = object[u"error"_s].toString();
      QVERIFY2(error == cAnyError ? !told.isEmpty() : told == error, qPrintable(told));
      QCOMPARE(rig.dump(), before);
      QVERIFY(rig.mSession.history().state() == state);
      return;
    }
    QVERIFY2(!object.contains(u"error"_s), qPrintable(object[u"error"_s].toString()));
    QCOMPARE(difference(json(result), object), QString());
    const QByteArray after = rig.dump();
    QVERIFY(after != before);
    QVERIFY(rig.mSession.history().undo());
    QCOMPARE(rig.dump(), before);
    QVERIFY(rig.mSession.history().redo());
    QCOMPARE(rig.dump(), after);
  }

  void deletingTellsWhatPointsToNothing() {
    Address_Rig rig;
    const QJsonObject object = rig.call(u"delete_address"_s, json("{'main':1,'middle':2,'sub':3}"));
    QCOMPARE(object[u"binding_count"_s].toInt(), 1);
    QCOMPARE(object[u"bindings"_s][0][u"fb_guid"_s].toString(), rig.mAnd.toString());
    QVERIFY(object[u"bindings"_s][0][u"text"_s].toString().contains(u"Eingang 1"_s));
    QVERIFY(object[u"warning"_s].toString().contains(u'1'));
    QVERIFY(!object.contains(u"recordings"));
    QVERIFY(!rig.mSession.database().mAddresses.subGroup({1, 2, 3}));
  }

  void deletingTellsWhatIsRecordedNoMore() {
    Address_Rig rig;
    rig.call(u"add_statistic_recording"_s, json("{'address':'1/2/5'}"));
    rig.call(u"add_statistic_recording"_s, json("{'address':'1/2/4','name':'Wohnen'}"));
    const QJsonObject object = rig.call(u"delete_address"_s, json("{'main':1,'middle':2,'sub':4}"));
    QCOMPARE(object[u"recordings"_s].toArray(), QJsonArray({json("{'index':1,'name':'Wohnen'}")}));
    QVERIFY(object[u"warning"_s].toString().startsWith(u"Aufzeichnungen"_s));
    QCOMPARE(rig.mSession.database().mStatistic.mRecordings.size(), size_t(2));
  }

  void batchBindsAll() {
    Address_Rig rig;
    const QJsonObject object = rig.call(
        u"assign_fb_io_addresses_batch"_s,
        rig.arguments("{'fb_guid':'$AND','assignments':[{'io_type':0,'io_index':0,'main':1,'middle':2,'sub':4},"
                      "{'io_type':1,'io_index':0,'address':' 1/2/5','colour':'red'}]}"));
    QVERIFY(object[u"warning"_s].toString().contains(u"assignments[1].colour"_s));
    QCOMPARE(object[u"assignments"_s][0][u"replaced"_s][u"address"_s].toString(), u"1/2/3"_s);
    const DB_FB_Control& block = *rig.mSession.database().mFbPages.child(rig.mAnd);
    const Address_Tree& tree = rig.mSession.database().mAddresses;
    QCOMPARE(block.mInputs[0].mBinding.mKey, tree.subGroup({1, 2, 4})->mKey);
    QCOMPARE(block.mOutputs[0].mBinding.mKey, tree.subGroup({1, 2, 5})->mKey);
  }

  void importsFromFilesAsFromTexts() {
    Address_Rig rig;
    const QString path = rig.path(u"Haus.esf"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Haus\r\nErdgeschoss.Licht.4/1/1\tK\xfc"
               "che\tUncertain (1 Byte)\tLow\t4/1/2\r\n");
    file.close();
    const QJsonObject object =
        rig.call(u"import_knx_addresses"_s,
                 {{u"file_path"_s, path}, {u"connected_addresses"_s, 1}, {u"uncertain_1byte"_s, 17'001}});
    QCOMPARE(difference(json("{'format':'esf','new':1,'groups_new':2,'faults':0}"), object), QString());
    const DB_Address_Sub_Group* const sub = rig.mSession.database().mAddresses.subGroup({4, 1, 1});
    QVERIFY(sub);
    QCOMPARE(sub->mName, u"Küche"_s);
    QCOMPARE(sub->mDpt, (Datapoint_Id{17, 1}));
    QVERIFY(sub->mDescription.contains(u"4/1/2"_s));
    for (const QString& wrong : {rig.folder(), rig.path(u"fehlt.esf"_s)}) {
      QCOMPARE(rig.errorOf(u"import_knx_addresses"_s, {{u"file_path"_s, wrong}}), u"Datei nicht gefunden: "_s + wrong);
    }
    QVERIFY(file.resize(qint64(80) * 1024 * 1024)); // a sparse file
    QVERIFY(rig.errorOf(u"import_knx_addresses"_s, {{u"file_path"_s, path}}).contains(u"64 MB"_s));
  }

  /// What was read as characters keeps them, whatever an XML declares of its bytes.
  void aTextKeepsItsCharacters() {
    Tool_Rig rig;
    const QString xml = u"<?xml version='1.0' encoding='ISO-8859-1'?><GroupAddress-Export "
                        "xmlns='http://knx.org/xml/ga-export/01'><GroupRange Name='Haus' RangeStart='2048' "
                        "RangeEnd='4095'><GroupRange Name='EG' RangeStart='2048' RangeEnd='2303'><GroupAddress "
                        "Name='Küche Ω' Address='1/0/1' DPTs='DPST-1-1'/></GroupRange></GroupRange>"
                        "</GroupAddress-Export>"_s;
    const QJsonObject object = rig.call(u"import_knx_addresses"_s, {{u"file_content"_s, xml}});
    QVERIFY2(!object.contains(u"error"_s), qPrintable(object[u"error"_s].toString()));
    QCOMPARE(difference(json("{'format':'xml','new':1}"), object), QString());
    QCOMPARE(rig.mSession.database().mAddresses.subGroup({1, 0, 1})->mName, u"Küche Ω"_s);
    const QJsonObject again = rig.call(u"import_knx_addresses"_s, {{u"file_content"_s, xml}});
    QCOMPARE(difference(json("{'new':0,'changed':0,'unchanged':3}"), again), QString());
  }

  /// Real exports lie beside the project on a developer's machine; they are never copied into it.
  void realExportsArrive() {
    const QDir folder(QFileInfo(QFINDTESTDATA("Address_Tools_Test.cpp")).path() + u"/../../../shared/data/ets"_s);
    const QFileInfoList files = folder.entryInfoList({u"*.xml"_s, u"*.esf"_s, u"*.csv"_s}, QDir::Files);
    if (files.isEmpty()) {
      QSKIP("no real exports on this machine");
    }
    for (const QFileInfo& file : files) {
      Tool_Rig rig;
      const QJsonObject object = rig.call(u"import_knx_addresses"_s, {{u"file_path"_s, file.absoluteFilePath()}});
      QVERIFY2(!object.contains(u"error"_s), qPrintable(file.fileName() + object[u"error"_s].toString()));
      QCOMPARE(object[u"format"_s].toString(), file.suffix());
      QCOMPARE(object[u"new"_s].toInt(), int(rig.mSession.database().mAddresses.subGroupCount()));
      QCOMPARE(object[u"new"_s].toInt() + object[u"conflicts"_s].toInt() + object[u"repeated"_s].toInt(),
               object[u"addresses_in_file"_s].toInt());
    }
  }

  void valuesOffline_data();
  void valuesOffline() {
    QFETCH(const QByteArray, arguments);
    QFETCH(const QString, error);
    QFETCH(const QByteArray, result);
    Address_Rig rig;
    rig.mSession.database().mAddresses.subGroup({1, 2, 5})->mDpt = {5, 1};
    rig.addAddress({1, 2, 6}, u"Uhr"_s)->mDpt = {10, 1};
    rig.addAddress({1, 2, 7}, u"ohne"_s);
    const QByteArray before = rig.dump();
    const QJsonObject object = rig.call(u"set_address_value"_s, rig.arguments(arguments));
    QCOMPARE(object[u"error"_s].toString(), error);
    QCOMPARE(difference(json(result), object), QString());
    if (error.isEmpty()) {
      QCOMPARE(object[u"sent"_s], QJsonValue(false));
      QVERIFY(object[u"warning"_s].toString().contains(u"connect_runtime"_s));
    }
    QCOMPARE(rig.mSession.values().count(), 0);
    QCOMPARE(rig.dump(), before);
  }

  void valuesGoToTheControllerAndBack() {
    Online_Rig rig;
    rig.addAddress({1, 2, 3}, u"Soll"_s)->mDpt = {9, 1};
    rig.addAddress({1, 2, 4}, u"Uhr"_s)->mDpt = {10, 1};
    rig.addAddress({1, 2, 5}, u"roh"_s);
    const QJsonObject at = json("{'main':1,'middle':2,'sub':3}");
    QJsonObject object = rig.call(u"get_address_value"_s, at);
    QCOMPARE(difference(json("{'available':false,'connected':false}"), object), QString());
    QVERIFY(!object.contains(u"value"_s) && object[u"hint"_s].toString().contains(u"connect_runtime"_s));
    QVERIFY(rig.goOnline());
    object = rig.call(u"set_address_value"_s, json("{'main':1,'middle':2,'sub':3,'value':21.503}"));
    QCOMPARE(difference(json("{'sent':true,'value':21.5,'data_type':9001,'address':'1/2/3'}"), object), QString());
    QVERIFY(!object.contains(u"warning"_s));
    QVERIFY(rig.waitFor([&rig] { return !rig.controller().values().value({1, 2, 3}).isEmpty(); }));
    QCOMPARE(rig.controller().values().value({1, 2, 3}).toHex(), QByteArray("0c33"));
    object = rig.call(u"get_address_value"_s, at);
    QCOMPARE(difference(json("{'available':true,'connected':true,'value':21.5,'text':'21,5 °C','comment':'Soll',"
                             "'payload':'0C 33','source':'Studio','stale':false}"),
                        object),
             QString());
    QVERIFY(QDateTime::fromString(object[u"time"_s].toString(), Qt::ISODateWithMs).isValid());
    // From the bus: a compound, and a payload without a type.
    rig.controller().writeValue({1, 2, 4}, QByteArray::fromHex("2f1e00"), 1, 1, 20);
    rig.controller().writeValue({1, 2, 5}, QByteArray::fromHex("0102"), 1, 1, 20);
    QVERIFY(rig.waitFor([&rig] { return rig.mSession.values().count() == 3; }));
    object = rig.call(u"get_address_value"_s, json("{'main':1,'middle':2,'sub':4}"));
    QCOMPARE(difference(json("{'value':{'day':1,'time':'15:30:00'},'source':'1.1.20'}"), object), QString());
    object = rig.call(u"get_address_value"_s, json("{'main':1,'middle':2,'sub':5}"));
    QCOMPARE(difference(json("{'payload':'01 02','text':'01 02'}"), object), QString());
    QVERIFY(!object.contains(u"value"_s) && object.contains(u"note"_s));
    rig.mLink.disconnectLink();
    object = rig.call(u"get_address_value"_s, at);
    QCOMPARE(difference(json("{'value':21.5,'stale':true,'connected':false}"), object), QString());
    QVERIFY(object[u"warning"_s].toString().contains(u"der letzte im Studio bekannte Stand"_s));
  }
};

void Address_Tools_Test::lists_data() {
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<QString>("addresses");
  QTest::addColumn<QByteArray>("result");
  const auto row = [](const QByteArray& arguments, const char* addresses, const QByteArray& result = "{}") {
    QTest::newRow(arguments.constData()) << arguments << QString::fromUtf8(addresses) << result;
  };
  row("{}", "1/2/3 1/2/4 1/2/5 31/7/255",
      "{'count':4,'total':4,'truncated':false,'main_groups':[{'main':1,'middle_groups':[{'middle':2,'address_count':3,"
      "'addresses':[{'main':1,'middle':2,'sub':3,'comment':'Licht Küche','data_type':1001,"
      "'data_type_text':'1.001 Schalten'},{'description':'Wohnen\\nNord','read_at_start':true,'data_type':9001},"
      "{'data_type':0}]},{'middle':3,'comment':'leer','addresses':[]}]},"
      "{'main':31,'middle_groups':[{'middle':7,'addresses':[{'data_type':20}]}]}]}");
  row("{'filter':'KÜCHE'}", "1/2/3", "{'main_groups':[{'middle_groups':[{'address_count':1}]}]}");
  row("{'filter':'küche licht'}", "1/2/3");
  row("{'filter':'nord'}", "1/2/4");
  row("{'filter':'1/2'}", "1/2/3 1/2/4 1/2/5");
  row("{'filter':'1/2/*'}", "1/2/3 1/2/4 1/2/5");
  row("{'filter':'1/2/5'}", "1/2/5");
  row("{'filter':'31/'}", "31/7/255");
  row("{'filter':'1/ reserve'}", "1/2/5");
  row("{'filter':'1/7'}", "", "{'main_groups':[],'hint':'Keine Adresse passt; ohne filter sind es 4.'}");
  row("{'filter':' ','main_group':31}", "31/7/255");
  row("{'filter':null,'main_group':-1,'middle_group':7}", "31/7/255");
  row("{'main_group':1,'middle_group':3}", "");
  row("{'main_group':9}", "", "{'total':0,'main_groups':[]}");
}

void Address_Tools_Test::edits_data() {
  QTest::addColumn<QString>("tool");
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<QString>("error");
  QTest::addColumn<QByteArray>("result");
  QString tool;
  const auto row = [&tool](const QByteArray& arguments, const QString& error, const QByteArray& result = "{}") {
    QTest::addRow("%s %s", qPrintable(tool), arguments.left(200).constData()) << tool << arguments << error << result;
  };
  const QString negative = u"Ungueltige Adresse: main, middle und sub muessen >= 0 sein"_s;

  tool = u"create_address"_s;
  row("{'main':2,'middle':1,'sub':0,'comment':'Neu','data_type':5001}", {},
      "{'address':'2/1/0','comment':'Neu','data_type':5001,'created_groups':['2/*','2/1/*']}");
  row("{'main':1,'middle':2,'sub':0,'comment':'ohne Typ','data_type':null}", {}, "{'data_type':0}");
  row("{'main':-1,'middle':2,'sub':0,'comment':''}", negative);
  row("{'main':1,'middle':2,'sub':3,'comment':'da'}", cAnyError);
  row("{'main':32,'middle':0,'sub':1,'comment':'zu weit'}", cAnyError);
  row("{'main':2,'middle':0,'sub':1,'comment':'x','data_type':1999}", cAnyError);
  row("{'main':2,'middle':0,'sub':1,'comment':'" + QByteArray(256, 'x') + "'}", cAnyError);
  row("{'main':2,'middle':0,'sub':1}", u"Parameter 'comment' fehlt"_s);

  tool = u"update_address"_s;
  row("{'main':1,'middle':2,'sub':3,'comment':'Lampe','data_type':5001}", {},
      "{'comment':'Lampe','data_type':5001,'data_type_text':'5.001 Prozentwert (0..100 %)'}");
  row("{'main':1,'middle':2,'sub':3,'data_type':0}", {}, "{'comment':'Licht Küche','data_type':0}");
  row("{'main':1,'middle':2,'sub':3}", cAnyError);
  row("{'main':1,'middle':2,'sub':3,'comment':'wird zurueckgenommen','data_type':-5}", cAnyError);
  row("{'main':1,'middle':-2,'sub':3,'comment':''}", negative);
  row("{'main':1,'middle':2,'sub':99,'comment':''}", u"Adresse nicht gefunden: 1/2/99"_s);

  tool = u"delete_address"_s;
  row("{'main':1,'middle':2,'sub':5}", {}, "{'deleted':{'address':'1/2/5','comment':'Reserve'},'binding_count':0}");
  row("{'main':1,'middle':9,'sub':5}", u"Adresse nicht gefunden: 1/9/5"_s);

  tool = u"assign_fb_io_address"_s;
  row("{'fb_guid':'$AND','io_type':1,'io_index':0,'main':1,'middle':2,'sub':4}", {},
      "{'io_type':1,'io_index':0,'binding':{'kind':'address','address':'1/2/4','data_type':9001}}");
  row("{'fb_guid':'x','io_type':1,'io_index':0,'main':1,'middle':2,'sub':4}", u"Funktionsbaustein nicht gefunden: x"_s);
  row("{'fb_guid':'$AND','io_type':2,'io_index':0,'main':1,'middle':2,'sub':4}", cAnyError);
  row("{'fb_guid':'$AND','io_type':0,'io_index':2,'main':1,'middle':2,'sub':4}",
      u"IO-Index ausserhalb des gueltigen Bereichs: 2 (max 1)"_s);
  row("{'fb_guid':'$AND','io_type':0,'io_index':-1,'main':1,'middle':2,'sub':4}",
      u"IO-Index ausserhalb des gueltigen Bereichs: -1 (max 1)"_s);
  row("{'fb_guid':'$NOTE','io_type':0,'io_index':0,'main':1,'middle':2,'sub':4}",
      u"IO-Index ausserhalb des gueltigen Bereichs: 0"_s);
  row("{'fb_guid':'$AND','io_type':0,'io_index':0,'main':1,'middle':2,'sub':-4}", negative);
  row("{'fb_guid':'$AND','io_type':0,'io_index':0,'main':1,'middle':2,'sub':40}", u"Adresse nicht gefunden: 1/2/40"_s);

  tool = u"assign_fb_io_addresses_batch"_s;
  const QByteArray good = "{'io_type':0,'io_index':1,'main':1,'middle':2,'sub':4}";
  const auto batch = [&](const QByteArray& second, const QString& error, const QByteArray& result = "{}") {
    row("{'fb_guid':'$AND','assignments':[" + good + ',' + second + "]}", error, result);
  };
  batch("{'io_type':1,'io_index':0,'address':'1/2/5','sub':null}", {},
        "{'count':2,'assignments':[{'io_type':0,'io_index':1},{'io_type':1,'binding':{'address':'1/2/5'}}]}");
  batch("{'io_type':1,'io_index':0,'address':'1/2'}",
        u"assignments[1]: Adresse ungueltig, erwartet \"haupt/mittel/unter\": 1/2"_s);
  batch("{'io_type':1,'io_index':0,'main':1,'middle':2}", u"assignments[1]: Parameter 'sub' fehlt"_s);
  batch("{'io_type':1,'io_index':0,'main':1,'middle':2,'sub':'5'}", cAnyError);
  batch("{'io_type':1,'io_index':0,'main':1,'middle':2,'sub':1e300}", cAnyError);
  batch("{'io_type':1,'io_index':0,'main':1,'address':'1/2/5'}", cAnyError);
  batch("{'io_type':1,'io_index':0,'address':''}", cAnyError);
  batch("{'io_type':null,'io_index':0,'address':'1/2/5'}", u"assignments[1]: Parameter 'io_type' fehlt"_s);
  batch("{'io_type':1,'io_index':1,'address':'1/2/5'}",
        u"assignments[1]: IO-Index ausserhalb des gueltigen Bereichs: 1 (max 0)"_s);
  batch("{'io_type':1,'io_index':0,'main':7,'middle':2,'sub':5}", u"assignments[1]: Adresse nicht gefunden: 7/2/5"_s);
  batch(good, cAnyError); // the same pin twice
  batch("null", cAnyError);
  batch("[{}]", cAnyError);
  row("{'fb_guid':'$AND','assignments':[]}", cAnyError);

  tool = u"generate_fb_addresses"_s;
  row("{'fb_guid':'$AND'}", {},
      "{'created_addresses':2,'kept_bindings':1,'assignments':[{'io_index':1},{'io_type':1}]}");
  row("{'fb_guid':'$AND','conflict_mode':'Overwrite'}", {}, "{'created_addresses':3,'kept_bindings':0}");
  row("{'fb_guid':'$AND','conflict_mode':'fail'}", cAnyError);
  row("{'fb_guid':'$AND','conflict_mode':'merge'}",
      u"conflict_mode ungueltig: merge (erlaubt: overwrite, append, fail)"_s);
  row("{'fb_guid':'$NOTE'}", cAnyError);

  tool = u"import_knx_addresses"_s;
  const QByteArray esf =
      "'file_content':'Haus\\nA.B.1/2/3\\tNeu\\tEIS 5 (2 Byte)\\tLow\\t\\nA.B.1/2/9\\tDazu\\tUncertain (2 "
      "Byte)\\tLow\\t\\nunfug\\n'";
  row('{' + esf + ",'uncertain_2byte':7001}", {},
      "{'format':'esf','new':1,'conflicts':1,'not_in_file':3,'faults':1,'fault_list':['Zeile 4: Die Zeile hat 1 statt "
      "5 Spalten.']}");
  row('{' + esf + ",'keep_type':'ja','keep_comment':'1','import_new_only':'FALSE'}", {}, "{'new':1,'conflicts':0}");
  row('{' + esf + ",'import_new_only':'true'}", {}, "{'new':1,'changed':0,'conflicts':0}");
  row('{' + esf + ",'import_new_only':true,'keep_type':false}", {}, "{'new':1,'changed':0,'conflicts':0}");
  row('{' + esf + ",'keep_type':'vielleicht'}",
      u"keep_type ungueltig: vielleicht (erlaubt: true, 1, ja, false, 0, nein)"_s);
  row('{' + esf + ",'keep_type':1}", cAnyError);
  row('{' + esf + ",'format':'pdf'}", u"format ungueltig: pdf (erlaubt: esf, xml, csv)"_s);
  row('{' + esf + ",'format':'xml'}", cAnyError);
  row('{' + esf + ",'connected_addresses':2}", cAnyError);
  row('{' + esf + ",'uncertain_1byte':9001}", u"uncertain_1byte: der Datenpunkttyp 9.001 ist nicht 1 Byte gross"_s);
  row('{' + esf + ",'uncertain_4byte':4711}", cAnyError);
  row('{' + esf + ",'file_path':'/tmp/x'}", u"Entweder file_path oder file_content angeben"_s);
  row("{}", u"Entweder file_path oder file_content angeben"_s);
  row("{'file_content':''}", cAnyError);
  row("{'file_content':'<GroupAddress-Export><GroupRange'}", cAnyError);
  row("{'file_content':'Guten Tag'}", cAnyError);
  row("{'file_path':'Haus.esf'}", u"file_path muss ein vollstaendiger Pfad sein: Haus.esf"_s);
}

void Address_Tools_Test::valuesOffline_data() {
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<QString>("error");
  QTest::addColumn<QByteArray>("result");
  const auto row = [](int sub, const QByteArray& value, const QString& error, const QByteArray& result = "{}") {
    QTest::addRow("1/2/%d %s", sub, value.constData())
        << QByteArray("{'main':1,'middle':2,'sub':" + QByteArray::number(sub) + ",'value':" + value + '}') << error
        << result;
  };
  row(3, "1", {}, "{'value':1,'text':'Ein'}");
  row(3, "2",
      u"Wert 2 passt nicht zum Datentyp 1.001 der Adresse 1/2/3: 2 ist kein Wert dieses Typs. Erlaubt sind "
      "0=Aus, 1=Ein."_s);
  row(3, "0.5",
      u"Wert 0.5 passt nicht zum Datentyp 1.001 der Adresse 1/2/3: 0.5 ist kein Wert dieses Typs. Erlaubt sind 0=Aus, 1=Ein."_s);
  row(4, "-20.5", {}, "{'value':-20.5,'text':'-20,5 °C'}");
  row(4, "-274",
      u"Wert -274 passt nicht zum Datentyp 9.001 der Adresse 1/2/4: -274 °C liegt nicht im Bereich -273 °C "
      "bis 670433.28 °C."_s);
  row(5, "100", {}, "{'value':100}");
  row(5, "101",
      u"Wert 101 passt nicht zum Datentyp 5.001 der Adresse 1/2/5: 101 % liegt nicht im Bereich 0 % bis 100 "
      "%."_s);
  row(6, "1",
      u"Werte des Datentyps 10.001 der Adresse 1/2/6 sind keine einzelne Zahl und lassen sich hier nicht "
      "senden"_s);
  row(7, "1",
      u"Die Adresse 1/2/7 hat keinen Datentyp, der Wert laesst sich nicht verschluesseln. Zuerst mit "
      "update_address den data_type setzen."_s);
  row(8, "1", u"Adresse nicht gefunden: 1/2/8"_s);
  row(-1, "1", u"Ungueltige Adresse: main, middle und sub muessen >= 0 sein"_s);
  QTest::newRow("open type") << QByteArray("{'main':31,'middle':7,'sub':255,'value':1}")
                             << u"Der Datentyp 20 der Adresse 31/7/255 ist zum Senden nicht genau genug. Zuerst mit "
                                "update_address einen data_type mit Unternummer setzen."_s
                             << QByteArray("{}");
}

QTEST_GUILESS_MAIN(Address_Tools_Test)
#include "Address_Tools_Test.moc"
