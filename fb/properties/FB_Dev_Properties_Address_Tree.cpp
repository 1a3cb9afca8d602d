#include "fb/properties/FB_Dev_Properties_Address_Tree.h"

#include "db/Address_Clipboard.h"
#include "db/Project_Session.h"
#include "ui/Theme.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

namespace {

constexpr int cBlockRole = Qt::UserRole;
constexpr int cSideRole = Qt::UserRole + 1;
constexpr int cIndexRole = Qt::UserRole + 2;

} // namespace

FB_Dev_Properties_Address::TreeWidgetIO::TreeWidgetIO(Project_Session& session) : mSession(session) {
  setColumnCount(cColumnCount);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(EditKeyPressed);
  setContextMenuPolicy(Qt::CustomContextMenu);
  setAcceptDrops(true);
  setDropIndicatorShown(false);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
}

void FB_Dev_Properties_Address::TreeWidgetIO::setPin(QTreeWidgetItem& item, const FB_Pin_Ref& pin) {
  item.setData(cPin, cBlockRole, pin.mBlock);
  item.setData(cPin, cSideRole, static_cast<int>(pin.mSide));
  item.setData(cPin, cIndexRole, pin.mIndex);
}

std::optional<FB_Pin_Ref> FB_Dev_Properties_Address::TreeWidgetIO::pinOf(const QTreeWidgetItem* item) {
  if (!item || item->data(cPin, cBlockRole).isNull()) {
    return std::nullopt;
  }
  return FB_Pin_Ref{item->data(cPin, cBlockRole).toUuid(), static_cast<FB_Side>(item->data(cPin, cSideRole).toInt()),
                    item->data(cPin, cIndexRole).toInt()};
}

void FB_Dev_Properties_Address::TreeWidgetIO::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->matches(QKeySequence::Delete)) {
    emit removeRequested();
  } else if (isEnter && state() != EditingState && pinOf(currentItem())) {
    editBinding(*currentItem());
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

void FB_Dev_Properties_Address::TreeWidgetIO::setTarget(QTreeWidgetItem* item) {
  if (item != mTarget) {
    mTarget = item;
    viewport()->update();
  }
}

void FB_Dev_Properties_Address::TreeWidgetIO::dragEnterEvent(QDragEnterEvent* event) {
  const QUuid address = Address_Clipboard::singleAddress(*event->mimeData());
  const bool mayEdit = !mSession.state().operatingMode();
  mDragged = mayEdit && mSession.database().mAddresses.subGroup(address) ? address : QUuid();
  event->setAccepted(!mDragged.isNull());
}

void FB_Dev_Properties_Address::TreeWidgetIO::dragMoveEvent(QDragMoveEvent* event) {
  QTreeWidgetItem* const item = itemAt(event->position().toPoint());
  const bool isPin = !mDragged.isNull() && pinOf(item);
  setTarget(isPin ? item : nullptr);
  if (isPin) {
    event->setDropAction(Qt::LinkAction); // not as moving: the source would remove what it takes for gone
    event->accept();
  } else {
    event->ignore();
  }
}

void FB_Dev_Properties_Address::TreeWidgetIO::dragLeaveEvent(QDragLeaveEvent*) {
  mDragged = QUuid();
  setTarget(nullptr);
}

void FB_Dev_Properties_Address::TreeWidgetIO::dropEvent(QDropEvent* event) {
  const std::optional<FB_Pin_Ref> pin = pinOf(itemAt(event->position().toPoint()));
  const QUuid address = std::exchange(mDragged, {});
  setTarget(nullptr);
  if (!pin || address.isNull()) {
    event->ignore();
    return;
  }
  event->setDropAction(Qt::LinkAction);
  event->accept();
  emit addressDropped(*pin, address);
}

void FB_Dev_Properties_Address::TreeWidgetIO::drawRow(QPainter* painter, const QStyleOptionViewItem& options,
                                                      const QModelIndex& index) const {
  QTreeWidget::drawRow(painter, options, index);
  if (mTarget && itemFromIndex(index) == mTarget) {
    painter->setPen(Theme::color(Theme::Role::Accent));
    painter->drawRect(options.rect.adjusted(0, 0, -1, -1));
  }
}
