#include "tests/app/Assistant_Rig.h"
#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rows.h"

using namespace Qt::StringLiterals;

namespace {

/// A project in which every row of the table can be called.
class World : public Assistant_Rig {
public:
  World() {
    const QJsonObject made = must(u"new_project"_s, {{u"filename"_s, path(u"Welt.zpro"_s)},
                                                     {u"connection_ip"_s, controllerAddress()},
                                                     {u"connection_name"_s, u"Steuerung"_s}});
    define("FOLDER", folder());
    define("CONTROLLER", controllerAddress());
    define("PAGE", made.value("fb_pages").toArray().first().toObject().value("guid").toString());
    must(u"create_address"_s, parsed(R"({"main":1,"middle":1,"sub":1,"comment":"Licht an","data_type":1001})"));
    must(u"create_address"_s, parsed(R"({"main":1,"middle":1,"sub":2,"comment":"Licht aus"})"));
    must(u"create_address"_s, parsed(R"({"main":1,"middle":2,"sub":1,"comment":"Hausmodus","data_type":5010})"));
    addBlock("AND", 50, 64);
    addBlock("LUA", 900, 256);
    addBlock("MODBUS", 1917, 448);
    must(u"assign_fb_io_address"_s,
         parsed(R"({"fb_guid":"%AND%","io_type":0,"io_index":0,"main":1,"middle":1,"sub":1})"));
    for (int i = 0; i < 2; ++i) { // an index beside 0
      must(u"add_modbus_master_register"_s, parsed(R"({"fb_guid":"%MODBUS%","address":5,"name":"Register"})"));
    }
    must(u"add_statistic_recording"_s, parsed(R"({"address":"1/1/1"})"));
    mSession.history().clear();
  }

  [[nodiscard]] QJsonObject parsed(const char* arguments) const {
    QByteArray json(arguments);
    for (auto word = mWords.cbegin(); word != mWords.cend(); ++word) {
      json.replace(word.key(), word.value());
    }
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject()) {
      qFatal("no object: %s", json.constData());
    }
    return document.object();
  }
  QJsonObject must(const QString& tool, const QJsonObject& arguments) {
    const QJsonObject object = call(tool, arguments);
    if (object.contains("error")) {
      qFatal("%s: %s", qPrintable(tool), qPrintable(object.value("error").toString()));
    }
    return object;
  }
  QByteArray dump() { return Project_Dump::project(mSession.database()); }
  [[nodiscard]] size_t steps() { return mSession.history().position(); }
  void takeBackTo(size_t steps) {
    while (this->steps() > steps && mSession.history().undo()) {
    }
  }

private:
  void define(const char* name, const QString& value) { mWords.insert(QByteArray("%") + name + '%', value.toUtf8()); }
  void addBlock(const char* name, int type, int y) {
    const QJsonObject made = must(
        u"add_function_block"_s,
        {{u"page_guid"_s, QString::fromUtf8(mWords.value("%PAGE%"))}, {u"type"_s, type}, {u"x"_s, 64}, {u"y"_s, y}});
    define(name, made.value("guid").toString());
  }

  QHash<QByteArray, QByteArray> mWords;
};

/// A value for an argument; one that it cannot have has to be refused, and the refusal names the argument.
struct Hostile {
  QString mWhat;
  QJsonValue mValue;
  bool mIsWrong;
};

QJsonValue nested() {
  QJsonValue value(QJsonValue::Null);
  for (int i = 0; i < 101; ++i) {
    value = i % 2 == 0 ? QJsonValue(QJsonObject{{u"guid"_s, value}}) : QJsonValue(QJsonArray{value, 1, u"x"_s});
  }
  return value;
}

/// By the type that the list of tools shows; none takes everything.
std::vector<Hostile> hostileFor(const QJsonObject& schema, bool isRequired, bool isReallyList) {
  const QString type = isReallyList ? u"array"_s : schema.value("type").toString();
  const auto isWrong = [&type](const QString& own) { return !type.isEmpty() && type != own; };
  const bool isNumber = type == u"number";
  return {
      {u"null"_s, QJsonValue(QJsonValue::Null), isRequired},
      {u"huge number"_s, 1e300, isWrong(u"number"_s)},
      {u"huge negative number"_s, -1e300, isWrong(u"number"_s)},
      {u"beyond 32 bits"_s, 4294967297.0, isWrong(u"number"_s)},
      {u"fraction"_s, 0.5, !isNumber && isWrong(u"number"_s)},
      {u"text"_s, u"quatsch"_s, isWrong(u"string"_s)},
      {u"empty text"_s, QString(u""_s), isWrong(u"string"_s)},
      {u"huge text"_s, QString(1'000'000, u'\u00e4'), isWrong(u"string"_s)},
      {u"object"_s, nested(), isWrong(u"object"_s)},
      {u"list of nothing"_s, QJsonArray{QJsonValue(QJsonValue::Null)}, isWrong(u"array"_s) || schema.contains("items")},
      {u"list of lists"_s, QJsonArray{QJsonArray{nested()}}, isWrong(u"array"_s) || schema.contains("items")},
  };
}

