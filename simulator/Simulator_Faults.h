#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// How a stand-in misbehaves on purpose. Empty: not at all.
///
/// A fault is written "KIND", "KIND=VALUE" or either with "@COMMAND" behind it, then it concerns messages of that
/// number alone. Times are in milliseconds.
///
///     bytes              one byte per segment
///     together=MS        all messages of so long in one segment
///     pause-header=MS    a pause inside the header
///     pause-payload=MS   a pause inside the payload
///     magic              a header with a wrong magic before the message
///     length-odd         a header whose padded length is no multiple of 16 before it
///     length-short       a header whose padded length is below its data length before it
///     length-huge        a header that announces more than 256 MB before it
///     garbage=BYTES      so many bytes without meaning before it
///     gap=MS             the time between the four above and the message; 0: in one segment; 60 unless told
///     silence            takes the connection and says nothing
///     close=BYTES        ends the connection when so many bytes were sent
///     refuse=COMMAND     refuses that request
///     mute=COMMAND       does nothing on that request
class Simulator_Faults {
public:
  enum class Kind {
    Bytes,
    Together,
    Pause_Header,
    Pause_Payload,
    Magic,
    Length_Odd,
    Length_Short,
    Length_Huge,
    Garbage,
    Gap,
    Silence,
    Close,
    Refuse,
    Mute,
  };

  /// False with a German error for a text that is no fault.
  bool add(const QString& text, QString* error = nullptr);
  void clear() {
    mFaults.clear();
    mHits = 0;
  }
  /// How often a fault concerned a message since they were cleared.
  [[nodiscard]] int hits() const { return mHits; }
  [[nodiscard]] bool isEmpty() const { return mFaults.isEmpty(); }

  [[nodiscard]] bool has(Kind kind) const { return value(kind, 0).has_value(); }
  /// What the fault says for a message of that number; nothing where it does not concern it.
  [[nodiscard]] std::optional<int> value(Kind kind, quint32 command) const;
  [[nodiscard]] bool isRefused(quint32 command) const { return concerns(Kind::Refuse, command); }
  [[nodiscard]] bool isMute(quint32 command) const { return concerns(Kind::Mute, command); }

  /// A piece of what is sent, and the time before it.
  struct Piece {
    QByteArray mBytes;
    int mDelayMs = 0;
    bool mIsAlone = false; ///< in a segment of its own
  };
  /// The message with everything that is wrong about it, in the order in which it is sent.
  [[nodiscard]] QList<Piece> pieces(quint32 command, const QByteArray& message) const;

private:
  struct Fault {
    Kind mKind = Kind::Bytes;
    int mValue = 0;
    quint32 mCommand = 0; ///< 0: of every number
  };
  [[nodiscard]] bool concerns(Kind kind, quint32 command) const;
  [[nodiscard]] QByteArray before(quint32 command) const;

  QList<Fault> mFaults;
  mutable int mHits = 0;
};
