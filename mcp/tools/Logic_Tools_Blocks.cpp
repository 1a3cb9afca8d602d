#include "db/Address_Usage.h"
#include "db/Address_Value_Text.h"
#include "fb/model/FB_Execution_Order.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variable_Generation.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/FB_Block_Links.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/FB_Use_Json.h"
#include "mcp/tools/Logic_Tools_Parts.h"

namespace {

using Kind = DB_Address_Binding::Kind;

/// Of a type that can be inserted, else why not.
MCP_Result checkType(MCP_Call& call) {
  if (!call.has("type")) {
    return MCP_Result::failed(QStringLiteral("Parameter 'type' fehlt. list_fb_types nennt alle Typen."));
  }
  if (!FB_Types::find(call.integer("type"))) {
    return MCP_Result::failed(
        QStringLiteral("Unbekannter Bausteintyp: %1. list_fb_types nennt alle Typen.").arg(call.integer("type")));
  }
  return MCP_Result::done();
}

void warnOfNew(MCP_Call& call, const DB_FB_Page& page, const DB_FB_Control& block) {
  if (!FB_Types::find(block.mType)->mHasPins) {
    call.warn(QStringLiteral("Ein-/Ausgaenge und Parameter dieses Typs sind dem Studio nicht bekannt: der Baustein hat "
                             "hier keine und laesst sich nicht verbinden."));
  }
  FB_Json::warnOfPlace(call, page, block);
}

/// Gives the new block's pins addresses; how many came is told in `object`.
MCP_Result generateAddresses(MCP_Call& call, const QUuid& block, QJsonObject& object) {
  if (!FB_Variable_Generation::offers(call.database().mFbPages.child(block)->mType)) {
    call.warn(QStringLiteral("Fuer diesen Bausteintyp werden keine Adressen erzeugt."));
    return MCP_Result::done();
  }
  const auto generated =
      FB_Variable_Generation::generate(call.session(), {{block, FB_Variable_Generation::Conflict::Append}});
  object.insert(QStringLiteral("addresses_created"), generated.mAddresses);
  return MCP_Result::of(generated);
}

MCP_Result addBlock(MCP_Call& call) {
  const auto page = MCP_Lookup::logicPage(call, "page_guid");
  if (!page) {
    return page.mFailure;
  }
  if (MCP_Result check = checkType(call); !check) {
    return check;
  }
  const QPointF position(call.integer("x"), call.integer("y"));
  const FB_Page_Edits::Result made =
      FB_Page_Edits::create(call.session(), QUuid(page->mGuid), call.integer("type"), position);
  if (!made) {
    return MCP_Result::of(made);
  }
  QJsonObject generation;
  if (call.flag("auto_generate_addresses")) {
    if (MCP_Result generated = generateAddresses(call, made.mBlocks.first(), generation); !generated) {
      return generated;
    }
  }
  const DB_FB_Control& block = *call.database().mFbPages.child(made.mBlocks.first());
  warnOfNew(call, *page, block);
  QJsonObject object = FB_Json::withParameters(call.database().mAddresses, block);
  for (auto member = generation.constBegin(); member != generation.constEnd(); ++member) {
    object.insert(member.key(), member.value());
  }
  return MCP_Result::done(object);
}

MCP_Result deleteBlock(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "guid");
  if (!block) {
    return block.mFailure;
  }
  const Address_Usage usage(call.database());
  const QUuid guid = block->mGuid;
  QJsonObject object = FB_Json::head(*block);
  object.insert(QStringLiteral("page_guid"), MCP_Lookup::text(block->mPageGuid));
  object.insert(QStringLiteral("disconnected"), FB_Block_Links::boundPins(call.database(), usage, *block));
  const std::vector<FB_Pin_Ref> sharing = FB_Block_Links::sharingVariables(usage, *block);
  if (const Edit_Result edit = FB_Page_Edits::remove(call.session(), {guid}); !edit) {
    return MCP_Result::of(edit);
  }
  object.insert(QStringLiteral("released"), FB_Block_Links::released(call.database(), sharing));
  if (const QJsonArray elements = FB_Block_Links::elementsOf(call.database(), guid); !elements.isEmpty()) {
    object.insert(QStringLiteral("widgets"), elements);
    call.warn(QStringLiteral("%1 Bedienelement(e) verweisen noch auf den geloeschten Baustein (widgets).")
                  .arg(elements.size()));
  }
  return MCP_Result::done(object);
}

/// What was last heard of the address; nothing when that is not known.
void addValue(QJsonObject& object, const MCP_Call& call, const DB_Address_Binding& binding) {
  const Address_Value* const value = call.session().values().find(binding.mKey);
  if (!value) {
    return;
  }
  object.insert(QStringLiteral("value"), Address_Value_Text::text(binding.mDpt, *value));
  object.insert(QStringLiteral("value_time"),
                QDateTime::fromMSecsSinceEpoch(value->mTime, Qt::UTC).toString(Qt::ISODate));
  if (value->mIsStale) {
    object.insert(QStringLiteral("value_stale"), true);
  }
}

