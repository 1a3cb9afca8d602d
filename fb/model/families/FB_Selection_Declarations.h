#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// Parameters and pins of what selects, steps, encodes and shifts.
namespace FB_Selection {

using namespace FB_Shared;

inline constexpr FB_Pin_Group cSelection =
    input(QT_TRANSLATE_NOOP("FB_Types", "Auswahl"), QT_TRANSLATE_NOOP("FB_Types", "Ausw"), cCount,
          QT_TRANSLATE_NOOP("FB_Types", "Nummer dessen, was gewählt wird"));

inline constexpr FB_Parameter cInputSwitch[] = {
    inputCount(2, 32, "2"),
    number(
        QT_TRANSLATE_NOOP("FB_Types", "Wert für Eingang 1"),
        QT_TRANSLATE_NOOP("FB_Types", "Wert der Auswahl, der den ersten Eingang wählt; die weiteren Eingänge folgen"),
        "0", 0, 255),
    cSend,
};
inline constexpr FB_Pin_Group cInputSwitchPins[] = {
    cSelection,
    with(inputs(2), "", QT_TRANSLATE_NOOP("FB_Types", "Wert, der weitergegeben wird, wenn dieser Eingang gewählt ist")),
    with(cOutput, "", QT_TRANSLATE_NOOP("FB_Types", "Wert des gewählten Eingangs"))};

inline constexpr FB_Choice cUnselected[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nicht senden")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Ruhewert senden")}};
inline constexpr FB_Choice cFirstNumbers[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ab 0")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Ab 1")}};
inline constexpr FB_Parameter cOutputSwitch[] = {
    outputCount(2, 64, "2"),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Ruhewert"),
                 QT_TRANSLATE_NOOP("FB_Types", "Was ein Ausgang sendet, sobald er nicht mehr gewählt ist"), "0",
                 -4294967295.0, 4294967295.0, 1),
          2, 1),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Nicht gewählte Ausgänge"),
           QT_TRANSLATE_NOOP("FB_Types", "Was die Ausgänge tun, die nicht gewählt sind"), cUnselected),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Zählung der Auswahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Welcher Wert der Auswahl den ersten Ausgang wählt"), cFirstNumbers),
};
inline constexpr FB_Pin_Group cOutputSwitchPins[] = {
    with(cInput, "", QT_TRANSLATE_NOOP("FB_Types", "Wert, den der gewählte Ausgang weitergibt")), cSelection,
    with(outputs(2), "", QT_TRANSLATE_NOOP("FB_Types", "Wert des Eingangs, solange der Ausgang gewählt ist"))};

inline constexpr FB_Choice cManualStarts[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Automatik")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Hand")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Letzte Betriebsart")}};
inline constexpr FB_Choice cManualChanges[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Handwerte senden")},
                                               {1, QT_TRANSLATE_NOOP("FB_Types", "Letzte Werte behalten")}};
inline constexpr FB_Parameter cManualAutomatic[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, jeder mit einem Eingang für Automatik und einem für Hand"), "1", 1,
           128),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Betriebsart beim Start"),
           QT_TRANSLATE_NOOP("FB_Types", "Womit der Baustein beim Start der Steuerung beginnt"), cManualStarts),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Beim Wechsel auf Hand"),
           QT_TRANSLATE_NOOP("FB_Types", "Was die Ausgänge senden, wenn auf Hand geschaltet wird"), cManualChanges),
    cSend,
};
inline constexpr FB_Pin_Group cManualAutomaticPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Hand/Automatik"), QT_TRANSLATE_NOOP("FB_Types", "H/A"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein gibt die Handwerte weiter, Aus die der Automatik")),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Automatik %1"), QT_TRANSLATE_NOOP("FB_Types", "Aut%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der in der Automatik gilt")),
            1),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Hand %1"), QT_TRANSLATE_NOOP("FB_Types", "Hd%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der im Handbetrieb gilt")),
            1),
    with(outputs(1), "", QT_TRANSLATE_NOOP("FB_Types", "Wert der Automatik oder der Hand mit derselben Nummer")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Handbetrieb"), QT_TRANSLATE_NOOP("FB_Types", "HB"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange die Handwerte gelten"))};

