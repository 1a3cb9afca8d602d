#pragma once

#include "fb/model/FB_Pin_Ref.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class Address_Tree;
struct DB_Address_Binding;
class DB_FB_Control;
class DB_FB_Page;
class MCP_Call;
class ProjectDatabase;

/// Logic pages, blocks and pins as tools answer them. Members that would be empty are left out.
namespace FB_Json {

/// "0x0032"
[[nodiscard]] QString typeHex(int type);

/// What a pin is bound to: `kind` "internal" with the variable's name, or "address" with address, designation and type
/// of data; `missing` tells that the project has this address no more. Empty when it is bound to nothing.
[[nodiscard]] QJsonObject binding(const Address_Tree& tree, const DB_Address_Binding& binding);
/// The same in a sentence: "1/2/3 Licht", "interne Variable \"Und Ausgang\"".
[[nodiscard]] QString bindingText(const DB_Address_Binding& binding);

/// The page without its blocks.
[[nodiscard]] QJsonObject page(const ProjectDatabase& database, const DB_FB_Page& page);

enum class Pins {
  Brief, ///< index, name and binding
  Full,  ///< also the short name, the usual type of data and what the pin is for
};
[[nodiscard]] QJsonObject pin(const Address_Tree& tree, const DB_FB_Control& block, FB_Side side, int index,
                              Pins detail);

/// GUID, type and what stands above the block.
[[nodiscard]] QJsonObject head(const DB_FB_Control& block);
/// With position, size (pixels of the unzoomed page) and pins.
[[nodiscard]] QJsonObject block(const Address_Tree& tree, const DB_FB_Control& block, Pins detail);
/// When the block is not wholly on its page, where a user may not find it.
void warnOfPlace(MCP_Call& call, const DB_FB_Page& page, const DB_FB_Control& block);
/// With its parameters: what the next call needs.
[[nodiscard]] QJsonObject withParameters(const Address_Tree& tree, const DB_FB_Control& block);

} // namespace FB_Json
