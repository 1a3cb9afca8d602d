#include "db/Project_Replace.h"

#include "base/Decimal_Text.h"
#include "db/Address_Edits.h"
#include "db/DB_Text.h"
#include "db/Edit_Scope.h"
#include "db/Project_Edits.h"
#include "db/Project_Search_Labels.h"
#include "db/Project_Session.h"
#include "db/Variable_Edits.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

using Project_Replace::Outcome;
using Project_Search::Field;
using Project_Search::Hit;
using Project_Search::Kind;

QString tr(const char* text) {
  return QCoreApplication::translate("Project_Replace", text);
}

struct Change {
  Hit mHit;
  QString mText;
  qsizetype mCount = 0; ///< of matches
};

/// With more of them the views are built anew once instead of hearing of each.
constexpr qsizetype cManyAddresses = 50;

bool isOfAddress(const Change& change) {
  return change.mHit.mKind <= Kind::Address;
}

/// Why a text of that kind may not be changed here; empty when it may.
QString fixedReason(Field field) {
  switch (field) {
  case Field::Address:
    return tr("Adressen werden nicht ersetzt.");
  case Field::Type:
    return tr("Der Typ eines Bausteins steht fest.");
  case Field::Parameter:
    return tr("Parameter werden nicht ersetzt.");
  default:
    return {};
  }
}

QString cleaned(const Hit& hit, const QString& text) {
  if (hit.mField == Field::Name) {
    return DB_Text::singleLine(text);
  }
  return hit.mField == Field::Description ? DB_Text::clean(text).trimmed() : DB_Text::clean(text);
}

/// Why the field of that hit may not hold the text, which is clean; empty when it may.
QString whyNot(const Hit& hit, const QString& text) {
  const bool isName = hit.mField == Field::Name;
  if (isName && text.isEmpty()) {
    return tr("Der Name wäre leer.");
  }
  const qsizetype limit = isName ? Project_Replace::cNameLimit : Project_Replace::cTextLimit;
  return text.size() > limit ? tr("Der Text hätte %1 Zeichen, erlaubt sind höchstens %2.").arg(text.size()).arg(limit)
                             : QString();
}

/// Sets one text of a record that is found.
template <class Page>
void setChildText(DB_Page_List<Page>& list, Undo_Adapter& undo, Edit_Scope& scope, const Change& change) {
  using Child = typename Page::Child;
  scope.modified(undo, change.mHit.mId);
  list.changeChild(change.mHit.mId, [&change](Child& child) {
    if (const auto member = Project_Texts::member<Child>(change.mHit.mField)) {
      child.*member = change.mText;
    }
  });
}

template <class Page>
void setPageComment(DB_Page_List<Page>& list, Undo_Adapter& undo, Edit_Scope& scope, const Change& change) {
  scope.modified(undo, change.mHit.mId);
  list.changePage(change.mHit.mId, [&change](Page& page) { page.mComment = change.mText; });
}

/// Carries the changes out, inside a scope that is open.
class Replacer {
public:
  /// Told of each change that was refused, and why.
  using On_Refusal = std::function<void(const Change& change, const QString& reason)>;

  Replacer(Project_Session& session, Edit_Scope& scope, On_Refusal onRefusal)
      : mSession(session),
        mScope(scope),
        mOnRefusal(std::move(onRefusal)) {}

  void apply(const std::vector<Change>& changes) {
    QHash<QUuid, QString> variables;
    Address_Tree& tree = mSession.database().mAddresses;
    const bool isMany = std::count_if(changes.cbegin(), changes.cend(), isOfAddress) > cManyAddresses;
    if (isMany) {
      tree.beginChange();
    }
    for (const Change& change : changes) {
      if (change.mHit.mKind == Kind::Variable) {
        variables.insert(change.mHit.mId, change.mText);
      } else {
        apply(change);
      }
    }
    if (isMany) {
      tree.endChange();
    }
    if (variables.isEmpty()) {
      return;
    }
    const Edit_Result result = Variable_Edits::rename(mSession, variables);
    for (const Change& change : changes) {
      if (change.mHit.mKind == Kind::Variable) {
        check(change, result);
      }
    }
  }

private:
  void apply(const Change& change) {
    ProjectDatabase& database = mSession.database();
    const Hit& hit = change.mHit;
    switch (hit.mKind) {
    case Kind::LogicPage:
    case Kind::VisuPage:
      if (hit.mField == Field::Name) {
        check(change, Project_Edits::renamePage(mSession, hit.mId, change.mText));
      } else if (hit.mKind == Kind::LogicPage) {
        setPageComment(database.mFbPages, mSession.fbPageUndo(), mScope, change);
      } else {
        setPageComment(database.mWidgetPages, mSession.widgetPageUndo(), mScope, change);
      }
      return;
    case Kind::Block:
      setChildText(database.mFbPages, mSession.blockUndo(), mScope, change);
      return;
    case Kind::Element:
      setChildText(database.mWidgetPages, mSession.elementUndo(), mScope, change);
      return;
    default:
      const auto field = hit.mField == Field::Name ? Address_Edits::Field::Name : Address_Edits::Field::Description;
      check(change, Address_Edits::set(mSession, {hit.mId}, field, change.mText));
    }
  }

