#include "db/Address_Import.h"

#include "base/Decimal_Text.h"
#include "db/Address_Comparison.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>

namespace {

using Kind = Address_Import_Row::Kind;
using Level = Address_Import_Row::Level;
using Values = Address_Import_Row::Values;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Import", text);
}

/// Carries the ticked rows out, recording each change. The rows come groups first.
class Applier {
public:
  Applier(Project_Session& session, Edit_Scope& scope, Address_Import::Result& result)
      : mUndo(session.addressUndo()),
        mTree(session.database().mAddresses),
        mScope(scope),
        mResult(result) {}

  void apply(const Address_Import_Plan& plan) {
    noteGroups(plan);
    mTree.reserve(mTree.subGroupCount() + plan.count(Kind::New));
    mTree.beginChange();
    for (const Address_Import_Row& row : plan.rows()) {
      if (row.mTicked) {
        mResult.mSkipped += apply(row) ? 0 : 1;
      }
    }
    mTree.endChange();
  }

private:
  /// What new groups are called, ticked or not: an address may need them.
  void noteGroups(const Address_Import_Plan& plan) {
    for (const Address_Import_Row& row : plan.rows()) {
      if (row.mLevel != Level::Address) {
        (row.mLevel == Level::MainGroup ? mMains : mMiddles).insert(row.mAddress, row.mIncoming);
      }
    }
  }

  /// Counts what it does.
  [[nodiscard]] bool apply(const Address_Import_Row& row) {
    switch (row.mLevel) {
    case Level::MainGroup:
      return applyGroup(row, mTree.mainGroup(row.mAddress.main()));
    case Level::MiddleGroup:
      return applyGroup(row, mTree.middleGroup(row.mAddress.main(), row.mAddress.middle()));
    case Level::Address:
      break;
    }
    return applyAddress(row, mTree.subGroup(row.mAddress));
  }

  template <class Group>
  bool applyGroup(const Address_Import_Row& row, Group* present) {
    if (row.mKey.isNull()) {
      if (present) {
        return false;
      }
      if (row.mLevel == Level::MainGroup) {
        mainGroup(row.mAddress.main());
      } else {
        middleGroup(row.mAddress.main(), row.mAddress.middle());
      }
      return true;
    }
    if (!present || present->mKey != row.mKey || present->mName != row.mPresent.mName ||
        present->mDescription != row.mPresent.mDescription) {
      return false;
    }
    mScope.modified(mUndo, row.mKey);
    ++mResult.mGroupsChanged;
    return mTree.change(row.mKey, [&row](DB_Data_Base& record) {
      auto& group = static_cast<Group&>(record);
      group.mName = row.mIncoming.mName;
      group.mDescription = row.mIncoming.mDescription;
    });
  }

  bool applyAddress(const Address_Import_Row& row, const DB_Address_Sub_Group* first) {
    if (row.mKey.isNull()) {
      if (first) {
        return false;
      }
      addAddress(row);
      return true;
    }
    const DB_Address_Sub_Group* const present = mTree.subGroup(row.mKey);
    if (!present || mTree.addressOf(*present) != row.mAddress || Values::of(*present).differenceTo(row.mPresent)) {
      return false;
    }
    if (row.mKind == Kind::Vanished) {
      mScope.deleted(mUndo, row.mKey);
      ++mResult.mDeleted;
      return mTree.take(row.mKey) != nullptr;
    }
    mScope.modified(mUndo, row.mKey);
    ++mResult.mChanged;
    return mTree.change(
        row.mKey, [&row](DB_Data_Base& record) { row.mIncoming.applyTo(static_cast<DB_Address_Sub_Group&>(record)); });
  }

  void addAddress(const Address_Import_Row& row) {
    const DB_Address_Middle_Group& middle = middleGroup(row.mAddress.main(), row.mAddress.middle());
    auto group = std::make_unique<DB_Address_Sub_Group>();
    group->mMiddleKey = middle.mKey;
    group->mNumber = row.mAddress.sub();
    row.mIncoming.applyTo(*group);
    group->mOrigin = originOf(row, *mTree.mainGroup(middle.mMainKey), middle);
    mScope.created(mUndo, mTree.add(std::move(group))->mKey);
    ++mResult.mNew;
  }

