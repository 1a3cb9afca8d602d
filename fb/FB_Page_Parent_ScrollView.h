#pragma once

#include <QScrollArea>

#include <optional>

class FB_Page;
class QLabel;

/// Shows a logic page: scrolls it, and tells above it what one has to know about it (that it is switched off, where it
/// runs). These notices stay in place when the page is scrolled. It owns the page.
class FB_Page_Parent_ScrollView : public QScrollArea {
  Q_OBJECT

public:
  explicit FB_Page_Parent_ScrollView(FB_Page* page, QWidget* parent = nullptr);

  [[nodiscard]] FB_Page& page() const { return *mPage; }

  /// Number of the controller to which the studio is connected; none while it is not.
  void setConnectedController(std::optional<int> number);

protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  // Blocks may be dropped beside the page, too: they come to its edge.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  void updateNotices();
  void placeNotices();

  FB_Page* mPage;
  QLabel* mNotices;
  std::optional<int> mController;
};
