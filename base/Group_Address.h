#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// A KNX group address of three levels, main / middle / sub (KNX Standard, 3/3/2 "Data Link Layer General").
///
/// On the bus it is a 16-bit number, main * 2048 + middle * 256 + sub, so main is 0..31, middle 0..7, sub 0..255.
/// Records may hold main groups above 31, which no bus can carry; such an address is valid here but not `isOnBus()`.
class Group_Address {
public:
  static constexpr int cMainMax = 31;
  static constexpr int cMiddleMax = 7;
  static constexpr int cSubMax = 255;
  static constexpr int cNumberMax = 65535;
  /// So many numbers of the bus has a main group, and a middle group.
  static constexpr int cMainSpan = 2048;
  static constexpr int cMiddleSpan = 256;

  constexpr Group_Address() = default;
  constexpr Group_Address(int main, int middle, int sub) : mMain(main), mMiddle(middle), mSub(sub) {}

  /// From the 16-bit number on the bus.
  [[nodiscard]] static constexpr Group_Address fromNumber(quint16 number) {
    return {number / cMainSpan, number % cMainSpan / cMiddleSpan, number % cMiddleSpan};
  }
  /// That number; only for an address that is `isOnBus()`.
  [[nodiscard]] constexpr quint16 number() const {
    return static_cast<quint16>(mMain * cMainSpan + mMiddle * cMiddleSpan + mSub);
  }

  /// Reads "1/2/3" (three levels), "1/515" (two levels: main 0..31, sub 0..2047), "2563", "$0A03" or "0x0a03" (free).
  /// On failure the result is empty and `error`, if given, tells what is allowed (German).
  [[nodiscard]] static std::optional<Group_Address> parse(QStringView text, QString* error = nullptr);

  /// The same for whole groups: "1/*" or "1", and "1/2/*" or "1/2". The numbers that the text does not give are 0.
  [[nodiscard]] static std::optional<Group_Address> parseMainGroup(QStringView text, QString* error = nullptr);
  [[nodiscard]] static std::optional<Group_Address> parseMiddleGroup(QStringView text, QString* error = nullptr);

  [[nodiscard]] constexpr int main() const { return mMain; }
  [[nodiscard]] constexpr int middle() const { return mMiddle; }
  [[nodiscard]] constexpr int sub() const { return mSub; }
  [[nodiscard]] constexpr bool isOnBus() const {
    return mMain >= 0 && mMain <= cMainMax && mMiddle >= 0 && mMiddle <= cMiddleMax && mSub >= 0 && mSub <= cSubMax;
  }

  /// "1/2/3".
  [[nodiscard]] QString toString() const;
  /// "1/*" and "1/2/*", the forms for whole groups.
  [[nodiscard]] static QString mainGroupText(int main);
  [[nodiscard]] static QString middleGroupText(int main, int middle);

  // The check takes the 0 of a rewritten comparison for a pointer.
  // NOLINTNEXTLINE(modernize-use-nullptr)
  friend constexpr auto operator<=>(const Group_Address&, const Group_Address&) = default;
  /// Neighbours are spread: in one long run of used places every removal would move the whole rest of it.
  friend size_t qHash(const Group_Address& address, size_t seed = 0) {
    const auto parts = (quint64(quint32(address.mMain)) << 32) ^ (quint64(quint32(address.mMiddle)) << 16) ^
                       quint64(quint32(address.mSub));
    constexpr quint64 cGolden = 0x9E37'79B9'7F4A'7C15;
    return static_cast<size_t>((parts * cGolden) >> 20) ^ seed;
  }

private:
  int mMain = 0;
  int mMiddle = 0;
  int mSub = 0;
};
