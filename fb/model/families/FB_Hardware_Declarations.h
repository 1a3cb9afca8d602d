#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// Parameters and pins of the interfaces of a controller.
namespace FB_Hardware {

using namespace FB_Shared;

[[nodiscard]] constexpr FB_Parameter port(const char* usual, const char* description) {
  return number(QT_TRANSLATE_NOOP("FB_Types", "Port"), description, usual, 1, 65535);
}
[[nodiscard]] constexpr FB_Parameter milliseconds(const char* name, const char* description, const char* usual,
                                                  double minimum, double maximum) {
  return number(name, description, usual, minimum, maximum, 0, QT_TRANSLATE_NOOP("FB_Types", "ms"));
}

inline constexpr FB_Pin_Group cConnected =
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbunden"), QT_TRANSLATE_NOOP("FB_Types", "Verb"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange die Gegenstelle antwortet"));
inline constexpr FB_Pin_Group cFault =
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "Stör"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn eine Störung ansteht"));
inline constexpr FB_Pin_Group cFaultText =
    output(QT_TRANSLATE_NOOP("FB_Types", "Störungstext"), QT_TRANSLATE_NOOP("FB_Types", "Text"), cText,
           QT_TRANSLATE_NOOP("FB_Types", "Letzte Störung, leer ohne Störung"));
inline constexpr FB_Pin_Group cReset =
    input(QT_TRANSLATE_NOOP("FB_Types", "Neu verbinden"), QT_TRANSLATE_NOOP("FB_Types", "Neu"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein trennt die Verbindung und baut sie neu auf"));

inline constexpr FB_Choice cBusFailures[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ausschalten")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Letzten Zustand halten")}};
inline constexpr FB_Parameter cModuleBus[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Ausgänge bei Busausfall"),
           QT_TRANSLATE_NOOP("FB_Types", "Was die Ausgänge der Module tun, wenn die Steuerung nicht mehr sendet"),
           cBusFailures),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Ausfall melden nach"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden antwortet ein Modul nicht, bevor es als gestört gilt"),
            "5", 0.5),
    check(QT_TRANSLATE_NOOP("FB_Types", "Module selbst wieder aufnehmen"),
          QT_TRANSLATE_NOOP("FB_Types", "Ein Modul, das wieder antwortet, arbeitet ohne Rücksetzen weiter"), "1"),
};
inline constexpr FB_Pin_Group cModuleBusPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein sucht alle Module neu und löscht Störungen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Bus in Ordnung"), QT_TRANSLATE_NOOP("FB_Types", "OK"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn alle aktiven Module antworten")),
    cFault,
    output(QT_TRANSLATE_NOOP("FB_Types", "Module gefunden"), QT_TRANSLATE_NOOP("FB_Types", "Anz"), cCount,
           QT_TRANSLATE_NOOP("FB_Types", "Anzahl der Module, die antworten")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Module gestört"), QT_TRANSLATE_NOOP("FB_Types", "Fehlt"), cCount,
           QT_TRANSLATE_NOOP("FB_Types", "Anzahl der aktiven Module, die nicht antworten")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zykluszeit"), QT_TRANSLATE_NOOP("FB_Types", "tZyk"), "7.002",
           QT_TRANSLATE_NOOP("FB_Types", "Millisekunden, in denen alle Module einmal abgefragt werden")),
    cFaultText,
};

inline constexpr FB_Choice cKnxKinds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Busanschluss der Steuerung (TP)")},
                                          {1, QT_TRANSLATE_NOOP("FB_Types", "KNXnet/IP Tunneling")},
                                          {2, QT_TRANSLATE_NOOP("FB_Types", "KNXnet/IP Routing")},
                                          {3, QT_TRANSLATE_NOOP("FB_Types", "USB")}};
