#pragma once

#include "fb/FB_Gesture.h"

class FB_Page;

/// A drag on a block while nothing may be edited: it moves nothing, and tells why when it is let go.
class FB_Refused_Gesture : public FB_Gesture {
public:
  FB_Refused_Gesture(FB_Page& page, const FB_Pointer& press);

  void move(const FB_Pointer& pointer) override;
  void release(const FB_Pointer& pointer) override;
  void cancel() override {}
  [[nodiscard]] bool scrollsAtEdge() const override { return false; }

private:
  FB_Page& mPage;
  QPointF mPress; ///< on the screen
  bool mIsDragged = false;
};
