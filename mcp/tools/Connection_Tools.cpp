#include "mcp/tools/Connection_Tools.h"

#include "db/Connection_Edits.h"
#include "db/ProjectDatabase.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Studio.h"
#include "mcp/tools/Connection_Runtime.h"
#include "net/Controller_Link.h"

#include <algorithm>

namespace {

using Item = DB_Connections::ITEM;

QJsonObject toJson(const DB_Connections& connections, int index) {
  const Item& item = connections.mItems[static_cast<size_t>(index)];
  QJsonObject object{{QStringLiteral("index"), index},
                     {QStringLiteral("name"), item.mName},
                     {QStringLiteral("vpn"), item.isRelay()},
                     {QStringLiteral("user"), item.mUser},
                     {QStringLiteral("password_set"), !item.mPassword.isEmpty()},
                     {QStringLiteral("selected"), index == connections.mSelected}};
  const auto put = [&object](const char* name, const QString& text) {
    if (!text.isEmpty()) {
      object.insert(QLatin1String(name), text);
    }
  };
  put("ip", item.mAddress);
  put("vpn_email", item.mRelayMail);
  put("vpn_dns", item.mRelayDns);
  put("description", item.mDescription);
  put("serial_number", item.mSerialNumber);
  return object;
}

int countOf(const DB_Connections& connections) {
  return static_cast<int>(connections.mItems.size());
}

MCP_Result noSuch(const MCP_Call& call, int index) {
  return MCP_Result::failed(QStringLiteral("Index ausserhalb des gueltigen Bereichs: %1 (Anzahl: %2)")
                                .arg(index)
                                .arg(countOf(call.database().mConnections)));
}

bool has(const MCP_Call& call, int index) {
  return index >= 0 && index < countOf(call.database().mConnections);
}

/// The link stands, or is being dialled, with this connection.
bool isInUse(const MCP_Call& call, const Item& item) {
  Controller_Link* const link = call.studio().link();
  if (!link || link->state() == Controller_Link::State::Offline) {
    return false;
  }
  const Item& used = link->client().connection();
  return used.mKind == item.mKind && used.mName == item.mName &&
         Connection_Runtime::target(used) == Connection_Runtime::target(item);
}

/// The link stands, but not with the selected connection as it is now.
bool isElsewhere(const MCP_Call& call) {
  const Controller_Link* const link = call.studio().link();
  const DB_Connections& connections = call.database().mConnections;
  return link && link->isOnline() && has(call, connections.mSelected) &&
         !isInUse(call, connections.mItems[static_cast<size_t>(connections.mSelected)]);
}

void noteUse(QJsonObject& object, bool isUsed) {
  if (isUsed) {
    object.insert(
        QStringLiteral("note"),
        QStringLiteral("Die bestehende Verbindung zur Steuerung bleibt, wie sie aufgebaut wurde. Die Aenderung "
                       "gilt, sobald connect_runtime sie trennt und neu aufbaut."));
  }
}

/// Of a changed connection, with where the list stands now.
QJsonObject answer(const MCP_Call& call, int index) {
  const DB_Connections& connections = call.database().mConnections;
  QJsonObject object = toJson(connections, index);
  object.insert(QStringLiteral("count"), countOf(connections));
  object.insert(QStringLiteral("selected_index"), connections.mSelected);
  return object;
}

void warnOfName(MCP_Call& call, int index) {
  const std::vector<Item>& items = call.database().mConnections.mItems;
  const QString name = items[static_cast<size_t>(index)].mName;
  const auto isSame = [&name](const Item& item) { return item.mName.compare(name, Qt::CaseInsensitive) == 0; };
  if (std::ranges::count_if(items, isSame) > 1) {
    call.warn(QStringLiteral("Mehrere Verbindungen heissen '%1': ueber den Namen ist sie nicht waehlbar, nur ueber den "
                             "Index.")
                  .arg(name));
  }
}

MCP_Result listConnections(MCP_Call& call) {
  const DB_Connections& connections = call.database().mConnections;
  QJsonArray list;
  for (int index = 0; index < countOf(connections); ++index) {
    list.append(toJson(connections, index));
  }
  const Controller_Link* const link = call.studio().link();
  QJsonObject object{{QStringLiteral("connections"), list},
                     {QStringLiteral("count"), countOf(connections)},
                     {QStringLiteral("selected_index"), connections.mSelected},
                     {QStringLiteral("connected"), link && link->isOnline()}};
  if (list.isEmpty()) {
    object.insert(QStringLiteral("hint"),
                  QStringLiteral("Keine Verbindung hinterlegt: zuerst add_connection aufrufen."));
  }
  return MCP_Result::done(object);
}

/// The fields that are named; the others stay.
void take(const MCP_Call& call, Item& item) {
  const auto text = [&call](const char* name, QString& field) { field = call.text(name, field); };
  text("name", item.mName);
  text("ip", item.mAddress);
  text("user", item.mUser);
  text("password", item.mPassword);
  text("vpn_email", item.mRelayMail);
  text("vpn_password", item.mRelayPassword);
  text("vpn_dns", item.mRelayDns);
  if (call.has("vpn")) {
    item.mKind = call.flag("vpn") ? Item::cRelay : 0;
  }
}

MCP_Result addConnection(MCP_Call& call) {
  Item item = Connection_Edits::proposal(call.database().mConnections);
  take(call, item);
  const Edit_Result added = Connection_Edits::add(call.session(), item, call.flag("set_default", true));
  if (!added) {
    return MCP_Result::failed(added.mError);
  }
  const int index = countOf(call.database().mConnections) - 1;
  warnOfName(call, index);
  QJsonObject object = answer(call, index);
  noteUse(object, call.database().mConnections.mSelected == index && isElsewhere(call));
  return MCP_Result::done(object);
}

MCP_Result updateConnection(MCP_Call& call) {
  const int index = call.integer("index");
  if (!has(call, index)) {
    return noSuch(call, index);
  }
  const Item before = call.database().mConnections.mItems[static_cast<size_t>(index)];
  Item item = before;
  take(call, item);
  if (const Edit_Result changed = Connection_Edits::change(call.session(), index, item); !changed) {
    return MCP_Result::failed(changed.mError);
  }
  if (call.flag("set_default")) {
    if (const Edit_Result selected = Connection_Edits::select(call.session(), index); !selected) {
      return MCP_Result::failed(selected.mError);
    }
  } else if (call.has("set_default") && call.database().mConnections.mSelected == index) {
    call.warn(QStringLiteral("Die Verbindung bleibt ausgewaehlt; eine andere waehlt select_connection."));
  }
  warnOfName(call, index);
  QJsonObject object = answer(call, index);
  noteUse(object, isInUse(call, before) || (call.flag("set_default") && isElsewhere(call)));
  return MCP_Result::done(object);
}

MCP_Result deleteConnection(MCP_Call& call) {
  const int index = call.integer("index");
  if (!has(call, index)) {
    return noSuch(call, index);
  }
  const DB_Connections& connections = call.database().mConnections;
  const Item item = connections.mItems[static_cast<size_t>(index)];
  if (const Edit_Result removed = Connection_Edits::remove(call.session(), {index}); !removed) {
    return MCP_Result::failed(removed.mError);
  }
  QJsonObject object{{QStringLiteral("index"), index},
                     {QStringLiteral("name"), item.mName},
                     {QStringLiteral("count"), countOf(connections)},
                     {QStringLiteral("selected_index"), connections.mSelected}};
  if (has(call, connections.mSelected)) {
    object.insert(QStringLiteral("selected_name"),
                  connections.mItems[static_cast<size_t>(connections.mSelected)].mName);
  } else {
    object.insert(QStringLiteral("hint"),
                  QStringLiteral("Keine Verbindung hinterlegt: zuerst add_connection aufrufen."));
  }
  noteUse(object, isInUse(call, item));
  return MCP_Result::done(object);
}

/// Which connection the arguments name; a failure otherwise.
MCP_Result chosen(const MCP_Call& call, int& index) {
  index = call.integer("index", -1);
  if (call.has("index") && !has(call, index)) {
    return noSuch(call, index);
  }
  if (call.has("name")) {
    QString error;
    const int named = call.database().mConnections.findConnection(call.text("name"), &error);
    if (named < 0) {
      return MCP_Result::failed(error.isEmpty() ? QStringLiteral("Parameter 'name' ist leer") : error);
    }
    if (call.has("index") && named != index) {
      return MCP_Result::failed(
          QStringLiteral("Index %1 und Name '%2' nennen verschiedene Verbindungen").arg(index).arg(call.text("name")));
    }
    index = named;
  }
  return index < 0 ? MCP_Result::failed(QStringLiteral("Parameter 'index' oder 'name' fehlt")) : MCP_Result::done();
}

MCP_Result selectConnection(MCP_Call& call) {
  int index = -1;
  if (MCP_Result found = chosen(call, index); !found) {
    return found;
  }
  if (index != call.database().mConnections.mSelected) {
    if (const Edit_Result selected = Connection_Edits::select(call.session(), index); !selected) {
      return MCP_Result::failed(selected.mError);
    }
  }
  QJsonObject object = answer(call, index);
  noteUse(object, isElsewhere(call));
  return MCP_Result::done(object);
}

std::vector<MCP_Parameter> fields() {
  return {MCP_Parameter::text("ip", "IP-Adresse oder Rechnername der Steuerung, bei Bedarf mit ':' und Port"),
          MCP_Parameter::text("user", "Benutzer (Standard beim Anlegen: root)"),
          MCP_Parameter::text("password", "Kennwort (Standard beim Anlegen: das Werkskennwort)"),
          MCP_Parameter::flag("vpn", "true = ueber den Vermittlungsdienst (VPN), false = direkt (Standard: false)"),
          MCP_Parameter::text("vpn_email", "E-Mail des VPN-Kontos"),
          MCP_Parameter::text("vpn_password", "Kennwort des VPN-Kontos"),
          MCP_Parameter::text("vpn_dns", "DNS-Name der Steuerung beim Vermittlungsdienst"),
          MCP_Parameter::text("name", "Name der Verbindung")};
}

std::vector<MCP_Parameter> with(std::vector<MCP_Parameter> parameters, const std::vector<MCP_Parameter>& more) {
  parameters.insert(parameters.end(), more.begin(), more.end());
  return parameters;
}

MCP_Parameter indexParameter() {
  return MCP_Parameter::integer("index", "Index der Verbindung aus list_connections (0-basiert)");
}

} // namespace

