#pragma once

#include "net/dialogs/Controller_Dialog.h"

#include <QList>

class Controller_Clock_Reader;
class Controller_Number_Panel;
class DB_Controller_Informations;
class DB_Network_Settings;
class QFormLayout;

/// What the connected controller tells of itself ("Steuerungsinformationen"): what it is, its network, its clock, its
/// number in a distributed project. Clock and numbers can be set.
class Dev_Controller_Dlg : public Controller_Dialog {
  Q_OBJECT

public:
  Dev_Controller_Dlg(const Controller_Access& access, QWidget* parent);

protected:
  void read() override;
  void updateState() override;

private:
  [[nodiscard]] QWidget* makeInformation();
  [[nodiscard]] QWidget* makeNetwork();
  [[nodiscard]] QWidget* makeClock();
  void showInformation(const DB_Controller_Informations& informations);
  void showNetwork(const DB_Network_Settings& network);
  void showClock();

  Controller_Clock_Reader* mReader;
  Controller_Number_Panel* mNumbers;
  QList<QLabel*> mInformation; ///< in the order of the rows
  QList<QLabel*> mNetwork;
  QLabel* mTime = nullptr;
  QLabel* mDifference = nullptr;
  QPushButton* mSetClock;
};
