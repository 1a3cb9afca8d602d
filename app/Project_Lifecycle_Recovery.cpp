#include "app/Project_Lifecycle.h"
#include "app/Recovery_Text.h"

#include <QFileInfo>

bool Project_Lifecycle::isAlreadyOpenAccepted(const QString& path) {
  return Working_Copy::stateOf(path) == Working_Copy::State::Free ||
         mDialogs.askYesNo(tr("Datei bereits geöffnet, soll diese noch einmal geöffnet werden?"));
}

bool Project_Lifecycle::isOverwritingAccepted(const QString& path) {
  const std::optional<Working_Copy::Left_Behind> found = Working_Copy::findLeftBehind(path);
  return found ? mDialogs.askYesNo(Recovery_Text::overwriting(path, *found, QDateTime::currentDateTime()))
               : isAlreadyOpenAccepted(path);
}

Project_Lifecycle::Opening Project_Lifecycle::askHowToOpen(const QString& path) {
  using Others = Working_Copy::Others;
  Opening opening;
  if (mIsKiosk && Working_Copy::stateOf(path) == Working_Copy::State::LeftBehind) {
    opening.mIsAccepted = true;
    opening.mOthers = Others::Keep;
    return opening;
  }
  while (const std::optional<Working_Copy::Left_Behind> found = Working_Copy::findLeftBehind(path)) {
    using Recovery = Lifecycle_Dialogs::Recovery;
    const QString question = Recovery_Text::question(path, *found, QDateTime::currentDateTime());
    switch (mDialogs.askRecovery(question, found->mIsOvertaken ? Recovery::Cancel : Recovery::Restore)) {
    case Lifecycle_Dialogs::Recovery::Cancel:
      return opening;
    case Lifecycle_Dialogs::Recovery::Restore:
      opening.mIsAccepted = opening.mRecovered.adopt(found->mPath);
      break;
    case Lifecycle_Dialogs::Recovery::Discard:
      // Another studio may have taken it while the question stood there.
      opening.mIsAccepted = Working_Copy::stateOf(path) == Working_Copy::State::LeftBehind;
      opening.mOthers = Others::Remove;
      break;
    }
    if (opening.mIsAccepted) {
      return opening;
    }
    if (Working_Copy::stateOf(path) == Working_Copy::State::Free) {
      mDialogs.showMessage(Recovery_Text::gone());
      return opening;
    }
  }
  const bool isLeftBehind = Working_Copy::stateOf(path) == Working_Copy::State::LeftBehind;
  opening.mOthers = isLeftBehind ? Others::Remove : Others::Keep;
  opening.mIsAccepted = isAlreadyOpenAccepted(path);
  return opening;
}

bool Project_Lifecycle::openRecords(const QString& target, Opening& opening) {
  const QString workingPath = opening.mRecovered.path();
  const bool isRecovered = !workingPath.isEmpty();
  if (isRecovered && mSession.recover(target, std::move(opening.mRecovered))) {
    return true;
  }
  mDialogs.hideProgress();
  if (isRecovered) {
    if (!mDialogs.askYesNo(Recovery_Text::unreadable(workingPath, mSession.lastError()))) {
      return false;
    }
    Working_Copy unreadable;
    if (unreadable.adopt(workingPath)) {
      unreadable.own();
    }
  }
  if (mSession.open(target, opening.mOthers)) {
    return true;
  }
  mDialogs.showMessage(tr("Fehler beim Öffnen der Datei: ") + mSession.lastError());
  return false;
}
