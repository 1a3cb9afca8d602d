#include "mcp/tools/Controller_Run.h"

#include "base/Session_State.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Controller.h"
#include "mcp/MCP_Studio.h"
#include "mcp/MCP_Wait.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"

#include <QDeadlineTimer>

#include <chrono>
#include <optional>

namespace {

constexpr std::chrono::seconds cLongest(60);

bool isOnline(const MCP_Call& call) {
  const Controller_Link* const link = call.studio().link();
  return link && link->isOnline();
}

MCP_Result writeProject(MCP_Call& call) {
  MCP_Studio& studio = call.studio();
  if (!isOnline(call)) {
    return MCP_Result::failed(MCP_Controller::noLink());
  }
  MCP_Wait wait(cLongest);
  std::optional<int> generation;
  QString error;
  QObject::connect(&studio, &MCP_Studio::projectStarted, &wait, [&](int given) {
    generation = given;
    wait.done();
  });
  QObject::connect(&studio, &MCP_Studio::projectWriteEnded, &wait, [&](const QString& text) {
    error = text;
    wait.done();
  });
  if (const Edit_Result begun = studio.writeProject(); !begun) {
    return MCP_Result::failed(begun.mError);
  }
  if (!wait.run()) {
    return MCP_Result::failed(QStringLiteral("Die Steuerung hat den Start des Projekts innerhalb von 60 Sekunden nicht "
                                             "bestaetigt; das Schreiben laeuft noch. Wie es endet, steht in der "
                                             "Statuszeile des Studios."));
  }
  if (!generation) {
    return MCP_Result::failed(error);
  }
  return MCP_Result::done(
      {{QStringLiteral("project_generation"), *generation},
       {QStringLiteral("hint"),
        QStringLiteral("Die Steuerung schreibt das Projekt und startet ihre Dienste neu - vor dem Pruefen einen Moment "
                       "warten. Im Steuerungsverbund gibt sie es danach an die Partner weiter; das Ergebnis steht in "
                       "get_controller_status.")}});
}

QJsonObject playMode(const MCP_Call& call) {
  QJsonObject object{{QStringLiteral("enabled"), call.session().state().operatingMode()},
                     {QStringLiteral("connected"), isOnline(call)}};
  if (call.studio().isPlayPending()) {
    object.insert(QStringLiteral("pending"), true);
    object.insert(QStringLiteral("hint"), QStringLiteral("Das Programm wird gerade zur Steuerung uebertragen; danach "
                                                         "ist der Bedienmodus an (get_play_mode)."));
  }
  return object;
}

MCP_Result getPlayMode(MCP_Call& call) {
  return MCP_Result::done(playMode(call));
}

/// What a write still brings over when its tool has answered.
void awaitRestOfWrite(MCP_Studio& studio, const QDeadlineTimer& end) {
  MCP_Wait wait(std::chrono::milliseconds(end.remainingTime()));
  QObject::connect(&studio, &MCP_Studio::projectWriteEnded, &wait, &MCP_Wait::done);
  if (studio.isWritingProject()) {
    wait.run();
  }
}

MCP_Result setPlayMode(MCP_Call& call) {
  MCP_Studio& studio = call.studio();
  const bool isWanted = call.flag("enabled", true);
  const QDeadlineTimer end(cLongest);
  if (isWanted) {
    awaitRestOfWrite(studio, end);
  }
  if (!call.session().isOpen()) {
    return MCP_Result::failed(QStringLiteral("Kein Projekt geoeffnet"));
  }
  MCP_Wait wait(std::chrono::milliseconds(end.remainingTime()));
  QString error;
  QObject::connect(&studio, &MCP_Studio::playSettled, &wait, [&](const QString& text) {
    error = text;
    wait.done();
  });
  if (const Edit_Result begun = studio.setPlayMode(isWanted, call.flag("force_transfer")); !begun) {
    return MCP_Result::failed(begun.mError);
  }
  if (studio.isPlayPending()) {
    wait.run();
  }
  if (isWanted && !error.isEmpty()) { // one that is given up is as it was wanted
    return MCP_Result::failed(error);
  }
  if (isWanted && !isOnline(call)) {
    call.warn(QStringLiteral("Bedienmodus ohne Verbindung: Das Programm laeuft nicht auf der Steuerung "
                             "(connect_runtime, dann set_play_mode erneut)."));
  }
  return MCP_Result::done(playMode(call));
}

MCP_Result setDebugLevel(MCP_Call& call) {
  const int level = call.integer("level");
  if (level != 0 && level != 1) {
    return MCP_Result::failed(QStringLiteral("level muss 0 (nur wichtige Meldungen) oder 1 (alle Meldungen) sein"));
  }
  const QByteArray payload = QByteArray::number(level) + '\0';
  const MCP_Controller::Answer answer = MCP_Controller::ask(
      call.studio(), {Controller_Command::Debug_Level, payload, Controller_Command::Debug_Level_Reply});
  if (!answer) {
    return MCP_Result::failed(answer.mError);
  }
  return MCP_Result::done({{QStringLiteral("level"), level},
                           {QStringLiteral("level_text"),
                            level == 0 ? QStringLiteral("nur wichtige Meldungen") : QStringLiteral("alle Meldungen")}});
}

} // namespace