inline constexpr FB_Choice cStepKinds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nur die aktuelle Stufe")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "Alle Stufen bis zur aktuellen")}};
inline constexpr FB_Choice cStepStarts[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Stufe 0")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Letzte Stufe")}};
inline constexpr FB_Parameter cStep[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Stufen"),
           QT_TRANSLATE_NOOP("FB_Types", "Stufen, jede mit ihrem Ausgang"), "3", 2, 64),
    number(QT_TRANSLATE_NOOP("FB_Types", "Umschaltpause"),
           QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, in der beim Wechsel alle Ausgänge Aus sind"), "0", 0, 3600,
           1, QT_TRANSLATE_NOOP("FB_Types", "s")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art der Ausgänge"),
           QT_TRANSLATE_NOOP("FB_Types", "Welche Ausgänge bei einer Stufe Ein sind"), cStepKinds),
    check(QT_TRANSLATE_NOOP("FB_Types", "Umlaufend"),
          QT_TRANSLATE_NOOP("FB_Types", "Auf die höchste Stufe folgt mit Auf wieder die niedrigste, umgekehrt mit Ab")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Stufe 0 erlaubt"),
          QT_TRANSLATE_NOOP("FB_Types", "Mit Ab kann ganz ausgeschaltet werden; sonst ist 1 die niedrigste Stufe"),
          "1"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Stufe beim Start"),
           QT_TRANSLATE_NOOP("FB_Types", "Mit welcher Stufe der Baustein beim Start der Steuerung beginnt"),
           cStepStarts),
};
inline constexpr FB_Pin_Group cStepPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auf"), QT_TRANSLATE_NOOP("FB_Types", "Auf"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Jedes Ein wählt die nächsthöhere Stufe")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Ab"), QT_TRANSLATE_NOOP("FB_Types", "Ab"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Jedes Ein wählt die nächstniedrigere Stufe")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Stufe setzen"), QT_TRANSLATE_NOOP("FB_Types", "Set"), cCount,
          QT_TRANSLATE_NOOP("FB_Types", "Nummer der Stufe, 0 für alles aus")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein wählt die niedrigste Stufe")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Stufe %1"), QT_TRANSLATE_NOOP("FB_Types", "St%1"), cBit,
                   QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn die Stufe geschaltet ist")),
            2),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktuelle Stufe"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), cCount,
           QT_TRANSLATE_NOOP("FB_Types", "Nummer der gewählten Stufe, 0 für keine"))};

inline constexpr FB_Choice cChainStarts[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Angehalten")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Mit Schritt 1")},
                                             {2, QT_TRANSLATE_NOOP("FB_Types", "Mit dem letzten Schritt")}};
inline constexpr FB_Parameter cStepChain[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Bedingungen"),
           QT_TRANSLATE_NOOP("FB_Types", "Eingänge, die Schritte weiterschalten können"), "0", 0, 8),
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Schritte"),
           QT_TRANSLATE_NOOP("FB_Types", "Schritte, die nacheinander durchlaufen werden"), "4", 1, 32),
    text(QT_TRANSLATE_NOOP("FB_Types", "Dauer der Schritte"),
         QT_TRANSLATE_NOOP("FB_Types",
                           "Sekunden je Schritt, mit Semikolon getrennt: 10;30;0;5 - 0 oder nichts schaltet "
                           "nicht von selbst weiter")),
    text(QT_TRANSLATE_NOOP("FB_Types", "Bedingung der Schritte"),
         QT_TRANSLATE_NOOP("FB_Types", "Nummer der Bedingung je Schritt, mit Semikolon getrennt: 1;1;2 - 0 oder "
                                       "nichts wartet auf keine")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Wiederholen"),
          QT_TRANSLATE_NOOP("FB_Types", "Auf den letzten Schritt folgt wieder der erste; sonst endet die Kette")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Beim Start der Steuerung"),
           QT_TRANSLATE_NOOP("FB_Types", "Womit die Kette beim Start der Steuerung beginnt"), cChainStarts),
};
inline constexpr FB_Pin_Group cStepChainPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Start"), QT_TRANSLATE_NOOP("FB_Types", "Start"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt die Kette mit Schritt 1")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Stopp"), QT_TRANSLATE_NOOP("FB_Types", "Stopp"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein beendet die Kette, die Schrittnummer wird 0")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Pause"), QT_TRANSLATE_NOOP("FB_Types", "Pause"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Solange Ein, bleiben Schritt und Zeit stehen")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Weiterschalten"), QT_TRANSLATE_NOOP("FB_Types", "Weiter"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Jedes Ein wählt sofort den nächsten Schritt")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Zu Schritt springen"), QT_TRANSLATE_NOOP("FB_Types", "Sprung"), cCount,
          QT_TRANSLATE_NOOP("FB_Types", "Nummer des Schritts, mit dem es weitergeht")),
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types",
                           "Aus hält die Kette an und lässt keinen Start zu; nicht verbunden ist freigegeben")),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Bedingung %1"), QT_TRANSLATE_NOOP("FB_Types", "B%1"), cBit,
                  QT_TRANSLATE_NOOP("FB_Types", "Ein schaltet einen Schritt weiter, der auf sie wartet")),
            0),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktuelle Schrittnummer"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), cCount,
           QT_TRANSLATE_NOOP("FB_Types", "Nummer des laufenden Schritts, 0 wenn die Kette steht"))};

