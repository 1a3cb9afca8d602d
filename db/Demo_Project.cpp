#include "db/Demo_Project.h"

#include "db/Connection_Defaults.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace {

QString text(const QJsonObject& object, QLatin1StringView key) {
  return object.value(key).toString();
}

int number(const QJsonObject& object, QLatin1StringView key) {
  return object.value(key).toInt();
}

QJsonArray array(const QJsonObject& object, QLatin1StringView key) {
  return object.value(key).toArray();
}

using namespace Qt::Literals::StringLiterals;

void addSubGroup(Address_Tree& tree, const QUuid& middleKey, const QJsonObject& from) {
  auto group = std::make_unique<DB_Address_Sub_Group>();
  group->mMiddleKey = middleKey;
  group->mNumber = number(from, "sub"_L1);
  group->mName = text(from, "name"_L1);
  group->mDescription = text(from, "description"_L1);
  group->mDpt = Datapoint_Id::parse(text(from, "dpt"_L1)).value_or(Datapoint_Id());
  tree.add(std::move(group));
}

void addAddresses(Address_Tree& tree, const QJsonArray& mainGroups) {
  tree.beginChange();
  for (const auto& mainValue : mainGroups) {
    const QJsonObject fromMain = mainValue.toObject();
    auto main = std::make_unique<DB_Address_MainGroup>();
    main->mNumber = number(fromMain, "main"_L1);
    main->mName = text(fromMain, "name"_L1);
    const QUuid mainKey = tree.add(std::move(main))->mKey;
    for (const auto& middleValue : array(fromMain, "groups"_L1)) {
      const QJsonObject fromMiddle = middleValue.toObject();
      auto middle = std::make_unique<DB_Address_Middle_Group>();
      middle->mMainKey = mainKey;
      middle->mNumber = number(fromMiddle, "middle"_L1);
      middle->mName = text(fromMiddle, "name"_L1);
      const QUuid middleKey = tree.add(std::move(middle))->mKey;
      for (const auto& subValue : array(fromMiddle, "groups"_L1)) {
        addSubGroup(tree, middleKey, subValue.toObject());
      }
    }
  }
  tree.endChange();
}

void addPages(ProjectDatabase& database, const QJsonObject& from) {
  database.mFbPages.clear();
  for (const auto& value : array(from, "logicPages"_L1)) {
    const QJsonObject fromPage = value.toObject();
    auto page = std::make_unique<DB_FB_Page>();
    page->mCaption = text(fromPage, "caption"_L1);
    page->mComment = text(fromPage, "comment"_L1);
    database.mFbPages.appendPage(std::move(page));
  }
  database.mWidgetPages.clear();
  for (const auto& value : array(from, "visuPages"_L1)) {
    const QJsonObject fromPage = value.toObject();
    auto page = std::make_unique<DB_Widget_Page>();
    page->mCaption = text(fromPage, "caption"_L1);
    if (text(fromPage, "orientation"_L1) == "portrait"_L1) {
      page->mOrientation = DB_Widget_Page::Orientation::Portrait;
      std::swap(page->mWidth, page->mHeight);
    }
    database.mWidgetPages.appendPage(std::move(page));
  }
}

} // namespace

QString Demo_Project::defaultPath() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/Demo.zpro");
}

bool Demo_Project::build(Project_Session& session, const QString& path, const Fill& logic, QString& error) {
  QFile file(QStringLiteral(":/demo/demo.json"));
  QJsonParseError parseError{};
  const QJsonDocument document =
      file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll(), &parseError) : QJsonDocument();
  if (!document.isObject()) {
    error = QCoreApplication::translate("Demo_Project", "Der Text des Demo-Projekts ist nicht lesbar: %1")
                .arg(parseError.errorString());
    return false;
  }
  const QJsonObject demo = document.object();
  const QJsonObject connection = demo.value("connection"_L1).toObject();
  New_Project::Options options;
  options.mConnectionName = text(connection, "name"_L1);
  options.mConnectionIp = text(connection, "address"_L1);
  QDir().mkpath(QFileInfo(path).absolutePath());
  if (!session.create(path, options)) {
    error = session.lastError();
    return false;
  }
  ProjectDatabase& database = session.database();
  database.mProject.mAuthor = text(demo, "author"_L1);
  database.mProject.mDescription = text(demo, "description"_L1);
  database.mProject.mGeopos_Latitude = demo.value("latitude"_L1).toDouble();
  database.mProject.mGeopos_Longitude = demo.value("longitude"_L1).toDouble();
  addAddresses(database.mAddresses, array(demo, "addresses"_L1));
  addPages(database, demo);
  if (!logic(database, demo, error)) {
    session.close();
    return false;
  }
  if (session.save() != Project_Session::Save_Result::Saved) {
    error = session.lastError();
    session.close();
    return false;
  }
  return true;
}

void Demo_Project::completeConnection(ProjectDatabase& database) {
  for (DB_Connections::ITEM& connection : database.mConnections.mItems) {
    if (connection.mPassword.isEmpty() && connection.mAddress == "127.0.0.1"_L1) {
      connection.mUser = Connection_Defaults::user();
      connection.mPassword = Connection_Defaults::password();
    }
  }
}
