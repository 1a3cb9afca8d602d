#pragma once

#include "db/DB_Connections.h"
#include "net/DB_Discovery_Answer.h"

#include <QWizard>

class App_Settings;
class Assistant_Name_Page;
class Assistant_Search_Page;
class Assistant_Test_Page;
class Controller_Link;
class Project_Session;
struct Network_Message;

/// Leads to a connection: finds the controllers of the local networks or takes an address, tests it, asks for a name,
/// and adds the connection to the project, selected, as one undo step. Searching ends with the dialog,
/// which closes with the project.
class Dev_Connection_Assistant : public QWizard {
  Q_OBJECT

public:
  /// How controllers are searched; other values are for tests.
  struct Search {
    quint16 mPort = DB_Discovery_Answer::cPort;
    int mTickMs = 500;
  };
  /// Session, settings and link outlive the assistant.
  Dev_Connection_Assistant(Project_Session& session, App_Settings& settings, Controller_Link& link, QWidget* parent);
  Dev_Connection_Assistant(Project_Session& session, App_Settings& settings, Controller_Link& link, Search search,
                           QWidget* parent);
  ~Dev_Connection_Assistant() override;

  void accept() override;

private slots:
  void onNetworkRead(Network_Message* message, uchar* data);
  void onNetworkConnect(bool isConnected, const DB_Connections::ITEM& connection);

private:
  void onPageChanged();

  Project_Session& mSession;
  Assistant_Search_Page* mSearch;
  Assistant_Test_Page* mTest;
  Assistant_Name_Page* mName;
};
