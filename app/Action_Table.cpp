#include "app/Action_Table.h"

#include "base/Session_State.h"

#include <QCoreApplication>

namespace {

using Menu = Action_Menu;
using Bar = Action_Bar;
using When = Action_When;

QString tr(const char* text) {
  return QCoreApplication::translate("Action_Table", text);
}

// clang-format off
constexpr Action_Row cRows[] = {
    {"onMenuFileNew", QT_TRANSLATE_NOOP("Action_Table", "&Neues Projekt"), "file_new_white", "Ctrl+N",
     QT_TRANSLATE_NOOP("Action_Table", "Legt ein neues Projekt an"), Menu::File, 0, Bar::Project, When::Window},
    {"onMenuFileOpen", QT_TRANSLATE_NOOP("Action_Table", "Ö&ffnen…"), "folder_open_white", "Ctrl+O",
     QT_TRANSLATE_NOOP("Action_Table", "Öffnet ein Projekt"), Menu::File, 0, Bar::Project, When::Window},
    {"mMenuLastProjects", QT_TRANSLATE_NOOP("Action_Table", "&Zuletzt geöffnet"), "folder_open_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Öffnet eines der zuletzt geöffneten Projekte"), Menu::File, 0, Bar::None,
     When::Window, true},
    {"onMenuFileDemo", QT_TRANSLATE_NOOP("Action_Table", "&Demo-Projekt öffnen"), "star_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Öffnet das Demo-Projekt, ein zweigeschossiges Wohnhaus"), Menu::File, 0,
     Bar::None, When::Window},
    {"onMenuFileSave", QT_TRANSLATE_NOOP("Action_Table", "&Speichern"), "file_save_white", "Ctrl+S",
     QT_TRANSLATE_NOOP("Action_Table", "Speichert das Projekt"), Menu::File, 1, Bar::Project, When::Open},
    {"onMenuFileSaveAs", QT_TRANSLATE_NOOP("Action_Table", "Speichern &unter"), "file_save_as_white", "Ctrl+Shift+S",
     QT_TRANSLATE_NOOP("Action_Table", "Speichert das Projekt in einer anderen Datei und bearbeitet diese weiter"),
     Menu::File, 1, Bar::None, When::Open},
    {"onMenuFileClose", QT_TRANSLATE_NOOP("Action_Table", "S&chließen"), "file_close_white", "Ctrl+W",
     QT_TRANSLATE_NOOP("Action_Table", "Schließt das Projekt"), Menu::File, 1, Bar::None, When::Open},
    {"onMenuFileQuit", QT_TRANSLATE_NOOP("Action_Table", "&Beenden"), "quit_white", "Ctrl+Q",
     QT_TRANSLATE_NOOP("Action_Table", "Beendet das Studio"), Menu::File, 2, Bar::None, When::Always},

    {"onEdit_Undo", QT_TRANSLATE_NOOP("Action_Table", "&Rückgängig"), "undo_white", "Ctrl+Z",
     QT_TRANSLATE_NOOP("Action_Table", "Nimmt den letzten Schritt zurück"), Menu::Edit, 0, Bar::Edit, When::Undo},
    {"onEdit_Redo", QT_TRANSLATE_NOOP("Action_Table", "&Wiederherstellen"), "redo_white", "Ctrl+Y",
     QT_TRANSLATE_NOOP("Action_Table", "Stellt den zurückgenommenen Schritt wieder her"), Menu::Edit, 0, Bar::Edit,
     When::Redo},
    {"onEditGeopos", QT_TRANSLATE_NOOP("Action_Table", "&Geographische Position (Block)"), "location_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Legt fest, wo das Gebäude steht, für Sonnenstand und Dämmerung"), Menu::Edit, 1,
     Bar::None, When::Editable},

    {"onShowWelcome", QT_TRANSLATE_NOOP("Action_Table", "&Startseite"), "home_menu_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Zeigt die Startseite; das Projekt bleibt geöffnet"), Menu::View, 0,
     Bar::Project, When::Window},

    {"onEdit_ODBC_Import", QT_TRANSLATE_NOOP("Action_Table", "&Adressen ODBC Import (ESF/XML)"), "import_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Übernimmt die Gruppenadressen eines ETS-Exports in das Projekt"), Menu::Extras,
     0, Bar::None, When::Editable},
    {"onEdit_ODBC_Export", QT_TRANSLATE_NOOP("Action_Table", "Adressen ODBC E&xport"), "export_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Schreibt die Gruppenadressen als XML für die ETS oder als ESF"), Menu::Extras, 0,
     Bar::None, When::Open},
    {"onEdit_Search_Unused", QT_TRANSLATE_NOOP("Action_Table", "Adressen nach Ver&wendung suchen…"), "search-white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Zeigt, welche Adressen wo oder gar nicht verwendet sind"), Menu::Extras, 1,
     Bar::None, When::Open},
    {"onEdit_CheckValidAddress",
     QT_TRANSLATE_NOOP("Action_Table", "Verknüpfungen auf &ungültige Adressen prüfen"), "warning_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Zeigt Verknüpfungen, deren Adresse es nicht mehr gibt"), Menu::Extras, 1,
     Bar::None, When::Open},

    {"onShowAboutDlg", QT_TRANSLATE_NOOP("Action_Table", "&Quarna-Studio"), "info_white", "",
     QT_TRANSLATE_NOOP("Action_Table", "Zeigt die Version des Studios"), Menu::Help, 0, Bar::None, When::Window},
};
// clang-format on

