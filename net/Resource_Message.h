#pragma once

#include "net/Network_Message.h"
#include "net/Project_Digests.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

/// The payload that carries one resource: 255 bytes of file name (UTF-8, cut there, filled with zero bytes), then the
/// file. Pure.
struct Resource_Message {
  static constexpr qsizetype cNameField = Project_Digests::cNameBytes;
  static constexpr qint64 cMostBytes = Network_Message::cMostPadded - cNameField - 1; ///< of a file

  QByteArray mName;
  QByteArray mBytes;

  /// The bytes of a name that travel.
  [[nodiscard]] static QByteArray nameBytes(const QString& name);
  [[nodiscard]] static QByteArray pack(const QString& name, QByteArrayView bytes);
  /// Empty for a payload without name or shorter than the name's field.
  [[nodiscard]] static std::optional<Resource_Message> unpack(QByteArrayView payload);
};
