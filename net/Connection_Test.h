#pragma once

#include "db/DB_Connections.h"

#include <QByteArrayView>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class Controller_Link;
class Main_Network_Client;
struct Network_Message;

/// Tries a connection without logging on: through the relay service first whether that knows the controller's DNS name
/// (command 1000) and then reaches it (1008), directly whether the controller answers command 9. The service is the
/// connection's own, or the built-in one when it names none. It borrows the client of the link and leaves it
/// disconnected; it ends when the link is told to connect or disconnect meanwhile.
///
/// Its owner connects the client's signals to the two slots. Its own signals come from the event loop.
class Connection_Test : public QObject {
  Q_OBJECT

public:
  struct Options {
    int mAttempts = 3;      ///< of each step
    int mAttemptMs = 5'000; ///< from dialling to the reply
  };

  /// The link outlives the test.
  Connection_Test(Controller_Link& link, DB_Connections::ITEM connection, Options options, QObject* parent = nullptr);
  ~Connection_Test() override;

  /// A link that stands is given up.
  void start();
  /// Ends without a word and disconnects the client.
  void cancel();
  [[nodiscard]] bool isRunning() const { return mPhase != Phase::Idle; }

public slots:
  void onNetworkConnect(bool isConnected, const DB_Connections::ITEM& connection);
  void onNetworkRead(Network_Message* message, uchar* data);

signals:
  /// What is being tried: "Verbinde zur Steuerung (Versuch 2/3)".
  void step(const QString& text);
  /// What came of it.
  void result(const QString& text, bool isOk);
  /// Somebody else has taken the client.
  void interrupted();
  /// Once for each start, not after `cancel` and not when it was interrupted.
  void finished(bool isOk);

private:
  enum class Phase { Idle, Relay, Controller };
  void abandon();
  enum class Outcome { Right, Wrong, NoAnswer };
  void begin(Phase phase);
  void nextAttempt();
  /// The outcome of the attempt; what follows is done from the event loop.
  void settle(Outcome outcome, const QString& detail);
  void proceed(Outcome outcome, const QString& detail);
  void finish(bool isOk);
  void ask();
  [[nodiscard]] QString resultText(Outcome outcome, const QString& detail) const;

  Controller_Link& mLink;
  Main_Network_Client& mClient;
  DB_Connections::ITEM mConnection;
  Options mOptions;
  QTimer mTimer;
  QElapsedTimer mClock;
  Phase mPhase = Phase::Idle;
  int mAttempt = 0;
  int mRound = 0; ///< of dialling: what was queued in an earlier one is void
  bool mIsAsked = false;
  bool mIsSettled = false;
};
