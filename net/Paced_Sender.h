#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class Main_Network_Client;

/// Hands messages to the link one after another as the socket gets rid of them. What is not sent yet waits with its
/// owner, so that stopping stops it, and what `moved` tells really went out.
class Paced_Sender : public QObject {
  Q_OBJECT

public:
  /// Sends the next message; false when none is left.
  using Send_Next = std::function<bool()>;
  /// No further message while the socket holds so many bytes.
  static constexpr qint64 cMostWaiting = 256LL * 1024;

  /// The client outlives the sender.
  explicit Paced_Sender(Main_Network_Client& client, QObject* parent = nullptr);

  void start(Send_Next next);
  void stop();

signals:
  /// Bytes went out since the last time.
  void moved();

private:
  void step();

  Main_Network_Client& mClient;
  QTimer mTimer;
  Send_Next mNext;
  bool mIsExhausted = false; ///< no message is left; the last ones may still wait in the socket
  qint64 mWaiting = 0;       ///< bytes in the socket when it was looked at last
};
