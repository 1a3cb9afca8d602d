#include "mcp/Http_Request.h"

#include <QRegularExpression>

namespace {

constexpr QByteArrayView cBlankLine = "\r\n\r\n";
constexpr QByteArrayView cContentLength = "content-length:";
constexpr QByteArrayView cOrigin = "origin:";
constexpr QByteArrayView cHost = "host:";

/// "localhost:8080"; nothing at all names no other machine.
bool isHere(const QString& host) {
  static const QRegularExpression here(QStringLiteral("^(?:(?:localhost|127\\.0\\.0\\.1|\\[::1\\])(?::[0-9]*)?)?$"));
  return here.match(host).hasMatch();
}

} // namespace

void Http_Request::add(QByteArrayView bytes) {
  mBuffer.append(bytes.data(), bytes.size());
  if (mHasHead) {
    return;
  }
  const qsizetype end = mBuffer.indexOf(cBlankLine, mSearchedTo);
  if (end < 0) {
    mSearchedTo = qMax<qsizetype>(0, mBuffer.size() - cBlankLine.size() + 1);
    return;
  }
  mHasHead = true;
  parseHead(QByteArrayView(mBuffer).first(end));
  mBuffer.remove(0, end + cBlankLine.size());
}

void Http_Request::parseHead(QByteArrayView head) {
  const QList<QByteArray> lines = head.toByteArray().split('\n');
  const QList<QByteArray> words = lines.first().trimmed().split(' ');
  mMethod = QString::fromUtf8(words.first());
  mPath = QString::fromUtf8(words.value(1));
  for (const QByteArray& line : lines.sliced(1)) {
    parseHeader(line.trimmed().toLower());
  }
}

void Http_Request::parseHeader(const QByteArray& line) {
  if (line.startsWith(cContentLength) && !mHasContentLength) {
    mHasContentLength = true;
    mContentLength = line.sliced(cContentLength.size()).trimmed().toInt();
  } else if (line.startsWith(cHost)) {
    mIsForeign = mIsForeign || !isHere(QString::fromUtf8(line.sliced(cHost.size()).trimmed()));
  } else if (line.startsWith(cOrigin)) {
    const QString origin = QString::fromUtf8(line.sliced(cOrigin.size()).trimmed());
    const qsizetype scheme = origin.indexOf(QLatin1String("://"));
    mIsForeign = mIsForeign || !isHere(scheme < 0 ? origin : origin.sliced(scheme + 3));
  }
}

QString Http_Request::sessionId() const {
  const QString mark = QStringLiteral("sessionId=");
  const qsizetype at = mPath.indexOf(mark);
  return at < 0 ? QString() : mPath.sliced(at + mark.size()).section(u'&', 0, 0);
}
