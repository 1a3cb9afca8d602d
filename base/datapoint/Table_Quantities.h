#pragma once

#include "base/Datapoint_Type.h"

/// The rows of the table of types for physical quantities as 4-byte floating point numbers: main number 14.
/// Columns as in `Datapoint_Type`.
namespace Datapoint_Table {

/// Whatever a float can hold; the unit is the SI's unless the name says else.
constexpr Datapoint_Type quantity(int sub, const char* name, const char* unit) {
  constexpr double cMost = 3.40282347e+38;
  return {{14, sub}, name, Datapoint_Format::Float32, 32, unit, -cMost, cMost, 0};
}

// clang-format off
inline constexpr Datapoint_Type cQuantities[] = {
    quantity(0, "Beschleunigung", "m/s²"),
    quantity(1, "Winkelbeschleunigung", "rad/s²"),
    quantity(2, "Aktivierungsenergie", "J/mol"),
    quantity(3, "Aktivität (radioaktiv)", "1/s"),
    quantity(4, "Stoffmenge", "mol"),
    quantity(5, "Amplitude", ""),
    quantity(6, "Winkel (Bogenmaß)", "rad"),
    quantity(7, "Winkel (Grad)", "°"),
    quantity(8, "Drehimpuls", "Js"),
    quantity(9, "Winkelgeschwindigkeit", "rad/s"),
    quantity(10, "Fläche", "m²"),
    quantity(11, "Kapazität", "F"),
    quantity(12, "Flächenladungsdichte", "C/m²"),
    quantity(13, "Raumladungsdichte", "C/m³"),
    quantity(14, "Kompressibilität", "m²/N"),
    quantity(15, "Leitwert", "S"),
    quantity(16, "Elektrische Leitfähigkeit", "S/m"),
    quantity(17, "Dichte", "kg/m³"),
    quantity(18, "Elektrische Ladung", "C"),
    quantity(19, "Elektrischer Strom", "A"),
    quantity(20, "Elektrische Stromdichte", "A/m²"),
    quantity(21, "Elektrisches Dipolmoment", "Cm"),
    quantity(22, "Elektrische Verschiebung", "C/m²"),
    quantity(23, "Elektrische Feldstärke", "V/m"),
    quantity(24, "Elektrischer Fluss", "C"),
    quantity(25, "Elektrische Flussdichte", "C/m²"),
    quantity(26, "Elektrische Polarisation", "C/m²"),
    quantity(27, "Elektrisches Potential", "V"),
    quantity(28, "Elektrische Spannung", "V"),
    quantity(29, "Elektromagnetisches Moment", "Am²"),
    quantity(30, "Elektromotorische Kraft", "V"),
    quantity(31, "Energie", "J"),
    quantity(32, "Kraft", "N"),
    quantity(33, "Frequenz", "Hz"),
    quantity(34, "Kreisfrequenz", "rad/s"),
    quantity(35, "Wärmekapazität", "J/K"),
    quantity(36, "Wärmestrom", "W"),
    quantity(37, "Wärmemenge", "J"),
    quantity(38, "Impedanz", "Ω"),
    quantity(39, "Länge", "m"),
    quantity(40, "Lichtmenge", "J"),
    quantity(41, "Leuchtdichte", "cd/m²"),
    quantity(42, "Lichtstrom", "lm"),
    quantity(43, "Lichtstärke", "cd"),
    quantity(44, "Magnetische Feldstärke", "A/m"),
    quantity(45, "Magnetischer Fluss", "Wb"),
    quantity(46, "Magnetische Flussdichte", "T"),
    quantity(47, "Magnetisches Moment", "Am²"),
    quantity(48, "Magnetische Polarisation", "T"),
    quantity(49, "Magnetisierung", "A/m"),
    quantity(50, "Magnetische Durchflutung", "A"),
    quantity(51, "Masse", "kg"),
    quantity(52, "Massenstrom", "kg/s"),
    quantity(53, "Impuls (mechanisch)", "N/s"),
    quantity(54, "Phasenwinkel (Bogenmaß)", "rad"),
    quantity(55, "Phasenwinkel (Grad)", "°"),
    quantity(56, "Leistung", "W"),
    quantity(57, "Leistungsfaktor", "cos φ"),
    quantity(58, "Druck", "Pa"),
    quantity(59, "Blindwiderstand", "Ω"),
    quantity(60, "Widerstand", "Ω"),
    quantity(61, "Spezifischer Widerstand", "Ωm"),
    quantity(62, "Selbstinduktivität", "H"),
    quantity(63, "Raumwinkel", "sr"),
    quantity(64, "Schallintensität", "W/m²"),
    quantity(65, "Geschwindigkeit", "m/s"),
    quantity(66, "Mechanische Spannung", "Pa"),
    quantity(67, "Oberflächenspannung", "N/m"),
    quantity(68, "Temperatur (°C)", "°C"),
    quantity(69, "Absolute Temperatur", "K"),
    quantity(70, "Temperaturdifferenz", "K"),
    quantity(71, "Thermische Kapazität", "J/K"),
    quantity(72, "Wärmeleitfähigkeit", "W/mK"),
    quantity(73, "Thermokraft", "V/K"),
    quantity(74, "Zeit", "s"),
    quantity(75, "Drehmoment", "Nm"),
    quantity(76, "Volumen", "m³"),
    quantity(77, "Volumenstrom (m³/s)", "m³/s"),
    quantity(78, "Gewichtskraft", "N"),
    quantity(79, "Arbeit", "J"),
    quantity(80, "Scheinleistung", "VA"),
    quantity(1200, "Volumenstrom (m³/h)", "m³/h"),
    quantity(1201, "Volumenstrom (l/s)", "l/s"),
};
// clang-format on

} // namespace Datapoint_Table
