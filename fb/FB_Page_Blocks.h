#pragma once

#include "db/DB_FB_Page.h"
#include "fb/FB_Wires.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QHash>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSet>
#include <QUuid>

#include <optional>
#include <vector>

class FB_Base;
class FB_Block_Host;
class Project_Session;
class QWidget;

/// The block widgets and wires of one page, in the order of the page's blocks. They follow the records when they are
/// told to; a block keeps its widget, and so its selection, as long as its record lives. Rectangles are pixels of the
/// unzoomed page, points are pixels of the canvas. Canvas and host outlive it, the widgets do not.
class FB_Page_Blocks {
public:
  FB_Page_Blocks(Project_Session& session, const QUuid& page, FB_Block_Host& host, QWidget& canvas);
  FB_Page_Blocks(const FB_Page_Blocks&) = delete;
  FB_Page_Blocks& operator=(const FB_Page_Blocks&) = delete;
  ~FB_Page_Blocks();

  /// Null when the page is no longer in the project.
  [[nodiscard]] const DB_FB_Page* page() const;
  [[nodiscard]] int count() const { return static_cast<int>(mItems.size()); }
  [[nodiscard]] FB_Base& at(int index) const { return *mItems[static_cast<size_t>(index)].mBlock; }
  [[nodiscard]] int indexOf(const QUuid& block) const { return mIndexes.value(block, -1); }
  /// Null when there is none of that identifier.
  [[nodiscard]] FB_Base* find(const QUuid& block) const;
  /// Where the block is shown, which while it is being dragged is not where its record says.
  [[nodiscard]] const QRectF& rect(int index) const { return mItems[static_cast<size_t>(index)].mRect; }
  /// Around all blocks; null without any.
  [[nodiscard]] QRectF extent() const;
  [[nodiscard]] QRectF extent(const QList<QUuid>& blocks) const;

  [[nodiscard]] FB_Wires& wires() { return mWires; }
  [[nodiscard]] const FB_Wires& wires() const { return mWires; }
  [[nodiscard]] QPointF pinPoint(const FB_Pin_Ref& pin) const;
  /// The pin that is hit there, of the topmost block.
  [[nodiscard]] std::optional<FB_Pin_Ref> pinAt(const QPointF& point) const;
  [[nodiscard]] FB_Connection connection(int wire) const;

  /// A widget for a record, at the end of the list.
  FB_Base& createBlock(const DB_FB_Control& record);
  /// Takes over what changed in the records of these blocks, and makes and deletes widgets. Answers the new ones.
  QList<QUuid> follow(const QSet<QUuid>& changed);
  void rebuildWires();
  void applyZoom();

  /// Shows the block at another place than its record says.
  void showAt(int index, const QPointF& position);
  /// Back to where its record says.
  void putBack(int index);
  /// Shows the blocks in that part of the canvas; with `mayHide` the others are hidden.
  void showWithin(const QRectF& part, bool mayHide);
  /// False of a block whose record says that it is not displayed: neither it nor its wires are seen, hit or selected
  /// with others. What names it (the tree of pages) may still select it.
  [[nodiscard]] bool isDisplayed(int index) const;
  [[nodiscard]] bool isShown(int index) const { return mItems[static_cast<size_t>(index)].mIsShown; }

private:
  struct Item {
    FB_Base* mBlock = nullptr;
    QRectF mRect;
    bool mIsShown = false;
  };
  [[nodiscard]] Item make(const DB_FB_Control& record) const;
  [[nodiscard]] bool isSameList(const DB_FB_Page& page) const;
  QList<QUuid> renew(const DB_FB_Page* page);

  Project_Session& mSession;
  QUuid mPage;
  FB_Block_Host& mHost;
  QWidget& mCanvas;
  std::vector<Item> mItems;
  QHash<QUuid, int> mIndexes;
  FB_Wires mWires;
};
