#include "fb/formula/FB_Formula_Edit.h"

#include "fb/model/FB_Formula_Words.h"
#include "ui/Theme.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int cFontSize = 12;
constexpr int cLines = 5;
constexpr int cFewestLetters = 2;

QStringList names() {
  QStringList names;
  for (const FB_Formula_Word& word : FB_Formula_Words::all()) {
    if (QChar(QLatin1Char(word.mName[0])).isLetter()) {
      names.append(QString::fromLatin1(word.mName));
    }
  }
  names.sort();
  return names;
}

} // namespace

FB_Formula_Edit::FB_Formula_Edit(QWidget* parent) : QPlainTextEdit(parent), mCompleter(new QCompleter(names(), this)) {
  QFont font(QStringLiteral("Courier New"), cFontSize);
  font.setStyleHint(QFont::Monospace);
  setFont(font);
  setTabChangesFocus(true);
  setPlaceholderText(tr("Zum Beispiel: (E1 + E2) / 2"));
  setMinimumHeight(cLines * fontMetrics().lineSpacing() + 2 * frameWidth() + 2 * int(document()->documentMargin()));
  mCompleter->setWidget(this);
  mCompleter->setCaseSensitivity(Qt::CaseInsensitive);
  connect(mCompleter, qOverload<const QString&>(&QCompleter::activated), this, &FB_Formula_Edit::complete);
}

void FB_Formula_Edit::showFault(const FB_Formula_Language::Fault& fault) {
  QList<QTextEdit::ExtraSelection> marks;
  if (fault && document()->characterCount() > 1) {
    const qsizetype last = document()->characterCount() - 1;
    // Where something is missing, the character before is marked.
    const qsizetype from = fault.mLength > 0 ? fault.mAt : std::max<qsizetype>(0, std::min(fault.mAt, last) - 1);
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(static_cast<int>(std::min(from, last)));
    mark.cursor.setPosition(static_cast<int>(std::min(from + std::max<qsizetype>(1, fault.mLength), last)),
                            QTextCursor::KeepAnchor);
    mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    mark.format.setUnderlineColor(Theme::color(Theme::Role::Error));
    mark.format.setForeground(Theme::color(Theme::Role::ErrorText));
    marks.append(mark);
  }
  setExtraSelections(marks);
}

void FB_Formula_Edit::insertWord(const QString& word, bool isFunction) {
  if (isReadOnly()) {
    return;
  }
  const bool isOperator = !isFunction && !word.front().isLetterOrNumber();
  textCursor().insertText(isFunction ? word + u'(' : isOperator ? QStringLiteral(" %1 ").arg(word) : word);
  setFocus();
}

QString FB_Formula_Edit::begunName() const {
  const QString before = toPlainText().left(textCursor().position());
  qsizetype start = before.size();
  while (start > 0 && (before[start - 1].isLetterOrNumber() || before[start - 1] == u'_')) {
    --start;
  }
  return before.mid(start);
}

void FB_Formula_Edit::complete(const QString& name) {
  QTextCursor cursor = textCursor();
  cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, static_cast<int>(begunName().size()));
  const FB_Formula_Word* const word = FB_Formula_Words::find(name);
  const bool isFunction = word && word->mKind == FB_Formula_Word::Kind::Function;
  cursor.insertText(isFunction ? name + u'(' : name);
}

void FB_Formula_Edit::keyPressEvent(QKeyEvent* event) {
  QAbstractItemView* const popup = mCompleter->popup();
  const bool isChoosing = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                          event->key() == Qt::Key_Tab || event->key() == Qt::Key_Escape;
  if (popup->isVisible() && isChoosing) {
    event->ignore(); // the list takes it
    return;
  }
  const bool isAskedFor = event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier;
  if (!isAskedFor) {
    QPlainTextEdit::keyPressEvent(event);
  }
  const QString typed = event->text();
  const bool isLetter = !typed.isEmpty() && typed.front().isLetterOrNumber();
  const bool isMending = popup->isVisible() && event->key() == Qt::Key_Backspace;
  if (!isReadOnly() && (isAskedFor || ((isLetter || isMending) && begunName().size() >= cFewestLetters))) {
    offerNames();
  } else if (!typed.isEmpty()) {
    popup->hide();
  }
}

void FB_Formula_Edit::offerNames() {
  const QString begun = begunName();
  mCompleter->setCompletionPrefix(begun);
  const bool isWhole = mCompleter->completionCount() == 1 && mCompleter->currentCompletion() == begun;
  if (mCompleter->completionCount() == 0 || isWhole) {
    mCompleter->popup()->hide();
    return;
  }
  mCompleter->popup()->setCurrentIndex(mCompleter->completionModel()->index(0, 0));
  QRect place = cursorRect();
  place.setWidth(mCompleter->popup()->sizeHintForColumn(0) +
                 mCompleter->popup()->verticalScrollBar()->sizeHint().width());
  mCompleter->complete(place);
}
