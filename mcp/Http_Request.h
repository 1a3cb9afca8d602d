#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// What the assistant's server reads of an HTTP/1.1 request (RFC 9112): bytes in, request out. Transfer codings and all
/// headers but Content-Length, Origin and Host are left alone.
class Http_Request {
public:
  /// Takes bytes as they come, in any pieces.
  void add(QByteArrayView bytes);

  /// The blank line behind the headers has come.
  [[nodiscard]] bool hasHead() const { return mHasHead; }
  /// And so many bytes of body as announced.
  [[nodiscard]] bool isComplete() const { return mHasHead && mBuffer.size() >= mContentLength; }
  /// Bytes of the announced body that have not come; of a request that has its head.
  [[nodiscard]] qsizetype missing() const { return qMax<qsizetype>(0, mContentLength - mBuffer.size()); }

  [[nodiscard]] const QString& method() const { return mMethod; }
  /// With the query; empty when the first line has none.
  [[nodiscard]] const QString& path() const { return mPath; }
  /// Of `path`: the text behind "sessionId=", up to the next "&".
  [[nodiscard]] QString sessionId() const;
  /// 0 when it is missing, no decimal number or none of 32 bits. May be negative.
  [[nodiscard]] qint32 contentLength() const { return mContentLength; }
  /// The announced bytes; what came behind them is ignored.
  [[nodiscard]] QByteArray body() const { return mBuffer.first(qMax<qsizetype>(0, mContentLength)); }

  /// An Origin or Host names something else than localhost, 127.0.0.1 or [::1], with any port: a web page in a browser
  /// of this machine asks (DNS rebinding, see the transport's security warning in MCP).
  [[nodiscard]] bool isForeign() const { return mIsForeign; }

private:
  void parseHead(QByteArrayView head);
  void parseHeader(QByteArrayView line);

  QByteArray mBuffer; ///< the head until it is whole, then the body
  QString mMethod;
  QString mPath;
  qsizetype mSearchedTo = 0;
  qint32 mContentLength = 0;
  bool mHasHead = false;
  bool mHasContentLength = false;
  bool mIsForeign = false;
};
