#include "db/DB_FB_Control.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variable_Generation.h"
#include "mcp/MCP_Address_Json.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Members.h"
#include "mcp/tools/Address_Tools.h"

#include <QHash>

namespace {

using Conflict = FB_Variable_Generation::Conflict;

constexpr FB_Side cSides[] = {FB_Side::Input, FB_Side::Output};

FB_Side sideOf(const MCP_Call& call) {
  return cSides[call.integer("io_type")];
}

/// A pin as the tools name it, and what it is bound to.
QJsonObject pinObject(const DB_FB_Control& block, FB_Side side, int index) {
  const DB_FB_Pin& pin = FB_Pins::pins(block, side)[size_t(index)];
  return {{QStringLiteral("io_type"), side == FB_Side::Input ? 0 : 1},
          {QStringLiteral("io_index"), index},
          {QStringLiteral("name"), pin.mLongName},
          {QStringLiteral("binding"), MCP_Address_Json::of(pin.mBinding)}};
}

/// What shall be bound to which pin.
struct Assignment {
  FB_Pin_Ref mPin;
  QUuid mAddress;
  MCP_Result mFailure;
};

/// Of the arguments `io_type`, `io_index` and the address; `text` is the address where that is given so.
Assignment assignmentOf(const MCP_Call& call, const DB_FB_Control& block, const QString& text = {}) {
  const FB_Side side = sideOf(call);
  const int index = call.integer("io_index");
  const int last = int(FB_Pins::pins(block, side).size()) - 1;
  if (index < 0 || index > last) {
    const QString refusal =
        last < 0 ? QStringLiteral("IO-Index ausserhalb des gueltigen Bereichs: %1").arg(index)
                 : QStringLiteral("IO-Index ausserhalb des gueltigen Bereichs: %1 (max %2)").arg(index).arg(last);
    return {{}, {}, MCP_Result::failed(refusal)};
  }
  const auto group =
      text.isEmpty() ? MCP_Lookup::groupAddress(call, call.arguments()) : MCP_Lookup::groupAddress(call, text);
  if (!group) {
    return {{}, {}, group.mFailure};
  }
  return {{block.mGuid, side, index}, group->mKey, MCP_Result::done()};
}

/// Binds it; the pin with what it had before, where that was something.
MCP_Result assign(MCP_Call& call, const Assignment& assignment) {
  const FB_Pin_Ref& pin = assignment.mPin;
  const DB_FB_Control& block = *call.database().mFbPages.child(pin.mBlock);
  const DB_Address_Binding before = FB_Pins::pins(block, pin.mSide)[size_t(pin.mIndex)].mBinding;
  const Edit_Result bound = FB_Page_Edits::bind(call.session(), pin, assignment.mAddress);
  if (!bound) {
    return MCP_Result::failed(bound.mError);
  }
  QJsonObject object = pinObject(*call.database().mFbPages.child(pin.mBlock), pin.mSide, pin.mIndex);
  if (before.mKind != DB_Address_Binding::Kind::None && before.mKey != assignment.mAddress) {
    object.insert(QStringLiteral("replaced"), MCP_Address_Json::of(before));
  }
  return MCP_Result::done(object);
}

MCP_Result assignAddress(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "fb_guid");
  if (!block) {
    return block.mFailure;
  }
  const QUuid guid = block->mGuid;
  const Assignment assignment = assignmentOf(call, *block);
  if (!assignment.mFailure) {
    return assignment.mFailure;
  }
  MCP_Result result = assign(call, assignment);
  if (result) {
    result.mObject.insert(QStringLiteral("fb_guid"), MCP_Lookup::text(guid));
  }
  return result;
}

MCP_Parameter ioType() {
  return MCP_Parameter::integer("io_type", "0=Eingang, 1=Ausgang").within(0, 1).required();
}

MCP_Parameter ioIndex() {
  return MCP_Parameter::integer("io_index", "Index des Ein-/Ausgangs ab 0 (siehe get_fb_detail)").required();
}

const MCP_Members& assignmentMembers() {
  static const MCP_Members members({ioType(), ioIndex(), MCP_Parameter::integer("main", "Hauptgruppe"),
                                    MCP_Parameter::integer("middle", "Mittelgruppe"),
                                    MCP_Parameter::integer("sub", "Untergruppe"),
                                    MCP_Parameter::text("address", "\"1/2/3\", statt main, middle und sub")});
  return members;
}