std::vector<MCP_Tool> Connection_Tools::all() {
  return {
      {QStringLiteral("list_connections"),
       QStringLiteral(
           "Listet die im Projekt hinterlegten Verbindungen zur Steuerung mit Index, Name, IP beziehungsweise "
           "VPN-Mail und der Angabe, welche davon die ausgewaehlte ist. Kennwoerter werden nicht ausgegeben. "
           "Ohne Eintrag schlaegt connect_runtime fehl - dann zuerst add_connection aufrufen."),
       {},
       listConnections,
       {}},
      {QStringLiteral("add_connection"),
       QStringLiteral(
           "Legt eine Verbindung zur Steuerung an und waehlt sie aus. Entspricht dem Verbindungsassistenten des "
           "Studios. Fuer eine Verbindung im oertlichen Netz genuegt 'ip'; fuer eine VPN-Verbindung 'vpn': true "
           "und 'vpn_email'. Ohne user und password gelten die Werte, mit denen eine Steuerung ausgeliefert "
           "wird; ohne name wird ein freier Name vergeben. Gewaehlt ist sie nur mit set_default: false nicht - "
           "ausser sie ist die einzige."),
       with(fields(), {MCP_Parameter::flag("set_default", "Die neue Verbindung auswaehlen (Standard: true)")}),
       addConnection, QStringLiteral("Verbindung hinzufügen")},
      {QStringLiteral("update_connection"),
       QStringLiteral(
           "Aendert eine vorhandene Verbindung. Nicht genannte Felder bleiben unveraendert. Den Index liefert "
           "list_connections."),
       with(with({indexParameter().required()}, fields()),
            {MCP_Parameter::flag("set_default", "true = diese Verbindung auswaehlen (Standard: Auswahl bleibt)")}),
       updateConnection, QStringLiteral("Verbindung ändern")},
      {QStringLiteral("delete_connection"),
       QStringLiteral(
           "Entfernt eine Verbindung aus dem Projekt. Die Auswahl wandert dabei mit, sodass danach weiterhin "
           "eine gueltige Verbindung ausgewaehlt ist."),
       {indexParameter().required()},
       deleteConnection,
       QStringLiteral("Verbindung löschen")},
      {QStringLiteral("select_connection"),
       QStringLiteral(
           "Waehlt aus, ueber welche Verbindung connect_runtime arbeitet - entspricht \"Online -> Verbindung "
           "auswaehlen\". Wahlweise ueber den Index oder den Namen."),
       {indexParameter(), MCP_Parameter::text("name", "Name oder Adresse der Verbindung, Gross-/Kleinschreibung egal")},
       selectConnection,
       QStringLiteral("Verbindung auswählen")},
      Connection_Runtime::connectRuntime(),
  };
}
