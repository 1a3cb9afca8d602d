#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of blocks that calculate.
namespace FB_Arithmetic {

using namespace FB_Shared;

inline constexpr FB_Parameter cChannels =
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Eingänge, jeder mit seinem Ergebnis"), "1", 1, 128);
inline constexpr FB_Parameter cAddition1[] = {
    cChannels,
    number(QT_TRANSLATE_NOOP("FB_Types", "Summand"), QT_TRANSLATE_NOOP("FB_Types", "Wird zu jedem Eingang addiert"),
           "0", -4294967295.0, 4294967295.0, 6),
    cSend,
};
inline constexpr FB_Pin_Group cAddition1Pins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, zu dem der Summand addiert wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis %1"), QT_TRANSLATE_NOOP("FB_Types", "Erg%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Eingang dieses Kanals plus Summand")),
            1),
};

inline constexpr FB_Parameter cAddition2[] = {
    inputCount(2, 32, "2"),
    cSend,
};
inline constexpr FB_Pin_Group cAddition2Pins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Summand")),
            2),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Summe aller Eingänge")),
};

inline constexpr FB_Choice cSubtractions[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Wert minus Subtrahend")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Subtrahend minus Wert")}};
inline constexpr FB_Parameter cSubtraction1[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Werte, jeder mit seinem Ergebnis"),
           "1", 1, 128),
    number(QT_TRANSLATE_NOOP("FB_Types", "Subtrahend"), QT_TRANSLATE_NOOP("FB_Types", "Wird von jedem Wert abgezogen"),
           "0", -4294967295.0, 4294967295.0, 6),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Reihenfolge"), QT_TRANSLATE_NOOP("FB_Types", "Was von wem abgezogen wird"),
           cSubtractions),
    cSend,
};
inline constexpr FB_Pin_Group cSubtraction1Pins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, von dem der Subtrahend abgezogen wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis %1"), QT_TRANSLATE_NOOP("FB_Types", "Erg%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Differenz dieses Kanals")),
            1),
};

inline constexpr FB_Parameter cSubtraction2[] = {
    cSend,
};
inline constexpr FB_Pin_Group cSubtraction2Pins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Minuend"), QT_TRANSLATE_NOOP("FB_Types", "M"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, von dem abgezogen wird")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Subtrahend"), QT_TRANSLATE_NOOP("FB_Types", "S"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der abgezogen wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Minuend minus Subtrahend")),
};

inline constexpr FB_Parameter cMultiplication1[] = {
    cChannels,
    number(QT_TRANSLATE_NOOP("FB_Types", "Faktor"),
           QT_TRANSLATE_NOOP("FB_Types", "Jeder Eingang wird damit multipliziert"), "1", -4294967295.0, 4294967295.0,
           6),
    cSend,
};
inline constexpr FB_Pin_Group cMultiplication1Pins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Multiplikator %1"), QT_TRANSLATE_NOOP("FB_Types", "M%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der mit dem Faktor multipliziert wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis %1"), QT_TRANSLATE_NOOP("FB_Types", "Erg%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Multiplikator dieses Kanals mal Faktor")),
            1),
};

inline constexpr FB_Parameter cMultiplication2[] = {
    inputCount(2, 32, "2"),
    cSend,
};
inline constexpr FB_Pin_Group cMultiplication2Pins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Faktor")),
            2),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Produkt aller Eingänge")),
};

inline constexpr FB_Parameter cDivision1[] = {
    cChannels,
    number(QT_TRANSLATE_NOOP("FB_Types", "Divisor"),
           QT_TRANSLATE_NOOP("FB_Types", "Jeder Eingang wird dadurch geteilt"), "1", -4294967295.0, 4294967295.0, 6),
    cSend,
};
inline constexpr FB_Pin_Group cDivision1Pins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Dividend %1"), QT_TRANSLATE_NOOP("FB_Types", "D%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der geteilt wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis %1"), QT_TRANSLATE_NOOP("FB_Types", "Erg%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Dividend dieses Kanals durch Divisor")),
            1),
};

inline constexpr FB_Choice cZeroDivisors[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Letztes Ergebnis behalten")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "0 senden")}};
inline constexpr FB_Pin_Group cDividend =
    input(QT_TRANSLATE_NOOP("FB_Types", "Dividend"), QT_TRANSLATE_NOOP("FB_Types", "Dd"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der geteilt wird"));
inline constexpr FB_Pin_Group cDivisor =
    input(QT_TRANSLATE_NOOP("FB_Types", "Divisor"), QT_TRANSLATE_NOOP("FB_Types", "Ds"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, durch den geteilt wird"));
inline constexpr FB_Pin_Group cDivisionError =
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Err"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Divisor 0 ist"));
inline constexpr FB_Parameter cDivision2[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Bei Divisor 0"),
           QT_TRANSLATE_NOOP("FB_Types", "Was gesendet wird, wenn der Divisor 0 ist"), cZeroDivisors),
    cSend,
};
inline constexpr FB_Pin_Group cDivision2Pins[] = {
    cDividend,
    cDivisor,
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Dividend durch Divisor")),
    cDivisionError,
};

inline constexpr FB_Parameter cAverage[] = {
    inputCount(2, 32, "2"),
    cSend,
};
inline constexpr FB_Pin_Group cAveragePins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der in den Durchschnitt eingeht")),
            2),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Arithmetischer Mittelwert der Eingänge mit Wert")),
};

