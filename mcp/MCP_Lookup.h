#pragma once

#include "base/Group_Address.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Result.h"

#include <QUuid>

class DB_Address_Sub_Group;
class DB_FB_Control;
class DB_FB_Page;

/// How tools name things and find what an argument names.
namespace MCP_Lookup {

/// Of a page, block or element, as records keep it and as every tool takes it back.
[[nodiscard]] QString text(const QUuid& guid);
/// With or without braces; null for anything else.
[[nodiscard]] QUuid guid(const QString& text);

/// What was found, or the failure that the tool answers.
template <class Thing>
struct Found {
  const Thing* mThing = nullptr;
  MCP_Result mFailure;

  explicit operator bool() const { return mThing != nullptr; }
  const Thing* operator->() const { return mThing; }
  const Thing& operator*() const { return *mThing; }
};

/// By the argument of that name: "FB-Seite nicht gefunden: %1".
[[nodiscard]] Found<DB_FB_Page> logicPage(const MCP_Call& call, const char* argument);
/// "Funktionsbaustein nicht gefunden: %1"; `failure` is another sentence with %1 for the text that was given.
[[nodiscard]] Found<DB_FB_Control>
block(const MCP_Call& call, const char* argument,
      const QString& failure = QStringLiteral("Funktionsbaustein nicht gefunden: %1"));

/// The arguments `main`, `middle` and `sub` of an object: "Ungueltige Adresse: ..." for a negative part.
struct Address {
  Group_Address mAddress;
  MCP_Result mFailure;
  explicit operator bool() const { return !mFailure.mIsError; }
};
[[nodiscard]] Address address(const QJsonObject& arguments);
/// The address of the tree that they name: "Adresse nicht gefunden: %1/%2/%3".
[[nodiscard]] Found<DB_Address_Sub_Group> groupAddress(const MCP_Call& call, const QJsonObject& arguments);
/// The same of a text "1/2/3": "Adresse ungueltig, erwartet ..." when it is not three numbers.
[[nodiscard]] Found<DB_Address_Sub_Group> groupAddress(const MCP_Call& call, const QString& text);

} // namespace MCP_Lookup
