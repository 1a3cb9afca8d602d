#include "fb/FB_Base.h"

#include "db/Binding_Refresh.h"
#include "db/ProjectDatabase.h"
#include "fb/FB_Block_Editors.h"
#include "fb/FB_Block_Host.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Variable_Generation.h"

#include <algorithm>

FB_Base::FB_Base(QWidget* canvas, FB_Block_Host& host, const DB_FB_Control& record)
    : QWidget(canvas),
      mHost(host),
      mRecord(record) {
  setMouseTracking(true);
  setAcceptDrops(true);
  measure();
  FB_Base::applyZoom();
}

FB_Base::~FB_Base() = default;

void FB_Base::inserted() {}

void FB_Base::setRecord(const DB_FB_Control& record) {
  mRecord = record;
  measure();
  setHoveredPins(mHoveredInput < static_cast<int>(mRecord.mInputs.size()) ? mHoveredInput : -1,
                 mHoveredOutput < static_cast<int>(mRecord.mOutputs.size()) ? mHoveredOutput : -1);
  applyZoom();
  recordChanged();
  update();
}

const DB_FB_Control& FB_Base::record() const {
  return mRecord;
}

void FB_Base::recordChanged() {}

void FB_Base::applyProperties() {
  rebuildPins();
  applyZoom();
  update();
}

void FB_Base::parameterEdited(FB_Property_Editors&, int) const {}

void FB_Base::setBinding(FB_Side side, int index, const DB_Address_Binding& binding) {
  std::vector<DB_FB_Pin>& pins = side == FB_Side::Input ? mRecord.mInputs : mRecord.mOutputs;
  if (index < 0 || index >= static_cast<int>(pins.size())) {
    return;
  }
  pins[index].mBinding = binding;
  recordChanged();
  update();
}

bool FB_Base::generateVariables() {
  return offersVariables() && mHost.generateVariables(*this);
}

bool FB_Base::belongsToElement() const {
  return false;
}

bool FB_Base::hasEditor() const {
  return FB_Block_Editors::has(mRecord.mType);
}

bool FB_Base::openEditor() {
  const bool isThere = hasEditor();
  if (isThere) {
    mHost.openBlockEditor(*this);
  }
  return isThere;
}

bool FB_Base::fillContextMenu(QMenu&) {
  return false;
}

bool FB_Base::canBeDisabled() const {
  return true;
}

bool FB_Base::offersVariables() const {
  return FB_Variable_Generation::offers(mRecord.mType);
}

void FB_Base::refreshBindings() {
  Binding_Refresh::block(mHost.database().mAddresses, mRecord);
  update();
}

void FB_Base::valuesChanged() {}

void FB_Base::applyZoom() {
  const double zoom = mHost.zoom();
  mGrid = FB_Geometry::cGrid * zoom;
  setGeometry(qRound(mRecord.mX * zoom), qRound(mRecord.mY * zoom), qRound(mBaseSize.width() * zoom),
              qRound(mBaseSize.height() * zoom));
}

void FB_Base::paintContent(QPainter&) const {}

void FB_Base::setSelected(bool isSelected) {
  mIsSelected = isSelected;
  if (isSelected) {
    mHost.blockSelected(*this);
  } else {
    setHoveredPins(-1, -1);
  }
  update();
}

QString FB_Base::title() const {
  return FB_Geometry::title(mRecord);
}

QString FB_Base::bodyText() const {
  return {};
}

bool FB_Base::isStandIn() const {
  return false;
}

QPointF FB_Base::pinPoint(FB_Side side, int index) const {
  const QPointF corner(mRecord.mX * mHost.zoom(), mRecord.mY * mHost.zoom());
  return corner + FB_Geometry::pin(mRecord.mType, side, index, mBaseSize.width() * mHost.zoom(), mGrid);
}

void FB_Base::setHoveredPin(const FB_Pin_Ref* pin) {
  const bool isInput = pin && pin->mSide == FB_Side::Input;
  const bool isOutput = pin && pin->mSide == FB_Side::Output;
  setHoveredPins(isInput ? pin->mIndex : -1, isOutput ? pin->mIndex : -1);
}

void FB_Base::setHoveredPins(int input, int output) {
  if (input != mHoveredInput || output != mHoveredOutput) {
    mHoveredInput = input;
    mHoveredOutput = output;
    update();
  }
}

void FB_Base::measure() {
  mBaseSize = FB_Geometry::size(mRecord);
}
