#include "base/Datapoint_Id.h"

#include <QList>

namespace {

/// Digits only, in the range of a type's numbers.
std::optional<int> number(QStringView text) {
  constexpr qsizetype cMostDigits = 5;
  if (text.isEmpty() || text.size() > cMostDigits) {
    return std::nullopt;
  }
  int value = 0;
  for (const QChar c : text) {
    if (c < u'0' || c > u'9') {
      return std::nullopt;
    }
    value = value * 10 + (c.unicode() - u'0');
  }
  return value <= Datapoint_Id::cNumberMax ? std::optional(value) : std::nullopt;
}

std::optional<Datapoint_Id> fromParts(const QList<QStringView>& parts) {
  const std::optional<int> main = number(parts.value(0));
  if (!main || *main == 0 || parts.size() > 2) {
    return std::nullopt;
  }
  if (parts.size() == 1) {
    return Datapoint_Id{*main, Datapoint_Id::cAnySub};
  }
  const std::optional<int> sub = number(parts[1]);
  return sub ? std::optional(Datapoint_Id{*main, *sub}) : std::nullopt;
}

} // namespace

std::optional<Datapoint_Id> Datapoint_Id::parse(QStringView text) {
  text = text.trimmed();
  for (const QStringView prefix : {u"DPST-", u"DPT-"}) {
    if (text.startsWith(prefix, Qt::CaseInsensitive)) {
      return fromParts(text.mid(prefix.size()).split(u'-'));
    }
  }
  if (text.startsWith(u"DPT", Qt::CaseInsensitive)) {
    text = text.mid(3).trimmed();
  }
  return fromParts(text.split(u'.'));
}

QString Datapoint_Id::toString() const {
  if (isNone()) {
    return {};
  }
  const QString main = QString::number(mMain);
  return hasSub() ? QStringLiteral("%1.%2").arg(main).arg(mSub, 3, 10, QLatin1Char('0')) : main;
}

QString Datapoint_Id::toEtsText() const {
  if (isNone()) {
    return {};
  }
  return hasSub() ? QStringLiteral("DPST-%1-%2").arg(mMain).arg(mSub) : QStringLiteral("DPT-%1").arg(mMain);
}
