#pragma once

#include "fb/model/FB_Geometry.h"
#include "ui/Theme.h"

#include <QRectF>

class FB_Base;
class FB_Texts;
class QPainter;
struct DB_FB_Pin;

/// The parts of which the picture of a function block consists. Made for one painting; takes over font and
/// antialiasing of the painter.
class FB_Block_Painter {
public:
  FB_Block_Painter(QPainter& painter, const FB_Base& block);

  /// The body's ground, half a grid inset at left and right; hatched when the block is disabled.
  void drawBody(FB_Body body) const;
  /// The band at the top with the line below it.
  void drawTitle() const;
  /// Lines of text that fill the body, from its top.
  void drawLines(const QStringList& lines) const;
  /// The marks of the pins in the margins.
  void drawPins() const;
  /// Their short names. Where both sides meet, the longer one is elided.
  void drawPinNames() const;
  /// In the middle of what the title leaves; of an unframed block in the middle of it.
  void drawBodyText(const QString& text) const;
  /// Frame of the body, or when selected its highlight. Unframed blocks have only the latter.
  void drawFrame(FB_Body body) const;

  /// Text in one line, elided where it does not fit.
  void drawText(const QRectF& rect, Qt::Alignment alignment, const QString& text,
                Qt::TextElideMode mode = Qt::ElideRight) const;
  /// The colour of that role, or a pale one for what is disabled.
  [[nodiscard]] QColor color(Theme::Role role) const;
  /// The body, on whole pixels; of unframed blocks the whole widget.
  [[nodiscard]] QRectF bodyRect(FB_Body body) const;

private:
  void drawPin(const DB_FB_Pin& pin, FB_Side side, int index) const;
  /// Pixels between the body's edge and texts.
  [[nodiscard]] double padding() const;
  void hatch(const QRectF& rect) const;
  /// It has no title band.
  [[nodiscard]] bool isOneRow() const;
  /// Of so many rows of pins, those that are painted now: a block may have thousands.
  [[nodiscard]] FB_Geometry::Rows rows(size_t count) const;

  QPainter& mPainter;
  const FB_Base& mBlock;
  double mGrid;
  FB_Texts& mTexts;
};