std::vector<MCP_Tool> Controller_Run::all() {
  return {
      {QStringLiteral("write_project_to_controller"),
       QStringLiteral(
           "Schreibt das Projekt als Bootprojekt auf die verbundene Steuerung (entspricht \"Projekt auf "
           "Steuerung schreiben\"). Noetig fuer alles, was zu den PROJEKTDATEN gehoert - zum Beispiel die "
           "Steuerungsliste des Verbunds: set_play_mode uebertraegt nur das Programm, und das nur bis zum "
           "Neustart der Steuerung. Das Projekt wird zuvor gespeichert. Antwortet mit project_generation, "
           "sobald die Steuerung das neue Projekt ausfuehrt, spaetestens nach 60 Sekunden; Bilder und andere "
           "Ressourcen gehen danach im Hintergrund hinueber. Ersetzt das Projekt auf der Steuerung ohne "
           "Rueckfrage."),
       {},
       writeProject,
       {}},
      {QStringLiteral("set_play_mode"),
       QStringLiteral(
           "Schaltet zwischen Bearbeitungsmodus und Bedienmodus um - entspricht dem Play-Button in der "
           "Werkzeugleiste (F5). Beim Einschalten wird ein geaendertes Programm zur verbundenen Runtime "
           "uebertragen und dort gestartet; das ist die Art, ein geaendertes Programm auszuprobieren. Ohne "
           "Verbindung wechselt nur der Modus (warning). Im Bedienmodus lehnen alle aendernden Werkzeuge ab - "
           "vor dem Bearbeiten mit enabled: false ausschalten; auf der Steuerung laeuft das Programm weiter. "
           "Wartet bis zu 60 Sekunden auf die Steuerung."),
       {MCP_Parameter::flag("enabled", "true = Bedienmodus, false = Bearbeitungsmodus (Standard: true)"),
        MCP_Parameter::flag("force_transfer",
                            "Programm auch uebertragen, wenn die Steuerung es schon ausfuehrt (Standard: false)")},
       setPlayMode,
       {}},
      {QStringLiteral("get_play_mode"),
       QStringLiteral("Liest, ob der Bedienmodus (Play) aktiv ist und ob eine Verbindung zur Runtime besteht."),
       {},
       getPlayMode,
       {}},
      {QStringLiteral("set_debug_level"),
       QStringLiteral(
           "Stellt die Ausfuehrlichkeit der Meldungen der Steuerung ein. 0 = nur wichtige Meldungen, 1 = alle "
           "Meldungen (fuer die Fehlersuche). Wirkt sofort auf den Kanal 'messages' von "
           "get_diagnostic_messages und gilt bis zum Neustart der Steuerung; dauerhaft gilt debug_level in "
           "rz8800rt.cfg auf der Steuerung. Braucht eine Verbindung (connect_runtime)."),
       {MCP_Parameter::integer("level", "0 = nur wichtige Meldungen, 1 = alle Meldungen").required()},
       setDebugLevel,
       {}},
  };
}
