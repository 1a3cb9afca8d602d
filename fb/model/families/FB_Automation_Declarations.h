#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// What the declarations of calculation, control and building blocks have in common.
namespace FB_Shared {

/// A fixed number of pins of that name.
[[nodiscard]] constexpr FB_Pin_Group several(FB_Pin_Group pin, int count) {
  pin.mCount = count;
  return pin;
}

[[nodiscard]] constexpr FB_Parameter fileName(const char* name, const char* description, const char* usual = "") {
  return {.mName = name, .mDescription = description, .mEditor = FB_Editor::File_Name, .mDefault = usual};
}

[[nodiscard]] constexpr FB_Type lighter(FB_Type type) {
  type.mBody = FB_Body::Lighter;
  return type;
}

inline constexpr FB_Pin_Group cEnableWhenOn = with(
    cEnable, "1.003", QT_TRANSLATE_NOOP("FB_Types", "Ein gibt den Baustein frei; ohne Verknüpfung ist er immer frei"));
inline constexpr FB_Pin_Group cLock =
    input(QT_TRANSLATE_NOOP("FB_Types", "Sperre"), QT_TRANSLATE_NOOP("FB_Types", "Sp"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein sperrt Bedienung und Automatik; der Zustand bleibt"));
inline constexpr FB_Pin_Group cLocked =
    output(QT_TRANSLATE_NOOP("FB_Types", "Gesperrt"), QT_TRANSLATE_NOOP("FB_Types", "Gsp"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Baustein gesperrt ist"));

} // namespace FB_Shared
