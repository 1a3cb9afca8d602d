#include "db/Variable_Edits.h"

#include "db/Address_Edits.h"
#include "db/Address_Usage.h"
#include "db/DB_Bindings.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Variable_Edits", text);
}

/// Applies `change` to every binding to the variable.
Edit_Result changeBindings(Project_Session& session, const QUuid& key, const QString& step,
                           const std::function<void(DB_Address_Binding&)>& change) {
  ProjectDatabase& database = session.database();
  const Address_Usage usage(database);
  const auto isIt = [&key](const Address_Usage::Variable& variable) { return variable.mKey == key; };
  if (std::none_of(usage.variables().cbegin(), usage.variables().cend(), isIt)) {
    return Edit_Result::refused(tr("Die Variable gibt es nicht mehr."));
  }
  Edit_Scope scope(session.history(), step);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  for (const Address_Use& use : usage.uses(key)) {
    const auto changeOwner = [&](auto& owner) {
      DB_Bindings::visitOwner(owner, [&](DB_Address_Binding& binding) {
        if (binding.mKind == DB_Address_Binding::Kind::Internal && binding.mKey == key) {
          change(binding);
        }
      });
    };
    if (use.mPlace == Address_Use::Place::Element) {
      scope.modified(session.elementUndo(), use.mOwnerGuid);
      database.mWidgetPages.changeChild(use.mOwnerGuid, changeOwner);
    } else {
      scope.modified(session.blockUndo(), use.mOwnerGuid);
      database.mFbPages.changeChild(use.mOwnerGuid, changeOwner);
    }
  }
  return Edit_Result::done();
}

} // namespace

Edit_Result Variable_Edits::checkName(const QString& name) {
  return DB_Text::singleLine(name).isEmpty() ? Edit_Result::refused(tr("Eine Variable braucht einen Namen."))
                                             : Address_Edits::check(Address_Edits::Field::Name, name);
}

Edit_Result Variable_Edits::rename(Project_Session& session, const QUuid& key, const QString& name) {
  const Edit_Result check = checkName(name);
  return check ? changeBindings(
                     session, key, tr("Variable umbenennen"),
                     [clean = DB_Text::singleLine(name)](DB_Address_Binding& binding) { binding.mName = clean; })
               : check;
}

Edit_Result Variable_Edits::setType(Project_Session& session, const QUuid& key, const QString& type) {
  const Edit_Result check = Address_Edits::check(Address_Edits::Field::Type, type);
  const Datapoint_Id id = Datapoint_Id::parse(type).value_or(Datapoint_Id());
  return check ? changeBindings(session, key, tr("Typ der Variable ändern"),
                                [id](DB_Address_Binding& binding) {
                                  binding.mDpt = id;
                                  binding.mDptRaw.clear(); // it told of the type before
                                })
               : check;
}
