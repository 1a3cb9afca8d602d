#pragma once

#include "db/Project_Edits.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Catalogue.h"
#include "mcp/MCP_Wait.h"

#include <QCoreApplication>
#include <QPointer>

/// Tools that do what a test needs of one, under published names.
namespace Trial_Tools {

/// What `get_controller_status` waits with; null while it does not.
inline QPointer<MCP_Wait> waiting;
/// Ends that waiting, from any thread.
inline void release() {
  QMetaObject::invokeMethod(
      qApp,
      [] {
        if (waiting) {
          waiting->done();
        }
      },
      Qt::QueuedConnection);
}
/// From any thread: whether the tool waits by now.
[[nodiscard]] inline bool isWaiting() {
  bool is = false;
  QMetaObject::invokeMethod(
      qApp, [&is] { is = waiting != nullptr; }, Qt::BlockingQueuedConnection);
  return is;
}
inline void untilItWaits() {
  while (!isWaiting()) {
  }
}

inline MCP_Result wait(MCP_Call& /*call*/) {
  MCP_Wait wait(std::chrono::seconds(20));
  waiting = &wait;
  return MCP_Result::done({{QStringLiteral("released"), wait.run()}});
}

inline MCP_Result tellArguments(MCP_Call& call) {
  return MCP_Result::done({{QStringLiteral("arguments"), call.arguments()}});
}

/// Renames the first page; fails afterwards when it shall.
inline MCP_Result rename(MCP_Call& call) {
  const QUuid page = call.database().mFbPages.pages().at(0).mGuid;
  const Edit_Result edit = Project_Edits::renamePage(call.session(), page, call.text("caption"));
  if (!edit || call.flag("fail")) {
    return MCP_Result::failed(QStringLiteral("Umbenennen gescheitert"));
  }
  call.warn(QStringLiteral("Umbenannt."));
  return MCP_Result::done();
}

/// As a message box does that would have shown the text.
inline MCP_Result suppress(MCP_Call& call) {
  call.session().state().setSuppressedMessage(call.text("text"));
  return MCP_Result::done();
}

[[nodiscard]] inline MCP_Catalogue catalogue() {
  using P = MCP_Parameter;
  const auto tool = [](const char* name, std::vector<P> parameters, MCP_Tool::Handler handler,
                       const QString& step = QString(), MCP_Tool::Needs needs = MCP_Tool::Needs::Project) {
    return MCP_Tool{QString::fromLatin1(name), QStringLiteral("Prüft."), std::move(parameters), handler, step, needs};
  };
  return MCP_Catalogue({
      tool("get_controller_status", {}, wait),
      tool("add_fb_page", {P::text("caption", "Name").required(), P::flag("fail", "Scheitert")}, rename,
           QStringLiteral("Umbenennen")),
      tool("save_project", {P::text("text", "Meldung")}, suppress),
      tool("open_project", {P::text("filename", "Pfad")}, tellArguments, {}, MCP_Tool::Needs::Nothing),
      tool("update_fb",
           {P::text("text", "Text").required(), P::integer("count", "Anzahl"),
            P::integer("level", "Stufe").within(0, 3), P::number("value", "Wert"), P::flag("on", "An"),
            P::list("list", "Liste"), P::object("object", "Objekt"), P::integer("summary", "Summe").orFlag(),
            P::object("registers", "Register").reallyList(), P::any("target", "Ziel")},
           tellArguments),
  });
}

} // namespace Trial_Tools
