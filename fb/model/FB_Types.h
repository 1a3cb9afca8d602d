#pragma once

#include "fb/model/FB_Type.h"

#include <QString>

#include <span>

/// The registry of the function block types. Each family declares its types in the order of the catalogue, in a file
/// of `families`.
namespace FB_Types {

/// The comment block, which also stands in for blocks of unknown type.
inline constexpr int cComment = 10;
inline constexpr int cConstant = 11;
inline constexpr int cShowValue = 12;
inline constexpr int cSetValue = 1330;

/// A category of the catalogue.
struct Category {
  const char* mTitle = ""; ///< German; empty for the types that are in no category: they come with older projects
  std::span<const FB_Type> mTypes;
  bool mIsHs = false; ///< shown only when the settings say so
};

/// In the catalogue's order, the one without a title last.
[[nodiscard]] std::span<const Category> categories();
/// In the order of their ids.
[[nodiscard]] std::span<const FB_Type* const> all();
/// Null for an id that no type has.
[[nodiscard]] const FB_Type* find(int id);
/// The display name; "Unknown" for an id that no type has.
[[nodiscard]] QString name(int id);
/// File name of the help page: "fb_and.html"; empty for an id that no type has.
[[nodiscard]] QString helpFileName(int id);
/// Translates a text of a declaration.
[[nodiscard]] QString text(const char* germanText);

} // namespace FB_Types
