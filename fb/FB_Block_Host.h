#pragma once

#include "fb/FB_Live_Value.h"
#include "fb/FB_Texts.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QString>

#include <limits>

class FB_Base;
class ProjectDatabase;
class QMouseEvent;
struct DB_Address_Binding;

/// What a block needs of the page on which it stands. The page outlives its blocks.
class FB_Block_Host {
public:
  FB_Block_Host() = default;
  FB_Block_Host(const FB_Block_Host&) = delete;
  FB_Block_Host& operator=(const FB_Block_Host&) = delete;
  virtual ~FB_Block_Host() = default;

  /// The open project, for the addresses that pins are bound to.
  [[nodiscard]] virtual const ProjectDatabase& database() const = 0;
  /// Whether nothing may be edited.
  [[nodiscard]] virtual bool isOperatingMode() const = 0;
  /// 1 is one pixel of the record for one on the screen.
  [[nodiscard]] virtual double zoom() const = 0;
  /// Whether execution number and identifier stand in the tool tips.
  [[nodiscard]] virtual bool isDebugToolTip() const = 0;
  /// Whether the values at the pins are shown ("Anzeige IO").
  [[nodiscard]] virtual bool isShowingValues() const = 0;
  /// The value of what is bound.
  [[nodiscard]] virtual FB_Live_Value valueOf(const DB_Address_Binding& binding) const = 0;
  /// Names of the other pages on which the pin's binding is used too; empty for none: "Erdgeschoss", "Technik, Außen".
  [[nodiscard]] virtual QString linkedPages(const FB_Pin_Ref& pin) const = 0;

  /// Pixels that there are for what stands beside the pin, when less than usual: half of the way to the next pin that a
  /// wire leads to.
  [[nodiscard]] virtual double labelRoom(const FB_Pin_Ref& /*pin*/) const { return std::numeric_limits<double>::max(); }

  // The mouse on a block; positions are those of the event. `pin` is null when no pin is under the pointer.
  virtual void blockPressed(FB_Base& block, const FB_Pin_Ref* pin, QMouseEvent& event) = 0;
  virtual void blockMoved(FB_Base& block, QMouseEvent& event) = 0;
  virtual void blockReleased(FB_Base& block, QMouseEvent& event) = 0;
  virtual void blockDoubleClicked(FB_Base& block, const FB_Pin_Ref* pin, QMouseEvent& event) = 0;
  /// The pointer came to another pin of the block, or left the last one.
  virtual void pinHovered(FB_Base& block, const FB_Pin_Ref* pin) = 0;
  /// A group address was dropped on a pin.
  virtual void addressDropped(const FB_Pin_Ref& pin, const QUuid& address) = 0;
  /// The block was selected (operation `setSelected`).
  virtual void blockSelected(FB_Base& block) = 0;
  /// Variables shall be made for the pins of the block; false when none were. Only a page does it.
  virtual bool generateVariables(FB_Base& /*block*/) { return false; }
  /// The window in which the block is edited shall open.
  virtual void openBlockEditor(FB_Base& block) = 0;
  /// Sends a value, as it would be typed, to what is bound, and tells what came of it. Only a page does it.
  virtual void sendValue(const DB_Address_Binding& /*binding*/, const QString& /*typed*/) {}

  /// What the blocks of the page draw their texts with.
  [[nodiscard]] FB_Texts& texts() { return mTexts; }

private:
  FB_Texts mTexts;
};
