#pragma once

#include <QObject>
#include <QTimer>

class Simulator_Controller;

/// Gives the addresses of the program new values, one after another, as the devices of a building would: switches
/// toggle, temperatures and other measures drift, counters count.
class Simulator_Cycle : public QObject {
  Q_OBJECT

public:
  /// The controller outlives it.
  explicit Simulator_Cycle(Simulator_Controller& controller, QObject* parent = nullptr);

  /// Milliseconds from one telegram to the next; 0 for none.
  void setPeriod(int ms);

private:
  void step();

  Simulator_Controller& mController;
  QTimer mTimer;
  qsizetype mNext = 0;
  int mRound = 0;
};
