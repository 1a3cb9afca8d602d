#include "fb/lua/FB_Lua_Code_Edit.h"

#include "fb/lua/FB_Lua_Completion.h"
#include "fb/lua/FB_Lua_Line_Numbers.h"
#include "fb/lua/FB_Lua_Script_Highlight.h"
#include "fb/lua/FB_Lua_Text_Edits.h"
#include "fb/model/FB_Lua_Functions.h"
#include "ui/Theme.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int cPointSize = 10;
constexpr int cNormalZoom = 10;
constexpr int cLeastZoom = 5;
constexpr int cMostZoom = 30;
constexpr int cOfferFrom = 2; // letters of a word
constexpr int cTipMs = 120;

QFont codeFont(int zoom) {
  QFont font(
      QStringList{QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"), QStringLiteral("monospace")});
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setPointSizeF(static_cast<double>(cPointSize) * zoom / cNormalZoom);
  return font;
}

} // namespace

FB_Lua_Code_Edit::FB_Lua_Code_Edit(QWidget* parent)
    : QPlainTextEdit(parent),
      mNumbers(new FB_Lua_Line_Numbers(*this)),
      mHighlight(new FB_Lua_Script_Highlight(document())),
      mCompletion(new FB_Lua_Completion(*this)) {
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setAccessibleName(tr("Script"));
  setPlaceholderText(
      tr("Hier entsteht das Script. \"Befehle/Funktion\" fügt Funktionen und Callbacks ein, Strg+Leertaste "
         "schlägt Wörter vor."));
  setZoom(cNormalZoom);
  connect(this, &QPlainTextEdit::blockCountChanged, this, &FB_Lua_Code_Edit::placeMargin);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &FB_Lua_Code_Edit::updateMarks);
  connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& rect, int dy) {
    if (dy != 0) {
      mNumbers->scroll(0, dy);
    } else {
      mNumbers->update(0, rect.y(), mNumbers->width(), rect.height());
    }
  });
  connect(mCompletion, qOverload<const QString&>(&QCompleter::activated), this, &FB_Lua_Code_Edit::complete);
  updateMarks();
}

void FB_Lua_Code_Edit::setZoom(int tenths) {
  mZoom = std::clamp(tenths, cLeastZoom, cMostZoom);
  setFont(codeFont(mZoom));
  setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * 4.0);
  placeMargin();
}

void FB_Lua_Code_Edit::replaceAll(const QString& text) {
  const int line = textCursor().blockNumber() + 1;
  QTextCursor cursor(document());
  cursor.select(QTextCursor::Document);
  cursor.insertText(text);
  goToLine(line);
}

void FB_Lua_Code_Edit::setError(int line, const QString& message) {
  if (mErrorLine == line && mError == message) {
    return;
  }
  mErrorLine = line;
  mError = message;
  mNumbers->setErrorLine(line);
  updateMarks();
}

void FB_Lua_Code_Edit::goToLine(int line) {
  const QTextBlock block = document()->findBlockByNumber(std::clamp(line, 1, blockCount()) - 1);
  setTextCursor(QTextCursor(block));
  centerCursor();
}

QString FB_Lua_Code_Edit::word() const {
  return FB_Lua_Text_Edits::wordAt(textCursor().block().text(), textCursor().positionInBlock());
}

void FB_Lua_Code_Edit::learnWords(const QString& script) {
  if (!mCompletion->isShown()) {
    mCompletion->setScript(script);
  }
}

void FB_Lua_Code_Edit::setMatches(const QList<QTextCursor>& matches) {
  mMatches = matches;
  updateMarks();
}

void FB_Lua_Code_Edit::toggleComment() {
  changeLines(FB_Lua_Text_Edits::toggleComment);
}

void FB_Lua_Code_Edit::changeLines(void (*change)(QTextCursor&)) {
  if (!isReadOnly()) {
    QTextCursor cursor = textCursor();
    change(cursor);
    setTextCursor(cursor);
  }
}

