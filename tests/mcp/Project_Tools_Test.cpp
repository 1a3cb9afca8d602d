#include "fb/model/FB_Help.h"
#include "fb/model/FB_Lua_Functions.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Lookup.h"
#include "tests/mcp/Tool_Rig.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QStringList topicsIn(const QJsonArray& entries) {
  QStringList topics;
  for (const auto& entry : entries) {
    topics.append(entry[u"topic"_s].toString());
  }
  return topics;
}

} // namespace

/// The tools of project, help and window, on a studio without window; what the window adds is in app/Assistant_Test.
class Project_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void info() {
    Tool_Rig rig;
    const DB_Page_List<DB_FB_Page>& pages = rig.mSession.database().mFbPages;
    QVERIFY(bool(FB_Page_Edits::create(rig.mSession, pages.pages().at(0).mGuid, 50, {})));
    rig.addAddress({1, 2, 3}, u"Licht"_s);
    QCoreApplication::processEvents();
    const QJsonObject info = rig.call(u"get_project_info"_s);
    const QJsonObject expected{{u"filename"_s, rig.path()},
                               {u"name"_s, u"Haus"_s},
                               {u"version"_s, rig.mSession.database().mProject.mVersion},
                               {u"timestamp"_s, rig.mSession.database().mProject.mTimestamp},
                               {u"modified"_s, true},
                               {u"fb_pages"_s, 1},
                               {u"function_blocks"_s, 1},
                               {u"widget_pages"_s, 2},
                               {u"widgets"_s, 0},
                               {u"addresses"_s, 1},
                               {u"connections"_s, 1},
                               {u"controllers"_s, 0},
                               {u"play_mode"_s, false},
                               {u"connected"_s, false},
                               {u"connection"_s, u"Steuerung"_s}};
    for (auto it = expected.begin(); it != expected.end(); ++it) {
      QCOMPARE(info.value(it.key()), it.value());
    }
    QVERIFY(info.value(u"hint"_s).toString().contains(u"save_project"_s));
    QVERIFY(info.value(u"timestamp"_s).toInteger() > 0);
    QCOMPARE(rig.call(u"save_project"_s).value(u"modified"_s), QJsonValue(false));
    QVERIFY(!rig.call(u"get_project_info"_s).contains(u"hint"_s));
  }

  void withoutProject() {
    Tool_Rig rig;
    rig.mSession.close();
    for (const char* const tool : {"get_project_info", "save_project", "save_project_as", "ui_navigate",
                                   "list_help_topics", "get_help", "get_lua_api_reference"}) {
      QCOMPARE(rig.errorOf(QLatin1String(tool)), u"Kein Projekt geoeffnet"_s);
    }
    QCOMPARE(rig.call(u"open_project"_s, {{u"filename"_s, rig.path()}})[u"project"_s][u"name"_s], u"Haus"_s);
  }

  /// Nothing is done, and the present project stays as it is.
  void refusedPaths_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QJsonObject>("arguments");
    QTest::addColumn<QString>("error"); // begins so; %1 is the folder
    const auto row = [](const char* tool, const QString& path, const QString& error, QJsonObject more = {}) {
      more.insert(u"filename"_s, path);
      QTest::addRow("%s %s %lld", tool, qPrintable(path.left(40)), more.size())
          << QString::fromUtf8(tool) << more << error;
    };
    for (const char* const tool : {"open_project", "new_project", "save_project_as"}) {
      row(tool, u""_s, u"Parameter 'filename' fehlt"_s);
      row(tool, u"Haus.zpro"_s, u"Parameter 'filename' muss ein vollstaendiger Pfad sein: Haus.zpro"_s);
      row(tool, u":/demo/demo.zpro"_s, u"Parameter 'filename' muss ein vollstaendiger Pfad sein: :/demo"_s);
      row(tool, u"/a\0b.zpro"_s, u"Parameter 'filename' enthaelt Zeichen"_s);
    }
    row("open_project", u"%1/Fehlt.zpro"_s, u"Datei nicht gefunden: %1/Fehlt.zpro"_s);
    row("open_project", u"%1"_s, u"Projekt konnte nicht geoeffnet werden: %1"_s);
    for (const char* const tool : {"new_project", "save_project_as"}) {
      row(tool, u"%1/Fehlt/Neu"_s, u"Ordner nicht gefunden: %1/Fehlt"_s);
      row(tool, u"%1/Ordner"_s, u"Parameter 'filename' nennt einen Ordner, keine Datei: %1/Ordner.zpro"_s);
      row(tool, u"%1/"_s + QString(230, u'x'), u"Der Dateiname ist zu lang"_s);
      row(tool, u"%1/Anderes"_s, u"Datei ist bereits vorhanden: %1/Anderes.zpro"_s);
    }
    row("new_project", u"%1/Haus.zpro"_s, u"Das geoeffnete Projekt kann nicht"_s, {{u"overwrite"_s, true}});
    row("new_project", u"%1/Gesperrt.zpro"_s, u"Die Datei ist in einem anderen Studio geoeffnet"_s,
        {{u"overwrite"_s, true}});
    row("new_project", u"%1/Neu"_s, u"Parameter 'connection_ip': "_s, {{u"connection_ip"_s, u"a b"_s}});
    row("new_project", u"%1/Neu"_s, u"Parameter 'connection_name': "_s,
        {{u"connection_name"_s, QString(300, u'x')}, {u"overwrite"_s, false}});
    row("new_project", u"%1/Neu"_s, u"Parameter 'fb_page_caption': "_s,
        {{u"fb_page_caption"_s, QString(300, u'x')}, {u"overwrite"_s, true}, {u"connection_ip"_s, QJsonValue::Null}});
  }
  void refusedPaths() {
    QFETCH(QString, tool);
    QFETCH(QJsonObject, arguments);
    QFETCH(QString, error);
    Tool_Rig rig;
    QVERIFY(QDir(rig.folder()).mkdir(u"Ordner.zpro"_s));
    QVERIFY(QFile::copy(rig.path(), rig.path(u"Anderes.zpro"_s)) &&
            QFile::copy(rig.path(), rig.path(u"Gesperrt.zpro"_s)));
    Project_Session other(rig.mState);
    QVERIFY(other.open(rig.path(u"Gesperrt.zpro"_s)));
    const QStringList files = QDir(rig.folder()).entryList();
    const QByteArray before = Session_Rig::bytesOf(rig.path(u"Anderes.zpro"_s));
    arguments[u"filename"_s] = arguments[u"filename"_s].toString().replace(u"%1"_s, rig.folder());
    const QString told = rig.errorOf(tool, arguments);
    QVERIFY2(told.startsWith(error.replace(u"%1"_s, rig.folder())), qPrintable(told));
    QCOMPARE(rig.mSession.path(), rig.path());
    QCOMPARE(QDir(rig.folder()).entryList(), files);
    QCOMPARE(Session_Rig::bytesOf(rig.path(u"Anderes.zpro"_s)), before);
  }

  void failuresTellTheReason() {
    Tool_Rig rig;
    QFile broken(rig.path(u"Kaputt.zpro"_s));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no project at all") > 0);
    broken.close();
    const QJsonObject failed = rig.call(u"open_project"_s, {{u"filename"_s, broken.fileName()}});
    QCOMPARE(failed[u"error"_s], u"Projekt konnte nicht geoeffnet werden: %1"_s.arg(broken.fileName()));
    QVERIFY(!failed[u"reason"_s].toString().isEmpty());
    rig.mStudio.mHasWindow = false;
    QCOMPARE(rig.errorOf(u"open_project"_s, {{u"filename"_s, rig.path()}}), u"Studio-Fenster nicht verfuegbar"_s);
    QCOMPARE(rig.errorOf(u"new_project"_s, {{u"filename"_s, rig.path(u"Neu.zpro"_s)}}),
             u"Studio-Fenster nicht verfuegbar"_s);
  }

  void newProject() {
    Tool_Rig rig;
    QVERIFY(QFile::copy(rig.path(), rig.path(u"Neu.zpro"_s)));
    const QJsonObject made = rig.call(u"new_project"_s, {{u"filename"_s, rig.path(u"Neu"_s)},
                                                         {u"overwrite"_s, true},
                                                         {u"fb_page_caption"_s, u" Erd-\ngeschoss "_s},
                                                         {u"connection_ip"_s, u"127.0.0.1:10001"_s}});
    QCOMPARE(made[u"project"_s][u"filename"_s], rig.path(u"Neu.zpro"_s));
    QCOMPARE(rig.mSession.path(), rig.path(u"Neu.zpro"_s));
    QCOMPARE(made[u"connection"_s][u"ip"_s], u"127.0.0.1:10001"_s);
    QCOMPARE(rig.mSession.database().mConnections.mItems.at(0).mAddress, u"127.0.0.1:10001"_s);
    QCOMPARE(made[u"fb_pages"_s][0][u"caption"_s], u"Erd- geschoss"_s);
    QCOMPARE(made[u"widget_pages"_s].toArray().size(), 2);
    const QString page = made[u"fb_pages"_s][0][u"guid"_s].toString();
    QVERIFY(rig.mSession.database().mFbPages.page(MCP_Lookup::guid(page)));
    QCOMPARE(rig.call(u"new_project"_s, {{u"filename"_s, rig.path(u"Weit.zpro"_s)}})[u"connection"_s][u"ip"_s],
             u"172.31.1.100"_s);
  }

  void saveAs() {
    Tool_Rig rig;
    QCOMPARE(rig.call(u"save_project_as"_s, {{u"filename"_s, rig.path(u"Zwei"_s)}})[u"filename"_s],
             rig.path(u"Zwei.zpro"_s));
    QCOMPARE(rig.mSession.path(), rig.path(u"Zwei.zpro"_s));
    QVERIFY(QFile::exists(rig.path(u"Zwei.zpro"_s)));
    QVERIFY(!rig.call(u"save_project_as"_s, {{u"filename"_s, rig.path(u"Zwei"_s)}}).contains(u"error"_s)); // itself
    // Files that are not there are not the same one.
    QVERIFY(QFile::remove(rig.path(u"Zwei.zpro"_s)));
    QCOMPARE(rig.call(u"save_project_as"_s, {{u"filename"_s, rig.path(u"Drei"_s)}})[u"filename"_s],
             rig.path(u"Drei.zpro"_s));
    QVERIFY(QFile::remove(rig.path(u"Drei.zpro"_s)));
    QVERIFY(!rig.call(u"new_project"_s, {{u"filename"_s, rig.path(u"Vier"_s)}}).contains(u"error"_s));
  }

  void navigate() {
    Tool_Rig rig;
    const ProjectDatabase& database = rig.mSession.database();
    const QUuid visu = database.mWidgetPages.pages().at(1).mGuid;
    for (const QUuid& page : {database.mFbPages.pages().at(0).mGuid, visu}) {
      const QJsonObject shown = rig.call(u"ui_navigate"_s, {{u"page_guid"_s, page.toString(QUuid::WithoutBraces)}});
      QCOMPARE(shown[u"kind"_s], page == visu ? u"widget_page"_s : u"fb_page"_s);
      QCOMPARE(shown[u"caption"_s], page == visu ? u"Visu quer"_s : u"Programm 1"_s);
      QCOMPARE(rig.mStudio.mShownPage, page);
    }
    for (const QString& text : {u""_s, u"{}"_s, u"überall"_s, QUuid::createUuid().toString()}) {
      QCOMPARE(rig.errorOf(u"ui_navigate"_s, {{u"page_guid"_s, text}}), u"Seite nicht gefunden: "_s + text);
    }
  }

  /// Whatever is listed can be read, and every page is listed.
  void helpTopics() {
    Tool_Rig rig;
    const QJsonObject listed = rig.call(u"list_help_topics"_s);
    const QStringList topics = topicsIn(listed[u"program"_s].toArray()) + topicsIn(listed[u"common"_s].toArray());
    QCOMPARE(topics.size(), FB_Help::pages().size());
    QCOMPARE(listed[u"count"_s].toInteger(), topics.size());
    for (const QString& topic : topics) {
      const QJsonObject help = rig.call(u"get_help"_s, {{u"topic"_s, topic}});
      QCOMPARE(help[u"topic"_s], topic);
      QVERIFY2(help[u"text"_s].toString().startsWith(help[u"title"_s].toString()), qPrintable(topic));
      QVERIFY2(help[u"text"_s].toString().size() > 40, qPrintable(topic));
    }
    // Named as examples where the tools describe themselves.
    for (const char* const topic :
         {"program/fb_modbus_master", "program/fb_lua_script", "common/variable", "common/format"}) {
      QVERIFY2(topics.contains(QLatin1String(topic)), topic);
    }
    QVERIFY(!listed.contains(u"note"_s));
    QVERIFY(rig.call(u"list_help_topics"_s, {{u"language"_s, u"en"_s}})[u"note"_s].toString().contains(u"'en'"_s));
  }

  void help() {
    Tool_Rig rig;
    const QUuid page = rig.mSession.database().mFbPages.pages().at(0).mGuid;
    const QUuid block = FB_Page_Edits::create(rig.mSession, page, 1917, {}).mBlocks.constFirst();
    const QJsonObject help = rig.call(u"get_help"_s, {{u"fb_guid"_s, block.toString()}, {u"language"_s, u"en"_s}});
    QCOMPARE(help[u"topic"_s], u"program/fb_modbus_master"_s);
    QCOMPARE(help[u"language"_s], u"de"_s);
    QVERIFY(help.contains(u"note"_s));

    const QString one = u"Genau einer der Parameter 'topic', 'fb_guid' und 'widget_guid' ist anzugeben"_s;
    QCOMPARE(rig.errorOf(u"get_help"_s), one);
    QCOMPARE(rig.errorOf(u"get_help"_s, {{u"topic"_s, u"program/fb_and"_s}, {u"fb_guid"_s, u"x"_s}}), one);
    QCOMPARE(rig.errorOf(u"get_help"_s, {{u"fb_guid"_s, u"x"_s}}), u"Funktionsbaustein nicht gefunden: x"_s);
    QCOMPARE(rig.errorOf(u"get_help"_s, {{u"widget_guid"_s, u"x"_s}}), u"Widget nicht gefunden: x"_s);
    for (const QString& topic : {u"fb_and"_s, u"common/fb_and"_s, u"program/../fb_and"_s, u"program/fb_and.html"_s,
                                 u"visu/widget_block_room_controller"_s}) {
      QVERIFY(rig.errorOf(u"get_help"_s, {{u"topic"_s, topic}}).startsWith(u"Hilfe-Thema nicht gefunden: "_s + topic));
    }
  }

  void luaReference() {
    Tool_Rig rig;
    const QJsonObject reference = rig.call(u"get_lua_api_reference"_s);
    QStringList signatures;
    for (const auto& group : reference[u"groups"_s].toArray()) {
      for (const auto& function : group[u"functions"_s].toArray()) {
        signatures.append(function[u"signature"_s].toString());
        QVERIFY(!function[u"description"_s].toString().isEmpty());
      }
    }
    QCOMPARE(reference[u"count"_s].toInteger(), signatures.size());
    QVERIFY(signatures.contains(u"sys_get_persistent_value(Id,DefaultValue)"_s));
    for (const QString& signature : std::as_const(signatures)) {
      QVERIFY2(FB_Lua_Functions::find(signature.section(u'(', 0, 0)), qPrintable(signature));
    }
    QCOMPARE(reference[u"callbacks"_s].toArray().size(), qsizetype(FB_Lua_Functions::callbacks().size()));
  }
};

QTEST_GUILESS_MAIN(Project_Tools_Test)
#include "Project_Tools_Test.moc"
