#include "db/Address_Clipboard.h"

#include "db/Address_Edits.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QLatin1StringView cProject = "project"_L1;
constexpr QLatin1StringView cUse = "use"_L1;
constexpr QLatin1StringView cItems = "items"_L1;
constexpr QLatin1StringView cLevel = "level"_L1;
constexpr QLatin1StringView cKey = "key"_L1;
constexpr QLatin1StringView cData = "data"_L1;
constexpr int cMain = 0;
constexpr int cMiddle = 1;
constexpr int cSub = 2;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Clipboard", text);
}

QString levelType() {
  return Address_Clipboard::mimeType() + QStringLiteral("-level");
}

/// So that what one studio dragged is not taken for its own by another that has a copy of the project open.
QString projectOf(const Project_Session& session) {
  return session.path();
}

template <class Group>
QJsonObject packRecord(int level, const Group& group) {
  return {{cLevel, level},
          {cKey, group.mKey.toString(QUuid::WithoutBraces)},
          {cData, QString::fromLatin1(group.toData().toBase64())}};
}

QJsonObject packWhole(const DB_Address_Sub_Group& sub) {
  return packRecord(cSub, sub);
}

template <class Group>
QJsonObject packWhole(int level, const Group& group, const auto& children) {
  QJsonArray items;
  for (const auto& child : children) {
    if constexpr (requires { child->mSubGroups; }) {
      items.append(packWhole(cMiddle, *child, child->mSubGroups));
    } else {
      items.append(packWhole(*child));
    }
  }
  QJsonObject packed = packRecord(level, group);
  packed.insert(cItems, items);
  return packed;
}

/// Whether a group around the one of that key is among the keys, too.
bool isInside(const Address_Tree& tree, const QUuid& key, const QSet<QUuid>& keys) {
  const DB_Address_Sub_Group* const sub = tree.subGroup(key);
  const DB_Address_Middle_Group* const middle = tree.middleGroup(sub ? sub->mMiddleKey : key);
  return (sub && keys.contains(sub->mMiddleKey)) || (middle && keys.contains(middle->mMainKey));
}

/// The group that takes things of that level in, near the group or address `target`; null when there is none.
QUuid parentFor(const Address_Tree& tree, int level, const QUuid& target) {
  const DB_Address_Sub_Group* const sub = tree.subGroup(target);
  const DB_Address_Middle_Group* const middle = tree.middleGroup(sub ? sub->mMiddleKey : target);
  const DB_Address_MainGroup* const main = tree.mainGroup(middle ? middle->mMainKey : target);
  if (level == cSub) {
    return middle ? middle->mKey : QUuid();
  }
  return main ? main->mKey : QUuid();
}

struct Unpacked {
  bool mIsMove = false;
  int mLevel = cSub; ///< of all items
  QJsonArray mItems;
};

/// Whether the item is of that level, and all below it of the levels and no more than fit below it.
bool isWhole(const QJsonObject& item, int level) {
  const QJsonArray items = item.value(cItems).toArray();
  const qsizetype most = level == cMain     ? Group_Address::cMiddleMax + 1
                         : level == cMiddle ? Group_Address::cSubMax + 1
                                            : 0;
  return item.value(cLevel).toInt(-1) == level && items.size() <= most &&
         std::all_of(items.cbegin(), items.cend(),
                     [level](const QJsonValue& below) { return isWhole(below.toObject(), level + 1); });
}

std::optional<Unpacked> unpack(const Project_Session& session, const QByteArray& packed) {
  const QJsonObject object = QJsonDocument::fromJson(packed).object();
  Unpacked unpacked;
  unpacked.mItems = object.value(cItems).toArray();
  unpacked.mIsMove = object.value(cUse).toInt() == static_cast<int>(Address_Clipboard::Use::Move) &&
                     object.value(cProject).toString() == projectOf(session);
  if (unpacked.mItems.isEmpty()) {
    return std::nullopt;
  }
  unpacked.mLevel = unpacked.mItems.at(0).toObject().value(cLevel).toInt(-1);
  const bool isLevel = unpacked.mLevel >= cMain && unpacked.mLevel <= cSub;
  const bool isAllWhole = isLevel && std::all_of(unpacked.mItems.cbegin(), unpacked.mItems.cend(),
                                                 [level = unpacked.mLevel](const QJsonValue& item) {
                                                   return isWhole(item.toObject(), level);
                                                 });
  return isAllWhole ? std::optional(unpacked) : std::nullopt;
}

