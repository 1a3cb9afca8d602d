#include "db/Address_Usage.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Pin_Types.h"
#include "fb/model/FB_Pins.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/FB_Block_Links.h"
#include "mcp/tools/FB_Connection_List.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/FB_Use_Json.h"
#include "mcp/tools/Logic_Tools_Parts.h"

#include <algorithm>

namespace {

using Kind = DB_Address_Binding::Kind;

bool hasPin(const DB_FB_Control& block, FB_Side side, int index) {
  return index >= 0 && index < static_cast<int>(FB_Pins::pins(block, side).size());
}

/// Of an index that the block has no pin for: which it has.
MCP_Result noPin(const QString& error, const DB_FB_Control& block, FB_Side side) {
  const auto count = static_cast<qint64>(FB_Pins::pins(block, side).size());
  const QString pins = side == FB_Side::Input ? QStringLiteral("Eingaenge") : QStringLiteral("Ausgaenge");
  MCP_Result result = MCP_Result::failed(error);
  result.mObject.insert(
      QStringLiteral("hint"),
      count == 0
          ? QStringLiteral("Der Baustein \"%1\" hat keine %2.").arg(FB_Geometry::title(block), pins)
          : QStringLiteral("%2 des Bausteins \"%1\": 0 bis %3.").arg(FB_Geometry::title(block), pins).arg(count - 1));
  return result;
}

const DB_Address_Binding& bindingOf(const DB_FB_Control& block, const FB_Pin_Ref& pin) {
  return FB_Pins::pins(block, pin.mSide)[static_cast<size_t>(pin.mIndex)].mBinding;
}

/// The two blocks that are to be connected.
struct Ends {
  const DB_FB_Control* mSource = nullptr;
  const DB_FB_Control* mTarget = nullptr;
  FB_Pin_Ref mOutput;
  FB_Pin_Ref mInput;
  MCP_Result mFailure;
  explicit operator bool() const { return !mFailure.mIsError; }

