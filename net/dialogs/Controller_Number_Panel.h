#pragma once

#include "net/dialogs/Exchange_Runner.h"
#include "net/dialogs/Partner_Model.h"

#include <QGroupBox>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class Request_Queue;
class Result_List;

/// The number of the controller among those that run the project together ("Verteiltes Projekt"), and the numbers of
/// its partners: shown, set, cleared.
class Controller_Number_Panel : public QGroupBox {
  Q_OBJECT

public:
  /// Queue and runner outlive the panel.
  Controller_Number_Panel(const Controller_Access& access, Request_Queue& queue, Exchange_Runner& runner);
  ~Controller_Number_Panel() override;

  /// Adds the requests to the queue.
  void read();
  void setUsable(bool isUsable);

signals:
  /// Numbers were changed; the text says how. What is shown is no longer true.
  void changed(const QString& text);

private:
  [[nodiscard]] QLayout* makeOwn();
  [[nodiscard]] QLayout* makePartners();
  [[nodiscard]] int chosenNumber() const;
  [[nodiscard]] const Partner_Row* partner() const;
  void updateState();
  void run(const Exchange_Runner::Request& request, const QString& done);
  void onSet();
  void onClear();
  void onSetPartner();
  void onClearPartner();

  Controller_Access mAccess;
  Request_Queue& mQueue;
  Exchange_Runner& mRunner;
  Partner_Model mModel;
  bool mIsUsable = false;
  int mNumber = 0;
  QLabel* mOwn;
  QComboBox* mChoice; ///< from the project's list
  QSpinBox* mTyped;   ///< in place of it, where the project has none
  QPushButton* mSet;
  QPushButton* mClear;
  Result_List* mPartners;
  QPushButton* mSetPartner;
  QPushButton* mClearPartner;
};
