#include "base/Group_Address.h"
#include "db/DB_Address_Groups.h"
#include "db/DB_Text.h"
#include "db/Variable_Edits.h"
#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>

#include <optional>

namespace {

using Kind = DB_Address_Binding::Kind;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Page_Edits", text);
}

/// Refuses two pins that no wire may join: of one side, of one block, and those that are not there.
Edit_Result checkPins(const FB_Edit& edit, const FB_Pin_Ref& from, const FB_Pin_Ref& to) {
  if (from.mSide == to.mSide) {
    return Edit_Result::refused(tr("Verbindungen sind nur zwischen Ausgang->Eingang und Eingang->Ausgang möglich."));
  }
  if (from.mBlock == to.mBlock) {
    return Edit_Result::refused(tr("Baustein Quelle und Ziel dürfen nicht gleich sein"));
  }
  Edit_Result result = edit.check(from);
  return result ? edit.check(to) : result;
}

bool isConnection(const FB_Edit& edit, const FB_Connection& connection) {
  const DB_FB_Pin* const output = edit.pin(connection.source());
  const DB_FB_Pin* const input = edit.pin(connection.target());
  return output && input && FB_Connections::isShared(output->mBinding, input->mBinding);
}

/// Gives pins another binding; the variables that they had and that nothing reads then go.
void rebind(FB_Edit& edit, const QList<FB_Pin_Ref>& pins, const DB_Address_Binding& binding) {
  QSet<QUuid> before;
  for (const FB_Pin_Ref& pin : pins) {
    const DB_Address_Binding& old = edit.pin(pin)->mBinding;
    if (old.mKind == Kind::Internal && !FB_Connections::isShared(old, binding)) {
      before.insert(old.mKey);
    }
  }
  for (const FB_Pin_Ref& pin : pins) {
    edit.setBinding(pin, binding);
  }
  FB_Variables::release(edit, before);
}

DB_Address_Binding newVariable(const FB_Edit& edit, const FB_Pin_Ref& pin) {
  return FB_Variables::make(
      FB_Variables::Names(edit.database()).take(FB_Variables::nameFor(*edit.block(pin.mBlock), *edit.pin(pin))));
}

/// Takes the beginning of the wire to another output.
void moveSource(FB_Edit& edit, const FB_Connection& connection, const FB_Pin_Ref& to) {
  const DB_Address_Binding wire = edit.pin(connection.target())->mBinding;
  rebind(edit, {connection.target()}, DB_Address_Binding(edit.pin(to)->mBinding));
  if (edit.pin(to)->mBinding.mKind == Kind::None) {
    // The variable comes along, unless something else hangs on the old output by it.
    const bool isFree = edit.pin(connection.source())->mBinding.mKind == Kind::None;
    rebind(edit, {to, connection.target()}, isFree ? wire : newVariable(edit, connection.target()));
  }
}

} // namespace

