#include "simulator/Simulator_Scripts.h"

#include "simulator/Simulator_Controller.h"

namespace {

constexpr int cTickMs = 100;

struct Period {
  int mTicks;
  const char* mFunction;
};
constexpr Period cPeriods[] = {
    {1, "onProcess"},         {1, "onTimerEvent100ms"}, {10, "onTimerEvent1s"},    {100, "onTimerEvent10s"},
    {300, "onTimerEvent30s"}, {600, "onTimerEvent1m"},  {36000, "onTimerEvent1h"},
};

} // namespace

Simulator_Scripts::Simulator_Scripts(Simulator_Controller& controller, QObject* parent)
    : QObject(parent),
      mController(controller) {
  mTimer.setInterval(cTickMs);
  connect(&mTimer, &QTimer::timeout, this, &Simulator_Scripts::onTick);
  connect(&controller, &Simulator_Controller::programStarted, this, &Simulator_Scripts::clear);
  // Later: a script's own write must not call it while it runs.
  connect(
      &controller, &Simulator_Controller::told, this,
      [this](const DB_Address_Network_Telegram& telegram) {
        for (Simulator_Script* const script : std::as_const(mScripts)) {
          script->callEvent(telegram);
        }
      },
      Qt::QueuedConnection);
}

QString Simulator_Scripts::run(const QUuid& block, const QString& text) {
  if (Simulator_Script* const before = mScripts.take(block)) {
    before->deleteLater();
  }
  DB_FB_Control record = mController.program().mScripts.value(block);
  record.mGuid = block;
  auto* const script = new Simulator_Script(mController, mGlobals, record, this);
  connect(script, &Simulator_Script::wrote, this, &Simulator_Scripts::wrote);
  connect(script, &Simulator_Script::watched, this, &Simulator_Scripts::watched);
  connect(
      script, &Simulator_Script::globalChanged, this,
      [this](const QString& name, const QString& value) {
        for (Simulator_Script* const other : std::as_const(mScripts)) {
          other->callGlobalChanged(name, value);
        }
      },
      Qt::QueuedConnection);
  QString error = script->run(text);
  if (!script->isRunning()) {
    script->deleteLater();
    return error;
  }
  mScripts.insert(block, script);
  mTimer.start();
  return {};
}

void Simulator_Scripts::clear() {
  for (Simulator_Script* const script : std::as_const(mScripts)) {
    script->deleteLater();
  }
  mScripts.clear();
  mTimer.stop();
}

void Simulator_Scripts::onTick() {
  ++mTicks;
  for (const Period& period : cPeriods) {
    if (mTicks % period.mTicks == 0 && !mController.isStopped()) {
      callAll(period.mFunction);
    }
  }
}

void Simulator_Scripts::callAll(const char* function) {
  const QList<Simulator_Script*> scripts = mScripts.values();
  for (Simulator_Script* const script : scripts) {
    script->call(function);
  }
}
