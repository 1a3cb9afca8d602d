// What the blocks of the page ask of it and tell it.
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Inline_Edit.h"
#include "fb/FB_Move_Gesture.h"
#include "fb/FB_Page.h"
#include "fb/FB_Pan_Gesture.h"
#include "fb/FB_Refused_Gesture.h"
#include "fb/FB_Wire_Gesture.h"
#include "fb/model/FB_Types.h"

#include <QMouseEvent>

const ProjectDatabase& FB_Page::database() const {
  return mSession.database();
}

bool FB_Page::isDebugToolTip() const {
  return mSettings.isOn(Setting::FBDebugToolTip);
}

double FB_Page::labelRoom(const FB_Pin_Ref& pin) const {
  const int block = mBlocks.indexOf(pin.mBlock);
  if (block < 0) {
    return FB_Block_Host::labelRoom(pin);
  }
  const double room = mBlocks.wires().room(block, pin.mSide, pin.mIndex);
  // To the left the page ends.
  return pin.mSide == FB_Side::Input ? std::min(room, mBlocks.pinPoint(pin).x()) : room;
}

FB_Live_Value FB_Page::valueOf(const DB_Address_Binding& binding) const {
  return mValues ? mValues(binding) : FB_Live_Value();
}

void FB_Page::blockPressed(FB_Base& block, const FB_Pin_Ref* pin, QMouseEvent& event) {
  closeEditor();
  if (isBusy()) {
    return;
  }
  setFocus(Qt::MouseFocusReason);
  const FB_Pointer pointer = pointerOf(event);
  if (startsPan(event)) {
    begin(std::make_unique<FB_Pan_Gesture>(*this, pointer));
  } else if (event.button() == Qt::RightButton) {
    if (!block.isSelected()) {
      selectOnly(&block);
    }
    openBlockMenu(block, pin, event.globalPosition().toPoint());
  } else if (event.button() == Qt::LeftButton) {
    pressBlock(block, pin, pointer);
  }
}

void FB_Page::pressBlock(FB_Base& block, const FB_Pin_Ref* pin, const FB_Pointer& pointer) {
  const bool wasSelected = block.isSelected();
  const bool isAdding = pointer.mModifiers & (Qt::ControlModifier | Qt::ShiftModifier);
  if (!wasSelected) {
    QList<QUuid> selected = isAdding ? selectedBlocks() : QList<QUuid>();
    select(selected << block.guid());
  }
  if (!mayEdit()) {
    begin(std::make_unique<FB_Refused_Gesture>(*this, pointer));
    return;
  }
  if (pin && !isAdding) {
    begin(std::make_unique<FB_Wire_Gesture>(*this, *pin, pointer));
  } else {
    begin(std::make_unique<FB_Move_Gesture>(*this, block.guid(), pointer, wasSelected));
  }
}

void FB_Page::blockMoved(FB_Base& /*block*/, QMouseEvent& event) {
  if (mGesture) {
    followMouse(event);
  }
}

void FB_Page::blockReleased(FB_Base& /*block*/, QMouseEvent& event) {
  if (mGesture && event.buttons() == Qt::NoButton) {
    releaseGesture(pointerOf(event));
  }
}

void FB_Page::blockDoubleClicked(FB_Base& block, const FB_Pin_Ref* pin, QMouseEvent& event) {
  const bool isText = block.type() == FB_Types::cComment || block.type() == FB_Types::cConstant;
  if (event.button() == Qt::LeftButton && isText && !pin && mayEdit()) {
    cancelGesture();
    editText(block.guid());
    return;
  }
  blockPressed(block, pin, event);
  if (event.button() == Qt::LeftButton && !isText && !pin) {
    emit blockPropertiesRequested();
  }
}

void FB_Page::pinHovered(FB_Base& block, const FB_Pin_Ref* pin) {
  hover(pin ? mBlocks.wires().netOf(mBlocks.indexOf(block.guid()), pin->mSide, pin->mIndex) : QList<int>());
}

void FB_Page::addressDropped(const FB_Pin_Ref& pin, const QUuid& address) {
  finish(FB_Page_Edits::bind(mSession, pin, address));
}

void FB_Page::blockSelected(FB_Base& /*block*/) {
  if (!mIsSelecting) {
    tellSelection();
  }
}

void FB_Page::openBlockEditor(FB_Base& block) {
  cancelGesture();
  emit editorRequested(block.guid());
}

void FB_Page::editText(const QUuid& guid) {
  closeEditor();
  const int index = mBlocks.indexOf(guid);
  if (index < 0) {
    return;
  }
  const DB_FB_Control& record = mBlocks.at(index).record();
  const bool isComment = record.mType == FB_Types::cComment;
  if (!isComment && (record.mType != FB_Types::cConstant || record.mParams.isEmpty())) {
    return;
  }
  if (!mayEdit()) {
    tellLater(Session_State::operatingModeRefusal());
    return;
  }
  bringIntoView(mBlocks.rect(index));
  const auto lines = isComment ? FB_Inline_Edit::Lines::Many : FB_Inline_Edit::Lines::One;
  mEditor = new FB_Inline_Edit(isComment ? record.mTitle : record.mParams.constFirst(), lines, this);
  const QRectF rect(mBlocks.rect(index).topLeft() * zoom(), mBlocks.rect(index).size() * zoom());
  const QSizeF least = isComment ? QSizeF(240, 72) : QSizeF(96, 24);
  mEditor->setGeometry(QRectF(rect.topLeft(), rect.size().expandedTo(least)).toRect());
  connect(mEditor, &FB_Inline_Edit::accepted, this, [this, guid, isComment](const QString& text) {
    finish(isComment ? FB_Page_Edits::setTitle(mSession, guid, text)
                     : FB_Page_Edits::setParameter(mSession, guid, 0, text));
  });
  connect(mEditor, &FB_Inline_Edit::closed, this, [this] { setFocus(Qt::OtherFocusReason); });
  mEditor->show();
  mEditor->setFocus(Qt::OtherFocusReason);
}

void FB_Page::closeEditor() {
  if (mEditor) {
    mEditor->accept();
  }
}
