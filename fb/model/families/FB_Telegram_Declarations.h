#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of blocks that pass on, send and watch telegrams.
namespace FB_Telegram {

using namespace FB_Shared;

inline constexpr FB_Parameter cChannels =
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Eingänge, jeder mit seinem Ausgang"),
           "1", 1, 64);
inline constexpr FB_Parameter cAssignTo11KNX[] = {
    cChannels,
    number(QT_TRANSLATE_NOOP("FB_Types", "Faktor"),
           QT_TRANSLATE_NOOP("FB_Types", "Zahlen werden damit multipliziert; 1 gibt sie unverändert weiter"), "1",
           -4294967295.0, 4294967295.0, 6),
    cSend,
};
inline constexpr FB_Pin_Group cAssignTo11KNXPins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "E %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "KNX-Wert, der weitergegeben wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert des Eingangs dieses Kanals, mit dem Faktor multipliziert")),
            1),
};

inline constexpr FB_Parameter cAssignTo1NKNX[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, die den Wert des Eingangs bekommen"), "1", 1, 32),
    cSend,
};
inline constexpr FB_Pin_Group cAssignTo1NKNXPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "KNX-Wert, der verteilt wird")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert des Eingangs")),
            1),
};

inline constexpr FB_Choice cOnOff[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nichts senden")},
                                       {1, QT_TRANSLATE_NOOP("FB_Types", "Wert senden")}};
inline constexpr FB_Parameter cAssignTo1NKNXValue[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, die den Wert bekommen"),
           "1", 1, 32),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wert bei Ein"),
           QT_TRANSLATE_NOOP("FB_Types", "Was die Ausgänge senden, wenn der Eingang Ein ist"), "1", -4294967295.0,
           4294967295.0, 6),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Bei Aus"),
           QT_TRANSLATE_NOOP("FB_Types", "Was geschieht, wenn der Eingang Aus ist"), cOnOff),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Wert bei Aus"),
                 QT_TRANSLATE_NOOP("FB_Types", "Was die Ausgänge senden, wenn der Eingang Aus ist"), "0", -4294967295.0,
                 4294967295.0, 6),
          2, 1),
};
inline constexpr FB_Pin_Group cAssignTo1NKNXValuePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Löst das Senden aus")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Sendet den festen Wert")),
            1),
};

inline constexpr FB_Parameter cTelegramMonitoring[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Überwachungszeit"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange darf der Eingang ohne Telegramm bleiben"), "3600", 1),
    check(QT_TRANSLATE_NOOP("FB_Types", "Ab dem Start überwachen"),
          QT_TRANSLATE_NOOP("FB_Types", "Zählt auch, wenn seit dem Start noch nie ein Telegramm kam"), "1"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Bei Ausfall lesen"),
          QT_TRANSLATE_NOOP("FB_Types", "Sendet eine Leseanforderung, bevor eine Störung gemeldet wird")),
};
inline constexpr FB_Pin_Group cTelegramMonitoringPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Adresse, deren Telegramme überwacht werden")),
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Quittierung"), QT_TRANSLATE_NOOP("FB_Types", "Q"), "1.016",
          QT_TRANSLATE_NOOP("FB_Types", "Ein löscht die Störung bis zur nächsten Überwachungszeit")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn zu lange kein Telegramm kam")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Letztes Telegramm"), QT_TRANSLATE_NOOP("FB_Types", "t"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Zeitpunkt des letzten Telegramms")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Sekunden seit Telegramm"), QT_TRANSLATE_NOOP("FB_Types", "s"), "13.100",
           QT_TRANSLATE_NOOP("FB_Types", "Zeit seit dem letzten Telegramm")),
};

inline constexpr FB_Parameter cFeedbackMonitoring[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Wartezeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit, in der die Rückmeldung kommen muss"), "5", 0.1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Toleranz"),
           QT_TRANSLATE_NOOP("FB_Types", "Um so viel darf die Rückmeldung vom Befehl abweichen"), "0", 0, 1000000, 2),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wiederholungen"),
           QT_TRANSLATE_NOOP("FB_Types", "So oft wird der Befehl wiederholt, bevor eine Störung gemeldet wird"), "1", 0,
           10),
    check(QT_TRANSLATE_NOOP("FB_Types", "Störung speichern"),
          QT_TRANSLATE_NOOP("FB_Types", "Die Störung bleibt bis zur Quittierung")),
};
inline constexpr FB_Pin_Group cFeedbackMonitoringPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Befehl"), QT_TRANSLATE_NOOP("FB_Types", "Bef"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der an das Gerät geht")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rückmeldung"), QT_TRANSLATE_NOOP("FB_Types", "RM"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, den das Gerät zurückmeldet")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Quittierung"), QT_TRANSLATE_NOOP("FB_Types", "Q"), "1.016",
          QT_TRANSLATE_NOOP("FB_Types", "Ein löscht eine gespeicherte Störung")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Befehl wiederholen"), QT_TRANSLATE_NOOP("FB_Types", "Wh"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet den Befehl noch einmal")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn Befehl und Rückmeldung nicht übereinstimmen")),
};

inline constexpr FB_Choice cReceived[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Schreiben und Antwort")},
                                          {1, QT_TRANSLATE_NOOP("FB_Types", "Schreiben")},
                                          {2, QT_TRANSLATE_NOOP("FB_Types", "Lesen")},
                                          {3, QT_TRANSLATE_NOOP("FB_Types", "Antwort")},
                                          {4, QT_TRANSLATE_NOOP("FB_Types", "Alle")}};
