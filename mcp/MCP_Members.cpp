#include "mcp/MCP_Members.h"

#include <algorithm>

namespace {

constexpr qsizetype cNamedUnknown = 5;

} // namespace

QJsonObject MCP_Members::properties() const {
  QJsonObject properties;
  for (const MCP_Parameter& member : mMembers) {
    properties.insert(member.name(), member.schema());
  }
  return properties;
}

QJsonArray MCP_Members::required() const {
  QJsonArray required;
  for (const MCP_Parameter& member : mMembers) {
    if (member.isRequired()) {
      required.append(member.name());
    }
  }
  return required;
}

MCP_Members::Entries MCP_Members::of(MCP_Call& call, const char* list) const {
  const QJsonArray objects = call.list(list);
  Entries entries;
  entries.mEntries.reserve(size_t(objects.size()));
  QStringList unknown;
  for (qsizetype index = 0; index < objects.size(); ++index) {
    const QString fault = faultOf(list, index, objects.at(index));
    if (!fault.isEmpty()) {
      return {{}, MCP_Result::failed(fault)};
    }
    const QJsonObject object = objects.at(index).toObject();
    for (auto member = object.begin(); member != object.end() && unknown.size() < cNamedUnknown; ++member) {
      if (!isKnown(member.key())) {
        unknown.append(QStringLiteral("%1[%2].%3").arg(QLatin1String(list)).arg(index).arg(member.key()));
      }
    }
    entries.mEntries.emplace_back(call.studio(), call.session(), object);
  }
  if (!unknown.isEmpty()) {
    call.warn(QStringLiteral("Unbekannte Angaben ignoriert: ") + unknown.join(QStringLiteral(", ")) +
              (unknown.size() == cNamedUnknown ? QStringLiteral(" ...") : QStringLiteral(".")));
  }
  return entries;
}

QString MCP_Members::place(const char* list, qsizetype index) {
  return QStringLiteral("%1[%2]: ").arg(QLatin1String(list)).arg(index);
}

QString MCP_Members::faultOf(const char* list, qsizetype index, const QJsonValue& entry) const {
  if (!entry.isObject()) {
    return place(list, index) + QStringLiteral("erwartet ein Objekt mit Angaben");
  }
  const QJsonObject object = entry.toObject();
  for (const MCP_Parameter& member : mMembers) {
    const QString fault = member.faultOf(object.value(member.name()));
    if (!fault.isEmpty()) {
      return place(list, index) + fault;
    }
  }
  return {};
}

bool MCP_Members::isKnown(const QString& member) const {
  return std::ranges::any_of(mMembers, [&member](const MCP_Parameter& known) { return known.name() == member; });
}
