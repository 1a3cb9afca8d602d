#include "db/ProjectDatabase.h"
#include "fb/model/FB_Block_Edits.h"
#include "fb/model/FB_Formula_Language.h"
#include "fb/model/FB_Lua_Check.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "fb/model/families/FB_Formula_Declaration.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Members.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/FB_Parameter_Json.h"
#include "mcp/tools/Logic_Tools_Parts.h"

#include <QSet>

namespace {

constexpr int cScriptType = 900;
constexpr int cScript = 0;
constexpr int cScriptInputs = 1;
constexpr int cScriptOutputs = 2;
constexpr int cScriptPins = 64;
constexpr int cFormulaInputs = 0;

/// A parameter with the text that it gets.
struct Setting {
  int mIndex = 0;
  QString mText;
};

struct Settings {
  std::vector<Setting> mSettings;
  MCP_Result mFailure;
  explicit operator bool() const { return !mFailure.mIsError; }
};

MCP_Members entry() {
  return MCP_Members({MCP_Parameter::integer("index", "Index des Parameters").required(),
                      MCP_Parameter::any("value", "Neuer Wert: Zahl, Text oder true/false").required()});
}

/// All of them checked before the first is set.
Settings settingsOf(MCP_Call& call, const DB_FB_Control& block) {
  const MCP_Members::Entries entries = entry().of(call, "params");
  if (!entries) {
    return {{}, entries.mFailure};
  }
  Settings settings;
  QSet<int> seen;
  for (const MCP_Call& one : entries.mEntries) {
    const QString place = MCP_Members::place("params", static_cast<qsizetype>(settings.mSettings.size()));
    const int index = one.integer("index");
    const QJsonValue value = one.value("value");
    if (seen.contains(index)) {
      return {{}, MCP_Result::failed(place + QStringLiteral("Parameter %1 kommt mehrfach vor").arg(index))};
    }
    seen.insert(index);
    if (!value.isString() && !value.isDouble() && !value.isBool()) {
      return {{}, MCP_Result::failed(place + QStringLiteral("'value' muss Zahl, Text oder Wahrheitswert sein"))};
    }
    const FB_Parameter_Json::Stored stored = FB_Parameter_Json::stored(block, index, value);
    if (!stored.mFault.isEmpty()) {
      return {{}, MCP_Result::failed(place + stored.mFault)};
    }
    settings.mSettings.push_back({index, stored.mText});
  }
  return settings;
}

/// A script or formula with a fault is stored, as by its editor.
void warnOfProgram(MCP_Call& call, const DB_FB_Control& block) {
  if (block.mType == cScriptType) {
    if (const FB_Lua_Check::Result check = FB_Lua_Check::check(block.mParams.value(cScript)); !check) {
      call.warn(QStringLiteral("Der Code ist gespeichert, hat aber einen Syntaxfehler in Zeile %1: %2.")
                    .arg(check.mLine)
                    .arg(check.mMessage));
    }
  }
  if (block.mType == FB_Formula_Declaration::cType.mId) {
    const QString formula = block.mParams.value(FB_Formula_Declaration::cFormulaParameter);
    const int inputs = block.mParams.value(cFormulaInputs).toInt();
    if (const FB_Formula_Language::Fault fault = FB_Formula_Language::check(formula, inputs)) {
      call.warn(QStringLiteral("Die Formel ist gespeichert, hat aber einen Fehler bei Zeichen %1: %2")
                    .arg(fault.mAt + 1)
                    .arg(fault.mText));
    }
  }
}

/// Sets them, and warns of the bindings that this takes off pins.
Edit_Result apply(MCP_Call& call, const QUuid& block, const std::vector<Setting>& settings) {
  QStringList lost;
  for (const Setting& setting : settings) {
    lost += FB_Page_Edits::lostBindings(call.session(), {block}, setting.mIndex, setting.mText);
    if (Edit_Result edit = FB_Page_Edits::setParameter(call.session(), block, setting.mIndex, setting.mText); !edit) {
      return edit;
    }
  }
  if (!settings.empty()) {
    warnOfProgram(call, *call.database().mFbPages.child(block));
  }
  if (!lost.isEmpty()) {
    call.warn(QStringLiteral("Mit den weggefallenen Pins sind Verknuepfungen geloest: %1. Rueckgaengig stellt sie "
                             "wieder her.")
                  .arg(lost.join(QStringLiteral(", "))));
  }
  return Edit_Result::done();
}

Edit_Result move(MCP_Call& call, const DB_FB_Control& block) {
  if (!call.has("x") && !call.has("y")) {
    return Edit_Result::done();
  }
  const QPointF to(call.number("x", block.mX), call.number("y", block.mY));
  return FB_Page_Edits::move(call.session(), {{block.mGuid, to}});
}

/// A comment block shows its own text, whatever is said of the caption.
Edit_Result setCommentText(MCP_Call& call, const QUuid& block) {
  if (call.has("comment_use_as_caption")) {
    call.warn(QStringLiteral("comment_use_as_caption ist bei einem Kommentar-Baustein ohne Wirkung: 'comment' ist sein "
                             "Text."));
  }
  return call.has("comment") ? FB_Page_Edits::setTitle(call.session(), block, call.text("comment"))
                             : Edit_Result::done();
}

Edit_Result setCaption(MCP_Call& call, const DB_FB_Control& block) {
  const QUuid guid = block.mGuid;
  if (block.mType == FB_Types::cComment) {
    return setCommentText(call, guid);
  }
  if (call.has("comment")) {
    if (Edit_Result edit = FB_Block_Edits::setComment(call.session(), {guid}, call.text("comment")); !edit) {
      return edit;
    }
  }
  return call.has("comment") || call.has("comment_use_as_caption")
             ? FB_Block_Edits::setCommentAsCaption(call.session(), {guid}, call.flag("comment_use_as_caption", true))
             : Edit_Result::done();
}

bool isAnythingGiven(const MCP_Call& call) {
  return !call.list("params").isEmpty() || call.has("x") || call.has("y") || call.has("comment") ||
         call.has("comment_use_as_caption");
}

MCP_Result updateBlock(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "guid");
  if (!block) {
    return block.mFailure;
  }
  const Settings settings = settingsOf(call, *block);
  if (!settings) {
    return settings.mFailure;
  }
  const QUuid guid = block->mGuid;
  Edit_Result edit = move(call, *block);
  edit = edit ? setCaption(call, *block) : edit;
  edit = edit ? apply(call, guid, settings.mSettings) : edit;
  if (!edit) {
    return MCP_Result::of(edit);
  }
  const DB_FB_Control& after = *call.database().mFbPages.child(guid);
  if (!isAnythingGiven(call)) {
    call.warn(QStringLiteral("Nichts angegeben, nichts geaendert."));
  }
  if (call.has("x") || call.has("y")) {
    FB_Json::warnOfPlace(call, *call.database().mFbPages.page(after.mPageGuid), after);
  }
  return MCP_Result::done(FB_Json::withParameters(call.database().mAddresses, after));
}

