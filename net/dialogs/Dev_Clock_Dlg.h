#pragma once

#include "net/dialogs/Controller_Dialog.h"

class Controller_Clock_Reader;
class QDateTimeEdit;

/// The controller's clock ("Uhrzeit") beside this computer's, and setting it.
class Dev_Clock_Dlg : public Controller_Dialog {
  Q_OBJECT

public:
  Dev_Clock_Dlg(const Controller_Access& access, QWidget* parent);

protected:
  void read() override;
  void updateState() override;

private:
  void showClocks();
  void set(const std::function<qint64()>& time);

  Controller_Clock_Reader* mReader;
  QLabel* mController;
  QLabel* mComputer;
  QLabel* mDifference;
  QDateTimeEdit* mChosen;
  QPushButton* mTakeOver;
  QPushButton* mSet;
};
