#include "net/Controller_Link.h"
#include "tests/app/Assistant_Rig.h"
#include "tests/db/Project_Dump.h"

using namespace Qt::StringLiterals;

/// A small house by an assistant's tools alone, from a studio without project to a controller that runs it.
class Small_House_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
  void fromNothingToARunningController();

private:
  QJsonObject call(const QString& tool, const QByteArray& arguments = "{}") {
    const QJsonDocument document = QJsonDocument::fromJson(arguments);
    if (!document.isObject()) {
      qFatal("no object: %s", arguments.constData());
    }
    QJsonObject answer = mRig.call(tool, document.object());
    if (answer.contains("error")) {
      QTest::qFail(qPrintable(tool + u": "_s + answer.value("error").toString()), __FILE__, __LINE__);
    }
    return answer;
  }
  QByteArray addBlock(const QByteArray& page, int type, int x) {
    return call(u"add_function_block"_s, R"({"page_guid":")" + page + R"(","type":)" + QByteArray::number(type) +
                                             R"(,"x":)" + QByteArray::number(x) + R"(,"y":64})")
        .value("guid")
        .toString()
        .toUtf8();
  }
  void beginProject();
  void defineAddresses();
  void drawLogic();
  void writeToController();
  void exchangeValues();
  void openAgain();

  Assistant_Rig mRig;
  QByteArray mPage;
};

void Small_House_Test::beginProject() {
  QVERIFY(!mRig.mSession.isOpen());
  QCOMPARE(mRig.call(u"list_fb_pages"_s).value("error").toString(), u"Kein Projekt geoeffnet"_s);
  const QJsonObject made = call(u"new_project"_s, R"({"filename":")" + mRig.path(u"Haus"_s).toUtf8() +
                                                      R"(","fb_page_caption":"Erdgeschoss","connection_ip":")" +
                                                      mRig.controllerAddress().toUtf8() + R"("})");
  QCOMPARE(mRig.mSession.path(), mRig.path());
  QCOMPARE(mRig.mSession.database().mConnections.mItems.at(0).mAddress, mRig.controllerAddress());
  mPage = made.value("fb_pages").toArray().first().toObject().value("guid").toString().toUtf8();
}

void Small_House_Test::defineAddresses() {
  call(u"import_knx_addresses"_s, R"({"format":"esf","file_content":"Haus\n)"
                                  R"(Licht.Taster.1/1/1\tTaster Flur\tEIS 1 'Switching' (1 Bit)\tLow\t\n)"
                                  R"(Licht.Melder.1/2/1\tEs ist dunkel\tEIS 1 'Switching' (1 Bit)\tLow\t\n)"
                                  R"(Licht.Lampen.1/3/1\tLampe Flur\tEIS 1 'Switching' (1 Bit)\tLow\t\n)"
                                  R"(Heizung.Ist.3/1/1\tTemperatur Küche\tEIS 5 'Value' (2 Byte)\tLow\t\n"})");
  call(u"create_address"_s, R"({"main":1,"middle":4,"sub":1,"comment":"Klingel"})");
  QCOMPARE(mRig.mSession.database().mAddresses.subGroupCount(), 5);
  call(u"add_statistic_recording"_s, R"({"address":"3/1/1","name":"Küche"})");
}

void Small_House_Test::drawLogic() {
  const QByteArray andBlock = addBlock(mPage, 50, 64);
  const QByteArray timer = addBlock(mPage, 110, 320);
  const QByteArray script = addBlock(mPage, 900, 640);
  call(u"connect_fb_io"_s, R"({"source_fb_guid":")" + andBlock + R"(","source_output_index":0,"target_fb_guid":")" +
                               timer + R"(","target_input_index":0})");
  call(u"assign_fb_io_addresses_batch"_s,
       R"({"fb_guid":")" + andBlock +
           R"(","assignments":[{"io_type":0,"io_index":0,"main":1,"middle":1,"sub":1},)"
           R"({"io_type":0,"io_index":1,"main":1,"middle":2,"sub":1}]})");
  call(u"assign_fb_io_address"_s,
       R"({"fb_guid":")" + timer + R"(","io_type":1,"io_index":0,"main":1,"middle":3,"sub":1})");
  call(u"update_fb"_s, R"({"guid":")" + timer + R"(","comment":"Licht im Flur"})");
  call(u"set_lua_script"_s, R"({"fb_guid":")" + script + R"(","code":"-- Klingel","inputs":2,"outputs":1})");

  const auto blockOf = [this](const QByteArray& guid) {
    return mRig.mSession.database().mFbPages.child(QUuid::fromString(QString::fromUtf8(guid)));
  };
  QVERIFY(blockOf(andBlock) && blockOf(timer) && blockOf(script));
  QCOMPARE(blockOf(andBlock)->mInputs.at(1).mBinding.mName, u"Es ist dunkel"_s);
  QVERIFY(!blockOf(timer)->mInputs.at(0).mBinding.mKey.isNull());
  QCOMPARE(blockOf(andBlock)->mOutputs.at(0).mBinding.mKey, blockOf(timer)->mInputs.at(0).mBinding.mKey);
  QCOMPARE(blockOf(timer)->mComment, u"Licht im Flur"_s);
  QCOMPARE(blockOf(script)->mInputs.size(), 2U);
}

