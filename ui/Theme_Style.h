#pragma once

#include <QProxyStyle>

/// The toolkit's Fusion style made readable on dark ground. Fusion derives the colours of lines from those of areas:
/// the keyboard focus from selected text, the outline of a check box from the window; both come out too dark here. Rows
/// of lists, trees and tables are at least 24 pixels high. Menu entries that cannot be used can be walked to all the
/// same, so that the status bar tells why.
class Theme_Style : public QProxyStyle {
  Q_OBJECT

public:
  Theme_Style();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* data) const override;
  [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                   const QWidget* widget) const override;
  [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                       const QWidget* widget) const override;
};