/// What an error may take, whatever was sent.
constexpr qsizetype cLongestAnswer = 10'000;
/// Of all descriptions of tools and parameters.
constexpr qsizetype cLongestDescriptions = 60'000;

bool hasNull(const QJsonValue& value) {
  if (value.isArray()) {
    const QJsonArray array = value.toArray();
    return std::ranges::any_of(array, [](const auto& item) { return hasNull(item); });
  }
  const QJsonObject object = value.toObject();
  return value.isNull() ||
         std::any_of(object.begin(), object.end(), [](const auto& member) { return hasNull(QJsonValue(member)); });
}

} // namespace

/// Every tool that is listed, with what it has to take and what it has to refuse. A tool without a row fails.
class All_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void catalogue();
  void good_data() { rows(); }
  void good();
  void hostile_data() { rows(); }
  void hostile();

private:
  static void rows();
  void begin(const Tool_Row& row);
  void trial(const QString& what, const QJsonObject& arguments, const QString& refusedFor = {});
  void trialsOf(const QString& name, const QJsonObject& schema, bool isRequired);
  void trialsOfMembers(const QString& list);

  const Tool_Row* mRow = nullptr;
  std::unique_ptr<World> mWorld;
  QJsonObject mArguments;
  QByteArray mBefore;
};

void All_Tools_Test::catalogue() {
  const MCP_Catalogue catalogue;
  const QJsonArray tools = catalogue.list().value("tools").toArray();
  QStringList listed;
  qsizetype length = 0;
  for (const QJsonValue& value : tools) {
    const QString name = value.toObject().value("name").toString();
    listed.append(name);
    const QJsonObject schema = value.toObject().value("inputSchema").toObject();
    QVERIFY2(schema.value("type").toString() == u"object", qPrintable(name));
    const QJsonObject properties = schema.value("properties").toObject();
    for (const QJsonValue& required : schema.value("required").toArray()) {
      QVERIFY2(properties.contains(required.toString()), qPrintable(name));
    }
    QVERIFY2(!schema.contains("required") || !schema.value("required").toArray().isEmpty(), qPrintable(name));
    length += value.toObject().value("description").toString().size();
    for (const QJsonValue& property : properties) {
      length += property.toObject().value("description").toString().size();
    }
  }
  QVERIFY(!hasNull(catalogue.list()));
  QStringList published = MCP_Catalogue::names();
  published.removeIf([&listed](const QString& name) { return !listed.contains(name); });
  QCOMPARE(listed, published);
  qInfo("%lld of %lld tools, %lld characters of descriptions, %lld bytes in all", qlonglong(listed.size()),
        qlonglong(MCP_Catalogue::names().size()), qlonglong(length),
        qlonglong(QJsonDocument(catalogue.list()).toJson(QJsonDocument::Compact).size()));
  QVERIFY(length < cLongestDescriptions);
  for (const QString& name : listed) {
    QVERIFY2(std::ranges::any_of(cToolRows, [&](const Tool_Row& row) { return name == QLatin1String(row.mTool); }),
             qPrintable(u"no row for "_s + name));
  }
}

void All_Tools_Test::rows() {
  QTest::addColumn<const Tool_Row*>("row");
  for (const Tool_Row& row : cToolRows) {
    QTest::addRow("%s %.60s", row.mTool, row.mArguments) << &row;
  }
}

void All_Tools_Test::begin(const Tool_Row& row) {
  mRow = &row;
  mWorld.reset();
  mWorld = std::make_unique<World>();
  mArguments = mWorld->parsed(row.mArguments);
  if (row.mIsOnline) {
    mWorld->must(u"connect_runtime"_s, {});
  }
  mBefore = mWorld->dump();
}

