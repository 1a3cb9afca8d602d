#include "mcp/MCP_Log.h"

#include <QtDebug>

void MCP_Log::write(const QString& text) {
  qInfo().noquote() << QStringLiteral("[MCP] ") + text;
}
