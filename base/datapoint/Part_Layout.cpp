#include "base/datapoint/Part_Layout.h"

namespace {

using Part = Part_Layout;
using Kind = Part_Layout::Kind;

constexpr int cScaled100ms = 100;
constexpr int cTariffMax = 254;
constexpr const char* cYes = "0=Nein|1=Ja";
constexpr const char* cSteps = "0=Stopp|1=100 %|2=50 %|3=25 %|4=12,5 %|5=6,25 %|6=3,125 %|7=1,5625 %";
constexpr const char* cDirections = "0=Verringern|1=Erhöhen";

constexpr Part flag(const char* key, const char* name, int bit) {
  return {.mKey = key, .mName = name, .mLow = bit, .mTexts = cYes};
}

constexpr Part number(const char* key, const char* name, int low, int bits, int mark = Part::cNoMark) {
  return {.mKey = key, .mName = name, .mLow = low, .mBits = bits, .mMark = mark};
}

constexpr Part percent(const char* key, const char* name, int low, int mark = Part::cNoMark) {
  return {.mKey = key, .mName = name, .mKind = Kind::Percent, .mLow = low, .mBits = 8, .mMark = mark, .mUnit = "%"};
}

constexpr Part period(int low, int factor, int mark = Part::cNoMark) {
  return {
      .mKey = "time_ms", .mName = "Zeit", .mLow = low, .mBits = 16, .mMark = mark, .mFactor = factor, .mUnit = "ms"};
}

constexpr Part direction(const char* key, const char* name, int low, int mark = Part::cNoMark) {
  return {.mKey = key, .mName = name, .mLow = low + 3, .mMark = mark, .mTexts = cDirections};
}

constexpr Part step(const char* key, int low, int mark = Part::cNoMark) {
  return {.mKey = key, .mLow = low, .mBits = 3, .mMark = mark, .mTexts = cSteps};
}

/// Its mark, if any, is set when the part is not valid.
constexpr Part tariff(int low, int mark) {
  return {.mKey = "tariff",
          .mName = "Tarif",
          .mLow = low,
          .mBits = 8,
          .mMark = mark,
          .mMarkIsInvalid = true,
          .mMax = cTariffMax};
}

constexpr Part cControl[] = {{.mKey = "control", .mName = "Zwang", .mLow = 1, .mTexts = cYes},
                             {.mKey = "value", .mName = "Wert"}};
constexpr Part cStep[] = {{.mKey = "direction", .mLow = 3, .mHasTypeTexts = true}, step("step", 0)};
constexpr Part cStatus[] = {
    number("A", "A", 7, 1), number("B", "B", 6, 1),
    number("C", "C", 5, 1), number("D", "D", 4, 1),
    number("E", "E", 3, 1), {.mKey = "mode", .mName = "Modus", .mKind = Kind::Mode, .mBits = 3}};
constexpr Part cTime[] = {{.mKey = "day"}, {.mKey = "time", .mKind = Kind::Text}};
constexpr Part cDateTime[] = {{.mKey = "date", .mKind = Kind::Bare_Text},
                              {.mKey = "time", .mKind = Kind::Bare_Text},
                              {.mKey = "day"},
                              {.mKey = "flags", .mName = "Merker", .mKind = Kind::Text}};
constexpr Part cAccess[] = {{.mKey = "code", .mName = "Code", .mKind = Kind::Decimals, .mLow = 8, .mBits = 24},
                            flag("E", "Fehler", 7),
                            flag("P", "Zugang erlaubt", 6),
                            flag("D", "Von rechts gelesen", 5),
                            flag("C", "Verschlüsselt", 4),
                            number("index", "Index", 0, 4)};
constexpr Part cSceneControl[] = {{.mKey = "learn", .mLow = 7, .mHasTypeTexts = true}, number("scene", "Szene", 0, 6)};
constexpr Part cSceneInfo[] = {{.mKey = "inactive", .mLow = 6, .mHasTypeTexts = true}, number("scene", "Szene", 0, 6)};
constexpr Part cBitset32[] = {{.mKey = "mask", .mName = "Maske", .mKind = Kind::Hex, .mLow = 16, .mBits = 16},
                              {.mKey = "state", .mName = "Zustand", .mKind = Kind::Hex, .mBits = 16}};
constexpr Part cVersion[] = {number("magic", "Kennung", 11, 5), number("version", "Version", 6, 5),
                             number("revision", "Revision", 0, 6)};
constexpr Part cScalingSpeed[] = {period(8, cScaled100ms), percent("percent", "Wert", 0)};
constexpr Part cScalingStepTime[] = {period(8, 1), percent("percent", "Wert", 0)};
constexpr Part cTariffNext[] = {{.mKey = "time_min", .mName = "Zeit", .mLow = 8, .mBits = 16, .mUnit = "min"},
                                tariff(0, Part::cNoMark)};
constexpr Part cMetering[] = {{.mKey = "value", .mKind = Kind::Number},
                              {.mKey = "unit", .mKind = Kind::Text},
                              {.mKey = "status", .mName = "Status", .mKind = Kind::Text}};
constexpr Part cRgb[] = {number("r", "Rot", 16, 8), number("g", "Grün", 8, 8), number("b", "Blau", 0, 8)};
constexpr Part cTariffEnergy[] = {{.mKey = "energy",
                                   .mName = "Energie",
                                   .mKind = Kind::Signed,
                                   .mLow = 16,
                                   .mBits = 32,
                                   .mMark = 1,
                                   .mMarkIsInvalid = true,
                                   .mUnit = "Wh"},
                                  tariff(8, 0)};
constexpr Part cSceneConfig[] = {flag("inactive", "Inaktiv", 7), flag("no_storage", "Speichern gesperrt", 6),
                                 number("scene", "Szene", 0, 6)};
constexpr Part cDali[] = {flag("ballast_failure", "Vorschaltgerät defekt", 7), flag("lamp_failure", "Lampe defekt", 6),
                          number("address", "Adresse", 0, 6)};
constexpr Part cFlaggedScaling[] = {percent("percent", "", 8, 0)};
constexpr Part cPositions[] = {percent("height", "Höhe", 16, 0), percent("slats", "Lamelle", 8, 1)};
constexpr Part cSabStatus[] = {percent("height", "Höhe", 24, 14),
                               percent("slats", "Lamelle", 16, 15),
                               flag("upper_end", "Obere Endlage", 0),
                               flag("lower_end", "Untere Endlage", 1),
                               flag("lower_preset", "Untere Vorgabeposition", 2),
                               flag("driving", "Fährt zum Ziel", 3),
                               flag("height_limited", "Höhe begrenzt", 4),
                               flag("slats_limited", "Lamelle begrenzt", 5),
                               flag("alarm", "Alarm", 6),
                               flag("forced", "Zwangsfahrt", 7),
                               flag("locked", "Gesperrt", 8),
                               flag("overridden", "Örtlich übersteuert", 9),
                               flag("failure", "Störung", 10)};
constexpr Part cXyy[] = {number("x", "x", 32, 16, 1), number("y", "y", 16, 16, 1),
                         number("brightness", "Helligkeit", 8, 8, 0)};
constexpr Part cXyyTransition[] = {period(48, cScaled100ms), number("x", "x", 32, 16, 1), number("y", "y", 16, 16, 1),
                                   number("brightness", "Helligkeit", 8, 8, 0)};
constexpr Part cBrightnessCtTransition[] = {
    period(32, cScaled100ms, 2),
    {.mKey = "kelvin", .mName = "Farbtemperatur", .mLow = 16, .mBits = 16, .mMark = 1, .mUnit = "K"},
    number("brightness", "Helligkeit", 8, 8, 0)};
constexpr Part cBrightnessCtControl[] = {direction("ct_direction", "Farbtemperatur", 16, 1), step("ct_step", 16, 1),
                                         direction("b_direction", "Helligkeit", 8, 0), step("b_step", 8, 0)};
constexpr Part cRgbw[] = {number("r", "Rot", 40, 8, 3), number("g", "Grün", 32, 8, 2), number("b", "Blau", 24, 8, 1),
                          number("w", "Weiß", 16, 8, 0)};
constexpr Part cRgbwControl[] = {direction("r_direction", "Rot", 32, 3),  step("r_step", 32, 3),
                                 direction("g_direction", "Grün", 24, 2), step("g_step", 24, 2),
                                 direction("b_direction", "Blau", 16, 1), step("b_step", 16, 1),
                                 direction("w_direction", "Weiß", 8, 0),  step("w_step", 8, 0)};
constexpr Part cXyyControl[] = {direction("x_direction", "x", 24, 2),         step("x_step", 24, 2),
                                direction("y_direction", "y", 16, 1),         step("y_step", 16, 1),
                                direction("b_direction", "Helligkeit", 8, 0), step("b_step", 8, 0)};
constexpr Part cRgbControl[] = {direction("r_direction", "Rot", 16), step("r_step", 16),
                                direction("g_direction", "Grün", 8), step("g_step", 8),
                                direction("b_direction", "Blau", 0), step("b_step", 0)};

} // namespace

