#pragma once

#include "fb/FB_Wire_Gesture.h"

/// Carries one end of a wire to another pin. Where there is none it comes back.
class FB_Wire_End_Gesture : public FB_Wire_Gesture {
public:
  /// `end` is the side of the pin that the wire leaves.
  FB_Wire_End_Gesture(FB_Page& page, const FB_Connection& connection, FB_Side end, const FB_Pointer& press);

protected:
  void finish(const FB_Pin_Ref& to) override;
  [[nodiscard]] bool fits(const FB_Pin_Ref& pin) const override;

private:
  FB_Connection mConnection;
  FB_Side mEnd;
};