inline constexpr FB_Parameter cKnx[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Anschluss"),
           QT_TRANSLATE_NOOP("FB_Types", "Worüber die Steuerung mit dem KNX verbunden ist"), cKnxKinds),
    text(QT_TRANSLATE_NOOP("FB_Types", "Physikalische Adresse"),
         QT_TRANSLATE_NOOP("FB_Types", "Adresse der Steuerung auf dem KNX: Bereich.Linie.Teilnehmer"), "1.1.250"),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "IP-Adresse"),
               QT_TRANSLATE_NOOP("FB_Types", "Adresse der KNXnet/IP-Schnittstelle")),
          0, 1),
    needs(port("3671", QT_TRANSLATE_NOOP("FB_Types", "UDP-Port der KNXnet/IP-Schnittstelle")), 0, 1),
    needs(check(QT_TRANSLATE_NOOP("FB_Types", "Über NAT"),
                QT_TRANSLATE_NOOP("FB_Types", "Die Schnittstelle antwortet an die Adresse, von der die Anfrage kam")),
          0, 1),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "Multicast-Adresse"),
               QT_TRANSLATE_NOOP("FB_Types", "Adresse, an die alle KNXnet/IP-Router senden"), "224.0.23.12"),
          0, 2),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "USB-Gerät"),
               QT_TRANSLATE_NOOP("FB_Types", "Gerätedatei der USB-Schnittstelle"), "/dev/knx-usb"),
          0, 3),
    milliseconds(QT_TRANSLATE_NOOP("FB_Types", "Sendepause"),
                 QT_TRANSLATE_NOOP("FB_Types", "Millisekunden, die zwischen zwei gesendeten Telegrammen vergehen"),
                 "25", 0, 1000),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wiederholungen"),
           QT_TRANSLATE_NOOP("FB_Types", "So oft wird ein Telegramm ohne Bestätigung noch einmal gesendet"), "3", 0, 7),
    check(QT_TRANSLATE_NOOP("FB_Types", "Beim Start lesen"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach dem Start werden alle Gruppenadressen gelesen, deren L-Flag gesetzt ist"),
          "1"),
};
inline constexpr FB_Pin_Group cKnxPins[] = {
    cReset,
    input(QT_TRANSLATE_NOOP("FB_Types", "Senden sperren"), QT_TRANSLATE_NOOP("FB_Types", "Sperr"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Ein verwirft alles, was die Steuerung auf den KNX senden will")),
    cConnected,
    output(QT_TRANSLATE_NOOP("FB_Types", "Buslast"), QT_TRANSLATE_NOOP("FB_Types", "Last"), cPercent,
           QT_TRANSLATE_NOOP("FB_Types", "Auslastung der Linie, gemittelt über eine Minute")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Empfangene Telegramme"), QT_TRANSLATE_NOOP("FB_Types", "Empf"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anzahl seit dem Start der Steuerung")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Gesendete Telegramme"), QT_TRANSLATE_NOOP("FB_Types", "Ges"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anzahl seit dem Start der Steuerung")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Nicht bestätigt"), QT_TRANSLATE_NOOP("FB_Types", "NAK"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anzahl der Telegramme ohne Bestätigung seit dem Start")),
    cFaultText,
};

inline constexpr FB_Choice cDmxKinds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "DMX-Anschluss der Steuerung")},
                                          {1, QT_TRANSLATE_NOOP("FB_Types", "Art-Net")},
                                          {2, QT_TRANSLATE_NOOP("FB_Types", "sACN (E1.31)")}};