std::span<const Part_Layout> Part_Layout::of(const Datapoint_Type& type) {
  constexpr Datapoint_Id cInMilliseconds{225, 2};
  switch (type.mFormat) {
  case Datapoint_Format::Control:
    return cControl;
  case Datapoint_Format::Step:
    return cStep;
  case Datapoint_Format::Status:
    return cStatus;
  case Datapoint_Format::Time:
    return cTime;
  case Datapoint_Format::Date_Time:
    return cDateTime;
  case Datapoint_Format::Access:
    return cAccess;
  case Datapoint_Format::Scene_Control:
    return cSceneControl;
  case Datapoint_Format::Scene_Info:
    return cSceneInfo;
  case Datapoint_Format::Bitset32:
    return cBitset32;
  case Datapoint_Format::Version:
    return cVersion;
  case Datapoint_Format::Scaling_Speed:
    return type.mId == cInMilliseconds ? cScalingStepTime : cScalingSpeed;
  case Datapoint_Format::Tariff_Next:
    return cTariffNext;
  case Datapoint_Format::Metering:
    return cMetering;
  case Datapoint_Format::Rgb:
    return cRgb;
  case Datapoint_Format::Tariff_Energy:
    return cTariffEnergy;
  case Datapoint_Format::Scene_Config:
    return cSceneConfig;
  case Datapoint_Format::Dali:
    return cDali;
  case Datapoint_Format::Flagged_Scaling:
    return cFlaggedScaling;
  case Datapoint_Format::Positions:
    return cPositions;
  case Datapoint_Format::Sab_Status:
    return cSabStatus;
  case Datapoint_Format::Xyy:
    return cXyy;
  case Datapoint_Format::Xyy_Transition:
    return cXyyTransition;
  case Datapoint_Format::Brightness_Ct_Transition:
    return cBrightnessCtTransition;
  case Datapoint_Format::Brightness_Ct_Control:
    return cBrightnessCtControl;
  case Datapoint_Format::Rgbw:
    return cRgbw;
  case Datapoint_Format::Rgbw_Control:
    return cRgbwControl;
  case Datapoint_Format::Xyy_Control:
    return cXyyControl;
  case Datapoint_Format::Rgb_Control:
    return cRgbControl;
  case Datapoint_Format::Bool:
  case Datapoint_Format::Char:
  case Datapoint_Format::Unsigned:
  case Datapoint_Format::Signed:
  case Datapoint_Format::Float16:
  case Datapoint_Format::Date:
  case Datapoint_Format::Float32:
  case Datapoint_Format::String_Ascii:
  case Datapoint_Format::String_Latin1:
  case Datapoint_Format::Scene:
  case Datapoint_Format::Enum8:
  case Datapoint_Format::Bitset8:
  case Datapoint_Format::Enum2:
  case Datapoint_Format::String_Utf8:
  case Datapoint_Format::Serial:
  case Datapoint_Format::Locale:
  case Datapoint_Format::Language:
    return {};
  }
  return {};
}
