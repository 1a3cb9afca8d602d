#include "net/dialogs/Dev_Connection_Assistant.h"

#include "base/App_Settings.h"
#include "db/Connection_Edits.h"
#include "db/Project_Session.h"
#include "net/Controller_Link.h"
#include "net/dialogs/Assistant_Name_Page.h"
#include "net/dialogs/Assistant_Search_Page.h"
#include "net/dialogs/Assistant_Test_Page.h"
#include "net/dialogs/Connection_Test_View.h"
#include "ui/Message_Box.h"

namespace {
constexpr QSize cSize(640, 460);
enum Page { cSearchPage, cTestPage, cNamePage };
} // namespace

Dev_Connection_Assistant::Dev_Connection_Assistant(Project_Session& session, App_Settings& settings,
                                                   Controller_Link& link, QWidget* parent)
    : Dev_Connection_Assistant(session, settings, link, Search(), parent) {}

Dev_Connection_Assistant::Dev_Connection_Assistant(Project_Session& session, App_Settings& settings,
                                                   Controller_Link& link, Search search, QWidget* parent)
    : QWizard(parent),
      mSession(session),
      mSearch(new Assistant_Search_Page(settings.text(Setting::DiscoveryAddresses), search.mPort, search.mTickMs)),
      mTest(new Assistant_Test_Page(link)),
      mName(new Assistant_Name_Page) {
  setWindowTitle(tr("Verbindungsassistent"));
  setWizardStyle(QWizard::ClassicStyle);
  setOptions(QWizard::NoBackButtonOnStartPage);
  setButtonText(QWizard::BackButton, tr("&Zurück"));
  setButtonText(QWizard::NextButton, tr("&Weiter"));
  setButtonText(QWizard::FinishButton, tr("&Übernehmen"));
  setButtonText(QWizard::CancelButton, tr("&Abbrechen"));
  setPage(cSearchPage, mSearch);
  setPage(cTestPage, mTest);
  setPage(cNamePage, mName);
  resize(cSize);

  Main_Network_Client& client = link.client();
  connect(&client, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), this,
          &Dev_Connection_Assistant::onNetworkRead);
  connect(&client, &Main_Network_Client::onProcessNetworkConnect, this, &Dev_Connection_Assistant::onNetworkConnect);
  connect(&session, &Project_Session::aboutToClose, this, &QDialog::reject);
  connect(this, &QWizard::currentIdChanged, this, &Dev_Connection_Assistant::onPageChanged);
  connect(this, &QDialog::finished, this, [this] {
    mSearch->stopSearch();
    mTest->view().cancel();
  });
}

Dev_Connection_Assistant::~Dev_Connection_Assistant() {
  mTest->view().cancel(); // while there is somebody to hear the client
}

void Dev_Connection_Assistant::onPageChanged() {
  DB_Connections::ITEM connection = mSearch->connection();
  switch (currentId()) {
  case cSearchPage:
    mTest->view().cancel();
    break;
  case cTestPage:
    mTest->view().setConnection(connection);
    break;
  case cNamePage:
    if (connection.mName.isEmpty()) {
      connection.mName = Connection_Edits::proposal(mSession.database().mConnections).mName;
    }
    mName->setConnection(connection);
    break;
  default:
    break;
  }
}

void Dev_Connection_Assistant::onNetworkRead(Network_Message* message, uchar* data) {
  mTest->view().onNetworkRead(message, data);
}

void Dev_Connection_Assistant::onNetworkConnect(bool isConnected, const DB_Connections::ITEM& connection) {
  mTest->view().onNetworkConnect(isConnected, connection);
}

void Dev_Connection_Assistant::accept() {
  if (const Edit_Result edit = Connection_Edits::add(mSession, mName->connection(), true); !edit) {
    Message_Box::showMessage(this, edit.mError);
    return;
  }
  QDialog::accept();
}
