#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Shared_Declarations.h"

#include <array>

namespace {

using namespace FB_Shared;

constexpr FB_Choice cConstantKinds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Zahl")},
                                        {1, QT_TRANSLATE_NOOP("FB_Types", "Text")}};
constexpr FB_Parameter cConstant[] = {
    {QT_TRANSLATE_NOOP("FB_Types", "Wert"),
     QT_TRANSLATE_NOOP("FB_Types", "Was der Ausgang sendet; Zahlen mit Punkt als Dezimalzeichen"), FB_Editor::Text,
     "0"},
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art"), QT_TRANSLATE_NOOP("FB_Types", "Wie der Wert gelesen wird"),
           cConstantKinds),
};
constexpr FB_Pin_Group cConstantPins[] = {
    output(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"))};

constexpr FB_Parameter cShow[] = {
    {QT_TRANSLATE_NOOP("FB_Types", "Nachkommastellen"),
     QT_TRANSLATE_NOOP("FB_Types", "Mit denen eine Kommazahl angezeigt wird"), FB_Editor::Number, "2", 0, 9},
    {QT_TRANSLATE_NOOP("FB_Types", "Einheit"), QT_TRANSLATE_NOOP("FB_Types", "Steht hinter dem Wert"), FB_Editor::Text},
};
constexpr FB_Pin_Group cShowPins[] = {input(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"))};

constexpr int cMostValues = 32;

constexpr auto cSet = [] {
  std::array<FB_Parameter, 1 + cMostValues> parameters;
  parameters.fill({QT_TRANSLATE_NOOP("FB_Types", "Wert %1"),
                   QT_TRANSLATE_NOOP("FB_Types", "Was der Ausgang dieser Nummer sendet"), FB_Editor::Number, "0",
                   -4294967295.0, 4294967295.0, 1});
  parameters.front() = {QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
                        QT_TRANSLATE_NOOP("FB_Types", "Werte, die vorgegeben werden"),
                        FB_Editor::Number,
                        "1",
                        1,
                        cMostValues};
  return parameters;
}();
constexpr FB_Pin_Group cSetPins[] = {outputs(1)};

constexpr FB_Type cTypes[] = {
    {.mId = 11,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Konstante"),
     .mClass = "FB_Constant_Value",
     .mBody = FB_Body::None,
     .mHasPins = true,
     .mParameters = cConstant,
     .mPins = cConstantPins},
    {68, QT_TRANSLATE_NOOP("FB_Types", "Initialisierung"), "FB_Initialisation"},
    {.mId = 10,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Kommentar"),
     .mClass = "FB_Comment",
     .mHasPins = true,
     .mNoOutput = QT_TRANSLATE_NOOP("FB_Types", "Ein Kommentar wird nicht ausgeführt.")},
    {.mId = 12,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Diagnose Anzeige"),
     .mClass = "FB_Debug_ShowValue",
     .mBody = FB_Body::None,
     .mHasPins = true,
     .mParameters = cShow,
     .mPins = cShowPins,
     .mNoOutput = QT_TRANSLATE_NOOP("FB_Types", "Der Wert wird nur auf der Seite angezeigt.")},
    {.mId = 1330,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Diagnose Werte vorgeben"),
     .mClass = "FB_Debug_SetValue",
     .mBody = FB_Body::None,
     .mHasPins = true,
     .mParameters = cSet,
     .mPins = cSetPins},
};

} // namespace

std::span<const FB_Type> FB_Families::general() {
  return cTypes;
}
