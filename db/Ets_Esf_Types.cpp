#include "db/Ets_Esf_Types.h"

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

/// The format of a main number: by an EIS, or with 0 for that by its size in bytes.
struct Format {
  int mMain = 0;
  int mEis = 0;
  int mBytes = 0;
};

constexpr Format cFormats[] = {
    {1, 1, 0},   {2, 8, 0},   {3, 2, 0},   {4, 13, 0},  {5, 6, 0},   {6, 14, 0},  {7, 10, 0},  {8, 10, 0},  {9, 5, 0},
    {10, 3, 0},  {11, 4, 0},  {12, 11, 0}, {13, 11, 0}, {14, 9, 0},  {15, 12, 0}, {16, 15, 0}, {17, 0, 1},  {18, 0, 1},
    {19, 0, 8},  {20, 0, 1},  {21, 0, 1},  {22, 0, 2},  {25, 0, 1},  {26, 0, 1},  {27, 0, 4},  {29, 0, 8},  {30, 0, 3},
    {206, 0, 3}, {217, 0, 2}, {219, 0, 6}, {222, 0, 6}, {225, 0, 3}, {229, 0, 6}, {230, 0, 8}, {231, 0, 4}, {232, 0, 3},
    {234, 0, 2}, {235, 0, 6}, {237, 0, 2}, {238, 0, 1}, {240, 0, 3}, {241, 0, 4}, {242, 0, 6}, {244, 0, 2}, {245, 0, 6},
    {249, 0, 6}, {250, 0, 3}, {251, 0, 6}, {252, 0, 5}, {253, 0, 8}, {254, 0, 3},
};

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
  const auto* const format = std::find_if(std::begin(cFormats), std::end(cFormats),
                                          [&type](const Format& known) { return known.mMain == type.mMain; });
  if (format == std::end(cFormats)) {
    return QStringLiteral("Unknown");
  }
  // Of one size there may be several, and one of them means just this type.
  const auto* const exact =
      std::find_if(std::begin(cEis), std::end(cEis), [&type](const Eis& eis) { return eis.mType == type; });
  const Eis* const eis = exact != std::end(cEis) ? exact : eisOf(format->mEis);
  return eis ? QString::fromLatin1(eis->mText) : QStringLiteral("Uncertain (%1 Byte)").arg(format->mBytes);
}