inline constexpr FB_Choice cDmxFailures[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Letzte Werte halten")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Alle Kanäle auf 0")}};
inline constexpr FB_Parameter cDmx[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Kanäle"),
           QT_TRANSLATE_NOOP("FB_Types", "Kanäle, die der Baustein sendet, jeder mit seinem Eingang"), "4", 1, 512),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Anschluss"),
           QT_TRANSLATE_NOOP("FB_Types", "Worüber die Kanäle gesendet werden"), cDmxKinds),
    number(QT_TRANSLATE_NOOP("FB_Types", "Erster Kanal"),
           QT_TRANSLATE_NOOP("FB_Types", "Kanal, auf den der erste Eingang gesendet wird; die weiteren folgen"), "1", 1,
           512),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "Schnittstelle"),
               QT_TRANSLATE_NOOP("FB_Types", "Gerätedatei des DMX-Anschlusses"), "/dev/ttyDMX"),
          1, 0),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "IP-Adresse"),
               QT_TRANSLATE_NOOP("FB_Types", "Adresse des Art-Net-Knotens; leer sendet an alle")),
          1, 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Universum"),
           QT_TRANSLATE_NOOP("FB_Types", "Nummer des Universums bei Art-Net und sACN"), "1", 0, 63999),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Überblendzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, in der ein Kanal zum neuen Wert läuft; 0 springt"), "0"),
    milliseconds(QT_TRANSLATE_NOOP("FB_Types", "Sendeabstand"),
                 QT_TRANSLATE_NOOP("FB_Types", "Millisekunden zwischen zwei Aussendungen aller Kanäle"), "40", 23,
                 10000),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Beim Anhalten"),
           QT_TRANSLATE_NOOP("FB_Types", "Was gesendet wird, wenn die Freigabe fehlt"), cDmxFailures),
};
inline constexpr FB_Pin_Group cDmxPins[] = {
    with(cEnable, "1.003", QT_TRANSLATE_NOOP("FB_Types", "Aus beendet das Senden; nicht verbunden ist freigegeben")),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Kanal %1"), QT_TRANSLATE_NOOP("FB_Types", "K%1"), cPercent,
                  QT_TRANSLATE_NOOP("FB_Types", "Helligkeit des Kanals, gesendet als 0 bis 255")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Sendet"), QT_TRANSLATE_NOOP("FB_Types", "Aktiv"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange Kanäle gesendet werden")),
    cFault,
    cFaultText,
};

inline constexpr FB_Choice cMBusKinds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Seriell")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk (TCP)")}};
inline constexpr FB_Choice cMBusRates[] = {
    {300, QT_TRANSLATE_NOOP("FB_Types", "300 Baud")},   {600, QT_TRANSLATE_NOOP("FB_Types", "600 Baud")},
    {1200, QT_TRANSLATE_NOOP("FB_Types", "1200 Baud")}, {2400, QT_TRANSLATE_NOOP("FB_Types", "2400 Baud")},
    {4800, QT_TRANSLATE_NOOP("FB_Types", "4800 Baud")}, {9600, QT_TRANSLATE_NOOP("FB_Types", "9600 Baud")}};
inline constexpr FB_Choice cMBusAddressings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Primäradresse")},
                                                 {1, QT_TRANSLATE_NOOP("FB_Types", "Sekundäradresse")}};
