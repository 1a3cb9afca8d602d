// What mouse and keys do on the page.
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/FB_Auto_Scroll.h"
#include "fb/FB_Base.h"
#include "fb/FB_Catalogue_Mime.h"
#include "fb/FB_Inline_Edit.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Commands.h"
#include "fb/FB_Page_Overlay.h"
#include "fb/FB_Pan_Gesture.h"
#include "fb/FB_Rubber_Band.h"
#include "fb/FB_Wire_End_Gesture.h"
#include "ui/Message_Box.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScrollArea>

#include <algorithm>
#include <iterator>

namespace {

constexpr double cEndReach = 24; // pixels from a pin, within which the end of its wire is taken
constexpr qsizetype cLargeNet = 64;

bool isAdding(Qt::KeyboardModifiers modifiers) {
  return modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::ShiftModifier);
}

bool isEditing(const QKeyEvent& event) {
  constexpr QKeyCombination cKeys[] = {Qt::CTRL | Qt::Key_X, Qt::CTRL | Qt::Key_V, Qt::CTRL | Qt::Key_D,
                                       Qt::CTRL | Qt::Key_Z, Qt::CTRL | Qt::Key_Y, QKeyCombination(Qt::Key_Delete)};
  return std::ranges::find(cKeys, event.keyCombination()) != std::end(cKeys);
}

QPointF directionOf(int key) {
  switch (key) {
  case Qt::Key_Left:
    return {-1, 0};
  case Qt::Key_Right:
    return {1, 0};
  case Qt::Key_Up:
    return {0, -1};
  case Qt::Key_Down:
    return {0, 1};
  default:
    return {};
  }
}

} // namespace

FB_Pointer FB_Page::pointerOf(const QMouseEvent& event) const {
  return {mapFromGlobal(event.globalPosition()), event.globalPosition(), event.modifiers()};
}

bool FB_Page::startsPan(const QMouseEvent& event) const {
  return event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && mIsSpaceHeld);
}

void FB_Page::begin(std::unique_ptr<FB_Gesture> gesture) {
  mGesture = std::move(gesture);
  mOverlay->place();
}

/// Another button while one is held. A page that went out of sight meanwhile has the mouse until that one is let go.
bool FB_Page::isBusy() const {
  return mGesture || !isVisible();
}

/// A menu or a box may have swallowed the release: then nothing was let go here.
void FB_Page::followMouse(const QMouseEvent& event) {
  if (event.buttons() == Qt::NoButton) {
    cancelGesture();
    return;
  }
  const FB_Pointer pointer = pointerOf(event);
  mGesture->move(pointer);
  QScrollArea* const area = scrollArea();
  if (area && mGesture->scrollsAtEdge()) {
    mLastPointer = pointer;
    mAutoScroll->track(*area, pointer.mScreen);
  }
}

/// The pointer rests, and the page moves on below it.
void FB_Page::onScrolled() {
  if (mGesture) {
    mLastPointer.mPage = mapFromGlobal(mLastPointer.mScreen);
    mGesture->move(mLastPointer);
  }
}

void FB_Page::endGesture() {
  mAutoScroll->stop();
  mOverlay->update(); // it stays where it shows the execution order
  if (mHasCursor) {
    QGuiApplication::restoreOverrideCursor();
    mHasCursor = false;
  }
}

void FB_Page::releaseGesture(const FB_Pointer& pointer) {
  const std::unique_ptr<FB_Gesture> gesture = std::move(mGesture);
  mAutoScroll->stop();
  gesture->release(pointer);
  endGesture(); // what is let go may have chosen a cursor once more
  viewChanged();
}

void FB_Page::cancelGesture() {
  if (const std::unique_ptr<FB_Gesture> gesture = std::move(mGesture)) {
    endGesture();
    gesture->cancel();
    viewChanged();
  }
}

void FB_Page::cancelConnectionDrag() {
  if (mGesture && mGesture->isConnecting()) {
    cancelGesture();
  }
}

void FB_Page::showCursor(Qt::CursorShape shape) {
  if (mHasCursor) {
    QGuiApplication::changeOverrideCursor(shape);
  } else {
    QGuiApplication::setOverrideCursor(shape);
    mHasCursor = true;
  }
}

