#pragma once

#include "fb/model/FB_Type.h"

#include <QtGlobal>

/// Parameters and pins that types of several families have.
namespace FB_Shared {

[[nodiscard]] constexpr FB_Parameter inputCount(double minimum, double maximum, const char* usual) {
  return {.mName = QT_TRANSLATE_NOOP("FB_Types", "Anzahl Eingänge"),
          .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Eingänge, die der Baustein hat"),
          .mDefault = usual,
          .mMinimum = minimum,
          .mMaximum = maximum};
}

[[nodiscard]] constexpr FB_Parameter seconds(const char* name, const char* description, const char* usual,
                                             double minimum = 0) {
  return {.mName = name,
          .mDescription = description,
          .mDefault = usual,
          .mMinimum = minimum,
          .mMaximum = 864000,
          .mDecimals = 1,
          .mUnit = QT_TRANSLATE_NOOP("FB_Types", "s")};
}

[[nodiscard]] constexpr FB_Parameter check(const char* name, const char* description, const char* usual = "0") {
  return {.mName = name, .mDescription = description, .mEditor = FB_Editor::Check, .mDefault = usual};
}

[[nodiscard]] constexpr FB_Parameter choice(const char* name, const char* description,
                                            std::span<const FB_Choice> choices, const char* usual = "0") {
  return {
      .mName = name, .mDescription = description, .mEditor = FB_Editor::Choice, .mDefault = usual, .mChoices = choices};
}

inline constexpr FB_Choice cSendChoices[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Bei Änderung")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Bei jedem Eingangstelegramm")}};
inline constexpr FB_Parameter cSend = choice(
    QT_TRANSLATE_NOOP("FB_Types", "Ausgang senden"),
    QT_TRANSLATE_NOOP("FB_Types", "Wann der Baustein ein Telegramm auf die Adresse des Ausgangs sendet"), cSendChoices);

inline constexpr FB_Parameter cHysteresis = {
    .mName = QT_TRANSLATE_NOOP("FB_Types", "Hysterese"),
    .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Abstand zwischen Ein- und Ausschalten, in der Einheit der Eingänge"),
    .mDefault = "0.5",
    .mMinimum = 0,
    .mMaximum = 1000000,
    .mDecimals = 2};

/// One pin.
[[nodiscard]] constexpr FB_Pin_Group input(const char* longName, const char* shortName) {
  return {.mLongName = longName, .mShortName = shortName};
}
[[nodiscard]] constexpr FB_Pin_Group output(const char* longName, const char* shortName) {
  return {.mSide = FB_Side::Output, .mLongName = longName, .mShortName = shortName};
}

/// As many as parameter 0 says.
[[nodiscard]] constexpr FB_Pin_Group inputs(int minimum) {
  return {.mLongName = QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"),
          .mShortName = QT_TRANSLATE_NOOP("FB_Types", "E%1"),
          .mCount = minimum,
          .mParameter = 0};
}
[[nodiscard]] constexpr FB_Pin_Group outputs(int minimum) {
  return {.mSide = FB_Side::Output,
          .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Ausgang %1"),
          .mShortName = QT_TRANSLATE_NOOP("FB_Types", "A%1"),
          .mCount = minimum,
          .mParameter = 0};
}

inline constexpr FB_Pin_Group cInput =
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"));
inline constexpr FB_Pin_Group cOutput =
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "A"));
inline constexpr FB_Pin_Group cResult =
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"));
inline constexpr FB_Pin_Group cEnable =
    input(QT_TRANSLATE_NOOP("FB_Types", "Freigabe"), QT_TRANSLATE_NOOP("FB_Types", "F"));
inline constexpr FB_Pin_Group cActual =
    input(QT_TRANSLATE_NOOP("FB_Types", "Istwert"), QT_TRANSLATE_NOOP("FB_Types", "Ist"));

} // namespace FB_Shared
