#include "db/Project_Search.h"

#include "db/Address_Pattern.h"
#include "db/ProjectDatabase.h"

namespace {

using namespace Project_Search;

/// One search, on its way through the project.
class Finder {
public:
  Finder(const ProjectDatabase& database, const Query& query, const Address_Usage::Type_Name& typeName)
      : mDatabase(database),
        mSearch(query.mText, query.mOptions),
        mPattern(query.mText.trimmed()),
        mScope(query.mScope),
        mTypeName(typeName) {}

  Result run(const Address_Usage& usage) {
    if (mSearch.isEmpty()) {
      return {};
    }
    if (isIn(Scope::Addresses)) {
      findAddresses();
      findVariables(usage);
    }
    findPages(mDatabase.mFbPages, Kind::LogicPage, Kind::Block, Scope::Blocks);
    findPages(mDatabase.mWidgetPages, Kind::VisuPage, Kind::Element, Scope::Elements);
    return std::move(mResult);
  }

private:
  [[nodiscard]] bool isIn(Scope scope) const { return mScope == Scope::Everything || mScope == scope; }

  void add(const Hit& hit, const QString& text) {
    const bool isSamePlace = !mResult.mHits.empty() && mResult.mHits.back().mId == hit.mId;
    mResult.mPlaces += isSamePlace ? 0 : 1;
    mResult.mMatches += hit.mCount;
    mResult.mHits.push_back(hit);
    mResult.mHits.back().mState = static_cast<quint32>(qHash(text));
  }

  void addIfFound(const QUuid& id, Kind kind, Field field, int index, const QString& text) {
    if (const int count = mSearch.count(text); count > 0) {
      add({id, kind, field, index, count}, text);
    }
  }

  template <class Record>
  void findTexts(const Record& record, const QUuid& id, Kind kind) {
    for (const auto& [field, text] : Project_Texts::of<Record>()) {
      addIfFound(id, kind, field, 0, record.*text);
    }
  }

  template <class Group, class... Numbers>
  void findGroup(const Group& group, Kind kind, Numbers... numbers) {
    if (mPattern.matches(numbers...)) {
      add({group.mKey, kind, Field::Address, 0, 1}, addressText(mDatabase, group.mKey));
    }
    findTexts(group, group.mKey, kind);
  }

  void findAddresses() {
    for (const auto& main : mDatabase.mAddresses.mainGroups()) {
      findGroup(*main, Kind::MainGroup, main->mNumber);
      for (const auto& middle : main->mMiddleGroups) {
        findGroup(*middle, Kind::MiddleGroup, main->mNumber, middle->mNumber);
        for (const auto& sub : middle->mSubGroups) {
          findGroup(*sub, Kind::Address, main->mNumber, middle->mNumber, sub->mNumber);
        }
      }
    }
  }

  void findVariables(const Address_Usage& usage) {
    for (const Address_Usage::Variable& variable : usage.variables()) {
      const size_t before = mResult.mHits.size();
      const auto index = static_cast<int>(mResult.mVariables.size());
      addIfFound(variable.mKey, Kind::Variable, Field::Name, index, variable.mName);
      if (mResult.mHits.size() > before) {
        mResult.mVariables.push_back({variable.mName, usage.uses(variable.mKey).front()});
      }
    }
  }

  void findType(const DB_FB_Control& block) {
    auto count = mCountByType.find(block.mType);
    if (count == mCountByType.end()) {
      count = mCountByType.insert(block.mType, mTypeName ? mSearch.count(mTypeName(block.mType)) : 0);
    }
    if (*count > 0) {
      add({block.mGuid, Kind::Block, Field::Type, 0, *count}, QString::number(block.mType));
    }
  }

  template <class Page>
  void findPages(const DB_Page_List<Page>& list, Kind pageKind, Kind childKind, Scope childScope) {
    for (const auto& page : list.pages()) {
      if (isIn(Scope::Pages)) {
        findTexts(*page, page->mGuid, pageKind);
      }
      if (!isIn(childScope)) {
        continue;
      }
      for (const auto& child : page->mChildren) {
        if constexpr (std::same_as<Page, DB_FB_Page>) {
          findType(*child);
        }
        findTexts(*child, child->mGuid, childKind);
        int index = 0;
        for (const QString& parameter : std::as_const(child->mParams)) {
          addIfFound(child->mGuid, childKind, Field::Parameter, index++, parameter);
        }
      }
    }
  }

  const ProjectDatabase& mDatabase;
  Text_Search mSearch;
  Address_Pattern mPattern;
  Scope mScope;
  const Address_Usage::Type_Name& mTypeName;
  QHash<int, int> mCountByType; ///< matches in the names of types
  Result mResult;
};

template <class Record>
QString textOf(const Record* record, const Hit& hit) {
  if (!record) {
    return {};
  }
  if constexpr (requires { record->mParams; }) {
    if (hit.mField == Field::Parameter) {
      return record->mParams.value(hit.mIndex);
    }
  }
  const auto member = Project_Texts::member<Record>(hit.mField);
  return member ? record->*member : QString();
}

} // namespace

Result Project_Search::find(const ProjectDatabase& database, const Address_Usage& usage, const Query& query,
                            const Address_Usage::Type_Name& typeName) {
  return Finder(database, query, typeName).run(usage);
}

QString Project_Search::text(const ProjectDatabase& database, const Result& result, const Hit& hit,
                             const Address_Usage::Type_Name& typeName) {
  const Address_Tree& tree = database.mAddresses;
  if (hit.mField == Field::Address) {
    return addressText(database, hit.mId);
  }
  switch (hit.mKind) {
  case Kind::MainGroup:
    return textOf(tree.mainGroup(hit.mId), hit);
  case Kind::MiddleGroup:
    return textOf(tree.middleGroup(hit.mId), hit);
  case Kind::Address:
    return textOf(tree.subGroup(hit.mId), hit);
  case Kind::Variable:
    return result.mVariables[static_cast<size_t>(hit.mIndex)].mName;
  case Kind::LogicPage:
    return textOf(database.mFbPages.page(hit.mId), hit);
  case Kind::VisuPage:
    return textOf(database.mWidgetPages.page(hit.mId), hit);
  case Kind::Element:
    return textOf(database.mWidgetPages.child(hit.mId), hit);
  case Kind::Block:
    break;
  }
  const DB_FB_Control* const block = database.mFbPages.child(hit.mId);
  const bool isType = block && hit.mField == Field::Type && typeName;
  return isType ? typeName(block->mType) : textOf(block, hit);
}

QString Project_Search::addressText(const ProjectDatabase& database, const QUuid& key) {
  const Address_Tree& tree = database.mAddresses;
  if (const DB_Address_Sub_Group* const sub = tree.subGroup(key)) {
    return tree.addressOf(*sub).toString();
  }
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
    return Group_Address::middleGroupText(tree.mainGroup(middle->mMainKey)->mNumber, middle->mNumber);
  }
  const DB_Address_MainGroup* const main = tree.mainGroup(key);
  return main ? Group_Address::mainGroupText(main->mNumber) : QString();
}

QUuid Project_Search::pageOf(const ProjectDatabase& database, const Hit& hit) {
  if (const DB_FB_Control* const block = database.mFbPages.child(hit.mId)) {
    return block->mPageGuid;
  }
  const DB_Widget* const element = database.mWidgetPages.child(hit.mId);
  return element ? element->mPageGuid : QUuid();
}
