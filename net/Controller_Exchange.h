#pragma once

#include "net/Main_Network_Client.h"

#include <QByteArrayView>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

/// One thing that is done with the controller in several messages: sends, waits for the replies, ends once.
///
/// It ends with success, with the user's `cancel`, with the controller's refusal, without link at once with "Keine
/// Verbindung zur Steuerung", with a lost link the same, and with "Keine Antwort der Steuerung" when no reply that
/// belongs to it has come for `timeoutMs` and nothing more of what is sent went out. The end is told from the event
/// loop, never inside a delivery of the link, so who hears it may open a box. An exchange runs once; make a new one to
/// try again.
class Controller_Exchange : public QObject {
  Q_OBJECT

public:
  enum class End { Done, Cancelled, NoLink, NoAnswer, Refused, Failed };
  static constexpr int cTimeoutMs = 30'000;

  /// The client outlives the exchange.
  explicit Controller_Exchange(Main_Network_Client& client, QObject* parent = nullptr);
  ~Controller_Exchange() override;

  void setTimeout(int ms) { mTimeoutMs = ms; }
  /// Sends what begins it.
  void start();
  /// Gives up; an exchange that changes the controller tells it so.
  void cancel();
  [[nodiscard]] bool isRunning() const { return mState == State::Running; }
  [[nodiscard]] bool isFinished() const { return mState == State::Finished; }
  [[nodiscard]] End end() const { return mEnd; }
  /// German, for the user; empty after success and after `cancel`.
  [[nodiscard]] QString errorText() const { return mErrorText; }

signals:
  /// What is being done, and how far it is: `value` of `maximum`, 0 of 0 when that is not known. Who hears it may
  /// cancel the exchange, but deletes it only later.
  void progress(const QString& label, int value, int maximum);
  /// Once. The exchange may be deleted in it.
  void finished(Controller_Exchange::End end);

protected:
  virtual void begin() = 0;
  /// A message came; true when it belongs to this exchange, which restarts the timeout.
  virtual bool take(quint32 command, QByteArrayView payload) = 0;
  /// Before it ends otherwise than with success, the link perhaps still there.
  virtual void abort() {}

  [[nodiscard]] Main_Network_Client& client() const { return mClient; }
  /// These end the exchange when the link is not there.
  bool send(quint32 command);
  bool send(quint32 command, QByteArrayView payload);
  bool sendText(quint32 command, const QString& text);
  void succeed() { finish(End::Done, {}); }
  void fail(const QString& text) { finish(End::Failed, text); }
  void restartTimeout();
  /// While the user is asked no reply is waited for.
  void stopTimeout() { mTimer.stop(); }
  /// A text payload without its terminating zero byte.
  [[nodiscard]] static QString text(QByteArrayView payload);

private:
  enum class State { Idle, Running, Finished };
  void onTimeout();
  void finish(End end, const QString& text);
  void onNetworkRead(Network_Message* message, uchar* data);
  void onNetworkConnect(bool isConnected);

  Main_Network_Client& mClient;
  QTimer mTimer;
  int mTimeoutMs = cTimeoutMs;
  qint64 mToWrite = 0; ///< what the link had not sent when the timeout began
  QSet<quint32> mSent; ///< commands; a refusal of another one is not for this exchange
  State mState = State::Idle;
  End mEnd = End::Done;
  QString mErrorText;
};
