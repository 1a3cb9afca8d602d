#pragma once

#include <QString>
#include <QStringView>

/// The studio's own version, written into every project at New and at every save.
///
/// Versions are compared as decimal numbers: "2.4" is above "2.3146".
namespace Version {

/// "2.3146".
[[nodiscard]] QString studio();

/// Reads a version as a decimal number with a point; text that is none reads as 0.
[[nodiscard]] double number(QStringView text);

/// True when `version` is greater than the studio's own; an equal one is not.
[[nodiscard]] bool isNewerThanStudio(QStringView version);

} // namespace Version
