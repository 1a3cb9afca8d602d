#pragma once

#include "db/Address_Use.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QJsonArray>
#include <QJsonObject>

#include <span>

class DB_FB_Control;
class ProjectDatabase;

/// Where a group address or internal variable is used, as tools answer it.
namespace FB_Use_Json {

/// Uses that are listed of one address or variable at most; how many there are is told beside.
inline constexpr qsizetype cMostListed = 100;

/// A pin as other objects name it: its block, `io_type` (0 input, 1 output), `io_index`, and its name.
[[nodiscard]] QJsonObject pin(const DB_FB_Control& block, FB_Side side, int index);
/// The pin, disabling address or element of that use; what is on another page than `page` with its page.
[[nodiscard]] QJsonObject use(const ProjectDatabase& database, const Address_Use& use, const QUuid& page);
/// The first `cMostListed` of them, but for the given pins.
[[nodiscard]] QJsonArray others(const ProjectDatabase& database, std::span<const Address_Use> uses, const QUuid& page,
                                std::initializer_list<FB_Pin_Ref> without);

[[nodiscard]] bool isPin(const Address_Use& use);
/// Of a use that is a pin's.
[[nodiscard]] FB_Pin_Ref pinOf(const Address_Use& use);

} // namespace FB_Use_Json
