#include "simulator/Simulator_Project.h"

#include "db/Project_Image.h"
#include "net/Controller_Command.h"
#include "net/Project_Digests.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <utility>

namespace {

constexpr quint32 cMark = 0x52385031; // first word of the file, its layout's version at the end
constexpr QDataStream::Version cLayout = QDataStream::Qt_6_0;

/// The tables of the records, in the order of the tables.
struct Table_Row {
  DB_Table mTable;
  quint32 mCommand;
};
constexpr Table_Row cTables[] = {
    {DB_Table::Project, Controller_Command::Record_Project},
    {DB_Table::Connections, Controller_Command::Record_Connections},
    {DB_Table::Module_Bus, Controller_Command::Record_M8800},
    {DB_Table::Mail, Controller_Command::Record_Mail},
    {DB_Table::Styles, Controller_Command::Record_Style},
    {DB_Table::Statistics, Controller_Command::Record_Statistic},
    {DB_Table::Telegram_Monitor, Controller_Command::Record_TgmMon},
};

} // namespace

DB_Project Simulator_Project::header() const {
  DB_Project project;
  project.setData(mRecords.value(Controller_Command::Record_Project));
  return project;
}

void Simulator_Project::setHeader(const DB_Project& header) {
  mRecords[Controller_Command::Record_Project] = header.toData();
}

QString Simulator_Project::fault() const {
  const bool isWhole = mRecords.contains(Controller_Command::Record_Project) &&
                       std::ranges::all_of(cDigested, [this](quint32 command) { return mRecords.contains(command); });
  if (!isWhole) {
    return QCoreApplication::translate("Simulator_Project", "Das übertragene Projekt ist unvollständig.");
  }
  return header().mProjectId.isNull()
             ? QCoreApplication::translate("Simulator_Project", "Das übertragene Projekt hat keine Kennung.")
             : QString();
}

DB_Controller_Project Simulator_Project::told(bool isRunning) const {
  DB_Controller_Project told;
  told.mProject = header();
  told.mIsRunning = isRunning;
  if (!mProgram.isEmpty()) {
    told.mProgramDigest = Project_Digests::program(mProgram);
  }
  if (!mRecords.isEmpty()) {
    QList<QByteArray> texts;
    for (const quint32 command : cDigested) {
      texts.append(mRecords.value(command));
    }
    told.mRecordsDigest = Project_Digests::records(texts);
  }
  Project_Digests::Resources resources;
  for (auto it = mResources.cbegin(); it != mResources.cend(); ++it) {
    resources.add(it.key(), it.value());
  }
  told.mResourcesDigest = resources.digest();
  told.mResources = resources.count();
  return told;
}

QByteArray Simulator_Project::image() const {
  Project_Image image;
  for (const Table_Row& row : cTables) {
    if (mRecords.contains(row.mCommand)) {
      image.mRows.push_back({row.mTable, mRecords.value(row.mCommand)});
    }
  }
  const QByteArray records = image.toBytes();
  Project_Image resources;
  for (auto it = mResources.cbegin(); it != mResources.cend(); ++it) {
    resources.mRows.push_back({DB_Table::Resources, it.key() + '\0' + it.value()});
  }
  return records + mProgram + resources.toBytes();
}

QByteArray Simulator_Project::toBytes() const {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setVersion(cLayout);
  stream << cMark << mRecords << mProgram << mResources;
  return bytes;
}

std::optional<Simulator_Project> Simulator_Project::fromBytes(const QByteArray& bytes) {
  QDataStream stream(bytes);
  stream.setVersion(cLayout);
  quint32 mark = 0;
  Simulator_Project project;
  stream >> mark >> project.mRecords >> project.mProgram >> project.mResources;
  const bool isRead = stream.status() == QDataStream::Ok && mark == cMark;
  return isRead ? std::optional(std::move(project)) : std::nullopt;
}
