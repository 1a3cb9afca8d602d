#include "fb/model/FB_Lua_Check.h"
#include "fb/model/FB_Lua_Functions.h"
#include "fb/model/FB_Lua_Script_File.h"

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using State = FB_Lua_Script_File::State;
Q_DECLARE_METATYPE(FB_Lua_Script_File::State)

/// The functions of the controller's scripts, the check of their spelling, and script files.
class FB_Lua_Test : public QObject {
  Q_OBJECT

private slots:
  void menuTexts_data() {
    QTest::addColumn<int>("group");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("entries");
    QTest::newRow("spelled so") << 6 << "PID Regualtor"
                                << QStringList{"pidId = sys_pid_create(P,I,D,Minimum,Maximum)",
                                               "pidY = sys_pid_call(pidId,actual,debit)"};
    QTest::newRow("network") << 7 << "Network"
                             << QStringList{"Id = sys_net_create(\"_TCP\",IPAddress,IPPort,Timeout)",
                                            "sys_net_close(Id)", "sys_net_write(\"\",\"_STRING\")"};
    QTest::newRow("system") << 2 << "System"
                            << QStringList{"id = sys_os_execute(\"command\")",
                                           "sys_send_mail(\"to\",\"subject\",\"body\",\"attachment\")",
                                           "sys_send_pushover(\"userkey\",\"title\",\"message\",0,\"\",\"\",\"\",\"\")",
                                           "sys_send_ntfy(\"\",\"topic\",\"title\",\"message\",3,\"\",\"\",\"\",\"\")"};
  }
  void menuTexts() {
    QFETCH(int, group);
    const FB_Lua_Group& found = FB_Lua_Functions::groups()[static_cast<size_t>(group)];
    QTEST(QString::fromUtf8(found.mTitle), "title");
    QStringList entries;
    for (const FB_Lua_Function& function : found.mFunctions) {
      entries.append(QString::fromUtf8(function.mInserted));
    }
    QTEST(entries, "entries");
  }

  /// The inserted call has as many parameters as the signature, and the example is a script.
  void functionsAreWhole() {
    int count = 0;
    QSet<QString> names;
    for (const FB_Lua_Group& group : FB_Lua_Functions::groups()) {
      for (const FB_Lua_Function& function : group.mFunctions) {
        ++count;
        names.insert(QString::fromUtf8(function.mName));
        const QString inserted = QString::fromUtf8(function.mInserted);
        const QString call = inserted.sliced(inserted.indexOf(u'('));
        QCOMPARE(call.count(u','), FB_Lua_Functions::signature(function).count(u','));
        QVERIFY2(FB_Lua_Check::check(QString::fromUtf8(function.mExample)), function.mName);
        QVERIFY2(FB_Lua_Functions::html().contains(QStringLiteral("name=\"%1\"").arg(function.mName)), function.mName);
      }
    }
    QCOMPARE(count, 36);
    QCOMPARE(names.size(), count);
    QCOMPARE(FB_Lua_Functions::highlighted().size(), 18u);
    for (const char* const name : FB_Lua_Functions::highlighted()) {
      QVERIFY2(names.contains(QString::fromLatin1(name)), name);
    }
  }

  void callbacks() {
    const FB_Lua_Callback* const event = FB_Lua_Functions::findCallback(QStringLiteral("onEvent"));
    QVERIFY(event);
    QCOMPARE(FB_Lua_Functions::label(*event), QStringLiteral("Insert Callback Function: onEvent()"));
    QCOMPARE(FB_Lua_Functions::inserted(*event),
             QStringLiteral("\n-- ##############################################\n"
                            "-- This function is called on message event\n"
                            "function onEvent(Value,PhysAddress,GroupAddress,Command)\n\nend\n\n\n"));
    QCOMPARE(FB_Lua_Functions::callbacks().size(), 16u);
    for (const FB_Lua_Callback& callback : FB_Lua_Functions::callbacks()) {
      QVERIFY2(FB_Lua_Check::check(FB_Lua_Functions::inserted(callback)), callback.mSignature);
    }
  }

