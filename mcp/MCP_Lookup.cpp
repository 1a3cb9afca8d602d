#include "mcp/MCP_Lookup.h"

#include "db/ProjectDatabase.h"

#include <QRegularExpression>

QString MCP_Lookup::text(const QUuid& guid) {
  return guid.toString();
}

QUuid MCP_Lookup::guid(const QString& text) {
  return QUuid::fromString(text.trimmed());
}

MCP_Lookup::Found<DB_FB_Page> MCP_Lookup::logicPage(const MCP_Call& call, const char* argument) {
  const DB_FB_Page* const page = call.database().mFbPages.page(guid(call.text(argument)));
  return {page, MCP_Result::failed(QStringLiteral("FB-Seite nicht gefunden: %1").arg(call.text(argument)))};
}

MCP_Lookup::Found<DB_FB_Control> MCP_Lookup::block(const MCP_Call& call, const char* argument, const QString& failure) {
  const DB_FB_Control* const block = call.database().mFbPages.child(guid(call.text(argument)));
  return {block, MCP_Result::failed(failure.arg(call.text(argument)))};
}

MCP_Lookup::Address MCP_Lookup::address(const QJsonObject& arguments) {
  const auto part = [&arguments](const char* name) { return arguments.value(QLatin1String(name)).toInt(); };
  const Group_Address address(part("main"), part("middle"), part("sub"));
  if (address.main() < 0 || address.middle() < 0 || address.sub() < 0) {
    return {address, MCP_Result::failed(QStringLiteral("Ungueltige Adresse: main, middle und sub muessen >= 0 sein"))};
  }
  return {address, MCP_Result::done()};
}

MCP_Lookup::Found<DB_Address_Sub_Group> MCP_Lookup::groupAddress(const MCP_Call& call, const QJsonObject& arguments) {
  const Address wanted = address(arguments);
  if (!wanted) {
    return {nullptr, wanted.mFailure};
  }
  const Group_Address& at = wanted.mAddress;
  return {call.database().mAddresses.subGroup(at),
          MCP_Result::failed(
              QStringLiteral("Adresse nicht gefunden: %1/%2/%3").arg(at.main()).arg(at.middle()).arg(at.sub()))};
}

MCP_Lookup::Found<DB_Address_Sub_Group> MCP_Lookup::groupAddress(const MCP_Call& call, const QString& text) {
  static const QRegularExpression threeNumbers(QStringLiteral("^\\s*(\\d{1,9})/(\\d{1,9})/(\\d{1,9})\\s*$"));
  const QRegularExpressionMatch match = threeNumbers.match(text);
  if (!match.hasMatch()) {
    return {nullptr, MCP_Result::failed(QStringLiteral("Adresse ungueltig, erwartet \"haupt/mittel/unter\": ") + text)};
  }
  return groupAddress(call, QJsonObject{{QStringLiteral("main"), match.captured(1).toInt()},
                                        {QStringLiteral("middle"), match.captured(2).toInt()},
                                        {QStringLiteral("sub"), match.captured(3).toInt()}});
}
