#include "simulator/Simulator_Scripts.h"

#include "simulator/Simulator_Controller.h"

#include <utility>

namespace {

constexpr qsizetype cMostEvents = 10'000; // that wait; what comes on top is lost
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
  connect(&controller, &Simulator_Controller::told, this, [this](const DB_Address_Network_Telegram& telegram) {
    later([telegram](Simulator_Script& script) { script.callEvent(telegram); });
  });
  mLater.setSingleShot(true);
  connect(&mLater, &QTimer::timeout, this, [this] {
    const QList<std::function<void(Simulator_Script&)>> events = std::exchange(mEvents, {});
    for (const auto& event : events) {
      for (Simulator_Script* const script : std::as_const(mScripts)) {
        event(*script);
      }
    }
  });
}

/// Not while a script runs, and in rounds: scripts that answer each other for ever leave the rest its turn.
void Simulator_Scripts::later(std::function<void(Simulator_Script&)> event) {
  if (!mScripts.isEmpty() && mEvents.size() < cMostEvents) {
    mEvents.append(std::move(event));
    mLater.start(0);
  }
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
  connect(script, &Simulator_Script::globalChanged, this, [this](const QString& name, const QString& value) {
    later([name, value](Simulator_Script& other) { other.callGlobalChanged(name, value); });
  });
  // It hears what it does itself, too.
  mScripts.insert(block, script);
  QString error = script->run(text);
  if (!script->isRunning()) {
    mScripts.remove(block);
    script->deleteLater();
    return error;
  }
  mTimer.start();
  return {};
}

void Simulator_Scripts::clear() {
  for (Simulator_Script* const script : std::as_const(mScripts)) {
    script->deleteLater();
  }
  mScripts.clear();
  mEvents.clear();
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
