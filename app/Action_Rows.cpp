#include "app/Action_Table.h"

#include <QCoreApplication>

namespace {

using Menu = Action_Menu;
using Bar = Action_Bar;
using When = Action_When;
using Check = Action_Check;
using Effect = Action_Effect;

// Why an action cannot be used yet.
constexpr const char* cDesigner =
    QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar: kommt mit dem Zeichnen der Visualisierung.");
constexpr const char* cRelay =
    QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar: kommt mit dem Vermittlungsdienst.");
constexpr const char* cFirmware =
    QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar: kommt mit der Software der Steuerung.");
constexpr const char* cSetup =
    QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar: kommt mit den Einstellungen der Steuerung.");
constexpr const char* cResources =
    QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar: kommt mit der Verwaltung von Grafiken und Klängen.");
constexpr const char* cHelp = QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar: kommt mit der Hilfe.");
constexpr const char* cOther = QT_TRANSLATE_NOOP("Action_Table", "Noch nicht verfügbar.");

constexpr const char* cZoomTip = QT_TRANSLATE_NOOP("Action_Table", "Zoom\t(Strg + Mausrad)");
constexpr const char* cPreviousTip = QT_TRANSLATE_NOOP("Action_Table", "Vorherige Seite\t(Strg + Pfeil links)");
constexpr const char* cNextTip = QT_TRANSLATE_NOOP("Action_Table", "Nächste Seite\t(Strg + Pfeil rechts)");
constexpr const char* cPlayTip =
    QT_TRANSLATE_NOOP("Action_Table", "Zwischen Bearbeitungsmodus und Bedienemodus umschalten\tF5");
constexpr const char* cBootTip = QT_TRANSLATE_NOOP("Action_Table", "Projekt permanent auf Steuerung speichern");
constexpr const char* cRasterTip = QT_TRANSLATE_NOOP(
    "Action_Table", "Ausgewaehlte Bedienelemente am Raster ausrichten - ohne Auswahl die ganze Seite");

/// A row that is told what it is word by word.
struct Row : Action_Row {
  constexpr Row(const char* slot, const char* text, char16_t accessKey, const char* icon, const char* tip) {
    mSlot = slot;
    mText = text;
    mAccessKey = accessKey;
    mIcon = icon;
    mTip = tip;
  }
  constexpr Row& in(Menu menu, int group) {
    mMenu = menu;
    mGroup = group;
    return *this;
  }
  constexpr Row& keys(const char* keys) {
    mKeys = keys;
    return *this;
  }
  constexpr Row& bar(Bar bar) {
    mBar = bar;
    return *this;
  }
  constexpr Row& barText(const char* text) {
    mBarText = text;
    return *this;
  }
  constexpr Row& toolTip(const char* text) {
    mToolTip = text;
    return *this;
  }
  constexpr Row& when(When when) {
    mWhen = when;
    return *this;
  }
  constexpr Row& changes(Effect effect) {
    mEffect = effect;
    return *this;
  }
  constexpr Row& opens(Menu menu) {
    mSubmenu = menu;
    mEffect = Effect::Menu;
    return *this;
  }
  constexpr Row& checks(Check check) {
    mCheck = check;
    return *this;
  }
  constexpr Row& missing(const char* reason) {
    mMissing = reason;
    return when(When::Window);
  }
};

// clang-format off
constexpr Action_Row cRows[] = {
    // Datei
    Row("onMenuFileNew", QT_TRANSLATE_NOOP("Action_Table", "Neues Projekt"), u'N', ":/icons/file_new_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Legt ein neues Projekt an"))
        .in(Menu::File, 0).keys("Ctrl+N").bar(Bar::Project).when(When::Window).changes(Effect::Dialog),
    Row("onMenuFileOpen", QT_TRANSLATE_NOOP("Action_Table", "Öffnen…"), u'f', ":/icons/folder_open_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Öffnet ein Projekt"))
        .in(Menu::File, 0).keys("Ctrl+O").bar(Bar::Project).when(When::Window).changes(Effect::Dialog),
    Row("mMenuLastProjects", QT_TRANSLATE_NOOP("Action_Table", "Zuletzt geöffnet"), u'Z',
        ":/icons/folder_open_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Öffnet eines der zuletzt geöffneten Projekte"))
        .in(Menu::File, 0).opens(Menu::LastProjects).when(When::Window),
    Row("onMenuFileDemo", QT_TRANSLATE_NOOP("Action_Table", "Demo-Projekt öffnen"), u'D', ":/icons/star_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Öffnet das Demo-Projekt, ein zweigeschossiges Wohnhaus"))
        .in(Menu::File, 0).when(When::Window).changes(Effect::Project),
    Row("onMenuFileSave", QT_TRANSLATE_NOOP("Action_Table", "Speichern"), u'S', ":/icons/file_save_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Speichert das Projekt"))
        .in(Menu::File, 1).keys("Ctrl+S").bar(Bar::Project).when(When::Open).changes(Effect::Project),
    Row("onMenuFileSaveAs", QT_TRANSLATE_NOOP("Action_Table", "Speichern unter"), u'u',
        ":/icons/file_save_as_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Speichert das Projekt in einer anderen Datei und bearbeitet diese weiter"))
        .in(Menu::File, 1).keys("Ctrl+Shift+S").when(When::Open).changes(Effect::Dialog),
    Row("onMenuFileClose", QT_TRANSLATE_NOOP("Action_Table", "Schließen"), u'c', ":/icons/file_close_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Schließt das Projekt"))
        .in(Menu::File, 1).keys("Ctrl+W").when(When::Open).changes(Effect::Project),
    Row("onMenuFileQuit", QT_TRANSLATE_NOOP("Action_Table", "Beenden"), u'B', ":/icons/quit_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Beendet das Studio"))
        .in(Menu::File, 2).keys("Ctrl+Q").changes(Effect::Window),

    // Bearbeiten
    Row("onEdit_Undo", QT_TRANSLATE_NOOP("Action_Table", "Rückgängig"), u'R', ":/icons/undo_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Nimmt den letzten Schritt zurück"))
        .in(Menu::Edit, 0).keys("Ctrl+Z").bar(Bar::Edit).when(When::Undo).changes(Effect::Project),
    Row("onEdit_Redo", QT_TRANSLATE_NOOP("Action_Table", "Wiederherstellen"), u'W', ":/icons/redo_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Stellt den zurückgenommenen Schritt wieder her"))
        .in(Menu::Edit, 0).keys("Ctrl+Y").bar(Bar::Edit).when(When::Redo).changes(Effect::Project),
    Row("onEditCut", QT_TRANSLATE_NOOP("Action_Table", "Ausschneiden"), u'A', ":/icons/cut_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Schneidet das Ausgewählte aus"))
        .in(Menu::Edit, 1).keys("Ctrl+X").when(When::Cut).changes(Effect::Edit),
    Row("onEditCopy", QT_TRANSLATE_NOOP("Action_Table", "Kopieren"), u'K', ":/icons/copy-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Kopiert das Ausgewählte in die Zwischenablage"))
        .in(Menu::Edit, 1).keys("Ctrl+C").when(When::Copy).changes(Effect::Edit),
    Row("onEdit_Paste", QT_TRANSLATE_NOOP("Action_Table", "Einfügen"), u'E', ":/icons/paste_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Fügt den Inhalt der Zwischenablage ein"))
        .in(Menu::Edit, 1).keys("Ctrl+V").when(When::Paste).changes(Effect::Edit),
    Row("onEditDelete", QT_TRANSLATE_NOOP("Action_Table", "Löschen"), u'L', ":/icons/trash-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Löscht das Ausgewählte"))
        .in(Menu::Edit, 1).keys("Del").when(When::Delete).changes(Effect::Edit),
    Row("onEditDuplicate", QT_TRANSLATE_NOOP("Action_Table", "Duplizieren"), u'D', ":/icons/duplicate_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt Kopien der ausgewählten Bausteine oder der Seite daneben"))
        .in(Menu::Edit, 1).keys("Ctrl+D").when(When::Duplicate).changes(Effect::Project),
    Row("onEditSelectAll", QT_TRANSLATE_NOOP("Action_Table", "Alles auswählen"), u'n', ":/icons/select_all_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Wählt alles aus, wo die Tastatur gerade schreibt"))
        .in(Menu::Edit, 1).keys("Ctrl+A").when(When::SelectAll).changes(Effect::Edit),
    Row("onEdit_Search", QT_TRANSLATE_NOOP("Action_Table", "Suchen"), u'S', ":/icons/search-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Sucht in Adressen, Seiten, Bausteinen und Texten des Projekts"))
        .in(Menu::Edit, 2).keys("Ctrl+F").bar(Bar::Edit).when(When::Open).changes(Effect::Dialog),
    Row("onEditFindReplace", QT_TRANSLATE_NOOP("Action_Table", "Suchen und ersetzen"), u'u',
        ":/icons/find_replace_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Ersetzt Texte in Adressen, Seiten und Bausteinen, in einem Schritt"))
        .in(Menu::Edit, 2).keys("Ctrl+H").when(When::Open).changes(Effect::Dialog),
    Row("mMenuProjectSetup", QT_TRANSLATE_NOOP("Action_Table", "Projekteinstellungen"), u'P', ":/icons/gear_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Was die Steuerung über das Gebäude und ihre Dienste wissen muss"))
        .in(Menu::Edit, 3).opens(Menu::ProjectSetup).when(When::Window),

    // Bearbeiten, Projekteinstellungen
    Row("onEditGeopos", QT_TRANSLATE_NOOP("Action_Table", "Geographische Position (Block)"), u'G',
        ":/icons/location_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Legt fest, wo das Gebäude steht, für Sonnenstand und Dämmerung"))
        .in(Menu::ProjectSetup, 0).when(When::Editable).changes(Effect::Dialog),
    Row("onEditLanguage", QT_TRANSLATE_NOOP("Action_Table", "Sprache"), u'S', ":/icons/language_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Sprachen der Visualisierung und ihre Texte"))
        .in(Menu::ProjectSetup, 0).missing(cSetup),
    Row("onEditUser", QT_TRANSLATE_NOOP("Action_Table", "Benutzerverwaltung"), u'B', ":/icons/key-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Benutzer der Visualisierung und ihre Rechte"))
        .in(Menu::ProjectSetup, 0).missing(cSetup),
    Row("onEditMail", QT_TRANSLATE_NOOP("Action_Table", "Mailserver"), u'M', ":/icons/mail_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Über welchen Server die Steuerung Mails verschickt"))
        .in(Menu::ProjectSetup, 1).missing(cSetup),
    Row("onEditStatistic", QT_TRANSLATE_NOOP("Action_Table", "Statistik"), u'i', ":/icons/statistic_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Welche Werte die Steuerung aufzeichnet"))
        .in(Menu::ProjectSetup, 1).when(When::Editable).changes(Effect::Dialog),
    Row("onEditSystemAddress", QT_TRANSLATE_NOOP("Action_Table", "Systemadressen"), u'y',
        ":/icons/system_address_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Adressen, die die Steuerung selbst benutzt"))
        .in(Menu::ProjectSetup, 1).missing(cSetup),
    Row("onControllerList", QT_TRANSLATE_NOOP("Action_Table", "Verteiltes Projekt"), u'V',
        ":/icons/controllers_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Die Steuerungen, auf die das Projekt verteilt ist"))
        .in(Menu::ProjectSetup, 2).when(When::Editable).changes(Effect::Dialog),
    Row("onEditTgmMon", QT_TRANSLATE_NOOP("Action_Table", "Telegramm Monitor"), u'T', ":/icons/monitor_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Was die Steuerung von den Bussen mitschreibt"))
        .in(Menu::ProjectSetup, 2).missing(cSetup),

    // Ansicht
    Row("onShowWelcome", QT_TRANSLATE_NOOP("Action_Table", "Startseite"), u'S', ":/icons/home_menu_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die Startseite; das Projekt bleibt geöffnet"))
        .in(Menu::View, 0).keys("Alt+Home").bar(Bar::Project).when(When::Window).changes(Effect::View),
    Row("onEditChangeView", QT_TRANSLATE_NOOP("Action_Table", "Ansicht umschalten"), u'A',
        ":/icons/change_view_white.png",
        QT_TRANSLATE_NOOP("Action_Table",
                          "Wechselt zwischen der letzten Programmseite und der letzten "
                          "Visualisierungsseite"))
        .in(Menu::View, 0).keys("F4").bar(Bar::View).when(When::Open).changes(Effect::View),
    Row("onShowPalette", QT_TRANSLATE_NOOP("Action_Table", "Befehl suchen…"), u'B', ":/icons/palette_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Findet Befehle, Seiten und Adressen durch Tippen"))
        .in(Menu::View, 0).keys("Ctrl+K").when(When::Window).changes(Effect::Dialog),
    Row("onPagePrevious", QT_TRANSLATE_NOOP("Action_Table", "Vorherige Seite"), u'V',
        ":/icons/arrow_single_left_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die vorige der geöffneten Seiten"))
        .in(Menu::View, 1).keys("Ctrl+Left").bar(Bar::View).toolTip(cPreviousTip).when(When::Pages)
        .changes(Effect::View),
    Row("onPageNext", QT_TRANSLATE_NOOP("Action_Table", "Nächste Seite"), u'N', ":/icons/arrow_single_right_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die nächste der geöffneten Seiten"))
        .in(Menu::View, 1).keys("Ctrl+Right").bar(Bar::View).toolTip(cNextTip).when(When::Pages).changes(Effect::View),
    Row("onPageClose", QT_TRANSLATE_NOOP("Action_Table", "Seite schließen"), u'e', ":/icons/close_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Schließt die gezeigte Seite; sie bleibt im Projekt"))
        .in(Menu::View, 1).keys("Ctrl+F4").when(When::Page).changes(Effect::View),
    Row("onZoom_Plus", QT_TRANSLATE_NOOP("Action_Table", "Zoom +"), u'Z', ":/icons/zoom_plus.png",
        QT_TRANSLATE_NOOP("Action_Table", "Vergrößert die Seite"))
        .in(Menu::View, 2).keys("Ctrl++").bar(Bar::View).toolTip(cZoomTip).when(When::Logic).changes(Effect::Zoom),
    Row("onZoom_Minus", QT_TRANSLATE_NOOP("Action_Table", "Zoom -"), u'm', ":/icons/zoom_minus.png",
        QT_TRANSLATE_NOOP("Action_Table", "Verkleinert die Seite"))
        .in(Menu::View, 2).keys("Ctrl+-").bar(Bar::View).toolTip(cZoomTip).when(When::Logic).changes(Effect::Zoom),
    Row("onZoom_Reset", QT_TRANSLATE_NOOP("Action_Table", "Zoom 100 %"), u'1', ":/icons/zoom_reset_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die Seite in ihrer eigenen Größe"))
        .in(Menu::View, 2).keys("Ctrl+0").when(When::Logic).changes(Effect::Zoom),
    Row("onZoom_Fit", QT_TRANSLATE_NOOP("Action_Table", "Ganze Seite"), u't', ":/icons/zoom_fit_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt alle Bausteine der Seite"))
        .in(Menu::View, 2).keys("Ctrl+9").when(When::Logic).changes(Effect::Zoom),
    Row("onZoom_Selection", QT_TRANSLATE_NOOP("Action_Table", "Auswahl zeigen"), u'h', ":/icons/zoom_selection_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die ausgewählten Bausteine so groß wie möglich"))
        .in(Menu::View, 2).keys("Ctrl+Shift+9").when(When::Block).changes(Effect::Zoom),
    Row("onEditRasterOnOff", QT_TRANSLATE_NOOP("Action_Table", "Raster anzeigen"), u'R', ":/icons/grid_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt oder verbirgt das Raster der Seiten"))
        .in(Menu::View, 2).bar(Bar::View).checks(Check::Grid).when(When::Window).changes(Effect::Setting),
    Row("onShowWork", QT_TRANSLATE_NOOP("Action_Table", "Zur Arbeitsfläche"), u'f', ":/icons/page_vertical_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Bringt die Tastatur zur gezeigten Seite"))
        .in(Menu::View, 3).keys("Ctrl+1").when(When::Window).changes(Effect::View),
    Row("onShowNavigation", QT_TRANSLATE_NOOP("Action_Table", "Zur Navigation"), u'g', ":/icons/account_tree-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Bringt die Tastatur zum Baum der Seiten"))
        .in(Menu::View, 3).keys("Ctrl+2").when(When::Open).changes(Effect::View),
    Row("onShowVariables", QT_TRANSLATE_NOOP("Action_Table", "Zu den Variablen"), u'd', ":/icons/main_group.png",
        QT_TRANSLATE_NOOP("Action_Table", "Bringt die Tastatur zu den Gruppenadressen"))
        .in(Menu::View, 3).keys("Ctrl+3").when(When::Open).changes(Effect::View),
    Row("mMenuBars", QT_TRANSLATE_NOOP("Action_Table", "Symbolleisten"), u'y', ":/icons/select_all_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt oder verbirgt die Symbolleisten"))
        .in(Menu::View, 4).opens(Menu::Bars).when(When::Window),

    // Programm
    Row("onEditNewPageProgram", QT_TRANSLATE_NOOP("Action_Table", "Neue Programm Seite"), u'N',
        ":/icons/account_tree-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Legt eine Programmseite an"))
        .in(Menu::Program, 0).bar(Bar::Program).when(When::Editable).changes(Effect::Project),
    Row("onPageProperties", QT_TRANSLATE_NOOP("Action_Table", "Eigenschaften der Seite…"), u'E', ":/icons/gear_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Name, Bemerkung, Größe und ausführende Steuerung der gezeigten Programmseite"))
        .in(Menu::Program, 0).when(When::LogicEdit).changes(Effect::Dialog),
    Row("onProgramWireStyle", QT_TRANSLATE_NOOP("Action_Table", "Linienstil der Verbindungen"), u'L',
        ":/icons/wire_style_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeichnet die Verbindungen geschwungen oder rechtwinklig"))
        .in(Menu::Program, 1).when(When::Window).changes(Effect::Setting),
    Row("onProgramShowDebug", QT_TRANSLATE_NOOP("Action_Table", "Anzeige IO"), u'I', ":/icons/number_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die Werte an Eingängen und Ausgängen"))
        .in(Menu::Program, 1).bar(Bar::Program).checks(Check::Values).when(When::Open).changes(Effect::View),
    Row("onProgramKeepOutputsOnCopy", QT_TRANSLATE_NOOP("Action_Table", "Beim Kopieren Ausgänge beibehalten"), u'B',
        ":/icons/copy-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Kopierte Bausteine behalten die Verknüpfungen ihrer Ausgänge"))
        .in(Menu::Program, 1).checks(Check::KeepOutputs).when(When::Window).changes(Effect::Setting),
    Row("onProgramShowOrder", QT_TRANSLATE_NOOP("Action_Table", "Ausführungsreihenfolge anzeigen"), u'f',
        ":/icons/number_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt an jedem Baustein, als wievielter er ausgeführt wird"))
        .in(Menu::Program, 1).checks(Check::Order).when(When::Open).changes(Effect::View),
    Row("mMenuProgramAlign", QT_TRANSLATE_NOOP("Action_Table", "Ausrichten"), u'A', ":/icons/dev_widget_sort_left.png",
        QT_TRANSLATE_NOOP("Action_Table", "Richtet die ausgewählten Bausteine aus"))
        .in(Menu::Program, 2).opens(Menu::ProgramAlign).when(When::Window),
    Row("onEdit_MultipleUsedOutputs", QT_TRANSLATE_NOOP("Action_Table", "Ausgänge auf doppelte Verwendung prüfen"), u'd',
        ":/icons/check_outputs_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt Adressen und Variablen, auf die mehr als ein Ausgang schreibt"))
        .in(Menu::Program, 3).when(When::Open).changes(Effect::Dialog),
    Row("onEdit_CheckValidAddress", QT_TRANSLATE_NOOP("Action_Table", "Verknüpfungen auf ungültige Adressen prüfen"), u'u',
        ":/icons/warning_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt Verknüpfungen, deren Adresse es nicht mehr gibt"))
        .in(Menu::Program, 3).when(When::Open).changes(Effect::Dialog),

    // Programm, Ausrichten
    Row("onProgramProgram_Left", QT_TRANSLATE_NOOP("Action_Table", "Links ausrichten"), u'L',
        ":/icons/dev_widget_sort_left.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Bausteine an ihre gemeinsame linke Kante"))
        .in(Menu::ProgramAlign, 0).when(When::TwoBlocks).changes(Effect::Project),
    Row("onProgramTop", QT_TRANSLATE_NOOP("Action_Table", "Oben ausrichten"), u'O', ":/icons/dev_widget_sort_top.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Bausteine an ihre gemeinsame obere Kante"))
        .in(Menu::ProgramAlign, 0).when(When::TwoBlocks).changes(Effect::Project),
    Row("onProgramRight", QT_TRANSLATE_NOOP("Action_Table", "Rechts ausrichten"), u'R',
        ":/icons/dev_widget_sort_right.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Bausteine an ihre gemeinsame rechte Kante"))
        .in(Menu::ProgramAlign, 0).when(When::TwoBlocks).changes(Effect::Project),
    Row("onProgramBottom", QT_TRANSLATE_NOOP("Action_Table", "Unten ausrichten"), u'U',
        ":/icons/dev_widget_sort_bottom.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Bausteine an ihre gemeinsame untere Kante"))
        .in(Menu::ProgramAlign, 0).when(When::TwoBlocks).changes(Effect::Project),
    Row("onProgramRasterHorizontal", QT_TRANSLATE_NOOP("Action_Table", "Aufteilen Horizontal"), u'H',
        ":/icons/dev_widget_sort_grid_horizontal.png",
        QT_TRANSLATE_NOOP("Action_Table", "Gleicht die waagrechten Abstände der ausgewählten Bausteine an"))
        .in(Menu::ProgramAlign, 1).when(When::ThreeBlocks).changes(Effect::Project),
    Row("onProgramRasterVertical", QT_TRANSLATE_NOOP("Action_Table", "Aufteilen Vertikal"), u'V',
        ":/icons/dev_widget_sort_grid_vertical.png",
        QT_TRANSLATE_NOOP("Action_Table", "Gleicht die senkrechten Abstände der ausgewählten Bausteine an"))
        .in(Menu::ProgramAlign, 1).when(When::ThreeBlocks).changes(Effect::Project),
    Row("onProgramAlign_Raster", QT_TRANSLATE_NOOP("Action_Table", "Am Raster ausrichten"), u'A',
        ":/icons/grid_white-fit.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Bausteine auf die nächsten Rasterpunkte"))
        .in(Menu::ProgramAlign, 2).when(When::BlocksOnGrid).changes(Effect::Project),

    // Visualisierung
    Row("onEditNewPageVisu", QT_TRANSLATE_NOOP("Action_Table", "Neue Visu Seite"), u'N', ":/icons/page_horizontal.png",
        QT_TRANSLATE_NOOP("Action_Table", "Legt eine Visualisierungsseite an"))
        .in(Menu::Visu, 0).bar(Bar::Visu).missing(cDesigner),
    Row("onEditStyles", QT_TRANSLATE_NOOP("Action_Table", "Styles"), u'S', ":/icons/style-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Farben und Schriften der Visualisierung"))
        .in(Menu::Visu, 1).bar(Bar::Visu).barText(QT_TRANSLATE_NOOP("Action_Table", "Style")).missing(cDesigner),
    Row("onEditRessourceImages", QT_TRANSLATE_NOOP("Action_Table", "Grafiken"), u'G', ":/icons/picture_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Bilder, die im Projekt liegen"))
        .in(Menu::Visu, 1).bar(Bar::Visu).missing(cResources),
    Row("onEditRessourceSounds", QT_TRANSLATE_NOOP("Action_Table", "Klänge"), u'K', ":/icons/music_node_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Klänge, die im Projekt liegen"))
        .in(Menu::Visu, 1).bar(Bar::Visu).missing(cResources),
    Row("onEditShowTabOrder", QT_TRANSLATE_NOOP("Action_Table", "Taborder anzeigen"), u'T', ":/icons/number_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt, in welcher Reihenfolge die Tabulatortaste durch die Elemente führt"))
        .in(Menu::Visu, 2).bar(Bar::Visu).missing(cDesigner),
    Row("mMenuDesignerAlign", QT_TRANSLATE_NOOP("Action_Table", "Ausrichten"), u'A', ":/icons/dev_widget_sort_left.png",
        QT_TRANSLATE_NOOP("Action_Table", "Richtet die ausgewählten Elemente aus"))
        .in(Menu::Visu, 2).opens(Menu::DesignerAlign).when(When::Window),
    Row("mMenuUnusedElements", QT_TRANSLATE_NOOP("Action_Table", "Nicht verwendete Elemente prüfen"), u'v',
        ":/icons/check_page_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt Elemente, die mit keiner Adresse verknüpft sind"))
        .in(Menu::Visu, 3).opens(Menu::UnusedElements).when(When::Window),

    // Visualisierung, Ausrichten
    Row("onDesigner_Left", QT_TRANSLATE_NOOP("Action_Table", "Links ausrichten"), u'L',
        ":/icons/dev_widget_sort_left.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Elemente an ihre gemeinsame linke Kante"))
        .in(Menu::DesignerAlign, 0).missing(cDesigner),
    Row("onDesigner_Top", QT_TRANSLATE_NOOP("Action_Table", "Oben ausrichten"), u'O', ":/icons/dev_widget_sort_top.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Elemente an ihre gemeinsame obere Kante"))
        .in(Menu::DesignerAlign, 0).missing(cDesigner),
    Row("onDesigner_Right", QT_TRANSLATE_NOOP("Action_Table", "Rechts ausrichten"), u'R',
        ":/icons/dev_widget_sort_right.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Elemente an ihre gemeinsame rechte Kante"))
        .in(Menu::DesignerAlign, 0).missing(cDesigner),
    Row("onDesigner_Bottom", QT_TRANSLATE_NOOP("Action_Table", "Unten ausrichten"), u'U',
        ":/icons/dev_widget_sort_bottom.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Elemente an ihre gemeinsame untere Kante"))
        .in(Menu::DesignerAlign, 0).missing(cDesigner),
    Row("onDesigner_Raster_Horizontal", QT_TRANSLATE_NOOP("Action_Table", "Aufteilen horizontal"), u'h',
        ":/icons/dev_widget_sort_grid_horizontal.png",
        QT_TRANSLATE_NOOP("Action_Table", "Gleicht die waagrechten Abstände der ausgewählten Elemente an"))
        .in(Menu::DesignerAlign, 1).missing(cDesigner),
    Row("onDesigner_Raster_Vertical", QT_TRANSLATE_NOOP("Action_Table", "Aufteilen vertikal"), u'v',
        ":/icons/dev_widget_sort_grid_vertical.png",
        QT_TRANSLATE_NOOP("Action_Table", "Gleicht die senkrechten Abstände der ausgewählten Elemente an"))
        .in(Menu::DesignerAlign, 1).missing(cDesigner),
    Row("onDesigner_SameSize", QT_TRANSLATE_NOOP("Action_Table", "Gleiche Größe"), u'G',
        ":/icons/dev_widget_sort_size.png",
        QT_TRANSLATE_NOOP("Action_Table", "Macht die ausgewählten Elemente gleich groß"))
        .in(Menu::DesignerAlign, 2).missing(cDesigner),
    Row("onDesigner_SameWidht", QT_TRANSLATE_NOOP("Action_Table", "Gleiche Breite"), u'B',
        ":/icons/dev_widget_sort_width.png",
        QT_TRANSLATE_NOOP("Action_Table", "Macht die ausgewählten Elemente gleich breit"))
        .in(Menu::DesignerAlign, 2).missing(cDesigner),
    Row("onDesigner_SameHeight", QT_TRANSLATE_NOOP("Action_Table", "Gleiche Höhe"), u'e',
        ":/icons/dev_widget_sort_height.png",
        QT_TRANSLATE_NOOP("Action_Table", "Macht die ausgewählten Elemente gleich hoch"))
        .in(Menu::DesignerAlign, 2).missing(cDesigner),
    Row("onDesigner_Center_Horizontal", QT_TRANSLATE_NOOP("Action_Table", "Zentrieren horizontal"), u'Z',
        ":/icons/dev_widget_sort_center_vertical.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Elemente waagrecht in die Mitte"))
        .in(Menu::DesignerAlign, 3).missing(cDesigner),
    Row("onDesigner_Center_Vertical", QT_TRANSLATE_NOOP("Action_Table", "Zentrieren vertikal"), u't',
        ":/icons/dev_widget_sort_center_horizontal.png",
        QT_TRANSLATE_NOOP("Action_Table", "Setzt die ausgewählten Elemente senkrecht in die Mitte"))
        .in(Menu::DesignerAlign, 3).missing(cDesigner),
    Row("onDesigner_Align_Raster", QT_TRANSLATE_NOOP("Action_Table", "Am Raster ausrichten"), u'A',
        ":/icons/grid_white-fit.png",
        QT_TRANSLATE_NOOP("Action_Table",
                          "Ausgewaehlte Bedienelemente am Raster ausrichten - ohne "
                          "Auswahl die ganze Seite"))
        .in(Menu::DesignerAlign, 4).missing(cDesigner).toolTip(cRasterTip),

    // Visualisierung, Nicht verwendete Elemente prüfen
    Row("onEdit_CheckUnusedWidgetsActualPages", QT_TRANSLATE_NOOP("Action_Table", "Aktuelle Seite"), u'A',
        ":/icons/check_page_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Prüft die Elemente der gezeigten Seite"))
        .in(Menu::UnusedElements, 0).missing(cDesigner),
    Row("onEdit_CheckUnusedWidgetsAllPages", QT_TRANSLATE_NOOP("Action_Table", "Alle Seiten"), u'S',
        ":/icons/check_pages_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Prüft die Elemente aller Visualisierungsseiten"))
        .in(Menu::UnusedElements, 0).missing(cDesigner),

    // Online
    Row("onControllerSelectConnection", QT_TRANSLATE_NOOP("Action_Table", "Verbindungen"), u'V',
        ":/icons/dev_search_control.png",
        QT_TRANSLATE_NOOP("Action_Table", "Wählt die Steuerung, sucht und prüft Verbindungen"))
        .in(Menu::Online, 0).bar(Bar::Online).when(When::Open).changes(Effect::Dialog),
    Row("onControllerConnect", QT_TRANSLATE_NOOP("Action_Table", "Verbinden\tF11"), u'b', ":/icons/control_offline.png",
        QT_TRANSLATE_NOOP("Action_Table", "Verbindet mit der Steuerung oder trennt die Verbindung"))
        .in(Menu::Online, 0).checks(Check::Link).keys("F11").bar(Bar::Online).when(When::Open).changes(Effect::Link),
    Row("onControlPlay", QT_TRANSLATE_NOOP("Action_Table", "Play"), u'P', ":/icons/hs_simulation-play-gray.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zwischen Bearbeitungsmodus und Bedienemodus umschalten"))
        .in(Menu::Online, 1).keys("F5").bar(Bar::Online).toolTip(cPlayTip).checks(Check::Operating).when(When::Open)
        .changes(Effect::Mode),
    Row("onControllerSavePersistentProjectAsk", QT_TRANSLATE_NOOP("Action_Table", "Bootprojekt erzeugen"), u'e',
        ":/icons/save_project_to_control.png",
        QT_TRANSLATE_NOOP("Action_Table", "Projekt permanent auf Steuerung speichern"))
        .in(Menu::Online, 2).bar(Bar::Online).toolTip(cBootTip).when(When::Online).changes(Effect::Dialog),
    Row("onControllerDownloadProject", QT_TRANSLATE_NOOP("Action_Table", "Projekt aus Steuerung laden"), u'l',
        ":/icons/load_project_from_control.png",
        QT_TRANSLATE_NOOP("Action_Table", "Liest das Projekt, das auf der Steuerung läuft"))
        .in(Menu::Online, 2).bar(Bar::Online).when(When::Online).changes(Effect::Dialog),
    Row("onControllerCompareProject", QT_TRANSLATE_NOOP("Action_Table", "Projekt mit Steuerung vergleichen"), u'g',
        ":/icons/compare_project_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt, ob die Steuerung das geöffnete Projekt hat"))
        .in(Menu::Online, 2).when(When::Online).changes(Effect::Dialog),
    Row("mMenuBackup", QT_TRANSLATE_NOOP("Action_Table", "Sicherung"), u'S', ":/icons/backup_controller_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Persistente Werte und ganze Steuerung sichern und zurückspielen"))
        .in(Menu::Online, 2).opens(Menu::Backup).when(When::Window),
    Row("mMenuController", QT_TRANSLATE_NOOP("Action_Table", "Steuerung"), u'u', ":/icons/controller_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Uhr, Netzwerk, Dienste und Software der Steuerung"))
        .in(Menu::Online, 3).opens(Menu::Controller).when(When::Window),
    Row("onControllerTunnel", QT_TRANSLATE_NOOP("Action_Table", "Fernzugriff"), u'F', ":/icons/tunnel_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zugriff auf die Steuerung über den Vermittlungsdienst"))
        .in(Menu::Online, 3).missing(cRelay),

    // Online, Sicherung
    Row("onControllerSavePersistentValues", QT_TRANSLATE_NOOP("Action_Table", "Persistente Werte an Steuerung speichern"), u'W',
        ":/icons/file_save_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Die Steuerung schreibt ihre persistenten Werte fest"))
        .in(Menu::Backup, 0).when(When::Online).changes(Effect::Controller),
    Row("onControllerDownloadPersistentValues", QT_TRANSLATE_NOOP("Action_Table", "Backup Persistente Werte aus Steuerung laden"), u'l',
        ":/icons/persistent_load_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Liest die persistenten Werte in eine Datei"))
        .in(Menu::Backup, 0).when(When::Online).changes(Effect::Dialog),
    Row("onControllerUploadPersistentValues", QT_TRANSLATE_NOOP("Action_Table", "Backup Persistente Werte zur Steuerung übertragen"), u'z',
        ":/icons/persistent_send_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Schreibt persistente Werte aus einer Datei in die Steuerung"))
        .in(Menu::Backup, 0).when(When::Online).changes(Effect::Dialog),
    Row("onControllerBackupController", QT_TRANSLATE_NOOP("Action_Table", "Backupsteuerung"), u'B',
        ":/icons/backup_controller_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Sichert Projekt und Werte der Steuerung"))
        .in(Menu::Backup, 1).when(When::Online).changes(Effect::Dialog),
    Row("onControllerRestoreBackup", QT_TRANSLATE_NOOP("Action_Table", "Sicherung wiederherstellen..."), u'S',
        ":/icons/restore_backup_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Spielt eine Sicherung in die Steuerung zurück"))
        .in(Menu::Backup, 1).when(When::Online).changes(Effect::Dialog),

    // Online, Steuerung
    Row("onControllerGetInformation", QT_TRANSLATE_NOOP("Action_Table", "Steuerungsinformationen"), u'i',
        ":/icons/controller_info_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Version, Lizenz und Zustand der Steuerung"))
        .in(Menu::Controller, 0).when(When::Online).changes(Effect::Dialog),
    Row("onControllerSytemClock", QT_TRANSLATE_NOOP("Action_Table", "Uhrzeit"), u'U', ":/icons/clock_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Liest und stellt die Uhr der Steuerung"))
        .in(Menu::Controller, 1).when(When::Online).changes(Effect::Dialog),
    Row("onControllerPassword", QT_TRANSLATE_NOOP("Action_Table", "Passwort"), u'P', ":/icons/password_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Ändert das Passwort der Steuerung"))
        .in(Menu::Controller, 1).missing(cSetup),
    Row("onControllerNetwork", QT_TRANSLATE_NOOP("Action_Table", "Netzwerkeinstellungen"), u'N',
        ":/icons/network_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Adresse, Maske und Gateway der Steuerung"))
        .in(Menu::Controller, 1).missing(cSetup),
    Row("onControllerServices", QT_TRANSLATE_NOOP("Action_Table", "Dienste"), u'D', ":/icons/services_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Welche Dienste auf der Steuerung laufen"))
        .in(Menu::Controller, 1).missing(cSetup),
    Row("onControllerUpdateSoftware", QT_TRANSLATE_NOOP("Action_Table", "Software Update"), u'S',
        ":/icons/update_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Spielt eine neue Software in die Steuerung"))
        .in(Menu::Controller, 2).missing(cFirmware),
    Row("onControllerReboot", QT_TRANSLATE_NOOP("Action_Table", "Neustart"), u'e', ":/icons/reboot_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Startet die Steuerung neu"))
        .in(Menu::Controller, 2).when(When::Online).changes(Effect::Controller),
    Row("onControllerFactoryReset", QT_TRANSLATE_NOOP("Action_Table", "Projekt zurücksetzen"), u'z',
        ":/icons/factory_reset_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Löscht das Projekt auf der Steuerung"))
        .in(Menu::Controller, 2).when(When::Online).changes(Effect::Controller),

    // Extras
    Row("onEdit_ODBC_Import", QT_TRANSLATE_NOOP("Action_Table", "Adressen ODBC Import (ESF/XML)"), u'A',
        ":/icons/import_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Übernimmt die Gruppenadressen eines ETS-Exports in das Projekt"))
        .in(Menu::Extras, 0).when(When::Editable).changes(Effect::Dialog),
    Row("onEdit_ODBC_Export", QT_TRANSLATE_NOOP("Action_Table", "Adressen ODBC Export"), u'x',
        ":/icons/export_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Schreibt die Gruppenadressen als XML für die ETS oder als ESF"))
        .in(Menu::Extras, 0).when(When::Open).changes(Effect::Dialog),
    Row("onEdit_KNX_Manager_Import", QT_TRANSLATE_NOOP("Action_Table", "GDAS Manager Import (JSON)"), u'G',
        ":/icons/import_json_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Übernimmt Adressen aus einem JSON-Export"))
        .in(Menu::Extras, 0).missing(cOther),
    Row("onEdit_Project_Generator", QT_TRANSLATE_NOOP("Action_Table", "Projekt-Generator..."), u'P',
        ":/icons/generator_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Erzeugt Seiten und Bausteine aus Regeln"))
        .in(Menu::Extras, 0).missing(cOther),
    Row("onEdit_Search_Unused", QT_TRANSLATE_NOOP("Action_Table", "Adressen nach Verwendung suchen…"), u'w',
        ":/icons/search-white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt, welche Adressen wo oder gar nicht verwendet sind"))
        .in(Menu::Extras, 1).when(When::Open).changes(Effect::Dialog),
    Row("onExtrasVPN", QT_TRANSLATE_NOOP("Action_Table", "VPN Verknüpfung"), u'V', ":/icons/vpn_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Verbindet mit der Steuerung über ein virtuelles Netz"))
        .in(Menu::Extras, 2).missing(cRelay),
    Row("mMenuLanguage", QT_TRANSLATE_NOOP("Action_Table", "Sprache des Studios"), u'S', ":/icons/language_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Sprache der Menüs und Texte; wirkt beim nächsten Start"))
        .in(Menu::Extras, 3).opens(Menu::Language).when(When::Window),
    Row("onExtrasSettingsDev", QT_TRANSLATE_NOOP("Action_Table", "Einstellungen"), u'E', ":/icons/gear_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Einstellungen des Studios"))
        .in(Menu::Extras, 3).keys("Ctrl+,").when(When::Window).changes(Effect::Dialog),

    // Hilfe
    Row("onHelp_Context", QT_TRANSLATE_NOOP("Action_Table", "Kontexthilfe"), u'K', ":/icons/help_context_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Erklärt, was gerade ausgewählt ist"))
        .in(Menu::Help, 0).keys("F1").when(When::Window).changes(Effect::Dialog),
    Row("onHelp_Browser", QT_TRANSLATE_NOOP("Action_Table", "Inhalt"), u'I', ":/icons/help_contents_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Das Inhaltsverzeichnis der Hilfe"))
        .in(Menu::Help, 0).when(When::Window).changes(Effect::Dialog),
    Row("onHelp_Search", QT_TRANSLATE_NOOP("Action_Table", "Hilfe durchsuchen"), u'H', ":/icons/help_search_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Sucht in der Hilfe"))
        .in(Menu::Help, 0).when(When::Window).changes(Effect::Dialog),
    Row("onHelp_Examples", QT_TRANSLATE_NOOP("Action_Table", "Beispiele"), u'B', ":/icons/help_examples_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Beispielprojekte zum Ansehen"))
        .in(Menu::Help, 1).missing(cHelp),
    Row("onHelp_Videos", QT_TRANSLATE_NOOP("Action_Table", "Schulungsvideos"), u'S', ":/icons/help_videos_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Filme, die in das Studio einführen"))
        .in(Menu::Help, 1).missing(cHelp),
    Row("onHelp_Online", QT_TRANSLATE_NOOP("Action_Table", "Online-Dokumentation"), u'O',
        ":/icons/help_online_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Die Dokumentation des Herstellers im Browser"))
        .in(Menu::Help, 1).missing(cHelp),
    Row("onHelp_Assistant", QT_TRANSLATE_NOOP("Action_Table", "KI-Assistent"), u'A', ":/icons/assistant_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Fragen an den KI-Assistenten"))
        .in(Menu::Help, 2).keys("Ctrl+F1").missing(cHelp),
    Row("onShowAboutDlg", QT_TRANSLATE_NOOP("Action_Table", "Quarna-Studio"), u'Q', ":/icons/info_white.png",
        QT_TRANSLATE_NOOP("Action_Table", "Zeigt die Version des Studios"))
        .in(Menu::Help, 3).when(When::Window).changes(Effect::Dialog),
};
// clang-format on

} // namespace

std::span<const Action_Row> Action_Table::rows() {
  return cRows;
}