void Small_House_Test::writeToController() {
  QCOMPARE(mRig.call(u"write_project_to_controller"_s).value("error").toString(), u"Keine Verbindung zur Steuerung"_s);
  QCOMPARE(call(u"connect_runtime"_s).value("connected").toBool(), true);
  const QJsonObject written = call(u"write_project_to_controller"_s);
  const DB_Project header = mRig.mServer.controller().project().header();
  QCOMPARE(header.mProjectId, mRig.mSession.database().mProject.mProjectId);
  QVERIFY(written.value("project_generation").toInt() > 0);
}

void Small_House_Test::exchangeValues() {
  const auto* const link = mRig.mWindow.findChild<Controller_Link*>();
  if (!link->isOnline()) { // the controller has started anew
    QCOMPARE(call(u"connect_runtime"_s).value("connected").toBool(), true);
  }
  const Group_Address address(3, 1, 1);
  const auto held = [this, &address] { return mRig.mServer.controller().values().value(address); };
  const auto isRead = [this](double value) {
    return call(u"get_address_value"_s, R"({"main":3,"middle":1,"sub":1})").value("value") == value;
  };
  const QByteArray first = held();
  call(u"set_address_value"_s, R"({"main":3,"middle":1,"sub":1,"value":21.5})");
  QTRY_VERIFY(held() != first);
  QVERIFY(isRead(21.5));
  const QByteArray second = held();
  call(u"set_address_value"_s, R"({"main":3,"middle":1,"sub":1,"value":4})");
  QTRY_VERIFY(held() != second);
  QVERIFY(isRead(4));
  // As if a device on the bus had sent it.
  mRig.mServer.controller().writeValue(address, second, 1, 1, 20);
  QTRY_VERIFY(isRead(21.5));

  call(u"set_play_mode"_s, R"({"enabled":true})");
  QVERIFY(mRig.mState.operatingMode());
  QVERIFY(mRig.mServer.controller().isRunning());
  QCOMPARE(mRig.call(u"add_fb_page"_s, {{u"caption"_s, u"nie"_s}}).value("error").toString(),
           Session_State::operatingModeRefusal());
  call(u"set_play_mode"_s, R"({"enabled":false})");
  call(u"connect_runtime"_s, R"({"connect":false})");
  QVERIFY(!link->isOnline());
}

void Small_House_Test::openAgain() {
  call(u"save_project"_s);
  const QByteArray before = Project_Dump::project(mRig.mSession.database());
  call(u"new_project"_s, R"({"filename":")" + mRig.path(u"Leer"_s).toUtf8() + R"(","connection_ip":"127.0.0.1"})");
  QVERIFY(Project_Dump::project(mRig.mSession.database()) != before);
  call(u"open_project"_s, R"({"filename":")" + mRig.path().toUtf8() + R"("})");
  QCOMPARE(Project_Dump::project(mRig.mSession.database()), before);
}

void Small_House_Test::fromNothingToARunningController() {
  using Step = void (Small_House_Test::*)();
  for (const Step step :
       {&Small_House_Test::beginProject, &Small_House_Test::defineAddresses, &Small_House_Test::drawLogic,
        &Small_House_Test::writeToController, &Small_House_Test::exchangeValues, &Small_House_Test::openAgain}) {
    (this->*step)();
    if (QTest::currentTestFailed()) {
      return;
    }
  }
}

QTEST_MAIN(Small_House_Test)
#include "Small_House_Test.moc"
