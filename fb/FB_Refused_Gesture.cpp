#include "fb/FB_Refused_Gesture.h"

#include "base/Session_State.h"
#include "fb/FB_Page.h"

#include <QApplication>

FB_Refused_Gesture::FB_Refused_Gesture(FB_Page& page, const FB_Pointer& press) : mPage(page), mPress(press.mScreen) {}

void FB_Refused_Gesture::move(const FB_Pointer& pointer) {
  if (!mIsDragged && (pointer.mScreen - mPress).manhattanLength() >= QApplication::startDragDistance()) {
    mIsDragged = true;
    mPage.showCursor(Qt::ForbiddenCursor);
  }
}

void FB_Refused_Gesture::release(const FB_Pointer& /*pointer*/) {
  if (mIsDragged) {
    mPage.tellLater(Session_State::operatingModeRefusal());
  }
}