  [[nodiscard]] const DB_Address_Binding& outputBinding() const { return bindingOf(*mSource, mOutput); }
  [[nodiscard]] const DB_Address_Binding& inputBinding() const { return bindingOf(*mTarget, mInput); }
};

Ends failed(const MCP_Result& failure) {
  Ends ends;
  ends.mFailure = failure;
  return ends;
}

Ends endsOf(const MCP_Call& call) {
  const auto source = MCP_Lookup::block(call, "source_fb_guid", QStringLiteral("Quell-FB nicht gefunden: %1"));
  const auto target = MCP_Lookup::block(call, "target_fb_guid", QStringLiteral("Ziel-FB nicht gefunden: %1"));
  if (!source || !target) {
    return failed(source ? target.mFailure : source.mFailure);
  }
  const int output = call.integer("source_output_index");
  const int input = call.integer("target_input_index");
  if (!hasPin(*source, FB_Side::Output, output)) {
    return failed(noPin(QStringLiteral("Ausgangs-Index ausserhalb des gueltigen Bereichs: %1").arg(output), *source,
                        FB_Side::Output));
  }
  if (!hasPin(*target, FB_Side::Input, input)) {
    return failed(noPin(QStringLiteral("Eingangs-Index ausserhalb des gueltigen Bereichs: %1").arg(input), *target,
                        FB_Side::Input));
  }
  return {source.mThing,
          target.mThing,
          {source->mGuid, FB_Side::Output, output},
          {target->mGuid, FB_Side::Input, input},
          MCP_Result::done()};
}

/// What the connection will take off the input, and whether the types of data fit.
QStringList warningsFor(const Ends& ends) {
  QStringList warnings;
  const DB_Address_Binding& output = ends.outputBinding();
  const DB_Address_Binding& input = ends.inputBinding();
  if (output.mKind != Kind::None && input.mKind != Kind::None && !FB_Connections::isShared(output, input)) {
    warnings.append(
        QStringLiteral("Die bisherige Verknuepfung des Eingangs ist ersetzt: %1.").arg(FB_Json::bindingText(input)));
  }
  const Datapoint_Id sent = FB_Pin_Types::usual(*ends.mSource, FB_Side::Output, ends.mOutput.mIndex);
  const Datapoint_Id taken = FB_Pin_Types::usual(*ends.mTarget, FB_Side::Input, ends.mInput.mIndex);
  if (const QString mismatch = FB_Pin_Types::mismatch(taken, sent); !mismatch.isEmpty()) {
    warnings.append(QStringLiteral("Die Datentypen von Ausgang und Eingang passen nicht zusammen: %1.").arg(mismatch));
  }
  return warnings;
}

/// The connection as it is now, with what else hangs on it.
QJsonObject connectionObject(MCP_Call& call, const Ends& ends) {
  const Address_Usage usage(call.database());
  const auto uses = usage.uses(ends.outputBinding().mKey);
  const auto isOther = [&ends](const Address_Use& use) {
    return !FB_Use_Json::isPin(use) ||
           (FB_Use_Json::pinOf(use) != ends.mOutput && FB_Use_Json::pinOf(use) != ends.mInput);
  };
  const auto isOtherOutput = [&isOther](const Address_Use& use) {
    return use.mPlace == Address_Use::Place::Output && isOther(use);
  };
  if (std::ranges::any_of(uses, isOtherOutput)) {
    call.warn(QStringLiteral("Auf diese Verbindung schreiben mehrere Ausgaenge (also_bound)."));
  }
  const QUuid page = ends.mSource->mPageGuid;
  QJsonObject object{
      {QStringLiteral("source"), FB_Use_Json::pin(*ends.mSource, FB_Side::Output, ends.mOutput.mIndex)},
      {QStringLiteral("target"), FB_Use_Json::pin(*ends.mTarget, FB_Side::Input, ends.mInput.mIndex)},
      {QStringLiteral("binding"), FB_Json::binding(call.database().mAddresses, ends.outputBinding())},
      {QStringLiteral("also_bound"), FB_Use_Json::others(call.database(), uses, page, {ends.mOutput, ends.mInput})},
      {QStringLiteral("also_bound_count"), static_cast<qint64>(std::ranges::count_if(uses, isOther))},
      {QStringLiteral("same_page"), page == ends.mTarget->mPageGuid}};
  if (page != ends.mTarget->mPageGuid) {
    object.insert(QStringLiteral("note"),
                  QStringLiteral("Die Bausteine liegen auf verschiedenen Seiten: die Verbindung laeuft ueber die "
                                 "gemeinsame Verknuepfung, eine Linie ist nicht zu sehen."));
  }
  return object;
}

MCP_Result connectPins(MCP_Call& call) {
  const Ends ends = endsOf(call);
  if (!ends) {
    return ends.mFailure;
  }
  if (ends.mSource != ends.mTarget && FB_Connections::isShared(ends.outputBinding(), ends.inputBinding())) {
    QJsonObject object = connectionObject(call, ends);
    object.insert(QStringLiteral("already_connected"), true);
    return MCP_Result::done(object);
  }
  const QStringList warnings = warningsFor(ends);
  const std::vector<FB_Pin_Ref> sharing = FB_Block_Links::sharingVariable(call.database(), ends.inputBinding());
  if (const Edit_Result edit = FB_Page_Edits::connectPins(call.session(), ends.mOutput, ends.mInput); !edit) {
    return MCP_Result::of(edit);
  }
  for (const QString& warning : warnings) {
    call.warn(warning);
  }
  QJsonObject object = connectionObject(call, ends);
  FB_Block_Links::addReleased(object, call.database(), sharing);
  return MCP_Result::done(object);
}

/// All pins of the page that share the binding.
QList<FB_Pin_Ref> sharingOnPage(const DB_FB_Page& page, const DB_Address_Binding& binding) {
  QList<FB_Pin_Ref> pins;
  for (const auto& block : page.mChildren) {
    for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
      int index = 0;
      for (const DB_FB_Pin& pin : FB_Pins::pins(*block, side)) {
        if (FB_Connections::isShared(pin.mBinding, binding)) {
          pins.append({block->mGuid, side, index});
        }
        ++index;
      }
    }
  }
  return pins;
}

MCP_Result disconnectAll(MCP_Call& call, const DB_FB_Control& block, const FB_Pin_Ref& pin) {
  const DB_Address_Binding binding = bindingOf(block, pin);
  QList<FB_Pin_Ref> pins = sharingOnPage(*call.database().mFbPages.page(block.mPageGuid), binding);
  if (pins.isEmpty()) {
    pins.append(pin); // bound to something that has neither key nor numbers
  }
  QJsonArray list;
  for (const FB_Pin_Ref& one : pins) {
    if (list.size() < FB_Use_Json::cMostListed) {
      list.append(FB_Use_Json::pin(*call.database().mFbPages.child(one.mBlock), one.mSide, one.mIndex));
    }
  }
  std::vector<FB_Pin_Ref> elsewhere = FB_Block_Links::sharingVariable(call.database(), binding);
  std::erase_if(elsewhere, [&](const FB_Pin_Ref& one) {
    return call.database().mFbPages.child(one.mBlock)->mPageGuid == block.mPageGuid;
  });
  if (const Edit_Result edit = FB_Page_Edits::unbind(call.session(), pins); !edit) {
    return MCP_Result::of(edit);
  }
  QJsonObject object{{QStringLiteral("count"), pins.size()},
                     {QStringLiteral("binding"), FB_Json::binding(call.database().mAddresses, binding)},
                     {QStringLiteral("disconnected"), list}};
  FB_Block_Links::addReleased(object, call.database(), elsewhere);
  const Address_Usage usage(call.database());
  if (const auto uses = usage.uses(binding.mKey); !uses.empty()) {
    object.insert(QStringLiteral("still_bound"), FB_Use_Json::others(call.database(), uses, block.mPageGuid, {}));
    object.insert(QStringLiteral("still_bound_count"), static_cast<qint64>(uses.size()));
  }
  return MCP_Result::done(object);
}

