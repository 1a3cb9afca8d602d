#pragma once

#include "simulator/Simulator_Script.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QTimer>
#include <QUuid>

#include <functional>

/// The scripts that run on the stand-in, one for each block: those that a studio handed over, until another program
/// starts. Calls what they have at its time.
class Simulator_Scripts : public QObject {
  Q_OBJECT

public:
  /// The controller outlives it.
  explicit Simulator_Scripts(Simulator_Controller& controller, QObject* parent = nullptr);

  /// In place of the one that the block has. What is wrong with it; empty when it runs.
  [[nodiscard]] QString run(const QUuid& block, const QString& text);
  void clear();

signals:
  void wrote(const QUuid& block, const QString& line);
  void watched(const QUuid& block, const QString& name, const QString& value);

private:
  void onTick();
  void callAll(const char* function);
  void later(std::function<void(Simulator_Script&)> event);

  Simulator_Controller& mController;
  Simulator_Script::Globals mGlobals;
  QHash<QUuid, Simulator_Script*> mScripts;
  QTimer mTimer;
  QTimer mLater;
  QList<std::function<void(Simulator_Script&)>> mEvents; ///< of which the scripts have not heard
  int mTicks = 0;                                        ///< of 100 ms
};
