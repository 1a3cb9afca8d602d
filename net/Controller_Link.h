#pragma once

#include "db/DB_Controller_Informations.h"
#include "net/Main_Network_Client.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class Project_Session;

/// The link as the user sees it: dials with a connection of the project, logs on with its user and password once the
/// socket is connected, and tells how it stands. Owns the client.
///
///     Offline -> Dialling -> LoggingOn -> Online
///
/// While it is dialling the client repeats what fails. A refused log-on, and one that the controller does not answer in
/// time, end the link and tell why. A link to the relay service itself is none to a controller and needs no log-on.
class Controller_Link : public QObject {
  Q_OBJECT

public:
  enum class State { Offline, Dialling, LoggingOn, Online };

  /// The session outlives the link; what the controller tells of itself goes into its database.
  explicit Controller_Link(Project_Session& session, QObject* parent = nullptr);

  /// Dials with the project's selected connection. False with a German `error` when there is none.
  bool connectToSelected(QString* error = nullptr);
  void connectTo(const DB_Connections::ITEM& connection);
  void disconnectLink();
  /// Disconnects, and leaves the client to who tests a connection: the link neither follows it nor logs on until it is
  /// told to connect or to disconnect.
  void lend();
  [[nodiscard]] bool isLent() const { return mIsLent; }
  void setLogOnTimeout(int ms) { mLogOnTimer.setInterval(ms); }

  [[nodiscard]] State state() const { return mState; }
  [[nodiscard]] bool isOnline() const { return mState == State::Online; }
  [[nodiscard]] Main_Network_Client& client() { return *mClient; }
  /// Name and address of the connection in use: "Demo-Steuerung (127.0.0.1)"; empty while offline.
  [[nodiscard]] QString connectionText() const;
  /// Failed attempts since it began to dial, and why the last one failed: German, empty when none did.
  [[nodiscard]] int failedAttempts() const { return mFailedAttempts; }
  [[nodiscard]] QString lastDialError() const { return mLastDialError; }

signals:
  void stateChanged(Controller_Link::State state);
  /// An attempt to dial failed; the next one follows. Comes from the event loop.
  void dialFailed(const QString& text, int attempt);
  /// A log-on failed and the link was ended; German, for the user. Comes from the event loop, so a box may be shown.
  void refused(const QString& text);
  /// A link that stood was lost, not ended by the user. Comes from the event loop.
  void lost();

private:
  void setState(State state);
  void onConnect(bool isConnected);
  void onRead(Network_Message* message, uchar* data);
  void onError();
  void logOn();
  void refuse(const QString& text);
  void end();
  /// Later, unless the link is another one by then.
  void queue(const std::function<void()>& what);

  Project_Session& mSession;
  Main_Network_Client* mClient;
  QTimer mLogOnTimer;
  DB_Connections::ITEM mConnection; ///< in use, or the last one
  State mState = State::Offline;
  QString mLastDialError;
  int mFailedAttempts = 0;
  bool mIsEnding = false; ///< by the user
  bool mIsLent = false;
  quint64 mTurn = 0; ///< counts what the user began and ended
};
