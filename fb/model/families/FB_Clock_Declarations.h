#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// Parameters and pins of what switches by the time of day.
namespace FB_Clock {

using namespace FB_Shared;

[[nodiscard]] constexpr FB_Parameter hour(const char* name, const char* description, const char* usual) {
  return number(name, description, usual, 0, 23, 0, QT_TRANSLATE_NOOP("FB_Types", "h"));
}
[[nodiscard]] constexpr FB_Parameter minute(const char* name, const char* description, const char* usual) {
  return number(name, description, usual, 0, 59, 0, QT_TRANSLATE_NOOP("FB_Types", "min"));
}
[[nodiscard]] constexpr FB_Parameter day(const char* name, const char* usual) {
  return check(name, QT_TRANSLATE_NOOP("FB_Types", "An diesem Wochentag wird geschaltet"), usual);
}

inline constexpr FB_Parameter cPulseAtTime[] = {
    hour(QT_TRANSLATE_NOOP("FB_Types", "Stunde"),
         QT_TRANSLATE_NOOP("FB_Types", "Stunde des Zeitpunkts, in der Zeit der Steuerung"), "6"),
    minute(QT_TRANSLATE_NOOP("FB_Types", "Minute"), QT_TRANSLATE_NOOP("FB_Types", "Minute des Zeitpunkts"), "0"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Sekunde"), QT_TRANSLATE_NOOP("FB_Types", "Sekunde des Zeitpunkts"), "0", 0,
           59, 0, QT_TRANSLATE_NOOP("FB_Types", "s")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Impulsdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die der Ausgang Ein bleibt; 0 sendet nur Ein"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Montag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Dienstag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Mittwoch"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Donnerstag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Freitag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Samstag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Sonntag"), "1"),
};
inline constexpr FB_Pin_Group cPulseAtTimePins[] = {
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Aus unterdrückt den Impuls; nicht verbunden ist freigegeben")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein zum Zeitpunkt, nach der Impulsdauer Aus"))};

/// So many switching times a week clock has for each of its outputs.
inline constexpr int cMostTimes = 128 * 255;

inline constexpr FB_Parameter cWeek[] = {
    outputCount(1, 128, "1"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Schaltzeiten"),
           QT_TRANSLATE_NOOP("FB_Types", "So viele Schaltzeiten nimmt die Uhr an, alle Ausgänge zusammen"), "32", 1,
           cMostTimes),
    hour(QT_TRANSLATE_NOOP("FB_Types", "Ein Stunde"),
         QT_TRANSLATE_NOOP("FB_Types", "Stunde, zu der Ausgänge ohne eigene Schaltzeit einschalten"), "7"),
    minute(QT_TRANSLATE_NOOP("FB_Types", "Ein Minute"),
           QT_TRANSLATE_NOOP("FB_Types", "Minute, zu der Ausgänge ohne eigene Schaltzeit einschalten"), "0"),
    hour(QT_TRANSLATE_NOOP("FB_Types", "Aus Stunde"),
         QT_TRANSLATE_NOOP("FB_Types", "Stunde, zu der Ausgänge ohne eigene Schaltzeit ausschalten"), "18"),
    minute(QT_TRANSLATE_NOOP("FB_Types", "Aus Minute"),
           QT_TRANSLATE_NOOP("FB_Types", "Minute, zu der Ausgänge ohne eigene Schaltzeit ausschalten"), "0"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Montag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Dienstag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Mittwoch"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Donnerstag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Freitag"), "1"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Samstag"), "0"),
    day(QT_TRANSLATE_NOOP("FB_Types", "Sonntag"), "0"),
    text(QT_TRANSLATE_NOOP("FB_Types", "Weitere Schaltzeiten"),
         QT_TRANSLATE_NOOP("FB_Types",
                           "Ausgang, Tage, Ein und Aus, mit Semikolon getrennt: 1 Mo-Fr 07:00-18:30; 2 Sa,So "
                           "09:00-12:00")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Beim Start senden"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach dem Start der Steuerung sendet jeder Ausgang den Zustand, der dann gilt"),
          "1"),
};
inline constexpr FB_Pin_Group cWeekPins[] = {
    with(outputs(1), cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus nach den Schaltzeiten des Ausgangs"))};

inline constexpr FB_Choice cRegions[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Österreich")},
                                         {1, QT_TRANSLATE_NOOP("FB_Types", "Deutschland, bundesweit")},
                                         {2, QT_TRANSLATE_NOOP("FB_Types", "Deutschland, Bayern")},
                                         {3, QT_TRANSLATE_NOOP("FB_Types", "Deutschland, Baden-Württemberg")},
                                         {4, QT_TRANSLATE_NOOP("FB_Types", "Deutschland, Nordrhein-Westfalen")},
                                         {5, QT_TRANSLATE_NOOP("FB_Types", "Schweiz")},
                                         {6, QT_TRANSLATE_NOOP("FB_Types", "Südtirol")},
                                         {7, QT_TRANSLATE_NOOP("FB_Types", "Nur eigene Feiertage")}};
inline constexpr FB_Parameter cHoliday[] = {
    outputCount(1, 126, "1"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Feiertage"),
           QT_TRANSLATE_NOOP("FB_Types", "Welche gesetzlichen Feiertage gelten"), cRegions),
    text(QT_TRANSLATE_NOOP("FB_Types", "Eigene Feiertage"),
         QT_TRANSLATE_NOOP("FB_Types",
                           "Tag und Monat, bei einmaligen auch Jahr, mit Semikolon getrennt: 24.12.; 31.12.; "
                           "02.05.2027")),
    text(QT_TRANSLATE_NOOP("FB_Types", "Schaltzeit"),
         QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus an Feiertagen, für Ausgänge ohne eigene Schaltzeit"),
         "00:00-24:00"),
    text(QT_TRANSLATE_NOOP("FB_Types", "Weitere Schaltzeiten"),
         QT_TRANSLATE_NOOP("FB_Types", "Ausgang, Ein und Aus, mit Semikolon getrennt: 1 07:00-12:00; 2 00:00-24:00")),
};
inline constexpr FB_Pin_Group cHolidayPins[] = {
    with(outputs(1), cBit,
         QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus nach den Schaltzeiten des Ausgangs, nur an Feiertagen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Feiertag morgen"), QT_TRANSLATE_NOOP("FB_Types", "FM"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der nächste Tag ein Feiertag ist"))};

} // namespace FB_Clock
