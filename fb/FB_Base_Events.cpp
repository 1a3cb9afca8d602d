// What the mouse, the keyboard and a drag do on a block: all of it is the host's to decide.
#include "db/Address_Clipboard.h"
#include "db/ProjectDatabase.h"
#include "fb/FB_Base.h"
#include "fb/FB_Block_Host.h"

#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>

namespace {

/// Not as moving: the source would remove what it takes for gone.
void acceptAsLink(QDropEvent& event) {
  event.setDropAction(Qt::LinkAction);
  event.accept();
}

} // namespace

void FB_Base::mousePressEvent(QMouseEvent* event) {
  const std::optional<FB_Pin_Ref> pin = pinAt(event->position());
  mHost.blockPressed(*this, pin ? &*pin : nullptr, *event);
}

void FB_Base::mouseReleaseEvent(QMouseEvent* event) {
  mHost.blockReleased(*this, *event);
}

void FB_Base::mouseDoubleClickEvent(QMouseEvent* event) {
  const std::optional<FB_Pin_Ref> pin = pinAt(event->position());
  if (event->button() == Qt::LeftButton && !pin && hasEditor() && openEditor()) {
    return;
  }
  mHost.blockDoubleClicked(*this, pin ? &*pin : nullptr, *event);
}

void FB_Base::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) {
    hoverAt(event->position());
  }
  mHost.blockMoved(*this, *event);
}

void FB_Base::keyPressEvent(QKeyEvent* event) {
  event->ignore(); // keys are the page's
}

void FB_Base::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  update();
}

void FB_Base::dragEnterEvent(QDragEnterEvent* event) {
  // Reading what is dragged may take a while when it is a whole main group, so it is done once.
  const QUuid address = Address_Clipboard::singleAddress(*event->mimeData());
  mDraggedAddress = mHost.database().mAddresses.subGroup(address) ? address : QUuid();
  if (mDraggedAddress.isNull()) {
    event->ignore();
    return;
  }
  event->accept();
}

void FB_Base::dragMoveEvent(QDragMoveEvent* event) {
  const std::optional<FB_Pin_Ref> pin = pinAt(event->position());
  setHoveredPin(pin ? &*pin : nullptr);
  if (pin && !mDraggedAddress.isNull()) {
    acceptAsLink(*event);
  } else {
    event->ignore();
  }
}

void FB_Base::dragLeaveEvent(QDragLeaveEvent*) {
  setHoveredPin(nullptr);
  mDraggedAddress = QUuid();
}

void FB_Base::dropEvent(QDropEvent* event) {
  const std::optional<FB_Pin_Ref> pin = pinAt(event->position());
  const QUuid address = std::exchange(mDraggedAddress, {});
  setHoveredPin(nullptr);
  if (!pin || address.isNull()) {
    event->ignore();
    return;
  }
  acceptAsLink(*event);
  mHost.addressDropped(*pin, address); // may replace this block: nothing of it is touched behind this
}

bool FB_Base::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(), this);
    return true;
  }
  if (event->type() == QEvent::Leave) {
    leave();
  }
  return QWidget::event(event);
}

void FB_Base::hoverAt(const QPointF& point) {
  const std::optional<FB_Pin_Ref> pin = pinAt(point);
  const bool isEditable = !mHost.isOperatingMode();
  const Qt::CursorShape shape = !isEditable ? Qt::ArrowCursor : pin ? Qt::CrossCursor : Qt::OpenHandCursor;
  if (shape != cursor().shape()) {
    setCursor(shape);
  }
  const std::pair before(mHoveredInput, mHoveredOutput);
  setHoveredPin(pin ? &*pin : nullptr);
  if (before != std::pair(mHoveredInput, mHoveredOutput)) {
    QToolTip::hideText(); // it told of another pin
    mHost.pinHovered(*this, pin ? &*pin : nullptr);
  }
}

void FB_Base::leave() {
  unsetCursor();
  if (mHoveredInput >= 0 || mHoveredOutput >= 0) {
    setHoveredPins(-1, -1);
    mHost.pinHovered(*this, nullptr);
  }
}
