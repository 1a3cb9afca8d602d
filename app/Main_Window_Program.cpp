// What the main window's commands do with the logic pages.
#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "app/Window_Dialogs.h"
#include "base/App_Settings.h"
#include "db/Controller_Edits.h"
#include "db/Project_Session.h"
#include "fb/FB_Block_Editors.h"
#include "fb/FB_Dev_New_Control.h"
#include "fb/FB_Output_Check_Dialog.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_List_Commands.h"
#include "fb/FB_Usages_Dialog.h"
#include "fb/properties/FB_Dev_Properties.h"
#include "ui/Controller_List_Dlg.h"
#include "ui/Dev_Statistic_Dlg.h"
#include "ui/Page_View.h"

#include <QApplication>

namespace {
constexpr double cPercent = 100;
} // namespace

void Main_Window_Dev::connectPageCommands() {
  connect(mPageCommands, &FB_Page_List_Commands::pageMade, this, &Main_Window_Dev::showPage);
  connect(mPageCommands, &FB_Page_List_Commands::refused, this, &Main_Window_Dev::showInfo);
  connect(&pageView(), &Page_View::newPageRequested, mPageCommands, &FB_Page_List_Commands::onNewPage);
  connect(&pageView(), &Page_View::duplicateRequested, mPageCommands, &FB_Page_List_Commands::onDuplicate);
  connect(&pageView(), &Page_View::removeRequested, mPageCommands, &FB_Page_List_Commands::onRemove);
  connect(&pageView(), &Page_View::moveRequested, mPageCommands, &FB_Page_List_Commands::onMove);
  connect(&pageView(), &Page_View::propertiesRequested, mPageCommands, &FB_Page_List_Commands::onProperties);
  connect(&properties(), &FB_Dev_Properties::pagePropertiesRequested, mPageCommands,
          &FB_Page_List_Commands::onProperties);
  connect(&properties(), &FB_Dev_Properties::editorRequested, mEditors, &FB_Block_Editors::open);
  connect(&properties(), &FB_Dev_Properties::catalogueRequested, this, [this] { showPanel(catalogue()); });
  connect(&properties(), &FB_Dev_Properties::blockChosen, this, &Main_Window_Dev::showChild);
  connect(&properties(), &FB_Dev_Properties::statusText, this, &Main_Window_Dev::showInfo);
  connect(mEditors, &FB_Block_Editors::statusText, this, &Main_Window_Dev::showInfo);
  connect(mEditors, &FB_Block_Editors::helpRequested, this, &Main_Window_Dev::showHelp);
  connect(&catalogue(), &FB_Dev_New_Control::insertRequested, this, &Main_Window_Dev::insertBlock);
  connect(&pageTabs(), &Page_Tabs::logicPageOpened, this, &Main_Window_Dev::connectLogicPage);
  connect(&pageTabs(), &Page_Tabs::changed, this, [this] {
    if (FB_Page* const page = pageTabs().logicPage()) {
      properties().showBlocks(*page);
    } else {
      properties().clear();
    }
  });
  connect(&mSession.history(), &History::stepApplied, this, &Main_Window_Dev::followStep);
}

void Main_Window_Dev::connectLogicPage(FB_Page& page) {
  connect(&page, &FB_Page::selectionChanged, this, [this, &page] { followSelection(page); });
  connect(&page, &FB_Page::propertiesRequested, mPageCommands, &FB_Page_List_Commands::onProperties);
  connect(&page, &FB_Page::editorRequested, mEditors, &FB_Block_Editors::open);
  connect(&page, &FB_Page::blockPropertiesRequested, this, [this] { showPanel(properties()); });
  connect(&page, &FB_Page::usagesRequested, this, [this](const QUuid& key) { resultDialog(mUsages).showUses(key); });
  connect(&page, &FB_Page::typeUsagesRequested, this, [this](int type) { resultDialog(mUsages).showType(type); });
  connect(&page, &FB_Page::helpRequested, this, &Main_Window_Dev::showHelp);
  connect(&page, &FB_Page::linkActivated, this, &Main_Window_Dev::showChild);
  connect(&page, &FB_Page::zoomChanged, this,
          [this](double zoom) { showInfo(tr("Zoom %1 %").arg(qRound(zoom * cPercent))); });
  connect(&page, &FB_Page::statusText, this, &Main_Window_Dev::showInfo);
}

/// The tree of pages shows the selected block.
void Main_Window_Dev::followSelection(FB_Page& page) {
  const QList<QUuid> blocks = page.selectedBlocks();
  if (&page == pageTabs().logicPage()) {
    if (blocks.isEmpty()) {
      pageView().leaveBlock();
    } else {
      pageView().showBlock(page.pageGuid(), blocks.last());
    }
  }
  if (&page == pageTabs().logicPage()) {
    // The fields go with the last block. Who types in one, while an assistant deletes it, must not press a button next.
    if (blocks.isEmpty() && properties().isAncestorOf(QApplication::focusWidget())) {
      page.setFocus(Qt::OtherFocusReason);
    }
    properties().showBlocks(page);
  }
  updateActions();
}

