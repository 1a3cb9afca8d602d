#include "fb/properties/FB_Address_Edit.h"

#include "db/Address_Clipboard.h"
#include "db/Address_Tree.h"

#include <QCompleter>
#include <QDropEvent>
#include <QStringListModel>

namespace {

QString textOf(const Group_Address& address, const QString& name) {
  return name.isEmpty() ? address.toString() : address.toString() + u' ' + name;
}

/// Calls `visit` with each group address, in order, until it answers false.
template <class Visit>
void walk(const Address_Tree& tree, Visit&& visit) {
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        if (!visit(*sub, Group_Address(main->mNumber, middle->mNumber, sub->mNumber))) {
          return;
        }
      }
    }
  }
}

} // namespace

FB_Address_Edit::FB_Address_Edit(const Address_Tree& addresses, QWidget* parent)
    : FB_Dev_Properties_LineEdit(-1, parent),
      mAddresses(addresses),
      mProposals(new QStringListModel(this)) {
  auto* const completer = new QCompleter(mProposals, this);
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  setCompleter(completer);
  connect(this, &QLineEdit::textEdited, this, &FB_Address_Edit::propose);
  connect(this, &FB_Dev_Properties_LineEdit::valueChanged, this, &FB_Address_Edit::choose);
}

QString FB_Address_Edit::textOf(const DB_Address_Binding& binding) {
  switch (binding.mKind) {
  case DB_Address_Binding::Kind::None:
    return {};
  case DB_Address_Binding::Kind::Internal:
    return binding.mName;
  case DB_Address_Binding::Kind::GroupAddress:
    break;
  }
  return ::textOf({binding.mMain, binding.mMiddle, binding.mSub}, binding.mName);
}

void FB_Address_Edit::takeOff() {
  if (!text().isEmpty() || !placeholderText().isEmpty()) {
    emit addressChosen({});
  }
}

void FB_Address_Edit::propose(const QString& text) {
  QStringList matches;
  if (const QString typed = text.trimmed(); !typed.isEmpty()) {
    walk(mAddresses, [&](const DB_Address_Sub_Group& group, const Group_Address& address) {
      if (address.toString().startsWith(typed) || group.mName.contains(typed, Qt::CaseInsensitive)) {
        matches.append(::textOf(address, group.mName));
      }
      return matches.size() < cMostMatches;
    });
  }
  mProposals->setStringList(matches);
}

/// By its number, which may be followed by the name, else by its name; null for none.
QUuid FB_Address_Edit::keyOf(const QString& text) const {
  if (const auto address = Group_Address::parse(text.section(u' ', 0, 0))) {
    if (const DB_Address_Sub_Group* const group = mAddresses.subGroup(*address)) {
      return group->mKey;
    }
  }
  QUuid key;
  walk(mAddresses, [&](const DB_Address_Sub_Group& group, const Group_Address&) {
    if (group.mName.compare(text, Qt::CaseInsensitive) == 0) {
      key = group.mKey;
    }
    return key.isNull();
  });
  return key;
}

void FB_Address_Edit::choose() {
  const QString typed = text().trimmed();
  const QUuid key = typed.isEmpty() ? QUuid() : keyOf(typed);
  if (key.isNull() && !typed.isEmpty()) {
    emit refused(tr("Eine Gruppenadresse \"%1\" gibt es im Projekt nicht.").arg(typed.left(80)));
  } else {
    emit addressChosen(key);
  }
}

void FB_Address_Edit::dragEnterEvent(QDragEnterEvent* event) {
  if (Address_Clipboard::singleAddress(*event->mimeData()).isNull()) {
    event->ignore();
  } else {
    event->setDropAction(Qt::LinkAction);
    event->accept();
  }
}

void FB_Address_Edit::dragMoveEvent(QDragMoveEvent* event) {
  event->setDropAction(Qt::LinkAction);
  event->accept();
}

void FB_Address_Edit::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::LinkAction);
  event->accept();
  emit addressChosen(Address_Clipboard::singleAddress(*event->mimeData()));
}
