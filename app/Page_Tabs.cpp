#include "app/Page_Tabs.h"

#include "app/Logic_Page_Tab.h"
#include "app/Project_Overview.h"
#include "db/Model_Roles.h"
#include "db/Page_Tree_Model.h"
#include "db/Project_Session.h"
#include "fb/FB_Page.h"
#include "ui/Page_Content_View.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTabBar>

namespace {

constexpr int cTitleLetters = 32;

/// Null when there is no such page.
QString captionOf(const ProjectDatabase& database, const QUuid& guid) {
  if (const DB_FB_Page* const page = database.mFbPages.page(guid)) {
    return page->mCaption.isNull() ? QStringLiteral("") : page->mCaption;
  }
  const DB_Widget_Page* const page = database.mWidgetPages.page(guid);
  return page ? (page->mCaption.isNull() ? QStringLiteral("") : page->mCaption) : QString();
}

QString shortened(QString text) {
  if (text.size() > cTitleLetters) {
    text = text.left(cTitleLetters - 1) + QChar(u'…');
  }
  return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

Page_Tabs::Page_Tabs(Project_Session& session, App_Settings& settings, Project_Overview& overview, QWidget* parent)
    : QTabWidget(parent),
      mSession(session),
      mSettings(settings),
      mOverview(overview) {
  setObjectName(QStringLiteral("ui:mPageTabs"));
  setDocumentMode(true);
  setMovable(true);
  setTabsClosable(true);
  setUsesScrollButtons(true);
  tabBar()->setAccessibleName(tr("Geöffnete Seiten"));
  tabBar()->installEventFilter(this);
  addTab(&mOverview, Theme::icon(QStringLiteral("home_menu_white")), tr("Projekt"));
  for (const QTabBar::ButtonPosition side : {QTabBar::LeftSide, QTabBar::RightSide}) {
    tabBar()->setTabButton(0, side, nullptr);
  }

  connect(this, &QTabWidget::tabCloseRequested, this, &Page_Tabs::closeTab);
  connect(this, &QTabWidget::currentChanged, this, &Page_Tabs::onCurrentChanged);
  connect(tabBar(), &QTabBar::tabMoved, this, &Page_Tabs::onTabMoved);
  connect(&session, &Project_Session::aboutToClose, this, &Page_Tabs::closeAll);
  const DB_Page_List_Signals* const lists[] = {&session.database().mFbPages, &session.database().mWidgetPages};
  for (const DB_Page_List_Signals* const list : lists) {
    connect(list, &DB_Page_List_Signals::structureChanged, this, &Page_Tabs::follow);
    connect(list, &DB_Page_List_Signals::pageChanged, this, &Page_Tabs::follow);
  }
}

/// Null for the project.
Shown_Page* Page_Tabs::viewAt(int index) const {
  return dynamic_cast<Shown_Page*>(widget(index));
}

FB_Page* Page_Tabs::logicPage() const {
  const auto* const tab = qobject_cast<Logic_Page_Tab*>(currentWidget());
  return tab ? &tab->canvas() : nullptr;
}

QList<FB_Page*> Page_Tabs::logicPages() const {
  QList<FB_Page*> pages;
  for (int i = 0; i < count(); ++i) {
    if (const auto* const tab = qobject_cast<Logic_Page_Tab*>(widget(i))) {
      pages.append(&tab->canvas());
    }
  }
  return pages;
}

void Page_Tabs::setValuesShown(bool areShown) {
  mAreValuesShown = areShown;
  for (FB_Page* const page : logicPages()) {
    page->showValues(areShown);
  }
}

void Page_Tabs::setOrderShown(bool isShown) {
  mIsOrderShown = isShown;
  for (FB_Page* const page : logicPages()) {
    page->showExecutionOrder(isShown);
  }
}

void Page_Tabs::setConnectedController(std::optional<int> number) {
  if (mController == number) {
    return;
  }
  mController = number;
  for (int i = 0; i < count(); ++i) {
    if (auto* const tab = qobject_cast<Logic_Page_Tab*>(widget(i))) {
      tab->setConnectedController(number);
    }
  }
}

int Page_Tabs::indexOfPage(const QUuid& page) const {
  for (int i = 0; i < count(); ++i) {
    const Shown_Page* const view = viewAt(i);
    if (view && view->page() == page) {
      return i;
    }
  }
  return -1;
}

QUuid Page_Tabs::currentPage() const {
  const Shown_Page* const view = viewAt(currentIndex());
  return view ? view->page() : QUuid();
}

QWidget* Page_Tabs::makeView(const QUuid& guid) {
  if (!mSession.database().mFbPages.page(guid)) {
    return new Page_Content_View(mSession, mSettings, guid);
  }
  auto* const tab = new Logic_Page_Tab(mSession, mSettings, guid);
  tab->canvas().showValues(mAreValuesShown);
  tab->canvas().showExecutionOrder(mIsOrderShown);
  tab->setConnectedController(mController);
  emit logicPageOpened(tab->canvas());
  return tab;
}

void Page_Tabs::showPage(const QUuid& guid) {
  int index = indexOfPage(guid);
  if (index < 0) {
    const ProjectDatabase& database = mSession.database();
    const QString caption = captionOf(database, guid);
    if (caption.isNull()) {
      return;
    }
    index = addTab(makeView(guid), Theme::icon(Page_Tree_Model::pageIcon(database, guid)), shortened(caption));
    setTabToolTip(index, Model_Roles::toolTip(caption).toString());
  }
  setCurrentIndex(index);
}

void Page_Tabs::showChild(const QUuid& page, const QUuid& child) {
  showPage(page);
  if (currentPage() == page) {
    viewAt(currentIndex())->showChild(child);
  }
}

void Page_Tabs::showBlocks(const QUuid& page, const QList<QUuid>& blocks) {
  showPage(page);
  if (FB_Page* const canvas = logicPage(); canvas && currentPage() == page) {
    canvas->showBlocks(blocks);
  }
}

void Page_Tabs::showPrevious() {
  setCurrentIndex((currentIndex() + count() - 1) % count());
}

void Page_Tabs::showNext() {
  setCurrentIndex((currentIndex() + 1) % count());
}

void Page_Tabs::closeCurrent() {
  closeTab(currentIndex());
}

bool Page_Tabs::showOtherKind() {
  const ProjectDatabase& database = mSession.database();
  const bool isLogic = database.mFbPages.page(currentPage()) != nullptr;
  const QUuid last = mLastOfKind[isLogic ? 1 : 0];
  if (!captionOf(database, last).isNull()) {
    showPage(last);
  } else if (isLogic ? !database.mWidgetPages.pages().isEmpty() : !database.mFbPages.pages().isEmpty()) {
    showPage(isLogic ? database.mWidgetPages.pages().at(0).mGuid : database.mFbPages.pages().at(0).mGuid);
  } else {
    return false;
  }
  return true;
}

void Page_Tabs::enter() {
  if (Shown_Page* const view = viewAt(currentIndex())) {
    view->enter();
  } else if (currentWidget() && currentWidget()->focusWidget()) {
    currentWidget()->focusWidget()->setFocus(Qt::ShortcutFocusReason);
  } else {
    tabBar()->setFocus(Qt::ShortcutFocusReason);
  }
}

void Page_Tabs::closeTab(int index) {
  if (!viewAt(index)) {
    return;
  }
  QWidget* const view = widget(index);
  const bool hadFocus = view->isAncestorOf(QApplication::focusWidget());
  removeTab(index);
  // It may be in the middle of handling the key that closes it.
  view->deleteLater();
  if (hadFocus) {
    enter();
  }
}

void Page_Tabs::closeAll() {
  for (int i = count() - 1; i > 0; --i) {
    closeTab(i);
  }
  mLastOfKind = {};
}

/// Pages may be gone or called otherwise.
void Page_Tabs::follow() {
  const ProjectDatabase& database = mSession.database();
  for (int i = count() - 1; i > 0; --i) {
    const QString caption = captionOf(database, viewAt(i)->page());
    if (caption.isNull()) {
      closeTab(i);
    } else {
      setTabText(i, shortened(caption));
      setTabToolTip(i, Model_Roles::toolTip(caption).toString());
    }
  }
}

void Page_Tabs::onCurrentChanged() {
  const QUuid page = currentPage();
  if (!page.isNull()) {
    mLastOfKind[mSession.database().mFbPages.page(page) ? 0 : 1] = page;
  }
  emit changed();
}

void Page_Tabs::onTabMoved(int from, int to) {
  // The project stays the first one.
  if (widget(0) != &mOverview) {
    tabBar()->moveTab(to, from);
  }
}

void Page_Tabs::tabInserted(int index) {
  QTabWidget::tabInserted(index);
  emit changed();
}

void Page_Tabs::tabRemoved(int index) {
  QTabWidget::tabRemoved(index);
  emit changed();
}

bool Page_Tabs::eventFilter(QObject* object, QEvent* event) {
  const bool isPress = event->type() == QEvent::MouseButtonPress;
  if (object != tabBar() || (!isPress && event->type() != QEvent::MouseButtonRelease)) {
    return QTabWidget::eventFilter(object, event);
  }
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  if (mouse.button() != Qt::MiddleButton) {
    return QTabWidget::eventFilter(object, event);
  }
  const int tab = tabBar()->tabAt(mouse.position().toPoint());
  if (isPress) {
    mPressed = tab;
  } else if (tab == mPressed) {
    closeTab(tab);
  }
  return true;
}
