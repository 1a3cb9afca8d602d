#include "fb/lua/FB_Lua_Line_Numbers.h"

#include "fb/lua/FB_Lua_Code_Edit.h"
#include "ui/Theme.h"

#include <QPainter>
#include <QTextBlock>
#include <QWheelEvent>

#include <algorithm>

namespace {
constexpr int cFewestDigits = 3;
constexpr int cMark = 8; // width of an error's mark
constexpr int cGap = 4;
} // namespace

FB_Lua_Line_Numbers::FB_Lua_Line_Numbers(FB_Lua_Code_Edit& edit) : QWidget(&edit), mEdit(edit) {}

QSize FB_Lua_Line_Numbers::sizeHint() const {
  const auto digits = static_cast<int>(QString::number(mEdit.blockCount()).size());
  const int width = mEdit.fontMetrics().horizontalAdvance(u'9') * std::max(digits, cFewestDigits);
  return {cMark + width + 2 * cGap, 0};
}

void FB_Lua_Line_Numbers::setErrorLine(int line) {
  mErrorLine = line;
  update();
}

void FB_Lua_Line_Numbers::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Theme::color(Theme::Role::Bar));
  painter.setFont(mEdit.font());
  const int current = mEdit.textCursor().blockNumber();
  const int height = mEdit.fontMetrics().height();
  for (QTextBlock block = mEdit.firstLine(); block.isValid(); block = block.next()) {
    const QRectF line = mEdit.lineRect(block);
    if (line.top() > event->rect().bottom()) {
      break;
    }
    const bool isError = block.blockNumber() + 1 == mErrorLine;
    if (isError) {
      painter.fillRect(QRectF(0, line.top(), cMark / 2.0, line.height()), Theme::color(Theme::Role::Error));
    }
    painter.setPen(Theme::color(isError                          ? Theme::Role::ErrorText
                                : block.blockNumber() == current ? Theme::Role::Text
                                                                 : Theme::Role::SecondaryText));
    painter.drawText(QRectF(0, line.top(), width() - cGap, height), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(block.blockNumber() + 1));
  }
}

void FB_Lua_Line_Numbers::mousePressEvent(QMouseEvent* event) {
  QTextCursor cursor = mEdit.cursorForPosition(QPoint(0, event->pos().y()));
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
  mEdit.setTextCursor(cursor);
}

void FB_Lua_Line_Numbers::wheelEvent(QWheelEvent* event) {
  mEdit.scrollBy(*event);
}
