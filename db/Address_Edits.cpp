#include "db/Address_Edits.h"

#include "base/Datapoint_Id.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace {

using Field = Address_Edits::Field;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Edits", text);
}

/// A step that changes more than this rebuilds the views once instead of telling of each record.
constexpr qsizetype cManyRecords = 50;

struct Field_Row {
  Field mField = Field::Name;
  const char* mStep = "";                      ///< how the undo step is called
  bool DB_Address_Sub_Group::*mFlag = nullptr; ///< none for texts
};

// clang-format off
constexpr Field_Row cFields[] = {
    {Field::Name, QT_TRANSLATE_NOOP("Address_Edits", "Umbenennen"), nullptr},
    {Field::Description, QT_TRANSLATE_NOOP("Address_Edits", "Beschreibung ändern"), nullptr},
    {Field::Type, QT_TRANSLATE_NOOP("Address_Edits", "Datenpunkttyp ändern"), nullptr},
    {Field::ReadAtStart, QT_TRANSLATE_NOOP("Address_Edits", "Lesen Start ändern"), &DB_Address_Sub_Group::mReadAtStart},
    {Field::ReadCyclic, QT_TRANSLATE_NOOP("Address_Edits", "Zyklisches Lesen ändern"), &DB_Address_Sub_Group::mReadCyclic},
    {Field::Write, QT_TRANSLATE_NOOP("Address_Edits", "Schreiben ändern"), &DB_Address_Sub_Group::mWrite},
    {Field::Active, QT_TRANSLATE_NOOP("Address_Edits", "Aktivierung ändern"), &DB_Address_Sub_Group::mActive},
};
// clang-format on

const Field_Row& rowOf(Field field) {
  return cFields[static_cast<size_t>(field)];
}

Edit_Result checkLength(const QString& text, qsizetype limit, const QString& refusal) {
  return text.size() > limit ? Edit_Result::refused(refusal.arg(text.size()).arg(limit)) : Edit_Result::done();
}

QString cleaned(Field field, const QVariant& value) {
  return field == Field::Description ? DB_Text::clean(value.toString()).trimmed()
                                     : DB_Text::singleLine(value.toString());
}

std::optional<Datapoint_Id> typeOf(const QVariant& value) {
  const QString text = value.toString().trimmed();
  return text.isEmpty() ? Datapoint_Id() : Datapoint_Id::parse(text);
}

/// The addresses below a group, or the address itself.
void collectAddresses(const Address_Tree& tree, const QUuid& key, QList<QUuid>& keys) {
  const auto collectMiddle = [&keys](const DB_Address_Middle_Group& middle) {
    for (const auto& sub : middle.mSubGroups) {
      keys.append(sub->mKey);
    }
  };
  if (tree.subGroup(key)) {
    keys.append(key);
  } else if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
    collectMiddle(*middle);
  } else if (const DB_Address_MainGroup* const main = tree.mainGroup(key)) {
    for (const auto& middleOfMain : main->mMiddleGroups) {
      collectMiddle(*middleOfMain);
    }
  }
}

void setText(DB_Data_Base& record, Field field, const QString& text) {
  const auto apply = [&](auto& group) { (field == Field::Name ? group.mName : group.mDescription) = text; };
  if (auto* const sub = dynamic_cast<DB_Address_Sub_Group*>(&record)) {
    apply(*sub);
  } else if (auto* const middle = dynamic_cast<DB_Address_Middle_Group*>(&record)) {
    apply(*middle);
  } else if (auto* const main = dynamic_cast<DB_Address_MainGroup*>(&record)) {
    apply(*main);
  }
}

void setType(DB_Address_Sub_Group& group, const Datapoint_Id& type) {
  group.mDpt = type;
  group.mDptGuessed = false;
  group.mDptRaw.clear(); // it told of the type before
}

/// Changes one record as the field asks.
std::function<void(DB_Data_Base&)> changeFor(Field field, const QVariant& value) {
  if (bool DB_Address_Sub_Group::*const flag = rowOf(field).mFlag) {
    return [flag, isOn = value.toBool()](DB_Data_Base& record) {
      static_cast<DB_Address_Sub_Group&>(record).*flag = isOn;
    };
  }
  if (field == Field::Type) {
    return [type = typeOf(value).value_or(Datapoint_Id())](DB_Data_Base& record) {
      setType(static_cast<DB_Address_Sub_Group&>(record), type);
    };
  }
  return [field, text = cleaned(field, value)](DB_Data_Base& record) { setText(record, field, text); };
}

/// The texts of something new.
Edit_Result checkContents(const Address_Edits::Contents& contents) {
  const Edit_Result name = Address_Edits::check(Field::Name, contents.mName);
  return name ? Address_Edits::check(Field::Description, contents.mDescription) : name;
}

template <class Group>
std::unique_ptr<Group> makeGroup(int number, const Address_Edits::Contents& contents) {
  auto group = std::make_unique<Group>();
  group->mNumber = number;
  group->mName = cleaned(Field::Name, contents.mName);
  group->mDescription = cleaned(Field::Description, contents.mDescription);
  return group;
}

/// Puts a new group into the tree; its key.
template <class Group>
QUuid insert(Project_Session& session, Edit_Scope& scope, std::unique_ptr<Group> group) {
  const QUuid key = session.database().mAddresses.add(std::move(group))->mKey;
  scope.created(session.addressUndo(), key);
  return key;
}

void answer(QUuid* to, const QUuid& key) {
  if (to) {
    *to = key;
  }
}

} // namespace

