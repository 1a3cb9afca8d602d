#pragma once

#include <QColor>
#include <QIcon>
#include <QObject>
#include <QString>

class QApplication;
class QWidget;

/// How the studio looks: the one place that names colours and loads icons.
namespace Theme {

Q_NAMESPACE

enum class Role {
  Bar,           ///< menus, tool bars, status bar, plain block body
  Window,        ///< windows and panels
  Input,         ///< input fields and lists
  AlternateRow,  ///< every other row of a list
  Button,        ///< push buttons
  Hover,         ///< under the mouse pointer
  Border,        ///< around fields, buttons and panels
  Indicator,     ///< outline of check boxes and radio buttons
  Canvas,        ///< ground of a page
  GridDot,       ///< on the canvas
  GridLine,      ///< on the canvas, every 8 cells
  BlockBody,     ///< the lighter block body
  BlockFrame,    ///< not selected
  SelectedFrame, ///< of a selected block
  Text,
  SecondaryText, ///< notes, units, counts
  DisabledText,
  Accent,     ///< keyboard focus, checked tool button
  AccentText, ///< on Accent and Selection
  Selection,  ///< selected menu items, rows and texts
  MenuSeparator,
  Link,
  WireAddress,  ///< wire that carries a group address
  WireVariable, ///< wire that carries an internal variable
  WireTrue,     ///< live value true
  WireFalse,    ///< live value false
  Error,        ///< marks and frames
  ErrorText,    ///< text on panels
  Warning,
  Ok,
  Changed,     ///< what differs from what is there
  Match,       ///< ground of what was searched for
  CodeKeyword, ///< words of a script, on Input
  CodeFunction,
  CodeString,
  CodeComment,
  CodeLine, ///< ground of the line with the cursor
};
Q_ENUM_NS(Role)

[[nodiscard]] QColor color(Role role);

/// Colours the texts of a label.
void setTextRole(QWidget& label, Role role);

/// The icon ":/icons/NAME.png", `name` without path and ending, sharp in every size of the program and as pale as
/// the texts of what is disabled. A null icon, and a warning in the log, when there is none of that name.
[[nodiscard]] QIcon icon(const QString& name);

/// Style, palette and style sheet of the whole application; called once, before the first window.
void apply(QApplication& application);

} // namespace Theme
