#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// The block that reads and writes the registers of a Modbus device. Its registers make its further pins.
namespace FB_Modbus_Declaration {

using namespace FB_Shared;

/// Places of the parameters, for the assistant's tools.
inline constexpr int cProtocol = 0;
inline constexpr int cSlaveId = 1;
inline constexpr int cIpAddress = 2;
inline constexpr int cIpPort = 3;
inline constexpr int cTimeout = 4;
inline constexpr int cAddressOffset = 5;
inline constexpr int cSleepTime = 6;
inline constexpr int cCommPort = 7;
inline constexpr int cBaudRate = 8;
inline constexpr int cParity = 9;
inline constexpr int cStopBits = 10;

inline constexpr int cRtu = 0;
inline constexpr int cTcp = 1;

inline constexpr FB_Choice cProtocols[] = {{cRtu, QT_TRANSLATE_NOOP("FB_Types", "RTU (seriell)")},
                                           {cTcp, QT_TRANSLATE_NOOP("FB_Types", "TCP (Netzwerk)")}};
inline constexpr FB_Choice cBaudRates[] = {{1200, "1200"},   {2400, "2400"},   {4800, "4800"},   {9600, "9600"},
                                           {19200, "19200"}, {38400, "38400"}, {57600, "57600"}, {115200, "115200"}};
inline constexpr FB_Choice cParities[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Keine")},
                                          {1, QT_TRANSLATE_NOOP("FB_Types", "Gerade")},
                                          {2, QT_TRANSLATE_NOOP("FB_Types", "Ungerade")}};
inline constexpr FB_Choice cStopBitChoices[] = {{1, "1"}, {2, "2"}};

/// A field that matters with one of the protocols only.
[[nodiscard]] constexpr FB_Parameter with(int protocol, FB_Parameter parameter) {
  parameter.mNeeds = cProtocol;
  parameter.mNeedsValue = protocol;
  return parameter;
}

[[nodiscard]] constexpr FB_Parameter milliseconds(const char* name, const char* description, const char* usual,
                                                  double minimum, double maximum) {
  return {.mName = name,
          .mDescription = description,
          .mDefault = usual,
          .mMinimum = minimum,
          .mMaximum = maximum,
          .mUnit = QT_TRANSLATE_NOOP("FB_Types", "ms")};
}

inline constexpr FB_Parameter cParameters[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Protokoll"),
           QT_TRANSLATE_NOOP("FB_Types", "Ob das Gerät an einer seriellen Leitung oder im Netzwerk hängt"), cProtocols,
           "1"),
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Slave-Adresse"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Modbus-Adresse des Geräts, bei TCP die Unit-ID"),
     .mDefault = "1",
     .mMinimum = 1,
     .mMaximum = 247},
    with(cTcp, {.mName = QT_TRANSLATE_NOOP("FB_Types", "IP-Adresse"),
                .mDescription = QT_TRANSLATE_NOOP("FB_Types", "IP-Adresse oder Name des Geräts"),
                .mEditor = FB_Editor::Text}),
    with(cTcp, {.mName = QT_TRANSLATE_NOOP("FB_Types", "Port"),
                .mDescription = QT_TRANSLATE_NOOP("FB_Types", "TCP-Port des Geräts, üblich ist 502"),
                .mDefault = "502",
                .mMinimum = 1,
                .mMaximum = 65535}),
    milliseconds(QT_TRANSLATE_NOOP("FB_Types", "Zeitüberschreitung"),
                 QT_TRANSLATE_NOOP("FB_Types", "So lange wird auf die Antwort des Geräts gewartet"), "1000", 10, 60000),
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Adressversatz"),
     .mDescription = QT_TRANSLATE_NOOP(
         "FB_Types", "Wird zu jeder Registeradresse gezählt; -1, wenn das Gerät seine Register ab 1 zählt"),
     .mDefault = "0",
     .mMinimum = -65535,
     .mMaximum = 65535},
    milliseconds(QT_TRANSLATE_NOOP("FB_Types", "Telegrammpause"),
                 QT_TRANSLATE_NOOP("FB_Types", "Pause zwischen zwei Telegrammen an das Gerät"), "20", 0, 10000),
    with(cRtu, {.mName = QT_TRANSLATE_NOOP("FB_Types", "Schnittstelle"),
                .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Serielle Schnittstelle der Steuerung"),
                .mEditor = FB_Editor::Text,
                .mDefault = "/dev/ttyONBOARD-485"}),
    with(cRtu,
         choice(QT_TRANSLATE_NOOP("FB_Types", "Baudrate"),
                QT_TRANSLATE_NOOP("FB_Types", "Bits in der Sekunde auf der seriellen Leitung"), cBaudRates, "9600")),
    with(cRtu, choice(QT_TRANSLATE_NOOP("FB_Types", "Parität"),
                      QT_TRANSLATE_NOOP("FB_Types", "Prüfbit der seriellen Leitung"), cParities)),
    with(cRtu, choice(QT_TRANSLATE_NOOP("FB_Types", "Stoppbits"),
                      QT_TRANSLATE_NOOP("FB_Types", "Stoppbits der seriellen Leitung"), cStopBitChoices, "1")),
};

inline constexpr FB_Pin_Group cPins[] = {
    {.mSide = FB_Side::Output,
     .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Verbindung OK"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "OK"),
     .mDpt = "1.002",
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "1, solange das Gerät antwortet")},
    {.mSide = FB_Side::Output,
     .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Fehlercode"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "Fehler"),
     .mDescription =
         QT_TRANSLATE_NOOP("FB_Types", "0 ohne Fehler, 1 bis 11 der Ausnahmecode des Geräts, 255 keine Antwort")},
};

inline constexpr FB_Type cType = {.mId = 1917,
                                  .mName = QT_TRANSLATE_NOOP("FB_Types", "Modbus Master"),
                                  .mClass = "FB_Modbus_Master",
                                  .mHasPins = true,
                                  .mParameters = cParameters,
                                  .mPins = cPins,
                                  .mHasRegisterPins = true};

} // namespace FB_Modbus_Declaration