Edit_Result Address_Edits::check(Field field, const QVariant& value) {
  switch (field) {
  case Field::Name:
    return checkLength(cleaned(field, value), cNameLimit, tr("Der Name hat %1 Zeichen, erlaubt sind höchstens %2."));
  case Field::Description:
    return checkLength(cleaned(field, value), cDescriptionLimit,
                       tr("Die Beschreibung hat %1 Zeichen, erlaubt sind höchstens %2."));
  case Field::Type:
    return typeOf(value) ? Edit_Result::done()
                         : Edit_Result::refused(tr("\"%1\" ist kein Datenpunkttyp. Erlaubt sind Haupt.Unter wie 9.001, "
                                                   "eine Hauptnummer wie 9, oder nichts.")
                                                    .arg(value.toString().left(40)));
  default:
    return Edit_Result::done();
  }
}

Edit_Result Address_Edits::set(Project_Session& session, const QList<QUuid>& keys, Field field, const QVariant& value) {
  Address_Tree& tree = session.database().mAddresses;
  if (Edit_Result result = check(field, value); !result) {
    return result;
  }
  QList<QUuid> targets;
  for (const QUuid& key : keys) {
    if (field == Field::Name || field == Field::Description) {
      targets.append(tree.record(key) ? QList<QUuid>{key} : QList<QUuid>());
    } else {
      collectAddresses(tree, key, targets);
    }
  }
  if (targets.isEmpty()) {
    const bool isThere =
        std::any_of(keys.cbegin(), keys.cend(), [&tree](const QUuid& key) { return tree.record(key); });
    return Edit_Result::refused(isThere ? tr("In der Gruppe ist keine Adresse.")
                                        : tr("Die Adresse gibt es nicht mehr."));
  }
  Edit_Scope scope(session.history(), tr(rowOf(field).mStep));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  const std::function<void(DB_Data_Base&)> change = changeFor(field, value);
  const bool isMany = targets.size() > cManyRecords;
  if (isMany) {
    tree.beginChange();
  }
  for (const QUuid& key : std::as_const(targets)) {
    scope.modified(session.addressUndo(), key);
    tree.change(key, change);
  }
  if (isMany) {
    tree.endChange();
  }
  return Edit_Result::done();
}

Edit_Result Address_Edits::addMainGroup(Project_Session& session, int main, const Contents& contents, QUuid* added) {
  if (!Group_Address(main, 0, 0).isOnBus()) {
    return Edit_Result::refused(tr("Die Hauptgruppe %1 gibt es nicht. Erlaubt sind 0..31.").arg(main));
  }
  if (const DB_Address_MainGroup* const present = session.database().mAddresses.mainGroup(main)) {
    return Edit_Result::refused(
        tr("Die Hauptgruppe %1 gibt es schon: \"%2\".").arg(Group_Address::mainGroupText(main), present->mName));
  }
  if (Edit_Result result = checkContents(contents); !result) {
    return result;
  }
  Edit_Scope scope(session.history(), tr("Hauptgruppe anlegen"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  answer(added, insert(session, scope, makeGroup<DB_Address_MainGroup>(main, contents)));
  return Edit_Result::done();
}

Edit_Result Address_Edits::addMiddleGroup(Project_Session& session, int main, int middle, const Contents& contents,
                                          QUuid* added) {
  Address_Tree& tree = session.database().mAddresses;
  if (!Group_Address(main, middle, 0).isOnBus()) {
    return Edit_Result::refused(tr("Die Mittelgruppe %1 gibt es nicht. Erlaubt sind 0..31/0..7.")
                                    .arg(Group_Address::middleGroupText(main, middle)));
  }
  if (const DB_Address_Middle_Group* const present = tree.middleGroup(main, middle)) {
    return Edit_Result::refused(tr("Die Mittelgruppe %1 gibt es schon: \"%2\".")
                                    .arg(Group_Address::middleGroupText(main, middle), present->mName));
  }
  if (Edit_Result result = checkContents(contents); !result) {
    return result;
  }
  Edit_Scope scope(session.history(), tr("Mittelgruppe anlegen"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  tree.beginChange();
  if (!tree.mainGroup(main)) {
    insert(session, scope, makeGroup<DB_Address_MainGroup>(main, {}));
  }
  auto group = makeGroup<DB_Address_Middle_Group>(middle, contents);
  group->mMainKey = tree.mainGroup(main)->mKey;
  answer(added, insert(session, scope, std::move(group)));
  tree.endChange();
  return Edit_Result::done();
}

Edit_Result Address_Edits::add(Project_Session& session, const Group_Address& address, const Contents& contents,
                               QUuid* added) {
  Address_Tree& tree = session.database().mAddresses;
  if (!address.isOnBus()) {
    return Edit_Result::refused(
        tr("Die Adresse %1 gibt es nicht. Erlaubt sind 0..31/0..7/0..255.").arg(address.toString()));
  }
  if (const DB_Address_Sub_Group* const present = tree.subGroup(address)) {
    return Edit_Result::refused(tr("Die Adresse %1 gibt es schon: \"%2\".").arg(address.toString(), present->mName));
  }
  if (Edit_Result result = checkContents(contents); !result) {
    return result;
  }
  Edit_Scope scope(session.history(), tr("Adresse anlegen"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  tree.beginChange();
  if (!tree.middleGroup(address.main(), address.middle())) {
    // Refused for nothing but the operating mode, which the scope has asked for.
    addMiddleGroup(session, address.main(), address.middle(), {});
  }
  auto group = makeGroup<DB_Address_Sub_Group>(address.sub(), contents);
  group->mMiddleKey = tree.middleGroup(address.main(), address.middle())->mKey;
  group->mDpt = contents.mDpt;
  answer(added, insert(session, scope, std::move(group)));
  tree.endChange();
  return Edit_Result::done();
}
