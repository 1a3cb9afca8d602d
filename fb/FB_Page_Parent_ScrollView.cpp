#include "fb/FB_Page_Parent_ScrollView.h"

#include "db/Project_Session.h"
#include "fb/FB_Catalogue_Mime.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Page_Notices.h"
#include "ui/Theme.h"

#include <QDropEvent>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

namespace {

constexpr int cLineStep = 16; // pixels

} // namespace

FB_Page_Parent_ScrollView::FB_Page_Parent_ScrollView(FB_Page* page, QWidget* parent)
    : QScrollArea(parent),
      mPage(page),
      mNotices(new QLabel(this)) {
  setFrameStyle(int(Box) | int(Plain)); // drawn here: it tells who has the keyboard
  setLineWidth(1);
  page->installEventFilter(this);
  setWidget(page);
  setFocusProxy(page);
  setAcceptDrops(true);
  horizontalScrollBar()->setSingleStep(cLineStep);
  verticalScrollBar()->setSingleStep(cLineStep);
  mNotices->setTextFormat(Qt::PlainText);
  mNotices->setWordWrap(true);
  mNotices->setMargin(8);
  mNotices->setAutoFillBackground(true);
  QPalette colours = mNotices->palette();
  colours.setColor(QPalette::Window, Theme::color(Theme::Role::Bar));
  colours.setColor(QPalette::WindowText, Theme::color(Theme::Role::Error));
  mNotices->setPalette(colours);
  connect(page, &FB_Page::pageChanged, this, &FB_Page_Parent_ScrollView::updateNotices);
  connect(&page->session().database(), &ProjectDatabase::recordChanged, this, [this](DB_Table table) {
    if (table == DB_Table::Project) {
      updateNotices();
    }
  });
  updateNotices();
}

/// A scroll area would bring what it thinks has the focus into view: the whole page, that is, its middle.
bool FB_Page_Parent_ScrollView::focusNextPrevChild(bool next) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): what the scroll area does is what is not wanted
  return QAbstractScrollArea::focusNextPrevChild(next);
}

void FB_Page_Parent_ScrollView::setConnectedController(std::optional<int> number) {
  mController = number;
  updateNotices();
}

void FB_Page_Parent_ScrollView::updateNotices() {
  const DB_FB_Page* const page = mPage->blocks().page();
  QStringList notices;
  if (page) {
    notices = FB_Page_Notices::of(*page, mPage->session().database().mProject, mController);
  }
  mNotices->setText(notices.join('\n'));
  mNotices->setVisible(!notices.isEmpty());
  placeNotices();
}

void FB_Page_Parent_ScrollView::placeNotices() {
  const int height = mNotices->text().isEmpty() ? 0 : mNotices->heightForWidth(width());
  mNotices->setGeometry(0, 0, width(), height);
  setViewportMargins(0, height, 0, 0);
}

bool FB_Page_Parent_ScrollView::event(QEvent* event) {
  const bool isDone = QScrollArea::event(event);
  if (event->type() == QEvent::Paint) {
    QPainter painter(this);
    painter.setPen(Theme::color(mPage->hasFocus() ? Theme::Role::Accent : Theme::Role::Window));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  return isDone;
}

bool FB_Page_Parent_ScrollView::eventFilter(QObject* object, QEvent* event) {
  if (object == mPage && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
    update();
  }
  return QScrollArea::eventFilter(object, event);
}

void FB_Page_Parent_ScrollView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  placeNotices();
  mPage->viewChanged();
}

/// With Shift to the side, as the toolkit does with Alt.
void FB_Page_Parent_ScrollView::wheelEvent(QWheelEvent* event) {
  const QPoint angle = event->angleDelta();
  if (event->modifiers().testFlag(Qt::ControlModifier)) { // beside the page
    mPage->setZoom(mPage->zoom() + (angle.y() < 0 ? -0.1 : 0.1), {});
    return;
  }
  if (event->modifiers().testFlag(Qt::ShiftModifier) && angle.x() == 0) {
    QWheelEvent across(event->position(), event->globalPosition(), event->pixelDelta().transposed(), angle.transposed(),
                       event->buttons(), Qt::NoModifier, event->phase(), event->inverted());
    QScrollArea::wheelEvent(&across);
    event->accept();
    return;
  }
  QScrollArea::wheelEvent(event);
}

void FB_Page_Parent_ScrollView::dragEnterEvent(QDragEnterEvent* event) {
  dragMoveEvent(event);
}

void FB_Page_Parent_ScrollView::dragMoveEvent(QDragMoveEvent* event) {
  if (FB_Catalogue_Mime::typeOf(*event)) {
    event->acceptProposedAction();
  }
}

void FB_Page_Parent_ScrollView::dropEvent(QDropEvent* event) {
  mPage->takeDrop(*event, mPage->mapFrom(viewport(), event->position().toPoint()));
}
