// What is kept, brought out and brought back: persistent values, the project, backups.
#include "net/Controller_Command.h"
#include "net/Persistent_Values.h"
#include "simulator/Simulator_Backups.h"
#include "simulator/Simulator_Commands.h"
#include "simulator/Simulator_Server.h"
#include "simulator/Simulator_Session.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace {

using namespace Controller_Command;
using Simulator_Commands::Access;
using Simulator_Commands::Request;

const QString cProject = QStringLiteral("project");
const QString cPersistent = QStringLiteral("persistent");
const QString cAll = QStringLiteral("all");

QString tr(const char* text) {
  return QCoreApplication::translate("Simulator_Commands", text);
}

QString textOf(const Request& request) {
  return Simulator_Session::text(request.mPayload);
}

void refuse(const Request& request, const char* text) {
  request.mSession.refuse(request.mCommand, tr(text));
}

void persistentLoad(const Request& request) {
  Persistent_Values values = request.mController.values().persistent();
  const QString wanted = textOf(request);
  if (!wanted.isEmpty()) {
    std::erase_if(values.mValues, [&wanted](const auto& value) { return value.mAddress.toString() != wanted; });
  }
  request.mSession.sendStream(Persistent_Load_Begin, Persistent_Load_Data, values.toBytes());
}

void persistentStore(const Request& request) {
  if (request.mController.storeValues()) {
    request.mSession.send(Persistent_Stored);
  } else {
    refuse(request, "Die Steuerung konnte die Werte nicht speichern.");
  }
}

/// Values that came whole, to be kept and told to everyone.
void takeValues(const Request& request) {
  QString error;
  const std::optional<Persistent_Values> values =
      Persistent_Values::fromBytes(request.mSession.values().bytes(), &error);
  if (!values) {
    request.mSession.refuse(request.mCommand, error);
    return;
  }
  for (const Persistent_Values::Value& value : values->mValues) {
    request.mController.writeValue(value.mAddress, value.mPayload);
  }
  request.mController.storeValues();
  request.mSession.sendText(Persistent_Taken, QString::number(values->mValues.size()));
}

void persistentSend(const Request& request) {
  QString error;
  Byte_Stream& stream = request.mSession.values();
  const bool isRight = request.mCommand == Persistent_Send_Begin ? stream.begin(request.mPayload, &error)
                                                                 : stream.take(request.mPayload, &error);
  if (!isRight) {
    stream = {};
    request.mSession.refuse(request.mCommand, error);
  } else if (stream.isComplete()) {
    takeValues(request);
  }
}

void load(const Request& request) {
  const QString what = textOf(request).section(u'#', 0, 0);
  const QString id = textOf(request).section(u'#', 1);
  Simulator_Backups::Content content{request.mController.project(),
                                     request.mController.values().persistent().toBytes()};
  if (!id.isEmpty()) {
    const std::optional<Simulator_Backups::Content> backup = Simulator_Backups(request.mController).content(id);
    if (!backup) {
      refuse(request, "Diese Sicherung gibt es nicht.");
      return;
    }
    content = *backup;
  }
  if (what == cPersistent) {
    request.mSession.sendStream(Load_Begin, Load_Data, content.mValues);
  } else if (what != cProject) {
    refuse(request, "Geladen werden können das Projekt und die persistenten Daten.");
  } else if (content.mProject.mRecords.isEmpty()) {
    refuse(request, "Auf der Steuerung ist kein Projekt.");
  } else {
    request.mSession.sendStream(Load_Begin, Load_Data, content.mProject.image(), content.mProject.header().mName);
  }
}

void backupList(const Request& request) {
  request.mSession.send(Backup_List_Reply, Simulator_Backups(request.mController).list().toData());
}

void backupMake(const Request& request) {
  const DB_Backup_List made = Simulator_Backups(request.mController).make(textOf(request));
  if (made.mBackups.empty()) {
    refuse(request, "Die Steuerung konnte die Sicherung nicht speichern.");
  } else {
    request.mSession.send(Backup_Made, made.toData());
  }
}

void backupFetch(const Request& request) {
  const QByteArray file = Simulator_Backups(request.mController).file(textOf(request));
  if (file.isEmpty()) {
    refuse(request, "Diese Sicherung gibt es nicht.");
  } else {
    request.mSession.sendStream(Backup_Fetch_Begin, Backup_Fetch_Data, file, textOf(request));
  }
}

void backupDelete(const Request& request) {
  if (Simulator_Backups(request.mController).remove(textOf(request))) {
    request.mSession.send(Backup_Deleted);
  } else {
    refuse(request, "Diese Sicherung gibt es nicht.");
  }
}

void backupRestore(const Request& request) {
  const QString what = textOf(request).section(u'#', 1);
  const std::optional<Simulator_Backups::Content> backup =
      Simulator_Backups(request.mController).content(textOf(request).section(u'#', 0, 0));
  const bool isAll = what == cAll;
  if (!backup) {
    refuse(request, "Diese Sicherung gibt es nicht.");
  } else if (!isAll && what != cProject && what != cPersistent) {
    refuse(request, "Wiederhergestellt werden können das Projekt, die persistenten Daten oder beides.");
  } else if (request.mController.isStopped()) {
    refuse(request, "Die Steuerung steht, weil ein Projekt übertragen wird.");
  } else if (!request.mController.restore(isAll || what == cProject ? &backup->mProject : nullptr,
                                          isAll || what == cPersistent ? &backup->mValues : nullptr)) {
    refuse(request, "Die Steuerung konnte die Sicherung nicht wiederherstellen.");
  } else {
    request.mSession.send(Backup_Restored);
  }
}

constexpr Simulator_Commands::Row cRows[] = {
    {Persistent_Load, Access::Logged_On, persistentLoad},
    {Persistent_Store, Access::Logged_On, persistentStore},
    {Persistent_Send_Begin, Access::Logged_On, persistentSend},
    {Persistent_Send_Data, Access::Logged_On, persistentSend},
    {Load, Access::Logged_On, load},
    {Backup_List, Access::Logged_On, backupList},
    {Backup_Make, Access::Logged_On, backupMake},
    {Backup_Fetch, Access::Logged_On, backupFetch},
    {Backup_Delete, Access::Logged_On, backupDelete},
    {Backup_Restore, Access::Logged_On, backupRestore},
};

} // namespace

std::span<const Simulator_Commands::Row> Simulator_Commands::backupRows() {
  return cRows;
}
