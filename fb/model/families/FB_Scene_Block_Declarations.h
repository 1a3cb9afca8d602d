#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of the building blocks of scenes.
namespace FB_Scene_Block {

using namespace FB_Shared;

inline constexpr FB_Parameter cScene[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
           QT_TRANSLATE_NOOP("FB_Types", "Werte, die die Szene setzt"), "4", 1, 64),
    number(QT_TRANSLATE_NOOP("FB_Types", "Szenennummer"),
           QT_TRANSLATE_NOOP("FB_Types", "Nummer, auf die der Baustein hört, wie am Taster angezeigt"), "1", 1, 64),
    text(QT_TRANSLATE_NOOP("FB_Types", "Werte"),
         QT_TRANSLATE_NOOP("FB_Types", "Wert je Ausgang, durch Semikolon getrennt; gelernte Werte gehen vor"), "0"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Speichern erlaubt"),
          QT_TRANSLATE_NOOP("FB_Types",
                            "Ein Speichertelegramm oder \"Speichern\" übernimmt die Rückmeldungen in die Szene"),
          "1"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Abstand"), QT_TRANSLATE_NOOP("FB_Types", "Pause zwischen zwei Telegrammen"),
            "0"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Gelernte Werte beim Schreiben behalten"),
          QT_TRANSLATE_NOOP("FB_Types", "Gelernte Werte bleiben, wenn das Projekt neu geschrieben wird"), "1"),
};
inline constexpr FB_Pin_Group cScenePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Szene"), QT_TRANSLATE_NOOP("FB_Types", "Sz"), "18.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ruft die Szene ab oder speichert sie, wenn die Nummer passt")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Abrufen"), QT_TRANSLATE_NOOP("FB_Types", "Ab"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt alle Werte")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Speichern"), QT_TRANSLATE_NOOP("FB_Types", "Sp"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein übernimmt die Rückmeldungen")),
    cEnableWhenOn,
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Rückmeldung %1"), QT_TRANSLATE_NOOP("FB_Types", "RM%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Jetziger Wert dieses Ausgangs, wird gelernt")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert der Szene an diesen Ausgang")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktiv"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange alle Rückmeldungen der Szene entsprechen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Gespeichert"), QT_TRANSLATE_NOOP("FB_Types", "OK"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet Ein nach dem Speichern")),
};

inline constexpr FB_Parameter cSceneGroup[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Szenen"),
           QT_TRANSLATE_NOOP("FB_Types", "Szenen, zwischen denen gewählt wird"), "8", 1, 64),
    number(QT_TRANSLATE_NOOP("FB_Types", "Erste Szenennummer"),
           QT_TRANSLATE_NOOP("FB_Types", "Nummer der ersten Szene, die weiteren folgen"), "1", 1, 64),
    check(QT_TRANSLATE_NOOP("FB_Types", "Am Ende umlaufen"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach der letzten Szene folgt die erste"), "1"),
    text(QT_TRANSLATE_NOOP("FB_Types", "Namen"),
         QT_TRANSLATE_NOOP("FB_Types", "Namen der Szenen, durch Semikolon getrennt")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Speichern erlaubt"),
          QT_TRANSLATE_NOOP("FB_Types", "Leitet Speichertelegramme weiter"), "1"),
};
inline constexpr FB_Pin_Group cSceneGroupPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Szene"), QT_TRANSLATE_NOOP("FB_Types", "Sz"), "18.001",
          QT_TRANSLATE_NOOP("FB_Types", "Wählt oder speichert eine Szene der Gruppe")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Nummer"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "17.001",
          QT_TRANSLATE_NOOP("FB_Types", "Wählt eine Szene der Gruppe")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Weiter"), QT_TRANSLATE_NOOP("FB_Types", "+"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein wählt die nächste Szene")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Zurück"), QT_TRANSLATE_NOOP("FB_Types", "-"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein wählt die vorige Szene")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Aus"), QT_TRANSLATE_NOOP("FB_Types", "Aus"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein beendet die gewählte Szene")),
    cLock,
    output(QT_TRANSLATE_NOOP("FB_Types", "Szene"), QT_TRANSLATE_NOOP("FB_Types", "Sz"), "18.001",
           QT_TRANSLATE_NOOP("FB_Types", "Abruf oder Speichern an die Szenenbausteine und Aktoren")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktuelle Szene"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "17.001",
           QT_TRANSLATE_NOOP("FB_Types", "Nummer der gewählten Szene")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Name"), QT_TRANSLATE_NOOP("FB_Types", "Txt"), "16.001",
           QT_TRANSLATE_NOOP("FB_Types", "Name der gewählten Szene")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Aktiv %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "1.011",
                   QT_TRANSLATE_NOOP("FB_Types", "Ein, solange diese Szene gewählt ist")),
            1),
    cLocked,
};

