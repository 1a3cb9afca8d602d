// Reads arbitrary bytes as a request, once whole and once in the pieces that the first byte tells, and asks the same of
// both. What is JSON in the body goes through the assistant's writer, which has to be ASCII and to mean the same.
#include "mcp/Ascii_Json.h"
#include "mcp/Http_Request.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool is) {
  if (!is) {
    std::abort();
  }
}

/// Sizes between 1 and 16 that follow from the seed.
qsizetype nextPiece(std::uint32_t& seed) {
  constexpr std::uint32_t cFactor = 1664525;
  constexpr std::uint32_t cStep = 1013904223;
  seed = seed * cFactor + cStep;
  return 1 + (seed >> 28);
}

void checkJson(const QByteArray& body) {
  const QJsonDocument document = QJsonDocument::fromJson(body);
  if (!document.isObject()) {
    return;
  }
  const QByteArray ascii = Ascii_Json::write(document.object());
  require(std::ranges::all_of(ascii, [](char c) { return static_cast<unsigned char>(c) < 128; }));
  require(!ascii.contains('\n') && !ascii.contains('\r')); // an event is one line
  require(QJsonDocument::fromJson(ascii) == QJsonDocument::fromJson(document.toJson()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) {
    return 0;
  }
  const QByteArrayView bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  Http_Request whole;
  whole.add(bytes);
  Http_Request pieces;
  std::uint32_t seed = data[0];
  for (qsizetype at = 0; at < bytes.size();) {
    require(pieces.missing() == 0 || !pieces.isComplete());
    const qsizetype count = std::min(nextPiece(seed), bytes.size() - at);
    pieces.add(bytes.sliced(at, count));
    at += count;
  }
  require(whole.hasHead() == pieces.hasHead() && whole.isComplete() == pieces.isComplete());
  require(whole.method() == pieces.method() && whole.path() == pieces.path());
  require(whole.sessionId() == pieces.sessionId() && whole.contentLength() == pieces.contentLength());
  require(whole.isForeign() == pieces.isForeign());
  require(whole.hasHead() || (whole.method().isEmpty() && whole.path().isEmpty() && !whole.isForeign()));
  if (whole.isComplete()) {
    require(whole.body() == pieces.body() && whole.missing() == 0);
    require(whole.body().size() == std::max(0, whole.contentLength()));
    checkJson(whole.body());
  }
  return 0;
}