/// One of the list; `failure` names what of the address is missing or given twice.
QString addressFault(const MCP_Call& entry) {
  const bool hasText = entry.has("address");
  for (const char* const part : {"main", "middle", "sub"}) {
    if (entry.has(part) && hasText) {
      return QStringLiteral("Entweder address oder main, middle und sub angeben");
    }
    if (!entry.has(part) && !hasText) {
      return QStringLiteral("Parameter '%1' fehlt").arg(QLatin1String(part));
    }
  }
  if (hasText && entry.text("address").trimmed().isEmpty()) {
    return QStringLiteral("Parameter 'address' ist leer");
  }
  return {};
}

/// All of them, or the first failure with its place in the list.
MCP_Result checkAll(const std::vector<MCP_Call>& entries, const DB_FB_Control& block,
                    std::vector<Assignment>& assignments) {
  QHash<FB_Pin_Ref, qsizetype> seen;
  for (const MCP_Call& entry : entries) {
    const qsizetype index = qsizetype(assignments.size());
    const QString place = MCP_Members::place("assignments", index);
    const QString fault = addressFault(entry);
    if (!fault.isEmpty()) {
      return MCP_Result::failed(place + fault);
    }
    const Assignment assignment = assignmentOf(entry, block, entry.text("address"));
    if (!assignment.mFailure) {
      return MCP_Result::failed(place + assignment.mFailure.mObject.value(QStringLiteral("error")).toString());
    }
    if (seen.contains(assignment.mPin)) {
      return MCP_Result::failed(
          place +
          QStringLiteral("Derselbe Ein-/Ausgang steht schon in assignments[%1]").arg(seen.value(assignment.mPin)));
    }
    seen.insert(assignment.mPin, index);
    assignments.push_back(assignment);
  }
  return MCP_Result::done();
}

MCP_Result assignBatch(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "fb_guid");
  if (!block) {
    return block.mFailure;
  }
  const QUuid guid = block->mGuid;
  const MCP_Members::Entries entries = assignmentMembers().of(call, "assignments");
  if (!entries) {
    return entries.mFailure;
  }
  if (entries.mEntries.empty()) {
    return MCP_Result::failed(QStringLiteral("Parameter 'assignments' ist leer: mindestens eine Zuweisung angeben"));
  }
  std::vector<Assignment> assignments;
  MCP_Result checked = checkAll(entries.mEntries, *block, assignments);
  if (!checked) {
    return checked;
  }
  QJsonArray done;
  for (const Assignment& assignment : assignments) {
    MCP_Result result = assign(call, assignment);
    if (!result) {
      return result;
    }
    done.append(result.mObject);
  }
  return MCP_Result::done({{QStringLiteral("fb_guid"), MCP_Lookup::text(guid)},
                           {QStringLiteral("count"), done.size()},
                           {QStringLiteral("assignments"), done}});
}

std::optional<Conflict> conflictOf(const QString& text) {
  const QString word = text.trimmed().toLower();
  if (word.isEmpty() || word == u"append") {
    return Conflict::Append;
  }
  if (word == u"overwrite") {
    return Conflict::Overwrite;
  }
  return word == u"fail" ? std::optional(Conflict::Fail) : std::nullopt;
}

