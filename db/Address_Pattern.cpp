#include "db/Address_Pattern.h"

#include <QRegularExpression>

Address_Pattern::Address_Pattern(const QString& word) {
  static const QRegularExpression address(QStringLiteral("^0*(\\d+)/(?:0*(\\d+)(?:/(?:0*(\\d+)|\\*)?)?|\\*)?$"));
  const QRegularExpressionMatch match = address.match(word);
  for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
    mLevels += match.captured(i) + (i < 3 ? QStringLiteral("/") : QString());
  }
}

bool Address_Pattern::matches(const QString& address) const {
  return mLevels.endsWith(QLatin1Char('/')) ? address.startsWith(mLevels) : isValid() && address == mLevels;
}
