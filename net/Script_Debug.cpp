#include "net/Script_Debug.h"

#include "net/Controller_Command.h"
#include "net/Main_Network_Client.h"
#include "net/Script_Message.h"
#include "net/Script_Run.h"

#include <QDateTime>

Script_Debug::Script_Debug(Main_Network_Client& client, QObject* parent) : QObject(parent), mClient(client) {
  connect(&mClient, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), this,
          &Script_Debug::onRead);
}

void Script_Debug::run(const QUuid& block, const QString& script) {
  auto* const run = new ::Script_Run(mClient, block, script, this);
  connect(run, &Controller_Exchange::finished, this, [this, run] {
    run->deleteLater();
    emit ran(run->block(), run->errorText());
  });
  run->start();
}

void Script_Debug::watch(const QUuid& block) {
  const QByteArray payload = Script_Message::ofBlock(block);
  mClient.sendMessage(Controller_Command::Script_Watch, static_cast<quint32>(payload.size()), payload.constData());
}

void Script_Debug::onRead(Network_Message* message, uchar* data) {
  const QByteArrayView payload(data, data ? static_cast<qsizetype>(message->mDataLength) : 0);
  if (message->mCommand == Controller_Command::Script_Console) {
    if (const auto line = Script_Message::readLine(payload)) {
      emit lineWritten(line->mBlock, QDateTime::fromMSecsSinceEpoch(line->mTime, Qt::UTC), line->mText);
    }
  } else if (message->mCommand == Controller_Command::Script_Variable) {
    if (const auto variable = Script_Message::readVariable(payload)) {
      emit variableTold(variable->mBlock, variable->mName, variable->mValue);
    }
  }
}
