#pragma once

#include <QList>
#include <QString>

class QAction;
class QHBoxLayout;
class QLabel;
class QWidget;

/// What the start page and the project overview are put together from.
namespace Page_Parts {

/// Free space around a page, pixels.
inline constexpr int cMargin = 24;

[[nodiscard]] QLabel* makeHeading(const QString& text);
void setHeadingFont(QLabel& label);

/// A row of buttons, one for each action, which stay enabled and disabled with it.
[[nodiscard]] QHBoxLayout* makeButtons(const QList<QAction*>& actions);

/// Fills a page with its content, which scrolls where there is too little room.
void setContent(QWidget& page, QWidget* content);

} // namespace Page_Parts
