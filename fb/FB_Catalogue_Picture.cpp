#include "fb/FB_Catalogue_Picture.h"

#include "db/ProjectDatabase.h"
#include "fb/FB_Base.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Factory.h"
#include "fb/model/FB_Pins.h"

#include <QPainter>

#include <memory>

namespace {

constexpr qreal cOpacity = 0.8;

/// A page that is not zoomed and does nothing: the block is only looked at.
class Picture_Host : public FB_Block_Host {
public:
  [[nodiscard]] const ProjectDatabase& database() const override { return mDatabase; }
  [[nodiscard]] bool isOperatingMode() const override { return true; }
  [[nodiscard]] double zoom() const override { return 1; }
  [[nodiscard]] bool isDebugToolTip() const override { return false; }
  [[nodiscard]] bool isShowingValues() const override { return false; }
  [[nodiscard]] FB_Live_Value valueOf(const DB_Address_Binding&) const override { return {}; }
  [[nodiscard]] QString linkedPages(const FB_Pin_Ref&) const override { return {}; }
  void blockPressed(FB_Base&, const FB_Pin_Ref*, QMouseEvent&) override {}
  void blockMoved(FB_Base&, QMouseEvent&) override {}
  void blockReleased(FB_Base&, QMouseEvent&) override {}
  void blockDoubleClicked(FB_Base&, const FB_Pin_Ref*, QMouseEvent&) override {}
  void pinHovered(FB_Base&, const FB_Pin_Ref*) override {}
  void addressDropped(const FB_Pin_Ref&, const QUuid&) override {}
  void blockSelected(FB_Base&) override {}
  void openBlockEditor(FB_Base& /*block*/) override {}

private:
  ProjectDatabase mDatabase;
};

} // namespace

QPixmap FB_Catalogue_Picture::of(int type, qreal devicePixelRatio) {
  const std::unique_ptr<DB_FB_Control> record = FB_Pins::makeBlock(type, {});
  if (!record) {
    return {};
  }
  Picture_Host host;
  const std::unique_ptr<FB_Base> block(FB_Factory::create(*record, host, nullptr));
  QPixmap picture(block->size() * devicePixelRatio);
  picture.setDevicePixelRatio(devicePixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setOpacity(cOpacity);
  block->paintBlock(painter);
  return picture;
}
