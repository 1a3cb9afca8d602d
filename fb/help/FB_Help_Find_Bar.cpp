#include "fb/help/FB_Help_Find_Bar.h"

#include "fb/help/FB_Help_Browser.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

namespace {

constexpr int cGap = 4;

QToolButton* makeButton(const QString& icon, const QString& text) {
  auto* const button = new QToolButton;
  button->setIcon(Theme::icon(icon));
  button->setAccessibleName(text);
  button->setToolTip(text);
  return button;
}

} // namespace

FB_Help_Find_Bar::FB_Help_Find_Bar(FB_Help_Browser& browser, QWidget* parent)
    : QWidget(parent),
      mBrowser(browser),
      mText(new QLineEdit),
      mPlaces(new QLabel) {
  mText->setObjectName(QStringLiteral("fb:mHelpFind"));
  mText->setPlaceholderText(tr("Auf dieser Seite suchen"));
  mText->setAccessibleName(mText->placeholderText());
  mText->addAction(Theme::icon(QStringLiteral("search-white")), QLineEdit::LeadingPosition);
  mText->setClearButtonEnabled(true);
  Theme::setTextRole(*mPlaces, Theme::Role::SecondaryText);
  QToolButton* const previous =
      makeButton(QStringLiteral("arrow_single_left_white"), tr("Vorige Stelle (Umschalt+F3)"));
  QToolButton* const next = makeButton(QStringLiteral("arrow_single_right_white"), tr("Nächste Stelle (F3)"));
  QToolButton* const close = makeButton(QStringLiteral("close_white"), tr("Schließen (Esc)"));

  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mText, 1);
  layout->addWidget(mPlaces);
  layout->addWidget(previous);
  layout->addWidget(next);
  layout->addWidget(close);

  connect(mText, &QLineEdit::textChanged, this, &FB_Help_Find_Bar::onTextChanged);
  connect(mText, &QLineEdit::returnPressed, this, &FB_Help_Find_Bar::findNext);
  connect(
      new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Return), this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
      &QShortcut::activated, this, &FB_Help_Find_Bar::findPrevious);
  connect(previous, &QAbstractButton::clicked, this, &FB_Help_Find_Bar::findPrevious);
  connect(next, &QAbstractButton::clicked, this, &FB_Help_Find_Bar::findNext);
  connect(close, &QAbstractButton::clicked, this, &QWidget::hide);
  connect(&mBrowser, &FB_Help_Browser::pageChanged, this, [this] {
    if (isVisible()) {
      tell(mBrowser.mark({mText->text()}));
    }
  });
  hide();
}

void FB_Help_Find_Bar::open() {
  show();
  mText->setFocus(Qt::ShortcutFocusReason);
  mText->selectAll();
  tell(mBrowser.mark({mText->text()}));
}

void FB_Help_Find_Bar::onTextChanged() {
  tell(mBrowser.mark({mText->text()}));
  // From the place that is selected on, which may go on matching while one types.
  QTextCursor cursor = mBrowser.textCursor();
  cursor.setPosition(cursor.selectionStart());
  mBrowser.setTextCursor(cursor);
  find(false);
}

void FB_Help_Find_Bar::find(bool isBackward) {
  mBrowser.findNext(mText->text(), isBackward);
}

void FB_Help_Find_Bar::tell(int places) {
  mPlaces->setText(mText->text().isEmpty() ? QString()
                   : places == 0           ? tr("Kommt nicht vor")
                   : places == 1           ? tr("1 Stelle")
                                           : tr("%1 Stellen").arg(places));
}

void FB_Help_Find_Bar::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) {
    mBrowser.mark({});
    mBrowser.setFocus();
  }
}
