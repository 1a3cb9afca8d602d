#include "app/Assistant_Studio.h"
#include "app/Main_Window_Dev.h"
#include "app/Program_Play.h"
#include "app/Project_Write.h"
#include "app/Status_Progress.h"
#include "app/Window_Link.h"
#include "base/App_Settings.h"
#include "db/Demo_Project.h"
#include "db/House_Mode.h"
#include "db/Project_Edits.h"
#include "fb/model/Demo_Logic.h"
#include "mcp/MCP_Dispatcher.h"
#include "net/dialogs/Dev_Write_Persistent_Project_Dlg.h"
#include "simulator/Simulator_Server.h"
#include "tests/db/Session_Rig.h"
#include "ui/Message_Dialog.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

QJsonObject json(const char* text) {
  return QJsonDocument::fromJson(text).object();
}

/// The window with the demo project, whose connection leads to a stand-in, and an assistant's tools on it. The state is
/// the process's, as boxes ask that one.
struct Window_Rig : Session_Rig {
  Window_Rig() : mServer(options()), mWindow(mProject, mSettings, Session_State::process(), false) {
    QString error;
    if (!mServer.listen() || !Demo_Project::build(mProject, path(), Demo_Logic::build, error)) {
      qFatal("no stand-in or no project");
    }
    connection().mAddress = QStringLiteral("127.0.0.1:%1").arg(mServer.port());
    QObject::connect(&mCloser, &QTimer::timeout, &mCloser, [this] {
      if (auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        ++mBoxes;
        box->reject();
      }
    });
    mCloser.start(1);
    mWindow.show();
  }
  ~Window_Rig() { Session_State::process().setOperatingMode(false); }

  static Simulator_Options options() {
    Simulator_Options options;
    options.mPort = 0;
    options.mDiscovers = false;
    return options;
  }
  DB_Connections::ITEM& connection() { return mProject.database().mConnections.mItems.at(0); }
  QJsonObject call(const QString& tool, const QJsonObject& arguments = {}) {
    const QJsonObject result = mDispatcher.callTool(tool, arguments);
    const QJsonObject content = result.value(u"content").toArray().first().toObject();
    return QJsonDocument::fromJson(content.value(u"text").toString().toUtf8()).object();
  }
  QString errorOf(const QString& tool, const QJsonObject& arguments = {}) {
    return call(tool, arguments).value(u"error").toString();
  }
  bool goOnline() { return call(u"connect_runtime"_s).value(u"connected").toBool(); }
  bool isEnabled(const char* slot) { return mWindow.findChild<QAction*>(QLatin1String(slot))->isEnabled(); }
  bool edit(const QString& caption) {
    return bool(Project_Edits::renamePage(mProject, mProject.database().mFbPages.pages().at(0).mGuid, caption));
  }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Simulator_Server mServer;
  Project_Session mProject{Session_State::process()};
  QTimer mCloser;
  int mBoxes = 0;
  Main_Window_Dev mWindow;
  MCP_Dispatcher mDispatcher{mWindow.assistant(), Session_State::process()};
};

} // namespace

/// What an assistant does with the controller, through the real window.
class Assistant_Link_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void fromConnectingToDisconnecting() {
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QSignalSpy ended(&rig.mWindow.assistant(), &MCP_Studio::projectWriteEnded);
    const QJsonObject written = rig.call(u"write_project_to_controller"_s);
    QCOMPARE(written.value(u"project_generation").toInt(), 1);
    QVERIFY(written.value(u"hint").toString().endsWith(u"das Ergebnis steht in get_controller_status."_s));
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(ended.at(0).at(0).toString(), QString());
    QCOMPARE(rig.mServer.controller().project().header().mProjectId, rig.mProject.database().mProject.mProjectId);
    QVERIFY(rig.mWindow.findChild<Status_Progress*>()->isHidden());
    QVERIFY(rig.call(u"get_controller_status"_s).contains(u"note"));

    QVERIFY(rig.edit(u"Neu"_s));
    QSignalSpy started(&rig.mServer.controller(), &Simulator_Controller::programStarted);
    QCOMPARE(rig.call(u"set_play_mode"_s), json(R"({"enabled":true,"connected":true})"));
    QCOMPARE(started.size(), 1);
    // The controller has it: only force brings it over again.
    QCOMPARE(rig.call(u"set_play_mode"_s).value(u"enabled"), QJsonValue(true));
    QCOMPARE(started.size(), 1);
    QCOMPARE(rig.call(u"set_play_mode"_s, json(R"({"force_transfer":true})")).value(u"enabled"), QJsonValue(true));
    QCOMPARE(started.size(), 2);
    QCOMPARE(rig.errorOf(u"add_connection"_s, json(R"({"ip":"10.0.0.1"})")), Session_State::operatingModeRefusal());