MCP_Result setScript(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "fb_guid", QStringLiteral("Lua-Script-FB nicht gefunden: %1"));
  if (!block || block->mType != cScriptType) {
    return MCP_Result::failed(QStringLiteral("Lua-Script-FB nicht gefunden: %1").arg(call.text("fb_guid")));
  }
  const QUuid guid = block->mGuid;
  std::vector<Setting> settings{{cScript, call.text("code")}};
  if (call.has("inputs")) {
    settings.push_back({cScriptInputs, QString::number(call.integer("inputs"))});
  }
  if (call.has("outputs")) {
    settings.push_back({cScriptOutputs, QString::number(call.integer("outputs"))});
  }
  if (const Edit_Result edit = apply(call, guid, settings); !edit) {
    return MCP_Result::of(edit);
  }
  const DB_FB_Control& after = *call.database().mFbPages.child(guid);
  if (after.mParams.at(cScript).size() < call.text("code").remove(u'\r').size()) {
    call.warn(QStringLiteral("Steuerzeichen im Code sind entfernt: ein Projekt kann sie nicht speichern."));
  }
  QJsonObject object = FB_Json::block(call.database().mAddresses, after, FB_Json::Pins::Brief);
  object.insert(QStringLiteral("code_characters"), after.mParams.at(cScript).size());
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Logic_Tools::changes() {
  return {
      {QStringLiteral("update_fb"),
       QStringLiteral(
           "Aktualisiert Position, Ueberschrift und Parameter eines Funktionsbausteins. Wenn 'comment' angegeben wird, "
           "wird automatisch 'comment_use_as_caption' auf true gesetzt, sodass die Ueberschrift sichtbar ueber dem "
           "Baustein erscheint. Nicht genannte Angaben bleiben unveraendert. params: Liste von {index, value}; Index, "
           "Bereich und Auswahlwerte (als Zahl) nennen get_fb_detail und get_fb_type_info. Aendert ein Parameter die "
           "Anzahl der Pins, nennt warning die dadurch geloesten Verknuepfungen. Bei Kommentar-Bausteinen (Typ 10) ist "
           "'comment' der angezeigte Text."),
       {MCP_Parameter::text("guid", "GUID des Funktionsbausteins").required(),
        MCP_Parameter::integer("x", "Linker Rand in Pixeln"), MCP_Parameter::integer("y", "Oberer Rand in Pixeln"),
        MCP_Parameter::text("comment", "Ueberschrift des Bausteins"),
        MCP_Parameter::flag("comment_use_as_caption", "comment als Ueberschrift zeigen. Standard: true, wenn comment "
                                                      "angegeben ist"),
        MCP_Parameter::list("params", "Parameter: Liste von {index, value}", entry().properties(), entry().required())},
       updateBlock,
       QStringLiteral("Baustein ändern")},
      {QStringLiteral("set_lua_script"),
       QStringLiteral(
           "Setzt den Lua-Quellcode und optional die Ein-/Ausgangsanzahl eines Lua-Script-FB (Typ 900). Der Code wird "
           "in Param 0 gespeichert. Verfuegbare Lua-API-Funktionen (Timer, KNX, IO, serielle Schnittstelle, Netzwerk, "
           "PID usw.) mit get_lua_api_reference abrufen. Der Code ersetzt den bisherigen ganz. Ein Syntaxfehler "
           "verhindert das Speichern nicht; warning nennt Zeile und Fehler."),
       {MCP_Parameter::text("fb_guid", "GUID des Lua-Script-FB").required(),
        MCP_Parameter::text("code", "Lua-Quellcode (Lua 5.4)").required(),
        MCP_Parameter::integer("inputs", "Anzahl Eingaenge, 1 bis 64. Standard: unveraendert").within(1, cScriptPins),
        MCP_Parameter::integer("outputs", "Anzahl Ausgaenge, 1 bis 64. Standard: unveraendert").within(1, cScriptPins)},
       setScript,
       QStringLiteral("Script ändern")},
  };
}