void FB_Page::mousePressEvent(QMouseEvent* event) {
  closeEditor();
  if (isBusy()) {
    return;
  }
  const FB_Pointer pointer = pointerOf(*event);
  if (startsPan(*event)) {
    begin(std::make_unique<FB_Pan_Gesture>(*this, pointer));
    return;
  }
  const int wire = mBlocks.wires().hit(pointer.mPage);
  if (event->button() == Qt::RightButton && wire >= 0) {
    askToSeparate(wire);
    return;
  }
  const QList<QUuid> before = selectedBlocks();
  if (!isAdding(event->modifiers())) {
    selectOnly(nullptr);
  }
  setFocus(Qt::MouseFocusReason);
  cancelConnectionDrag();
  if (event->button() == Qt::RightButton) {
    openPageMenu(event->globalPosition().toPoint());
  } else if (event->button() == Qt::LeftButton) {
    const std::optional<FB_Side> end = mayEdit() ? wireEndAt(wire, pointer.mPage) : std::nullopt;
    // The outer half of a pin lies beside its block.
    const std::optional<FB_Pin_Ref> pin = mayEdit() ? mBlocks.pinAt(pointer.mPage) : std::nullopt;
    // An output has many wires: on the pin itself a further one begins.
    if (end && !(pin && pin->mSide == FB_Side::Output)) {
      begin(std::make_unique<FB_Wire_End_Gesture>(*this, mBlocks.connection(wire), *end, pointer));
    } else if (pin) {
      begin(std::make_unique<FB_Wire_Gesture>(*this, *pin, pointer));
    } else {
      begin(std::make_unique<FB_Rubber_Band>(*this, pointer, before));
    }
  }
}

void FB_Page::mouseMoveEvent(QMouseEvent* event) {
  if (mGesture) {
    followMouse(*event);
    return;
  }
  const FB_Pointer pointer = pointerOf(*event);
  const int wire = mBlocks.wires().hit(pointer.mPage);
  hover(wire < 0 ? QList<int>() : mBlocks.wires().net(wire));
  if (mIsSpaceHeld) {
    setCursor(Qt::OpenHandCursor);
  } else if (mayEdit() && (wireEndAt(wire, pointer.mPage) || mBlocks.pinAt(pointer.mPage))) {
    setCursor(Qt::CrossCursor);
  } else {
    unsetCursor();
  }
}

void FB_Page::mouseReleaseEvent(QMouseEvent* event) {
  if (mGesture && event->buttons() == Qt::NoButton) {
    releaseGesture(pointerOf(*event));
  }
}

void FB_Page::mouseDoubleClickEvent(QMouseEvent* event) {
  const QPointF point = pointerOf(*event).mPage;
  for (int i = 0; i < mBlocks.count(); ++i) {
    if (const auto pin = mBlocks.isDisplayed(i) ? mBlocks.at(i).linkAt(point) : std::nullopt) {
      followLink(*pin);
      return;
    }
  }
  mousePressEvent(event);
}

std::optional<FB_Side> FB_Page::wireEndAt(int wire, const QPointF& point) const {
  if (wire < 0) {
    return {};
  }
  const FB_Connection connection = mBlocks.connection(wire);
  const auto distance = [&](const FB_Pin_Ref& pin) { return QLineF(mBlocks.pinPoint(pin), point).length(); };
  const double toSource = distance(connection.source());
  const double toTarget = distance(connection.target());
  if (std::min(toSource, toTarget) > cEndReach) {
    return {};
  }
  return toSource < toTarget ? FB_Side::Output : FB_Side::Input;
}

void FB_Page::askToSeparate(int wire) {
  if (!mayEdit()) {
    tellLater(Session_State::operatingModeRefusal());
    return;
  }
  // Named by its blocks: while the question is open the page may become another one, or go.
  const FB_Connection connection = mBlocks.connection(wire);
  const QPointer<FB_Page> self = this;
  const QString text =
      tr("Diese Verbindung trennen?") + "\n\n" + FB_Connections::describe(mSession.database(), connection);
  if (Message_Box::askYesNo(window(), text) && self) {
    removeConnection(connection);
  }
}