inline constexpr FB_Choice cAveragings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nach der Dauer des Werts")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Jedes Telegramm gleich")}};
inline constexpr FB_Choice cAverageStarts[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Am Ende des Zeitraums")},
                                               {1, QT_TRANSLATE_NOOP("FB_Types", "Laufend")}};
inline constexpr FB_Pin_Group cAveraged =
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der gemittelt wird"));
inline constexpr FB_Parameter cAveragePerTime[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zeitraum"), QT_TRANSLATE_NOOP("FB_Types", "Zeit, über die gemittelt wird"),
            "900", 1),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Gewichtung"),
           QT_TRANSLATE_NOOP("FB_Types", "Wie die Werte in den Mittelwert eingehen"), cAveragings),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Senden"), QT_TRANSLATE_NOOP("FB_Types", "Wann der Mittelwert gesendet wird"),
           cAverageStarts),
};
inline constexpr FB_Pin_Group cAveragePerTimePins[] = {
    cAveraged,
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt einen neuen Zeitraum")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Mittelwert"), QT_TRANSLATE_NOOP("FB_Types", "M"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Mittelwert des Zeitraums")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Minimum"), QT_TRANSLATE_NOOP("FB_Types", "Min"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert des Zeitraums")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Maximum"), QT_TRANSLATE_NOOP("FB_Types", "Max"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Größter Wert des Zeitraums")),
};

inline constexpr FB_Parameter cMovingAverage[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Werte"),
           QT_TRANSLATE_NOOP("FB_Types", "Letzte Werte, über die gemittelt wird"), "10", 2, 1000),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Abtastzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem der Eingang übernommen wird; 0 übernimmt jedes Telegramm"),
            "0"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Erst senden, wenn gefüllt"),
          QT_TRANSLATE_NOOP("FB_Types", "Sendet erst, wenn so viele Werte da sind, wie gemittelt werden")),
};
inline constexpr FB_Pin_Group cMovingAveragePins[] = {
    cAveraged,
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein verwirft die gesammelten Werte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Mittelwert"), QT_TRANSLATE_NOOP("FB_Types", "M"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Mittelwert der letzten Werte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Gefüllt"), QT_TRANSLATE_NOOP("FB_Types", "G"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, sobald die volle Anzahl Werte gesammelt ist")),
};

inline constexpr FB_Parameter cAbsolute[] = {
    cSend,
};
inline constexpr FB_Pin_Group cAbsolutePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert mit Vorzeichen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Betrag des Eingangs")),
};

inline constexpr FB_Choice cRoundings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Kaufmännisch")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "Aufrunden")},
                                           {2, QT_TRANSLATE_NOOP("FB_Types", "Abrunden")},
                                           {3, QT_TRANSLATE_NOOP("FB_Types", "Zur Null hin")}};
inline constexpr FB_Parameter cRound[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Nachkommastellen"),
           QT_TRANSLATE_NOOP("FB_Types", "Stellen hinter dem Komma; negativ rundet auf Zehner, Hunderter, Tausender"),
           "0", -3, 6),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Verfahren"), QT_TRANSLATE_NOOP("FB_Types", "Wie gerundet wird"), cRoundings),
    cSend,
};
inline constexpr FB_Pin_Group cRoundPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der gerundet wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Gerundeter Wert")),
};

inline constexpr FB_Choice cExponents[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Fester Wert")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "Eingang")}};
inline constexpr FB_Parameter cPower[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Exponent"), QT_TRANSLATE_NOOP("FB_Types", "Woher der Exponent kommt"),
           cExponents),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Fester Exponent"),
                 QT_TRANSLATE_NOOP("FB_Types", "0,5 zieht die Quadratwurzel"), "2", -4294967295.0, 4294967295.0, 6),
          0, 0),
    cSend,
};
inline constexpr FB_Pin_Group cPowerPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Basis"), QT_TRANSLATE_NOOP("FB_Types", "B"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der potenziert wird")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Exponent"), QT_TRANSLATE_NOOP("FB_Types", "X"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Exponent, wenn er vom Eingang kommt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Basis hoch Exponent")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Err"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn es kein Ergebnis gibt, etwa bei der Wurzel einer negativen Zahl")),
};

inline constexpr FB_Choice cModuloSigns[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Wie der Dividend")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Wie der Divisor")}};
inline constexpr FB_Parameter cModulo[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Vorzeichen"),
           QT_TRANSLATE_NOOP("FB_Types", "Welches Vorzeichen der Rest hat"), cModuloSigns),
    cSend,
};
inline constexpr FB_Pin_Group cModuloPins[] = {
    cDividend,
    cDivisor,
    output(QT_TRANSLATE_NOOP("FB_Types", "Rest"), QT_TRANSLATE_NOOP("FB_Types", "Rest"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Rest der ganzzahligen Division")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Quotient"), QT_TRANSLATE_NOOP("FB_Types", "Q"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Ganzzahliges Ergebnis der Division")),
    cDivisionError,
};

} // namespace FB_Arithmetic
