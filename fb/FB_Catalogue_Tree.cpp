#include "fb/FB_Catalogue_Tree.h"

#include "fb/FB_Catalogue_Mime.h"
#include "fb/FB_Catalogue_Picture.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>

#include <memory>

namespace {

constexpr int cIndentation = 10;

std::optional<int> typeOf(const QTreeWidgetItem* item) {
  return item && item->type() != FB_Catalogue_Tree::cCategory ? std::optional(item->type()) : std::nullopt;
}

} // namespace

FB_Catalogue_Tree::FB_Catalogue_Tree(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(1);
  setIndentation(cIndentation);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setDragEnabled(true);
  setDragDropMode(DragOnly);
}

std::optional<int> FB_Catalogue_Tree::currentType() const {
  return typeOf(currentItem());
}

void FB_Catalogue_Tree::startDrag(Qt::DropActions) {
  const std::optional<int> type = currentType();
  if (!type) {
    return;
  }
  auto data = std::make_unique<QMimeData>();
  FB_Catalogue_Mime::fill(*data, *type);
  auto* const drag = new QDrag(this);
  const QPixmap picture = FB_Catalogue_Picture::of(*type, devicePixelRatioF());
  drag->setMimeData(data.release());
  drag->setPixmap(picture);
  drag->setHotSpot({0, 0}); // where the block's upper left corner comes to stand
  drag->exec(Qt::CopyAction);
}

void FB_Catalogue_Tree::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool isChord = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (isEnter && !isChord) {
    if (const std::optional<int> type = currentType()) {
      emit typeActivated(*type);
    } else if (currentItem()) {
      currentItem()->setExpanded(!currentItem()->isExpanded());
    }
    return;
  }
  const QString text = event->text();
  if (!isChord && !text.isEmpty() && text[0].isLetterOrNumber()) {
    emit searchWanted(text);
    return;
  }
  QTreeWidget::keyPressEvent(event);
}

void FB_Catalogue_Tree::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeWidget::mouseDoubleClickEvent(event);
  if (const std::optional<int> type = typeOf(itemAt(event->pos())); type && event->button() == Qt::LeftButton) {
    emit typeActivated(*type);
  }
}