  void check(const Change& change, const Edit_Result& result) const {
    if (!result) {
      mOnRefusal(change, result.mError);
    }
  }

  Project_Session& mSession;
  Edit_Scope& mScope;
  On_Refusal mOnRefusal;
};

/// Their present names by their keys, if there are variables among the hits: they may have changed since the search.
QHash<QUuid, QString> variablesOf(const ProjectDatabase& database, std::span<const Hit> hits) {
  QHash<QUuid, QString> names;
  const auto isVariable = [](const Hit& hit) { return hit.mKind == Kind::Variable; };
  if (std::any_of(hits.begin(), hits.end(), isVariable)) {
    const Address_Usage usage(database);
    for (const Address_Usage::Variable& variable : usage.variables()) {
      names.insert(variable.mKey, variable.mName);
    }
  }
  return names;
}

QString counted(qsizetype count, const char* one, const char* many) {
  return count == 1 ? tr(one) : tr(many).arg(Decimal_Text::count(count));
}

} // namespace

bool Project_Replace::isReplaceable(const Hit& hit) {
  return fixedReason(hit.mField).isEmpty();
}

QString Outcome::toString() const {
  if (!mError.isEmpty()) {
    return mError;
  }
  QStringList sentences;
  if (mReplaced > 0) {
    sentences += counted(mReplaced, QT_TRANSLATE_NOOP("Project_Replace", "1 Stelle ersetzt. Strg+Z nimmt es zurück."),
                         QT_TRANSLATE_NOOP("Project_Replace", "%1 Stellen ersetzt. Strg+Z nimmt es zurück."));
  } else {
    sentences += tr("Nichts ersetzt.");
  }
  if (mRefused > 0) {
    sentences += counted(mRefused, QT_TRANSLATE_NOOP("Project_Replace", "1 Stelle bleibt, wie sie ist:"),
                         QT_TRANSLATE_NOOP("Project_Replace", "%1 Stellen bleiben, wie sie sind, die erste:")) +
                 QLatin1Char(' ') + mFirstRefused;
  }
  return sentences.join(QLatin1Char(' '));
}

Outcome Project_Replace::replace(Project_Session& session, const Project_Search::Query& query,
                                 const Project_Search::Result& result, std::span<const Hit> hits, const QString& by,
                                 const Address_Usage::Type_Name& typeName) {
  const ProjectDatabase& database = session.database();
  const Text_Search search(query.mText, query.mOptions);
  const QHash<QUuid, QString> variables = variablesOf(database, hits);
  Outcome outcome;
  const auto refuse = [&](const Hit& hit, qsizetype count, const QString& reason) {
    outcome.mRefused += count;
    if (outcome.mFirstRefused.isEmpty()) {
      outcome.mFirstRefused = tr("%1 %2, %3: %4")
                                  .arg(Project_Search_Labels::kind(hit.mKind),
                                       Project_Search_Labels::place(database, result, hit, typeName),
                                       Project_Search_Labels::field(hit), reason);
    }
  };
  std::vector<Change> changes;
  for (const Hit& hit : hits) {
    const QString old =
        hit.mKind == Kind::Variable ? variables.value(hit.mId) : Project_Search::text(database, result, hit, typeName);
    const QString text = cleaned(hit, search.replaced(old, by));
    const QString fixed = fixedReason(hit.mField);
    const QString reason = fixed.isEmpty() ? whyNot(hit, text) : fixed;
    const qsizetype count = hit.mField == Field::Address ? 1 : search.count(old);
    if (count == 0 || (fixed.isEmpty() && text == old)) {
      continue;
    }
    if (reason.isEmpty()) {
      outcome.mReplaced += count;
      changes.push_back({hit, text, count});
    } else {
      refuse(hit, count, reason);
    }
  }
  Edit_Scope scope(session.history(), tr("Ersetzen"), Edit_Scope::Grouping::Own);
  if (!scope) {
    return {scope.refusal(), 0, 0, {}};
  }
  const auto onRefusal = [&](const Change& change, const QString& reason) {
    outcome.mReplaced -= change.mCount;
    refuse(change.mHit, change.mCount, reason);
  };
  Replacer(session, scope, onRefusal).apply(changes);
  return outcome;
}
