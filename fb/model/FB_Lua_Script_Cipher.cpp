#include "fb/model/FB_Lua_Script_Cipher.h"

#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <QtEndian>

namespace {

constexpr int cRounds = 60'000;
constexpr int cCheckBytes = 16;
constexpr auto cHash = QCryptographicHash::Sha256;

struct Keys {
  QByteArray mCipher;
  QByteArray mCheck;
};

QByteArray bigEndian(quint32 number) {
  QByteArray bytes(sizeof(number), Qt::Uninitialized);
  qToBigEndian(number, bytes.data());
  return bytes;
}

QByteArray hmac(const QByteArray& message, const QByteArray& key) {
  return QMessageAuthenticationCode::hash(message, key, cHash);
}

/// RFC 8018, section 5.2, for a key as long as the hash.
QByteArray derive(const QByteArray& password, const QByteArray& salt) {
  QMessageAuthenticationCode code(cHash, password);
  code.addData(salt + bigEndian(1));
  QByteArray round = code.result();
  QByteArray key = round;
  for (int i = 1; i < cRounds; ++i) {
    code.reset();
    code.addData(round);
    round = code.result();
    for (qsizetype at = 0; at < key.size(); ++at) {
      key[at] = static_cast<char>(key[at] ^ round[at]);
    }
  }
  return key;
}

Keys keysOf(const QString& password, const QByteArray& salt) {
  const QByteArray master = derive(password.normalized(QString::NormalizationForm_C).toUtf8(), salt);
  return {hmac(QByteArrayLiteral("cipher"), master), hmac(QByteArrayLiteral("check"), master)};
}

void applyStream(QByteArray& bytes, const QByteArray& key) {
  QByteArray stream;
  for (qsizetype at = 0; at < bytes.size(); ++at) {
    const qsizetype inBlock = at % QCryptographicHash::hashLength(cHash);
    if (inBlock == 0) {
      stream = hmac(bigEndian(static_cast<quint32>(at / QCryptographicHash::hashLength(cHash))), key);
    }
    bytes[at] = static_cast<char>(bytes[at] ^ stream[inBlock]);
  }
}

QByteArray checkOf(const QByteArray& locked, const QByteArray& key) {
  return hmac(locked, key).first(cCheckBytes).toHex();
}

} // namespace

FB_Lua_Script_Cipher::Locked FB_Lua_Script_Cipher::lock(const QByteArray& plain, const QString& password) {
  QByteArray salt(cSaltSize, Qt::Uninitialized);
  QRandomGenerator::system()->generate(salt.begin(), salt.end());
  const Keys keys = keysOf(password, salt);
  QByteArray bytes = plain;
  applyStream(bytes, keys.mCipher);
  bytes.prepend(salt);
  return {checkOf(bytes, keys.mCheck), bytes};
}

std::optional<QByteArray> FB_Lua_Script_Cipher::unlock(const Locked& locked, const QString& password) {
  if (locked.mBytes.size() < cSaltSize) {
    return std::nullopt;
  }
  const Keys keys = keysOf(password, locked.mBytes.first(cSaltSize));
  if (checkOf(locked.mBytes, keys.mCheck) != locked.mCheck) {
    return std::nullopt;
  }
  QByteArray plain = locked.mBytes.sliced(cSaltSize);
  applyStream(plain, keys.mCipher);
  return plain;
}