  void check_data() {
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << "" << 0 << "";
    QTest::newRow("good") << "function onProcess()\n  local x <const> = 7 // 2\nend" << 0 << "";
    QTest::newRow("no end") << "if x then\n  y = 1\n"
                            << 3 << "\"end\" fehlt, das \"if\" aus Zeile 1 abschließt (am Ende des Scripts)";
    QTest::newRow("no then") << "if x\ny = 1" << 2 << "\"then\" fehlt bei \"y\"";
    QTest::newRow("symbol") << "\nx = = 1" << 2 << "Unverständlich bei \"=\"";
    QTest::newRow("statement") << "hallo welt" << 1 << "Keine vollständige Anweisung bei \"welt\"";
    QTest::newRow("string") << "x = \"offen\n" << 1 << "Das Ende der Zeichenkette fehlt bei \"\"offen\"";
    QTest::newRow("comment") << "\n--[[ offen\n"
                             << 3 << "Das Ende des Kommentars aus Zeile 2 fehlt (am Ende des Scripts)";
    QTest::newRow("number") << "x = 12abc" << 1 << "Ungültige Zahl bei \"12abc\"";
    QTest::newRow("break") << "break" << 1 << "\"break\" steht in keiner Schleife";
    QTest::newRow("goto") << "goto nirgends" << 1 << "Die Sprungmarke \"nirgends\" gibt es hier nicht";
    QTest::newRow("zero byte") << QString(QChar(u'\0')) << 1 << "Unverständlich";
    QTest::newRow("umlaut") << "größe = 1" << 1 << "Keine vollständige Anweisung (Umlaute und Sonderzeichen";
    QTest::newRow("too deep") << QString(5'000, u'(') << 1 << "Zu tief verschachtelt";
    QTest::newRow("too many") << QStringLiteral("local a\n").repeated(300) << 202
                              << "Zu viel in einer Funktion, möglich sind 200";
    QTest::newRow("compiled code") << QStringLiteral("\x1bLua") << 1 << "Das ist ein übersetztes Programm";
  }
  void check() {
    QFETCH(QString, script);
    const FB_Lua_Check::Result result = FB_Lua_Check::check(script);
    QTEST(result.mLine, "line");
    QFETCH(QString, message);
    QCOMPARE(result.mMessage.first(std::min(message.size(), result.mMessage.size())), message);
    QCOMPARE(result.mMessage.isEmpty(), message.isEmpty());
  }

  void unknownMessageStays() {
    QCOMPARE(FB_Lua_Check::translated(QStringLiteral("something new near 'x'")),
             QStringLiteral("something new bei \"x\""));
  }

  void roundTrip_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("password");
    for (const QString& password : {QString(), QStringLiteral("Geheim;ß")}) {
      const QByteArray suffix = password.isEmpty() ? "" : ", protected";
      QTest::newRow("empty" + suffix) << "" << password;
      QTest::newRow("separators" + suffix) << "a = 1; b = 2;\nc = \"100 %3B %1 %\";;\n\n" << password;
      QTest::newRow("tabs, umlauts" + suffix) << "\tx = \"Größe €\" -- 𝄞" << password;
    }
  }
  void roundTrip() {
    QFETCH(QString, text);
    QFETCH(QString, password);
    const QByteArray bytes = FB_Lua_Script_File::write({text, 3, 64}, password);
    QCOMPARE(bytes.count(';'), 5);
    QVERIFY(password.isEmpty() || text.isEmpty() || !bytes.contains("x ="));
    const FB_Lua_Script_File::Reading reading = FB_Lua_Script_File::read(bytes, password);
    QCOMPARE(reading.mState, State::Read);
    QCOMPARE(reading.mScript.mText, text);
    QCOMPARE(reading.mScript.mInputs, 3);
    QCOMPARE(reading.mScript.mOutputs, 64);
  }

  void faults_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QByteArray locked = FB_Lua_Script_File::write({QStringLiteral("x = 1"), 1, 1}, QStringLiteral("anders"));
    QByteArray changed = locked;
    changed[changed.size() - 4] = changed[changed.size() - 4] == 'A' ? 'B' : 'A';
    const char* const broken = "Fehler beim Lesen der Datei";
    QTest::newRow("empty") << QByteArray() << broken;
    QTest::newRow("foreign") << QByteArray("PK\3\4;1;1;1;x;") << broken;
    QTest::newRow("cut") << QByteArray("zscr 1;;1;1;x = 1") << broken;
    QTest::newRow("cut between fields") << QByteArray("zscr 1;;1;1;") << broken;
    QTest::newRow("field too many") << QByteArray("zscr 1;;1;1;x;y;") << broken;
    QTest::newRow("no count") << QByteArray("zscr 1;;1;0;x;") << broken;
    QTest::newRow("no UTF-8") << QByteArray("zscr 1;;1;1;\xff\xfe;") << broken;
    QTest::newRow("escaped no UTF-8") << QByteArray("zscr 1;;1;1;%FF;") << broken;
    QTest::newRow("huge") << QByteArray("zscr 1;;1;1;") + QByteArray(FB_Lua_Script_File::cSizeLimit, 'x') + ';'
                          << broken;
    QTest::newRow("no check value") << QByteArray("zscr 1;abc;1;1;eA==;") << broken;
    QTest::newRow("newer") << QByteArray("zscr 2;;1;1;x;and more;") << "Unbekannte Dateiversion";
    QTest::newRow("password") << locked << "Falsches Passwort";
    QTest::newRow("changed") << changed << "Falsches Passwort";
    QTest::newRow("no salt") << QByteArray("zscr 1;0123456789abcdef0123456789abcdef;1;1;eA==;") << "Falsches Passwort";
  }
  void faults() {
    QFETCH(QByteArray, bytes);
    const FB_Lua_Script_File::Reading reading = FB_Lua_Script_File::read(bytes, QStringLiteral("Passwort"));
    QTEST(FB_Lua_Script_File::message(reading.mState), "message");
    QVERIFY(reading.mScript.mText.isEmpty());
  }

  void files() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.zscr"));
    QVERIFY(FB_Lua_Script_File::writeFile(path, {QStringLiteral("x = 1"), 1, 1}, {}));
    QCOMPARE(FB_Lua_Script_File::readFile(path, {}).mScript.mText, QStringLiteral("x = 1"));
    const FB_Lua_Script_File::Reading missing = FB_Lua_Script_File::readFile(folder.filePath("b.zscr"), {});
    QCOMPARE(FB_Lua_Script_File::message(missing.mState), QStringLiteral("Fehler beim Öffnen der Datei"));
    QVERIFY(!FB_Lua_Script_File::writeFile(folder.filePath("no/such/a.zscr"), {}, {}));
  }
};

QTEST_GUILESS_MAIN(FB_Lua_Test)

#include "FB_Lua_Test.moc"