inline constexpr FB_Choice cSequenceEnds[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Anhalten")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Von vorne beginnen")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Rückwärts laufen")},
                                              {3, QT_TRANSLATE_NOOP("FB_Types", "Endwerte senden")}};
inline constexpr FB_Parameter cSceneSequence[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
           QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, die der Ablauf setzt"), "4", 1, 32),
    text(QT_TRANSLATE_NOOP("FB_Types", "Schritte"),
         QT_TRANSLATE_NOOP("FB_Types", "Je Schritt Dauer in Sekunden und Werte, \"10: 100, 0; 5: 0, 100\""), "10: 0"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Am Ende"),
           QT_TRANSLATE_NOOP("FB_Types", "Was nach dem letzten Schritt geschieht"), cSequenceEnds),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Durchläufe"),
                 QT_TRANSLATE_NOOP("FB_Types", "So oft läuft der Ablauf; 0 endlos"), "0", 0, 10000),
          2, 1),
    needs(text(QT_TRANSLATE_NOOP("FB_Types", "Endwerte"),
               QT_TRANSLATE_NOOP("FB_Types", "Wert je Ausgang, durch Semikolon getrennt, nach dem Ende")),
          2, 3),
    number(QT_TRANSLATE_NOOP("FB_Types", "Geschwindigkeit"),
           QT_TRANSLATE_NOOP("FB_Types", "Dauer aller Schritte im Verhältnis; 200 läuft doppelt so schnell"), "100", 1,
           1000, 0, QT_TRANSLATE_NOOP("FB_Types", "%")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Überblenden"),
          QT_TRANSLATE_NOOP("FB_Types", "Werte gehen während des Schritts gleichmäßig ineinander über")),
};
inline constexpr FB_Pin_Group cSceneSequencePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Start"), QT_TRANSLATE_NOOP("FB_Types", "Start"), "1.010",
          QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt den Ablauf, Aus beendet ihn")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Pause"), QT_TRANSLATE_NOOP("FB_Types", "Pa"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein hält beim jetzigen Schritt an")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Weiter"), QT_TRANSLATE_NOOP("FB_Types", "+"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein geht zum nächsten Schritt")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Zu Schritt"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "5.010",
          QT_TRANSLATE_NOOP("FB_Types", "Springt zu diesem Schritt")),
    cEnableWhenOn,
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert des Schritts an diesen Ausgang")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Läuft"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Ablauf läuft")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Schritt"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "5.010",
           QT_TRANSLATE_NOOP("FB_Types", "Nummer des Schritts, 0 wenn nichts läuft")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Restzeit"), QT_TRANSLATE_NOOP("FB_Types", "t"), "7.005",
           QT_TRANSLATE_NOOP("FB_Types", "Sekunden bis zum nächsten Schritt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Beendet"), QT_TRANSLATE_NOOP("FB_Types", "End"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet Ein am Ende")),
};

} // namespace FB_Scene_Block
