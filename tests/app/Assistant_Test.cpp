#include "app/Assistant_Status.h"
#include "app/Assistant_Studio.h"
#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "app/Project_Lifecycle.h"
#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"
#include "fb/FB_Block_Editors.h"
#include "fb/model/FB_Page_Edits.h"
#include "ui/Message_Dialog.h"
#include "ui/Page_Tree_View.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStatusBar>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

int freePort() {
  QTcpServer server;
  return server.listen(QHostAddress::LocalHost) ? server.serverPort() : 0;
}

qint64 now() {
  return QDateTime::currentMSecsSinceEpoch();
}

/// A window with a server, and an assistant that speaks to it over a socket.
struct Assistant_Rig {
  explicit Assistant_Rig(int port = freePort(), bool isKiosk = false)
      : mPort(port),
        mWindow((qputenv("TMPDIR", mTemp.path().toLocal8Bit()), mSession), mSettings, mState, isKiosk, port) {
    mWindow.show();
  }

  [[nodiscard]] QString path(const QString& name = u"Haus.zpro"_s) const { return mFolder.filePath(name); }
  bool create(const QString& name = u"Haus.zpro"_s) {
    return mWindow.lifecycle().newProject(path(name), {{}, u"127.0.0.1:1"_s, {}});
  }

  /// The whole reply of the server.
  QByteArray send(const QByteArray& request) const {
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, quint16(mPort));
    socket.write(request);
    QByteArray reply;
    const bool isAnswered = QTest::qWaitFor(
        [&] {
          reply += socket.readAll();
          return socket.state() == QAbstractSocket::UnconnectedState;
        },
        20'000);
    return isAnswered ? reply + socket.readAll() : QByteArray();
  }
  QJsonObject request(const QString& method, const QJsonObject& params) const {
    const QByteArray body =
        QJsonDocument({{u"jsonrpc"_s, u"2.0"_s}, {u"id"_s, 1}, {u"method"_s, method}, {u"params"_s, params}})
            .toJson(QJsonDocument::Compact);
    const QByteArray reply =
        send("POST /mcp HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Length: " + QByteArray::number(body.size()) +
             "\r\n\r\n" + body);
    return QJsonDocument::fromJson(reply.mid(reply.indexOf("\r\n\r\n") + 4)).object()[u"result"_s].toObject();
  }
  QJsonObject call(const QString& tool, const QJsonObject& arguments = {}) const {
    const QJsonObject result = request(u"tools/call"_s, {{u"name"_s, tool}, {u"arguments"_s, arguments}});
    return QJsonDocument::fromJson(result[u"content"_s][0][u"text"_s].toString().toUtf8()).object();
  }
  QJsonObject open(const QString& name) const { return call(u"open_project"_s, {{u"filename"_s, path(name)}}); }

  [[nodiscard]] QUuid firstPage() const { return std::as_const(mSession).database().mFbPages.pages().at(0).mGuid; }
  bool edit(const QString& caption) {
    const bool isDone = bool(Project_Edits::renamePage(mSession, firstPage(), caption));
    QCoreApplication::processEvents(); // the step ends with the turn
    return isDone;
  }
  [[nodiscard]] QString captionIn(const QString& name) const {
    ProjectDatabase database;
    return database.openProjectReadOnly(path(name)) ? database.mFbPages.pages().at(0).mCaption : u"unreadable"_s;
  }
  [[nodiscard]] QString info() const { return mWindow.statusBar()->currentMessage(); }
  [[nodiscard]] Assistant_Status* status() const { return mWindow.findChild<Assistant_Status*>(); }
  [[nodiscard]] Page_Tabs& tabs() const { return *mWindow.findChild<Page_Tabs*>(); }

  static QString pattern() {
    static const QString folder = QDir::tempPath();
    return folder + u"/studio-XXXXXX"_s;
  }

  int mPort;
  QTemporaryDir mFolder{pattern()};
  QTemporaryDir mTemp{pattern()};
  Session_State& mState = Session_State::process(); // which message boxes ask
  App_Settings mSettings{path(u"studio.ini"_s)};
  Project_Session mSession{mState};
  Main_Window_Dev mWindow;
};

} // namespace