QJsonArray detailedPins(const MCP_Call& call, const Address_Usage& usage, const DB_FB_Control& block, FB_Side side,
                        qsizetype& room) {
  QJsonArray array;
  int index = 0;
  for (const DB_FB_Pin& pin : FB_Pins::pins(block, side)) {
    QJsonObject object = FB_Json::pin(call.database().mAddresses, block, side, index, FB_Json::Pins::Full);
    if (pin.mBinding.mKind != Kind::None) {
      FB_Block_Links::addOthers(object, call.database(), usage, {block.mGuid, side, index}, room);
      addValue(object, call, pin.mBinding);
    }
    array.append(object);
    ++index;
  }
  return array;
}

QJsonObject execution(const MCP_Call& call, const DB_FB_Control& block) {
  QJsonObject object{{QStringLiteral("disabled"), block.mDisabled},
                     {QStringLiteral("execution_number"), FB_Execution_Order::ofBlock(call.database(), block.mGuid)},
                     {QStringLiteral("start_delay_s"), block.mStartDelay},
                     {QStringLiteral("update_at_start"), block.mUpdateAtStart},
                     {QStringLiteral("update_cyclic"), block.mUpdateCyclic}};
  if (block.mDisableAddress.mKind != Kind::None) {
    QJsonObject address = FB_Json::binding(call.database().mAddresses, block.mDisableAddress);
    addValue(address, call, block.mDisableAddress);
    object.insert(QStringLiteral("disable_address"), address);
  }
  return object;
}

MCP_Result blockDetail(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "guid");
  if (!block) {
    return block.mFailure;
  }
  const Address_Usage usage(call.database());
  QJsonObject object = FB_Json::withParameters(call.database().mAddresses, *block);
  object.insert(QStringLiteral("page"), call.database().mFbPages.page(block->mPageGuid)->mCaption);
  object.insert(QStringLiteral("name"), block->mName);
  object.insert(QStringLiteral("title"), block->mTitle);
  qsizetype room = FB_Block_Links::cMostInAll;
  object.insert(QStringLiteral("inputs"), detailedPins(call, usage, *block, FB_Side::Input, room));
  object.insert(QStringLiteral("outputs"), detailedPins(call, usage, *block, FB_Side::Output, room));
  object.insert(QStringLiteral("execution"), execution(call, *block));
  if (!block->mModbusRegisters.empty()) {
    object.insert(QStringLiteral("modbus_register_count"), static_cast<qint64>(block->mModbusRegisters.size()));
  }
  if (const QString missing = FB_Pins::missingPins(*block); !missing.isEmpty()) {
    call.warn(missing);
  }
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Logic_Tools::blocks() {
  return {
      {QStringLiteral("add_function_block"),
       QStringLiteral(
           "Fuegt einen Funktionsbaustein zu einer Programmseite hinzu. WICHTIG: Rufe zuerst list_fb_types auf, um den "
           "korrekten numerischen Typ zu ermitteln. Beispiele: 0x077d=1917=Modbus Master, 0x0032=50=AND, "
           "0x0033=51=OR, 0x0384=900=Lua-Script. Mit auto_generate_addresses=true entstehen zugleich Gruppenadressen "
           "fuer alle Ein- und Ausgaenge. Die Antwort nennt guid, Ein-/Ausgaenge und Parameter mit ihrem Index."),
       {MCP_Parameter::text("page_guid", "GUID der Programmseite (list_fb_pages)").required(),
        MCP_Parameter::integer("type", "Typwert als Dezimalzahl (list_fb_types); ohne ihn schlaegt der Aufruf fehl"),
        MCP_Parameter::integer("x", "Linker Rand in Pixeln, am besten ein Vielfaches von 16").required(),
        MCP_Parameter::integer("y", "Oberer Rand in Pixeln, am besten ein Vielfaches von 16").required(),
        MCP_Parameter::flag("auto_generate_addresses", "Gruppenadressen fuer alle Pins erzeugen. Standard: false")},
       addBlock,
       QStringLiteral("Baustein einfügen")},
      {QStringLiteral("delete_function_block"),
       QStringLiteral("Loescht einen Funktionsbaustein anhand seiner GUID."),
       {MCP_Parameter::text("guid", "GUID des Funktionsbausteins").required()},
       deleteBlock,
       QStringLiteral("Baustein löschen")},
      {QStringLiteral("get_fb_detail"),
       QStringLiteral("Gibt vollstaendige Daten eines Funktionsbausteins zurueck: Parameter, Eingaenge und Ausgaenge "
                      "mit Adressen und Verbindungsinformationen."),
       {MCP_Parameter::text("guid", "GUID des Funktionsbausteins").required()},
       blockDetail,
       {}},
  };
}
