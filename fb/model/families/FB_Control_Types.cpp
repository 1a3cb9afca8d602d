#include "fb/model/families/FB_Controller_Declarations.h"
#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Heating_Declarations.h"
#include "fb/model/families/FB_Hot_Water_Declarations.h"
#include "fb/model/families/FB_Mixer_Declarations.h"
#include "fb/model/families/FB_Solar_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Type cTypes[] = {
    type(1104, QT_TRANSLATE_NOOP("FB_Types", "Heizkurve"), "FB_Heating_Curve", FB_Heating::cHeatingCurve,
         FB_Heating::cHeatingCurvePins),
    type(1113, QT_TRANSLATE_NOOP("FB_Types", "Heiz+Kühlkurve"), "FB_Heating_Cooling_Curve",
         FB_Heating::cHeatingCoolingCurve, FB_Heating::cHeatingCoolingCurvePins),
    type(1408, QT_TRANSLATE_NOOP("FB_Types", "Heizkreis *"), "FB_Heating_Circuit", FB_Heating::cHeatingCircuit,
         FB_Heating::cHeatingCircuitPins),
    type(1409, QT_TRANSLATE_NOOP("FB_Types", "Wärmeerzeuger *"), "FB_Heat_Generator", FB_Heating::cHeatGenerator,
         FB_Heating::cHeatGeneratorPins),
    type(1410, QT_TRANSLATE_NOOP("FB_Types", "Wärmeanforderung *"), "FB_Heat_Demand", FB_Hot_Water::cHeatDemand,
         FB_Hot_Water::cHeatDemandPins),
    type(1411, QT_TRANSLATE_NOOP("FB_Types", "Zirkulationspumpe *"), "FB_Circulation_Pump",
         FB_Hot_Water::cCirculationPump, FB_Hot_Water::cCirculationPumpPins),
    type(1412, QT_TRANSLATE_NOOP("FB_Types", "Warmwasserladung *"), "FB_Hot_Water_Charging",
         FB_Hot_Water::cHotWaterCharging, FB_Hot_Water::cHotWaterChargingPins),
    type(1110, QT_TRANSLATE_NOOP("FB_Types", "Heizen/Kühlen Umschaltung"), "FB_Heating_Cooling_Changeover",
         FB_Hot_Water::cHeatingCoolingChangeover, FB_Hot_Water::cHeatingCoolingChangeoverPins),
    type(1106, QT_TRANSLATE_NOOP("FB_Types", "Mischer einfach"), "FB_Mixer", FB_Mixer::cMixer, FB_Mixer::cMixerPins),
    type(1112, QT_TRANSLATE_NOOP("FB_Types", "Mischer Rücklaufbegrenzung"), "FB_Mixer_Return_Limit",
         FB_Mixer::cMixerReturnLimit, FB_Mixer::cMixerReturnLimitPins),
    type(1326, QT_TRANSLATE_NOOP("FB_Types", "Mischer KNX Ausgang"), "FB_Mixer_KNX_Output", FB_Mixer::cMixerKNXOutput,
         FB_Mixer::cMixerKNXOutputPins),
    type(1100, QT_TRANSLATE_NOOP("FB_Types", "Zweipunktregler einf."), "FB_Two_Point_Controller",
         FB_Controller::cTwoPointController, FB_Controller::cTwoPointControllerPins),
    type(1101, QT_TRANSLATE_NOOP("FB_Types", "Zweipunktregler E/A"), "FB_Two_Point_Controller_On_Off",
         FB_Controller::cTwoPointControllerOnOff, FB_Controller::cTwoPointControllerOnOffPins),
    type(1107, QT_TRANSLATE_NOOP("FB_Types", "Dreipunktregler U/O"), "FB_Three_Point_Controller",
         FB_Controller::cThreePointController, FB_Controller::cThreePointControllerPins),
    type(1115, QT_TRANSLATE_NOOP("FB_Types", "Dreipunktregler Hys."), "FB_Three_Point_Controller_Hysteresis",
         FB_Controller::cThreePointControllerHysteresis, FB_Controller::cThreePointControllerHysteresisPins),
    type(1102, QT_TRANSLATE_NOOP("FB_Types", "PID Regler"), "FB_PID_Controller", FB_Controller::cPIDController,
         FB_Controller::cPIDControllerPins),
    type(1105, QT_TRANSLATE_NOOP("FB_Types", "Taupunkttemperatur"), "FB_Dew_Point", FB_Controller::cDewPoint,
         FB_Controller::cDewPointPins),
    type(1121, QT_TRANSLATE_NOOP("FB_Types", "Solar Puffer einfach"), "FB_Solar_Buffer", FB_Solar::cSolarBuffer,
         FB_Solar::cSolarBufferPins),
    type(1327, QT_TRANSLATE_NOOP("FB_Types", "Solar Puffer oben/unten"), "FB_Solar_Buffer_Top_Bottom",
         FB_Solar::cSolarBufferTopBottom, FB_Solar::cSolarBufferTopBottomPins),
    type(1328, QT_TRANSLATE_NOOP("FB_Types", "Solar 1 Boiler/Puffer"), "FB_Solar_1_Boiler", FB_Solar::cSolar1Boiler,
         FB_Solar::cSolar1BoilerPins),
    type(1329, QT_TRANSLATE_NOOP("FB_Types", "Solar 2 Boiler/Puffer"), "FB_Solar_2_Boilers", FB_Solar::cSolar2Boilers,
         FB_Solar::cSolar2BoilersPins),
    type(1172, QT_TRANSLATE_NOOP("FB_Types", "Beregnung einfach"), "FB_Irrigation", FB_Solar::cIrrigation,
         FB_Solar::cIrrigationPins),
};

} // namespace

std::span<const FB_Type> FB_Families::control() {
  return cTypes;
}
