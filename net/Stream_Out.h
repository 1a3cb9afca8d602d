#pragma once

#include "net/Byte_Stream.h"

#include <functional>

/// The messages of an outgoing stream, one after another: its announcement, its pieces and, where there is one, the
/// command that ends it. Knows no socket.
class Stream_Out {
public:
  struct Commands {
    quint32 mBegin = 0;
    quint32 mData = 0;
    quint32 mEnd = 0; ///< 0 for none
  };
  /// False when the link does not take the message.
  using Send = std::function<bool(quint32 command, QByteArrayView payload)>;

  Stream_Out(Commands commands, QByteArray bytes, const QString& name = {});

  /// Sends the next message; false when none is left, or `send` failed.
  bool sendNext(const Send& send);
  /// The link has taken all of it.
  [[nodiscard]] bool isSent() const;
  /// Of the bytes, while so many of what was sent still wait in the socket: 0..100.
  [[nodiscard]] int percent(qint64 waiting) const;
  [[nodiscard]] const DB_Stream_Begin& announced() const { return mAnnounced; }

private:
  enum class At { Begin, Data, End };
  Commands mCommands;
  QByteArray mBytes;
  DB_Stream_Begin mAnnounced;
  At mAt = At::Begin;
  qsizetype mSent = 0;
};