inline constexpr FB_Parameter cKNXTelegramInput[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Telegrammart"),
           QT_TRANSLATE_NOOP("FB_Types", "Welche Telegramme ausgewertet werden"), cReceived),
    text(QT_TRANSLATE_NOOP("FB_Types", "Absender"),
         QT_TRANSLATE_NOOP(
             "FB_Types",
             "Physikalische Adresse, von der die Telegramme kommen müssen, zum Beispiel 1.1.5; leer für jeden")),
};
inline constexpr FB_Pin_Group cKNXTelegramInputPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Gruppenadresse, deren Telegramme ausgewertet werden")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Wert des Telegramms")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Absender"), QT_TRANSLATE_NOOP("FB_Types", "Abs"), "16.001",
           QT_TRANSLATE_NOOP("FB_Types", "Physikalische Adresse des Absenders")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Telegrammart"), QT_TRANSLATE_NOOP("FB_Types", "Art"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "0 Lesen, 1 Antwort, 2 Schreiben")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Empfangen"), QT_TRANSLATE_NOOP("FB_Types", "Emp"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet bei jedem Telegramm Ein")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zeitpunkt"), QT_TRANSLATE_NOOP("FB_Types", "t"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Wann das Telegramm kam")),
};

inline constexpr FB_Choice cSent[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Schreiben")},
                                      {1, QT_TRANSLATE_NOOP("FB_Types", "Lesen")},
                                      {2, QT_TRANSLATE_NOOP("FB_Types", "Antwort")}};
inline constexpr FB_Choice cPriorities[] = {{3, QT_TRANSLATE_NOOP("FB_Types", "Niedrig")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Normal")},
                                            {2, QT_TRANSLATE_NOOP("FB_Types", "Dringend")},
                                            {0, QT_TRANSLATE_NOOP("FB_Types", "System")}};
inline constexpr FB_Parameter cKNXTelegramOutput[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Telegrammart"),
           QT_TRANSLATE_NOOP("FB_Types", "Welches Telegramm gesendet wird"), cSent),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Priorität"),
           QT_TRANSLATE_NOOP("FB_Types", "Vorrang des Telegramms auf dem Bus"), cPriorities, "3"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Bei Änderung senden"),
          QT_TRANSLATE_NOOP("FB_Types", "Sendet auch, wenn sich der Wert ändert, nicht nur auf \"Senden\"")),
};
inline constexpr FB_Pin_Group cKNXTelegramOutputPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der gesendet wird")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Senden"), QT_TRANSLATE_NOOP("FB_Types", "S"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein sendet das Telegramm")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "A"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Gruppenadresse, auf die gesendet wird")),
};

inline constexpr FB_Parameter cAddressCount = number(
    QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Adressen, die gelesen werden"), "1", 1, 64);
inline constexpr FB_Parameter cGap =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Abstand"),
            QT_TRANSLATE_NOOP("FB_Types", "Pause zwischen zwei Telegrammen, damit der Bus frei bleibt"), "0.2", 0.1);
inline constexpr FB_Parameter cAnswerTime =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Wartezeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit, in der die Antwort kommen muss"), "3", 0.5);
inline constexpr FB_Pin_Group cReadAddress =
    input(QT_TRANSLATE_NOOP("FB_Types", "Adresse %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Adresse, auf die eine Leseanforderung gesendet wird"));
inline constexpr FB_Pin_Group cNoAnswer =
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn eine Adresse nicht geantwortet hat"));
inline constexpr FB_Parameter cKNXCyclicRead[] = {
    cAddressCount,
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zyklus"), QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem gelesen wird"),
            "300", 1),
    cGap,
    check(QT_TRANSLATE_NOOP("FB_Types", "Beim Start lesen"),
          QT_TRANSLATE_NOOP("FB_Types", "Liest alle Adressen, sobald die Steuerung läuft"), "1"),
    cAnswerTime,
};
inline constexpr FB_Pin_Group cKNXCyclicReadPins[] = {
    cEnableWhenOn,
    counted(cReadAddress, 1),
    cNoAnswer,
    output(QT_TRANSLATE_NOOP("FB_Types", "Ohne Antwort"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "5.010",
           QT_TRANSLATE_NOOP("FB_Types", "Nummer der ersten Adresse ohne Antwort, 0 wenn alle geantwortet haben")),
};

inline constexpr FB_Parameter cKNXCyclicSend[] = {
    cChannels,
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zyklus"), QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem gesendet wird"),
            "60", 1),
    cGap,
    check(QT_TRANSLATE_NOOP("FB_Types", "Auch bei Änderung senden"),
          QT_TRANSLATE_NOOP("FB_Types", "Sendet außerdem sofort, wenn sich ein Eingang ändert"), "1"),
};
inline constexpr FB_Pin_Group cKNXCyclicSendPins[] = {
    cEnableWhenOn,
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der wiederholt gesendet wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Sendet den Wert des Eingangs in jedem Zyklus")),
            1),
};

inline constexpr FB_Parameter cKNXReadTrigger[] = {
    cAddressCount,
    cGap,
    cAnswerTime,
};
inline constexpr FB_Pin_Group cKNXReadTriggerPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auslösen"), QT_TRANSLATE_NOOP("FB_Types", "Trg"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein liest alle Adressen")),
    counted(cReadAddress, 1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fertig"), QT_TRANSLATE_NOOP("FB_Types", "OK"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet Ein, wenn alle Adressen geantwortet haben")),
    cNoAnswer,
};

} // namespace FB_Telegram