inline constexpr FB_Parameter cMBus[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Werte"),
           QT_TRANSLATE_NOOP("FB_Types", "Werte eines Zählers, jeder mit seinem Ausgang"), "1", 1, 64),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Anschluss"),
           QT_TRANSLATE_NOOP("FB_Types", "Worüber der Zähler erreicht wird"), cMBusKinds),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "Schnittstelle"),
               QT_TRANSLATE_NOOP("FB_Types", "Gerätedatei des Pegelwandlers"), "/dev/ttyMBUS"),
          1, 0),
    needs(choice(QT_TRANSLATE_NOOP("FB_Types", "Übertragungsrate"),
                 QT_TRANSLATE_NOOP("FB_Types", "Rate, auf die der Zähler eingestellt ist"), cMBusRates, "2400"),
          1, 0),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "IP-Adresse"),
               QT_TRANSLATE_NOOP("FB_Types", "Adresse des Pegelwandlers im Netzwerk")),
          1, 1),
    needs(port("10001", QT_TRANSLATE_NOOP("FB_Types", "TCP-Port des Pegelwandlers")), 1, 1),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Adressierung"),
           QT_TRANSLATE_NOOP("FB_Types", "Wie der Zähler angesprochen wird"), cMBusAddressings),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Primäradresse"),
                 QT_TRANSLATE_NOOP("FB_Types", "Nummer des Zählers auf dem Bus"), "1", 0, 250),
          6, 0),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "Sekundäradresse"),
               QT_TRANSLATE_NOOP("FB_Types",
                                 "16 Hexadezimalziffern: Nummer, Hersteller, Version und Medium; F für beliebig")),
          6, 1),
    text(QT_TRANSLATE_NOOP("FB_Types", "Datensätze"),
         QT_TRANSLATE_NOOP("FB_Types",
                           "Nummern der Datensätze für die Ausgänge, mit Semikolon getrennt: 0;3;4 - leer nimmt die "
                           "ersten"),
         ""),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Abfrageabstand"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden von einer Ablesung zur nächsten"), "900", 5),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Antwortzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden wird auf eine Antwort gewartet"), "2", 0.2),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wiederholungen"),
           QT_TRANSLATE_NOOP("FB_Types", "So oft wird ohne Antwort noch einmal gefragt"), "2", 0, 10),
};
inline constexpr FB_Pin_Group cMBusPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Ablesen"), QT_TRANSLATE_NOOP("FB_Types", "Les"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein liest den Zähler sofort ab")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert des Datensatzes in seiner Grundeinheit")),
            1),
    cConnected,
    cFault,
    output(QT_TRANSLATE_NOOP("FB_Types", "Letzte Ablesung"), QT_TRANSLATE_NOOP("FB_Types", "Zeit"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Datum und Zeit der letzten gelungenen Ablesung")),
};

inline constexpr FB_Choice cRegisterTypes[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ganzzahl, 16 Bit ohne Vorzeichen")},
                                               {1, QT_TRANSLATE_NOOP("FB_Types", "Ganzzahl, 16 Bit mit Vorzeichen")},
                                               {2, QT_TRANSLATE_NOOP("FB_Types", "Ganzzahl, 32 Bit ohne Vorzeichen")},
                                               {3, QT_TRANSLATE_NOOP("FB_Types", "Ganzzahl, 32 Bit mit Vorzeichen")},
                                               {4, QT_TRANSLATE_NOOP("FB_Types", "Kommazahl, 32 Bit")}};
inline constexpr FB_Choice cWordOrders[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Höherwertiges Wort zuerst")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Niederwertiges Wort zuerst")}};
inline constexpr FB_Parameter cSlave[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Lesewerte"),
           QT_TRANSLATE_NOOP("FB_Types", "Werte, die ein Modbus Master liest, jeder mit seinem Eingang"), "1", 0, 125),
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Schreibwerte"),
           QT_TRANSLATE_NOOP("FB_Types", "Werte, die ein Modbus Master schreibt, jeder mit seinem Ausgang"), "1", 0,
           123),
    port("502", QT_TRANSLATE_NOOP("FB_Types", "TCP-Port, auf dem die Steuerung antwortet")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Geräteadresse"),
           QT_TRANSLATE_NOOP("FB_Types", "Unit-Id, auf die geantwortet wird; 0 antwortet auf alle"), "1", 0, 247),
    number(QT_TRANSLATE_NOOP("FB_Types", "Erstes Leseregister"),
           QT_TRANSLATE_NOOP("FB_Types", "Adresse des ersten Lesewerts als Input-Register, gezählt ab 0"), "0", 0,
           65535),
    number(QT_TRANSLATE_NOOP("FB_Types", "Erstes Schreibregister"),
           QT_TRANSLATE_NOOP("FB_Types", "Adresse des ersten Schreibwerts als Holding-Register, gezählt ab 0"), "0", 0,
           65535),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Datentyp"),
           QT_TRANSLATE_NOOP("FB_Types", "Wie die Werte in Registern stehen"), cRegisterTypes),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Reihenfolge der Wörter"),
           QT_TRANSLATE_NOOP("FB_Types", "Bei Werten, die zwei Register brauchen"), cWordOrders),
    number(QT_TRANSLATE_NOOP("FB_Types", "Faktor"),
           QT_TRANSLATE_NOOP("FB_Types",
                             "Im Register steht der Wert mal Faktor; geschriebene Werte werden durch ihn geteilt"),
           "1", 0.000001, 1000000, 6),
    text(QT_TRANSLATE_NOOP("FB_Types", "Erlaubte Adressen"),
         QT_TRANSLATE_NOOP("FB_Types", "IP-Adressen der Master, mit Semikolon getrennt; leer erlaubt alle")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Überwachungszeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Fragt so viele Sekunden kein Master, geht Verbunden auf Aus"), "60", 1),
};
inline constexpr FB_Pin_Group cSlavePins[] = {
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Aus schließt alle Verbindungen; nicht verbunden ist freigegeben")),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Lesewert %1"), QT_TRANSLATE_NOOP("FB_Types", "L%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, den ein Master liest")),
            0, 0),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Schreibwert %1"), QT_TRANSLATE_NOOP("FB_Types", "S%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert, den ein Master geschrieben hat")),
            0, 1),
    with(cConnected, cState, QT_TRANSLATE_NOOP("FB_Types", "Ein, solange ein Master fragt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Master"), QT_TRANSLATE_NOOP("FB_Types", "Anz"), cCount,
           QT_TRANSLATE_NOOP("FB_Types", "Master, die verbunden sind")),
};

