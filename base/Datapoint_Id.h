#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// The number of a KNX datapoint type (KNX Standard, 3/7/2 "Datapoint Types"): a main number, which gives the format,
/// and a sub number, which gives the meaning. Of some types only the format is known; of most addresses no type at all.
struct Datapoint_Id {
  static constexpr int cAnySub = -1;
  static constexpr int cNumberMax = 65535;

  int mMain = 0;      ///< 1..65535; 0 for no type
  int mSub = cAnySub; ///< 0..65535; `cAnySub` for any of the format

  /// Reads "9.001", "9", "DPST-9-1", "DPT-9" and "DPT 9.001", in any case. A sub number after a point is read as the
  /// digits stand: "9.1" is 9.001, "14.1200" is 14.1200. Empty when the text is something else.
  [[nodiscard]] static std::optional<Datapoint_Id> parse(QStringView text);

  [[nodiscard]] constexpr bool isNone() const { return mMain <= 0; }
  [[nodiscard]] constexpr bool hasSub() const { return mMain > 0 && mSub >= 0; }

  /// "9.001", "9" for any of the format, empty for none.
  [[nodiscard]] QString toString() const;
  /// "DPST-9-1", "DPT-9", empty for none: as ETS writes it.
  [[nodiscard]] QString toEtsText() const;

  // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the 0 of a rewritten comparison for a pointer
  friend constexpr auto operator<=>(const Datapoint_Id&, const Datapoint_Id&) = default;
};
