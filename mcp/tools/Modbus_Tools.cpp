#include "mcp/tools/Modbus_Tools.h"

#include "fb/model/FB_Modbus_Edits.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Members.h"
#include "mcp/tools/Modbus_Tools_Connection.h"
#include "mcp/tools/Modbus_Tools_Register.h"

#include <QJsonArray>

#include <algorithm>

namespace {

using Modbus_Tools_Connection::Block;
using Modbus_Tools_Connection::guid;
using Modbus_Tools_Connection::master;

constexpr int cMostLimit = 1000;
constexpr qsizetype cNamed = 5;

MCP_Result getConfig(MCP_Call& call) {
  const Block block = master(call);
  if (!block) {
    return block.mFailure;
  }
  const int offset = call.integer("offset");
  const int limit = call.integer("limit", Modbus_Tools_Register::cUsualLimit);
  const auto total = static_cast<int>(block->mModbusRegisters.size());
  const QJsonArray registers = Modbus_Tools_Register::list(call.database().mAddresses, *block, offset, limit);
  QJsonObject answer = Modbus_Tools_Connection::config(*block);
  answer.insert(QStringLiteral("registers"), registers);
  answer.insert(QStringLiteral("offset"), offset);
  answer.insert(QStringLiteral("count"), registers.size());
  answer.insert(QStringLiteral("total"), total);
  const qsizetype end = offset + registers.size();
  answer.insert(QStringLiteral("truncated"), !registers.isEmpty() && end < total);
  if (!registers.isEmpty() && end < total) {
    answer.insert(QStringLiteral("hint"), QStringLiteral("Weitere Register mit offset=%1.").arg(end));
  } else if (registers.isEmpty() && total > 0) {
    answer.insert(QStringLiteral("hint"), QStringLiteral("offset liegt hinter dem letzten Register."));
  }
  Modbus_Tools_Connection::warnOf(call, *block);
  return MCP_Result::done(answer);
}

MCP_Result indexFault(int index, const DB_FB_Control& block) {
  const auto count = static_cast<int>(block.mModbusRegisters.size());
  if (index >= 0 && index < count) {
    return MCP_Result::done();
  }
  return MCP_Result::failed(count > 0 ? QStringLiteral("index ausserhalb der Liste (0..%1)").arg(count - 1)
                                      : QStringLiteral("Index ausserhalb des gueltigen Bereichs: %1 (Anzahl: %2)")
                                            .arg(QString::number(index), QString::number(count)));
}

void warnOf(MCP_Call& call, const QStringList& warnings) {
  for (const QString& text : warnings.first(std::min(warnings.size(), cNamed))) {
    call.warn(text);
  }
  if (warnings.size() > cNamed) {
    call.warn(QStringLiteral("Und %1 weitere Hinweise.").arg(warnings.size() - cNamed));
  }
}

void warnOfLost(MCP_Call& call, const DB_FB_Control& before, const DB_FB_Control& after) {
  const QStringList lost = Modbus_Tools_Register::lostBindings(before, after);
  if (!lost.isEmpty()) {
    call.warn(QStringLiteral("Verknuepfungen verloren (%1): %2%3.")
                  .arg(QString::number(lost.size()),
                       lost.first(std::min(lost.size(), cNamed)).join(QStringLiteral(", ")),
                       lost.size() > cNamed ? QStringLiteral(" ...") : QString()));
  }
}

QJsonObject answerOf(const DB_FB_Control& block) {
  return {{QStringLiteral("fb_guid"), MCP_Lookup::text(block.mGuid)},
          {QStringLiteral("page_guid"), MCP_Lookup::text(block.mPageGuid)},
          {QStringLiteral("total"), static_cast<int>(block.mModbusRegisters.size())}};
}

/// The frame of what changes registers: `edit` gets a copy of the block as it is and answers the edit's result.
template <class Edit>
MCP_Result change(MCP_Call& call, Edit&& edit) {
  const Block block = master(call);
  if (!block) {
    return block.mFailure;
  }
  const DB_FB_Control before = *block;
  MCP_Result result = edit(before);
  if (!result) {
    return result;
  }
  const Block after = master(call);
  warnOfLost(call, before, *after);
  QJsonObject answer = answerOf(*after);
  for (auto member = result.mObject.begin(); member != result.mObject.end(); ++member) {
    answer.insert(member.key(), member.value());
  }
  return MCP_Result::done(answer);
}

MCP_Members registerMembers() {
  std::vector<MCP_Parameter> members = Modbus_Tools_Register::members();
  members.front() = members.front().required();
  return MCP_Members(std::move(members));
}

MCP_Result setRegisters(MCP_Call& call) {
  return change(call, [&call](const DB_FB_Control& before) {
    MCP_Members::Entries entries = registerMembers().of(call, "registers");
    if (!entries) {
      return entries.mFailure;
    }
    FB_Modbus_Edits::Registers registers;
    QStringList warnings;
    for (const MCP_Call& entry : entries.mEntries) {
      const QString place = MCP_Members::place("registers", static_cast<qsizetype>(registers.size()));
      QStringList found;
      const MCP_Result taken = Modbus_Tools_Register::take(entry, registers.emplace_back(), found);
      if (!taken) {
        return MCP_Result::failed(place + taken.mObject.value(QStringLiteral("error")).toString());
      }
      for (const QString& text : std::as_const(found)) {
        warnings.append(place + text);
      }
    }
    warnOf(call, warnings);
    const Edit_Result edit = FB_Modbus_Edits::setRegisters(call.session(), before.mGuid, registers);
    if (!edit) {
      return MCP_Result::failed(edit.mError);
    }
    constexpr int cLimit = Modbus_Tools_Register::cUsualLimit;
    const QJsonArray list = Modbus_Tools_Register::list(call.database().mAddresses, *master(call), 0, cLimit);
    QJsonObject answer{{QStringLiteral("registers"), list}, {QStringLiteral("count"), list.size()}};
    if (registers.size() > cLimit) {
      answer.insert(QStringLiteral("truncated"), true);
      answer.insert(QStringLiteral("hint"),
                    QStringLiteral("Weitere Register mit get_modbus_master_config, offset=%1.").arg(cLimit));
    }
    return MCP_Result::done(answer);
  });
}

MCP_Result addRegister(MCP_Call& call) {
  return change(call, [&call](const DB_FB_Control& before) {
    DB_Modbus_Register item;
    QStringList warnings;
    if (MCP_Result taken = Modbus_Tools_Register::take(call, item, warnings); !taken) {
      return taken;
    }
    if (const Edit_Result edit = FB_Modbus_Edits::addRegister(call.session(), before.mGuid, item); !edit) {
      return MCP_Result::failed(edit.mError);
    }
    warnOf(call, warnings);
    const auto index = static_cast<int>(before.mModbusRegisters.size());
    return MCP_Result::done(
        {{QStringLiteral("register"), Modbus_Tools_Register::entry(call.database().mAddresses, *master(call), index)}});
  });
}

MCP_Result updateRegister(MCP_Call& call) {
  return change(call, [&call](const DB_FB_Control& before) {
    const int index = call.integer("index");
    if (MCP_Result fault = indexFault(index, before); !fault) {
      return fault;
    }
    DB_Modbus_Register item = before.mModbusRegisters[static_cast<size_t>(index)];
    QStringList warnings;
    if (MCP_Result taken = Modbus_Tools_Register::take(call, item, warnings); !taken) {
      return taken;
    }
    if (const Edit_Result edit = FB_Modbus_Edits::updateRegister(call.session(), before.mGuid, index, item); !edit) {
      return MCP_Result::failed(edit.mError);
    }
    warnOf(call, warnings);
    return MCP_Result::done(
        {{QStringLiteral("register"), Modbus_Tools_Register::entry(call.database().mAddresses, *master(call), index)}});
  });
}

MCP_Result deleteRegister(MCP_Call& call) {
  return change(call, [&call](const DB_FB_Control& before) {
    const int index = call.integer("index");
    if (MCP_Result fault = indexFault(index, before); !fault) {
      return fault;
    }
    return MCP_Result::of(
        FB_Modbus_Edits::removeRegisters(call.session(), before.mGuid, {index}),
        {{QStringLiteral("deleted"), Modbus_Tools_Register::entry(call.database().mAddresses, before, index)}});
  });
}

MCP_Parameter index() {
  return MCP_Parameter::integer("index", "Index des Registers aus get_modbus_master_config, ab 0").required();
}

std::vector<MCP_Parameter> parametersOfAdd() {
  std::vector<MCP_Parameter> parameters = Modbus_Tools_Register::members();
  parameters.front() = parameters.front().required();
  parameters.insert(parameters.begin(), guid());
  return parameters;
}

std::vector<MCP_Parameter> parametersOfUpdate() {
  std::vector<MCP_Parameter> parameters = Modbus_Tools_Register::members();
  std::erase_if(parameters, [](const MCP_Parameter& one) { return one.name() == u"update_on_change"; });
  parameters.insert(parameters.begin(), {guid(), index()});
  return parameters;
}

MCP_Tool readingTool() {
  return {QStringLiteral("get_modbus_master_config"),
          QStringLiteral("Gibt die Konfiguration eines Modbus-Master-Funktionsbausteins zurueck: Verbindungsparameter "
                         "(Slave-ID, Protokoll, IP, Port, Timeout) und Register. Bei vielen Registern (z.B. >50) "
                         "Paginierung verwenden: offset=0, limit=50 -> naechster Aufruf mit offset=50 und so weiter, "
                         "bis total erreicht ist. Je Register stehen index, alle Felder und die Anschluesse (pins) mit "
                         "io_type, io_index (fuer assign_fb_io_address und connect_fb_io) und Verknuepfung dabei."),
          {guid(), MCP_Parameter::integer("offset", "Index des ersten Registers (Vorgabe 0)").within(0, 1'000'000),
           MCP_Parameter::integer("limit", "Hoechstzahl der Register (1-1000, Vorgabe 50)").within(1, cMostLimit)},
          getConfig,
          {}};
}

MCP_Tool configTool() {
  return {QStringLiteral("set_modbus_master_config"),
          QStringLiteral("Setzt Verbindungsparameter eines Modbus-Master-FB. Alle Parameter sind optional. protocol: "
                         "0=RTU (seriell), 1=TCP. slave_id: Modbus-Slave-Adresse (1-247). ip_address/ip_port: fuer "
                         "TCP-Verbindung. commport: serieller Anschluss der Steuerung fuer RTU, z.B. "
                         "/dev/ttyONBOARD-485. Baudrate, Paritaet und Stoppbits setzt update_fb."),
          Modbus_Tools_Connection::parameters(), Modbus_Tools_Connection::set,
          QStringLiteral("Modbus-Verbindung ändern")};
}

MCP_Tool listTool() {
  return {QStringLiteral("set_modbus_master_registers"),
          QStringLiteral(
              "Ersetzt die gesamte Register-Liste eines Modbus-Master-FB. Ideal zum Konfigurieren aus einer "
              "Geraete-Dokumentation (PDF). Jedes Register-Objekt: name, address (0-basiert), function_code "
              "(3=readHolding, 4=readInput, 6=writeSingle, 16=writeMultiple, 1=readCoils, 2=readDiscrete, 5=writeCoil, "
              "15=writeCoils), datatype (bool, int16, uint16, int32, uint32, int64, uint64, float32, float64), count, "
              "byte_order, factor, offset, polling_interval, active, write_mode, update_on_change. Pflicht ist nur "
              "address; Bereiche und Vorgaben wie bei add_modbus_master_register. Register gleichen Namens oder "
              "gleicher Adresse behalten ihre Verknuepfungen."),
          {guid(),
           MCP_Parameter::object("registers", "Liste der Register-Objekte; [] loescht alle").reallyList().required()},
          setRegisters,
          QStringLiteral("Register ersetzen")};
}

} // namespace