MCP_Result generate(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "fb_guid");
  if (!block) {
    return block.mFailure;
  }
  const std::optional<Conflict> conflict = conflictOf(call.text("conflict_mode"));
  if (!conflict) {
    return MCP_Result::failed(QStringLiteral("conflict_mode ungueltig: %1 (erlaubt: overwrite, append, fail)")
                                  .arg(call.text("conflict_mode").left(40)));
  }
  if (!FB_Variable_Generation::offers(block->mType)) {
    return MCP_Result::failed(
        QStringLiteral("Fuer einen Baustein vom Typ %1 (%2) gibt es keine Variablen zu erzeugen: er hat keine "
                       "Ein-/Ausgaenge.")
            .arg(block->mType)
            .arg(FB_Types::name(block->mType)));
  }
  const DB_FB_Control before = *block;
  const auto generated = FB_Variable_Generation::generate(call.session(), {{before.mGuid, *conflict}});
  if (!generated) {
    return MCP_Result::failed(generated.mError);
  }
  const DB_FB_Control& after = *call.database().mFbPages.child(before.mGuid);
  QJsonArray pins;
  qsizetype kept = 0;
  for (const FB_Side side : cSides) {
    for (size_t index = 0; index < FB_Pins::pins(after, side).size(); ++index) {
      const DB_Address_Binding& now = FB_Pins::pins(after, side)[index].mBinding;
      if (now.mKey != FB_Pins::pins(before, side)[index].mBinding.mKey) {
        pins.append(pinObject(after, side, int(index)));
      } else {
        kept += now.mKind == DB_Address_Binding::Kind::None ? 0 : 1;
      }
    }
  }
  QJsonObject object{{QStringLiteral("fb_guid"), MCP_Lookup::text(before.mGuid)},
                     {QStringLiteral("created_addresses"), generated.mAddresses},
                     {QStringLiteral("assignments"), pins},
                     {QStringLiteral("kept_bindings"), kept}};
  if (pins.isEmpty()) {
    object.insert(QStringLiteral("hint"),
                  kept > 0 ? QStringLiteral("Alle Ein-/Ausgaenge waren schon belegt (conflict_mode 'overwrite' belegt "
                                            "sie neu).")
                           : QStringLiteral("Der Baustein hat keine Ein-/Ausgaenge."));
  }
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Address_Tools::pins() {
  const MCP_Parameter block = MCP_Parameter::text("fb_guid", "GUID des Funktionsbausteins").required();
  std::vector<MCP_Parameter> single{block, ioType(), ioIndex()};
  for (const MCP_Parameter& part : withAddress()) {
    single.push_back(part);
  }
  return {
      {QStringLiteral("assign_fb_io_address"),
       QStringLiteral("Weist einem FB-Eingang oder -Ausgang eine KNX-Adresse zu. io_type: 0=Eingang, 1=Ausgang. Fuer "
                      "mehrere Zuweisungen an einem FB: assign_fb_io_addresses_batch verwenden (1 Call statt N)."),
       single, assignAddress, QStringLiteral("Gruppenadresse verknüpfen")},
      {QStringLiteral("assign_fb_io_addresses_batch"),
       QStringLiteral("Weist mehreren FB-Eingaengen oder -Ausgaengen KNX-Adressen in einem einzigen API-Call zu. Bis "
                      "zu 10x schneller als mehrfache assign_fb_io_address-Aufrufe. Jedes Assignment-Objekt: io_type "
                      "(0=Eingang/1=Ausgang), io_index, main, middle, sub. Statt main, middle und sub geht auch "
                      "address (\"1/2/3\"). Alle werden vorab geprueft: ist eine falsch, wird nichts geaendert und der "
                      "Fehler nennt ihren Platz in der Liste."),
       {block, MCP_Parameter::list("assignments", "Zuweisungen, je Ein-/Ausgang hoechstens eine",
                                   assignmentMembers().properties(), assignmentMembers().required())
                   .required()},
       assignBatch,
       QStringLiteral("Gruppenadressen verknüpfen")},
      {QStringLiteral("generate_fb_addresses"),
       QStringLiteral(
           "Erzeugt automatisch KNX-Adressen fuer einen Funktionsbaustein und weist sie seinen Ein-/Ausgaengen zu. "
           "Entspricht dem Button 'Variablen generieren' im Studio. Funktioniert fuer alle Block-FBs (Licht, "
           "Jalousie, Schalter, Szene, Logik usw.), nicht fuer Kommentare. Die Adressen entstehen in einer "
           "Hauptgruppe, die wie die Seite heisst, und einer Mittelgruppe, die wie der Baustein heisst. "
           "conflict_mode regelt, was mit schon belegten Ein-/Ausgaengen geschieht."),
       {block,
        MCP_Parameter::text("conflict_mode", "append = Belegtes bleibt (Standard), overwrite = neu belegen, fail = "
                                             "nichts tun und Fehler melden")},
       generate,
       QStringLiteral("Variablen erzeugen")}};
}
