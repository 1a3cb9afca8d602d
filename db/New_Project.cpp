#include "db/New_Project.h"

#include "base/Version.h"
#include "db/Connection_Defaults.h"
#include "db/ProjectDatabase.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("New_Project", text);
}

QString orElse(const QString& text, const QString& fallback) {
  return text.isEmpty() ? fallback : text;
}

void addVisuPage(ProjectDatabase& database, const QString& caption, DB_Widget_Page::Orientation orientation, int width,
                 int height) {
  auto page = std::make_unique<DB_Widget_Page>();
  page->mCaption = caption;
  page->mOrientation = orientation;
  page->mWidth = width;
  page->mHeight = height;
  database.mWidgetPages.appendPage(std::move(page));
}

} // namespace

void New_Project::fill(ProjectDatabase& database, const Options& options) {
  database.mProject.mVersion = Version::studio();
  database.mProject.mProjectId = QUuid::createUuid();

  auto logicPage = std::make_unique<DB_FB_Page>();
  logicPage->mCaption = orElse(options.mFbPageCaption, tr("Programm 1"));
  database.mFbPages.appendPage(std::move(logicPage));

  addVisuPage(database, tr("Visu hoch"), DB_Widget_Page::Orientation::Portrait, DB_Widget_Page::cShortSide,
              DB_Widget_Page::cLongSide);
  addVisuPage(database, tr("Visu quer"), DB_Widget_Page::Orientation::Landscape, DB_Widget_Page::cLongSide,
              DB_Widget_Page::cShortSide);

  DB_Connections::ITEM connection;
  connection.mName = orElse(options.mConnectionName, tr("Steuerung"));
  connection.mUser = Connection_Defaults::user();
  connection.mPassword = Connection_Defaults::password();
  connection.mAddress = orElse(options.mConnectionIp, QStringLiteral("172.31.1.100"));
  database.mConnections.mItems = {connection};
  database.mConnections.mSelected = 0;
}
