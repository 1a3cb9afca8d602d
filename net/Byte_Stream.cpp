#include "net/Byte_Stream.h"

#include "net/Sha256.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr qsizetype cSha256Digits = 64;

bool fail(QString* error, const char* german) {
  if (error) {
    *error = QCoreApplication::translate("Byte_Stream", german);
  }
  return false;
}

} // namespace

void DB_Stream_Begin::fields(DB_Fields& fields) {
  fields.number("mSize", mSize);
  fields.text("mSha256", mSha256);
  fields.text("mName", mName);
}

DB_Stream_Begin Byte_Stream::announce(QByteArrayView bytes, const QString& name) {
  DB_Stream_Begin begin;
  begin.mSize = bytes.size();
  begin.mSha256 = Sha256::hexOf(bytes);
  begin.mName = name;
  return begin;
}

QList<QByteArrayView> Byte_Stream::chunks(QByteArrayView bytes) {
  QList<QByteArrayView> chunks;
  for (qsizetype at = 0; at < bytes.size(); at += cChunk) {
    chunks.append(bytes.sliced(at, std::min(cChunk, bytes.size() - at)));
  }
  return chunks;
}

bool Byte_Stream::begin(QByteArrayView announcement, QString* error) {
  *this = {};
  mAnnounced.setData(announcement.toByteArray());
  mAnnounced.fromData();
  if (mAnnounced.mSize < 0 || mAnnounced.mSize > cMost || mAnnounced.mSha256.size() != cSha256Digits) {
    mAnnounced = {};
    return fail(error, QT_TRANSLATE_NOOP("Byte_Stream", "Die Ankündigung der Daten ist nicht lesbar."));
  }
  mIsBegun = true;
  if (isComplete() && mAnnounced.mSha256 != Sha256::hexOf({})) {
    return fail(error, QT_TRANSLATE_NOOP("Byte_Stream", "Die Daten kamen nicht unversehrt an (Prüfsumme)."));
  }
  return true;
}

bool Byte_Stream::take(QByteArrayView chunk, QString* error) {
  if (!mIsBegun || mBytes.size() + chunk.size() > mAnnounced.mSize) {
    return fail(error, QT_TRANSLATE_NOOP("Byte_Stream", "Es kamen mehr Daten, als angekündigt waren."));
  }
  mBytes.append(chunk);
  if (isComplete() && mAnnounced.mSha256 != Sha256::hexOf(mBytes)) {
    return fail(error, QT_TRANSLATE_NOOP("Byte_Stream", "Die Daten kamen nicht unversehrt an (Prüfsumme)."));
  }
  return true;
}
