// How variables are generated for blocks of the page: the questions, then one edit, then what was done.
#include "base/Session_State.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Base_GenerateVar.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Variables.h"

namespace {

namespace Generation = FB_Variable_Generation;

/// What the user wants for the blocks, in order.
struct Answers {
  QList<Generation::Request> mRequests;
  bool mIsCancelled = false; ///< at the block behind the last request
};

/// Asks where variables are there already. No record is held during the questions: it may change meanwhile.
Answers ask(Project_Session& session, const QList<QUuid>& blocks, QWidget* parent) {
  Answers answers;
  std::optional<Generation::Conflict> forAll;
  int number = 0;
  for (const Generation::Existing& existing : Generation::existing(session, blocks)) {
    ++number;
    const DB_FB_Control* const block = std::as_const(session).database().mFbPages.child(existing.mBlock);
    if (!block) {
      continue;
    }
    Generation::Conflict conflict = forAll.value_or(Generation::Conflict::Append);
    if (!existing.mVariables.isEmpty() && !forAll) {
      FB_Base_GenerateVar dialog(FB_Variables::ownerName(*block), existing.mVariables, number,
                                 static_cast<int>(blocks.size()), parent);
      if (dialog.exec() != QDialog::Accepted) {
        answers.mIsCancelled = true;
        break;
      }
      conflict = dialog.choice();
      forAll = dialog.isForAll() ? std::optional(conflict) : std::nullopt;
    }
    answers.mRequests.append({existing.mBlock, conflict});
  }
  return answers;
}

} // namespace

bool FB_Page::generateVariables(FB_Base& block) {
  return generateVariables({block.guid()});
}

bool FB_Page::generateVariables(const QList<QUuid>& blocks) {
  if (!mayEdit()) {
    tellLater(Session_State::operatingModeRefusal());
    return false;
  }
  QList<QUuid> offering;
  for (const QUuid& guid : blocks) {
    const FB_Base* const block = mBlocks.find(guid);
    if (block && block->offersVariables() && !(block->record().mInputs.empty() && block->record().mOutputs.empty())) {
      offering.append(guid);
    }
  }
  if (offering.isEmpty()) {
    emit statusText(tr("Kein ausgewählter Baustein hat Ein- oder Ausgänge, für die sich Variablen erzeugen lassen."));
    return false;
  }
  const QPointer<FB_Page> self = this;
  const Answers answers = ask(mSession, offering, window());
  const bool isOne = blocks.size() == 1;
  if (!self || (answers.mIsCancelled && isOne)) {
    return false;
  }
  const Generation::Result result = Generation::generate(mSession, answers.mRequests);
  if (!finish(result)) {
    return false;
  }
  if (answers.mIsCancelled) {
    tellLater(tr("Der Vorgang wurde abgebrochen, die restlichen Bausteine wurden übersprungen."));
  } else if (!isOne) {
    tellLater(tr("Variablen für %1 von %2 Bausteinen erfolgreich erzeugt.").arg(result.mBlocks).arg(blocks.size()));
  } else if (result.mBlocks > 0) {
    tellLater(tr("Variablen erfolgreich erzeugt"));
  } else {
    emit statusText(tr("Alle Ein- und Ausgänge sind schon verknüpft."));
  }
  return result.mBlocks > 0;
}
