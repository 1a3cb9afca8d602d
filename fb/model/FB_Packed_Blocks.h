#pragma once

#include "db/DB_FB_Control.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <vector>

/// The bytes of copied blocks; `FB_Clipboard` tells their form.
namespace FB_Packed_Blocks {

using Blocks = std::vector<std::unique_ptr<DB_FB_Control>>;

[[nodiscard]] QByteArray pack(const std::vector<const DB_FB_Control*>& blocks);
/// True when this is the beginning of packed blocks.
[[nodiscard]] bool isPacked(const QByteArray& bytes);
/// At least one block, with everything in it that a record of this project may hold; nothing when the bytes are not
/// that.
[[nodiscard]] std::optional<Blocks> unpack(const QByteArray& bytes);

} // namespace FB_Packed_Blocks
