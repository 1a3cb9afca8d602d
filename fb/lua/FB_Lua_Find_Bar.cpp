#include "fb/lua/FB_Lua_Find_Bar.h"

#include "fb/lua/FB_Lua_Code_Edit.h"
#include "ui/Theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int cMostMarks = 1'000;
constexpr int cMargin = 8;
constexpr int cGap = 4;
constexpr int cCountWidth = 110;
constexpr int cPauseMs = 200; // of typing in the script, before what is found there is counted anew

QLineEdit* makeField(const QString& name, const QString& placeholder) {
  auto* const field = new QLineEdit;
  field->setObjectName(name);
  field->setPlaceholderText(placeholder);
  field->setAccessibleName(placeholder);
  field->setClearButtonEnabled(true);
  return field;
}

} // namespace

FB_Lua_Find_Bar::FB_Lua_Find_Bar(FB_Lua_Code_Edit& edit, QWidget* parent)
    : QWidget(parent),
      mEdit(edit),
      mText(makeField(QStringLiteral("mFind"), tr("Suchen"))),
      mReplacement(makeField(QStringLiteral("mReplacement"), tr("Ersetzen durch"))),
      mCase(new QCheckBox(tr("&Groß/Klein"))),
      mWords(new QCheckBox(tr("Ganze &Wörter"))),
      mCount(new QLabel),
      mReplace(new QPushButton(tr("&Ersetzen"))),
      mReplaceAll(new QPushButton(tr("&Alle ersetzen"))),
      mReplaceRow(new QWidget) {
  auto* const previous = new QPushButton(tr("&Vorige"));
  previous->setToolTip(tr("Vorige Stelle (Umschalt+F3)"));
  auto* const next = new QPushButton(tr("&Nächste"));
  next->setToolTip(tr("Nächste Stelle (F3)"));
  auto* const close = new QToolButton;
  close->setIcon(Theme::icon(QStringLiteral("close_white")));
  close->setAutoRaise(true);
  close->setToolTip(tr("Suche schließen (Esc)"));
  mCount->setFixedWidth(cCountWidth);

  auto* const upper = new QHBoxLayout;
  for (QWidget* const widget : std::initializer_list<QWidget*>{mText, mCount, previous, next, mCase, mWords, close}) {
    upper->addWidget(widget, widget == mText ? 1 : 0);
  }
  auto* const lower = new QHBoxLayout(mReplaceRow);
  lower->setContentsMargins(0, 0, 0, 0);
  lower->addWidget(mReplacement, 1);
  lower->addWidget(mReplace);
  lower->addWidget(mReplaceAll);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(cMargin, cGap, cMargin, cGap);
  layout->setSpacing(cGap);
  layout->addLayout(upper);
  layout->addWidget(mReplaceRow);

  connect(mText, &QLineEdit::textChanged, this, &FB_Lua_Find_Bar::refresh);
  connect(mCase, &QCheckBox::toggled, this, &FB_Lua_Find_Bar::refresh);
  connect(mWords, &QCheckBox::toggled, this, &FB_Lua_Find_Bar::refresh);
  connect(&mEdit, &QPlainTextEdit::selectionChanged, this, [this] {
    const bool canReplace = !mEdit.isReadOnly() && !mText->text().isEmpty();
    mReplace->setEnabled(canReplace);
    mReplaceAll->setEnabled(canReplace);
  });
  mLater.setSingleShot(true);
  mLater.setInterval(cPauseMs);
  connect(&mEdit, &QPlainTextEdit::textChanged, &mLater, qOverload<>(&QTimer::start));
  connect(&mLater, &QTimer::timeout, this, &FB_Lua_Find_Bar::refresh);
  connect(previous, &QPushButton::clicked, this, &FB_Lua_Find_Bar::findPrevious);
  connect(next, &QPushButton::clicked, this, &FB_Lua_Find_Bar::findNext);
  connect(mReplace, &QPushButton::clicked, this, &FB_Lua_Find_Bar::replaceOne);
  connect(mReplaceAll, &QPushButton::clicked, this, &FB_Lua_Find_Bar::replaceAll);
  connect(close, &QToolButton::clicked, this, &QWidget::hide);
  hide();
}

