#include "base/Command_Line.h"

#include "base/Version.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Command_Line", text);
}

constexpr int cHighestPort = 65535;

/// Options that take a value, as `--name VALUE` or `--name=VALUE`.
struct Value_Option {
  QString mName;
  std::function<bool(const QString& value)> mTake;
};

} // namespace

Command_Line Command_Line::parse(const QStringList& arguments, const File_Exists& exists) {
  Command_Line line;
  const auto fail = [&line](const QString& text) {
    if (line.mError.isEmpty()) {
      line.mError = text;
    }
  };
  const std::initializer_list<Value_Option> valueOptions = {
      {QStringLiteral("--settings"),
       [&](const QString& value) {
         line.mSettingsFile = value;
         return !value.isEmpty();
       }},
      {QStringLiteral("--mcp-port"),
       [&](const QString& value) {
         bool ok = false;
         const int port = value.toInt(&ok);
         ok = ok && port >= 0 && port <= cHighestPort;
         line.mMcpPort = ok ? port : -1;
         return ok;
       }},
  };

  for (qsizetype i = 0; i < arguments.size(); ++i) {
    const QString& argument = arguments[i];
    const QString lower = argument.toLower();
    bool isValueOption = false;
    for (const Value_Option& option : valueOptions) {
      const bool joined = lower.startsWith(option.mName + u'=');
      if (!joined && lower != option.mName) {
        continue;
      }
      isValueOption = true;
      if (!joined && i + 1 >= arguments.size()) {
        fail(tr("Die Option %1 braucht einen Wert.").arg(option.mName));
        break;
      }
      const QString value = joined ? argument.mid(option.mName.size() + 1) : arguments[++i];
      if (!option.mTake(value)) {
        fail(tr("Die Option %1 nimmt den Wert \"%2\" nicht an.").arg(option.mName, value));
      }
      break;
    }
    if (isValueOption) {
      continue;
    }
    if (lower == u"--kiosk") {
      line.mKiosk = true;
    } else if (lower == u"--help" || argument == u"-h") {
      line.mHelp = true;
    } else if (lower == u"--version") {
      line.mVersion = true;
    } else if (lower == u"--demo") {
      line.mDemo = true;
    } else if (lower.contains(u".zpro")) {
      QString path = argument;
      path.remove(u'"');
      if (exists(path)) {
        line.mProjectPath = path;
      }
    } else if (lower.startsWith(u"--")) {
      fail(tr("Unbekannte Option %1.").arg(argument));
    }
  }
  return line;
}

QString Command_Line::helpText() {
  return tr("Aufruf: quarna-studio [Optionen] [PROJEKT.zpro]\n"
            "\n"
            "  --demo             öffnet das Demo-Projekt\n"
            "  --kiosk            Anzeige ohne Menüs und ohne Bearbeitung, für diesen Lauf\n"
            "  --settings DATEI   liest und schreibt die Einstellungen in dieser INI-Datei\n"
            "  --mcp-port N       Port des MCP-Servers für diesen Lauf (0 = aus, höchstens 65535)\n"
            "  --help             zeigt diese Hilfe\n"
            "  --version          zeigt die Version\n");
}

QString Command_Line::versionText() {
  return QStringLiteral("Quarna-Studio %1\n").arg(Version::studio());
}
