#include "db/DB_Scramble.h"

#include <array>

namespace {

constexpr char cAlphabet[] = "zKv0yh4CGuOkBE+U1mbgXtiZTPVnH6ARdex/JMSDwf9YarQ5qjlLIpoc28Ws7F3N";
constexpr char cPadding = '!';
constexpr quint8 cForeign = 0xff;

constexpr std::array<quint8, 256> makeValues() {
  std::array<quint8, 256> values{};
  values.fill(cForeign);
  for (quint8 i = 0; i < 64; ++i) {
    values[static_cast<quint8>(cAlphabet[i])] = i;
  }
  return values;
}
constexpr std::array<quint8, 256> cValues = makeValues();

/// Two characters for every 12 bits: half as many look-ups as one by one.
constexpr std::array<std::array<char, 2>, 4096> makePairs() {
  std::array<std::array<char, 2>, 4096> pairs{};
  for (size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = {cAlphabet[i >> 6], cAlphabet[i & 63]};
  }
  return pairs;
}
constexpr std::array<std::array<char, 2>, 4096> cPairs = makePairs();

} // namespace

QByteArray DB_Scramble::scramble(QByteArrayView plain) {
  QByteArray result((plain.size() + 2) / 3 * 4, Qt::Uninitialized);
  const auto* in = reinterpret_cast<const quint8*>(plain.data());
  char* out = result.data();
  qsizetype left = plain.size();
  for (; left >= 3; left -= 3, in += 3, out += 4) {
    const quint32 bits = quint32(in[0]) << 16 | quint32(in[1]) << 8 | in[2];
    const std::array<char, 2> high = cPairs[bits >> 12];
    const std::array<char, 2> low = cPairs[bits & 4095];
    out[0] = high[0];
    out[1] = high[1];
    out[2] = low[0];
    out[3] = low[1];
  }
  if (left > 0) {
    const quint32 bits = quint32(in[0]) << 16 | (left == 2 ? quint32(in[1]) << 8 : 0);
    out[0] = cAlphabet[bits >> 18];
    out[1] = cAlphabet[(bits >> 12) & 63];
    out[2] = left == 2 ? cAlphabet[(bits >> 6) & 63] : cPadding;
    out[3] = cPadding;
  }
  return result;
}

QByteArray DB_Scramble::unscramble(QByteArrayView scrambled, bool* isWhole) {
  QByteArray result(scrambled.size() / 4 * 3 + 3, Qt::Uninitialized);
  const auto* in = reinterpret_cast<const quint8*>(scrambled.data());
  const auto* const end = in + scrambled.size();
  auto* out = reinterpret_cast<quint8*>(result.data());
  const auto* const outBegin = out;
  while (end - in >= 4) {
    const quint8 a = cValues[in[0]];
    const quint8 b = cValues[in[1]];
    const quint8 c = cValues[in[2]];
    const quint8 d = cValues[in[3]];
    if ((a | b | c | d) > 63) {
      break;
    }
    const quint32 bits = quint32(a) << 18 | quint32(b) << 12 | quint32(c) << 6 | d;
    out[0] = static_cast<quint8>(bits >> 16);
    out[1] = static_cast<quint8>(bits >> 8);
    out[2] = static_cast<quint8>(bits);
    in += 4;
    out += 3;
  }
  quint32 bits = 0;
  int count = 0;
  while (in < end && count < 4 && cValues[*in] != cForeign) {
    bits |= quint32(cValues[*in++]) << (18 - 6 * count++);
  }
  if (count >= 2) {
    *out++ = static_cast<quint8>(bits >> 16);
  }
  if (count >= 3) {
    *out++ = static_cast<quint8>(bits >> 8);
  }
  if (isWhole) {
    *isWhole = count != 1 && (in == end || *in == quint8(cPadding));
  }
  result.truncate(out - outBegin);
  return result;
}
