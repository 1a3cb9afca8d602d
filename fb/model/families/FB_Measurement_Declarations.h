#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

#include <array>

/// Parameters and pins of limit switches, of the evaluation of states and of what checks measured values.
namespace FB_Measurement {

using namespace FB_Shared;

[[nodiscard]] constexpr FB_Parameter limit(const char* name, const char* description, const char* usual) {
  return number(name, description, usual, -1000000, 1000000, 2);
}

inline constexpr FB_Parameter cLimit[] = {
    limit(QT_TRANSLATE_NOOP("FB_Types", "Einschalten über"),
          QT_TRANSLATE_NOOP("FB_Types", "Wert, über dem der Ausgang Ein wird, in der Einheit des Eingangs"), "25"),
    limit(QT_TRANSLATE_NOOP("FB_Types", "Ausschalten unter"),
          QT_TRANSLATE_NOOP("FB_Types", "Wert, unter dem der Ausgang Aus wird, in der Einheit des Eingangs"), "20"),
    cSend,
};
inline constexpr FB_Pin_Group cLimitPins[] = {
    with(cActual, "", QT_TRANSLATE_NOOP("FB_Types", "Messwert, der mit den Grenzen verglichen wird")),
    with(cOutput, cBit,
         QT_TRANSLATE_NOOP("FB_Types", "Ein über der oberen, Aus unter der unteren Grenze, dazwischen unverändert"))};

inline constexpr FB_Choice cChanges[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Steigen und Fallen")},
                                         {1, QT_TRANSLATE_NOOP("FB_Types", "Nur Steigen")},
                                         {2, QT_TRANSLATE_NOOP("FB_Types", "Nur Fallen")}};
inline constexpr FB_Parameter cChange[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Messwerte, jeder mit Grenzwert, Zeit und Ausgang"), "1", 1, 64),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Richtung"),
           QT_TRANSLATE_NOOP("FB_Types", "Welche Änderung den Ausgang einschaltet"), cChanges),
    cSend,
};
inline constexpr FB_Pin_Group cChangePins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Istwert %1"), QT_TRANSLATE_NOOP("FB_Types", "Ist%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Messwert, dessen Änderung überwacht wird")),
            1),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Grenzwert %1"), QT_TRANSLATE_NOOP("FB_Types", "Gr%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Größte erlaubte Änderung, in der Einheit des Istwerts")),
            1),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Zeit %1"), QT_TRANSLATE_NOOP("FB_Types", "Z%1"), "7.005",
                  QT_TRANSLATE_NOOP("FB_Types", "Sekunden, in denen die Änderung gemessen wird")),
            1),
    with(outputs(1), cBit,
         QT_TRANSLATE_NOOP("FB_Types",
                           "Ein, solange sich der Istwert in der Zeit um mehr als den Grenzwert geändert hat"))};

inline constexpr FB_Parameter cDifference[] = {
    limit(QT_TRANSLATE_NOOP("FB_Types", "Einschalten über"),
          QT_TRANSLATE_NOOP("FB_Types", "Differenz, über der der Ausgang Ein wird, in der Einheit der Werte"), "8"),
    limit(QT_TRANSLATE_NOOP("FB_Types", "Ausschalten unter"),
          QT_TRANSLATE_NOOP("FB_Types", "Differenz, unter der der Ausgang Aus wird, in der Einheit der Werte"), "4"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Betrag"),
          QT_TRANSLATE_NOOP("FB_Types", "Die Differenz zählt ohne ihr Vorzeichen")),
    cSend,
};
inline constexpr FB_Pin_Group cDifferencePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert 1"), QT_TRANSLATE_NOOP("FB_Types", "W1"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, von dem abgezogen wird, etwa der Kollektor")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert 2"), QT_TRANSLATE_NOOP("FB_Types", "W2"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der abgezogen wird, etwa der Speicher")),
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Aus schaltet den Ausgang aus; nicht verbunden ist freigegeben")),
    with(cOutput, cBit,
         QT_TRANSLATE_NOOP("FB_Types", "Ein über der oberen, Aus unter der unteren Grenze, dazwischen unverändert")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Differenz"), QT_TRANSLATE_NOOP("FB_Types", "Diff"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Wert 1 minus Wert 2"))};