QList<QUuid> keysOf(const QJsonArray& items) {
  QList<QUuid> keys;
  for (const QJsonValue item : items) {
    keys.append(QUuid(item.toObject().value(cKey).toString()));
  }
  return keys;
}

/// Makes copies of packed groups in the tree.
class Paster {
public:
  Paster(Project_Session& session, Edit_Scope& scope, Address_Clipboard::Result& result)
      : mSession(session),
        mTree(session.database().mAddresses),
        mScope(scope),
        mResult(result) {}

  void addSub(const QJsonObject& from, const DB_Address_Middle_Group& middle) {
    auto sub = read<DB_Address_Sub_Group>(from);
    const int main = mTree.mainGroup(middle.mMainKey)->mNumber;
    sub->mMiddleKey = middle.mKey;
    sub->mNumber = Address_Edits::freeSub(mSession, main, middle.mNumber, sub->mNumber);
    sub->mOrigin.clear();
    checkImported(*sub);
    insert(std::move(sub));
  }

  void addMiddle(const QJsonObject& from, const DB_Address_MainGroup& main) {
    auto middle = read<DB_Address_Middle_Group>(from);
    middle->mMainKey = main.mKey;
    middle->mNumber = Address_Edits::freeMiddle(mSession, main.mNumber, middle->mNumber);
    if (const DB_Address_Middle_Group* const added = insert(std::move(middle))) {
      addChildren(from, [&](const QJsonObject& item) { addSub(item, *added); });
    }
  }

  void addMain(const QJsonObject& from) {
    auto main = read<DB_Address_MainGroup>(from);
    main->mNumber = Address_Edits::freeMain(mSession, main->mNumber);
    if (const DB_Address_MainGroup* const added = insert(std::move(main))) {
      addChildren(from, [&](const QJsonObject& item) { addMiddle(item, *added); });
    }
  }

private:
  template <class Add>
  void addChildren(const QJsonObject& from, Add&& add) {
    ++mDepth;
    for (const QJsonValue item : from.value(cItems).toArray()) {
      add(item.toObject());
    }
    --mDepth;
  }

  template <class Group>
  static std::unique_ptr<Group> read(const QJsonObject& from) {
    auto group = std::make_unique<Group>();
    group->setData(QByteArray::fromBase64(from.value(cData).toString().toLatin1()));
    group->mKey = QUuid::createUuid();
    group->mName = DB_Text::singleLine(group->mName).left(Address_Edits::cNameLimit);
    group->mDescription = DB_Text::clean(group->mDescription).left(Address_Edits::cDescriptionLimit);
    return group;
  }

  /// What an import left in an address beside its name and description; from outside it may be anything.
  static void checkImported(DB_Address_Sub_Group& sub) {
    const Datapoint_Id dpt = sub.mDpt;
    if (dpt.mMain < 0 || dpt.mMain > Datapoint_Id::cNumberMax || dpt.mSub < Datapoint_Id::cAnySub ||
        dpt.mSub > Datapoint_Id::cNumberMax) {
      sub.mDpt = {};
    }
    sub.mDptRaw = DB_Text::singleLine(sub.mDptRaw).left(Address_Edits::cNameLimit);
    sub.mSecurity = DB_Text::singleLine(sub.mSecurity).left(Address_Edits::cNameLimit);
  }

  /// Null when there was no free number, which is told.
  template <class Group>
  Group* insert(std::unique_ptr<Group> group) {
    if (group->mNumber < 0) {
      mResult.mFaults.append(tr("Für \"%1\" ist keine Nummer frei.").arg(group->mName));
      return nullptr;
    }
    Group* const added = mTree.add(std::move(group));
    if (mDepth == 0) {
      mResult.mKeys.append(added->mKey);
    }
    mScope.created(mSession.addressUndo(), added->mKey);
    ++mResult.mAdded;
    return added;
  }

  Project_Session& mSession;
  Address_Tree& mTree;
  Edit_Scope& mScope;
  Address_Clipboard::Result& mResult;
  int mDepth = 0; ///< 0 for what was packed itself
};

Edit_Result noPlace(int level) {
  return Edit_Result::refused(level == cSub ? tr("Adressen gehören in eine Mittelgruppe: zuerst eine auswählen.")
                                            : tr("Mittelgruppen gehören in eine Hauptgruppe: zuerst eine auswählen."));
}

} // namespace

QString Address_Clipboard::mimeType() {
  return QStringLiteral("application/x-quarna-addresses");
}