void All_Tools_Test::good() {
  QFETCH(const Tool_Row*, row);
  const MCP_Catalogue catalogue;
  const MCP_Tool* const tool = catalogue.find(QLatin1String(row->mTool));
  QVERIFY(tool);
  begin(*row);
  const QJsonObject object = mWorld->call(tool->mName, mArguments);
  QVERIFY2(!object.contains("error"), qPrintable(object.value("error").toString()));
  QVERIFY2(!hasNull(object), QJsonDocument(object).toJson());
  QVERIFY(!mWorld->mState.toolCallRunning());
  if (!tool->mStep.isEmpty()) {
    QCOMPARE(mWorld->steps(), size_t(mWorld->dump() == mBefore ? 0 : 1));
    mWorld->takeBackTo(0);
    QCOMPARE(mWorld->dump(), mBefore);
  } else if (tool->mName.startsWith(u"get_") || tool->mName.startsWith(u"list_")) {
    QCOMPARE(mWorld->dump(), mBefore);
  }
}

/// A failure changes nothing. What succeeds is taken back.
void All_Tools_Test::trial(const QString& what, const QJsonObject& arguments, const QString& refusedFor) {
  const QString path = mWorld->mSession.path();
  const QJsonObject object = mWorld->call(QLatin1String(mRow->mTool), arguments);
  const QString error = object.value("error").toString();
  const auto told = what + u": "_s + error.left(300);
  QVERIFY2(!mWorld->mState.toolCallRunning(), qPrintable(told));
  QVERIFY2(refusedFor.isEmpty() || error.contains(refusedFor), qPrintable(u"not refused: "_s + told));
  if (object.contains("error")) {
    QVERIFY2(QJsonDocument(object).toJson().size() < cLongestAnswer, qPrintable(told));
    QVERIFY2(mWorld->mSession.path() == path && mWorld->steps() == 0 && mWorld->dump() == mBefore, qPrintable(told));
    return;
  }
  mWorld->takeBackTo(0);
  if (mWorld->mSession.path() != path || mWorld->mState.operatingMode() || mWorld->dump() != mBefore) {
    begin(*mRow);
  }
  mWorld->mSession.history().clear();
}

void All_Tools_Test::trialsOf(const QString& name, const QJsonObject& schema, bool isRequired) {
  const bool isReallyList = mRow->mTool == "set_modbus_master_registers"_L1 && name == u"registers";
  for (const Hostile& hostile : hostileFor(schema, isRequired, isReallyList)) {
    QJsonObject arguments = mArguments;
    arguments.insert(name, hostile.mValue);
    trial(name + u' ' + hostile.mWhat, arguments, hostile.mIsWrong ? name : QString());
  }
  if (isRequired) {
    QJsonObject arguments = mArguments;
    arguments.remove(name);
    trial(name + u" missing"_s, arguments, u"Parameter '%1' fehlt"_s.arg(name));
  }
}

void All_Tools_Test::trialsOfMembers(const QString& list) {
  const QJsonArray good = mArguments.value(list).toArray();
  const QJsonObject first = good.first().toObject();
  const auto with = [&](const QString& what, const QJsonObject& entry, const QString& refusedFor = {}) {
    QJsonArray entries = good;
    entries.replace(0, entry);
    QJsonObject arguments = mArguments;
    arguments.insert(list, entries);
    trial(what, arguments, refusedFor);
  };
  for (const QString& member : first.keys()) {
    QJsonObject entry = first;
    for (const Hostile& hostile : hostileFor({}, false, false)) {
      entry.insert(member, hostile.mValue);
      with(list + u'.' + member + u' ' + hostile.mWhat, entry, hostile.mValue.isObject() ? member : QString());
    }
    entry.remove(member);
    with(list + u'.' + member + u" missing"_s, entry);
  }
}

void All_Tools_Test::hostile() {
  QFETCH(const Tool_Row*, row);
  const MCP_Catalogue catalogue;
  const MCP_Tool* const tool = catalogue.find(QLatin1String(row->mTool));
  QVERIFY(tool);
  begin(*row);
  const QJsonObject schema = tool->toJson().value("inputSchema").toObject();
  const QJsonObject properties = schema.value("properties").toObject();
  const QJsonArray required = schema.value("required").toArray();
  for (const QString& name : properties.keys()) {
    trialsOf(name, properties.value(name).toObject(), required.contains(name));
    if (mArguments.value(name).toArray().first().isObject()) {
      trialsOfMembers(name);
    }
    if (QTest::currentTestFailed()) {
      return;
    }
  }
  QJsonObject arguments = mArguments;
  arguments.insert(u"quatsch"_s, nested());
  arguments.insert(QString(100'000, u'x'), 1);
  const QJsonObject object = mWorld->call(tool->mName, arguments);
  QVERIFY2(object.value("warning").toString().contains(u"quatsch"), QJsonDocument(object).toJson());
  QVERIFY(object.value("warning").toString().size() < cLongestAnswer);
}

QTEST_MAIN(All_Tools_Test)
#include "All_Tools_Test.moc"
