#pragma once

#include <QWidget>

class FB_Page;

/// What lies over the blocks of a page: the gesture that is under way, and the numbers of the execution order. It lets
/// the mouse through and covers the visible part only.
class FB_Page_Overlay : public QWidget {
  Q_OBJECT

public:
  explicit FB_Page_Overlay(FB_Page& page);

  /// Covers the visible part, over all blocks, or nothing when there is nothing to be shown.
  void place();

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  void paintOrder(QPainter& painter) const;

  FB_Page& mPage;
};