bool FB_Lua_Code_Edit::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    showTip(help.globalPos(), viewport()->mapFrom(this, help.pos()));
    return true;
  }
  return QPlainTextEdit::event(event);
}

void FB_Lua_Code_Edit::keyPressEvent(QKeyEvent* event) {
  if (mCompletion->isShown()) {
    switch (event->key()) {
    case Qt::Key_Tab:
      complete(mCompletion->current());
      return;
    case Qt::Key_Enter:
    case Qt::Key_Return:
      if (const QTextCursor cursor = textCursor();
          mCompletion->current() == FB_Lua_Text_Edits::wordBefore(cursor.block().text(), cursor.positionInBlock())) {
        mCompletion->popup()->hide(); // nothing is left to complete: "end" and Return is a new line
        break;
      }
      event->ignore(); // the list's own
      return;
    case Qt::Key_Escape:
      event->ignore();
      return;
    default:
      break;
    }
  }
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) {
    offerCompletion(true);
    return;
  }
  if (handleEditKey(*event)) {
    mCompletion->popup()->hide();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
  if (isReadOnly() || event->text().isEmpty() || event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
    return;
  }
  changeLines(FB_Lua_Text_Edits::alignClosing);
  if (event->text() == u"(") {
    showCallTip();
  }
  offerCompletion(false);
}

/// Keys that do another thing in a script than in other texts.
bool FB_Lua_Code_Edit::handleEditKey(const QKeyEvent& event) {
  switch (event.key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) {
      return false;
    }
    changeLines(FB_Lua_Text_Edits::newLine);
    ensureCursorVisible();
    return true;
  case Qt::Key_Tab:
    if (event.modifiers() != Qt::NoModifier || isReadOnly()) {
      return false;
    }
    changeLines(FB_Lua_Text_Edits::indent);
    return true;
  case Qt::Key_Backtab:
    changeLines(FB_Lua_Text_Edits::unindent);
    return true;
  default:
    return false;
  }
}

void FB_Lua_Code_Edit::offerCompletion(bool isAsked) {
  const QTextCursor cursor = textCursor();
  const QString line = cursor.block().text();
  const QString prefix = FB_Lua_Text_Edits::wordBefore(line, cursor.positionInBlock());
  const bool isWordGoingOn =
      cursor.positionInBlock() < line.size() && FB_Lua_Text_Edits::isOfWord(line[cursor.positionInBlock()]);
  // Where a comment or a string is written, Return must not take a word of the language.
  const bool isTyped = prefix.size() >= cOfferFrom && !prefix[0].isDigit() && !isWordGoingOn &&
                       FB_Lua_Text_Edits::isCode(line, cursor.positionInBlock()) &&
                       !FB_Lua_Script_Highlight::isInsideComment(cursor.block());
  if (isReadOnly() || !(isAsked || isTyped)) {
    mCompletion->popup()->hide();
    return;
  }
  const QRect at = cursorRect();
  const int back = fontMetrics().horizontalAdvance(prefix);
  mCompletion->offer(prefix, QRect(mNumbers->width() + at.x() - back, at.y(), at.width(), at.height()));
}

void FB_Lua_Code_Edit::complete(const QString& word) {
  mCompletion->popup()->hide();
  if (word.isEmpty() || isReadOnly()) {
    return;
  }
  QTextCursor cursor = textCursor();
  const QString prefix = FB_Lua_Text_Edits::wordBefore(cursor.block().text(), cursor.positionInBlock());
  cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, static_cast<int>(prefix.size()));
  const FB_Lua_Function* const function = FB_Lua_Functions::find(word);
  const bool isCalled = document()->characterAt(textCursor().position()) == u'(';
  cursor.insertText(function && !isCalled ? word + QStringLiteral("()") : word);
  if (function && !isCalled && *function->mParameters[0].mName) {
    cursor.movePosition(QTextCursor::PreviousCharacter);
  }
  setTextCursor(cursor);
  if (function) {
    showCallTip();
  }
}

