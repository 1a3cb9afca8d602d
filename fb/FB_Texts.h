#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QStaticText>

class QPainter;

/// Draws the texts on the blocks of a page and beside their pins. Shaping a text takes longer than drawing it, and the
/// same texts stand on many blocks and are drawn again and again: what was shaped is kept until the font changes.
class FB_Texts {
public:
  /// Arial, as high as a grid of that many pixels allows; else like the font of the page.
  void setFont(const QFont& page, double grid);
  [[nodiscard]] const QFont& font() const { return mFont; }

  /// Pixels that the text is wide.
  [[nodiscard]] double width(const QString& text);
  /// Text in one line inside of the rectangle, elided where it does not fit. The painter has `font`.
  void draw(QPainter& painter, const QRectF& rect, Qt::Alignment alignment, const QString& text,
            Qt::TextElideMode mode = Qt::ElideRight);

private:
  struct Entry {
    QStaticText mText;
    double mWidth = 0;
    QString mElided;
    double mElidedWidth = -1; ///< for which `mElided` was made; -1 for none
  };
  Entry& entry(const QString& text);

  QFont mFont;
  QFontMetricsF mMetrics{mFont};
  double mGrid = 0;
  QHash<QString, Entry> mEntries;
};
