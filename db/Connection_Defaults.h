#pragma once

#include <QString>

/// What a connection to a controller begins with.
namespace Connection_Defaults {

/// "root".
[[nodiscard]] QString user();
/// The password that a controller has when it leaves the factory.
[[nodiscard]] QString password();
/// The maker's relay service: a host of the reserved domain ".example" (RFC 2606).
[[nodiscard]] QString relayHost();

} // namespace Connection_Defaults
