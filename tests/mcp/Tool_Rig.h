#pragma once

#include "mcp/MCP_Dispatcher.h"
#include "mcp/MCP_Studio.h"
#include "net/Controller_Link.h"
#include "tests/db/Session_Rig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>

#include <utility>
#include <vector>

/// A studio without window: a project session, and a link when the test gives it one.
class Windowless_Studio : public MCP_Studio {
public:
  explicit Windowless_Studio(Project_Session& session) : mSession(session) {}

  [[nodiscard]] Project_Session& session() override { return mSession; }
  [[nodiscard]] bool hasWindow() const override { return mHasWindow; }
  Edit_Result saveProject() override {
    return mSession.save() == Project_Session::Save_Result::Saved ? Edit_Result::done()
                                                                  : Edit_Result::refused(mSession.lastError());
  }
  Edit_Result openProject(const QString& path) override {
    return (!mSession.isOpen() || saveProject()) && mSession.open(path) ? Edit_Result::done()
                                                                        : Edit_Result::refused(mSession.lastError());
  }
  Edit_Result saveProjectAs(const QString& path) override {
    return mSession.saveAs(path) == Project_Session::Save_Result::Saved ? Edit_Result::done()
                                                                        : Edit_Result::refused(mSession.lastError());
  }
  Edit_Result createProject(const QString& path, const New_Project::Options& options) override {
    return mSession.create(path, options) ? Edit_Result::done() : Edit_Result::refused(mSession.lastError());
  }
  Edit_Result showPage(const QUuid& page) override {
    mShownPage = page;
    return Edit_Result::done();
  }
  [[nodiscard]] Controller_Link* link() override { return mLink; }
  Edit_Result connectLink() override {
    QString error = QStringLiteral("ohne Verbindung");
    return mLink && mLink->connectToSelected(&error) ? Edit_Result::done() : Edit_Result::refused(error);
  }
  void disconnectLink() override {
    if (mLink) {
      mLink->disconnectLink();
    }
  }
  Edit_Result setPlayMode(bool on, bool /*force*/) override {
    mSession.state().setOperatingMode(on);
    return Edit_Result::done();
  }
  [[nodiscard]] bool isPlayPending() const override { return false; }
  Edit_Result writeProject() override { return Edit_Result::refused(QStringLiteral("ohne Verbindung")); }
  [[nodiscard]] bool isWritingProject() const override { return false; }
  [[nodiscard]] bool isRecordingDialogOpen() const override { return mIsRecordingDialogOpen; }
  void runOutsideReading(QObject* receiver, const std::function<void()>& what) override {
    mQueued.emplace_back(receiver, what);
    endReading(mIsReading);
  }
  /// What has been put off runs, unless the link is being read on.
  void endReading(bool isReading = false) {
    mIsReading = isReading;
    for (const auto& [receiver, what] : isReading ? Queue() : std::exchange(mQueued, {})) {
      if (receiver) {
        what();
      }
    }
  }

  Project_Session& mSession;
  Controller_Link* mLink = nullptr;
  QUuid mShownPage;
  bool mHasWindow = true;
  bool mIsRecordingDialogOpen = false;
  bool mIsReading = false; ///< the link

private:
  using Queue = std::vector<std::pair<QPointer<QObject>, std::function<void()>>>;
  Queue mQueued;
};

/// Calls tools as an assistant does, on a project of its own.
class Tool_Rig : public Session_Rig {
public:
  explicit Tool_Rig(MCP_Catalogue catalogue = MCP_Catalogue())
      : mStudio(mSession),
        mDispatcher(mStudio, mState, std::move(catalogue)) {
    if (!create()) {
      qFatal("no project");
    }
  }

  /// The tool's object; its member `error` is the failure.
  QJsonObject call(const QString& tool, const QJsonObject& arguments = {}) {
    const QJsonObject result = mDispatcher.callTool(tool, arguments);
    const QJsonObject content = result.value(QStringLiteral("content")).toArray().first().toObject();
    QJsonObject object = QJsonDocument::fromJson(content.value(QStringLiteral("text")).toString().toUtf8()).object();
    // Both tell the same, for every tool.
    if (result.value(QStringLiteral("isError")).toBool() != object.contains(QStringLiteral("error"))) {
      qFatal("isError and error differ");
    }
    return object;
  }
  QString errorOf(const QString& tool, const QJsonObject& arguments = {}) {
    return call(tool, arguments).value(QStringLiteral("error")).toString();
  }

  Windowless_Studio mStudio;
  MCP_Dispatcher mDispatcher;
};
