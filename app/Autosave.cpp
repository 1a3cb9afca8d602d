#include "app/Autosave.h"

#include "app/Project_Lifecycle.h"
#include "base/Session_State.h"

#include <QGuiApplication>

Autosave::Autosave(Project_Session& session, const Session_State& state, const Project_Lifecycle& lifecycle,
                   QObject* parent)
    : Autosave(session, state, lifecycle, Times(), parent) {}

Autosave::Autosave(Project_Session& session, const Session_State& state, const Project_Lifecycle& lifecycle,
                   Times times, QObject* parent)
    : QObject(parent),
      mSession(session),
      mState(state),
      mLifecycle(lifecycle),
      mTimes(times),
      mTimer(this) {
  mTimer.setSingleShot(true);
  connect(&mTimer, &QTimer::timeout, this, &Autosave::onTimeout);
  connect(&session.history(), &History::changed, this, &Autosave::onChanged);
  connect(&session, &Project_Session::opened, this, [this] {
    mIsFailureTold = false;
    onChanged();
  });
  connect(&session, &Project_Session::closed, &mTimer, &QTimer::stop);
  onChanged();
}

void Autosave::setEnabled(bool on) {
  mIsEnabled = on;
  onChanged();
}

void Autosave::onChanged() {
  if (!mIsEnabled || !mSession.isAutosaveDue()) {
    mTimer.stop();
  } else if (!mTimer.isActive()) {
    mTimer.start(mTimes.mInterval);
  }
}

bool Autosave::isInterrupting() const {
  return mLifecycle.isBusy() || mState.toolCallRunning() || !mSession.mayAutosave() ||
         QGuiApplication::mouseButtons() != Qt::NoButton;
}

void Autosave::onTimeout() {
  if (!mSession.isAutosaveDue()) {
    return;
  }
  if (isInterrupting()) {
    mTimer.start(mTimes.mRetry);
    return;
  }
  if (mSession.autosave()) {
    mIsFailureTold = false;
    return;
  }
  mTimer.start(mTimes.mInterval);
  if (!mIsFailureTold) {
    mIsFailureTold = true;
    emit info(tr("Automatisches Sichern ist nicht möglich: %1").arg(mSession.lastError()));
  }
}
