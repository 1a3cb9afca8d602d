#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class Session_State;

/// How the assistant's server stands, in the status bar: the port on which it listens, or that it cannot have the one
/// that is wanted, and while an assistant works that it does. Hidden until it is told of a server.
class Assistant_Status : public QWidget {
  Q_OBJECT

public:
  /// The state outlives it.
  explicit Assistant_Status(const Session_State& state, QWidget* parent = nullptr);

  /// The server listens on 127.0.0.1 and this port.
  void showListening(int port);
  /// It does not: another program has the port, or what else `error` says.
  void showFailed(int port, bool isTaken, const QString& error);
  /// "KI-Assistent: Port 8123"
  [[nodiscard]] QString text() const;
  /// How long an assistant is shown at work after its last tool call, so that quick calls are seen and do not flicker.
  void setHold(std::chrono::milliseconds hold) { mHold.setInterval(hold); }

protected:
  void changeEvent(QEvent* event) override;

private:
  void onToolCall(bool isRunning);
  void showState();
  void keepWidth();

  const Session_State& mState;
  QLabel* mIcon;
  QLabel* mText;
  QString mIdle; ///< what is shown while no assistant works
  QString mIdleTip;
  bool mIsListening = false;
  QTimer mHold; ///< runs behind a tool call
};
