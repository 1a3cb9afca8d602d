#include "app/Main_Window_Base.h"

#include "app/Page_Tabs.h"
#include "app/Project_Overview.h"
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/FB_Dev_New_Control.h"
#include "fb/properties/FB_Dev_Properties.h"
#include "ui/Address_View.h"
#include "ui/Field_Keys.h"
#include "ui/Page_View.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QFileInfo>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int cDefaultWidth = 1280;
constexpr int cDefaultHeight = 800;
constexpr int cFirstStretch = 3;
constexpr int cSecondStretch = 2;
constexpr int cInfoMs = 8000;
constexpr int cLeastCharacters = 48; ///< beside the page: names and fields of the properties side by side

} // namespace

Main_Window_Base::Main_Window_Base(Project_Session& session, App_Settings& settings, bool isKiosk)
    : mSession(session),
      mSettings(settings),
      mIsKiosk(isKiosk) {
  Theme::apply(*qApp);
  new Field_Keys(*qApp, this);
  setObjectName(QStringLiteral("Main_Window"));
}

void Main_Window_Base::buildContents(const Steps& steps) {
  buildStack(steps);
  buildTabs();
  mSplitterMain = new QSplitter(Qt::Horizontal);
  mSplitterMain->setObjectName(QStringLiteral("ui:mSplitterMain"));
  mSplitterMain->setChildrenCollapsible(false);
  mSplitterMain->addWidget(mStack);
  mSplitterMain->addWidget(mTabs);
  mSplitterMain->setStretchFactor(0, cFirstStretch);
  mSplitterMain->setStretchFactor(1, cSecondStretch);
  // Sizes are shares here: the splitter brings them to its own size.
  mSplitterMain->setSizes({cFirstStretch * cDefaultWidth, cSecondStretch * cDefaultWidth});
  auto* const central = new QWidget;
  auto* const layout = new QVBoxLayout(central);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mSplitterMain);
  setCentralWidget(central);

  for (auto* const bar : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
    bar->setVisible(!mIsKiosk);
  }
  menuBar()->setVisible(!mIsKiosk);

  connectParts();
  resize(QSize(cDefaultWidth, cDefaultHeight).boundedTo(screen()->availableSize()));
  restoreViews();
  updateTitle();
}

void Main_Window_Base::buildStack(const Steps& steps) {
  mStack = new QStackedWidget;
  mStartPage = new Start_Page(steps.mStart, steps.mFirst, mStack);
  mOverview = new Project_Overview(mSession, steps.mNext, mStack);
  mPageTabs = new Page_Tabs(mSession, mSettings, *mOverview, mStack);
  mStack->addWidget(mStartPage);
  mStack->addWidget(mPageTabs);
}

void Main_Window_Base::buildTabs() {
  mTabs = new QTabWidget;
  mTabs->setObjectName(QStringLiteral("ui:mTabs"));
  mTabs->setTabPosition(QTabWidget::South);
  mTabs->setMovable(true);
  // An address is dragged from the one tab to the properties in the other.
  mTabs->tabBar()->setAcceptDrops(true);
  mTabs->tabBar()->setChangeCurrentOnDrag(true);
  mTabs->setMinimumWidth(cLeastCharacters * mTabs->fontMetrics().averageCharWidth());
  mTabs->tabBar()->setAccessibleName(tr("Navigation und Variablen"));
  mPageView = new Page_View(mSession, mTabs);
  mPageView->setObjectName(QStringLiteral("Navigation"));
  mCatalogue = new FB_Dev_New_Control(mSettings, mPageView);
  mPageView->addPanel(mCatalogue, tr("Bausteine"));
  mProperties = new FB_Dev_Properties(mSession, mSettings, mPageView);
  mPageView->addPanel(mProperties, tr("Eigenschaften"));
  mAddressView = new Address_View(mSession, mTabs);
  mAddressView->setObjectName(QStringLiteral("Variablen"));
  mTabs->addTab(mPageView, tr("Navigation"));
  mTabs->addTab(mAddressView, tr("Variablen"));
  mTabs->setCurrentIndex(0);
}

void Main_Window_Base::connectParts() {
  connect(mStack, &QStackedWidget::currentChanged, this, &Main_Window_Base::workChanged);
  connect(mPageView, &Page_View::refused, this, &Main_Window_Base::showInfo);
  connect(mPageTabs, &Page_Tabs::changed, this, [this] { mPageView->showPage(mPageTabs->currentPage()); });
  connect(mPageView, &Page_View::pageChosen, this, &Main_Window_Base::showPage);
  connect(mPageView, &Page_View::childChosen, this, [this](const QUuid& page, const QUuid& child) {
    showChild(page, child);
    mPageTabs->enter();
  });
  connect(mAddressView, &Address_View::refused, this, &Main_Window_Base::showInfo);
  connect(mAddressView, &Address_View::info, this, &Main_Window_Base::showInfo);
  connect(mStartPage, &Start_Page::backRequested, this, &Main_Window_Base::showProjectPage);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Base::showStartPage);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Base::updateTitle);
  connect(&mSession, &Project_Session::pathChanged, this, &Main_Window_Base::updateTitle);
  connect(&mSession.history(), &History::changed, this, &Main_Window_Base::updateTitle);
}