MCP_Result disconnectPin(MCP_Call& call) {
  const auto block = MCP_Lookup::block(call, "fb_guid");
  if (!block) {
    return block.mFailure;
  }
  const FB_Pin_Ref pin{block->mGuid, call.integer("io_type") == 0 ? FB_Side::Input : FB_Side::Output,
                       call.integer("io_index")};
  if (!hasPin(*block, pin.mSide, pin.mIndex)) {
    return noPin(QStringLiteral("IO-Index ausserhalb des gueltigen Bereichs: %1 (max %2)")
                     .arg(pin.mIndex)
                     .arg(static_cast<qint64>(FB_Pins::pins(*block, pin.mSide).size()) - 1),
                 *block, pin.mSide);
  }
  if (bindingOf(*block, pin).mKind == Kind::None) {
    return MCP_Result::done({{QStringLiteral("count"), 0},
                             {QStringLiteral("note"), QStringLiteral("Der Ein-/Ausgang war mit nichts verbunden.")}});
  }
  return disconnectAll(call, *block, pin);
}

MCP_Result listConnections(MCP_Call& call) {
  const auto page = MCP_Lookup::logicPage(call, "page_guid");
  if (!page) {
    return page.mFailure;
  }
  const Address_Usage usage(call.database());
  const FB_Connection_List list(call.database(), usage, *page);
  QJsonObject object{{QStringLiteral("page_guid"), MCP_Lookup::text(page->mGuid)},
                     {QStringLiteral("count"), list.connections().size()},
                     {QStringLiteral("connections"), list.connections()},
                     {QStringLiteral("external_count"), list.external().size()},
                     {QStringLiteral("external"), list.external()}};
  if (list.isTruncated()) {
    object.insert(QStringLiteral("truncated"), true);
    object.insert(QStringLiteral("hint"),
                  QStringLiteral("Je Liste hoechstens %1 Eintraege; die uebrigen nennt get_fb_detail je Baustein.")
                      .arg(FB_Connection_List::cMost));
  }
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Logic_Tools::connections() {
  return {
      {QStringLiteral("connect_fb_io"),
       QStringLiteral("Verbindet den Ausgang eines Funktionsbausteins mit dem Eingang eines anderen. Interne "
                      "Verbindungen benoetigen keine KNX-Adresse."),
       {MCP_Parameter::text("source_fb_guid", "GUID des Quell-FB").required(),
        MCP_Parameter::integer("source_output_index", "Index des Ausgangs am Quell-FB, ab 0").required(),
        MCP_Parameter::text("target_fb_guid", "GUID des Ziel-FB; nicht der Quell-FB selbst").required(),
        MCP_Parameter::integer("target_input_index", "Index des Eingangs am Ziel-FB, ab 0").required()},
       connectPins,
       QStringLiteral("Verbinden")},
      {QStringLiteral("disconnect_fb_io"),
       QStringLiteral("Loescht eine Verbindung an einem FB-IO. io_type: 0=Eingang, 1=Ausgang. Entfernt alle "
                      "verknuepften IOs auf der Seite."),
       {MCP_Parameter::text("fb_guid", "GUID des Funktionsbausteins").required(),
        MCP_Parameter::integer("io_type", "0=Eingang, 1=Ausgang").required().within(0, 1),
        MCP_Parameter::integer("io_index", "Index des Ein- oder Ausgangs, ab 0").required()},
       disconnectPin,
       QStringLiteral("Verbindung trennen")},
      {QStringLiteral("list_fb_connections"),
       QStringLiteral("Listet alle Verbindungen (intern und extern) auf einer Programmseite auf."),
       {MCP_Parameter::text("page_guid", "GUID der Programmseite (list_fb_pages)").required()},
       listConnections,
       {}},
  };
}
