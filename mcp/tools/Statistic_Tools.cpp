#include "mcp/tools/Statistic_Tools.h"

#include "db/Statistic_Edits.h"
#include "db/Statistic_Words.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Studio.h"

#include <QJsonArray>

#include <algorithm>

namespace {

using Recording = Statistic_Edits::Recording;

const std::vector<Recording>& recordingsOf(const MCP_Call& call) {
  return call.database().mStatistic.mRecordings;
}

QString controllerName(const ProjectDatabase& database, int number) {
  const auto& controllers = database.mProject.mControllers;
  const auto found = std::ranges::find_if(controllers, [number](const DB_Controller& controller) {
    return number == 0 ? controller.mIsMain : controller.mNumber == number;
  });
  return found == controllers.end() ? QString() : found->mName;
}

/// What is wrong with a recording that a file brought, or that lost its address or controller since.
QString faultsOf(const ProjectDatabase& database, const Recording& recording) {
  QStringList texts;
  for (const Statistic_Edits::Fault& fault : Statistic_Edits::faultsOf(database, {recording})) {
    texts.append(fault.mText);
  }
  return texts.join(u' ');
}

void addTrigger(QJsonObject& entry, const Recording& recording) {
  const Statistic_Words::Word* const trigger = Statistic_Words::trigger(recording.mTriggerType);
  const Statistic_Words::Unit* const unit = Statistic_Words::unit(recording.mTriggerTimeType);
  entry.insert(QStringLiteral("trigger_type"),
               trigger ? QString::fromLatin1(trigger->mKey) : QString::number(recording.mTriggerType));
  if (trigger) {
    entry.insert(QStringLiteral("trigger_text"), Statistic_Words::text(trigger->mText));
  }
  entry.insert(QStringLiteral("trigger_value"), recording.mTriggerValue);
  entry.insert(QStringLiteral("trigger_time_type"),
               unit ? QString::fromLatin1(unit->mKey) : QString::number(recording.mTriggerTimeType));
  entry.insert(QStringLiteral("trigger_time_secs"), recording.mTriggerTimeSecs);
}

QJsonObject entryOf(const ProjectDatabase& database, int index) {
  const Recording& recording = database.mStatistic.mRecordings[static_cast<size_t>(index)];
  QJsonObject entry{{QStringLiteral("index"), index},
                    {QStringLiteral("name"), recording.mName},
                    {QStringLiteral("tab"), recording.mTab},
                    {QStringLiteral("controller_index"), recording.mControllerIndex},
                    {QStringLiteral("active"), recording.mActive},
                    {QStringLiteral("write_only"), recording.mWriteOnly}};
  if (const DB_Address_Sub_Group* const group = database.mAddresses.subGroup(recording.mAddressKey)) {
    entry.insert(QStringLiteral("address"), database.mAddresses.addressOf(*group).toString());
    entry.insert(QStringLiteral("address_name"), group->mName);
  }
  if (const QString name = controllerName(database, recording.mControllerIndex); !name.isEmpty()) {
    entry.insert(QStringLiteral("controller_name"), name);
  }
  addTrigger(entry, recording);
  if (const QString faults = faultsOf(database, recording); !faults.isEmpty()) {
    entry.insert(QStringLiteral("fault"), faults);
  }
  return entry;
}

MCP_Result getRecordings(MCP_Call& call) {
  const DB_Statistic& statistic = call.database().mStatistic;
  QJsonArray entries;
  for (int i = 0; i < static_cast<int>(statistic.mRecordings.size()); ++i) {
    entries.append(entryOf(call.database(), i));
  }
  const qsizetype faulty =
      std::ranges::count_if(entries, [](const auto& one) { return one.toObject().contains(QStringLiteral("fault")); });
  if (faulty > 0) {
    call.warn(QStringLiteral("Eintraege mit Fehlern (fault): %1.").arg(faulty));
  }
  if (!statistic.mActive) {
    call.warn(QStringLiteral("Die Aufzeichnung ist im Projekt als Ganzes abgeschaltet."));
  }
  return MCP_Result::done({{QStringLiteral("recordings"), entries},
                           {QStringLiteral("count"), entries.size()},
                           {QStringLiteral("keep_days"), statistic.mKeepDays}});
}

MCP_Result refusal(const MCP_Call& call) {
  return call.studio().isRecordingDialogOpen()
             ? MCP_Result::failed(
                   QStringLiteral("Der Dialog \"Aufzeichnung\" ist geoeffnet - bitte zuerst schliessen."))
             : MCP_Result::done();
}

MCP_Result indexFault(const MCP_Call& call) {
  const int index = call.integer("index");
  const auto count = static_cast<int>(recordingsOf(call).size());
  return index >= 0 && index < count
             ? MCP_Result::done()
             : MCP_Result::failed(
                   QStringLiteral("Index ausserhalb des gueltigen Bereichs: %1 (Anzahl: %2)").arg(index).arg(count));
}

MCP_Result takeController(const MCP_Call& call, Recording& recording) {
  const int number = call.integer("controller_index");
  if (!Statistic_Edits::hasController(call.database(), number)) {
    QStringList known{QStringLiteral("0")};
    for (const DB_Controller& controller : call.database().mProject.mControllers) {
      known.append(QString::number(controller.mNumber));
    }
    return MCP_Result::failed(
        QStringLiteral("controller_index %1 steht nicht in der Steuerungsliste des Projekts, erlaubt: %2")
            .arg(QString::number(number), known.join(QStringLiteral(", "))));
  }
  recording.mControllerIndex = number;
  return MCP_Result::done();
}

/// A unit without an interval asks for one of it, where the old interval does not fit.
void takeUnit(const MCP_Call& call, const Statistic_Words::Unit& unit, Recording& recording) {
  recording.mTriggerTimeType = unit.mValue;
  if (!call.has("trigger_time_secs") &&
      (recording.mTriggerTimeSecs < 1 || recording.mTriggerTimeSecs % unit.mSeconds != 0)) {
    recording.mTriggerTimeSecs = unit.mSeconds;
  }
}

MCP_Result takeInterval(const MCP_Call& call, Recording& recording) {
  if (call.has("trigger_time_secs")) {
    recording.mTriggerTimeSecs = call.integer("trigger_time_secs");
  }
  if (call.has("trigger_time_type")) {
    const Statistic_Words::Unit* const unit = Statistic_Words::unit(call.text("trigger_time_type"));
    if (!unit) {
      return MCP_Result::failed(QStringLiteral("trigger_time_type '%1' unbekannt, erlaubt: %2")
                                    .arg(call.text("trigger_time_type"), Statistic_Words::unitKeys()));
    }
    takeUnit(call, *unit, recording);
  }
  const Statistic_Words::Unit* const unit = Statistic_Words::unit(recording.mTriggerTimeType);
  const bool isGiven = call.has("trigger_time_secs") || call.has("trigger_time_type");
  if (isGiven && unit && recording.mTriggerTimeSecs % unit->mSeconds != 0) {
    return MCP_Result::failed(
        QStringLiteral("trigger_time_secs %1 ist kein Vielfaches von %2: die Angabe ist immer in Sekunden, auch mit "
                       "trigger_time_type '%3'")
            .arg(recording.mTriggerTimeSecs)
            .arg(unit->mSeconds)
            .arg(QLatin1String(unit->mKey)));
  }
  return MCP_Result::done();
}

void warnOfIdle(MCP_Call& call, const Recording& recording) {
  if (call.has("trigger_value") && recording.mTriggerType != Recording::cOnChange) {
    call.warn(QStringLiteral("trigger_value wirkt nur mit trigger_type 'change'."));
  }
  const bool hasInterval = call.has("trigger_time_secs") || call.has("trigger_time_type");
  if (hasInterval && recording.mTriggerType != Recording::cPeriodically) {
    call.warn(QStringLiteral("trigger_time_type und trigger_time_secs wirken nur mit trigger_type 'time'."));
  }
}

MCP_Result takeTrigger(MCP_Call& call, Recording& recording) {
  if (call.has("trigger_type")) {
    const Statistic_Words::Word* const trigger = Statistic_Words::trigger(call.text("trigger_type"));
    if (!trigger) {
      return MCP_Result::failed(QStringLiteral("trigger_type '%1' unbekannt, erlaubt: %2")
                                    .arg(call.text("trigger_type"), Statistic_Words::triggerKeys()));
    }
    recording.mTriggerType = trigger->mValue;
  }
  if (recording.mTriggerType == Recording::cPeriodically && recording.mTriggerTimeSecs < 1) {
    recording.mTriggerTimeSecs = Statistic_Edits::cUsualSeconds;
  }
  recording.mTriggerValue = call.number("trigger_value", recording.mTriggerValue);
  MCP_Result result = takeInterval(call, recording);
  if (result) {
    warnOfIdle(call, recording);
  }
  return result;
}

/// Of the arguments those that are there.
MCP_Result take(MCP_Call& call, Recording& recording) {
  if (call.has("address")) {
    const auto group = MCP_Lookup::groupAddress(call, call.text("address"));
    if (!group) {
      return group.mFailure;
    }
    recording.mAddressKey = group->mKey;
  }
  if (call.has("controller_index")) {
    if (MCP_Result controller = takeController(call, recording); !controller) {
      return controller;
    }
  }
  recording.mTab = call.integer("tab", recording.mTab);
  recording.mActive = call.flag("active", recording.mActive);
  recording.mWriteOnly = call.flag("write_only", recording.mWriteOnly);
  recording.mName = call.text("name", recording.mName);
  return takeTrigger(call, recording);
}

QJsonObject answerOf(const MCP_Call& call, int index) {
  QJsonObject answer = entryOf(call.database(), index);
  answer.insert(QStringLiteral("count"), static_cast<int>(recordingsOf(call).size()));
  answer.insert(QStringLiteral("hint"),
                QStringLiteral("Wirkt auf der Steuerung erst nach write_project_to_controller."));
  return answer;
}

MCP_Result addRecording(MCP_Call& call) {
  Recording recording;
  MCP_Result result = refusal(call);
  if (result) {
    result = take(call, recording);
  }
  if (result) {
    result = MCP_Result::of(Statistic_Edits::add(call.session(), recording));
  }
  return result ? MCP_Result::done(answerOf(call, static_cast<int>(recordingsOf(call).size()) - 1)) : result;
}

MCP_Result updateRecording(MCP_Call& call) {
  MCP_Result result = refusal(call);
  if (result) {
    result = indexFault(call);
  }
  if (!result) {
    return result;
  }
  const int index = call.integer("index");
  Recording recording = recordingsOf(call)[static_cast<size_t>(index)];
  result = take(call, recording);
  if (result) {
    result = MCP_Result::of(Statistic_Edits::change(call.session(), index, recording));
  }
  return result ? MCP_Result::done(answerOf(call, index)) : result;
}

MCP_Result deleteRecording(MCP_Call& call) {
  MCP_Result result = refusal(call);
  if (result) {
    result = indexFault(call);
  }
  if (!result) {
    return result;
  }
  const int index = call.integer("index");
  QJsonObject answer = answerOf(call, index);
  result = MCP_Result::of(Statistic_Edits::remove(call.session(), {index}));
  answer.insert(QStringLiteral("deleted"), true);
  answer.insert(QStringLiteral("count"), static_cast<int>(recordingsOf(call).size()));
  return result ? MCP_Result::done(answer) : result;
}

/// What a recording is made of, as both tools take it.
std::vector<MCP_Parameter> members() {
  using P = MCP_Parameter;
  return {
      P::text("address", "Gruppenadresse \"haupt/mittel/unter\", z.B. \"1/2/3\""),
      P::integer("controller_index", "Nummer der aufzeichnenden Steuerung aus get_controller_list, 0 = Hauptsteuerung"),
      P::text("trigger_type", "change = bei Aenderung (Vorgabe), telegram = bei jedem Telegramm, time = zyklisch"),
      P::number("trigger_value", "Mindestaenderung bei change, ab 0; 0 = jede Aenderung (Vorgabe)")
          .within(0, Statistic_Edits::cMostValue),
      P::text("trigger_time_type", "Zeiteinheit der Anzeige bei time: seconds (Vorgabe), minutes, hours, days"),
      P::integer("trigger_time_secs", "Abstand bei time, immer in Sekunden (1-31536000, Vorgabe 60)")
          .within(1, Statistic_Edits::cMostSeconds),
      P::integer("tab", "Gruppe in der Anzeige (0-99, Vorgabe 0)").within(0, Statistic_Edits::cMostTab),
      P::flag("active", "false = angelegt, zeichnet aber nicht auf"),
      P::flag("write_only", "true = Antworten auf Leseanfragen nicht aufzeichnen (Vorgabe false)"),
      P::text("name", "Name, bis 255 Zeichen (Vorgabe: die Adresse)"),
  };
}

std::vector<MCP_Parameter> parametersOfAdd() {
  std::vector<MCP_Parameter> parameters = members();
  parameters.front() = parameters.front().required();
  std::erase_if(parameters, [](const MCP_Parameter& one) { return one.name() == u"active"; });
  return parameters;
}

MCP_Parameter index() {
  return MCP_Parameter::integer("index", "Index der Aufzeichnung aus get_statistic_recordings, ab 0").required();
}

std::vector<MCP_Parameter> parametersOfUpdate() {
  std::vector<MCP_Parameter> parameters = members();
  parameters.insert(parameters.begin(), index());
  return parameters;
}

} // namespace

