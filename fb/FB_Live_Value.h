#pragma once

#include <QString>

#include <optional>

/// What is known of the value of what a pin is bound to, as a page shows it.
struct FB_Live_Value {
  QString mText;                 ///< with its unit; empty when none is known
  QString mUnit;                 ///< " °C"; empty without one
  std::optional<double> mNumber; ///< of a number that is no whole one
  std::optional<bool> mIsOn;     ///< of what is only on or off
  bool mIsStale = false;         ///< the link was lost since
};
