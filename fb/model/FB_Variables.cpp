#include "fb/model/FB_Variables.h"

#include "db/Address_Edits.h"
#include "db/DB_Bindings.h"
#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Types.h"

#include <QRegularExpression>

namespace {

using Kind = DB_Address_Binding::Kind;
using Place = Address_Use::Place;

/// Where a variable is used.
struct Uses {
  qsizetype mInputs = 0;
  qsizetype mOutputs = 0;
  qsizetype mOthers = 0; ///< elements, which read and write, and what disables a block
};

/// Takes those that nothing reads off their outputs, and those for which `isUnwritten` says so off their inputs.
template <class Is_Unwritten>
void takeOff(FB_Edit& edit, const QSet<QUuid>& keys, Is_Unwritten&& isUnwritten) {
  if (keys.isEmpty()) {
    return;
  }
  QHash<QUuid, Uses> uses;
  std::vector<std::pair<QUuid, FB_Pin_Ref>> pins;
  DB_Bindings::visit(edit.database(), [&](const DB_Address_Binding& binding, const Address_Use& use) {
    if (binding.mKind != Kind::Internal || !keys.contains(binding.mKey)) {
      return;
    }
    Uses& known = uses[binding.mKey];
    if (use.mPlace == Place::Output) {
      ++known.mOutputs;
      pins.push_back({binding.mKey, {use.mOwnerGuid, FB_Side::Output, use.mIndex}});
    } else if (use.mPlace == Place::Input) {
      ++known.mInputs;
      pins.push_back({binding.mKey, {use.mOwnerGuid, FB_Side::Input, use.mIndex}});
    } else {
      ++known.mOthers;
    }
  });
  for (const auto& [key, pin] : pins) {
    const Uses& known = *uses.constFind(key);
    if (known.mInputs + known.mOthers == 0 || isUnwritten(known, key)) {
      edit.setBinding(pin, {});
    }
  }
}

/// "Und Ausgang 2" without its number.
QString withoutNumber(const QString& name) {
  static const QRegularExpression number(QStringLiteral(" [0-9]{1,9}$"));
  return QString(name).remove(number);
}

} // namespace

FB_Variables::Names::Names(const ProjectDatabase& database) {
  DB_Bindings::visit(database, [this](const DB_Address_Binding& binding, const Address_Use&) {
    if (binding.mKind == Kind::Internal) {
      mTaken.insert(binding.mName);
    }
  });
}

QString FB_Variables::Names::take(const QString& wish) {
  QString name = wish.left(Address_Edits::cNameLimit);
  const QString base = withoutNumber(name);
  int& last = mLast[base];
  while (name.isEmpty() || mTaken.contains(name)) {
    const QString suffix = QStringLiteral(" %1").arg(last = std::max(last + 1, 2));
    name = base.left(Address_Edits::cNameLimit - suffix.size()) + suffix;
  }
  mTaken.insert(name);
  return name;
}

std::optional<DB_Address_Binding>
FB_Variables::find(const ProjectDatabase& database,
                   const std::function<bool(const DB_Address_Binding& variable)>& isMeant) {
  std::optional<DB_Address_Binding> found;
  DB_Bindings::visit(database, [&](const DB_Address_Binding& binding, const Address_Use&) {
    if (!found && binding.mKind == Kind::Internal && isMeant(binding)) {
      found = binding;
    }
  });
  return found;
}

QString FB_Variables::ownerName(const DB_FB_Control& block) {
  for (const QString& name : {block.ownTitle().simplified(), block.mName.simplified()}) {
    if (!name.isEmpty()) {
      return name;
    }
  }
  return FB_Types::name(block.mType).remove(u'*').simplified();
}

QString FB_Variables::nameFor(const DB_FB_Control& block, const DB_FB_Pin& pin) {
  return (ownerName(block) + u' ' + pin.mLongName).simplified();
}

DB_Address_Binding FB_Variables::make(const QString& name) {
  DB_Address_Binding binding;
  binding.mKind = Kind::Internal;
  binding.mKey = QUuid::createUuid();
  binding.mName = name;
  return binding;
}

void FB_Variables::release(FB_Edit& edit, const QSet<QUuid>& keys) {
  takeOff(edit, keys, [](const Uses&, const QUuid&) { return false; });
}

void FB_Variables::releaseAfterRemoval(FB_Edit& edit, const QSet<QUuid>& keys, const QSet<QUuid>& written) {
  takeOff(edit, keys, [&written](const Uses& uses, const QUuid& key) {
    return uses.mOutputs + uses.mOthers == 0 && (uses.mInputs == 1 || written.contains(key));
  });
}