/// Rows of the table; the first that fits counts.
inline constexpr int cMostStates = 16;
inline constexpr auto cStates = [] {
  std::array<FB_Parameter, 3 + cMostStates> parameters;
  parameters.fill(text(
      QT_TRANSLATE_NOOP("FB_Types", "Zeile %1"),
      QT_TRANSLATE_NOOP("FB_Types", "Bedingungen der Eingänge, Statustext, Statuswert, Symbolnummer und Farbe, mit "
                                    "Semikolon getrennt: 1,*,>20;Störung;2;14;#e05050")));
  parameters.front() = inputCount(1, 8, "2");
  parameters[1 + cMostStates] =
      text(QT_TRANSLATE_NOOP("FB_Types", "Sonst"),
           QT_TRANSLATE_NOOP("FB_Types", "Statustext, Statuswert, Symbolnummer und Farbe, wenn keine Zeile "
                                         "zutrifft: Unbekannt;0;0;#6a6a6a"));
  parameters[2 + cMostStates] = cSend;
  return parameters;
}();
inline constexpr FB_Pin_Group cStatesPins[] = {
    with(inputs(1), "", QT_TRANSLATE_NOOP("FB_Types", "Zustand oder Wert, den die Bedingungen der Zeilen prüfen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Statustext"), QT_TRANSLATE_NOOP("FB_Types", "Text"), cText,
           QT_TRANSLATE_NOOP("FB_Types", "Text der zutreffenden Zeile")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Nummer der Zeile"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), cCount,
           QT_TRANSLATE_NOOP("FB_Types", "Nummer der zutreffenden Zeile, 0 wenn keine zutrifft")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Statuswert"), QT_TRANSLATE_NOOP("FB_Types", "Wert"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Wert der zutreffenden Zeile")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Symbolnummer"), QT_TRANSLATE_NOOP("FB_Types", "Sym"), "7.001",
           QT_TRANSLATE_NOOP("FB_Types", "Symbol der zutreffenden Zeile für die Visualisierung")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Farbe"), QT_TRANSLATE_NOOP("FB_Types", "Farbe"), "232.600",
           QT_TRANSLATE_NOOP("FB_Types", "Farbe der zutreffenden Zeile für die Visualisierung")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktiv"), QT_TRANSLATE_NOOP("FB_Types", "Aktiv"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn eine Zeile zutrifft"))};

inline constexpr FB_Choice cSubstitutes[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Letzten gültigen Wert senden")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Ersatzwert senden")},
                                             {2, QT_TRANSLATE_NOOP("FB_Types", "Nicht senden")}};
inline constexpr FB_Parameter cPlausibility[] = {
    limit(QT_TRANSLATE_NOOP("FB_Types", "Minimum"),
          QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert, den der Fühler liefern kann, in der Einheit des Eingangs"),
          "-50"),
    limit(QT_TRANSLATE_NOOP("FB_Types", "Maximum"),
          QT_TRANSLATE_NOOP("FB_Types", "Größter Wert, den der Fühler liefern kann, in der Einheit des Eingangs"),
          "150"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Größte Änderung je Minute"),
           QT_TRANSLATE_NOOP("FB_Types", "Schnellere Änderungen gelten als Fehler; 0 prüft sie nicht"), "0", 0, 1000000,
           2),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Ausfallzeit"),
            QT_TRANSLATE_NOOP("FB_Types",
                              "Kommt so viele Sekunden kein Wert, gilt der Fühler als ausgefallen; 0 prüft das nicht"),
            "0"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Verzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden muss ein Fehler anstehen, bevor er gemeldet wird"), "5"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Bei Fehler"),
           QT_TRANSLATE_NOOP("FB_Types", "Was der Ausgang sendet, solange der Messwert nicht glaubhaft ist"),
           cSubstitutes),
    needs(limit(QT_TRANSLATE_NOOP("FB_Types", "Ersatzwert"),
                QT_TRANSLATE_NOOP("FB_Types", "Was bei einem Fehler gesendet wird, in der Einheit des Eingangs"), "20"),
          5, 1),
    check(QT_TRANSLATE_NOOP("FB_Types", "Quittierung nötig"),
          QT_TRANSLATE_NOOP("FB_Types",
                            "Der Fehler bleibt bis zur Quittierung stehen, auch wenn der Wert wieder stimmt")),
};
inline constexpr FB_Pin_Group cPlausibilityPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Messwert"), QT_TRANSLATE_NOOP("FB_Types", "M"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert des Fühlers")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Quittieren"), QT_TRANSLATE_NOOP("FB_Types", "Quit"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein löscht einen Fehler, dessen Ursache weg ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Geprüfter Wert oder das, was bei einem Fehler gilt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Fehler"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange ein Fehler gemeldet ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehlertext"), QT_TRANSLATE_NOOP("FB_Types", "Text"), cText,
           QT_TRANSLATE_NOOP("FB_Types", "Grund des Fehlers, leer ohne Fehler"))};

