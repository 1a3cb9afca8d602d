#include "mcp/Http_Request.h"

#include <algorithm>

namespace {

constexpr QByteArrayView cBlankLine = "\r\n\r\n";
constexpr QByteArrayView cContentLength = "content-length:";

bool startsWith(QByteArrayView text, QByteArrayView start) {
  return text.size() >= start.size() && text.first(start.size()).compare(start, Qt::CaseInsensitive) == 0;
}

bool isPort(QByteArrayView text) {
  return text.isEmpty() ||
         (text.front() == ':' && std::ranges::all_of(text.sliced(1), [](char c) { return c >= '0' && c <= '9'; }));
}

/// "localhost:8080".
bool isHere(QByteArrayView host) {
  constexpr QByteArrayView names[] = {"localhost", "127.0.0.1", "[::1]"};
  return std::ranges::any_of(
      names, [host](QByteArrayView name) { return startsWith(host, name) && isPort(host.sliced(name.size())); });
}

QByteArrayView takeLine(QByteArrayView& lines) {
  const qsizetype end = lines.indexOf('\n');
  const QByteArrayView line = lines.first(end < 0 ? lines.size() : end);
  lines = lines.sliced(end < 0 ? lines.size() : end + 1);
  return line.trimmed();
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
  const QByteArrayView request = takeLine(head);
  const qsizetype space = request.indexOf(' ');
  mMethod = QString::fromUtf8(space < 0 ? request : request.first(space));
  if (space >= 0) {
    const QByteArrayView rest = request.sliced(space + 1);
    const qsizetype end = rest.indexOf(' ');
    mPath = QString::fromUtf8(end < 0 ? rest : rest.first(end));
  }
  while (!head.isEmpty()) {
    parseHeader(takeLine(head));
  }
}

void Http_Request::parseHeader(QByteArrayView line) {
  if (startsWith(line, cContentLength)) {
    if (!mHasContentLength) {
      mHasContentLength = true;
      mContentLength = line.sliced(cContentLength.size()).trimmed().toInt();
    }
    return;
  }
  const qsizetype colon = line.indexOf(':');
  if (colon < 0) {
    return;
  }
  // A blank before the colon is no way round the check.
  const QByteArrayView name = line.first(colon).trimmed();
  QByteArrayView value = line.sliced(colon + 1).trimmed();
  if (name.compare("origin", Qt::CaseInsensitive) == 0) {
    const qsizetype scheme = value.indexOf("://");
    value = scheme < 0 ? value : value.sliced(scheme + 3);
  } else if (name.compare("host", Qt::CaseInsensitive) != 0) {
    return;
  }
  const bool namesNothing = colon + 1 == line.size();
  mIsForeign = mIsForeign || (!namesNothing && !isHere(value));
}

QString Http_Request::sessionId() const {
  const QString mark = QStringLiteral("sessionId=");
  const qsizetype at = mPath.indexOf(mark);
  if (at < 0) {
    return {};
  }
  const qsizetype begin = at + mark.size();
  const qsizetype end = mPath.indexOf(u'&', begin);
  return end < 0 ? mPath.sliced(begin) : mPath.sliced(begin, end - begin);
}
