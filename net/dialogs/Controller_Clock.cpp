#include "net/dialogs/Controller_Clock.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr qint64 cSecond = 1000;
constexpr qint64 cMinute = 60 * cSecond;
constexpr qint64 cHour = 60 * cMinute;
constexpr qint64 cDay = 24 * cHour;
constexpr qint64 cEqual = 500; ///< less is no difference to a clock that shows seconds

QString tr(const char* text) {
  return QCoreApplication::translate("Controller_Clock", text);
}

} // namespace

void Controller_Clock::set(qint64 controllerMs, qint64 askedMs, qint64 heardMs) {
  mDifferenceMs = controllerMs - (askedMs + (heardMs - askedMs) / 2);
  mIsSet = true;
}

QString Controller_Clock::differenceText(qint64 differenceMs) {
  const qint64 amount = differenceMs < 0 ? -differenceMs : differenceMs;
  if (amount < cEqual) {
    return tr("geht gleich");
  }
  const QLocale locale;
  QString text;
  if (amount < cMinute) {
    text = tr("%1 s").arg(locale.toString(static_cast<double>(amount) / cSecond, 'f', 1));
  } else if (amount < cHour) {
    text = tr("%1 min %2 s").arg(locale.toString(amount / cMinute), locale.toString(amount % cMinute / cSecond));
  } else if (amount < cDay) {
    text = tr("%1 h %2 min").arg(locale.toString(amount / cHour), locale.toString(amount % cHour / cMinute));
  } else {
    text = tr("%1 d %2 h").arg(locale.toString(amount / cDay), locale.toString(amount % cDay / cHour));
  }
  return differenceMs > 0 ? tr("geht %1 vor").arg(text) : tr("geht %1 nach").arg(text);
}
