// What the main window does for the help: which page belongs to what the user is at.
#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "db/Project_Session.h"
#include "fb/FB_Dev_New_Control.h"
#include "fb/FB_Page.h"
#include "fb/help/FB_Help_Window.h"
#include "fb/model/FB_Help.h"
#include "fb/model/FB_Types.h"
#include "fb/properties/FB_Dev_Properties.h"
#include "ui/Address_View.h"

#include <QApplication>

namespace {

bool holdsKeyboard(const QWidget& part) {
  const QWidget* const focus = QApplication::focusWidget();
  return focus && (focus == &part || part.isAncestorOf(focus));
}

} // namespace

/// Of the catalogue's entry or the part that has the keyboard, else of the block that is selected.
QString Main_Window_Dev::contextPage() {
  const auto* const shown = isProjectShown() ? pageTabs().logicPage() : nullptr;
  if (const std::optional<int> type = catalogue().currentType(); type && holdsKeyboard(catalogue())) {
    return FB_Types::helpFileName(*type);
  }
  if (holdsKeyboard(addressView())) {
    return QString::fromLatin1(FB_Help::cGroupAddresses);
  }
  const QList<QUuid> blocks = shown ? shown->selectedBlocks() : QList<QUuid>();
  const ProjectDatabase& database = std::as_const(mSession).database();
  const DB_FB_Control* const block = blocks.isEmpty() ? nullptr : database.mFbPages.child(blocks.last());
  if (block) {
    return FB_Types::helpFileName(block->mType);
  }
  if (holdsKeyboard(properties())) {
    return QString::fromLatin1(FB_Help::cProperties);
  }
  return QString::fromLatin1(shown ? FB_Help::cLogicPages : FB_Help::cOverview);
}

FB_Help_Window& Main_Window_Dev::help() {
  if (!mHelp) {
    mHelp = new FB_Help_Window(mSettings, this);
  }
  return *mHelp;
}

void Main_Window_Dev::showHelp(const QString& page) {
  help().showPage(page);
}

void Main_Window_Dev::onHelp_Context() {
  showHelp(contextPage());
}

void Main_Window_Dev::onHelp_Browser() {
  help().showContents();
}

void Main_Window_Dev::onHelp_Search() {
  help().showSearch();
}
