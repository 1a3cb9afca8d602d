#include "app/Window_Link.h"

#include "app/Lifecycle_Dialogs.h"
#include "app/Link_Status.h"
#include "app/Program_Play.h"
#include "app/Project_Write.h"
#include "app/Status_Progress.h"
#include "db/Project_Session.h"
#include "fb/FB_Block_Editors.h"
#include "net/Controller_Values.h"
#include "net/Script_Debug.h"
#include "net/dialogs/Controller_Commands.h"
#include "net/dialogs/Dev_Connect_Progress_Dlg.h"

#include <QMainWindow>
#include <QStatusBar>
#include <QTimer>

#include <utility>

using State = Controller_Link::State;

namespace {

constexpr int cPatienceMs = 400;

} // namespace

Window_Link::Window_Link(const Parts& parts)
    : QObject(&parts.mWindow),
      mParts(parts),
      mLink(new Controller_Link(parts.mSession, this)),
      mValues(new Controller_Values(parts.mSession, *mLink, this)),
      mScripts(new Script_Debug(mLink->client(), this)),
      mPlay(new Program_Play(parts.mSession, *mLink, this)),
      mWrite(new Project_Write(parts.mSession, *mLink, this)),
      mCommands(new Controller_Commands(parts.mSession, parts.mSettings, *mLink, parts.mWindow, nullptr, this)),
      mStatus(new Link_Status),
      mProgress(new Status_Progress) {
  mStatus->setVisible(!parts.mIsKiosk); // which does not connect
  parts.mWindow.statusBar()->addPermanentWidget(mProgress);
  parts.mWindow.statusBar()->addPermanentWidget(mStatus);
  connectLink();
  connectScripts();
  connectPlay();
  connectWrite();
}

void Window_Link::connectLink() {
  connect(mLink, &Controller_Link::stateChanged, this, &Window_Link::onStateChanged);
  connect(mLink, &Controller_Link::refused, this, &Window_Link::onRefused);
  connect(mLink, &Controller_Link::lost, this, &Window_Link::onLost);
  connect(mCommands, &Controller_Commands::restarting, this, [this] { mIsAwaited = true; });
  connect(&mParts.mSession, &Project_Session::aboutToClose, this, &Window_Link::end);
}

void Window_Link::connectScripts() {
  FB_Block_Editors& editors = mParts.mEditors;
  connect(&editors, &FB_Block_Editors::runWanted, mScripts, &Script_Debug::run);
  connect(&editors, &FB_Block_Editors::keepAliveWanted, mScripts, &Script_Debug::watch);
  connect(mScripts, &Script_Debug::ran, &editors, &FB_Block_Editors::showRun);
  connect(mScripts, &Script_Debug::lineWritten, &editors, &FB_Block_Editors::addTrace);
  connect(mScripts, &Script_Debug::variableTold, &editors, &FB_Block_Editors::setVariable);
}

void Window_Link::connectPlay() {
  connect(mPlay, &Program_Play::progress, mProgress, &Status_Progress::showProgress);
  connect(mPlay, &Program_Play::progress, this, &Window_Link::changed);
  connect(mPlay, &Program_Play::ended, mProgress, &QWidget::hide);
  connect(mPlay, &Program_Play::ended, this, &Window_Link::changed);
  connect(mPlay, &Program_Play::info, this, &Window_Link::info);
  connect(mPlay, &Program_Play::failed, this, &Window_Link::tell);
  connect(mProgress, &Status_Progress::cancelled, mPlay, &Program_Play::cancel);
}

void Window_Link::connectWrite() {
  connect(mWrite, &Project_Write::progress, mProgress, &Status_Progress::showProgress);
  connect(mWrite, &Project_Write::progress, this, &Window_Link::changed);
  connect(mWrite, &Project_Write::ended, mProgress, &QWidget::hide);
  connect(mWrite, &Project_Write::ended, this, &Window_Link::changed);
  connect(mWrite, &Project_Write::info, this, &Window_Link::info);
  connect(mProgress, &Status_Progress::cancelled, mWrite, &Project_Write::cancel);
}

bool Window_Link::isSending() const {
  return mPlay->isRunning() || mWrite->isRunning();
}

void Window_Link::onRefused(const QString& text) {
  mIsAwaited = false;
  if (std::exchange(mIsQuiet, false)) {
    emit info(text);
  } else if (!Dev_Connect_Progress_Dlg::isShown()) { // else it tells
    tell(text);
  }
}

bool Window_Link::dialQuietly(QString* error) {
  mIsAwaited = false;
  mIsQuiet = mLink->connectToSelected(error);
  return mIsQuiet;
}

void Window_Link::toggle() {
  if (isWanted()) {
    end();
    emit info(tr("Verbindung zur Steuerung getrennt."));
    return;
  }
  mIsAwaited = mIsQuiet = false;
  QString error;
  if (!mLink->connectToSelected(&error)) {
    tell(error);
  } else if (!mParts.mIsKiosk) {
    // A controller that answers at once is not worth a window.
    QTimer::singleShot(cPatienceMs, this, [this] { Dev_Connect_Progress_Dlg::follow(*mLink, &mParts.mWindow); });
  }
}

void Window_Link::end() {
  mPlay->cancel();
  mWrite->cancel();
  mIsLost = mIsQuiet = false;
  mLink->disconnectLink();
  onStateChanged(); // also when only the mark of a lost one goes
}

std::optional<int> Window_Link::controllerNumber() const {
  const int number = std::as_const(mParts.mSession).database().mControllerInformations.mNumber;
  return isOnline() && number > 0 ? std::optional(number) : std::nullopt;
}

QString Window_Link::stateText() const {
  return mStatus->text();
}

bool Window_Link::mayEnd() {
  if (!isSending() && !mCommands->isBusy()) {
    return true;
  }
  return mParts.mDialogs.askYesNo(tr("Mit der Steuerung läuft noch ein Vorgang. Ihn abbrechen?"));
}

void Window_Link::shutDown() {
  for (const QObject* const sender : std::initializer_list<const QObject*>{mLink, mPlay, mWrite, mCommands, mScripts}) {
    disconnect(sender, nullptr, nullptr, nullptr);
  }
  disconnect(&mParts.mSession, nullptr, this, nullptr);
  mCommands->closeAll();
  mPlay->cancel();
  mWrite->cancel();
  mLink->disconnectLink();
}

void Window_Link::onStateChanged() {
  const State state = mLink->state();
  if (state != State::Offline) {
    mConnection = mLink->connectionText();
    mIsLost = false;
  }
  mStatus->showState(state, mConnection, mIsLost);
  mParts.mEditors.setConnected(state == State::Online);
  if (state == State::Online) {
    mIsQuiet = false;
    emit info(tr("Verbunden mit %1.").arg(mConnection));
  }
  emit changed();
}

void Window_Link::onLost() {
  if (isWanted()) {
    return; // dialled again before this was told
  }
  if (std::exchange(mIsAwaited, false)) {
    emit info(tr("Die Steuerung startet neu. F11 verbindet wieder."));
    return;
  }
  mIsLost = true;
  onStateChanged();
  // No box: it would come in the middle of whatever the user does, and keep F11 from working.
  emit info(tr("Die Verbindung zu %1 ist verloren. F11 verbindet wieder.").arg(mConnection));
}

void Window_Link::tell(const QString& text) {
  if (mParts.mIsKiosk) {
    emit info(text);
  } else {
    mParts.mDialogs.showMessage(text);
  }
}
