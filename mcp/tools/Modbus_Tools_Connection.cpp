#include "mcp/tools/Modbus_Tools_Connection.h"

#include "db/Controller_Edits.h"
#include "db/DB_Text.h"
#include "fb/model/FB_Modbus_Words.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "fb/model/families/FB_Modbus_Declaration.h"

namespace {

using namespace FB_Modbus_Declaration;

constexpr qsizetype cTextLimit = 255;

/// A member of the connection, and which parameter of the block it is.
struct Setting {
  const char* mName = "";
  int mParameter = 0;
  const char* mDescription = "";
  bool mIsText = false;
};

constexpr Setting cSettings[] = {
    {"slave_id", cSlaveId, "Modbus-Slave-Adresse, bei TCP die Unit-ID (1-247)"},
    {"protocol", cProtocol, "0=RTU (seriell), 1=TCP"},
    {"ip_address", cIpAddress, "IP-Adresse oder Rechnername, nur TCP", true},
    {"ip_port", cIpPort, "TCP-Port (1-65535), ueblich 502"},
    {"timeout", cTimeout, "Wartezeit auf die Antwort in ms (10-60000)"},
    {"address_offset", cAddressOffset, "wird zu jeder Registeradresse gezaehlt (-65535 bis 65535)"},
    {"telegram_sleeptime", cSleepTime, "Pause zwischen zwei Telegrammen in ms (0-10000)"},
    {"commport", cCommPort, "serielle Schnittstelle der Steuerung, nur RTU", true},
};

MCP_Result textFault(const MCP_Call& call) {
  const QString host = call.text("ip_address").trimmed();
  if (!host.isEmpty() && (!Controller_Edits::isAddress(host) || host.contains(u':'))) {
    return MCP_Result::failed(
        QStringLiteral("ip_address '%1' ist weder IP-Adresse noch Rechnername; der Port gehoert nach ip_port")
            .arg(host.left(cTextLimit)));
  }
  const QString port = call.text("commport");
  return port.size() > cTextLimit || DB_Text::singleLine(port) != port.trimmed()
             ? MCP_Result::failed(
                   QStringLiteral("commport ist keine Schnittstelle: eine Zeile mit hoechstens %1 Zeichen "
                                  "erwartet")
                       .arg(cTextLimit))
             : MCP_Result::done();
}

} // namespace

MCP_Parameter Modbus_Tools_Connection::guid() {
  return MCP_Parameter::text("fb_guid", "GUID des Modbus-Master-Bausteins").required();
}

Modbus_Tools_Connection::Block Modbus_Tools_Connection::master(const MCP_Call& call) {
  Block block = MCP_Lookup::block(call, "fb_guid");
  if (block && block->mType != FB_Modbus_Words::cMaster) {
    const QString type = FB_Types::name(block->mType);
    return {nullptr,
            MCP_Result::failed(QStringLiteral("Der Baustein ist kein Modbus Master, sondern \"%1\" (Typ %2): %3")
                                   .arg(type, QString::number(block->mType), call.text("fb_guid")))};
  }
  return block;
}

std::vector<MCP_Parameter> Modbus_Tools_Connection::parameters() {
  std::vector<MCP_Parameter> parameters{guid()};
  for (const Setting& setting : cSettings) {
    const FB_Parameter& declared = cParameters[setting.mParameter];
    const bool isChoice = !declared.mChoices.empty();
    parameters.push_back(setting.mIsText
                             ? MCP_Parameter::text(setting.mName, setting.mDescription)
                             : MCP_Parameter::integer(setting.mName, setting.mDescription)
                                   .within(isChoice ? cRtu : declared.mMinimum, isChoice ? cTcp : declared.mMaximum));
  }
  return parameters;
}

QJsonObject Modbus_Tools_Connection::config(const DB_FB_Control& block) {
  QJsonObject config{{QStringLiteral("fb_guid"), MCP_Lookup::text(block.mGuid)},
                     {QStringLiteral("page_guid"), MCP_Lookup::text(block.mPageGuid)}};
  if (!block.ownTitle().isEmpty()) {
    config.insert(QStringLiteral("title"), block.ownTitle());
  }
  for (const Setting& setting : cSettings) {
    const QString value = block.mParams.value(setting.mParameter);
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    config.insert(QLatin1String(setting.mName), isNumber && !setting.mIsText ? QJsonValue(number) : QJsonValue(value));
  }
  return config;
}

void Modbus_Tools_Connection::warnOf(MCP_Call& call, const DB_FB_Control& block) {
  const bool isTcp = block.mParams.value(cProtocol).toInt() == cTcp;
  if (isTcp && block.mParams.value(cIpAddress).isEmpty()) {
    call.warn(QStringLiteral("ip_address ist leer - ohne sie erreicht der Baustein das Geraet nicht."));
  }
  if (!isTcp && block.mParams.value(cCommPort).isEmpty()) {
    call.warn(QStringLiteral("commport ist leer - ohne sie erreicht der Baustein das Geraet nicht."));
  }
}

MCP_Result Modbus_Tools_Connection::set(MCP_Call& call) {
  const Block block = master(call);
  if (!block) {
    return block.mFailure;
  }
  MCP_Result result = textFault(call);
  bool isGiven = false;
  for (const Setting& setting : cSettings) {
    if (result && call.has(setting.mName)) {
      const QString value =
          setting.mIsText ? call.text(setting.mName).trimmed() : QString::number(call.integer(setting.mName));
      result = MCP_Result::of(FB_Page_Edits::setParameter(call.session(), block->mGuid, setting.mParameter, value));
      isGiven = true;
    }
  }
  if (!result) {
    return result;
  }
  if (!isGiven) {
    call.warn(QStringLiteral("Kein Parameter angegeben, nichts geaendert."));
  }
  const Block changed = master(call);
  warnOf(call, *changed);
  return MCP_Result::done(config(*changed));
}
