#pragma once

#include "mcp/MCP_Call.h"
#include "mcp/MCP_Parameter.h"
#include "mcp/MCP_Result.h"

#include <vector>

/// The objects in a list argument: declared as a tool's parameters are, and checked as strictly.
///
///     MCP_Parameter::list("entries", "Liste von {guid, caption}", entries().properties(), entries().required())
///     ...
///     const MCP_Members::Entries found = entries().of(call, "entries");
class MCP_Members {
public:
  explicit MCP_Members(std::vector<MCP_Parameter> members) : mMembers(std::move(members)) {}

  /// What the list's declaration shows of them.
  [[nodiscard]] QJsonObject properties() const;
  [[nodiscard]] QJsonArray required() const;

  struct Entries {
    std::vector<MCP_Call> mEntries; ///< with the entry's members as arguments, so that lookups work on them
    MCP_Result mFailure;            ///< when one is wrong; names the list, the place and the member

    explicit operator bool() const { return !mFailure.mIsError; }
  };
  /// Of that list argument; the list that is not there has none. Unknown members are warned of. What is warned of in an
  /// entry's call is not told: warn in the tool's.
  [[nodiscard]] Entries of(MCP_Call& call, const char* list) const;
  /// "entries[2]: " before what is wrong with an entry.
  [[nodiscard]] static QString place(const char* list, qsizetype index);

private:
  [[nodiscard]] QString faultOf(const char* list, qsizetype index, const QJsonValue& entry) const;
  [[nodiscard]] bool isKnown(const QString& member) const;

  std::vector<MCP_Parameter> mMembers;
};