inline constexpr FB_Parameter cCpu[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Messabstand"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden von einer Messung zur nächsten"), "10", 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Warnen ab Temperatur"),
           QT_TRANSLATE_NOOP("FB_Types", "Ab dieser Temperatur des Prozessors wird die Warnung Ein"), "80", 0, 125, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(
        QT_TRANSLATE_NOOP("FB_Types", "Warnen ab Speicher"),
        QT_TRANSLATE_NOOP("FB_Types", "Ab dieser Belegung von Arbeitsspeicher oder Datenträger wird die Warnung Ein"),
        "90", 1, 100, 0, QT_TRANSLATE_NOOP("FB_Types", "%")),
};
inline constexpr FB_Pin_Group cCpuPins[] = {
    output(QT_TRANSLATE_NOOP("FB_Types", "Prozessorlast"), QT_TRANSLATE_NOOP("FB_Types", "CPU"), cPercent,
           QT_TRANSLATE_NOOP("FB_Types", "Mittel über den Messabstand")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Prozessortemperatur"), QT_TRANSLATE_NOOP("FB_Types", "Temp"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Temperatur des Prozessors")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Arbeitsspeicher"), QT_TRANSLATE_NOOP("FB_Types", "RAM"), cPercent,
           QT_TRANSLATE_NOOP("FB_Types", "Belegter Anteil des Arbeitsspeichers")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Datenträger"), QT_TRANSLATE_NOOP("FB_Types", "Disk"), cPercent,
           QT_TRANSLATE_NOOP("FB_Types", "Belegter Anteil des Datenträgers")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zykluszeit"), QT_TRANSLATE_NOOP("FB_Types", "tZyk"), "7.002",
           QT_TRANSLATE_NOOP("FB_Types", "Millisekunden eines Durchlaufs der Logik, Mittel über den Messabstand")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Betriebszeit"), QT_TRANSLATE_NOOP("FB_Types", "Zeit"), "13.100",
           QT_TRANSLATE_NOOP("FB_Types", "Sekunden seit dem Start der Steuerung")),
    output(QT_TRANSLATE_NOOP("FB_Types", "IP-Adresse"), QT_TRANSLATE_NOOP("FB_Types", "IP"), cText,
           QT_TRANSLATE_NOOP("FB_Types", "Adresse der ersten Netzwerkschnittstelle")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Warnung"), QT_TRANSLATE_NOOP("FB_Types", "Warn"), cAlarm,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn Temperatur oder Belegung die Grenze erreicht")),
};

} // namespace FB_Hardware
