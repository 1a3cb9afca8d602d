#include "db/Ets_Esf_Types.h"

#include "base/Datapoint_Types.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

constexpr int cAny = Datapoint_Id::cAnySub;
constexpr int cByte = 8;

struct Eis {
  int mNumber = 0;
  int mBits = 0;
  Datapoint_Id mType;
  const char* mText = "";
};

constexpr Eis cEis[] = {
    {1, 1, {1, 1}, "EIS 1 'Switching' (1 Bit)"},
    {2, 4, {3, 7}, "EIS 2 'Dimming - control' (4 Bit)"},
    {3, 24, {10, 1}, "EIS 3 'Time' (3 Byte)"},
    {4, 24, {11, 1}, "EIS 4 'Date' (3 Byte)"},
    {5, 16, {9, 1}, "EIS 5 'Value' (2 Byte)"},
    {6, 8, {5, 1}, "EIS 6 'Scaling - percent' (1 Byte)"},
    {7, 1, {1, 8}, "EIS 7 'Drive control' (1 Bit)"},
    {8, 2, {2, 1}, "EIS 8 'Priority - control' (2 Bit)"},
    {9, 32, {14, cAny}, "EIS 9 'Float value' (4 Byte)"},
    {10, 16, {7, 1}, "EIS 10 'Counter 16bit' (2 Byte)"},
    {11, 32, {12, 1}, "EIS 11 'Counter 32bit' (4 Byte)"},
    {12, 32, {15, 0}, "EIS 12 'Access' (4 Byte)"},
    {13, 8, {4, 1}, "EIS 13 'Character' (1 Byte)"},
    {14, 8, {5, cAny}, "EIS 14 'Counter 8bit' (1 Byte)"},
    {15, 112, {16, 1}, "EIS 15 'Character String' (14 Byte)"},
};

/// The EIS of main numbers whose types are all of its size.
struct Format {
  int mMain = 0;
  int mEis = 0;
};

constexpr Format cFormats[] = {
    {1, 1}, {2, 8},  {3, 2},  {4, 13},  {5, 6},   {6, 14}, {7, 10},  {8, 10},
    {9, 5}, {10, 3}, {11, 4}, {12, 11}, {13, 11}, {14, 9}, {15, 12}, {16, 15},
};

/// Bits of main numbers that the studio has no types of.
struct Size {
  int mMain = 0;
  int mBits = 0;
};

constexpr Size cOtherSizes[] = {
    {22, 16}, {25, 8}, {30, 24}, {206, 24}, {219, 48}, {222, 48}, {230, 64}, {237, 16}, {244, 16}, {245, 48},
};

int bitsOf(const Datapoint_Id& type) {
  const auto* const other = std::find_if(std::begin(cOtherSizes), std::end(cOtherSizes),
                                         [&type](const Size& known) { return known.mMain == type.mMain; });
  return other == std::end(cOtherSizes) ? Datapoint_Types::bitsOf(type) : other->mBits;
}

const Eis* eisOf(int number) {
  const auto* const at =
      std::find_if(std::begin(cEis), std::end(cEis), [number](const Eis& eis) { return eis.mNumber == number; });
  return at == std::end(cEis) ? nullptr : at;
}

/// 0 when the text tells no size.
int bitsOf(const QString& text) {
  static const QRegularExpression size(QStringLiteral("^\\(\\s*(\\d{1,3})\\s*(Bit|Byte)s?\\s*\\)\\s*$"),
                                       QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = size.match(text.mid(text.lastIndexOf(u'(')));
  if (!match.hasMatch()) {
    return 0;
  }
  return match.capturedView(1).toInt() * (match.captured(2).compare(u"Bit", Qt::CaseInsensitive) == 0 ? 1 : cByte);
}

Datapoint_Id ofSize(int bits, const Ets_Reader::Options& options) {
  switch (bits) {
  case 1:
    return {1, 1};
  case 2:
    return {2, 1};
  case 4:
    return {3, 7};
  case 8:
    return options.mUncertain1Byte;
  case 16:
    return options.mUncertain2Byte;
  case 24:
    return {10, 1};
  case 32:
    return options.mUncertain4Byte;
  case 64:
    return {19, 1};
  case 112:
    return {16, 1};
  default:
    return {};
  }
}

} // namespace

Datapoint_Id Ets_Esf_Types::typeOf(const QString& text, const Ets_Reader::Options& options) {
  static const QRegularExpression number(QStringLiteral("^\\s*EIS\\s*(\\d{1,3})(?!\\d)"),
                                         QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = number.match(text);
  const Eis* const eis = match.hasMatch() ? eisOf(match.capturedView(1).toInt()) : nullptr;
  const int bits = bitsOf(text);
  const bool isFitting = eis && (bits == 0 || bits == eis->mBits);
  return isFitting ? eis->mType : ofSize(bits, options);
}

QString Ets_Esf_Types::textOf(const Datapoint_Id& type) {
  // Of one size there may be several, and one of them means just this type.
  const auto* eis =
      std::find_if(std::begin(cEis), std::end(cEis), [&](const Eis& known) { return known.mType == type; });
  if (eis == std::end(cEis)) {
    const auto* const format = std::find_if(std::begin(cFormats), std::end(cFormats),
                                            [&](const Format& known) { return known.mMain == type.mMain; });
    eis = format == std::end(cFormats) ? nullptr : eisOf(format->mEis);
  }
  if (eis) {
    return QString::fromLatin1(eis->mText);
  }
  const int bits = type.isNone() ? 0 : bitsOf(type);
  return bits == 0           ? QStringLiteral("Unknown")
         : bits % cByte == 0 ? QStringLiteral("Uncertain (%1 Byte)").arg(bits / cByte)
                             : QStringLiteral("Uncertain (%1 Bit)").arg(bits);
}