    const Group_Address address = House_Mode::address(rig.mProject.database().mAddresses).value();
    QCOMPARE(rig.call(u"set_presence_mode"_s, json(R"({"value":1})")).value(u"mode").toString(), u"absent"_s);
    QTRY_COMPARE(rig.mServer.controller().values().value(address), QByteArray(1, 1));
    QCOMPARE(rig.call(u"get_presence_mode"_s).value(u"value").toInt(), 1);

    QCOMPARE(rig.call(u"set_play_mode"_s, json(R"({"enabled":false})")), json(R"({"enabled":false,"connected":true})"));
    QCOMPARE(rig.call(u"connect_runtime"_s, json(R"({"connect":false})")),
             json(R"({"connected":false,"was_connected":true})"));
    QVERIFY(rig.call(u"get_presence_mode"_s).contains(u"warning"));
    QCOMPARE(rig.mBoxes, 0);
  }

  void noBoxComesLate_data() {
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("password");
    QTest::newRow("wrong password") << QString() << u"falsch"_s;
    QTest::newRow("closes at the log-on") << u"close=1"_s << QString();
    QTest::newRow("says nothing") << u"silence"_s << QString();
  }
  void noBoxComesLate() {
    QFETCH(const QString, fault);
    QFETCH(const QString, password);
    Window_Rig rig;
    if (!fault.isEmpty()) {
      QVERIFY(rig.mServer.faults().add(fault));
    }
    if (!password.isEmpty()) {
      rig.connection().mPassword = password;
    }
    const QJsonObject answer = rig.call(u"connect_runtime"_s, json(R"({"timeout_seconds":1})"));
    QVERIFY(answer.contains(u"error") && answer.contains(u"reason"));
    QTest::qWait(600);
    QCOMPARE(rig.mBoxes, 0);
    // What the user does is told as ever.
    if (!password.isEmpty()) {
      rig.mWindow.onControllerConnect();
      QTRY_VERIFY(rig.mBoxes > 0);
    }
  }

  void aWriteThatDoesNotBegin() {
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QFile::remove(rig.path());
    QFile other(rig.path());
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write("other") == 5);
    other.close();
    QVERIFY(rig.edit(u"Neu"_s));
    // Somebody else has changed the file: nobody says that it may go.
    QVERIFY(!rig.errorOf(u"write_project_to_controller"_s).isEmpty());
    QCOMPARE(Session_Rig::bytesOf(rig.path()), QByteArray("other"));
    QVERIFY(!rig.mWindow.assistant().isWritingProject());
    QVERIFY(rig.mServer.controller().project().isEmpty());
    QCOMPARE(rig.mBoxes, 0);
  }

  void aWriteThatEndsEarly_data() {
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("error");
    QTest::newRow("refused") << u"refuse=15"_s << QString() << QString();
    QTest::newRow("no answer") << u"mute=15"_s << QString() << u"Keine Antwort der Steuerung"_s;
    QTest::newRow("link lost") << u"mute=15"_s << u"lost"_s << u"Keine Verbindung zur Steuerung"_s;
    QTest::newRow("cancelled") << u"mute=15"_s << u"cancel"_s << u"abgebrochen"_s;
    QTest::newRow("disconnected by the user") << u"mute=15"_s << u"F11"_s << u"abgebrochen"_s;
  }
  void aWriteThatEndsEarly() {
    QFETCH(const QString, fault);
    QFETCH(const QString, event);
    QFETCH(const QString, error);
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(fault));
    rig.mWindow.findChild<Project_Write*>()->setTimeout(event.isEmpty() ? 700 : 20'000);
    QString second;
    bool isEdited = false;
    bool isBlocked = false;
    QTimer::singleShot(400, &rig.mWindow, [&] {
      second = rig.errorOf(u"get_play_mode"_s);
      isEdited = rig.edit(u"Neu"_s);
      isBlocked = !rig.isEnabled("onControllerSavePersistentProjectAsk");
      rig.mWindow.onControlPlay();
      if (event == u"lost") {
        rig.mServer.closeSessions();
      } else if (event == u"cancel") {
        emit rig.mWindow.findChild<Status_Progress*>()->cancelled();
      } else if (event == u"F11") {
        rig.mWindow.onControllerConnect();
      }
    });
    const QString told = rig.errorOf(u"write_project_to_controller"_s);
    QVERIFY2(!told.isEmpty() && told.contains(error), qPrintable(told));
    QVERIFY(!rig.mWindow.assistant().isWritingProject());
    if (fault.startsWith(u"mute")) {
      QVERIFY(second.startsWith(u"Es laeuft bereits ein Werkzeugaufruf"_s));
      QVERIFY(isEdited && isBlocked);
      QVERIFY(!Session_State::process().operatingMode());
      rig.mProject.history().undo();
      QVERIFY(rig.mProject.database().mFbPages.pages().at(0).mCaption != u"Neu"_s);
    }
    QTest::qWait(50);
    QCOMPARE(rig.mBoxes, 0);
  }

  void whileTheProjectIsOnItsWay() {
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(u"mute=64"_s)); // all but the end
    QVERIFY(rig.call(u"write_project_to_controller"_s).contains(u"project_generation"));
    QVERIFY(rig.mWindow.assistant().isWritingProject());
    QVERIFY(rig.errorOf(u"write_project_to_controller"_s).contains(u"bereits"_s));
    QVERIFY(rig.errorOf(u"connect_runtime"_s, json(R"({"connect":false})")).contains(u"noch ein Vorgang"_s));
    QVERIFY(rig.mWindow.assistant().isWritingProject());
    rig.mProject.close();
    QTRY_VERIFY(!rig.mWindow.assistant().isWritingProject());
    QCOMPARE(rig.mBoxes, 0);
  }

  void playWaitsForTheRestOfTheWrite() {
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(u"mute=64"_s)); // all but the end
    rig.mWindow.findChild<Project_Write*>()->setTimeout(500);
    QVERIFY(rig.call(u"write_project_to_controller"_s).contains(u"project_generation"));
    QCOMPARE(rig.call(u"set_play_mode"_s), json(R"({"enabled":true,"connected":true})"));
    QVERIFY(!rig.mWindow.assistant().isWritingProject());

    QVERIFY(rig.call(u"write_project_to_controller"_s).contains(u"project_generation"));
    QTimer::singleShot(100, &rig.mWindow, [&] { rig.mProject.close(); });
    QCOMPARE(rig.errorOf(u"set_play_mode"_s), u"Kein Projekt geoeffnet"_s);
    QCOMPARE(rig.mBoxes, 0);
  }

  void theUsersOwnWriteGoesFirst() {
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(u"mute=15"_s));
    // Right after a tool call nobody is asked.
    QVERIFY(!Dev_Write_Persistent_Project_Dlg::mustAsk(rig.mSettings, Session_State::process(),
                                                       QDateTime::currentMSecsSinceEpoch()));
    rig.mCloser.stop();
    rig.mWindow.onControllerSavePersistentProjectAsk();
    QTRY_VERIFY(QApplication::activeModalWidget());
    QVERIFY(!qobject_cast<Message_Dialog*>(QApplication::activeModalWidget()));
    QVERIFY(rig.errorOf(u"write_project_to_controller"_s).contains(u"anderer Vorgang"_s));
    QVERIFY(rig.errorOf(u"set_play_mode"_s).contains(u"anderer Vorgang"_s));
  }

  void aProgramThatDoesNotGetOver_data() {
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("error");
    QTest::newRow("no answer") << QString() << u"Keine Antwort der Steuerung"_s;
    QTest::newRow("link lost") << u"lost"_s << u"Keine Verbindung zur Steuerung"_s;
    QTest::newRow("F5") << u"F5"_s << u"abgebrochen"_s;
  }
  void aProgramThatDoesNotGetOver() {
    QFETCH(const QString, event);
    QFETCH(const QString, error);
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(u"mute=7004"_s));
    rig.mWindow.findChild<Program_Play*>()->setTimeout(event.isEmpty() ? 300 : 20'000);
    QTimer::singleShot(200, &rig.mWindow, [&] {
      if (event == u"lost") {
        rig.mServer.closeSessions();
      } else if (event == u"F5") {
        rig.mWindow.onControlPlay();
      }
    });
    const QString told = rig.errorOf(u"set_play_mode"_s);
    QVERIFY2(told.contains(error), qPrintable(told));
    QVERIFY(!Session_State::process().operatingMode());
    QTest::qWait(50);
    QCOMPARE(rig.mBoxes, 0);
  }

  void offGivesUpAProgramOnItsWay() {
    Window_Rig rig;
    QVERIFY(rig.goOnline());
    QVERIFY(rig.mServer.faults().add(u"mute=7004"_s));
    rig.mWindow.onControlPlay();
    QVERIFY(rig.mWindow.assistant().isPlayPending());
    QCOMPARE(rig.call(u"set_play_mode"_s, json(R"({"enabled":false})")), json(R"({"enabled":false,"connected":true})"));
    QVERIFY(!rig.mWindow.assistant().isPlayPending());
    QCOMPARE(rig.mBoxes, 0);
  }
};

QTEST_MAIN(Assistant_Link_Test)
#include "Assistant_Link_Test.moc"