QList<QSplitter*> Main_Window_Base::splitters() const {
  return {mSplitterMain, mPageView->splitter(), mProperties->splitter()};
}

void Main_Window_Base::restoreViews() {
  if (mIsKiosk) {
    return;
  }
  restoreGeometry(mSettings.windowGeometry());
  restoreState(mSettings.windowState());
  for (QSplitter* const splitter : splitters()) {
    const Qt::Orientation orientation = splitter->orientation();
    splitter->restoreState(mSettings.viewState(splitter->objectName()));
    splitter->setOrientation(orientation); // a broken setting may turn it
  }
  mAddressView->restoreState(mSettings);
  restoreTabs();
}

/// The names of the lower tabs in their order. Which is the current one is not remembered: the first is, at start.
void Main_Window_Base::rememberTabs() {
  QByteArrayList names;
  for (int i = 0; i < mTabs->count(); ++i) {
    names.append(mTabs->widget(i)->objectName().toLatin1());
  }
  mSettings.setViewState(mTabs->objectName(), names.join(','));
}

void Main_Window_Base::restoreTabs() {
  const QByteArrayList names = mSettings.viewState(mTabs->objectName()).split(',');
  const auto tabOf = [this](const QByteArray& name) {
    QWidget* const tab = mTabs->findChild<QWidget*>(QString::fromLatin1(name));
    return tab ? mTabs->indexOf(tab) : -1;
  };
  for (int i = 0, to = 0; i < names.size() && to < mTabs->count(); ++i) {
    if (const int from = tabOf(names[i]); from >= to) {
      mTabs->tabBar()->moveTab(from, to++);
    }
  }
  mTabs->setCurrentIndex(0);
}

void Main_Window_Base::rememberViews() {
  if (mIsKiosk) {
    return;
  }
  mSettings.setWindowGeometry(saveGeometry());
  mSettings.setWindowState(saveState());
  for (const QSplitter* const splitter : splitters()) {
    mSettings.setViewState(splitter->objectName(), splitter->saveState());
  }
  mAddressView->saveState(mSettings);
  rememberTabs();
}

void Main_Window_Base::showAsRemembered() {
  if (mIsKiosk) {
    showFullScreen();
  } else {
    show();
  }
}

void Main_Window_Base::showStartPage() {
  mStack->setCurrentWidget(mStartPage);
}

void Main_Window_Base::showProjectPage() {
  mStack->setCurrentWidget(mPageTabs);
}

bool Main_Window_Base::isProjectShown() const {
  return mStack->currentWidget() == mPageTabs;
}

void Main_Window_Base::showAddresses() {
  mTabs->setCurrentWidget(mAddressView);
}

void Main_Window_Base::showAddress(const QUuid& key) {
  showAddresses();
  mAddressView->showAddress(key);
}

void Main_Window_Base::showPage(const QUuid& guid) {
  showChild(guid, QUuid());
}

void Main_Window_Base::showChild(const QUuid& page, const QUuid& child) {
  mTabs->setCurrentWidget(mPageView);
  mPageView->showPage(page);
  showProjectPage();
  mPageTabs->showChild(page, child);
}

void Main_Window_Base::showPanel(QWidget& panel) {
  mTabs->setCurrentWidget(mPageView);
  mPageView->showPanel(&panel);
}

void Main_Window_Base::enterWork() {
  if (isProjectShown()) {
    mPageTabs->enter();
  } else {
    mStartPage->enter();
  }
}

void Main_Window_Base::enterNavigation() {
  mTabs->setCurrentWidget(mPageView);
  mPageView->enter();
}

void Main_Window_Base::enterVariables() {
  showAddresses();
  mAddressView->enter();
}

void Main_Window_Base::showInfo(const QString& text) {
  // A path gives way in the middle: its end says which file it is.
  const int width = statusBar()->width() - 2 * fontMetrics().height();
  statusBar()->showMessage(fontMetrics().elidedText(text, Qt::ElideMiddle, width), cInfoMs);
}

void Main_Window_Base::updateTitle() {
  const QFileInfo file(mSession.path());
  const QString name = file.completeBaseName().isEmpty() ? file.fileName() : file.completeBaseName();
  setWindowTitle(name.isEmpty() ? QStringLiteral("Quarna-Studio") : QStringLiteral("[*]%1 - Quarna-Studio").arg(name));
  setWindowModified(mSession.isModified());
  mStartPage->setOpenProject(name);
}
