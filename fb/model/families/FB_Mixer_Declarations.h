#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of mixers.
namespace FB_Mixer {

using namespace FB_Shared;

inline constexpr FB_Choice cMixerStops[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Zufahren")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Stehen bleiben")},
                                            {2, QT_TRANSLATE_NOOP("FB_Types", "Auffahren")}};
inline constexpr FB_Parameter cDriveTime =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit des Antriebs von ganz zu bis ganz offen"), "120", 5);
inline constexpr FB_Parameter cMixerDeadBand =
    number(QT_TRANSLATE_NOOP("FB_Types", "Totbereich"),
           QT_TRANSLATE_NOOP("FB_Types", "Bis zu dieser Abweichung bleibt der Mischer stehen"), "1", 0.1, 10, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K"));
inline constexpr FB_Parameter cMixerCycle =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zyklus"),
            QT_TRANSLATE_NOOP("FB_Types", "Abstand zwischen zwei Stellbefehlen"), "20", 2);
inline constexpr FB_Parameter cMixerGain =
    number(QT_TRANSLATE_NOOP("FB_Types", "Verstärkung"), QT_TRANSLATE_NOOP("FB_Types", "Stellweg je Grad Abweichung"),
           "2", 0.1, 20, 1, QT_TRANSLATE_NOOP("FB_Types", "%/K"));
inline constexpr FB_Parameter cMixerWithoutEnable =
    choice(QT_TRANSLATE_NOOP("FB_Types", "Ohne Freigabe"),
           QT_TRANSLATE_NOOP("FB_Types", "Was der Mischer ohne Freigabe tut"), cMixerStops);
inline constexpr FB_Pin_Group cMixedActual =
    input(QT_TRANSLATE_NOOP("FB_Types", "Istwert"), QT_TRANSLATE_NOOP("FB_Types", "Ist"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Temperatur nach dem Mischer"));
inline constexpr FB_Pin_Group cMixedSetpoint =
    input(QT_TRANSLATE_NOOP("FB_Types", "Sollwert"), QT_TRANSLATE_NOOP("FB_Types", "Soll"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gewünschte Temperatur nach dem Mischer"));
inline constexpr FB_Pin_Group cMixerOpen =
    output(QT_TRANSLATE_NOOP("FB_Types", "Auf"), QT_TRANSLATE_NOOP("FB_Types", "M+"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Öffnet den Mischer"));
inline constexpr FB_Pin_Group cMixerClose =
    output(QT_TRANSLATE_NOOP("FB_Types", "Zu"), QT_TRANSLATE_NOOP("FB_Types", "M-"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schließt den Mischer"));
inline constexpr FB_Pin_Group cMixerPosition =
    output(QT_TRANSLATE_NOOP("FB_Types", "Stellung"), QT_TRANSLATE_NOOP("FB_Types", "Y"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Berechnete Stellung"));
inline constexpr FB_Parameter cMixer[] = {
    cDriveTime, cMixerDeadBand, cMixerCycle, cMixerGain, cMixerWithoutEnable,
};
inline constexpr FB_Pin_Group cMixerPins[] = {
    cMixedActual, cMixedSetpoint, cEnableWhenOn, cMixerOpen, cMixerClose, cMixerPosition,
};

inline constexpr FB_Choice cReturnLimits[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Mindesttemperatur")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Höchsttemperatur")}};
inline constexpr FB_Parameter cMixerReturnLimit[] = {
    cDriveTime,
    cMixerDeadBand,
    cMixerCycle,
    cMixerGain,
    cMixerWithoutEnable,
    number(
        QT_TRANSLATE_NOOP("FB_Types", "Rücklaufgrenze"),
        QT_TRANSLATE_NOOP("FB_Types", "Unter der Mindest- oder über der Höchsttemperatur wird der Mischer zugefahren"),
        "55", 0, 90, 1, QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Hysterese Rücklauf"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand, bis wieder geregelt wird"), "3", 0.5, 20, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Begrenzung"),
           QT_TRANSLATE_NOOP("FB_Types", "Welche Grenze der Rücklauf einhalten muss"), cReturnLimits),
};
inline constexpr FB_Pin_Group cMixerReturnLimitPins[] = {
    cMixedActual,
    cMixedSetpoint,
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücklauf"), QT_TRANSLATE_NOOP("FB_Types", "RL"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Rücklauftemperatur")),
    cMixerOpen,
    cMixerClose,
    cMixerPosition,
    output(QT_TRANSLATE_NOOP("FB_Types", "Begrenzung aktiv"), QT_TRANSLATE_NOOP("FB_Types", "B"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Rücklauf begrenzt wird")),
};

inline constexpr FB_Parameter cMixerKNXOutput[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Verstärkung"), QT_TRANSLATE_NOOP("FB_Types", "Stellweg je Grad Abweichung"),
           "4", 0.1, 50, 1, QT_TRANSLATE_NOOP("FB_Types", "%/K")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Nachstellzeit"),
            QT_TRANSLATE_NOOP(
                "FB_Types",
                "Je kürzer, desto schneller wird eine bleibende Abweichung ausgeregelt; 0 schaltet den I-Anteil ab"),
            "180"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Stellwert mindestens"), QT_TRANSLATE_NOOP("FB_Types", "Kleinster Stellwert"),
           "0", 0, 100, 0, QT_TRANSLATE_NOOP("FB_Types", "%")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Stellwert höchstens"), QT_TRANSLATE_NOOP("FB_Types", "Größter Stellwert"),
           "100", 0, 100, 0, QT_TRANSLATE_NOOP("FB_Types", "%")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mindeständerung"),
           QT_TRANSLATE_NOOP("FB_Types", "Erst ab dieser Änderung wird gesendet"), "1", 0, 20, 0,
           QT_TRANSLATE_NOOP("FB_Types", "%")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zyklus senden"),
            QT_TRANSLATE_NOOP("FB_Types", "Sendet auch ohne Änderung; 0 sendet nur bei Änderung"), "600"),
};
inline constexpr FB_Pin_Group cMixerKNXOutputPins[] = {
    cMixedActual,
    cMixedSetpoint,
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Stellwert"), QT_TRANSLATE_NOOP("FB_Types", "Y"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Stellung des Mischers an den KNX-Aktor")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Regelabweichung"), QT_TRANSLATE_NOOP("FB_Types", "dT"), "9.002",
           QT_TRANSLATE_NOOP("FB_Types", "Soll minus Ist")),
};

} // namespace FB_Mixer
