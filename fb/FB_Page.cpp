#include "fb/FB_Page.h"

#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/FB_Auto_Scroll.h"
#include "fb/FB_Base.h"
#include "fb/FB_Inline_Edit.h"
#include "fb/FB_Page_Commands.h"
#include "fb/FB_Page_Follower.h"
#include "fb/FB_Page_Overlay.h"
#include "fb/model/FB_Page_Links.h"
#include "fb/model/FB_Types.h"
#include "ui/Message_Box.h"

#include <QTimer>

#include <algorithm>
#include <utility>

FB_Page::FB_Page(Project_Session& session, App_Settings& settings, const QUuid& page, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mSettings(settings),
      mGuid(page),
      mBlocks(session, page, *this, *this),
      mFollower(new FB_Page_Follower(session.database().mFbPages, this)),
      mOverlay(new FB_Page_Overlay(*this)),
      mCommands(new FB_Page_Commands(*this)),
      mAutoScroll(new FB_Auto_Scroll(this)),
      mLinks(new FB_Page_Links(session, this)) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAcceptDrops(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(tr("Programmseite"));
  mBlocks.wires().setStyle(static_cast<FB_Wires::Style>(settings.value(Setting::FBWireStyle)));
  mBlocks.follow({});
  rebuildConnections();
  updateSize();
  mCommands->update();
  connect(mFollower, &FB_Page_Follower::changed, this, &FB_Page::follow);
  auto* const addresses = new QTimer(this); // those that change in one turn are taken over once
  addresses->setSingleShot(true);
  connect(addresses, &QTimer::timeout, this, &FB_Page::refreshBindings);
  const Address_Tree& tree = session.database().mAddresses;
  connect(&tree, &Address_Tree::recordChanged, addresses, qOverload<>(&QTimer::start));
  connect(&tree, &Address_Tree::structureChanged, addresses, qOverload<>(&QTimer::start));
  connect(&session.history(), &History::stepApplied, this, &FB_Page::onStepApplied);
  connect(mAutoScroll, &FB_Auto_Scroll::scrolled, this, &FB_Page::onScrolled);
  connect(mLinks, &FB_Page_Links::changed, this, qOverload<>(&QWidget::update));
  connect(&settings, &App_Settings::changed, this, &FB_Page::onSettingChanged);
  connect(&session.state(), &Session_State::operatingModeChanged, this, [this] {
    closeEditor();
    cancelGesture();
  });
}

FB_Page::~FB_Page() {
  // A field that is still open would hand its text over to a page that is half gone.
  if (mEditor) {
    mEditor->disconnect(this);
  }
  endGesture();
}

void FB_Page::follow(const QSet<QUuid>& changed, bool arePagesChanged) {
  const auto& list = mSession.database().mFbPages;
  const bool isMine = arePagesChanged || std::any_of(changed.begin(), changed.end(), [&](const QUuid& guid) {
                        const DB_FB_Control* const record = list.child(guid);
                        return mBlocks.indexOf(guid) >= 0 || (record && record->mPageGuid == mGuid);
                      });
  if (isMine) {
    cancelGesture();
    const QList<QUuid> before = selectedBlocks();
    const QList<QUuid> made = mBlocks.follow(changed);
    mLastMade = {made.begin(), made.end()};
    rebuildConnections();
    updateSize();
    viewChanged();
    // Blocks that an assistant makes leave the user the selection, and the panel in which he may be typing.
    if (before != selectedBlocks()) {
      tellSelection();
    }
    emit pageChanged();
  }
  update();
}

/// Addresses have other names or numbers: the records are up to date, the blocks' copies become so.
void FB_Page::refreshBindings() {
  for (int i = 0; i < mBlocks.count(); ++i) {
    mBlocks.at(i).refreshBindings();
  }
  update();
}

/// Blocks that undo or redo brings are selected; what it has changed comes into the visible part when nothing of it is
/// there.
void FB_Page::onStepApplied(const std::vector<History::Applied>& records) {
  mFollower->flush();
  QList<QUuid> made;
  for (const History::Applied& record : records) {
    if (mLastMade.contains(record.mId) && mBlocks.indexOf(record.mId) >= 0) {
      made.append(record.mId);
    }
  }
  mLastMade.clear();
  if (!made.isEmpty()) {
    select(made);
    if (isVisible()) {
      bringIntoView(mBlocks.extent(made));
    }
  }
  QRectF changed;
  for (const History::Applied& record : records) {
    const int index = record.mPage == mGuid ? mBlocks.indexOf(record.mId) : -1;
    changed |= index < 0 ? QRectF() : mBlocks.rect(index);
  }
  const QRectF zoomed(changed.topLeft() * zoom(), changed.size() * zoom());
  if (isVisible() && !changed.isNull() && !zoomed.intersects(visiblePart())) {
    bringIntoView(changed);
  }
}

void FB_Page::onSettingChanged() {
  const auto style = static_cast<FB_Wires::Style>(mSettings.value(Setting::FBWireStyle));
  mBlocks.wires().setStyle(style);
  update();
}

void FB_Page::rebuildConnections() {
  hover({});
  mBlocks.rebuildWires();
  if (mShowsValues) {
    lightWires();
  }
}

void FB_Page::setModified() {
  emit modified();
}

QList<QUuid> FB_Page::selectedBlocks() const {
  QList<QUuid> selected;
  for (int i = 0; i < mBlocks.count(); ++i) {
    if (mBlocks.at(i).isSelected()) {
      selected.append(mBlocks.at(i).guid());
    }
  }
  return selected;
}

void FB_Page::showSelection(const QSet<QUuid>& blocks) {
  const bool wasSelecting = std::exchange(mIsSelecting, true);
  for (int i = 0; i < mBlocks.count(); ++i) {
    FB_Base& block = mBlocks.at(i);
    const bool isSelected = blocks.contains(block.guid());
    if (isSelected != block.isSelected()) {
      block.setSelected(isSelected);
    }
  }
  mIsSelecting = wasSelecting;
}

void FB_Page::tellSelection() {
  emit selectionChanged();
  const QList<QUuid> selected = selectedBlocks();
  const FB_Type* const type =
      selected.size() == 1 ? FB_Types::find(mBlocks.find(selected.constFirst())->type()) : nullptr;
  emit statusText(type && !type->mHasPins ? tr("Ein-/Ausgänge noch nicht verfügbar") : QString());
}

void FB_Page::select(const QList<QUuid>& blocks) {
  const QList<QUuid> before = selectedBlocks();
  showSelection(QSet<QUuid>(blocks.begin(), blocks.end()));
  if (before != selectedBlocks()) {
    tellSelection();
  }
}

void FB_Page::selectOnly(FB_Base* block) {
  select(block ? QList<QUuid>{block->guid()} : QList<QUuid>());
}

void FB_Page::selectAll() {
  if (!isVisible() || !mayEdit()) {
    return;
  }
  QList<QUuid> all;
  all.reserve(mBlocks.count());
  for (int i = 0; i < mBlocks.count(); ++i) {
    if (mBlocks.isDisplayed(i)) {
      all.append(mBlocks.at(i).guid());
    }
  }
  select(all);
}

bool FB_Page::mayEdit() const {
  return !mSession.state().operatingMode();
}

int FB_Page::snapGrid() const {
  return mSettings.isOn(Setting::ShowGrid) ? mSettings.value(Setting::GridSize) : 0;
}

void FB_Page::tellLater(const QString& text) {
  const auto tell = [this, text] { Message_Box::showMessage(window(), text); };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}
