#pragma once

#include "net/Network_Message.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// Cuts the bytes of a connection, in whatever pieces they come, into whole deciphered messages. A header that is none
/// drops everything that has come until then. Pure, no socket.
class Simulator_Frame_Reader {
public:
  struct Message {
    quint32 mCommand = 0;
    QByteArray mPayload; ///< without what fills it up to whole blocks
  };

  /// A payload longer than this makes `isTooLong`, before memory is taken for it.
  void setMostPayload(quint32 bytes) { mMostPayload = bytes; }
  void append(QByteArrayView bytes) { mBytes.append(bytes); }
  /// The next whole message; nothing while more must come.
  [[nodiscard]] std::optional<Message> next();
  [[nodiscard]] bool isTooLong() const { return mPending && mPending->mPaddedLength > mMostPayload; }
  /// Bytes thrown away since the beginning because a header was none.
  [[nodiscard]] qint64 dropped() const { return mDropped; }

private:
  void forgetTaken();

  QByteArray mBytes;
  qsizetype mTaken = 0; ///< of these bytes
  std::optional<Network_Message> mPending;
  quint32 mMostPayload = Network_Message::cMostPadded;
  qint64 mDropped = 0;
};