QString stepTip(const Action_Row& row, const QString& step) {
  return step.isEmpty() ? tr(row.mTip) : Action_Table::text(row).remove(u'&') + QStringLiteral(": ") + step;
}

} // namespace

std::span<const Action_Row> Action_Table::rows() {
  return cRows;
}

QString Action_Table::menuTitle(Action_Menu menu) {
  switch (menu) {
  case Menu::File:
    return tr("&Datei");
  case Menu::Edit:
    return tr("&Bearbeiten");
  case Menu::View:
    return tr("&Ansicht");
  case Menu::Extras:
    return tr("&Extras");
  case Menu::Help:
    return tr("&Hilfe");
  }
  return {};
}

QString Action_Table::barTitle(Action_Bar bar) {
  switch (bar) {
  case Bar::None:
    return {};
  case Bar::Project:
    return tr("Projekt");
  case Bar::Edit:
    return tr("Bearbeiten");
  }
  return {};
}

QString Action_Table::text(const Action_Row& row) {
  return tr(row.mText);
}

QString Action_Table::tip(const Action_Row& row, const Action_State& state) {
  QString reason = whyDisabled(row, state);
  if (!reason.isEmpty()) {
    return reason;
  }
  switch (row.mWhen) {
  case When::Undo:
    return stepTip(row, state.mUndoText);
  case When::Redo:
    return stepTip(row, state.mRedoText);
  default:
    return tr(row.mTip);
  }
}

QString Action_Table::whyDisabled(const Action_Row& row, const Action_State& state) {
  if (row.mWhen == When::Always) {
    return {};
  }
  if (state.mIsKiosk) {
    return tr("Im Kioskbetrieb nicht möglich.");
  }
  if (row.mWhen == When::Window) {
    return {};
  }
  if (!state.mIsOpen) {
    return tr("Es ist kein Projekt geöffnet.");
  }
  if (row.mWhen == When::Open) {
    return {};
  }
  if (state.mIsOperating) {
    return Session_State::operatingModeRefusal();
  }
  if (row.mWhen == When::Undo && !state.mCanUndo) {
    return tr("Es gibt keinen Schritt, der zurückgenommen werden kann.");
  }
  if (row.mWhen == When::Redo && !state.mCanRedo) {
    return tr("Es gibt keinen zurückgenommenen Schritt.");
  }
  return {};
}
