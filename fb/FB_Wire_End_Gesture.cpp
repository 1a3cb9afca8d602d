#include "fb/FB_Wire_End_Gesture.h"

#include "fb/FB_Page.h"

FB_Wire_End_Gesture::FB_Wire_End_Gesture(FB_Page& page, const FB_Connection& connection, FB_Side end,
                                         const FB_Pointer& press)
    : FB_Wire_Gesture(page, end == FB_Side::Input ? connection.source() : connection.target(), press),
      mConnection(connection),
      mEnd(end) {}

/// The pin that it leaves counts as one where it may end: letting go there changes nothing.
bool FB_Wire_End_Gesture::fits(const FB_Pin_Ref& pin) const {
  return pin.mSide == mEnd && pin.mBlock != from().mBlock;
}

void FB_Wire_End_Gesture::finish(const FB_Pin_Ref& to) {
  if (to != (mEnd == FB_Side::Input ? mConnection.target() : mConnection.source())) {
    page().moveConnection(mConnection, mEnd, to);
  }
}
