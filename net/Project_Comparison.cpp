#include "net/Project_Comparison.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

namespace {

QString tr(const char* german) {
  return QCoreApplication::translate("Project_Comparison", german);
}

QString timeText(qint64 seconds) {
  return seconds == 0 ? QString() : QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat);
}

QString idText(const QUuid& id) {
  return id.isNull() ? QString() : id.toString(QUuid::WithoutBraces);
}

QString generationText(int generation) {
  return generation == 0 ? QString() : QString::number(generation);
}

QString filesText(int count) {
  return count == 1 ? tr("1 Datei") : tr("%1 Dateien").arg(count);
}

} // namespace

Project_Comparison::Project_Comparison(const DB_Project& local, const Project_Digests& digests,
                                       const DB_Controller_Project& controller) {
  const DB_Project& other = controller.mProject;
  add(QT_TRANSLATE_NOOP("Project_Comparison", "Name"), local.mName, other.mName);
  add(QT_TRANSLATE_NOOP("Project_Comparison", "Gespeichert"), timeText(local.mTimestamp), timeText(other.mTimestamp));
  add(QT_TRANSLATE_NOOP("Project_Comparison", "Kennung"), idText(local.mProjectId), idText(other.mProjectId));
  add(QT_TRANSLATE_NOOP("Project_Comparison", "Generation"), generationText(local.mGeneration),
      generationText(other.mGeneration));
  add(QT_TRANSLATE_NOOP("Project_Comparison", "Autor"), local.mAuthor, other.mAuthor);
  bool isSame = local.mProjectId == other.mProjectId;
  isSame =
      addDigest(QT_TRANSLATE_NOOP("Project_Comparison", "Programm"), digests.mProgram, controller.mProgramDigest) &&
      isSame;
  isSame = addDigest(QT_TRANSLATE_NOOP("Project_Comparison", "Einstellungen"), digests.mRecords,
                     controller.mRecordsDigest) &&
           isSame;
  const bool hasNone = digests.mResourceCount == 0 && controller.mResources == 0;
  const bool areResourcesSame = hasNone || digests.mResources == controller.mResourcesDigest;
  mRows.push_back(
      {tr("Ressourcen"), filesText(digests.mResourceCount), filesText(controller.mResources), areResourcesSame});
  mVerdict = other.mProjectId.isNull()    ? Verdict::NoProject
             : isSame && areResourcesSame ? Verdict::Same
                                          : Verdict::Different;
}

QString Project_Comparison::text() const {
  switch (mVerdict) {
  case Verdict::Same:
    return tr("Projekt an der Steuerung entspricht dem aktuellen Projekt");
  case Verdict::Different:
    return tr("Projekt an der Steuerung entspricht nicht dem aktuellen Projekt");
  case Verdict::NoProject:
    break;
  }
  return tr("An der Steuerung ist kein Projekt");
}

void Project_Comparison::add(const char* what, const QString& local, const QString& controller) {
  mRows.push_back({tr(what), local, controller, local == controller});
}

bool Project_Comparison::addDigest(const char* what, const QString& local, const QString& controller) {
  constexpr qsizetype cShown = 8; // enough to tell apart by eye
  mRows.push_back({tr(what), local.left(cShown), controller.left(cShown), local == controller});
  return local == controller;
}
