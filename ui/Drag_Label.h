#pragma once

#include <QPixmap>
#include <QString>

class QWidget;

/// What is carried by the mouse, as a small label beside the pointer, so that what one aims at stays seen.
namespace Drag_Label {

/// In the font and for the screen of that widget; a long text loses its end.
[[nodiscard]] QPixmap picture(const QWidget& widget, const QString& text);
/// Of the pointer in the picture: it stands below and to the right.
[[nodiscard]] QPoint hotSpot();

} // namespace Drag_Label
