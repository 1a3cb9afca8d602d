#include "net/Network_Frame.h"

#include "net/Network_Cipher.h"

#include <algorithm>

QByteArray Network_Frame::pack(const Network_Message& header, QByteArrayView data) {
  const auto padded = static_cast<qsizetype>(Network_Message::padded(static_cast<quint64>(data.size())));
  QByteArray bytes(Network_Message::cSize + padded, '\0');
  std::ranges::copy(header.toBytes(), bytes.begin());
  std::ranges::copy(data, bytes.begin() + Network_Message::cSize);
  // Blocks are independent, so header and payload go through the cipher together.
  if (!Network_Cipher::encipher({bytes.data(), static_cast<std::size_t>(bytes.size())})) {
    return {};
  }
  return bytes;
}

QByteArray Network_Frame::pack(quint32 command, QByteArrayView data) {
  if (Network_Message::padded(static_cast<quint64>(data.size())) > Network_Message::cMostPadded) {
    return {};
  }
  return pack(Network_Message::make(command, static_cast<quint32>(data.size())), data);
}

std::optional<Network_Message> Network_Frame::header(QByteArrayView enciphered) {
  if (enciphered.size() < Network_Message::cSize) {
    return std::nullopt;
  }
  QByteArray bytes = enciphered.first(Network_Message::cSize).toByteArray();
  if (!Network_Cipher::decipher({bytes.data(), static_cast<std::size_t>(bytes.size())})) {
    return std::nullopt;
  }
  const Network_Message message = Network_Message::fromBytes(bytes);
  return message.isPossible() ? std::optional(message) : std::nullopt;
}
