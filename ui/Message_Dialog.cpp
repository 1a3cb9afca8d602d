#include "ui/Message_Dialog.h"

#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {
constexpr int cIconSize = 32;
constexpr int cMargin = 16;
constexpr int cGap = 12;
constexpr int cWidthInLetters = 100;
} // namespace

Message_Dialog::Message_Dialog(QWidget* parent, const QString& text, const QString& iconName)
    : QDialog(parent),
      mText(new QTextEdit),
      mButtons(new QDialogButtonBox) {
  setWindowTitle(QStringLiteral("Quarna-Studio"));
  setAccessibleDescription(text);

  auto* const icon = new QLabel;
  icon->setPixmap(Theme::icon(iconName).pixmap(cIconSize));

  mText->setObjectName(QStringLiteral("mText"));
  mText->setAccessibleName(tr("Meldung"));
  mText->setReadOnly(true);
  mText->setTabChangesFocus(true);
  mText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  mText->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  mText->document()->setDocumentMargin(2);
  mText->setPlainText(text);
  mText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // its text decides, see fitText

  auto* const upper = new QHBoxLayout;
  upper->setSpacing(cMargin);
  upper->addWidget(icon, 0, Qt::AlignTop);
  upper->addWidget(mText, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(cMargin, cMargin, cMargin, cMargin);
  layout->setSpacing(cGap);
  layout->addLayout(upper, 1);
  layout->addWidget(mButtons);

  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, &Message_Dialog::copyText);
  fitText();
}

void Message_Dialog::fitText() {
  const QScreen* const screen = parentWidget() ? parentWidget()->screen() : QGuiApplication::primaryScreen();
  const QSize limit = screen->availableSize() / 2;
  const int widest = std::min(fontMetrics().averageCharWidth() * cWidthInLetters, limit.width());

  QTextDocument* const document = mText->document();
  document->setTextWidth(-1);
  const int frame = 2 * mText->frameWidth() + 2;
  const int width = std::min(static_cast<int>(std::ceil(document->idealWidth())), widest);
  document->setTextWidth(width);
  const int height = static_cast<int>(std::ceil(document->size().height()));
  const bool scrolls = height > limit.height();
  const int bar = scrolls ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  mText->setMinimumSize(width + frame + bar, std::min(height, limit.height()) + frame);
  // A text that is seen as a whole need not be stopped at on the way through the buttons.
  mText->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::ClickFocus);
}

void Message_Dialog::copyText() {
  if (!mText->textCursor().hasSelection()) {
    mText->selectAll();
  }
  mText->copy();
}

void Message_Dialog::addButton(const QString& text, int result, bool isDefault, bool isEscape) {
  QPushButton* const button = mButtons->addButton(text, QDialogButtonBox::ActionRole);
  connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
  button->setAutoDefault(true);
  if (isDefault) {
    button->setDefault(true);
    button->setFocus();
  }
  if (isEscape) {
    mEscapeResult = result;
  }
}

void Message_Dialog::reject() {
  done(mEscapeResult);
}
