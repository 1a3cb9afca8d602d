#include "ui/Address_Import_Message.h"

#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int cGap = 8;
constexpr int cIcon = 16;

} // namespace

Address_Import_Message::Address_Import_Message(QWidget* parent)
    : QWidget(parent),
      mIcon(new QLabel),
      mText(new QLabel) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  mIcon->setPixmap(Theme::icon(QStringLiteral("error_white")).pixmap(cIcon));
  mText->setObjectName(QStringLiteral("mErrorText"));
  mText->setTextFormat(Qt::PlainText);
  mText->setWordWrap(true);
  mText->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(mIcon, 0, Qt::AlignTop);
  layout->addWidget(mText, 1);
}

void Address_Import_Message::setError(const QString& text) {
  Theme::setTextRole(*mText, Theme::Role::ErrorText);
  mText->setText(text);
  mIcon->show();
  setVisible(!text.isEmpty());
}

void Address_Import_Message::setNotice(const QString& text) {
  setError(text);
  Theme::setTextRole(*mText, Theme::Role::SecondaryText);
  mIcon->hide();
}
