#include "base/Command_Line.h"
#include "base/Version.h"

#include <QtTest>

class Command_Line_Test : public QObject {
  Q_OBJECT

private slots:
  void parse_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("options"); // "kiosk demo help version settings=FILE port=N"
    QTest::addColumn<bool>("isWrong");
    const auto row = [](const char* name, const QStringList& arguments, const char* path, const char* options,
                        bool isWrong = false) {
      QTest::newRow(name) << arguments << QString::fromUtf8(path) << QString::fromUtf8(options) << isWrong;
    };
    row("nothing", {}, "", "");
    row("project", {"haus.zpro"}, "haus.zpro", "");
    row("extension inside the text", {"haus.zpro.bak"}, "haus.zpro.bak", "");
    row("quotes", {"\"C:/Büro \"Nord\"/haus.zpro\""}, "C:/Büro Nord/haus.zpro", "");
    row("missing file", {"missing.zpro"}, "", "");
    row("later one replaces", {"haus.zpro", "b.zpro"}, "b.zpro", "");
    row("later missing one does not", {"haus.zpro", "missing.zpro"}, "haus.zpro", "");
    row("other file", {"haus.txt"}, "", "");
    row("extension in capitals", {"HAUS.ZPRO"}, "HAUS.ZPRO", "");
    row("extension in the middle, in any case", {"Haus.ZpRo.alt"}, "Haus.ZpRo.alt", "");
    row("among options", {"--kiosk", "haus.zpro", "--demo"}, "haus.zpro", "kiosk demo");
    row("kiosk in capitals", {"--KIOSK"}, "", "kiosk");
    row("help", {"--help"}, "", "help");
    row("version", {"--Version"}, "", "version");
    row("settings", {"--settings", "a.ini"}, "", "settings=a.ini");
    row("value is no project", {"--settings", "haus.zpro"}, "", "settings=haus.zpro");
    row("joined value is no project", {"--settings=haus.zpro"}, "", "settings=haus.zpro");
    row("settings without value", {"haus.zpro", "--settings"}, "haus.zpro", "", true);
    row("port", {"--mcp-port", "4711"}, "", "port=4711");
    row("highest port", {"--mcp-port", "65535"}, "", "port=65535");
    row("port too high", {"--mcp-port", "65536"}, "", "", true);
    row("negative port", {"--mcp-port", "-1"}, "", "", true);
    row("port as text", {"--mcp-port", "abc", "haus.zpro"}, "haus.zpro", "", true);
    row("port without value", {"--mcp-port"}, "", "", true);
    row("unknown option", {"--fullscreen", "haus.zpro"}, "haus.zpro", "", true);
    row("two wrong ones", {"--fullscreen", "--mcp-port=x"}, "", "", true);
  }

  void parse() {
    QFETCH(QStringList, arguments);
    QFETCH(bool, isWrong);
    const Command_Line line =
        Command_Line::parse(arguments, [](const QString& path) { return !path.startsWith(u"missing"); });
    QTEST(line.mProjectPath, "path");
    QStringList options;
    const auto note = [&options](bool isSet, const QString& name) {
      if (isSet) {
        options.append(name);
      }
    };
    note(line.mKiosk, "kiosk");
    note(line.mDemo, "demo");
    note(line.mHelp, "help");
    note(line.mVersion, "version");
    note(!line.mSettingsFile.isEmpty(), "settings=" + line.mSettingsFile);
    note(line.mMcpPort >= 0, "port=" + QString::number(line.mMcpPort));
    QTEST(options.join(u' '), "options");
    QCOMPARE(!line.mError.isEmpty(), isWrong);
    if (isWrong) {
      // The text names the first wrong argument.
      const QString wrong = *std::find_if(arguments.cbegin(), arguments.cend(),
                                          [](const QString& argument) { return argument.startsWith(u"--"); });
      QVERIFY2(line.mError.contains(wrong.section(u'=', 0, 0)), qPrintable(line.mError));
    }
  }
};

QTEST_APPLESS_MAIN(Command_Line_Test)
#include "Command_Line_Test.moc"