inline constexpr FB_Choice cEncodings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Bitmuster")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "Nummer des höchsten Eingangs")},
                                           {2, QT_TRANSLATE_NOOP("FB_Types", "Nummer des niedrigsten Eingangs")}};
inline constexpr FB_Parameter cEncoder[] = {
    inputCount(1, 16, "4"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art"),
           QT_TRANSLATE_NOOP("FB_Types",
                             "Wie aus den Eingängen der Wert wird; Eingang 1 zählt im Bitmuster 1, Eingang 2 zählt 2, "
                             "Eingang 3 zählt 4"),
           cEncodings),
    cSend,
};
inline constexpr FB_Pin_Group cEncoderPins[] = {
    with(inputs(1), cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand einer Stelle")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "7.001",
           QT_TRANSLATE_NOOP("FB_Types", "Zahl aus den Eingängen, 0 wenn keiner Ein ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Eingang aktiv"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn mindestens ein Eingang Ein ist"))};

inline constexpr FB_Choice cDecodings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Bitmuster")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "Nummer des Ausgangs")}};
inline constexpr FB_Parameter cDecoder[] = {
    outputCount(1, 16, "4"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art"), QT_TRANSLATE_NOOP("FB_Types", "Wie aus dem Wert die Ausgänge werden"),
           cDecodings),
    cSend,
};
inline constexpr FB_Pin_Group cDecoderPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "7.001",
          QT_TRANSLATE_NOOP("FB_Types", "Zahl, die in ihre Stellen zerlegt wird")),
    with(outputs(1), cBit,
         QT_TRANSLATE_NOOP("FB_Types",
                           "Ein, wenn die Stelle in der Zahl gesetzt ist oder die Nummer die des Ausgangs ist"))};

inline constexpr FB_Choice cDirections[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Vorwärts")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Rückwärts")}};
inline constexpr FB_Parameter cShift[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Plätze"),
           QT_TRANSLATE_NOOP("FB_Types", "Werte, die gespeichert werden, jeder mit seinem Ausgang"), "4", 2, 16),
    number(QT_TRANSLATE_NOOP("FB_Types", "Anfangswert"),
           QT_TRANSLATE_NOOP("FB_Types", "Was nach dem Start und nach dem Rücksetzen auf allen Plätzen steht"), "0",
           -4294967295.0, 4294967295.0, 1),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Richtung"),
           QT_TRANSLATE_NOOP("FB_Types", "Vorwärts wandern die Werte von Platz 1 zum letzten, rückwärts umgekehrt"),
           cDirections),
    check(QT_TRANSLATE_NOOP("FB_Types", "Umlaufend"),
          QT_TRANSLATE_NOOP(
              "FB_Types", "Der herausgeschobene Wert kommt an den Anfang zurück, wenn am Eingang 0 oder nichts steht")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Werte behalten"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach einem Neustart der Steuerung stehen die Werte wieder auf ihren Plätzen")),
};
inline constexpr FB_Pin_Group cShiftPins[] = {
    with(cInput, "", QT_TRANSLATE_NOOP("FB_Types", "Wert, der beim nächsten Takt auf den ersten Platz kommt")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Takt"), QT_TRANSLATE_NOOP("FB_Types", "T"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Jedes Ein schiebt alle Werte um einen Platz")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein stellt alle Plätze auf den Anfangswert")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert auf diesem Platz")),
            2)};

} // namespace FB_Selection
