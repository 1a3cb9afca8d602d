#pragma once

#include "db/DB_Connections.h"

#include <QByteArrayView>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class Main_Network_Client;
struct Network_Message;

/// Tries a connection without logging on: through the relay service first whether that knows the controller's DNS name
/// (commands 1000, then 1008 at the controller's end), directly whether the controller answers command 9. It takes the
/// client for itself and leaves it disconnected.
///
/// Its owner connects the client's signals to the two slots. Its own signals come from the event loop.
class Connection_Test : public QObject {
  Q_OBJECT

public:
  struct Options {
    int mAttempts = 3;      ///< of each step
    int mAttemptMs = 5'000; ///< from dialling to the reply
  };

  /// The client outlives the test.
  Connection_Test(Main_Network_Client& client, DB_Connections::ITEM connection, Options options,
                  QObject* parent = nullptr);
  ~Connection_Test() override;

  /// What the client does otherwise ends.
  void start();
  /// Ends without a word and disconnects the client.
  void cancel();
  /// Ends without a word, because somebody else has taken the client.
  void abandon();
  [[nodiscard]] bool isRunning() const { return mPhase != Phase::Idle; }

public slots:
  void onNetworkConnect(bool isConnected, const DB_Connections::ITEM& connection);
  void onNetworkRead(Network_Message* message, uchar* data);

signals:
  /// What is being tried: "Verbinde zur Steuerung (Versuch 2/3)".
  void step(const QString& text);
  /// What came of it.
  void result(const QString& text, bool isOk);
  /// Once for each start, not after `cancel`.
  void finished(bool isOk);

private:
  enum class Phase { Idle, Relay, Controller };
  enum class Outcome { Right, Wrong, NoAnswer };
  void begin(Phase phase);
  void nextAttempt();
  /// The outcome of the attempt; what follows is done from the event loop.
  void settle(Outcome outcome, const QString& detail);
  void proceed(Outcome outcome, const QString& detail);
  void finish(bool isOk);
  void ask();
  [[nodiscard]] QString resultText(Outcome outcome, const QString& detail) const;

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
