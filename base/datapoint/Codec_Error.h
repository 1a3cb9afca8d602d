#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

/// How the codecs of the datapoint types tell why they refuse something.
namespace Codec_Error {

/// A German text of the codecs in the chosen language.
[[nodiscard]] inline QString tr(const char* text) {
  return QCoreApplication::translate("Datapoint_Codec", text);
}

/// Sets `error`, if given, and is an empty result.
inline std::nullopt_t refuse(QString* error, const QString& text) {
  if (error) {
    *error = text;
  }
  return std::nullopt;
}

/// "300 liegt nicht im Bereich 0 bis 255." Limits as texts with their unit.
[[nodiscard]] inline QString outOfRange(const QString& value, const QString& min, const QString& max) {
  constexpr qsizetype cMostShown = 40;
  return tr("%1 liegt nicht im Bereich %2 bis %3.").arg(value.left(cMostShown), min, max);
}

} // namespace Codec_Error
