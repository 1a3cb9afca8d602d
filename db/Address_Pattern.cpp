#include "db/Address_Pattern.h"

#include <QRegularExpression>

Address_Pattern::Address_Pattern(const QString& word) {
  static const QRegularExpression address(QStringLiteral("^0*(\\d+)/(?:0*(\\d+)(?:/(?:0*(\\d+)|\\*)?)?|\\*)?$"));
  const QRegularExpressionMatch match = address.match(word);
  for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
    mText += match.captured(i) + (i < 3 ? QStringLiteral("/") : QString());
  }
  const auto level = [&match](int index) {
    if (match.lastCapturedIndex() < index) {
      return cNone;
    }
    bool isNumber = false;
    const int number = match.capturedView(index).toInt(&isNumber);
    return isNumber ? number : cNowhere;
  };
  mMain = level(1);
  mMiddle = level(2);
  mSub = level(3);
}

bool Address_Pattern::matches(const QString& address) const {
  return mText.endsWith(QLatin1Char('/')) ? address.startsWith(mText) : isValid() && address == mText;
}

bool Address_Pattern::matches(int main, int middle, int sub) const {
  return isValid() && main == mMain && (mMiddle == cNone || middle == mMiddle) && (mSub == cNone || sub == mSub);
}
