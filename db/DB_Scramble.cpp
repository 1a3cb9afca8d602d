#include "db/DB_Scramble.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

constexpr char cAlphabet[] = "zKv0yh4CGuOkBE+U1mbgXtiZTPVnH6ARdex/JMSDwf9YarQ5qjlLIpoc28Ws7F3N";
constexpr char cPadding = '!';
constexpr quint32 cForeign = 0x8000'0000;
using Values = std::array<quint32, 256>;

/// The bits of every character, already at their place for the first, second, third and last one of a group: so a
/// group is put together without shifting.
constexpr std::array<Values, 4> makeValues() {
  std::array<Values, 4> places{};
  for (quint32 place = 0; place < 4; ++place) {
    places[place].fill(cForeign);
    for (quint32 i = 0; i < 64; ++i) {
      places[place][static_cast<quint8>(cAlphabet[i])] = i << (18 - 6 * place);
    }
  }
  return places;
}
constexpr std::array<Values, 4> cValues = makeValues();

quint32 group(const quint8* in) {
  return cValues[0][in[0]] | cValues[1][in[1]] | cValues[2][in[2]] | cValues[3][in[3]];
}

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

QByteArray DB_Scramble::unscramble(QByteArrayView scrambled, Findings* findings) {
  QByteArray result(scrambled.size() / 4 * 3 + 3, Qt::Uninitialized);
  const auto* in = reinterpret_cast<const quint8*>(scrambled.data());
  const auto* const end = in + scrambled.size();
  auto* out = reinterpret_cast<quint8*>(result.data());
  const auto* const outBegin = out;
  quint64 seen = 0; // every bit of the result, a byte under a byte
  // Whole machine words are written; what is too much of them is written over by the next group, or cut off.
  while (end - in >= 8) {
    const quint32 first = group(in);
    const quint32 second = group(in + 4);
    if ((first | second) & cForeign) {
      break;
    }
    const quint64 six = quint64(first) << 40 | quint64(second) << 16;
    seen |= six;
    qToBigEndian(six, out);
    in += 8;
    out += 6;
  }
  while (end - in >= 4) {
    const quint32 bits = group(in);
    if (bits & cForeign) {
      break;
    }
    seen |= bits << 8;
    qToBigEndian(bits << 8, out);
    in += 4;
    out += 3;
  }
  quint32 bits = 0; // of which a third byte may be only begun
  size_t count = 0;
  while (in < end && count < 4 && cValues[count][*in] != cForeign) {
    bits |= cValues[count++][*in++];
  }
  if (count >= 2) {
    *out++ = static_cast<quint8>(bits >> 16);
  }
  if (count >= 3) {
    *out++ = static_cast<quint8>(bits >> 8);
  }
  if (findings) {
    const bool isPadded = std::all_of(in, end, [](quint8 character) { return character == quint8(cPadding); });
    findings->mIsWhole = isPadded && (count == 0 ? in == end : count >= 2 && size_t(end - in) == 4 - count);
    findings->mIsAscii = ((seen | bits << 8) & 0x8080'8080'8080'8080) == 0;
  }
  result.truncate(out - outBegin);
  return result;
}
