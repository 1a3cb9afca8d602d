#pragma once

#include <QString>

#include <span>

/// The function block types that this studio knows: type id and display name, in the order of the ids.
namespace FB_Types {

struct Type {
  int mId;
  const char* mName; ///< German, translated by `name`
};

/// The comment block, which also stands in for blocks of unknown type.
inline constexpr int cComment = 10;

[[nodiscard]] std::span<const Type> all();
/// Null for an id that no type has.
[[nodiscard]] const Type* find(int id);
/// The display name; "Unknown" for an id that no type has.
[[nodiscard]] QString name(int id);

} // namespace FB_Types
