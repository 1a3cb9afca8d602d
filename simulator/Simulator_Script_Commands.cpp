// Scripts that a studio hands over and watches.
#include "net/Controller_Command.h"
#include "simulator/Simulator_Commands.h"
#include "simulator/Simulator_Server.h"
#include "simulator/Simulator_Session.h"

#include <QCoreApplication>

namespace {

using namespace Controller_Command;
using Simulator_Commands::Access;
using Simulator_Commands::Request;

constexpr qsizetype cGuid = 16;
constexpr qsizetype cMostScript = qsizetype(1024) * 1024;

void script(const Request& request) {
  if (request.mPayload.size() < cGuid) {
    request.mSession.refuse(request.mCommand,
                            QCoreApplication::translate("Simulator_Commands", "Die Kennung des Bausteins fehlt."));
    return;
  }
  if (request.mPayload.size() > cMostScript) {
    request.mSession.refuse(request.mCommand,
                            QCoreApplication::translate("Simulator_Commands", "Das Script ist zu lang."));
    return;
  }
  const QByteArrayView guid = request.mPayload.first(cGuid);
  const QUuid block = QUuid::fromRfc4122(guid);
  request.mSession.watch(block);
  if (request.mCommand == Script_Run) {
    const QString error = request.mServer.scripts().run(block, Simulator_Session::text(request.mPayload.sliced(cGuid)));
    request.mSession.send(Script_Run_Reply, guid.toByteArray() + error.toUtf8());
  }
}

constexpr Simulator_Commands::Row cRows[] = {
    {Script_Run, Access::Logged_On, script},
    {Script_Watch, Access::Logged_On, script},
};

} // namespace

std::span<const Simulator_Commands::Row> Simulator_Commands::scriptRows() {
  return cRows;
}
