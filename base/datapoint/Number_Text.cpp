#include "base/datapoint/Number_Text.h"

#include <QLocale>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

template <class Real>
QString print(Real value) {
  constexpr Real cLeastPlain = Real(1e-6);
  constexpr Real cMostPlain = Real(1e15);
  if (value == 0) {
    return QStringLiteral("0"); // also for the zero with a sign
  }
  const Real size = std::abs(value);
  const auto form = size < cLeastPlain || size >= cMostPlain ? std::chars_format::scientific : std::chars_format::fixed;
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, form).ptr;
  return QString::fromLatin1(text.data(), end - text.data());
}

} // namespace

QString Number_Text::shortest(double value) {
  return print(value);
}

QString Number_Text::shortest(float value) {
  return print(value);
}

QString Number_Text::rounded(double value, int decimals) {
  QString text = QString::number(value, 'f', decimals);
  while (text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.'))) {
    text.chop(1);
  }
  return text == u"-0" ? QStringLiteral("0") : text;
}

Datapoint_Value::Scalar Number_Text::parse(QStringView text) {
  text = text.trimmed();
  const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) {
    return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+' || c == u'e' || c == u'E';
  });
  if (!isPlain) {
    return {};
  }
  bool isNumber = false;
  const qint64 whole = text.toLongLong(&isNumber);
  if (isNumber) {
    return whole;
  }
  double value = QLocale::c().toDouble(text, &isNumber);
  // A whole number below those of 64 bits must not become the lowest of them by rounding.
  constexpr double cLowest = -9223372036854775808.0;
  const bool isWhole = !text.contains(u'.') && !text.contains(u'e', Qt::CaseInsensitive);
  if (isWhole && value == cLowest) {
    value = std::nextafter(value, -std::numeric_limits<double>::infinity());
  }
  return isNumber && std::isfinite(value) ? Datapoint_Value::Scalar(value) : Datapoint_Value::Scalar();
}

std::optional<quint32> Number_Text::parseHex(QStringView text, int digits) {
  const bool isHex = text.size() == digits && std::all_of(text.begin(), text.end(), [](QChar c) {
                       return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
                     });
  return isHex ? std::optional(text.toUInt(nullptr, 16)) : std::nullopt;
}
