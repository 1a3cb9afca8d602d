#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Shared_Declarations.h"

#include <array>

namespace {

using namespace FB_Shared;

constexpr FB_Choice cConstantKinds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Zahl")},
                                        {1, QT_TRANSLATE_NOOP("FB_Types", "Text")}};
constexpr FB_Parameter cConstant[] = {
    text(QT_TRANSLATE_NOOP("FB_Types", "Wert"),
         QT_TRANSLATE_NOOP("FB_Types", "Was der Ausgang sendet; Zahlen mit Punkt als Dezimalzeichen"), "0"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art"), QT_TRANSLATE_NOOP("FB_Types", "Wie der Wert gelesen wird"),
           cConstantKinds),
};
constexpr FB_Pin_Group cConstantPins[] = {output(QT_TRANSLATE_NOOP("FB_Types", "Wert"),
                                                 QT_TRANSLATE_NOOP("FB_Types", "W"), "",
                                                 QT_TRANSLATE_NOOP("FB_Types", "Fester Wert, gesendet beim Start"))};

constexpr int cMostStartValues = 16;
constexpr auto cInitialisation = [] {
  std::array<FB_Parameter, 2 + cMostStartValues> parameters;
  parameters.fill(number(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"),
                         QT_TRANSLATE_NOOP("FB_Types", "Was der Ausgang dieser Nummer sendet"), "0", -4294967295.0,
                         4294967295.0, 6));
  parameters.front() = number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
                              QT_TRANSLATE_NOOP("FB_Types", "Werte, die gesendet werden"), "1", 1, cMostStartValues);
  parameters.back() =
      seconds(QT_TRANSLATE_NOOP("FB_Types", "Verzögerung"),
              QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden vom Start der Steuerung bis zum Senden"), "0");
  return parameters;
}();
constexpr FB_Pin_Group cInitialisationPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auslösen"), QT_TRANSLATE_NOOP("FB_Types", "Ausl"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Jedes Ein sendet alle Werte noch einmal")),
    with(outputs(1), "", QT_TRANSLATE_NOOP("FB_Types", "Wert dieser Nummer, einmal nach dem Start")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Startimpuls"), QT_TRANSLATE_NOOP("FB_Types", "SI"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn alle Werte gesendet sind"))};

constexpr FB_Parameter cShow[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Nachkommastellen"),
           QT_TRANSLATE_NOOP("FB_Types", "Mit denen eine Kommazahl angezeigt wird"), "2", 0, 9),
    text(QT_TRANSLATE_NOOP("FB_Types", "Einheit"), QT_TRANSLATE_NOOP("FB_Types", "Steht hinter dem Wert")),
};
constexpr FB_Pin_Group cShowPins[] = {input(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"),
                                            "", QT_TRANSLATE_NOOP("FB_Types", "Wert, der angezeigt wird"))};

constexpr int cMostValues = 32;
constexpr auto cSet = [] {
  std::array<FB_Parameter, 1 + cMostValues> parameters;
  parameters.fill(number(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"),
                         QT_TRANSLATE_NOOP("FB_Types", "Was der Ausgang dieser Nummer sendet"), "0", -4294967295.0,
                         4294967295.0, 1));
  parameters.front() = number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
                              QT_TRANSLATE_NOOP("FB_Types", "Werte, die vorgegeben werden"), "1", 1, cMostValues);
  return parameters;
}();
constexpr FB_Pin_Group cSetPins[] = {
    with(outputs(1), "", QT_TRANSLATE_NOOP("FB_Types", "Vorgegebener Wert dieser Nummer"))};

constexpr FB_Type cTypes[] = {
    unframed(type(11, QT_TRANSLATE_NOOP("FB_Types", "Konstante"), "FB_Constant_Value", cConstant, cConstantPins)),
    type(68, QT_TRANSLATE_NOOP("FB_Types", "Initialisierung"), "FB_Initialisation", cInitialisation,
         cInitialisationPins),
    silent(type(10, QT_TRANSLATE_NOOP("FB_Types", "Kommentar"), "FB_Comment", {}, {}),
           QT_TRANSLATE_NOOP("FB_Types", "wird nicht ausgeführt")),
    silent(
        unframed(type(12, QT_TRANSLATE_NOOP("FB_Types", "Diagnose Anzeige"), "FB_Debug_ShowValue", cShow, cShowPins)),
        QT_TRANSLATE_NOOP("FB_Types", "zeigt den Wert nur auf der Seite an")),
    unframed(type(1330, QT_TRANSLATE_NOOP("FB_Types", "Diagnose Werte vorgeben"), "FB_Debug_SetValue", cSet, cSetPins)),
};

} // namespace

std::span<const FB_Type> FB_Families::general() {
  return cTypes;
}