std::vector<MCP_Tool> Statistic_Tools::all() {
  return {
      {QStringLiteral("get_statistic_recordings"),
       QStringLiteral("Listet die Aufzeichnungen des Projekts (Menue Aufzeichnung): je Eintrag Name, KNX-Adresse, "
                      "Gruppe, Ausloeser und - im Steuerungsverbund - die aufzeichnende Steuerung (controller_index). "
                      "Eine Aufzeichnung laeuft immer auf genau einer Steuerung; controller_index 0 ist die "
                      "Hauptsteuerung. Der index je Eintrag wird fuer update_statistic_recording und "
                      "delete_statistic_recording gebraucht und verschiebt sich nach dem Loeschen."),
       {},
       getRecordings,
       {}},
      {QStringLiteral("add_statistic_recording"),
       QStringLiteral("Legt eine Aufzeichnung an. Pflicht ist address; ohne name wird die Adresse eingetragen. Gehoert "
                      "zu den Projektdaten - wirkt auf der Steuerung erst nach write_project_to_controller."),
       parametersOfAdd(), addRecording, QStringLiteral("Aufzeichnung hinzufügen")},
      {QStringLiteral("update_statistic_recording"),
       QStringLiteral("Aendert eine vorhandene Aufzeichnung. Nur die angegebenen Felder werden angefasst - so laesst "
                      "sich z.B. allein die aufzeichnende Steuerung umstellen. index kommt aus "
                      "get_statistic_recordings."),
       parametersOfUpdate(), updateRecording, QStringLiteral("Aufzeichnung ändern")},
      {QStringLiteral("delete_statistic_recording"),
       QStringLiteral("Entfernt eine Aufzeichnung aus dem Projekt. Die bereits aufgezeichneten Werte in der Datenbank "
                      "der Steuerung bleiben davon unberuehrt."),
       {index()},
       deleteRecording,
       QStringLiteral("Aufzeichnung löschen")},
  };
}
