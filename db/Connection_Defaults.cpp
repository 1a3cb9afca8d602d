#include "db/Connection_Defaults.h"

#include "db/DB_Scramble.h"

namespace {

// Scrambled, so that a search through the program's bytes does not show them.
constexpr char cUser[] = "HSF56z!!";
constexpr char cPassword[] = "HDw2+0zq";
constexpr char cRelayHost[] = "HStaTZJQHDw2+0zqkSt2Tipqn4X!";

QString plain(const char* scrambled) {
  return QString::fromUtf8(DB_Scramble::unscramble(scrambled));
}

} // namespace

QString Connection_Defaults::user() {
  return plain(cUser);
}

QString Connection_Defaults::password() {
  return plain(cPassword);
}

QString Connection_Defaults::relayHost() {
  return plain(cRelayHost);
}
