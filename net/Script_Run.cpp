#include "net/Script_Run.h"

#include "net/Controller_Command.h"
#include "net/Script_Message.h"

#include <utility>

Script_Run::Script_Run(Main_Network_Client& client, const QUuid& block, QString script, QObject* parent)
    : Controller_Exchange(client, parent),
      mBlock(block),
      mScript(std::move(script)) {}

void Script_Run::begin() {
  emit progress(tr("Das Script wird an die Steuerung gegeben"), 0, 0);
  send(Controller_Command::Script_Run, Script_Message::ofBlock(mBlock, mScript));
}

bool Script_Run::take(quint32 command, QByteArrayView payload) {
  const auto reply =
      command == Controller_Command::Script_Run_Reply ? Script_Message::readReply(payload) : std::nullopt;
  if (!reply || reply->mBlock != mBlock) {
    return false;
  }
  if (reply->mText.isEmpty()) {
    succeed();
  } else {
    fail(reply->mText);
  }
  return true;
}
