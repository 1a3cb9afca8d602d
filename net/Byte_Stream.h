#pragma once

#include "db/DB_Data_Base.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

/// What a stream begins with.
class DB_Stream_Begin : public DB_Record<DB_Stream_Begin> {
public:
  void fields(DB_Fields& fields) override;
  qint64 mSize = 0; ///< bytes of all messages that follow
  QString mSha256;  ///< of those bytes, 64 hexadecimal digits
  QString mName;    ///< what the bytes are, for files; may be empty
};

/// Bytes that are longer than one message: a message that announces them, then messages of at most `cChunk` bytes until
/// the announced number has come. Pure, no socket.
class Byte_Stream {
public:
  static constexpr qsizetype cChunk = qsizetype(64) * 1024;
  static constexpr qint64 cMost = 1024LL * 1024 * 1024; ///< more is refused

  [[nodiscard]] static DB_Stream_Begin announce(QByteArrayView bytes, const QString& name = {});
  /// The pieces in their order; none of no bytes.
  [[nodiscard]] static QList<QByteArrayView> chunks(QByteArrayView bytes);

  /// Takes the announcement; false with a German error when it is none or too long.
  [[nodiscard]] bool begin(QByteArrayView announcement, QString* error = nullptr);
  /// Takes the next piece; false with a German error when it is more than announced, or the last and the digest is
  /// another, or nothing was announced.
  [[nodiscard]] bool take(QByteArrayView chunk, QString* error = nullptr);
  [[nodiscard]] bool isComplete() const { return mIsBegun && mBytes.size() == mAnnounced.mSize; }
  [[nodiscard]] bool isBegun() const { return mIsBegun; }
  [[nodiscard]] const QByteArray& bytes() const { return mBytes; }
  [[nodiscard]] const DB_Stream_Begin& announced() const { return mAnnounced; }

private:
  DB_Stream_Begin mAnnounced;
  QByteArray mBytes;
  bool mIsBegun = false;
};