void FB_Page::hover(const QList<int>& net) {
  const QSet<int> lit(net.begin(), net.end());
  if (lit == mNet) {
    return;
  }
  QSet<int> changed = lit;
  changed.unite(mNet);
  mNet = lit;
  if (changed.size() > cLargeNet) {
    update(visiblePart()); // asking for all the paths would take longer
    return;
  }
  QRectF part;
  for (const int wire : std::as_const(changed)) {
    part |= mBlocks.wires().path(wire).boundingRect();
  }
  update(part.adjusted(-4, -4, 4, 4).toAlignedRect() & visiblePart());
}

void FB_Page::leaveEvent(QEvent* event) {
  hover({});
  QWidget::leaveEvent(event);
}

void FB_Page::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    event->ignore(); // the scroll view scrolls
    return;
  }
  setTenths(mTenths + (event->angleDelta().y() < 0 ? -1 : 1), event->position());
  event->accept();
}

void FB_Page::keyPressEvent(QKeyEvent* event) {
  const QPointF direction = directionOf(event->key());
  if (event->key() == Qt::Key_Escape) {
    const bool wasConnecting = mGesture && mGesture->isConnecting();
    if (mGesture && !wasConnecting) {
      cancelGesture();
    } else {
      selectOnly(nullptr);
      cancelConnectionDrag();
    }
  } else if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    mIsSpaceHeld = true;
    setCursor(Qt::OpenHandCursor);
  } else if (event->key() == Qt::Key_F2 && selectedBlocks().size() == 1) {
    editText(selectedBlocks().constFirst());
  } else if (event->key() == Qt::Key_G && event->modifiers() == Qt::ControlModifier && !selectedBlocks().isEmpty()) {
    generateVariables(selectedBlocks()); // while the property panel, whose button has the key, is not seen
  } else if (!direction.isNull() && !mGesture && !selectedBlocks().isEmpty()) {
    const bool isFine = event->modifiers().testFlag(Qt::ShiftModifier);
    nudge(direction * (isFine ? 1 : mSettings.value(Setting::GridSize)));
  } else if (!mayEdit() && isEditing(*event)) {
    tellLater(Session_State::operatingModeRefusal()); // the commands of these keys are disabled
  } else {
    QWidget::keyPressEvent(event);
  }
}

void FB_Page::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    leaveSpace();
  } else {
    QWidget::keyReleaseEvent(event);
  }
}

void FB_Page::leaveSpace() {
  mIsSpaceHeld = false;
  unsetCursor();
}

/// A menu over the page is part of what is done on it.
void FB_Page::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason) {
    cancelGesture();
    leaveSpace();
  }
  QWidget::focusOutEvent(event);
}

/// The mouse opens the menus when it is pressed.
void FB_Page::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Mouse || mGesture) {
    return;
  }
  const QList<QUuid> selected = selectedBlocks();
  if (selected.isEmpty()) {
    openPageMenu(mapToGlobal(visibleCentre().toPoint()));
  } else {
    FB_Base& block = *mBlocks.find(selected.constFirst());
    openBlockMenu(block, nullptr, block.mapToGlobal(block.rect().center()));
  }
}

void FB_Page::dragEnterEvent(QDragEnterEvent* event) {
  if (FB_Catalogue_Mime::typeOf(*event)) {
    event->acceptProposedAction();
  }
}

void FB_Page::dragMoveEvent(QDragMoveEvent* event) {
  if (FB_Catalogue_Mime::typeOf(*event)) {
    event->acceptProposedAction();
  }
}

void FB_Page::dropEvent(QDropEvent* event) {
  takeDrop(*event, event->position());
}

void FB_Page::takeDrop(QDropEvent& event, const QPointF& point) {
  if (const auto type = FB_Catalogue_Mime::typeOf(event)) {
    event.acceptProposedAction();
    window()->activateWindow();
    setFocus(Qt::OtherFocusReason);
    dropBlock(*type, point);
  }
}