inline constexpr FB_Parameter cMonitoring[] = {
    limit(QT_TRANSLATE_NOOP("FB_Types", "Alarm über"),
          QT_TRANSLATE_NOOP("FB_Types", "Wert, über dem Alarm ist, in der Einheit des Eingangs"), "90"),
    limit(QT_TRANSLATE_NOOP("FB_Types", "Warnung über"),
          QT_TRANSLATE_NOOP("FB_Types", "Wert, über dem gewarnt wird, in der Einheit des Eingangs"), "80"),
    limit(QT_TRANSLATE_NOOP("FB_Types", "Warnung unter"),
          QT_TRANSLATE_NOOP("FB_Types", "Wert, unter dem gewarnt wird, in der Einheit des Eingangs"), "10"),
    limit(QT_TRANSLATE_NOOP("FB_Types", "Alarm unter"),
          QT_TRANSLATE_NOOP("FB_Types", "Wert, unter dem Alarm ist, in der Einheit des Eingangs"), "5"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Hysterese"),
           QT_TRANSLATE_NOOP("FB_Types", "So weit muss der Wert zurückgehen, damit eine Meldung endet"), "1", 0,
           1000000, 2),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Verzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden muss eine Grenze verletzt sein, bevor gemeldet wird"),
            "10"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Obere Grenzen prüfen"),
          QT_TRANSLATE_NOOP("FB_Types", "Ohne Haken werden Alarm und Warnung nach oben nicht gebildet"), "1"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Untere Grenzen prüfen"),
          QT_TRANSLATE_NOOP("FB_Types", "Ohne Haken werden Alarm und Warnung nach unten nicht gebildet"), "1"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Alarm bis zur Quittierung"),
          QT_TRANSLATE_NOOP("FB_Types", "Ein Alarm bleibt stehen, bis er quittiert wird")),
};
inline constexpr FB_Pin_Group cMonitoringPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Messwert"), QT_TRANSLATE_NOOP("FB_Types", "M"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der überwacht wird")),
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Aus unterdrückt alle Meldungen; nicht verbunden ist freigegeben")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Quittieren"), QT_TRANSLATE_NOOP("FB_Types", "Quit"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein löscht einen Alarm, dessen Ursache weg ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Alarm hoch"), QT_TRANSLATE_NOOP("FB_Types", "A+"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Wert über der oberen Alarmgrenze liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Warnung hoch"), QT_TRANSLATE_NOOP("FB_Types", "W+"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Wert über der oberen Warngrenze liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Warnung tief"), QT_TRANSLATE_NOOP("FB_Types", "W-"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Wert unter der unteren Warngrenze liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Alarm tief"), QT_TRANSLATE_NOOP("FB_Types", "A-"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Wert unter der unteren Alarmgrenze liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Sammelmeldung"), QT_TRANSLATE_NOOP("FB_Types", "Sam"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn einer der vier Ausgänge Ein ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Statustext"), QT_TRANSLATE_NOOP("FB_Types", "Text"), cText,
           QT_TRANSLATE_NOOP("FB_Types", "Was gemeldet wird, leer wenn nichts ansteht"))};

} // namespace FB_Measurement
