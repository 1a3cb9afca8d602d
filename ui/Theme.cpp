#include "ui/Theme.h"

#include "ui/Theme_Icon.h"
#include "ui/Theme_Sheet.h"
#include "ui/Theme_Style.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

#include <array>
#include <utility>

namespace {

using Theme::Role;

QPalette darkPalette() {
  constexpr std::array roles{
      std::pair(QPalette::Window, Role::Window),
      std::pair(QPalette::WindowText, Role::Text),
      std::pair(QPalette::Base, Role::Input),
      std::pair(QPalette::AlternateBase, Role::AlternateRow),
      std::pair(QPalette::Text, Role::Text),
      std::pair(QPalette::PlaceholderText, Role::SecondaryText),
      std::pair(QPalette::Button, Role::Button),
      std::pair(QPalette::ButtonText, Role::Text),
      std::pair(QPalette::BrightText, Role::AccentText),
      std::pair(QPalette::ToolTipBase, Role::Input),
      std::pair(QPalette::ToolTipText, Role::Text),
      std::pair(QPalette::Highlight, Role::Selection),
      std::pair(QPalette::HighlightedText, Role::AccentText),
      std::pair(QPalette::Link, Role::Link),
      std::pair(QPalette::LinkVisited, Role::Link),
      std::pair(QPalette::Light, Role::Hover),
      std::pair(QPalette::Midlight, Role::Button),
      std::pair(QPalette::Mid, Role::Border),
      std::pair(QPalette::Dark, Role::Canvas),
      std::pair(QPalette::Shadow, Role::Canvas),
  };
  QPalette palette;
  for (const auto& [paletteRole, role] : roles) {
    palette.setColor(paletteRole, Theme::color(role));
  }
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText, QPalette::ToolTipText}) {
    palette.setColor(QPalette::Disabled, role, Theme::color(Role::DisabledText));
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, Theme::color(Role::Window));
  palette.setColor(QPalette::Disabled, QPalette::Button, Theme::color(Role::Window));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, Theme::color(Role::Hover));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, Theme::color(Role::SecondaryText));
  return palette;
}

} // namespace

QColor Theme::color(Role role) {
  switch (role) {
  case Role::Bar:
    return {0x23, 0x23, 0x23};
  case Role::Window:
    return {0x2b, 0x2b, 0x2b};
  case Role::Input:
    return {0x1e, 0x1e, 0x1e};
  case Role::AlternateRow:
    return {0x26, 0x26, 0x26};
  case Role::Button:
    return {0x38, 0x38, 0x38};
  case Role::Hover:
    return {0x40, 0x40, 0x40};
  case Role::Border:
    return {0x50, 0x50, 0x50};
  case Role::Indicator:
    return {0x88, 0x88, 0x88};
  case Role::Canvas:
    return {0x1b, 0x1b, 0x1b};
  case Role::GridDot:
    return {0x33, 0x33, 0x33};
  case Role::GridLine:
    return {0x2c, 0x2c, 0x2c};
  case Role::BlockBody:
    return {0x34, 0x34, 0x34};
  case Role::BlockFrame:
  case Role::MenuSeparator:
  case Role::AccentText:
    return {0xff, 0xff, 0xff};
  case Role::SelectedFrame:
    return {202, 192, 0};
  case Role::Match:
    return {0x66, 0x5a, 0x00};
  case Role::CodeKeyword:
    return {0xc8, 0x97, 0xe6};
  case Role::CodeFunction:
    return {0x7f, 0xb4, 0xe0};
  case Role::CodeString:
    return {0xdc, 0xa8, 0x6e};
  case Role::CodeComment:
    return {0x8c, 0xa6, 0x7c};
  case Role::CodeLine:
    return {0x28, 0x28, 0x28};
  case Role::Text:
    return {0xe6, 0xe6, 0xe6};
  case Role::SecondaryText:
    return {0xa8, 0xa8, 0xa8};
  case Role::DisabledText:
    return {0x6a, 0x6a, 0x6a};
  case Role::Accent:
    return {42, 130, 218};
  case Role::Selection:
    return {0x21, 0x5a, 0x94};
  case Role::Link:
    return {0x5a, 0xa5, 0xec};
  case Role::WireAddress:
  case Role::Changed:
    return {0x7f, 0xb4, 0xe0};
  case Role::WireVariable:
    return {0x9a, 0xa8, 0x8a};
  case Role::WireTrue:
  case Role::Ok:
    return {0x63, 0xc1, 0x74};
  case Role::WireFalse:
    return {0x7a, 0x7a, 0x7a};
  case Role::Error:
    return {0xe0, 0x50, 0x50};
  case Role::ErrorText:
    return {0xf0, 0x70, 0x70};
  case Role::Warning:
    return {0xe0, 0xa0, 0x30};
  }
  return {};
}

QIcon Theme::icon(const QString& name) {
  if (!Theme_Icon::exists(name)) {
    qWarning("There is no icon \"%s\".", qPrintable(name));
    return {};
  }
  return QIcon(new Theme_Icon(name));
}

void Theme::setTextRole(QWidget& label, Role role) {
  QPalette palette = label.palette();
  // In a row of a list the text is drawn as the list's.
  for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text}) {
    palette.setColor(text, color(role));
  }
  label.setPalette(palette);
}

void Theme::apply(QApplication& application) {
  QApplication::setStyle(new Theme_Style);
  const QPalette palette = darkPalette();
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
  application.setStyleSheet(Theme_Sheet::text());
}
