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

[[nodiscard]] constexpr FB_Parameter number(const char* name, const char* description, const char* usual,
                                            double minimum, double maximum, int decimals = 0, const char* unit = "") {
  return {.mName = name,
          .mDescription = description,
          .mDefault = usual,
          .mMinimum = minimum,
          .mMaximum = maximum,
          .mDecimals = decimals,
          .mUnit = unit};
}

[[nodiscard]] constexpr FB_Parameter text(const char* name, const char* description, const char* usual = "") {
  return {.mName = name, .mDescription = description, .mEditor = FB_Editor::Text, .mDefault = usual};
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
[[nodiscard]] constexpr FB_Pin_Group input(const char* longName, const char* shortName, const char* dpt = "",
                                           const char* description = "") {
  return {.mLongName = longName, .mShortName = shortName, .mDpt = dpt, .mDescription = description};
}
[[nodiscard]] constexpr FB_Pin_Group output(const char* longName, const char* shortName, const char* dpt = "",
                                            const char* description = "") {
  return {.mSide = FB_Side::Output,
          .mLongName = longName,
          .mShortName = shortName,
          .mDpt = dpt,
          .mDescription = description};
}

/// As many pins of that name as the parameter says, at least `minimum`.
[[nodiscard]] constexpr FB_Pin_Group counted(FB_Pin_Group pin, int minimum, int parameter = 0) {
  pin.mCount = minimum;
  pin.mParameter = parameter;
  return pin;
}

/// A pin that several types have, with what it takes or sends in one of them.
[[nodiscard]] constexpr FB_Pin_Group with(FB_Pin_Group pin, const char* dpt, const char* description) {
  pin.mDpt = dpt;
  pin.mDescription = description;
  return pin;
}

/// A parameter that matters only while the choice or check box at `index` has that value.
[[nodiscard]] constexpr FB_Parameter needs(FB_Parameter parameter, int index, int value) {
  parameter.mNeeds = index;
  parameter.mNeedsValue = value;
  return parameter;
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

inline constexpr const char* cBit = "1.001";
inline constexpr const char* cTrigger = "1.017";
inline constexpr const char* cAlarm = "1.005";
inline constexpr const char* cState = "1.011";
inline constexpr const char* cCount = "5.010";
inline constexpr const char* cPercent = "5.001";
inline constexpr const char* cText = "16.001";

inline constexpr FB_Choice cStartStates[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Aus")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Ein")},
                                             {2, QT_TRANSLATE_NOOP("FB_Types", "Letzter Zustand")}};

[[nodiscard]] constexpr FB_Parameter outputCount(double minimum, double maximum, const char* usual) {
  return number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
                QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, die der Baustein hat"), usual, minimum, maximum);
}

/// A type with these parameters and pins.
[[nodiscard]] constexpr FB_Type type(int id, const char* name, const char* className,
                                     std::span<const FB_Parameter> parameters, std::span<const FB_Pin_Group> pins) {
  return {.mId = id, .mName = name, .mClass = className, .mHasPins = true, .mParameters = parameters, .mPins = pins};
}
/// The same with another help page than that of the class.
[[nodiscard]] constexpr FB_Type withHelp(FB_Type type, const char* help) {
  type.mHelp = help;
  return type;
}
[[nodiscard]] constexpr FB_Type unframed(FB_Type type) {
  type.mBody = FB_Body::None;
  return type;
}
[[nodiscard]] constexpr FB_Type once(FB_Type type) {
  type.mIsOnce = true;
  return type;
}
/// Has no output, for this reason.
[[nodiscard]] constexpr FB_Type silent(FB_Type type, const char* reason) {
  type.mNoOutput = reason;
  return type;
}

} // namespace FB_Shared
