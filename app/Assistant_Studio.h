#pragma once

#include "mcp/MCP_Studio.h"

#include <functional>

class Project_Lifecycle;
class Project_Session;
class QWidget;
class Session_State;
class Window_Link;

/// The studio as an assistant's tools see it: the window's own commands, without their questions. While the user is in
/// the middle of something (a dialog, a menu, something on the mouse) the project is not replaced by another one.
class Assistant_Studio : public MCP_Studio {
  Q_OBJECT

public:
  /// What it passes tools on to; all of it outlives it.
  struct Parts {
    Project_Session& mSession;
    Session_State& mState;
    Project_Lifecycle& mLifecycle;
    Window_Link& mLink;
    std::function<void(const QUuid& page)> mShowPage;
    std::function<bool()> mIsRecordingDialogOpen;
  };
  /// `window` outlives it, too.
  explicit Assistant_Studio(Parts parts, QWidget* window);

  [[nodiscard]] Project_Session& session() override { return mParts.mSession; }
  [[nodiscard]] bool hasWindow() const override;
  Edit_Result saveProject() override;
  Edit_Result openProject(const QString& path) override;
  Edit_Result saveProjectAs(const QString& path) override;
  Edit_Result createProject(const QString& path, const New_Project::Options& options) override;
  Edit_Result showPage(const QUuid& page) override;
  [[nodiscard]] Controller_Link* link() override;
  Edit_Result connectLink() override;
  void disconnectLink() override;
  Edit_Result setPlayMode(bool on, bool force) override;
  [[nodiscard]] bool isPlayPending() const override;
  Edit_Result writeProject() override;
  [[nodiscard]] bool isWritingProject() const override;
  [[nodiscard]] bool isRecordingDialogOpen() const override;
  void runOutsideReading(QObject* receiver, const std::function<void()>& what) override;

private:
  using Operation = std::function<bool()>;
  [[nodiscard]] Edit_Result run(const Operation& operation);
  [[nodiscard]] Edit_Result replace(const Operation& operation);
  [[nodiscard]] Edit_Result reopen();
  [[nodiscard]] QString reason() const;

  Parts mParts;
  const QWidget* mWindow;
};
