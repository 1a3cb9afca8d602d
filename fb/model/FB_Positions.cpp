#include "fb/model/FB_Positions.h"

#include "fb/model/FB_Page_Edits.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

constexpr double cLimit = FB_Page_Edits::cPositionLimit;

bool isFine(double position) {
  return position >= -cLimit && position <= cLimit; // what is no number is not
}

double clampedTo(double position) {
  return std::isnan(position) ? 0 : std::clamp(position, -cLimit, cLimit);
}

} // namespace

Edit_Result FB_Positions::check(const QPointF& position) {
  if (isFine(position.x()) && isFine(position.y())) {
    return Edit_Result::done();
  }
  const QLocale locale;
  return Edit_Result::refused(
      QCoreApplication::translate("FB_Page_Edits",
                                  "Die Position (%1; %2) ist nicht möglich, erlaubt sind %3 bis %4 Pixel.")
          .arg(locale.toString(position.x(), 'f', 0), locale.toString(position.y(), 'f', 0),
               locale.toString(-cLimit, 'f', 0), locale.toString(cLimit, 'f', 0)));
}

QPointF FB_Positions::clamped(const QPointF& position) {
  return {clampedTo(position.x()), clampedTo(position.y())};
}
