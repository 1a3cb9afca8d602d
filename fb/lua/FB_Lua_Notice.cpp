#include "fb/lua/FB_Lua_Notice.h"

#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {
constexpr int cIconSize = 16;
constexpr int cMargin = 8;
} // namespace

FB_Lua_Notice::FB_Lua_Notice(QWidget* parent) : QWidget(parent), mText(new QLabel), mButton(new QPushButton) {
  auto* const icon = new QLabel;
  icon->setPixmap(Theme::icon(QStringLiteral("warning_white")).pixmap(cIconSize));
  mText->setWordWrap(true);
  mText->setTextFormat(Qt::PlainText); // part of it may come from a controller
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(cMargin, cMargin / 2, cMargin, cMargin / 2);
  layout->addWidget(icon);
  layout->addWidget(mText, 1);
  layout->addWidget(mButton);
  connect(mButton, &QPushButton::clicked, this, &FB_Lua_Notice::pressed);
  hide();
}

void FB_Lua_Notice::showText(const QString& text, const QString& button) {
  mText->setText(text);
  mButton->setText(button);
  mButton->setVisible(!button.isEmpty());
  setVisible(!text.isEmpty());
}
