#pragma once

#include "app/Assistant_Studio.h"
#include "app/Main_Window_Dev.h"
#include "base/App_Settings.h"
#include "mcp/MCP_Dispatcher.h"
#include "simulator/Simulator_Server.h"
#include "tests/db/Session_Rig.h"

#include <QJsonArray>
#include <QJsonDocument>

/// A studio with its window and without a project, a stand-in controller beside it, and the tools of an assistant.
class Assistant_Rig : public Session_Rig {
public:
  Assistant_Rig() : mServer(options()) {
    if (!mServer.listen()) {
      qFatal("no port to listen on");
    }
    mWindow.show();
  }

  /// The tool's object; its member `error` is the failure.
  QJsonObject call(const QString& tool, const QJsonObject& arguments = {}) {
    const QJsonObject result = mDispatcher.callTool(tool, arguments);
    const QString text = result.value("content").toArray().first().toObject().value("text").toString();
    return QJsonDocument::fromJson(text.toUtf8()).object();
  }
  /// Where the stand-in listens, as a connection names it.
  [[nodiscard]] QString controllerAddress() const { return QStringLiteral("127.0.0.1:%1").arg(mServer.port()); }

private:
  static Simulator_Options options() {
    Simulator_Options options;
    options.mPort = 0;
    options.mDiscovers = false;
    options.mRestartMs = 20;
    return options;
  }

public:
  Simulator_Server mServer;
  App_Settings mSettings{path(QStringLiteral("studio.ini"))};
  Main_Window_Dev mWindow{mSession, mSettings, mState, false};
  MCP_Dispatcher mDispatcher{mWindow.assistant(), mState};
};
