#include "fb/FB_Page_List_Commands.h"

#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "db/Project_Session.h"
#include "fb/FB_Page_Properties_Dlg.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "ui/Message_Box.h"

FB_Page_List_Commands::FB_Page_List_Commands(Project_Session& session, const App_Settings& settings, QWidget* window)
    : QObject(window),
      mSession(session),
      mSettings(settings),
      mWindow(window) {}

bool FB_Page_List_Commands::tell(const Edit_Result& result) {
  if (!result) {
    emit refused(result.mError);
  }
  return static_cast<bool>(result);
}

bool FB_Page_List_Commands::mayAsk(const QUuid& page) {
  if (mSession.state().operatingMode()) {
    emit refused(Session_State::operatingModeRefusal());
    return false;
  }
  return mSession.database().mFbPages.page(page) != nullptr;
}

void FB_Page_List_Commands::onNewPage(const QUuid& after) {
  const bool isPage = mSession.database().mFbPages.page(after) != nullptr;
  const auto result = FB_Page_List_Edits::create(mSession, {}, isPage ? after : QUuid());
  if (tell(result)) {
    emit pageMade(result.mPage);
  }
}

void FB_Page_List_Commands::onDuplicate(const QUuid& page) {
  const auto result = FB_Page_List_Edits::duplicate(mSession, page, mSettings.isOn(Setting::FBCopyPasteKeepIO));
  if (tell(result)) {
    emit pageMade(result.mPage);
  }
}

void FB_Page_List_Commands::onRemove(const QUuid& page) {
  if (!mayAsk(page)) {
    return;
  }
  const DB_FB_Page& record = *mSession.database().mFbPages.page(page);
  const qsizetype count = record.mChildren.size();
  const QString question =
      count == 1 ? tr("Seite \"%1\" mit 1 Baustein löschen?").arg(record.mCaption)
                 : tr("Seite \"%1\" mit %2 Bausteinen löschen?").arg(record.mCaption, QString::number(count));
  if (Message_Box::askYesNo(mWindow, question)) {
    tell(FB_Page_List_Edits::remove(mSession, page));
  }
}

void FB_Page_List_Commands::onProperties(const QUuid& page) {
  if (!mayAsk(page)) {
    return;
  }
  FB_Page_Properties_Dlg dialog(mSession, page, mWindow);
  const FB_Page_List_Edits::Properties shown = dialog.properties();
  while (dialog.exec() == QDialog::Accepted) {
    // An assistant may have worked on the page, and on what may be edited at all.
    const FB_Page_List_Edits::Properties now = FB_Page_List_Edits::properties(mSession, page);
    const Edit_Result result =
        FB_Page_List_Edits::setProperties(mSession, page, FB_Page_List_Edits::merged(shown, dialog.properties(), now));
    if (result || !mSession.database().mFbPages.page(page)) {
      tell(result);
      return;
    }
    Message_Box::showMessage(mWindow, result.mError); // what was typed is still there
  }
}

void FB_Page_List_Commands::onMove(const QUuid& page, qsizetype place) {
  tell(FB_Page_List_Edits::move(mSession, page, place));
}
