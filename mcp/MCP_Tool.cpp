#include "mcp/MCP_Tool.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>

QJsonObject MCP_Tool::toJson() const {
  QJsonObject properties;
  QJsonArray required;
  for (const MCP_Parameter& parameter : mParameters) {
    properties.insert(parameter.name(), parameter.schema());
    if (parameter.isRequired()) {
      required.append(parameter.name());
    }
  }
  QJsonObject schema{{QStringLiteral("type"), QStringLiteral("object")}, {QStringLiteral("properties"), properties}};
  if (!required.isEmpty()) {
    schema.insert(QStringLiteral("required"), required);
  }
  return {{QStringLiteral("name"), mName},
          {QStringLiteral("description"), mDescription},
          {QStringLiteral("inputSchema"), schema}};
}

QString MCP_Tool::faultOf(const QJsonObject& arguments) const {
  for (const MCP_Parameter& parameter : mParameters) {
    QString fault = parameter.faultOf(arguments.value(parameter.name()));
    if (!fault.isEmpty()) {
      return fault;
    }
  }
  return {};
}

QStringList MCP_Tool::unknownIn(const QJsonObject& arguments) const {
  QStringList unknown;
  for (const QString& name : arguments.keys()) {
    if (std::ranges::none_of(mParameters, [&name](const MCP_Parameter& known) { return known.name() == name; })) {
      unknown.append(name);
    }
  }
  return unknown;
}
