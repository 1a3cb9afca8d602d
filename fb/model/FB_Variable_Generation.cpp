#include "fb/model/FB_Variable_Generation.h"

#include "db/Address_Edits.h"
#include "db/DB_Bindings.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Generation_Plan.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>

namespace {

using Kind = DB_Address_Binding::Kind;
using Result = FB_Variable_Generation::Result;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Variable_Generation", text);
}

Result refused(const QString& reason) {
  Result result;
  result.mError = reason;
  return result;
}

/// The bindings of the plan's targets, the new of which are made.
std::vector<DB_Address_Binding> makeTargets(Project_Session& session, const FB_Generation_Plan& plan, int& made) {
  Address_Tree& tree = session.database().mAddresses;
  // None of these is refused: the numbers are free and the scope around them may edit.
  for (const FB_Address_Places::Group& group : plan.groups()) {
    if (group.mMiddle < 0) {
      Address_Edits::addMainGroup(session, group.mMain, {group.mName, {}, {}});
    } else {
      Address_Edits::addMiddleGroup(session, group.mMain, group.mMiddle, {group.mName, {}, {}});
    }
  }
  std::vector<DB_Address_Binding> bindings;
  bindings.reserve(plan.targets().size());
  for (const FB_Generation_Plan::Target& target : plan.targets()) {
    QUuid key = target.mKey;
    if (key.isNull()) {
      Address_Edits::add(session, target.mAddress, {target.mName, {}, target.mDpt}, &key);
      ++made;
    }
    bindings.emplace_back().bindTo(*tree.subGroup(key), target.mAddress);
  }
  return bindings;
}

/// Replaces the variables wherever they are used.
void replaceVariables(Project_Session& session, Edit_Scope& scope, const FB_Generation_Plan& plan,
                      const std::vector<DB_Address_Binding>& targets) {
  ProjectDatabase& database = session.database();
  QSet<QUuid> blocks;
  QSet<QUuid> elements;
  DB_Bindings::visit(std::as_const(database), [&](const DB_Address_Binding& binding, const Address_Use& use) {
    if (binding.mKind == Kind::Internal && plan.variables().contains(binding.mKey)) {
      (use.mPlace == Address_Use::Place::Element ? elements : blocks).insert(use.mOwnerGuid);
    }
  });
  const auto replace = [&](auto& owner) {
    DB_Bindings::visitOwner(owner, [&](DB_Address_Binding& binding) {
      const auto target = plan.variables().constFind(binding.mKey);
      if (binding.mKind == Kind::Internal && target != plan.variables().cend()) {
        binding = targets[*target];
      }
    });
  };
  for (const QUuid& block : std::as_const(blocks)) {
    scope.modified(session.blockUndo(), block);
    database.mFbPages.changeChild(block, replace);
  }
  for (const QUuid& element : std::as_const(elements)) {
    scope.modified(session.elementUndo(), element);
    database.mWidgetPages.changeChild(element, replace);
  }
}

void bindPins(Project_Session& session, Edit_Scope& scope, const FB_Generation_Plan& plan,
              const std::vector<DB_Address_Binding>& targets) {
  QHash<QUuid, std::vector<FB_Pin_Ref>> byBlock;
  for (auto pin = plan.pins().cbegin(); pin != plan.pins().cend(); ++pin) {
    byBlock[pin.key().mBlock].push_back(pin.key());
  }
  for (auto pins = byBlock.cbegin(); pins != byBlock.cend(); ++pins) {
    scope.modified(session.blockUndo(), pins.key());
    session.database().mFbPages.changeChild(pins.key(), [&](DB_FB_Control& block) {
      for (const FB_Pin_Ref& pin : *pins) {
        FB_Pins::pins(block, pin.mSide)[static_cast<size_t>(pin.mIndex)].mBinding = targets[plan.pins().value(pin)];
      }
    });
  }
}

} // namespace

bool FB_Variable_Generation::offers(int type) {
  return type != FB_Types::cComment;
}

QList<FB_Variable_Generation::Existing> FB_Variable_Generation::existing(const Project_Session& session,
                                                                         const QList<QUuid>& blocks) {
  QList<Existing> all;
  FB_Generation_Plan plan(session.database());
  for (const QUuid& guid : blocks) {
    const DB_FB_Control* const block = session.database().mFbPages.child(guid);
    all.append({guid, block && offers(block->mType) ? plan.existing(*block) : QStringList()});
  }
  return all;
}

Result FB_Variable_Generation::generate(Project_Session& session, const QList<Request>& requests) {
  Edit_Scope scope(session.history(), tr("Variablen erzeugen"), Edit_Scope::Grouping::Own);
  if (!scope) {
    return refused(scope.refusal());
  }
  Result result;
  FB_Generation_Plan plan(session.database());
  QSet<QUuid> seen;
  for (const Request& request : requests) {
    const DB_FB_Control* const block = session.database().mFbPages.child(request.mBlock);
    if (!block) {
      return refused(tr("Den Baustein gibt es nicht mehr."));
    }
    if (!offers(block->mType) || seen.contains(request.mBlock)) {
      continue;
    }
    seen.insert(request.mBlock);
    QString refusal;
    result.mBlocks += plan.add(*block, request.mConflict, refusal) ? 1 : 0;
    if (!refusal.isEmpty()) {
      return refused(refusal);
    }
  }
  Address_Tree& tree = session.database().mAddresses;
  tree.beginChange();
  const std::vector<DB_Address_Binding> targets = makeTargets(session, plan, result.mAddresses);
  replaceVariables(session, scope, plan, targets);
  bindPins(session, scope, plan, targets);
  tree.endChange();
  return result;
}
