#pragma once

#include <QString>

/// What the controller's clock shows, worked out from one answer of it. Times are milliseconds since 1970 (UTC) of this
/// computer unless said otherwise.
class Controller_Clock {
public:
  /// The answer took its way between asking and hearing; the clock was read in the middle of that.
  void set(qint64 controllerMs, qint64 askedMs, qint64 heardMs);
  [[nodiscard]] bool isSet() const { return mIsSet; }
  /// The controller's time at a moment of this computer.
  [[nodiscard]] qint64 at(qint64 nowMs) const { return nowMs + mDifferenceMs; }
  /// Above 0 when the controller is ahead.
  [[nodiscard]] qint64 differenceMs() const { return mDifferenceMs; }
  /// German: "geht 12,3 s vor", "geht 2 h 5 min nach".
  [[nodiscard]] static QString differenceText(qint64 differenceMs);

private:
  qint64 mDifferenceMs = 0;
  bool mIsSet = false;
};
