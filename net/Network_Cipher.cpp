#include "net/Network_Cipher.h"

#include <openssl/evp.h>

#include <array>
#include <climits>
#include <memory>

namespace {

// Every controller holds the same key, so it is no secret of an installation: it keeps a wire that is listened to by
// chance from being read, nothing more.
constexpr std::array<unsigned char, 32> cKey = {0x5a, 0x1c, 0xe3, 0x77, 0x09, 0xb4, 0x6f, 0xd2, 0x38, 0x8e, 0x41,
                                                0xfa, 0x93, 0x25, 0xc8, 0x60, 0xad, 0x17, 0x7b, 0xe9, 0x54, 0x02,
                                                0xbf, 0x86, 0x3d, 0xf1, 0x2a, 0x98, 0xc5, 0x6e, 0x0d, 0x73};

using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

enum class Direction { Decipher = 0, Encipher = 1 };

/// The key schedule is worked out once for each direction.
Context makeContext(Direction direction) {
  Context context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  if (context && (EVP_CipherInit_ex(context.get(), EVP_aes_256_ecb(), nullptr, cKey.data(), nullptr,
                                    static_cast<int>(direction)) != 1 ||
                  EVP_CIPHER_CTX_set_padding(context.get(), 0) != 1)) {
    context.reset();
  }
  return context;
}

bool run(EVP_CIPHER_CTX* context, std::span<char> bytes) {
  if (!context || bytes.size() % Network_Cipher::cBlock != 0 || bytes.size() > INT_MAX) {
    return false;
  }
  auto* const data = reinterpret_cast<unsigned char*>(bytes.data());
  int written = 0;
  return bytes.empty() || EVP_CipherUpdate(context, data, &written, data, static_cast<int>(bytes.size())) == 1;
}

} // namespace

bool Network_Cipher::encipher(std::span<char> bytes) {
  thread_local const Context context = makeContext(Direction::Encipher);
  return run(context.get(), bytes);
}

bool Network_Cipher::decipher(std::span<char> bytes) {
  thread_local const Context context = makeContext(Direction::Decipher);
  return run(context.get(), bytes);
}
