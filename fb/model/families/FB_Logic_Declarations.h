#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// Parameters and pins of what links binary values: gates, inversions, memories, assignments.
namespace FB_Logic {

using namespace FB_Shared;

inline constexpr FB_Parameter cInvert =
    check(QT_TRANSLATE_NOOP("FB_Types", "Ausgang invertieren"),
          QT_TRANSLATE_NOOP("FB_Types", "Der Ausgang sendet das Gegenteil des Ergebnisses"));
inline constexpr FB_Parameter cGate64[] = {inputCount(2, 64, "2"), cInvert, cSend};
inline constexpr FB_Parameter cGate32[] = {inputCount(2, 32, "2"), cInvert, cSend};
inline constexpr FB_Pin_Group cGatePins[] = {
    with(inputs(2), cBit,
         QT_TRANSLATE_NOOP("FB_Types", "Zustand, der verknüpft wird; nicht verbunden zählt er nicht mit")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ergebnis der Verknüpfung"))};

inline constexpr FB_Parameter cInversion[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Eingänge, jeder mit seinem Ausgang"),
           "1", 1, 64),
    cSend,
};
inline constexpr FB_Pin_Group cInversionPins[] = {
    with(inputs(1), cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand, der umgekehrt wird")),
    with(outputs(1), cBit, QT_TRANSLATE_NOOP("FB_Types", "Gegenteil des Eingangs mit derselben Nummer"))};

inline constexpr FB_Parameter cInversionN[] = {outputCount(1, 32, "2"), cSend};
inline constexpr FB_Pin_Group cInversionNPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand, der umgekehrt wird")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), cBit,
                   QT_TRANSLATE_NOOP("FB_Types", "Gegenteil des Eingangs")),
            1)};

inline constexpr FB_Choice cPriorities[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Setzen")}};
inline constexpr FB_Parameter cSetReset[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Vorrang"),
           QT_TRANSLATE_NOOP("FB_Types", "Was gilt, wenn beide Eingänge gesetzt sind"), cPriorities),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Zustand beim Start"),
           QT_TRANSLATE_NOOP("FB_Types", "Mit welchem Zustand der Ausgang beim Start der Steuerung beginnt"),
           cStartStates),
    cSend,
};
inline constexpr FB_Pin_Group cSetResetPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Setzen"), QT_TRANSLATE_NOOP("FB_Types", "S"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt den Ausgang, Aus ändert nichts")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt den Ausgang zurück, Aus ändert nichts")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Gespeicherter Zustand"))};

inline constexpr FB_Parameter cEdge[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Impulsdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, nach der ein Ausgang wieder Aus sendet; 0 sendet nur Ein"),
            "0.5"),
};
inline constexpr FB_Pin_Group cEdgePins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand, dessen Wechsel ausgewertet werden")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Steigende Flanke"), QT_TRANSLATE_NOOP("FB_Types", "SF"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Eingang von Aus auf Ein wechselt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fallende Flanke"), QT_TRANSLATE_NOOP("FB_Types", "FF"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Eingang von Ein auf Aus wechselt"))};

inline constexpr FB_Parameter cAssign[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Eingänge, jeder mit seinem Ausgang"),
           "1", 1, 64),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wert bei Ein"),
           QT_TRANSLATE_NOOP("FB_Types", "Was ein Ausgang sendet, wenn sein Eingang Ein ist; bei Aus sendet er 0"), "1",
           -4294967295.0, 4294967295.0, 6),
};
inline constexpr FB_Pin_Group cAssignPins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "E %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), cBit,
                  QT_TRANSLATE_NOOP("FB_Types", "Zustand, der zugewiesen wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert bei Ein oder 0, nach dem Eingang mit derselben Nummer")),
            1),
};

inline constexpr FB_Parameter cAssignN[] = {
    outputCount(1, 32, "2"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Ausgänge invertieren"),
          QT_TRANSLATE_NOOP("FB_Types", "Die Ausgänge senden das Gegenteil des Eingangs")),
    cSend,
};
inline constexpr FB_Pin_Group cAssignNPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand, der auf alle Ausgänge verteilt wird")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), cBit,
                   QT_TRANSLATE_NOOP("FB_Types", "Zustand des Eingangs")),
            1)};

} // namespace FB_Logic
