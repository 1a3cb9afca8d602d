#pragma once

#include "fb/model/FB_Types.h"

#include <QStringList>

#include <span>

/// What is wrong with declarations of block types, in English for developers: ids and classes that are not unique,
/// empty texts, defaults that a user could not set, choices made twice, pins counted by what is no count, datapoint
/// types that are none, types that send nothing and do not say why.
namespace FB_Type_Check {

[[nodiscard]] QStringList problems(std::span<const FB_Types::Category> categories);

} // namespace FB_Type_Check