/// An assistant and a user on the same window.
class Assistant_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
  void cleanup() {
    if (Session_State::process().toolCallRunning()) { // a failed test
      Session_State::process().endToolCall(now());
    }
  }

  void worksOnTheWindow() {
    Assistant_Rig rig;
    QCOMPARE(rig.call(u"get_project_info"_s)[u"error"_s], u"Kein Projekt geoeffnet"_s);
    const QJsonObject made = rig.call(u"new_project"_s, {{u"filename"_s, rig.path(u"Neu"_s)},
                                                         {u"connection_ip"_s, u"127.0.0.1:1"_s},
                                                         {u"fb_page_caption"_s, u"Erdgeschoss"_s}});
    QCOMPARE(made[u"project"_s][u"filename"_s], rig.path(u"Neu.zpro"_s));
    QVERIFY(rig.mWindow.windowTitle().contains(u"Neu"_s));
    QVERIFY(rig.tabs().isVisible());

    rig.mWindow.onShowWelcome();
    const QJsonObject page = made[u"widget_pages"_s][1].toObject();
    QCOMPARE(rig.call(u"ui_navigate"_s, {{u"page_guid"_s, page[u"guid"_s]}})[u"caption"_s], u"Visu quer"_s);
    QVERIFY(rig.tabs().isVisible());
    QCOMPARE(rig.tabs().currentPage().toString(), page[u"guid"_s].toString());
    QCOMPARE(rig.tabs().tabText(rig.tabs().currentIndex()), u"Visu quer"_s);
    QCOMPARE(rig.mWindow.findChild<Page_Tree_View*>()->currentIndex().data().toString(), u"Visu quer"_s);
  }

  void undoneByTheUser() {
    Assistant_Rig rig;
    QVERIFY(rig.create());
    const QJsonObject made = rig.call(u"add_fb_page"_s, {{u"caption"_s, u"Garten"_s}});
    if (made[u"error"_s].toString().startsWith(u"Unbekanntes Werkzeug"_s)) {
      QSKIP("no tool that edits pages");
    }
    const auto& pages = std::as_const(rig.mSession).database().mFbPages.pages();
    QCOMPARE(pages.size(), 2);
    QVERIFY(rig.mWindow.isWindowModified());
    QVERIFY(QTest::qWaitForWindowActive(&rig.mWindow));
    QTest::keyClick(&rig.mWindow, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(pages.size(), 1);
    QVERIFY(!rig.mWindow.isWindowModified());
  }

  void opensAnother() {
    Assistant_Rig rig;
    QVERIFY(rig.create(u"Zwei.zpro"_s) && rig.create());
    QVERIFY(rig.edit(u"Keller"_s));
    const QJsonObject opened = rig.open(u"Zwei.zpro"_s);
    QCOMPARE(opened[u"project"_s][u"name"_s], u"Zwei"_s);
    QVERIFY2(!opened.contains(u"suppressed_message"_s), "nothing was to be asked");
    QCOMPARE(rig.captionIn(u"Haus.zpro"_s), u"Keller"_s);

    // The one that is open is not closed for it, and read anew when somebody else has changed it.
    QVERIFY(rig.edit(u"Dach"_s));
    QVERIFY(!rig.open(u"Zwei.zpro"_s).contains(u"error"_s));
    QVERIFY(rig.mSession.history().canUndo() && !rig.mSession.isModified());
    QVERIFY(QFile::remove(rig.path(u"Zwei.zpro"_s)) && QFile::copy(rig.path(), rig.path(u"Zwei.zpro"_s)));
    QVERIFY(!rig.open(u"Zwei.zpro"_s).contains(u"error"_s));
    QCOMPARE(std::as_const(rig.mSession).database().mFbPages.pages().at(0).mCaption, u"Keller"_s);
  }

  /// The project that is open stays, with what was done to it.
  void keepsWhatIsOpen_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no project") << u"open_project"_s << u"Kaputt.zpro"_s << QString();
    QTest::newRow("made by a newer studio") << u"open_project"_s << u"Neuer.zpro"_s << u"neueren Version"_s;
    QTest::newRow("open in another studio") << u"open_project"_s << u"Offen.zpro"_s << u"bereits geöffnet"_s;
    // No right of the user tells that nothing can be made here.
    QTest::newRow("cannot be made") << u"new_project"_s << u"/proc/Neu.zpro"_s << u"wieder geoeffnet"_s;
  }
  void keepsWhatIsOpen() {
    QFETCH(QString, tool);
    QFETCH(QString, file);
    QFETCH(QString, reason);
    Assistant_Rig rig;
    QVERIFY(rig.create(u"Neuer.zpro"_s));
    QVERIFY(rig.create(u"Offen.zpro"_s) && rig.create());
    QFile broken(rig.path(u"Kaputt.zpro"_s));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no project at all") > 0);
    broken.close();
    {
      ProjectDatabase newer;
      QVERIFY(newer.openProject(rig.path(u"Neuer.zpro"_s), false));
      newer.mProject.mVersion = u"9.9"_s;
      QVERIFY(newer.recordWriteAll(false));
    }
    Session_State otherState;
    Project_Session other(otherState);
    QVERIFY(other.open(rig.path(u"Offen.zpro"_s)));
    QVERIFY(rig.edit(u"Keller"_s));
    const QString path = file.startsWith(u'/') ? file : rig.path(file);
    const QJsonObject failed = rig.call(tool, {{u"filename"_s, path}});
    QVERIFY2(failed[u"error"_s].toString().contains(u"konnte nicht"_s), qPrintable(failed[u"error"_s].toString()));
    QVERIFY2(failed[u"reason"_s].toString().contains(reason), qPrintable(failed[u"reason"_s].toString()));
    QVERIFY(!failed[u"reason"_s].toString().isEmpty());
    QCOMPARE(rig.mSession.path(), rig.path());
    QCOMPARE(std::as_const(rig.mSession).database().mFbPages.pages().at(0).mCaption, u"Keller"_s);
    QCOMPARE(rig.tabs().isVisible(), true);
  }

  /// What was typed into the window of a block is the user's.
  void keepsWhatIsTyped_data() {
    QTest::addColumn<QString>("tool");
    for (const char* const tool : {"save_project", "save_project_as", "open_project", "new_project"}) {
      QTest::newRow(tool) << QString::fromLatin1(tool);
    }
  }
  void keepsWhatIsTyped() {
    QFETCH(QString, tool);
    Assistant_Rig rig;
    QVERIFY(rig.create(u"Zwei.zpro"_s) && rig.create());
    const QUuid block = FB_Page_Edits::create(rig.mSession, rig.firstPage(), 900, {}).mBlocks.constFirst();
    const QPointer<FB_Block_Editor> editor = rig.mWindow.findChild<FB_Block_Editors*>()->open(block);
    editor->findChild<QPlainTextEdit*>()->insertPlainText(u"x = 1"_s);
    const QString file = rig.path(tool == u"open_project" ? u"Zwei.zpro"_s : u"Drei.zpro"_s);
    const QJsonObject refused = rig.call(tool, {{u"filename"_s, file}});
    QVERIFY2(refused[u"reason"_s].toString().contains(u"ist nicht gespeichert"_s),
             qPrintable(QJsonDocument(refused).toJson()));
    QVERIFY(editor && editor->isUnsaved());
    QCOMPARE(editor->findChild<QPlainTextEdit*>()->toPlainText(), u"x = 1"_s);
    QCOMPARE(rig.mSession.path(), rig.path());
    QVERIFY(!QFile::exists(rig.path(u"Drei.zpro"_s)));
  }

  /// The project is not taken from under a question, a dialog or a menu.
  void waitsForTheUser() {
    Assistant_Rig rig;
    QVERIFY(rig.create(u"Zwei.zpro"_s) && rig.create());
    QString inDialog;
    QJsonObject saved;
    QTimer::singleShot(0, qApp, [&] {
      inDialog = rig.open(u"Zwei.zpro"_s)[u"reason"_s].toString();
      saved = rig.call(u"save_project"_s);
      QApplication::activeModalWidget()->close();
    });
    rig.mWindow.onExtrasSettingsDev();
    QVERIFY2(inDialog.startsWith(u"Im Studio ist ein Dialog geoeffnet: \"Einstellungen"_s), qPrintable(inDialog));
    QVERIFY(!saved.contains(u"error"_s));

    QString inQuestion;
    QVERIFY(rig.edit(u"Keller"_s));
    QTimer::singleShot(0, qApp, [&] {
      inQuestion = rig.call(u"save_project"_s)[u"reason"_s].toString();
      QApplication::activeModalWidget()->close();
    });
    rig.mWindow.onMenuFileClose();
    QCOMPARE(inQuestion, u"Im Studio ist gerade eine Frage zum Projekt offen"_s);

    QMenu menu(&rig.mWindow);
    menu.addAction(u"x"_s);
    menu.popup({});
    QVERIFY(rig.open(u"Zwei.zpro"_s)[u"reason"_s].toString().contains(u"Menue"_s));
    menu.close();
    QCOMPARE(rig.mSession.path(), rig.path());
  }

  /// While a tool call runs the user does not take the project away.
  void theUserWaits_data() {
    QTest::addColumn<QByteArray>("command");
    for (const char* const command :
         {"onMenuFileNew", "onMenuFileOpen", "onMenuFileDemo", "onMenuFileSave", "onMenuFileSaveAs", "onMenuFileClose",
          "onMenuFileQuit", "close", "drop", "recent"}) {
      QTest::newRow(command) << QByteArray(command);
    }
  }
  void theUserWaits() {
    QFETCH(QByteArray, command);
    Assistant_Rig rig;
    QVERIFY(rig.create(u"Zwei.zpro"_s) && rig.create() && rig.edit(u"Keller"_s));
    rig.mState.beginToolCall(now());
    if (command == "drop") {
      QMimeData data;
      data.setUrls({QUrl::fromLocalFile(rig.path(u"Zwei.zpro"_s))});
      QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&rig.mWindow, &enter);
      QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&rig.mWindow, &drop);
    } else if (command == "recent") {
      QVERIFY(!rig.mWindow.lifecycle().open(rig.path(u"Zwei.zpro"_s)));
    } else {
      QVERIFY(QMetaObject::invokeMethod(&rig.mWindow, command.constData()));
    }
    QTRY_COMPARE(rig.info(), u"Nicht möglich, solange der KI-Assistent arbeitet."_s);
    rig.mState.endToolCall(now());
    QCOMPARE(rig.mState.suppressedMessage(), QString());
    QVERIFY(rig.mWindow.isVisible() && rig.mSession.isModified());
    QCOMPARE(rig.mSession.path(), rig.path());
  }

  void status() {
    Assistant_Rig rig;
    Assistant_Status& status = *rig.status();
    const QString idle = u"KI-Assistent: Port %1"_s.arg(rig.mPort);
    QCOMPARE(status.text(), idle);
    QVERIFY(status.isVisible());
    QVERIFY(status.toolTip().contains(u"http://127.0.0.1:%1/mcp"_s.arg(rig.mPort)));
    status.setHold(std::chrono::milliseconds(200));
    QVERIFY(rig.create() && rig.call(u"get_project_info"_s).contains(u"name"_s));
    QCOMPARE(status.text(), u"KI-Assistent arbeitet"_s);
    QTRY_COMPARE(status.text(), idle);

    const Assistant_Rig second(rig.mPort);
    QCOMPARE(second.status()->text(), idle + u" ist belegt"_s);
    QVERIFY(second.status()->isVisible());
    QVERIFY(!Assistant_Rig(0).status() && !Assistant_Rig(freePort(), true).status());
  }

  /// Without a new start.
  void settingsOfTheServer() {
    Assistant_Rig rig;
    const QByteArray request = "OPTIONS /mcp HTTP/1.1\r\nOrigin: http://example.com\r\n\r\n";
    QVERIFY(rig.send(request).startsWith("HTTP/1.1 403"));
    rig.mSettings.setValue(Setting::McpCheckOrigin, 0);
    QVERIFY(rig.send(request).startsWith("HTTP/1.1 204"));
  }
};

QTEST_MAIN(Assistant_Test)
#include "Assistant_Test.moc"
