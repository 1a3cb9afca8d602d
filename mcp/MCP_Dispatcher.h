#pragma once

#include "mcp/MCP_Catalogue.h"

#include <QByteArray>
#include <QJsonObject>

class MCP_Studio;
class Session_State;

/// Answers JSON-RPC 2.0 requests of an assistant (Model Context Protocol, version 2024-11-05): `initialize`,
/// `notifications/initialized`, `tools/list` and `tools/call`.
class MCP_Dispatcher {
public:
  /// Studio and state outlive it.
  MCP_Dispatcher(MCP_Studio& studio, Session_State& state, MCP_Catalogue catalogue = MCP_Catalogue());

  /// Whether each request is told in the program's log.
  void setDebug(bool on) { mIsDebug = on; }
  [[nodiscard]] const MCP_Catalogue& catalogue() const { return mCatalogue; }

  /// The response; empty for a notification. A tool may wait for the controller in a local event loop, in which further
  /// requests come in: a second `tools/call` is refused then.
  [[nodiscard]] QJsonObject dispatch(const QJsonObject& request);
  /// The same as it is sent, see `Ascii_Json`; empty for a notification.
  [[nodiscard]] QByteArray answer(const QJsonObject& request);
  /// The result of `tools/call`: the tool's object as text.
  [[nodiscard]] QJsonObject callTool(const QString& name, const QJsonObject& arguments);

private:
  [[nodiscard]] MCP_Result run(const QString& name, const QJsonObject& arguments);
  [[nodiscard]] MCP_Result runHandler(const MCP_Tool& tool, const QJsonObject& arguments);
  void log(const QString& method, const QString& tool, const QJsonObject& arguments) const;

  MCP_Studio& mStudio;
  Session_State& mState;
  MCP_Catalogue mCatalogue;
  QByteArray mListBytes; ///< of the catalogue: the longest answer by far, and always the same
  bool mIsDebug = false;
};
