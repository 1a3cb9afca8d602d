// Reads arbitrary bytes as scrambled text.
#include "db/DB_Scramble.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArrayView input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  DB_Scramble::Findings findings;
  const QByteArray plain = DB_Scramble::unscramble(input, &findings);
  const QByteArray scrambled = DB_Scramble::scramble(plain);
  DB_Scramble::Findings again;
  const bool isSame = DB_Scramble::unscramble(scrambled, &again) == plain && again.mIsWhole &&
                      (!findings.mIsAscii || again.mIsAscii) &&
                      (!findings.mIsWhole || scrambled.size() == input.size());
  // Whole groups are what the scrambling would have made of them.
  const qsizetype wholeGroups = plain.size() / 3 * 4;
  const bool isLike = input.first(wholeGroups) == QByteArrayView(scrambled).first(wholeGroups);
  // As plain text the input survives the way there and back.
  const bool isKept = DB_Scramble::unscramble(DB_Scramble::scramble(input)) == input;
  if (!isSame || !isLike || !isKept || plain.size() > input.size()) {
    std::abort();
  }
  return 0;
}
