#pragma once

#include "mcp/MCP_Parameter.h"
#include "mcp/MCP_Result.h"

#include <QJsonObject>
#include <QString>

#include <vector>

class MCP_Call;

/// A tool that an assistant may call (Model Context Protocol, "tools"): its name, a German description that an
/// assistant can work by, its parameters, and what it does. List of tools and checking of arguments follow from it.
struct MCP_Tool {
  using Handler = MCP_Result (*)(MCP_Call& call);

  /// When a tool works.
  enum class Needs {
    Project, ///< with an open project only
    Nothing, ///< also without one
  };

  QString mName;
  QString mDescription;
  std::vector<MCP_Parameter> mParameters;
  Handler mHandler = nullptr;
  QString mStep; ///< what its undo step is called (German); empty for a tool that edits nothing or makes its own step
  Needs mNeeds = Needs::Project;

  /// As `tools/list` shows it.
  [[nodiscard]] QJsonObject toJson() const;
  /// What is wrong with the arguments (German, names the argument); empty when nothing is.
  [[nodiscard]] QString faultOf(const QJsonObject& arguments) const;
  /// Names that are no parameters.
  [[nodiscard]] QStringList unknownIn(const QJsonObject& arguments) const;
};
