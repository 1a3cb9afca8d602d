#include "db/Project_Edits.h"

#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Project_Edits", text);
}

template <class Page>
void setCaption(DB_Page_List<Page>& list, Undo_Adapter& undo, Edit_Scope& scope, const QUuid& guid,
                const QString& caption) {
  scope.modified(undo, guid);
  list.changePage(guid, [&caption](Page& page) { page.mCaption = caption; });
}

} // namespace

Edit_Result Project_Edits::checkPageName(const QString& caption) {
  const qsizetype length = DB_Text::singleLine(caption).size();
  if (length == 0) {
    return Edit_Result::refused(tr("Eine Seite braucht einen Namen."));
  }
  if (length > cNameLimit) {
    return Edit_Result::refused(tr("Der Name hat %1 Zeichen, erlaubt sind höchstens %2.").arg(length).arg(cNameLimit));
  }
  return Edit_Result::done();
}

Edit_Result Project_Edits::renamePage(Project_Session& session, const QUuid& guid, const QString& caption) {
  ProjectDatabase& database = session.database();
  if (Edit_Result result = checkPageName(caption); !result) {
    return result;
  }
  if (!database.mFbPages.page(guid) && !database.mWidgetPages.page(guid)) {
    return Edit_Result::refused(tr("Die Seite gibt es nicht mehr."));
  }
  Edit_Scope scope(session.history(), tr("Seite umbenennen"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  if (database.mFbPages.page(guid)) {
    setCaption(database.mFbPages, session.fbPageUndo(), scope, guid, DB_Text::singleLine(caption));
  } else {
    setCaption(database.mWidgetPages, session.widgetPageUndo(), scope, guid, DB_Text::singleLine(caption));
  }
  return Edit_Result::done();
}

Edit_Result Project_Edits::setGeoposition(Project_Session& session, double latitude, double longitude) {
  // Written so that what is no number is refused too.
  if (!(latitude >= -DB_Project::cLatitudeMax && latitude <= DB_Project::cLatitudeMax)) {
    return Edit_Result::refused(tr("Die geographische Breite muss zwischen -90 und 90 Grad liegen."));
  }
  if (!(longitude >= -DB_Project::cLongitudeMax && longitude <= DB_Project::cLongitudeMax)) {
    return Edit_Result::refused(tr("Die geographische Länge muss zwischen -180 und 180 Grad liegen."));
  }
  Edit_Scope scope(session.history(), tr("Geographische Position"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  scope.modified(session.projectUndo(), Single_Record_Undo::id());
  ProjectDatabase& database = session.database();
  database.mProject.mGeopos_Latitude = latitude;
  database.mProject.mGeopos_Longitude = longitude;
  emit database.recordChanged(DB_Table::Project);
  return Edit_Result::done();
}
