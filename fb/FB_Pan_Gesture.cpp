#include "fb/FB_Pan_Gesture.h"

#include "fb/FB_Page.h"

FB_Pan_Gesture::FB_Pan_Gesture(FB_Page& page, const FB_Pointer& press)
    : mPage(page),
      mPress(press.mScreen),
      mBefore(page.scrollPosition()) {
  mPage.showCursor(Qt::ClosedHandCursor);
}

void FB_Pan_Gesture::move(const FB_Pointer& pointer) {
  mPage.scrollTo(mBefore - (pointer.mScreen - mPress).toPoint());
}

void FB_Pan_Gesture::release(const FB_Pointer& pointer) {
  move(pointer);
}

void FB_Pan_Gesture::cancel() {
  mPage.scrollTo(mBefore);
}
