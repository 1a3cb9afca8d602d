#pragma once

#include <QObject>

class QSocketNotifier;

/// Ends the program's event loop in order when the system asks it to end (SIGTERM, SIGINT), where there are such
/// signals. One object, for as long as the program runs.
class Simulator_Signals : public QObject {
  Q_OBJECT

public:
  explicit Simulator_Signals(QObject* parent = nullptr);

private:
  QSocketNotifier* mNotifier = nullptr;
};