void FB_Lua_Find_Bar::bringUp(bool isReplacing) {
  const QString selected = mEdit.textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
    mText->setText(selected);
  }
  mReplaceRow->setVisible(isReplacing);
  show();
  mText->setFocus();
  mText->selectAll();
  refresh();
}

QTextDocument::FindFlags FB_Lua_Find_Bar::flags() const {
  QTextDocument::FindFlags flags;
  flags.setFlag(QTextDocument::FindCaseSensitively, mCase->isChecked());
  flags.setFlag(QTextDocument::FindWholeWords, mWords->isChecked());
  return flags;
}

bool FB_Lua_Find_Bar::isMatch(const QTextCursor& cursor) const {
  const QTextCursor found = mEdit.document()->find(mText->text(), cursor.selectionStart(), flags());
  return cursor.hasSelection() && found.selectionStart() == cursor.selectionStart() &&
         found.selectionEnd() == cursor.selectionEnd();
}

void FB_Lua_Find_Bar::find(bool isBackward) {
  if (mText->text().isEmpty()) {
    bringUp(mReplaceRow->isVisibleTo(this));
    return;
  }
  QTextDocument::FindFlags how = flags();
  how.setFlag(QTextDocument::FindBackward, isBackward);
  QTextCursor found = mEdit.document()->find(mText->text(), mEdit.textCursor(), how);
  if (found.isNull()) {
    QTextCursor end(mEdit.document());
    if (isBackward) {
      end.movePosition(QTextCursor::End);
    }
    found = mEdit.document()->find(mText->text(), end, how);
  }
  if (!found.isNull()) {
    mEdit.setTextCursor(found);
  }
}

void FB_Lua_Find_Bar::findNext() {
  find(false);
}

void FB_Lua_Find_Bar::findPrevious() {
  find(true);
}

void FB_Lua_Find_Bar::replaceOne() {
  QTextCursor cursor = mEdit.textCursor();
  if (!mEdit.isReadOnly() && isMatch(cursor)) {
    cursor.insertText(mReplacement->text());
    mEdit.setTextCursor(cursor);
    refresh();
  }
  findNext();
}

void FB_Lua_Find_Bar::replaceAll() {
  if (mEdit.isReadOnly() || mText->text().isEmpty()) {
    return;
  }
  QTextCursor edit(mEdit.document());
  edit.beginEditBlock();
  int count = 0;
  for (QTextCursor found = mEdit.document()->find(mText->text(), 0, flags()); !found.isNull();
       found = mEdit.document()->find(mText->text(), found, flags())) {
    found.insertText(mReplacement->text());
    ++count;
  }
  edit.endEditBlock();
  refresh();
  mCount->setText(tr("%1 ersetzt").arg(QLocale().toString(count)));
}

/// Marks what is found; so many that nobody looks at them are only counted.
void FB_Lua_Find_Bar::refresh() {
  mLater.stop();
  if (!isVisible()) {
    return;
  }
  QList<QTextCursor> marks;
  const QString text = mText->text();
  if (!text.isEmpty()) {
    for (QTextCursor found = mEdit.document()->find(text, 0, flags()); !found.isNull() && marks.size() < cMostMarks;
         found = mEdit.document()->find(text, found, flags())) {
      marks.append(found);
    }
  }
  mEdit.setMatches(marks);
  const QString count = QLocale().toString(marks.size());
  mCount->setText(text.isEmpty()              ? QString()
                  : marks.isEmpty()           ? tr("Nicht gefunden")
                  : marks.size() == 1         ? tr("1 Stelle")
                  : marks.size() < cMostMarks ? tr("%1 Stellen").arg(count)
                                              : tr("Über %1 Stellen").arg(count));
  Theme::setTextRole(*mCount, marks.isEmpty() ? Theme::Role::Warning : Theme::Role::SecondaryText);
  const bool canReplace = !mEdit.isReadOnly() && !text.isEmpty();
  mReplace->setEnabled(canReplace);
  mReplaceAll->setEnabled(canReplace);
}

void FB_Lua_Find_Bar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    hide();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    find(event->modifiers() & Qt::ShiftModifier);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void FB_Lua_Find_Bar::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  mEdit.setMatches({});
  mEdit.setFocus();
}
