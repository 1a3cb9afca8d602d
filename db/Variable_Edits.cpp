#include "db/Variable_Edits.h"

#include "db/Address_Edits.h"
#include "db/Address_Usage.h"
#include "db/DB_Bindings.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QList>
#include <QSet>

#include <functional>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Variable_Edits", text);
}

/// Applies `change` to every binding to the variables.
Edit_Result changeBindings(Project_Session& session, const QList<QUuid>& keys, const QString& step,
                           const std::function<void(DB_Address_Binding&)>& change) {
  ProjectDatabase& database = session.database();
  const Address_Usage usage(database);
  QSet<QUuid> missing(keys.cbegin(), keys.cend());
  for (const Address_Usage::Variable& variable : usage.variables()) {
    missing.remove(variable.mKey);
  }
  if (!missing.isEmpty()) {
    return Edit_Result::refused(tr("Die Variable gibt es nicht mehr."));
  }
  Edit_Scope scope(session.history(), step);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  for (const QUuid& key : keys) {
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
  }
  return Edit_Result::done();
}

} // namespace

Edit_Result Variable_Edits::checkName(const QString& name) {
  return DB_Text::singleLine(name).isEmpty() ? Edit_Result::refused(tr("Eine Variable braucht einen Namen."))
                                             : Address_Edits::check(Address_Edits::Field::Name, name);
}

Edit_Result Variable_Edits::rename(Project_Session& session, const QUuid& key, const QString& name) {
  return rename(session, {{key, name}});
}

Edit_Result Variable_Edits::rename(Project_Session& session, const QHash<QUuid, QString>& names) {
  QHash<QUuid, QString> clean;
  for (auto name = names.cbegin(); name != names.cend(); ++name) {
    if (Edit_Result check = checkName(*name); !check) {
      return check;
    }
    clean.insert(name.key(), DB_Text::singleLine(*name));
  }
  const QString step = names.size() == 1 ? tr("Variable umbenennen") : tr("Variablen umbenennen");
  return changeBindings(session, clean.keys(), step,
                        [&clean](DB_Address_Binding& binding) { binding.mName = clean.value(binding.mKey); });
}

Edit_Result Variable_Edits::setType(Project_Session& session, const QUuid& key, const QString& type) {
  const Edit_Result check = Address_Edits::check(Address_Edits::Field::Type, type);
  const Datapoint_Id id = Datapoint_Id::parse(type).value_or(Datapoint_Id());
  return check ? changeBindings(session, {key}, tr("Typ der Variable ändern"),
                                [id](DB_Address_Binding& binding) {
                                  binding.mDpt = id;
                                  binding.mDptRaw.clear(); // it told of the type before
                                })
               : check;
}
