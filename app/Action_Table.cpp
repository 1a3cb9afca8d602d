#include "app/Action_Table.h"

#include "base/Access_Key.h"
#include "base/Session_State.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeySequence>

namespace {

using Menu = Action_Menu;
using Bar = Action_Bar;
using When = Action_When;

QString tr(const char* text) {
  return QCoreApplication::translate("Action_Table", text);
}

constexpr char cOnlineIcon[] = ":/icons/control_online.png";

bool hasLinkText(const Action_Row& row, const Action_State& state) {
  return row.mEffect == Action_Effect::Link && !state.mLinkText.isEmpty();
}

QString stepTip(const Action_Row& row, const QString& step) {
  return step.isEmpty() ? tr(row.mTip) : Action_Table::text(row) + QStringLiteral(": ") + step;
}

bool isMet(When when, const Action_State& state) {
  switch (when) {
  case When::Online:
    return state.mIsOnline;
  case When::Undo:
    return state.mCanUndo;
  case When::Redo:
    return state.mCanRedo;
  case When::Page:
    return state.mIsPageShown;
  case When::Pages:
    return state.mTabCount > 1;
  case When::Logic:
  case When::LogicEdit:
    return state.mIsLogicShown;
  case When::Block:
    return state.mSelectedBlocks >= 1;
  case When::TwoBlocks:
    return state.mSelectedBlocks >= 2;
  case When::ThreeBlocks:
    return state.mSelectedBlocks >= 3;
  case When::BlocksOnGrid:
    return state.mSelectedBlocks >= 1 && state.mIsGridShown;
  case When::Cut:
    return state.mCanCut;
  case When::Copy:
    return state.mCanCopy;
  case When::Paste:
    return state.mCanPaste;
  case When::Delete:
    return state.mCanDelete;
  case When::Duplicate:
    return state.mCanDuplicate;
  case When::SelectAll:
    return state.mCanSelectAll;
  default:
    return true;
  }
}

QString reason(When when) {
  switch (when) {
  case When::Undo:
    return tr("Es gibt keinen Schritt, der zurückgenommen werden kann.");
  case When::Redo:
    return tr("Es gibt keinen zurückgenommenen Schritt.");
  case When::Page:
    return tr("Es wird keine Seite gezeigt.");
  case When::Online:
    return tr("Keine Verbindung zur Steuerung");
  case When::Pages:
    return tr("Es ist keine weitere Seite geöffnet.");
  case When::Logic:
  case When::LogicEdit:
    return tr("Es wird keine Programmseite gezeigt.");
  case When::Block:
    return tr("Es ist kein Baustein ausgewählt.");
  case When::TwoBlocks:
    return tr("Dazu müssen mindestens zwei Bausteine ausgewählt sein.");
  case When::ThreeBlocks:
    return tr("Dazu müssen mindestens drei Bausteine ausgewählt sein.");
  case When::BlocksOnGrid:
    return tr("Dazu muss ein Baustein ausgewählt und das Raster angezeigt sein.");
  case When::Cut:
  case When::Delete:
    return tr("Es ist nichts ausgewählt, was gelöscht werden kann.");
  case When::Duplicate:
    return tr("Es ist nichts ausgewählt, was dupliziert werden kann.");
  case When::Copy:
    return tr("Es ist nichts ausgewählt, was kopiert werden kann.");
  case When::Paste:
    return tr("Hier kann nichts eingefügt werden.");
  case When::SelectAll:
    return tr("Hier gibt es nichts auszuwählen.");
  default:
    return {};
  }
}

} // namespace

QString Action_Table::menuTitle(Action_Menu menu) {
  switch (menu) {
  case Menu::File:
    return tr("&Datei");
  case Menu::Edit:
    return tr("&Bearbeiten");
  case Menu::View:
    return tr("&Ansicht");
  case Menu::Program:
    return tr("&Programm");
  case Menu::Visu:
    return tr("&Visualisierung");
  case Menu::Online:
    return tr("&Online");
  case Menu::Extras:
    return tr("&Extras");
  case Menu::Help:
    return tr("&Hilfe");
  default:
    return {}; // a submenu is called like its row
  }
}

