#pragma once

#include <QTreeWidget>

#include <optional>

/// The tree of the block catalogue, from which block types are dragged onto a page. The item type of an entry is its
/// block type id, that of a category is `cCategory`.
class FB_Catalogue_Tree : public QTreeWidget {
  Q_OBJECT

public:
  static constexpr int cCategory = QTreeWidgetItem::Type;

  explicit FB_Catalogue_Tree(QWidget* parent = nullptr);

  /// Nothing while a category or no item is current.
  [[nodiscard]] std::optional<int> currentType() const;

signals:
  /// An entry was double clicked, or Enter pressed on it.
  void typeActivated(int type);
  /// The user types on in the search field.
  void searchWanted(const QString& typed);

protected:
  void startDrag(Qt::DropActions actions) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};
