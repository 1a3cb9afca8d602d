#pragma once

#include <QObject>
#include <QString>

/// What the running session is doing right now: whether the operating mode is on and whether an assistant's tool call
/// runs. One object lives as long as the process; edit scopes and message boxes ask it.
class Session_State : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

  /// The state that all parts of one process share.
  [[nodiscard]] static Session_State& process();

  /// While the operating mode ("Bedienmodus") is on, nothing in the project may be edited.
  [[nodiscard]] bool operatingMode() const { return mOperatingMode; }
  void setOperatingMode(bool on);

  /// "Nur möglich wenn Bedienmodus ausgeschaltet ist."
  [[nodiscard]] static QString operatingModeRefusal();

  /// Times are milliseconds since 1970, UTC. Beginning empties the suppressed message.
  void beginToolCall(qint64 nowMs);
  void endToolCall(qint64 nowMs);
  [[nodiscard]] bool toolCallRunning() const { return mToolCallRunning; }
  /// Of the running or last tool call; 0 before the first.
  [[nodiscard]] qint64 toolCallStartMs() const { return mToolCallStartMs; }
  /// Of the last tool call that has ended; 0 before the first.
  [[nodiscard]] qint64 toolCallEndMs() const { return mToolCallEndMs; }

  /// The assistant counts as active during a tool call and for 15,000 ms after the end of the last one.
  [[nodiscard]] bool assistantActive(qint64 nowMs) const;

  /// The last text that a message box would have shown during the running or last tool call; empty when there was none.
  [[nodiscard]] QString suppressedMessage() const { return mSuppressedMessage; }
  void setSuppressedMessage(const QString& text) { mSuppressedMessage = text; }

signals:
  void operatingModeChanged(bool on);
  void toolCallRunningChanged(bool isRunning);

private:
  bool mOperatingMode = false;
  bool mToolCallRunning = false;
  qint64 mToolCallStartMs = 0;
  qint64 mToolCallEndMs = 0;
  QString mSuppressedMessage;
};
