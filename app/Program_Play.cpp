#include "app/Program_Play.h"

#include "base/Session_State.h"
#include "db/Project_Session.h"
#include "net/Controller_Link.h"
#include "net/Program_Transfer.h"

#include <utility>

Program_Play::Program_Play(Project_Session& session, Controller_Link& link, QObject* parent)
    : QObject(parent),
      mSession(session),
      mLink(link) {
  connect(&session, &Project_Session::aboutToClose, this, &Program_Play::cancel);
}

void Program_Play::toggle() {
  Session_State& state = mSession.state();
  if (isRunning()) {
    cancel();
  } else if (state.operatingMode()) {
    leave();
  } else {
    mIsForced = mIsQuiet = false;
    enter();
  }
}

void Program_Play::setOn(bool isOn, bool isForced) {
  if (isOn && !isRunning()) {
    mIsForced = isForced;
    mIsQuiet = true;
    enter();
  } else if (!isOn) {
    cancel();
    leave();
  }
}

void Program_Play::leave() {
  Session_State& state = mSession.state();
  if (state.operatingMode()) {
    state.setOperatingMode(false);
    emit info(tr("Bedienmodus ausgeschaltet.")); // in the place of what was told of it
  }
}

void Program_Play::enter() {
  if (mLink.isOnline()) {
    mWasSent = false;
    start();
    return;
  }
  mSession.state().setOperatingMode(true);
  emit info(tr("Bedienmodus ohne Verbindung: Das Programm läuft nicht auf der Steuerung. F11 verbindet."));
}

void Program_Play::cancel() {
  if (mTransfer) {
    mTransfer->cancel();
  }
}

void Program_Play::start() {
  mSession.history().commit();
  mSent = mSession.history().state();
  mTransfer = new Program_Transfer(mLink.client(), mSession, {.mForce = mIsForced}, this);
  mTransfer->setTimeout(mTimeoutMs);
  connect(mTransfer, &Controller_Exchange::progress, this, &Program_Play::progress);
  connect(mTransfer, &Controller_Exchange::finished, this, &Program_Play::onFinished);
  emit progress(tr("Programm vergleichen"), 0, 0);
  mTransfer->start();
}

void Program_Play::onFinished(Controller_Exchange::End end) {
  Program_Transfer* const transfer = std::exchange(mTransfer, nullptr);
  const QString error = transfer->errorText();
  mWasSent = mWasSent || transfer->wasSent();
  const bool isOwn = transfer->controllerProject().mProject.mProjectId == mSession.database().mProject.mProjectId;
  transfer->deleteLater();
  if (end == Controller_Exchange::End::Done && mSession.isOpen()) {
    mSession.history().commit();
    if (mSession.history().state() != mSent) {
      start(); // it was edited meanwhile
      return;
    }
    emit ended();
    mSession.state().setOperatingMode(true);
    // What fits into the status bar of a small window.
    emit info(!isOwn ? tr("Bedienmodus: Das Programm läuft, die Einstellungen dieses Projekts fehlen der Steuerung: "
                          "Bootprojekt erzeugen.")
              : mWasSent ? tr("Bedienmodus: Die Steuerung führt das neue Programm aus.")
                         : tr("Bedienmodus: Die Steuerung führt dieses Programm bereits aus."));
    emit settled({});
    return;
  }
  emit ended();
  if (end == Controller_Exchange::End::Cancelled) {
    const QString text = tr("Übertragung des Programms abgebrochen. Der Bedienmodus bleibt ausgeschaltet.");
    emit info(text);
    emit settled(text);
  } else if (mSession.state().operatingMode()) {
    tellFailure(tr("Das Programm ist nicht auf der Steuerung: %1").arg(error));
  } else {
    tellFailure(tr("Das Programm ist nicht auf der Steuerung, der Bedienmodus bleibt ausgeschaltet: %1").arg(error));
  }
}

void Program_Play::tellFailure(const QString& text) {
  emit settled(text);
  if (mIsQuiet) {
    emit info(text);
  } else {
    emit failed(text);
  }
}
