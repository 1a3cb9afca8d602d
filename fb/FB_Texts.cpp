#include "fb/FB_Texts.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr double cFontHeight = 0.7; ///< of the grid
constexpr qsizetype cMostEntries = 8192;
constexpr qsizetype cMostCharacters = 500; // shaping takes its time; no line on a page is that long

/// What the toolkit would break a line at stands in names of old and foreign projects.
QString oneLine(const QString& text) {
  QString line = text.first(std::min(text.size(), cMostCharacters));
  std::ranges::replace_if(
      line, [](QChar letter) { return letter < u' ' || letter == QChar::LineSeparator || letter == u'\u2029'; }, u' ');
  return line;
}

} // namespace

void FB_Texts::setFont(const QFont& page, double grid) {
  if (grid == mGrid) {
    return;
  }
  mGrid = grid;
  QFont font = page;
  font.setFamily(QStringLiteral("Arial"));
  font.setPixelSize(std::max(1, static_cast<int>(cFontHeight * grid)));
  if (font != mFont || mEntries.isEmpty()) {
    mFont = font;
    mMetrics = QFontMetricsF(font);
    mEntries.clear();
  }
}

double FB_Texts::width(const QString& text) {
  return entry(text).mWidth;
}

void FB_Texts::draw(QPainter& painter, const QRectF& rect, Qt::Alignment alignment, const QString& text,
                    Qt::TextElideMode mode) {
  if (text.isEmpty() || rect.width() <= 0) {
    return;
  }
  Entry* shown = &entry(text);
  if (shown->mWidth > rect.width()) {
    if (shown->mElidedWidth != rect.width()) {
      shown->mElided = mMetrics.elidedText(shown->mText.text(), mode, rect.width());
      shown->mElidedWidth = rect.width();
    }
    const QString elided = shown->mElided;
    shown = &entry(elided);
  }
  double x = rect.left();
  if (alignment.testFlag(Qt::AlignRight)) {
    x = rect.right() - shown->mWidth;
  } else if (alignment.testFlag(Qt::AlignHCenter)) {
    x = rect.center().x() - shown->mWidth / 2;
  }
  // On whole pixels, or small letters blur.
  const double y = rect.top() + (rect.height() - mMetrics.ascent() - mMetrics.descent()) / 2;
  painter.drawStaticText(QPointF(x, qRound(y)), shown->mText);
}

FB_Texts::Entry& FB_Texts::entry(const QString& text) {
  if (const auto known = mEntries.find(text); known != mEntries.end()) {
    return *known;
  }
  if (mEntries.size() >= cMostEntries) {
    mEntries.clear();
  }
  Entry made;
  made.mText.setText(oneLine(text));
  made.mText.setTextFormat(Qt::PlainText);
  made.mText.prepare({}, mFont);
  made.mWidth = made.mText.size().width();
  return *mEntries.insert(text, made);
}
