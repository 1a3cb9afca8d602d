#include "ui/Theme_Style.h"

#include "ui/Theme.h"

#include <QStyleOption>

#include <algorithm>

namespace {

/// By how much Fusion darkens the colours it is given, in percent.
constexpr int cFocusDarker = 125;
constexpr int cOutlineDarker = 140;
constexpr int cButtonLighter = 130;

/// Pixels of a row of a list, a tree or a table: at least, and more than its text.
constexpr int cRowHeight = 24;
constexpr int cRowGap = 8;

/// Room for the arrow behind a tool bar that is too narrow.
constexpr int cExtensionWidth = 20;

void brightenFocus(QPalette& palette) {
  palette.setColor(QPalette::Highlight, Theme::color(Theme::Role::Accent).lighter(cFocusDarker));
}

/// Draws a copy of the option with that change; false when it is of another class, which the style tells by a cast.
template <class Option, class Change, class Draw>
bool drawAs(const QStyleOption* option, Change&& change, Draw&& draw) {
  const auto* const same = qstyleoption_cast<const Option*>(option);
  if (same) {
    Option copy(*same);
    change(copy.palette);
    // The focus is seen however it came, not by the keyboard only.
    copy.state.setFlag(QStyle::State_KeyboardFocusChange, copy.state.testFlag(QStyle::State_HasFocus) ||
                                                              copy.state.testFlag(QStyle::State_KeyboardFocusChange));
    draw(copy);
  }
  return same != nullptr;
}

} // namespace

Theme_Style::Theme_Style() : QProxyStyle(QStringLiteral("Fusion")) {}

void Theme_Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const auto draw = [&](const QStyleOption& copy) { QProxyStyle::drawPrimitive(element, &copy, painter, widget); };
  const auto brightenIndicator = [option](QPalette& palette) {
    brightenFocus(palette);
    if (option->state.testFlag(State_Enabled)) {
      palette.setColor(QPalette::Window, Theme::color(Theme::Role::Indicator).lighter(cOutlineDarker));
    }
  };
  bool isDrawn = false;
  switch (element) {
  case PE_IndicatorCheckBox:
  case PE_IndicatorRadioButton:
    isDrawn = drawAs<QStyleOptionButton>(option, brightenIndicator, draw) ||
              drawAs<QStyleOption>(option, brightenIndicator, draw);
    break;
  case PE_FrameFocusRect:
    isDrawn = drawAs<QStyleOptionFocusRect>(option, brightenFocus, draw);
    break;
  case PE_FrameLineEdit:
    isDrawn = drawAs<QStyleOptionFrame>(option, brightenFocus, draw);
    break;
  default:
    break;
  }
  if (!isDrawn) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void Theme_Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
  const auto draw = [&](const QStyleOptionComplex& copy) {
    QProxyStyle::drawComplexControl(control, &copy, painter, widget);
  };
  const auto calmButton = [](QPalette& palette) {
    brightenFocus(palette);
    palette.setColor(QPalette::Button, palette.color(QPalette::Button).darker(cButtonLighter));
  };
  // Fusion's own outline of a number field is as dark as the field, which then has no frame beside the other fields.
  const auto framedButton = [&calmButton](QPalette& palette) {
    calmButton(palette);
    palette.setColor(QPalette::Window, Theme::color(Theme::Role::Border).lighter(cOutlineDarker));
  };
  const bool isDrawn = drawAs<QStyleOptionComboBox>(option, calmButton, draw) ||
                       drawAs<QStyleOptionSpinBox>(option, framedButton, draw) ||
                       drawAs<QStyleOptionSlider>(option, brightenFocus, draw) ||
                       drawAs<QStyleOptionGroupBox>(option, brightenFocus, draw);
  if (!isDrawn) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

int Theme_Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
  return hint == SH_Menu_AllowActiveAndDisabled ? 1 : QProxyStyle::styleHint(hint, option, widget, data);
}

int Theme_Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  return metric == PM_ToolBarExtensionExtent ? cExtensionWidth : QProxyStyle::pixelMetric(metric, option, widget);
}

/// The arrows of what did not fit: the style's own are dark.
QIcon Theme_Style::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
  switch (picture) {
  case SP_ToolBarHorizontalExtensionButton:
  case SP_ToolBarVerticalExtensionButton:
    return Theme::icon(QStringLiteral("arrow_double_right_white"));
  default:
    return QProxyStyle::standardIcon(picture, option, widget);
  }
}

QSize Theme_Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
  QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_ItemViewItem) {
    result.setHeight(std::max({result.height(), cRowHeight, option->fontMetrics.height() + cRowGap}));
  }
  return result;
}
