#pragma once

#include "fb/model/FB_Type.h"

#include <span>

/// The types of each family, in the order of the catalogue.
namespace FB_Families {

[[nodiscard]] std::span<const FB_Type> hardware();
[[nodiscard]] std::span<const FB_Type> general();
[[nodiscard]] std::span<const FB_Type> logic();
[[nodiscard]] std::span<const FB_Type> time();
[[nodiscard]] std::span<const FB_Type> compare();
[[nodiscard]] std::span<const FB_Type> mathematics();
[[nodiscard]] std::span<const FB_Type> telegram();
[[nodiscard]] std::span<const FB_Type> control();
[[nodiscard]] std::span<const FB_Type> counter();
[[nodiscard]] std::span<const FB_Type> energy();
[[nodiscard]] std::span<const FB_Type> function();
[[nodiscard]] std::span<const FB_Type> alarm();
[[nodiscard]] std::span<const FB_Type> network();
[[nodiscard]] std::span<const FB_Type> device();
[[nodiscard]] std::span<const FB_Type> mqtt();
[[nodiscard]] std::span<const FB_Type> shelly();
[[nodiscard]] std::span<const FB_Type> buildingBlock();
[[nodiscard]] std::span<const FB_Type> buildingHs();
[[nodiscard]] std::span<const FB_Type> older(); ///< in no category: they come with older projects

} // namespace FB_Families
