#include "net/Controller_Request.h"

#include <utility>

Controller_Request::Controller_Request(Main_Network_Client& client, quint32 command, QByteArray payload,
                                       quint32 replyCommand, QString label, QObject* parent)
    : Controller_Exchange(client, parent),
      mCommand(command),
      mPayload(std::move(payload)),
      mReplyCommand(replyCommand),
      mLabel(std::move(label)) {}

QByteArray Controller_Request::textPayload(const QString& text) {
  QByteArray bytes = text.toUtf8();
  bytes.append('\0');
  return bytes;
}

void Controller_Request::begin() {
  emit progress(mLabel, 0, 0);
  send(mCommand, mPayload);
}

bool Controller_Request::take(quint32 command, QByteArrayView payload) {
  if (command != mReplyCommand) {
    return false;
  }
  mReply = payload.toByteArray();
  succeed();
  return true;
}
