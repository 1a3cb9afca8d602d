#pragma once

#include "db/DB_Connections.h"

#include <QDialog>

class Connection_Test_View;
class Controller_Link;

/// "Teste Verbindung": tries a connection and shows the steps; closing ends the test.
class Dev_Connection_Test_Dlg : public QDialog {
  Q_OBJECT

public:
  /// The link outlives the dialog. The test begins when the dialog is shown.
  Dev_Connection_Test_Dlg(Controller_Link& link, const DB_Connections::ITEM& connection, QWidget* parent);

  [[nodiscard]] Connection_Test_View& view() { return *mView; }

private:
  Connection_Test_View* mView;
};
