#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QUuid>

#include <optional>

/// The payloads of the messages about running scripts. Each begins with the 16 bytes of its block's GUID in the order
/// of RFC 4122; numbers are little-endian, texts UTF-8, which a zero byte may end. Pure, no socket.
namespace Script_Message {

struct Reply {
  QUuid mBlock;
  QString mText; ///< empty, or what is wrong with the script
};
struct Line {
  QUuid mBlock;
  qint64 mTime = 0; ///< milliseconds since 1970 (UTC)
  QString mText;
};
struct Variable {
  QUuid mBlock;
  QString mName;
  QString mValue;
};

/// Of the studio's messages.
[[nodiscard]] QByteArray ofBlock(const QUuid& block, const QString& text = {});
/// Of the controller's messages.
[[nodiscard]] QByteArray ofLine(const Line& line);
[[nodiscard]] QByteArray ofVariable(const Variable& variable);

// Nothing for a payload that is too short for what it should hold.
[[nodiscard]] std::optional<Reply> readReply(QByteArrayView payload);
[[nodiscard]] std::optional<Line> readLine(QByteArrayView payload);
[[nodiscard]] std::optional<Variable> readVariable(QByteArrayView payload);

} // namespace Script_Message