QByteArray Address_Clipboard::pack(Project_Session& session, const QList<QUuid>& keys, Use use) {
  const Address_Tree& tree = session.database().mAddresses;
  const QSet<QUuid> all(keys.cbegin(), keys.cend());
  QJsonArray items;
  for (const QUuid& key : keys) {
    if (isInside(tree, key, all)) {
      continue;
    }
    if (const DB_Address_Sub_Group* const sub = tree.subGroup(key)) {
      items.append(packWhole(*sub));
    } else if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
      items.append(packWhole(cMiddle, *middle, middle->mSubGroups));
    } else if (const DB_Address_MainGroup* const main = tree.mainGroup(key)) {
      items.append(packWhole(cMain, *main, main->mMiddleGroups));
    }
  }
  return QJsonDocument(QJsonObject{{cProject, projectOf(session)}, {cUse, static_cast<int>(use)}, {cItems, items}})
      .toJson(QJsonDocument::Compact);
}

void Address_Clipboard::fill(QMimeData& data, Project_Session& session, const QList<QUuid>& keys, Use use) {
  const QByteArray packed = pack(session, keys, use);
  const std::optional<Unpacked> unpacked = unpack(session, packed);
  data.setData(mimeType(), packed);
  data.setData(levelType(), unpacked ? QByteArray::number(unpacked->mLevel) : QByteArray());
}

QUuid Address_Clipboard::singleAddress(const QMimeData& data) {
  if (data.data(levelType()).toInt() != cSub) {
    return {};
  }
  const QJsonArray items = QJsonDocument::fromJson(data.data(mimeType())).object().value(cItems).toArray();
  return items.size() == 1 && isWhole(items.at(0).toObject(), cSub) ? keysOf(items).constFirst() : QUuid();
}

bool Address_Clipboard::fits(Project_Session& session, const QMimeData& data, const QUuid& target) {
  bool isLevel = false;
  const int level = data.data(levelType()).toInt(&isLevel);
  const bool isMovable = isLevel && (level == cMiddle || level == cSub);
  return isMovable && !parentFor(session.database().mAddresses, level, target).isNull();
}

Edit_Result Address_Clipboard::paste(Project_Session& session, const QByteArray& packed, const QUuid& target,
                                     Result& result) {
  result = {};
  Address_Tree& tree = session.database().mAddresses;
  const std::optional<Unpacked> unpacked = unpack(session, packed);
  if (!unpacked) {
    return Edit_Result::refused(tr("Einfügen lassen sich Adressen, Mittelgruppen oder Hauptgruppen, aber nicht "
                                   "gemischt."));
  }
  const QUuid parent = unpacked->mLevel == cMain ? QUuid() : parentFor(tree, unpacked->mLevel, target);
  if (unpacked->mLevel != cMain && parent.isNull()) {
    return noPlace(unpacked->mLevel);
  }
  if (unpacked->mIsMove && unpacked->mLevel == cMain) {
    return Edit_Result::refused(
        tr("Eine Hauptgruppe steht für sich; eine andere Nummer bekommt sie in der Spalte \"Adresse\"."));
  }
  if (unpacked->mIsMove) {
    const QList<QUuid> keys = keysOf(unpacked->mItems);
    const qsizetype elsewhere = std::count_if(
        keys.cbegin(), keys.cend(), [&](const QUuid& key) { return parentFor(tree, unpacked->mLevel, key) != parent; });
    Edit_Result edit = Address_Edits::move(session, keys, parent);
    if (edit) {
      result.mKeys = keys;
      result.mMoved = elsewhere;
    }
    return edit;
  }
  if (unpacked->mItems.size() > Address_Edits::freeCount(session, parent)) {
    return Edit_Result::refused(
        tr("In der Gruppe sind nicht genug Nummern frei; eingefügt werden sollten %1.").arg(unpacked->mItems.size()));
  }
  Edit_Scope scope(session.history(), tr("Einfügen"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  Paster paster(session, scope, result);
  tree.beginChange();
  for (const QJsonValue value : unpacked->mItems) {
    const QJsonObject item = value.toObject();
    switch (unpacked->mLevel) {
    case cMain:
      paster.addMain(item);
      break;
    case cMiddle:
      paster.addMiddle(item, *tree.mainGroup(parent));
      break;
    default:
      paster.addSub(item, *tree.middleGroup(parent));
    }
  }
  tree.endChange();
  return Edit_Result::done();
}
