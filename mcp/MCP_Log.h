#pragma once

#include <QString>

/// The assistant server's lines in the program's informational log.
namespace MCP_Log {

/// "[MCP] " and the text.
void write(const QString& text);

} // namespace MCP_Log
