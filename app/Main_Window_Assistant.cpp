// What the main window's assistant server works on.
#include "app/Assistant_Status.h"
#include "app/Assistant_Studio.h"
#include "app/Main_Window_Dev.h"
#include "app/Project_Lifecycle.h"
#include "app/Window_Link.h"
#include "base/App_Settings.h"
#include "mcp/MCP_Server.h"
#include "ui/Dev_Statistic_Dlg.h"

#include <QStatusBar>

void Main_Window_Dev::startAssistant(int port) {
  mAssistant =
      new Assistant_Studio({mSession, mState, *mLifecycle, *mLink, [this](const QUuid& page) { showPage(page); },
                            [this] { return findChild<Dev_Statistic_Dlg*>() != nullptr; }},
                           this);
  if (port <= 0 || isKiosk()) {
    return;
  }
  mServer = new MCP_Server(this);
  const auto follow = [this] {
    mServer->setDebug(mSettings.isOn(Setting::McpDebug));
    mServer->setChecksOrigin(mSettings.isOn(Setting::McpCheckOrigin));
  };
  connect(&mSettings, &App_Settings::changed, mServer, follow);
  follow();
  auto* const status = new Assistant_Status(mState);
  statusBar()->addPermanentWidget(status);
  if (mServer->start(quint16(port), *mAssistant, mState)) {
    status->showListening(port);
  } else {
    status->showFailed(port, mServer->serverError() == QAbstractSocket::AddressInUseError, mServer->errorString());
  }
}