/// Of the function whose parameters are being typed.
void FB_Lua_Code_Edit::showCallTip() {
  const QTextCursor cursor = textCursor();
  const QString name = FB_Lua_Text_Edits::wordBefore(cursor.block().text(), cursor.positionInBlock() - 1);
  const QString tip = FB_Lua_Functions::toolTip(name);
  if (!tip.isEmpty()) {
    // A list that closes takes tips with it when the pointer leaves it, which is told a moment later.
    QTimer::singleShot(cTipMs, this, [this, tip] {
      QToolTip::showText(viewport()->mapToGlobal(cursorRect().bottomLeft()), tip, viewport());
    });
  }
}

void FB_Lua_Code_Edit::showTip(const QPoint& globalPos, const QPoint& pos) {
  const QTextCursor cursor = cursorForPosition(pos);
  QString tip = FB_Lua_Functions::toolTip(FB_Lua_Text_Edits::wordAt(cursor.block().text(), cursor.positionInBlock()));
  if (tip.isEmpty() && cursor.blockNumber() + 1 == mErrorLine) {
    tip = mError.toHtmlEscaped();
  }
  QToolTip::showText(globalPos, tip, viewport());
}

void FB_Lua_Code_Edit::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  placeMargin();
}

void FB_Lua_Code_Edit::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) {
    QPlainTextEdit::wheelEvent(event);
  } else if (event->angleDelta().y() != 0) {
    setZoom(mZoom + (event->angleDelta().y() > 0 ? 1 : -1));
  }
}

void FB_Lua_Code_Edit::placeMargin() {
  const int width = mNumbers->sizeHint().width();
  setViewportMargins(width, 0, 0, 0);
  const QRect inside = contentsRect();
  mNumbers->setGeometry(inside.left(), inside.top(), width, inside.height());
}

void FB_Lua_Code_Edit::updateMarks() {
  QList<QTextEdit::ExtraSelection> marks;
  const auto add = [&marks](const QTextCursor& cursor, const auto& setFormat) {
    QTextEdit::ExtraSelection mark;
    mark.cursor = cursor;
    setFormat(mark.format);
    marks.append(mark);
  };
  QTextCursor line = textCursor();
  line.clearSelection();
  add(line, [](QTextCharFormat& format) {
    format.setBackground(Theme::color(Theme::Role::CodeLine));
    format.setProperty(QTextFormat::FullWidthSelection, true);
  });
  const auto setMatch = [](QTextCharFormat& format) { format.setBackground(Theme::color(Theme::Role::Match)); };
  for (const QTextCursor& match : std::as_const(mMatches)) {
    add(match, setMatch);
  }
  if (mErrorLine > 0) {
    QTextCursor error(document()->findBlockByNumber(std::min(mErrorLine, blockCount()) - 1));
    error.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    add(error, [](QTextCharFormat& format) {
      format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
      format.setUnderlineColor(Theme::color(Theme::Role::Error));
    });
  }
  // A bracket before the cursor counts before one behind it.
  for (const int position : {textCursor().position() - 1, textCursor().position()}) {
    const std::optional<int> other = position < 0 ? std::nullopt : FB_Lua_Text_Edits::partner(*document(), position);
    if (other) {
      for (const int at : {position, *other}) {
        QTextCursor bracket(document());
        bracket.setPosition(at);
        bracket.setPosition(at + 1, QTextCursor::KeepAnchor);
        add(bracket, [](QTextCharFormat& format) {
          format.setBackground(Theme::color(Theme::Role::Selection));
          format.setForeground(Theme::color(Theme::Role::AccentText));
        });
      }
      break;
    }
  }
  setExtraSelections(marks);
  mNumbers->update();
}
