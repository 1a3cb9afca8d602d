#pragma once

#include "mcp/MCP_Tool.h"

#include <QHash>
#include <QStringList>

#include <vector>

/// The tools that an assistant may call, in the published order. A name that is published and has no entry yet is
/// neither listed nor known.
class MCP_Catalogue {
public:
  /// All families.
  MCP_Catalogue();
  explicit MCP_Catalogue(std::vector<MCP_Tool> tools);

  /// The 107 names, as published.
  [[nodiscard]] static const QStringList& names();

  [[nodiscard]] const std::vector<MCP_Tool>& tools() const { return mTools; }
  /// Null when there is none.
  [[nodiscard]] const MCP_Tool* find(const QString& name) const;
  /// The answer to `tools/list`: an object with the member `tools`.
  [[nodiscard]] const QJsonObject& list() const { return mList; }
  /// What is wrong with the declarations, a sentence each: for tests, and at start in debug builds.
  [[nodiscard]] QStringList faults() const;

private:
  std::vector<MCP_Tool> mTools;
  QHash<QString, qsizetype> mByName;
  QJsonObject mList;
};