QString Action_Table::barTitle(Action_Bar bar) {
  switch (bar) {
  case Bar::None:
    return {};
  case Bar::Project:
    return tr("Projekt");
  case Bar::Edit:
    return tr("Bearbeiten");
  case Bar::View:
    return tr("Ansicht");
  case Bar::Program:
    return tr("Programm");
  case Bar::Visu:
    return tr("Visualisierung");
  case Bar::Online:
    return tr("Online");
  }
  return {};
}

QString Action_Table::iconName(const Action_Row& row, const Action_State& state) {
  const char* const icon = row.mEffect == Action_Effect::Link && state.mIsOnline ? cOnlineIcon : row.mIcon;
  return QFileInfo(QString::fromLatin1(icon)).completeBaseName();
}

QString Action_Table::text(const Action_Row& row) {
  return tr(row.mText);
}

QString Action_Table::menuText(const Action_Row& row, const Action_State& state) {
  // What stands behind the tab is no text for access keys: a name may hold the letter, and "&" stands for itself.
  const QString shown = Access_Key::mark(text(row), row.mAccessKey);
  return hasLinkText(row, state) ? shown + u'\n' + QString(state.mLinkText).replace(u'&', QStringLiteral("&&")) : shown;
}

QString Action_Table::barText(const Action_Row& row) {
  return *row.mBarText ? tr(row.mBarText) : text(row).section(u'\t', 0, 0);
}

QString Action_Table::statusTip(const Action_Row& row, const Action_State& state) {
  QString why = whyDisabled(row, state);
  if (!why.isEmpty()) {
    return why;
  }
  switch (row.mWhen) {
  case When::Undo:
    return stepTip(row, state.mUndoText);
  case When::Redo:
    return stepTip(row, state.mRedoText);
  default:
    break;
  }
  if (row.mEffect == Action_Effect::Link && state.mIsLinkWanted) {
    return tr("Trennt die Verbindung zur Steuerung");
  }
  return tr(row.mTip);
}

QString Action_Table::toolTip(const Action_Row& row, const Action_State& state) {
  if (*row.mToolTip) {
    return tr(row.mToolTip);
  }
  if (hasLinkText(row, state)) {
    return text(row) + u'\n' + state.mLinkText;
  }
  const QString tip = statusTip(row, state);
  const QKeySequence keys(QString::fromLatin1(row.mKeys), QKeySequence::PortableText);
  return keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys.toString(QKeySequence::NativeText));
}

bool Action_Table::isOfFocus(const Action_Row& row) {
  const When when = row.mWhen;
  return when == When::Cut || when == When::Copy || when == When::Paste || when == When::Delete ||
         when == When::Duplicate || when == When::SelectAll;
}

bool Action_Table::isChecked(const Action_Row& row, const Action_State& state) {
  switch (row.mCheck) {
  case Action_Check::None:
    return false;
  case Action_Check::Operating:
    return state.mIsOperating;
  case Action_Check::Grid:
    return state.mIsGridShown;
  case Action_Check::Values:
    return state.mAreValuesShown;
  case Action_Check::KeepOutputs:
    return state.mKeepsOutputs;
  case Action_Check::Order:
    return state.mIsOrderShown;
  case Action_Check::Link:
    return state.mIsLinkWanted;
  }
  return false;
}

QString Action_Table::whyDisabled(const Action_Row& row, const Action_State& state) {
  const When when = row.mWhen;
  if (when == When::Always) {
    return {};
  }
  if (state.mIsKiosk) {
    return tr("Im Kioskbetrieb nicht möglich.");
  }
  if (*row.mMissing) {
    return tr(row.mMissing);
  }
  if (when == When::Window) {
    return {};
  }
  if (!isOfFocus(row) && !state.mIsOpen) {
    return tr("Es ist kein Projekt geöffnet.");
  }
  const bool isEdit = when == When::Editable || when == When::Undo || when == When::Redo ||
                      (when >= When::LogicEdit && when <= When::BlocksOnGrid);
  // A search field takes them in the operating mode, too.
  const bool isEditOfFocus =
      when == When::Cut || when == When::Paste || when == When::Delete || when == When::Duplicate;
  if (state.mIsOperating && (isEdit || (isEditOfFocus && !isMet(when, state)))) {
    return Session_State::operatingModeRefusal();
  }
  if (when == When::Online && state.mIsOnline && state.mIsProgramOnItsWay) {
    return tr("Das Programm wird gerade zur Steuerung übertragen.");
  }
  return isMet(when, state) ? QString() : reason(when);
}
