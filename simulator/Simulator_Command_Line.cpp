#include "simulator/Simulator_Command_Line.h"

#include "base/Version.h"
#include "simulator/Simulator_Faults.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>

namespace {

using Line = Simulator_Command_Line;

QString tr(const char* text) {
  return QCoreApplication::translate("Simulator_Command_Line", text);
}

constexpr int cHighestPort = 65535;
constexpr int cLongestMs = 3'600'000;

bool takePort(const QString& text, quint16& port) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  port = static_cast<quint16>(number);
  return isNumber && number >= 0 && number <= cHighestPort;
}

bool takeMs(const QString& text, int& ms) {
  bool isNumber = false;
  ms = text.toInt(&isNumber);
  return isNumber && ms >= 0 && ms <= cLongestMs;
}

bool takeText(const QString& text, QString& value) {
  value = text;
  return !text.isEmpty();
}

/// An option with a value, as "--name VALUE" or "--name=VALUE".
struct Value_Option {
  const char* mName;
  bool (*mTake)(Simulator_Options& options, const QString& value);
};
constexpr Value_Option cValueOptions[] = {
    {"--name", [](Simulator_Options& options, const QString& text) { return takeText(text, options.mName); }},
    {"--data", [](Simulator_Options& options, const QString& text) { return takeText(text, options.mFolder); }},
    {"--listen",
     [](Simulator_Options& options, const QString& text) {
       options.mListen = QHostAddress(text);
       return !options.mListen.isNull();
     }},
    {"--user", [](Simulator_Options& options, const QString& text) { return takeText(text, options.mUser); }},
    {"--password",
     [](Simulator_Options& options, const QString& text) {
       options.mPassword = text.isNull() ? QStringLiteral("") : text;
       return true;
     }},
    {"--cycle", [](Simulator_Options& options, const QString& text) { return takeMs(text, options.mCycleMs); }},
    {"--restart-time",
     [](Simulator_Options& options, const QString& text) { return takeMs(text, options.mRestartMs); }},
    {"--discovery-port",
     [](Simulator_Options& options, const QString& text) { return takePort(text, options.mDiscoveryPort); }},
    {"--relay-name",
     [](Simulator_Options& options, const QString& text) { return takeText(text, options.mRelayName); }},
    {"--fault",
     [](Simulator_Options& options, const QString& text) {
       options.mFaults.append(text);
       return Simulator_Faults().add(text);
     }},
};

struct Flag_Option {
  const char* mName;
  void (*mSet)(Line& line);
};
constexpr Flag_Option cFlagOptions[] = {
    {"--log", [](Line& line) { line.mOptions.mIsLogging = true; }},
    {"--relay", [](Line& line) { line.mOptions.mIsRelay = true; }},
    {"--no-discovery", [](Line& line) { line.mOptions.mDiscovers = false; }},
    {"--allow-remote-search", [](Line& line) { line.mOptions.mAnswersRemoteSearch = true; }},
    {"--help", [](Line& line) { line.mHelp = true; }},
    {"-h", [](Line& line) { line.mHelp = true; }},
    {"--version", [](Line& line) { line.mVersion = true; }},
};

} // namespace

Line Line::parse(const QStringList& arguments) {
  Line line;
  bool isPortGiven = false;
  const auto take = [&](const QString& name, const QString& value) {
    if (name == u"--port") {
      isPortGiven = true;
      return takePort(value, line.mOptions.mPort);
    }
    const auto* const option =
        std::ranges::find_if(cValueOptions, [&](const Value_Option& row) { return name == QLatin1String(row.mName); });
    return option->mTake(line.mOptions, value);
  };
  const auto isValueOption = [](const QString& name) {
    return name == u"--port" || std::ranges::any_of(cValueOptions, [&](const Value_Option& row) {
             return name == QLatin1String(row.mName);
           });
  };
  for (qsizetype i = 0; i < arguments.size() && line.mError.isEmpty(); ++i) {
    const QString& argument = arguments.at(i);
    const QString name = argument.section(u'=', 0, 0);
    const auto* const flag = std::ranges::find_if(
        cFlagOptions, [&](const Flag_Option& row) { return argument == QLatin1String(row.mName); });
    if (flag != std::end(cFlagOptions)) {
      flag->mSet(line);
    } else if (!isValueOption(name)) {
      line.mError = tr("Unbekannte Option %1.").arg(name); // its value may be a password
    } else if (!argument.contains(u'=') && i + 1 >= arguments.size()) {
      line.mError = tr("Die Option %1 braucht einen Wert.").arg(name);
    } else {
      const QString value = argument.contains(u'=') ? argument.section(u'=', 1) : arguments.at(++i);
      if (!take(name, value)) {
        line.mError = tr("Die Option %1 nimmt den Wert \"%2\" nicht an.").arg(name, value);
      }
    }
  }
  if (line.mOptions.mIsRelay && !isPortGiven) {
    line.mOptions.mPort = Simulator_Options::cRelayPort;
  }
  return line;
}

QString Line::helpText() {
  return tr("Aufruf: rz8800-simulator [Optionen]\n"
            "\n"
            "Steht für eine Steuerung, wo keine ist.\n"
            "\n"
            "  --port N               TCP-Port (10001, mit --relay 10003; 0 = irgendein freier)\n"
            "  --listen ADRESSE       nimmt Verbindungen an dieser Adresse an (127.0.0.1)\n"
            "  --name NAME            Name der Steuerung (RZ8800 Simulator)\n"
            "  --user NAME            Benutzer der Anmeldung (der einer neuen Steuerung)\n"
            "  --password PASSWORT    sein Passwort (das einer neuen Steuerung)\n"
            "  --data ORDNER          hält dort Projekt, Werte und Sicherungen; sonst nur im Speicher\n"
            "  --cycle MS             sendet alle MS Millisekunden den Wert der nächsten Gruppenadresse\n"
            "  --restart-time MS      so lange dauert ein Neustart (1000)\n"
            "  --relay                steht für den Relay-Dienst und die Steuerung dahinter\n"
            "  --relay-name NAME      unter diesem Namen kennt der Relay-Dienst die Steuerung (jeder)\n"
            "  --discovery-port N     UDP-Port, an dem Suchen beantwortet werden (10011)\n"
            "  --no-discovery         beantwortet keine Suche\n"
            "  --allow-remote-search  beantwortet auch Suchen anderer Rechner\n"
            "  --fault FEHLER         benimmt sich mit Absicht falsch, mehrfach möglich: bytes, together=MS,\n"
            "                         pause-header=MS, pause-payload=MS, magic, length-odd, length-short,\n"
            "                         length-huge, garbage=N, gap=MS, silence, close=N, refuse=BEFEHL,\n"
            "                         mute=BEFEHL; \"@BEFEHL\" dahinter nur bei Nachrichten dieser Nummer\n"
            "  --log                  schreibt jede Nachricht nach stderr\n"
            "  --help                 zeigt diese Hilfe\n"
            "  --version              zeigt die Version\n");
}

QString Line::versionText() {
  return QStringLiteral("rz8800-simulator %1\n").arg(Version::studio());
}
