#include "app/Link_Status.h"
#include "app/Main_Window_Dev.h"
#include "app/Project_Lifecycle.h"
#include "base/App_Settings.h"
#include "db/Demo_Project.h"
#include "net/Controller_Link.h"
#include "simulator/Simulator_Server.h"
#include "tests/db/Session_Rig.h"
#include "ui/Message_Dialog.h"

#include <QAction>
#include <QApplication>
#include <QTextEdit>

using namespace Qt::StringLiterals;

/// What someone without hardware does first: the demo, the stand-in beside it, F11, writing, values, loss, F11 again.
class Demo_Link_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void fromTheFirstConnectionToTheSecond() {
    Simulator_Options options;
    options.mPort = 0;
    options.mDiscovers = false;
    Simulator_Server server(options);
    QVERIFY(server.listen());
    QFile::remove(Demo_Project::defaultPath());
    Session_Rig rig;
    App_Settings settings(rig.path(u"studio.ini"_s));
    settings.setValue(Setting::AskBeforeWriteBootProject, 0);
    Main_Window_Dev window(rig.mSession, settings, rig.mState, false);
    window.show();
    QStringList told;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&told] {
      if (auto* const box = qobject_cast<Message_Dialog*>(QApplication::activeModalWidget())) {
        told.append(box->findChild<QTextEdit*>()->toPlainText());
        box->reject();
      }
    });
    closer.start(1);
    const auto press = [&window](const char* slot) { window.findChild<QAction*>(QLatin1String(slot))->trigger(); };
    const auto& link = *window.findChild<Controller_Link*>();

    window.onMenuFileDemo();
    ProjectDatabase& database = rig.mSession.database();
    database.mConnections.mItems.at(0).mAddress = u"127.0.0.1:%1"_s.arg(server.port());
    press("onControllerConnect");
    QTRY_VERIFY(link.isOnline());

    press("onControlPlay");
    QTRY_VERIFY(rig.mState.operatingMode());
    QVERIFY(server.controller().isRunning());
    press("onControlPlay");
    press("onControllerSavePersistentProjectAsk");
    QTRY_VERIFY_WITH_TIMEOUT(told.contains(u"Projekt erfolgreich gespeichert"_s), 20'000);
    QCOMPARE(server.controller().project().header().mProjectId, database.mProject.mProjectId);

    const Group_Address address(1, 0, 1);
    const QUuid key = database.mAddresses.subGroup(address)->mKey;
    const QByteArray payload = server.controller().values().value(address);
    server.controller().writeValue(address, payload, 1, 1, 20);
    QTRY_VERIFY(rig.mSession.values().find(key));
    QTRY_COMPARE(rig.mSession.values().find(key)->mSource, u"1.1.20"_s);
    QCOMPARE(rig.mSession.values().find(key)->mPayload, payload);

    server.closeSessions();
    QTRY_VERIFY(window.findChild<Link_Status*>()->text().startsWith(u"Verbindung verloren"_s));
    QVERIFY(rig.mSession.values().find(key)->mIsStale);
    press("onControllerConnect");
    QTRY_VERIFY(link.isOnline());
    QTRY_VERIFY(!rig.mSession.values().find(key)->mIsStale);
    QVERIFY(QFile::remove(Demo_Project::defaultPath()));
  }
};

QTEST_MAIN(Demo_Link_Test)
#include "Demo_Link_Test.moc"
