#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// The block that computes a formula.
namespace FB_Formula_Declaration {

using namespace FB_Shared;

inline constexpr int cFormulaParameter = 1;
inline constexpr int cDecimalsParameter = 4;

inline constexpr FB_Choice cWhen[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Bei Änderung eines Eingangs")},
                                      {1, QT_TRANSLATE_NOOP("FB_Types", "Nur mit dem Trigger")},
                                      {2, QT_TRANSLATE_NOOP("FB_Types", "Zyklisch")}};

inline constexpr FB_Parameter cParameters[] = {
    inputCount(1, 8, "2"),
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Formel"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Was berechnet wird, aus den Eingängen E1 bis E8"),
     .mEditor = FB_Editor::Text,
     .mDefault = "E1 + E2"},
    choice(QT_TRANSLATE_NOOP("FB_Types", "Berechnen"),
           QT_TRANSLATE_NOOP("FB_Types", "Wann neu gerechnet wird; ein Trigger rechnet immer"), cWhen),
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Zyklus"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Abstand der zyklischen Berechnungen"),
     .mDefault = "60",
     .mMinimum = 1,
     .mMaximum = 86400,
     .mUnit = QT_TRANSLATE_NOOP("FB_Types", "s"),
     .mNeeds = 2,
     .mNeedsValue = 2},
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Nachkommastellen"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Auf so viele wird das Ergebnis gerundet; -1 lässt es ungerundet"),
     .mDefault = "-1",
     .mMinimum = -1,
     .mMaximum = 6},
    cSend,
};

inline constexpr FB_Pin_Group cPins[] = {
    {.mLongName = QT_TRANSLATE_NOOP("FB_Types", "Trigger"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "Tr"),
     .mDpt = cTrigger,
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Ein Telegramm mit 1 berechnet die Formel sofort")},
    {.mLongName = QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "E%1"),
     .mParameter = 0,
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Wert, der in der Formel \"E\" mit seiner Nummer heißt")},
    {.mSide = FB_Side::Output,
     .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "Erg"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Das gerundete Ergebnis der Formel")},
    {.mSide = FB_Side::Output,
     .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Ergebnis als Bit"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "Bit"),
     .mDpt = cBit,
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "1, wenn das gerundete Ergebnis ungleich 0 ist, sonst 0")},
    {.mSide = FB_Side::Output,
     .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Fehler"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "F"),
     .mDpt = cAlarm,
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "1, solange die Formel kein Ergebnis hat")},
};

inline constexpr FB_Type cType = {.mId = 1393,
                                  .mName = QT_TRANSLATE_NOOP("FB_Types", "Formel *"),
                                  .mClass = "FB_Formula",
                                  .mHasPins = true,
                                  .mParameters = cParameters,
                                  .mPins = cPins};

} // namespace FB_Formula_Declaration