std::vector<MCP_Tool> Modbus_Tools::all() {
  return {
      readingTool(),
      configTool(),
      listTool(),
      {QStringLiteral("add_modbus_master_register"),
       QStringLiteral(
           "Fuegt am Ende der Register-Liste eines Modbus-Master-FB ein neues Register hinzu. Tipp: datatype "
           "als String-Enum verwenden statt datatype_register+word_count+signed separat. Lesen oder "
           "Schreiben wird ueber function_code bestimmt: 1, 2, 3 und 4 lesen (Ausgang am Baustein), 5, 6, 15 "
           "und 16 schreiben (Eingang am Baustein)."),
       parametersOfAdd(), addRegister, QStringLiteral("Register einfügen")},
      {QStringLiteral("update_modbus_master_register"),
       QStringLiteral("Aktualisiert ein vorhandenes Register eines Modbus-Master-FB. Nur angegebene Felder werden "
                      "geaendert, alle anderen bleiben unveraendert. datatype (String-Enum) setzt word_count, signed "
                      "und Datentypen in einem Schritt. write_mode: 0=bei jedem Telegramm, 1=bei Aenderung, 2=zyklisch "
                      "im Intervall. Wechselt function_code zwischen Lesen und Schreiben, verliert das Register seine "
                      "Verknuepfungen."),
       parametersOfUpdate(), updateRegister, QStringLiteral("Register ändern")},
      {QStringLiteral("delete_modbus_master_register"),
       QStringLiteral("Loescht ein Register aus der Liste eines Modbus-Master-FB anhand seines Index."),
       {guid(), index()},
       deleteRegister,
       QStringLiteral("Register löschen")},
  };
}
