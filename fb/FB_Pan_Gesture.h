#pragma once

#include "fb/FB_Gesture.h"

#include <QPoint>

class FB_Page;

/// Moves the visible part over the page.
class FB_Pan_Gesture : public FB_Gesture {
public:
  FB_Pan_Gesture(FB_Page& page, const FB_Pointer& press);

  void move(const FB_Pointer& pointer) override;
  void release(const FB_Pointer& pointer) override;
  void cancel() override;
  [[nodiscard]] bool scrollsAtEdge() const override { return false; }

private:
  FB_Page& mPage;
  QPointF mPress; ///< on the screen
  QPoint mBefore; ///< where the scroll bars stood
};
