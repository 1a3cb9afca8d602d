#pragma once

#include "net/Network_Message.h"

#include <QByteArray>

class QIODevice;

/// Takes whole messages out of a stream of bytes. Reads no more than the message it is at, and takes no memory for a
/// payload before its header is found possible and all of its bytes are there.
class Message_Reader {
public:
  enum class Step {
    Message,   ///< `message` and `payload` hold one
    Missing,   ///< bytes are missing; call again when there are more
    OutOfStep, ///< no possible header; all that the device held has been dropped
  };

  [[nodiscard]] Step next(QIODevice& device);
  [[nodiscard]] Network_Message& message() { return mMessage; }
  /// Deciphered, with its padding; empty without one.
  [[nodiscard]] QByteArray& payload() { return mPayload; }

  /// A header has come and its payload has not.
  [[nodiscard]] bool isPending() const { return mPending.mMagic != 0; }
  /// Payload bytes of the pending header, 0 without one.
  [[nodiscard]] qint64 pendingLength() const { return mPending.mPaddedLength; }
  /// The next byte begins a header.
  void clear() { mPending = {}; }

private:
  Network_Message mPending; ///< magic 0: none
  Network_Message mMessage;
  QByteArray mPayload;
};
