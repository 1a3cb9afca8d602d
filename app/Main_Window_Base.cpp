#include "app/Main_Window_Base.h"

#include "app/Project_Overview.h"
#include "app/Start_Page.h"
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "ui/Address_View.h"
#include "ui/Page_View.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QFileInfo>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>

namespace {

constexpr int cDefaultWidth = 1280;
constexpr int cDefaultHeight = 800;
constexpr int cFirstStretch = 3;
constexpr int cSecondStretch = 2;
constexpr int cInfoMs = 8000;

} // namespace

Main_Window_Base::Main_Window_Base(Project_Session& session, App_Settings& settings, bool isKiosk)
    : mSession(session),
      mSettings(settings),
      mIsKiosk(isKiosk) {
  Theme::apply(*qApp);
  setObjectName(QStringLiteral("Main_Window"));
}

void Main_Window_Base::buildContents(const QList<QAction*>& startActions, const QList<QAction*>& nextSteps) {
  mStack = new QStackedWidget;
  mStartPage = new Start_Page(startActions, mStack);
  mOverview = new Project_Overview(mSession, nextSteps, mStack);
  mStack->addWidget(mStartPage);
  mStack->addWidget(mOverview);

  mTabs = new QTabWidget;
  mTabs->setTabPosition(QTabWidget::South);
  mTabs->setMovable(true);
  mPageView = new Page_View(mSession, mTabs);
  mAddressView = new Address_View(mSession, mTabs);
  mTabs->addTab(mPageView, tr("Navigation"));
  mTabs->addTab(mAddressView, tr("Variablen"));
  mTabs->setCurrentIndex(0);

  mSplitterMain = new QSplitter(Qt::Horizontal);
  mSplitterMain->setObjectName(QStringLiteral("ui:mSplitterMain"));
  mSplitterMain->setChildrenCollapsible(false);
  mSplitterMain->addWidget(mStack);
  mSplitterMain->addWidget(mTabs);
  mSplitterMain->setStretchFactor(0, cFirstStretch);
  mSplitterMain->setStretchFactor(1, cSecondStretch);
  // Sizes are shares here: the splitter brings them to its own size.
  mSplitterMain->setSizes({cFirstStretch * cDefaultWidth, cSecondStretch * cDefaultWidth});
  setCentralWidget(mSplitterMain);

  for (auto* const bar : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
    bar->setVisible(!mIsKiosk);
  }
  menuBar()->setVisible(!mIsKiosk);

  connect(mPageView, &Page_View::refused, this, &Main_Window_Base::showInfo);
  connect(mAddressView, &Address_View::refused, this, &Main_Window_Base::showInfo);
  connect(mAddressView, &Address_View::info, this, &Main_Window_Base::showInfo);
  connect(mStartPage, &Start_Page::backRequested, this, &Main_Window_Base::showProjectPage);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Base::showStartPage);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Base::updateTitle);
  connect(&mSession, &Project_Session::pathChanged, this, &Main_Window_Base::updateTitle);
  connect(&mSession.history(), &History::changed, this, &Main_Window_Base::updateTitle);

  resize(QSize(cDefaultWidth, cDefaultHeight).boundedTo(screen()->availableSize()));
  restoreViews();
  updateTitle();
}

QList<QSplitter*> Main_Window_Base::splitters() const {
  return {mSplitterMain, mPageView->splitter()};
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
  mStack->setCurrentWidget(mOverview);
}

void Main_Window_Base::showAddresses() {
  mTabs->setCurrentWidget(mAddressView);
}

void Main_Window_Base::showAddress(const QUuid& key) {
  showAddresses();
  mAddressView->showAddress(key);
}

void Main_Window_Base::showPage(const QUuid& guid) {
  mTabs->setCurrentWidget(mPageView);
  mPageView->showPage(guid);
}

void Main_Window_Base::showInfo(const QString& text) {
  // A path gives way in the middle: its end says which file it is.
  const int width = statusBar()->width() - 2 * fontMetrics().height();
  statusBar()->showMessage(fontMetrics().elidedText(text, Qt::ElideMiddle, width), cInfoMs);
}

void Main_Window_Base::updateTitle() {
  const QString name = QFileInfo(mSession.path()).completeBaseName();
  setWindowTitle(name.isEmpty() ? QStringLiteral("Quarna-Studio") : QStringLiteral("[*]%1 - Quarna-Studio").arg(name));
  setWindowModified(mSession.isModified());
  mStartPage->setOpenProject(name);
}
