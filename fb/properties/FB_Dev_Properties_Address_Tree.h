#pragma once

#include "fb/model/FB_Pin_Ref.h"
#include "fb/properties/FB_Dev_Properties_Address.h"

#include <QTreeWidget>

#include <optional>

class ProjectDatabase;

/// The tree of pins. A group address that is dragged from "Variablen" can be dropped on the row of a pin.
class FB_Dev_Properties_Address::TreeWidgetIO : public QTreeWidget {
  Q_OBJECT

public:
  enum Column { cPin, cBinding, cDelete, cColumnCount };

  /// The session outlives the tree.
  explicit TreeWidgetIO(Project_Session& session);

  static void setPin(QTreeWidgetItem& item, const FB_Pin_Ref& pin);
  /// Empty for the row of a block or of a reason.
  [[nodiscard]] static std::optional<FB_Pin_Ref> pinOf(const QTreeWidgetItem* item);
  /// Opens the cell of the row for typing.
  void editBinding(QTreeWidgetItem& item) { editItem(&item, cBinding); }
  using QTreeWidget::indexFromItem;
  using QTreeWidget::itemFromIndex;

signals:
  void addressDropped(const FB_Pin_Ref& pin, const QUuid& address);
  /// Delete was pressed.
  void removeRequested();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& options, const QModelIndex& index) const override;

private:
  void setTarget(QTreeWidgetItem* item);

  Project_Session& mSession;
  QUuid mDragged;                     ///< the address of the drag above the tree; null for others
  QTreeWidgetItem* mTarget = nullptr; ///< above which it is
};
