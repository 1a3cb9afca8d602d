#include "net/Connection_Test.h"

#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Controller_Records.h"
#include "net/Main_Network_Client.h"

#include <utility>

namespace {

const QString cOk = QStringLiteral("ok;");

} // namespace

Connection_Test::Connection_Test(Controller_Link& link, DB_Connections::ITEM connection, Options options,
                                 QObject* parent)
    : QObject(parent),
      mLink(link),
      mClient(link.client()),
      mConnection(std::move(connection)),
      mOptions(options) {
  mTimer.setSingleShot(true);
  connect(&mTimer, &QTimer::timeout, this, [this] {
    const QString error = mIsAsked ? QString() : mClient.lastErrorText();
    settle(Outcome::NoAnswer, error.isEmpty() ? tr("keine Antwort") : error);
  });
}

Connection_Test::~Connection_Test() {
  cancel();
}

void Connection_Test::start() {
  cancel();
  mLink.lend();
  begin(mConnection.isRelay() ? Phase::Relay : Phase::Controller);
}

void Connection_Test::cancel() {
  if (isRunning()) {
    abandon();
    if (mLink.isLent()) {
      mLink.disconnectLink();
    }
  }
}

void Connection_Test::abandon() {
  mTimer.stop();
  mPhase = Phase::Idle;
  ++mRound;
}

void Connection_Test::begin(Phase phase) {
  mPhase = phase;
  mAttempt = 0;
  nextAttempt();
}

void Connection_Test::nextAttempt() {
  ++mAttempt;
  ++mRound;
  mIsAsked = false;
  mIsSettled = false;
  const QString what = mPhase == Phase::Relay ? tr("Verbinde zu VPN Server") : tr("Verbinde zur Steuerung");
  emit step(mAttempt > 1 ? what + tr(" (Versuch %1/%2)").arg(mAttempt).arg(mOptions.mAttempts) : what);
  mTimer.start(mOptions.mAttemptMs);
  mClock.start();
  // Each dialling begins with a false; it finds nothing asked and means nothing.
  // A relay service that the user has named is the one to ask; the built-in one knows nothing of its names.
  if (mPhase == Phase::Relay && mConnection.mRelayHost.isEmpty()) {
    mClient.connectToRelay(&mConnection);
  } else {
    mClient.connectToController(&mConnection);
  }
}

void Connection_Test::ask() {
  mIsAsked = true;
  if (mPhase == Phase::Relay) {
    mClient.sendText(Controller_Command::Relay_Dns_Check, mConnection.mRelayDns);
  } else if (mConnection.isRelay()) {
    mClient.sendText(Controller_Command::Relay_Check, mConnection.mRelayDns);
  } else {
    mClient.sendText(Controller_Command::Connection_Check, mClient.host());
  }
}

void Connection_Test::onNetworkConnect(bool isConnected, const DB_Connections::ITEM&) {
  if (isRunning() && !mLink.isLent()) {
    abandon();
    mClient.queue(this, [this] { emit interrupted(); });
  }
  if (!isRunning() || mIsSettled) {
    return;
  }
  if (isConnected) {
    ask();
  } else if (mIsAsked) {
    settle(Outcome::NoAnswer, tr("die Gegenstelle hat die Verbindung beendet"));
  }
}

void Connection_Test::onNetworkRead(Network_Message* message, uchar* data) {
  if (!isRunning() || !mIsAsked || mIsSettled) {
    return;
  }
  const QByteArray payload(reinterpret_cast<const char*>(data), data ? message->mDataLength : 0);
  const qsizetype end = payload.indexOf('\0');
  const QString text = QString::fromUtf8(end < 0 ? payload : payload.first(end));
  const quint32 ofController =
      mConnection.isRelay() ? Controller_Command::Relay_Check_Reply : Controller_Command::Connection_Check_Reply;
  if (message->mCommand == Controller_Command::Refused) {
    DB_Refusal refusal;
    refusal.setData(payload);
    settle(Outcome::Wrong, refusal.mReason);
  } else if (mPhase == Phase::Relay && message->mCommand == Controller_Command::Relay_Dns_Reply) {
    const bool isRight = text.startsWith(cOk);
    settle(isRight ? Outcome::Right : Outcome::Wrong, isRight ? text.mid(cOk.size()) : text);
  } else if (mPhase == Phase::Controller && message->mCommand == ofController) {
    const QString where = tr("%1:%2 nach %3 ms").arg(mClient.host()).arg(mClient.port()).arg(mClock.elapsed());
    settle(text.isEmpty() ? Outcome::Right : Outcome::Wrong, text.isEmpty() ? where : text);
  }
}

void Connection_Test::settle(Outcome outcome, const QString& detail) {
  mIsSettled = true;
  mTimer.stop();
  const auto next = [this, outcome, detail, round = mRound] {
    if (round == mRound) {
      proceed(outcome, detail);
    }
  };
  mClient.queue(this, next);
}

QString Connection_Test::resultText(Outcome outcome, const QString& detail) const {
  const bool isRight = outcome == Outcome::Right;
  const QString what = mPhase == Phase::Relay ? (isRight ? tr("DNS Abfrage ok, ") : tr("Fehler DNS Abfrage"))
                                              : (isRight ? tr("Verbindung DNS ok, ") : tr("Fehler Verbindung"));
  return isRight || detail.isEmpty() ? what + detail : what + QStringLiteral(": ") + detail;
}

void Connection_Test::proceed(Outcome outcome, const QString& detail) {
  if (outcome == Outcome::NoAnswer && mAttempt < mOptions.mAttempts) {
    nextAttempt();
    return;
  }
  const int round = mRound;
  emit result(resultText(outcome, detail), outcome == Outcome::Right);
  if (round != mRound) {
    return; // who heard it has ended the test
  }
  if (outcome == Outcome::Right && mPhase == Phase::Relay) {
    begin(Phase::Controller);
  } else {
    finish(outcome == Outcome::Right);
  }
}

void Connection_Test::finish(bool isOk) {
  cancel();
  emit finished(isOk);
}
