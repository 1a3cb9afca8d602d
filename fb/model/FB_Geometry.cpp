#include "fb/model/FB_Geometry.h"

#include "fb/model/FB_Types.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr double cLeastWidth = 8;
constexpr double cTitleCharacter = 0.5;
constexpr double cPinCharacter = 0.75;
constexpr QChar cEllipsis = u'…';
/// Of constants and diagnostic displays: one row without a title band.
constexpr double cRowHeight = 1;

bool isOneRow(int type) {
  return type == 11 || type == 12;
}

qsizetype longestShortName(const std::vector<DB_FB_Pin>& pins) {
  qsizetype longest = 0;
  for (const DB_FB_Pin& pin : pins) {
    longest = std::max(longest, pin.mShortName.size());
  }
  return std::min(longest, FB_Geometry::cPinNameLength);
}

/// Appends a paragraph in lines, broken at blanks where there are some. Stops when there is a line too many.
void wrap(QStringView paragraph, QStringList& lines) {
  while (paragraph.size() > FB_Geometry::cCommentWidth && lines.size() <= FB_Geometry::cCommentLines) {
    const qsizetype blank = paragraph.first(FB_Geometry::cCommentWidth + 1).lastIndexOf(u' ');
    const bool isInPair = paragraph[FB_Geometry::cCommentWidth].isLowSurrogate();
    const qsizetype end = blank > 0 ? blank : FB_Geometry::cCommentWidth - (isInPair ? 1 : 0);
    lines.append(paragraph.first(end).toString());
    paragraph = paragraph.sliced(blank > 0 ? end + 1 : end);
  }
  lines.append(paragraph.toString());
}

QStringList commentLines(QStringView text) {
  QStringList lines;
  for (const QStringView paragraph : text.tokenize(u'\n')) {
    wrap(paragraph, lines);
    if (lines.size() > FB_Geometry::cCommentLines) {
      lines.resize(FB_Geometry::cCommentLines);
      lines.append(cEllipsis);
      break;
    }
  }
  return lines;
}

QString firstLine(const QString& text) {
  QString line = text.first(std::max(qsizetype(0), text.indexOf(u'\n') < 0 ? text.size() : text.indexOf(u'\n')));
  if (line.size() > FB_Geometry::cTitleLength) {
    const bool isInPair = line[FB_Geometry::cTitleLength - 1].isLowSurrogate();
    line = line.first(FB_Geometry::cTitleLength - (isInPair ? 2 : 1)) + cEllipsis;
  }
  return line;
}

} // namespace

QString FB_Geometry::title(const DB_FB_Control& block) {
  if (block.mType == FB_Types::cComment && block.mOriginalType != 0) {
    return QCoreApplication::translate("FB_Geometry", "Unbekannter Funktionsbaustein");
  }
  return block.ownTitle().isEmpty() ? FB_Types::name(block.mType) : block.ownTitle();
}

QStringList FB_Geometry::titleLines(const DB_FB_Control& block) {
  const QString text = title(block);
  return block.mType == FB_Types::cComment ? commentLines(text) : QStringList(firstLine(text));
}

QSizeF FB_Geometry::size(const DB_FB_Control& block, double grid) {
  if (isOneRow(block.mType)) {
    return {cLeastWidth * grid, cRowHeight * grid};
  }
  const QStringList lines = titleLines(block);
  qsizetype titleLength = 0;
  for (const QString& line : lines) {
    titleLength = std::max(titleLength, line.size());
  }
  const qsizetype pinLength = std::max(longestShortName(block.mInputs), longestShortName(block.mOutputs));
  const double width = std::max({cLeastWidth, static_cast<double>(titleLength) * cTitleCharacter,
                                 static_cast<double>(pinLength) * cPinCharacter});
  const size_t rows = std::max(block.mInputs.size(), block.mOutputs.size());
  return {width * grid, (2 + static_cast<double>(rows) + static_cast<double>(lines.size() - 1)) * grid};
}

QRectF FB_Geometry::rect(const DB_FB_Control& block) {
  return {QPointF(block.mX, block.mY), size(block)};
}

QPointF FB_Geometry::pin(const DB_FB_Control& block, FB_Side side, int index, double grid) {
  const double width = side == FB_Side::Input ? 0 : size(block, grid).width();
  return pin(block.mType, side, index, width, grid);
}

QPointF FB_Geometry::pin(int type, FB_Side side, int index, double width, double grid) {
  const double y = isOneRow(type) ? cRowHeight / 2 : 2 + index;
  return {side == FB_Side::Input ? 0 : width, y * grid};
}

FB_Geometry::Rows FB_Geometry::rowsBetween(double top, double bottom, size_t count, double grid) {
  constexpr double cAbove = 2; // a row's middle stands so far below the edge, or less
  constexpr double cSpare = 2; // half of the row itself, and the next one
  const auto all = static_cast<double>(count);
  return {static_cast<int>(std::clamp(std::floor(top / grid - cAbove - cSpare), 0.0, all)),
          static_cast<int>(std::clamp(std::ceil(bottom / grid + cSpare), 0.0, all))};
}