/// Undo and redo go to the page that they change, unless that is the shown one among others, and select there what is
/// there again.
void Main_Window_Dev::followStep(const std::vector<History::Applied>& records) {
  const QUuid current = pageTabs().currentPage();
  const auto isHere = [&current](const History::Applied& record) { return record.mPage == current; };
  const auto isOfPage = [](const History::Applied& record) { return !record.mPage.isNull(); };
  const auto here = current.isNull() || !isProjectShown() ? records.end() : std::ranges::find_if(records, isHere);
  const auto first = here != records.end() ? here : std::ranges::find_if(records, isOfPage);
  if (first == records.end() || !mSession.database().mFbPages.page(first->mPage)) {
    return;
  }
  QList<QUuid> blocks;
  for (const History::Applied& record : records) {
    const DB_FB_Control* const block = mSession.database().mFbPages.child(record.mId);
    if (block && block->mPageGuid == first->mPage) {
      blocks.append(record.mId);
    }
  }
  const bool isShown = pageTabs().currentPage() == first->mPage;
  const QList<QUuid> selected = isShown ? pageTabs().logicPage()->selectedBlocks() : QList<QUuid>();
  const bool isSelected = !blocks.isEmpty() && std::ranges::all_of(blocks, [&selected](const QUuid& block) {
    return selected.contains(block);
  });
  if (isSelected && isProjectShown()) {
    return; // with others beside them, which stay selected
  }
  showProjectPage();
  pageTabs().showBlocks(first->mPage, blocks);
}

void Main_Window_Dev::showFirstLogicPage() {
  const auto& pages = mSession.database().mFbPages.pages();
  if (pages.isEmpty()) {
    showInfo(tr("Das Projekt hat keine Programmseite."));
  } else if (mSession.isOpen()) {
    showPage(pages.at(0).mGuid);
  }
}

void Main_Window_Dev::insertBlock(int type) {
  FB_Page* const page = isProjectShown() ? pageTabs().logicPage() : nullptr;
  if (page) {
    page->insertBlock(type);
  } else {
    showInfo(tr("Erst eine Programmseite zeigen, dann einen Baustein einfügen."));
  }
}

void Main_Window_Dev::onEditNewPageProgram() {
  const QUuid shown = pageTabs().logicPage() ? pageTabs().currentPage() : QUuid();
  mPageCommands->onNewPage(shown);
}

void Main_Window_Dev::onPageProperties() {
  mPageCommands->onProperties(pageTabs().currentPage());
}

void Main_Window_Dev::onEditStatistic() {
  Dev_Statistic_Dlg(mSession, this).exec();
}

void Main_Window_Dev::onControllerList() {
  const QString path = mSession.path();
  Controller_List_Dlg dialog(mSession.database().mProject.mControllers, this);
  if (dialog.exec() != QDialog::Accepted || mSession.path() != path) {
    return;
  }
  if (const Edit_Result result = Controller_Edits::setControllers(mSession, dialog.controllers()); !result) {
    mDialogs->showMessage(result.mError);
  }
}

void Main_Window_Dev::onEdit_MultipleUsedOutputs() {
  resultDialog(mOutputCheck).bringUp();
}

void Main_Window_Dev::toggle(Setting setting) {
  mSettings.setValue(setting, mSettings.isOn(setting) ? 0 : 1);
}

void Main_Window_Dev::onZoom_Plus() {
  pageTabs().logicPage()->zoomIn();
}

void Main_Window_Dev::onZoom_Minus() {
  pageTabs().logicPage()->zoomOut();
}

void Main_Window_Dev::onZoom_Reset() {
  pageTabs().logicPage()->zoomReset();
}

void Main_Window_Dev::onZoom_Fit() {
  pageTabs().logicPage()->zoomToFit();
}

void Main_Window_Dev::onZoom_Selection() {
  pageTabs().logicPage()->zoomToSelection();
}

void Main_Window_Dev::onEditRasterOnOff() {
  toggle(Setting::ShowGrid);
}

void Main_Window_Dev::onProgramWireStyle() {
  toggle(Setting::FBWireStyle);
}

void Main_Window_Dev::onProgramKeepOutputsOnCopy() {
  toggle(Setting::FBCopyPasteKeepIO);
}

void Main_Window_Dev::onProgramShowDebug() {
  pageTabs().setValuesShown(!pageTabs().areValuesShown());
  updateActions();
}

void Main_Window_Dev::onProgramShowOrder() {
  pageTabs().setOrderShown(!pageTabs().isOrderShown());
  updateActions();
}

void Main_Window_Dev::onProgramProgram_Left() {
  pageTabs().logicPage()->align(FB_Page_Edits::Edge::Left);
}

void Main_Window_Dev::onProgramTop() {
  pageTabs().logicPage()->align(FB_Page_Edits::Edge::Top);
}

void Main_Window_Dev::onProgramRight() {
  pageTabs().logicPage()->align(FB_Page_Edits::Edge::Right);
}

void Main_Window_Dev::onProgramBottom() {
  pageTabs().logicPage()->align(FB_Page_Edits::Edge::Bottom);
}

void Main_Window_Dev::onProgramRasterHorizontal() {
  pageTabs().logicPage()->distribute(Qt::Horizontal);
}

void Main_Window_Dev::onProgramRasterVertical() {
  pageTabs().logicPage()->distribute(Qt::Vertical);
}

void Main_Window_Dev::onProgramAlign_Raster() {
  pageTabs().logicPage()->alignToGrid();
}
