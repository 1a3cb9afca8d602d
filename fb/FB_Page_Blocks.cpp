#include "fb/FB_Page_Blocks.h"

#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Factory.h"
#include "fb/model/FB_Geometry.h"

#include <algorithm>
#include <utility>

FB_Page_Blocks::FB_Page_Blocks(Project_Session& session, const QUuid& page, FB_Block_Host& host, QWidget& canvas)
    : mSession(session),
      mPage(page),
      mHost(host),
      mCanvas(canvas) {}

FB_Page_Blocks::~FB_Page_Blocks() {
  // Those that are gone already, and only wait for their deletion, know the host too.
  qDeleteAll(mCanvas.findChildren<FB_Base*>(Qt::FindDirectChildrenOnly));
}

const DB_FB_Page* FB_Page_Blocks::page() const {
  return mSession.database().mFbPages.page(mPage);
}

FB_Base* FB_Page_Blocks::find(const QUuid& block) const {
  const int index = indexOf(block);
  return index < 0 ? nullptr : &at(index);
}

QRectF FB_Page_Blocks::extent() const {
  QRectF all;
  for (const Item& item : mItems) {
    all |= item.mRect;
  }
  return all;
}

QRectF FB_Page_Blocks::extent(const QList<QUuid>& blocks) const {
  QRectF all;
  for (const QUuid& block : blocks) {
    if (const int index = indexOf(block); index >= 0) {
      all |= rect(index);
    }
  }
  return all;
}

QPointF FB_Page_Blocks::pinPoint(const FB_Pin_Ref& pin) const {
  const int index = indexOf(pin.mBlock);
  if (index < 0) {
    return {};
  }
  const double zoom = mHost.zoom();
  return rect(index).topLeft() * zoom +
         FB_Geometry::pin(at(index).record(), pin.mSide, pin.mIndex, FB_Geometry::cGrid * zoom);
}

bool FB_Page_Blocks::isDisplayed(int index) const {
  return at(index).record().mDisplay;
}

std::optional<FB_Pin_Ref> FB_Page_Blocks::pinAt(const QPointF& point) const {
  constexpr double cReach = FB_Geometry::cGrid;
  const double zoom = mHost.zoom();
  const QPointF place = point / zoom;
  for (auto item = mItems.rbegin(); item != mItems.rend(); ++item) {
    if (item->mBlock->record().mDisplay && item->mRect.adjusted(-cReach, -cReach, cReach, cReach).contains(place)) {
      if (const auto pin = item->mBlock->pinAt(point - item->mRect.topLeft() * zoom)) {
        return pin;
      }
    }
  }
  return {};
}

FB_Connection FB_Page_Blocks::connection(int wire) const {
  const FB_Connections::Entry& entry = mWires.at(wire).mEntry;
  return {at(entry.mSource).guid(), entry.mOutput, at(entry.mTarget).guid(), entry.mInput};
}

FB_Page_Blocks::Item FB_Page_Blocks::make(const DB_FB_Control& record) const {
  FB_Base* const block = FB_Factory::create(record, mHost, &mCanvas);
  block->hide(); // until it comes into the visible part
  return {block, FB_Geometry::rect(record), false};
}

FB_Base& FB_Page_Blocks::createBlock(const DB_FB_Control& record) {
  mIndexes.insert(record.mGuid, count());
  return *mItems.emplace_back(make(record)).mBlock;
}

bool FB_Page_Blocks::isSameList(const DB_FB_Page& page) const {
  return std::equal(mItems.begin(), mItems.end(), page.mChildren.begin(), page.mChildren.end(),
                    [](const Item& item, const auto& child) {
                      return item.mBlock->guid() == child->mGuid && item.mBlock->type() == child->mType;
                    });
}

QList<QUuid> FB_Page_Blocks::follow(const QSet<QUuid>& changed) {
  for (const QUuid& guid : changed) {
    const int index = indexOf(guid);
    const DB_FB_Control* const record = mSession.database().mFbPages.child(guid);
    if (index >= 0 && record && record->mType == at(index).type()) {
      Item& item = mItems[static_cast<size_t>(index)];
      item.mBlock->setRecord(*record);
      item.mRect = FB_Geometry::rect(*record);
    }
  }
  const DB_FB_Page* const now = page();
  return now && isSameList(*now) ? QList<QUuid>() : renew(now);
}

QList<QUuid> FB_Page_Blocks::renew(const DB_FB_Page* page) {
  const std::vector<Item> before = std::exchange(mItems, {});
  const QHash<QUuid, int> indexes = std::exchange(mIndexes, {});
  std::vector<bool> isKept(before.size());
  QList<QUuid> made;
  for (qsizetype i = 0; page && i < page->mChildren.size(); ++i) {
    const DB_FB_Control& record = page->mChildren.at(i);
    const int index = indexes.value(record.mGuid, -1);
    // A comment that stood in for a block may have become that block: another type is another class.
    if (index >= 0 && before[static_cast<size_t>(index)].mBlock->type() == record.mType) {
      isKept[static_cast<size_t>(index)] = true;
      mIndexes.insert(record.mGuid, count());
      mItems.push_back(before[static_cast<size_t>(index)]);
    } else {
      createBlock(record);
      made.append(record.mGuid);
    }
  }
  for (size_t i = 0; i < before.size(); ++i) {
    if (!isKept[i]) {
      before[i].mBlock->hide();
      before[i].mBlock->deleteLater(); // the edit may have come from one of its own events
    }
  }
  return made;
}

void FB_Page_Blocks::rebuildWires() {
  if (const DB_FB_Page* const now = page()) {
    mWires.setZoom(mHost.zoom());
    mWires.rebuild(*now);
  } else {
    mWires.rebuild(DB_FB_Page());
  }
}

void FB_Page_Blocks::applyZoom() {
  for (const Item& item : mItems) {
    item.mBlock->applyZoom();
  }
}

void FB_Page_Blocks::showAt(int index, const QPointF& position) {
  Item& item = mItems[static_cast<size_t>(index)];
  item.mRect.moveTopLeft(position);
  item.mBlock->move((position * mHost.zoom()).toPoint());
  mWires.moveBlock(index, position);
}

void FB_Page_Blocks::putBack(int index) {
  Item& item = mItems[static_cast<size_t>(index)];
  item.mRect = FB_Geometry::rect(item.mBlock->record());
  item.mBlock->applyZoom();
  mWires.moveBlock(index, item.mRect.topLeft());
}

void FB_Page_Blocks::showWithin(const QRectF& part, bool mayHide) {
  const double zoom = mHost.zoom();
  const QRectF place(part.topLeft() / zoom, part.size() / zoom);
  for (Item& item : mItems) {
    const bool isSeen = place.intersects(item.mRect) && item.mBlock->record().mDisplay;
    if (isSeen != item.mIsShown && (isSeen || mayHide)) {
      item.mIsShown = isSeen;
      item.mBlock->setVisible(isSeen);
    }
  }
}
