#include "ui/Theme_Sheet.h"

#include "ui/Theme.h"

#include <QMetaEnum>

namespace {

/// "@Role@" stands for the colour of that role.
constexpr const char* cSheet = R"(
QMenuBar, QMenu, QToolBar, QStatusBar { background: @Bar@; color: @Text@; }
QMenuBar { border-bottom: 1px solid @Canvas@; }
QMenuBar::item { background: transparent; padding: 4px 8px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @Selection@; color: @AccentText@; }
QMenuBar::item:disabled { color: @DisabledText@; }

QMenu { border: 1px solid @Border@; padding: 4px 0px; }
QMenu::item { padding: 4px 24px 4px 8px; border: 1px solid transparent; }
QMenu::item:selected { background: @Selection@; color: @AccentText@; }
QMenu::item:disabled { color: @DisabledText@; }
QMenu::item:disabled:selected { color: @SecondaryText@; }
QMenu::icon { padding-left: 8px; }
QMenu::icon:checked { background: @Accent@; }
QMenu::separator { height: 1px; background: @MenuSeparator@; margin: 4px 8px; }

QToolBar { border: none; padding: 2px; spacing: 2px; }
QToolBar::separator { background: @Border@; width: 1px; height: 1px; margin: 4px; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 3px; padding: 3px; }
QToolButton[popupMode="1"] { padding-right: 16px; }
QToolButton[popupMode="2"] { padding-right: 12px; }
QToolButton:hover { background: @Hover@; }
QToolButton:pressed { background: @Selection@; color: @AccentText@; }
QToolButton:checked { background: @Accent@; color: @AccentText@; }
QToolButton:focus { border-color: @Accent@; }
QToolButton:checked:focus { border-color: @AccentText@; }
QToolButton:disabled { color: @DisabledText@; }
QToolButton:checked:disabled { background: @Button@; border-color: @Border@; }
QToolButton::menu-button { border: none; width: 14px; }
QToolButton#qt_toolbar_ext_button, QToolButton#qt_menubar_ext_button { padding: 0px; border: none; }
QTabBar QToolButton { background: @Button@; padding: 0px; }

QStatusBar::item { border: none; }
QToolTip { background: @Input@; color: @Text@; border: 1px solid @Border@; padding: 2px; }

QPushButton { background: @Button@; border: 1px solid @Border@; border-radius: 3px; padding: 4px 12px; min-height: 16px;
  min-width: 56px; }
QPushButton:hover { background: @Hover@; }
QPushButton:pressed, QPushButton:checked { background: @Selection@; color: @AccentText@; }
QPushButton:default { border-color: @SecondaryText@; }
QPushButton:focus { border: 2px solid @Accent@; padding: 3px 11px; outline: none; }
QPushButton:disabled { background: @Window@; color: @DisabledText@; border-color: @Button@; }

QLineEdit, QTextEdit, QPlainTextEdit, QAbstractItemView { border: 1px solid @Border@; }
QLineEdit { border-radius: 3px; padding: 2px 4px; min-height: 16px; }
Message_Dialog QTextEdit { background: @Window@; border-color: @Window@; }
QLineEdit:focus, QTextEdit:focus, QPlainTextEdit:focus, QAbstractItemView:focus, QScrollArea:focus {
  border: 1px solid @Accent@; }
QLineEdit:read-only { background: @Window@; }
QLineEdit:disabled { background: @Window@; border-color: @Button@; }
QAbstractSpinBox QLineEdit, QComboBox QLineEdit { border: none; padding: 0px; min-height: 0px; }
QAbstractItemView QLineEdit { border: 1px solid @Accent@; border-radius: 0px; padding: 0px; min-height: 0px; }
FB_Dev_Properties_Page QTreeWidget { background: @Window@; }
FB_Property_Row QLineEdit { border: 1px solid @Border@; border-radius: 3px; padding: 2px 4px; min-height: 16px; }
FB_Property_Row QLineEdit:focus { border-color: @Accent@; }
FB_Property_Row QLineEdit:disabled { border-color: @Button@; }
FB_Property_Row QAbstractSpinBox QLineEdit { border: none; padding: 0px; min-height: 0px; }
QLineEdit[invalid="true"], QAbstractItemView QLineEdit[invalid="true"] { border: 1px solid @Error@; }
QLabel[reason="true"] { background: @Input@; color: @ErrorText@; border: 1px solid @Error@; padding: 4px 8px; }

QHeaderView { background: @Bar@; border: none; }
QHeaderView::section { background: @Bar@; color: @SecondaryText@; border: none; border-right: 1px solid @Border@;
  border-bottom: 1px solid @Border@; padding: 4px 8px; }
QHeaderView::section:hover { background: @Hover@; color: @Text@; }
QTableCornerButton::section { background: @Bar@; border: none; }

QTabWidget::pane { border: 1px solid @Border@; }
QTabBar { outline: none; }
QTabBar::tab { background: @Bar@; color: @SecondaryText@; border: 1px solid transparent; padding: 4px 12px;
  min-height: 20px; }
QTabBar::tab:hover { color: @Text@; background: @Hover@; }
QTabBar::tab:selected { background: @Window@; color: @Text@; }
QTabBar::tab:top:selected { border-top: 2px solid @Accent@; }
QTabBar::tab:bottom:selected { border-bottom: 2px solid @Accent@; }
QTabBar::tab:left:selected { border-left: 2px solid @Accent@; }
QTabBar::tab:right:selected { border-right: 2px solid @Accent@; }
QTabBar::tab:focus { border: 1px solid @Accent@; }
QTabBar::tab:disabled { color: @DisabledText@; }
QTabBar::close-button { image: url(:/icons/close_white_16.png); border-radius: 3px; margin: 2px; }
QTabBar::close-button:hover { background: @Border@; }

QSplitter::handle { background: @Canvas@; }
QSplitter::handle:hover { background: @Accent@; }
QSplitter::handle:horizontal { width: 5px; }
QSplitter::handle:vertical { height: 5px; }
QMainWindow::separator { background: @Canvas@; width: 5px; height: 5px; }
QMainWindow::separator:hover { background: @Accent@; }
QDockWidget::title { background: @Bar@; padding: 4px 8px; }

QProgressBar { background: @Input@; border: 1px solid @Border@; border-radius: 3px; text-align: center; }
QProgressBar::chunk { background: @Selection@; }
)";

} // namespace

QString Theme_Sheet::text() {
  QString sheet = QString::fromUtf8(cSheet);
  const QMetaEnum roles = QMetaEnum::fromType<Theme::Role>();
  for (int i = 0; i < roles.keyCount(); ++i) {
    const QColor color = Theme::color(static_cast<Theme::Role>(roles.value(i)));
    sheet.replace(QStringLiteral("@%1@").arg(QLatin1String(roles.key(i))), color.name());
  }
  return sheet;
}
