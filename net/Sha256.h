#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

struct evp_md_ctx_st;

/// SHA-256 (FIPS 180-4) by OpenSSL, which is several times as fast as Qt's own: the program of a large project has 60
/// MB, and the user waits for its digest.
class Sha256 {
public:
  Sha256();

  void add(QByteArrayView bytes);
  /// Of all that was added, as 64 hexadecimal digits; once. Empty where the library does not offer the digest.
  [[nodiscard]] QString hex();

  [[nodiscard]] static QString hexOf(QByteArrayView bytes);

private:
  struct Free {
    void operator()(evp_md_ctx_st* context) const;
  };
  std::unique_ptr<evp_md_ctx_st, Free> mContext; ///< null once something failed
};
