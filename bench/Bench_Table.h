#pragma once

#include <QElapsedTimer>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

/// Measured figures beside the limits that they have to keep, printed line by line.
class Bench_Table {
public:
  Bench_Table() { std::printf("%-44s %12s %12s\n", "figure", "measured", "limit"); }

  /// A figure that must not be above its limit; not a number when it could not be measured.
  void add(const char* figure, double measured, double limit, const char* unit) {
    const bool isKept = measured <= limit;
    mMissed += isKept ? 0 : 1;
    std::printf("%-44s %9.1f %-2s %9.1f %-2s  %s\n", figure, measured, unit, limit, unit, isKept ? "ok" : "MISSED");
    std::fflush(stdout);
  }

  /// A figure for information.
  static void note(const char* figure, double measured, const char* unit) {
    std::printf("%-44s %9.1f %-2s\n", figure, measured, unit);
    std::fflush(stdout);
  }

  /// Ends the program: what was to be measured did not happen.
  [[noreturn]] static void stop(const QString& reason) {
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::exit(2);
  }

  [[nodiscard]] int missed() const { return mMissed; }

  [[nodiscard]] static double milliseconds(const std::function<void()>& run) {
    QElapsedTimer timer;
    timer.start();
    run();
    return double(timer.nsecsElapsed()) / 1e6;
  }

  [[nodiscard]] static double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
  }

private:
  int mMissed = 0;
};
