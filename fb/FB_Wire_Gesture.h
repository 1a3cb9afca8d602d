#pragma once

#include "fb/FB_Gesture.h"
#include "fb/model/FB_Pin_Ref.h"

#include <optional>

class FB_Page;

/// Draws a wire from a pin to another one.
class FB_Wire_Gesture : public FB_Gesture {
public:
  FB_Wire_Gesture(FB_Page& page, const FB_Pin_Ref& from, const FB_Pointer& press);

  void move(const FB_Pointer& pointer) override;
  void release(const FB_Pointer& pointer) override;
  void cancel() override {}
  void paint(QPainter& painter) const override;
  [[nodiscard]] bool isConnecting() const override { return true; }

protected:
  /// The other end of the wire comes to that pin.
  virtual void finish(const FB_Pin_Ref& to);
  /// Whether the wire may end there.
  [[nodiscard]] virtual bool fits(const FB_Pin_Ref& pin) const;
  [[nodiscard]] FB_Page& page() const { return mPage; }
  [[nodiscard]] const FB_Pin_Ref& from() const { return mFrom; }

private:
  FB_Page& mPage;
  FB_Pin_Ref mFrom; ///< the end that stays
  QPointF mScreen;  ///< where the press was
  QPointF mEnd;     ///< on the canvas
  std::optional<FB_Pin_Ref> mTarget;
  bool mHasStarted = false;
};
