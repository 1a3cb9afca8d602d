#include "net/Resource_Message.h"

QByteArray Resource_Message::nameBytes(const QString& name) {
  return name.toUtf8().left(cNameField);
}

QByteArray Resource_Message::pack(const QString& name, QByteArrayView bytes) {
  QByteArray payload = nameBytes(name).leftJustified(cNameField, '\0');
  payload.append(bytes);
  return payload;
}

std::optional<Resource_Message> Resource_Message::unpack(QByteArrayView payload) {
  if (payload.size() < cNameField || payload.front() == '\0') {
    return std::nullopt;
  }
  const QByteArrayView field = payload.first(cNameField);
  const qsizetype end = field.indexOf('\0');
  return Resource_Message{(end < 0 ? field : field.first(end)).toByteArray(), payload.sliced(cNameField).toByteArray()};
}