  /// What of the export's own structure the three levels cannot show: another way of writing, further ranges.
  [[nodiscard]] static QString originOf(const Address_Import_Row& row, const DB_Address_MainGroup& main,
                                        const DB_Address_Middle_Group& middle) {
    const QString path = middle.mName.isEmpty() ? main.mName : main.mName + QStringLiteral(" / ") + middle.mName;
    QStringList origin(row.mForeignText);
    // An ESF divides the names by points, and so leaves open where they end.
    const auto withPoints = [](QString names) { return names.replace(QStringLiteral(" / "), QStringLiteral(".")); };
    if (withPoints(row.mRangePath) != withPoints(path)) {
      origin.append(row.mRangePath);
    }
    origin.removeAll(QString());
    return origin.join(QStringLiteral(", "));
  }

  DB_Address_MainGroup& mainGroup(int main) {
    if (DB_Address_MainGroup* const present = mTree.mainGroup(main)) {
      return *present;
    }
    return add<DB_Address_MainGroup>(main, mMains.value({main, 0, 0}), {});
  }

  DB_Address_Middle_Group& middleGroup(int main, int middle) {
    if (DB_Address_Middle_Group* const present = mTree.middleGroup(main, middle)) {
      return *present;
    }
    return add<DB_Address_Middle_Group>(middle, mMiddles.value({main, middle, 0}), mainGroup(main).mKey);
  }

  template <class Group>
  Group& add(int number, const Values& values, const QUuid& mainKey) {
    auto group = std::make_unique<Group>();
    if constexpr (std::is_same_v<Group, DB_Address_Middle_Group>) {
      group->mMainKey = mainKey;
    }
    group->mNumber = number;
    group->mName = values.mName;
    group->mDescription = values.mDescription;
    Group* const added = mTree.add(std::move(group));
    mScope.created(mUndo, added->mKey);
    ++mResult.mGroupsNew;
    return *added;
  }

  Undo_Adapter& mUndo;
  Address_Tree& mTree;
  Edit_Scope& mScope;
  Address_Import::Result& mResult;
  QHash<Group_Address, Values> mMains;
  QHash<Group_Address, Values> mMiddles;
};

} // namespace

QString Address_Import::Result::toString() const {
  QStringList parts;
  // What is counted is named once, with the first of its numbers.
  const auto add = [&parts](const QString& one, const QString& many, const auto&... counts) {
    bool isNamed = false;
    for (const auto& [count, text] : {counts...}) {
      if (count > 0) {
        const QString noun = isNamed ? QString() : u' ' + (count == 1 ? one : many);
        parts.append(Decimal_Text::count(count) + noun + u' ' + text);
        isNamed = true;
      }
    }
  };
  add(tr("Adresse"), tr("Adressen"), std::pair(mNew, tr("neu")), std::pair(mChanged, tr("geändert")),
      std::pair(mDeleted, tr("gelöscht")));
  add(tr("Gruppe"), tr("Gruppen"), std::pair(mGroupsNew, tr("neu")), std::pair(mGroupsChanged, tr("geändert")));
  if (mSkipped > 0) {
    parts.append(tr("%1 ausgelassen, weil sich das Projekt inzwischen änderte").arg(Decimal_Text::count(mSkipped)));
  }
  return parts.isEmpty() ? tr("nichts geändert") : parts.join(QStringLiteral(", "));
}

Address_Import_Plan Address_Import::compare(const ProjectDatabase& database, const Ets_Groups& groups,
                                            const Options& options) {
  return Address_Comparison(database, groups, options).plan();
}

Edit_Result Address_Import::apply(Project_Session& session, const Address_Import_Plan& plan, Result& result) {
  result = {};
  Edit_Scope scope(session.history(), tr("Adressen importieren"), Edit_Scope::Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  Applier(session, scope, result).apply(plan);
  return Edit_Result::done();
}
