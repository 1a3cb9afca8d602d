#include "net/Sha256.h"

#include <QByteArray>

#include <openssl/evp.h>

Sha256::Sha256() : mContext(EVP_MD_CTX_new()) {
  if (!mContext || EVP_DigestInit_ex(mContext.get(), EVP_sha256(), nullptr) != 1) {
    mContext.reset();
  }
}

void Sha256::add(QByteArrayView bytes) {
  if (mContext && EVP_DigestUpdate(mContext.get(), bytes.data(), static_cast<std::size_t>(bytes.size())) != 1) {
    mContext.reset();
  }
}

QString Sha256::hex() {
  QByteArray digest(EVP_MAX_MD_SIZE, Qt::Uninitialized);
  unsigned int size = 0;
  if (!mContext || EVP_DigestFinal_ex(mContext.get(), reinterpret_cast<unsigned char*>(digest.data()), &size) != 1) {
    return {};
  }
  return QString::fromLatin1(digest.first(static_cast<qsizetype>(size)).toHex());
}

QString Sha256::hexOf(QByteArrayView bytes) {
  Sha256 hash;
  hash.add(bytes);
  return hash.hex();
}

void Sha256::Free::operator()(evp_md_ctx_st* context) const {
  EVP_MD_CTX_free(context);
}