Edit_Result FB_Page_Edits::connectPins(Project_Session& session, const FB_Pin_Ref& from, const FB_Pin_Ref& to) {
  FB_Edit edit(session, tr("Verbinden"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result = checkPins(edit, from, to);
  if (!result) {
    return result;
  }
  edit.record(from.mBlock);
  edit.record(to.mBlock);
  const DB_Address_Binding first = edit.pin(from)->mBinding;
  const DB_Address_Binding other = edit.pin(to)->mBinding;
  if (first.mKind != Kind::None) {
    rebind(edit, {to}, first);
  } else if (other.mKind != Kind::None) {
    rebind(edit, {from}, other);
  } else {
    rebind(edit, {from, to}, newVariable(edit, from));
  }
  return result;
}

Edit_Result FB_Page_Edits::removeConnection(Project_Session& session, const FB_Connection& connection) {
  FB_Edit edit(session, tr("Verbindung trennen"));
  if (!edit) {
    return edit.refusal();
  }
  if (isConnection(edit, connection)) {
    edit.record(connection.mTarget);
    edit.record(connection.mSource);
    rebind(edit, {connection.target()}, {});
  }
  return Edit_Result::done();
}

Edit_Result FB_Page_Edits::moveConnection(Project_Session& session, const FB_Connection& connection, FB_Side end,
                                          const FB_Pin_Ref& to) {
  FB_Edit edit(session, tr("Verbindung verlegen"));
  if (!edit) {
    return edit.refusal();
  }
  const bool isSource = end == FB_Side::Output;
  const FB_Pin_Ref moved = isSource ? connection.source() : connection.target();
  const FB_Pin_Ref fixed = isSource ? connection.target() : connection.source();
  if (to == moved || !isConnection(edit, connection)) {
    return Edit_Result::done();
  }
  Edit_Result result = checkPins(edit, fixed, to);
  if (!result) {
    return result;
  }
  edit.record(connection.mSource);
  edit.record(connection.mTarget);
  if (isSource) {
    moveSource(edit, connection, to);
  } else {
    rebind(edit, {to}, DB_Address_Binding(edit.pin(fixed)->mBinding));
    rebind(edit, {moved}, {});
  }
  return result;
}

Edit_Result FB_Page_Edits::bind(Project_Session& session, const FB_Pin_Ref& pin, const QUuid& address) {
  FB_Edit edit(session, tr("Gruppenadresse verknüpfen"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result = edit.check(pin);
  if (!result) {
    return result;
  }
  const Address_Tree& tree = edit.database().mAddresses;
  const DB_Address_Sub_Group* const group = tree.subGroup(address);
  if (!group) {
    return Edit_Result::refused(tr("Die Gruppenadresse gibt es nicht mehr."));
  }
  DB_Address_Binding binding;
  binding.bindTo(*group, tree.addressOf(*group));
  rebind(edit, {pin}, binding);
  return result;
}

Edit_Result FB_Page_Edits::bindVariable(Project_Session& session, const FB_Pin_Ref& pin, const QUuid& variable) {
  FB_Edit edit(session, tr("Variable verknüpfen"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result = edit.check(pin);
  if (!result) {
    return result;
  }
  const std::optional<DB_Address_Binding> binding = FB_Variables::find(
      edit.database(), [&variable](const DB_Address_Binding& known) { return known.mKey == variable; });
  if (!binding) {
    return Edit_Result::refused(tr("Die Variable gibt es nicht mehr."));
  }
  rebind(edit, {pin}, *binding);
  return result;
}

Edit_Result FB_Page_Edits::bindNewVariable(Project_Session& session, const FB_Pin_Ref& pin, const QString& name) {
  FB_Edit edit(session, tr("Variable verknüpfen"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result = edit.check(pin);
  if (result) {
    result = Variable_Edits::checkName(name);
  }
  if (!result) {
    return result;
  }
  const QString clean = DB_Text::singleLine(name);
  if (FB_Variables::find(edit.database(), [&clean](const DB_Address_Binding& known) { return known.mName == clean; })) {
    return Edit_Result::refused(tr("Variable bereits vorhanden: \"%1\".").arg(clean));
  }
  rebind(edit, {pin}, FB_Variables::make(clean));
  return result;
}

Edit_Result FB_Page_Edits::unbind(Project_Session& session, const FB_Pin_Ref& pin) {
  return unbind(session, QList<FB_Pin_Ref>{pin});
}

Edit_Result FB_Page_Edits::unbind(Project_Session& session, const QList<FB_Pin_Ref>& pins) {
  FB_Edit edit(session, pins.size() == 1 ? tr("Verknüpfung lösen") : tr("Verknüpfungen lösen"));
  if (!edit) {
    return edit.refusal();
  }
  for (const FB_Pin_Ref& pin : pins) {
    if (Edit_Result check = edit.check(pin); !check) {
      return check;
    }
  }
  rebind(edit, pins, {});
  return Edit_Result::done();
}
