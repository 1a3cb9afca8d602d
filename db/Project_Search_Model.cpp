#include "db/Project_Search_Model.h"

#include "db/Model_Roles.h"
#include "db/Project_Search_Labels.h"

#include <algorithm>

namespace {

using Project_Search::Field;

/// In characters: what is shown before the first match, and in all.
constexpr qsizetype cBefore = 24;
constexpr qsizetype cExcerpt = 400;

} // namespace

Project_Search_Model::Project_Search_Model(const ProjectDatabase& database, Address_Usage::Type_Name typeName,
                                           QObject* parent)
    : QAbstractTableModel(parent),
      mDatabase(database),
      mTypeName(std::move(typeName)) {}

void Project_Search_Model::search(const Address_Usage& usage, const Project_Search::Query& query) {
  Project_Search::Result result = Project_Search::find(mDatabase, usage, query, mTypeName);
  mSearch = Text_Search(query.mText, query.mOptions);
  if (result == mResult) {
    emit textsChanged();
    return;
  }
  beginResetModel();
  mResult = std::move(result);
  endResetModel();
}

int Project_Search_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mResult.mHits.size());
}

int Project_Search_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cColumnCount;
}

QString Project_Search_Model::wholeText(const Hit& hit) const {
  return Project_Search::text(mDatabase, mResult, hit, mTypeName);
}

Project_Search_Model::Excerpt Project_Search_Model::excerptOf(const Hit& hit) const {
  const QString whole = wholeText(hit);
  auto matches = mSearch.find(whole);
  if (hit.mField == Field::Address) {
    matches = {{0, whole.size()}};
  }
  const qsizetype first = matches.empty() ? 0 : matches.front().mStart;
  const qsizetype begin = first > 2 * cBefore ? first - cBefore : 0;
  const QString dots = begin > 0 ? QStringLiteral("…") : QString();
  Excerpt excerpt{dots + whole.mid(begin, cExcerpt), {}};
  const auto isBreak = [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; };
  std::replace_if(excerpt.mText.begin(), excerpt.mText.end(), isBreak, QChar(u' '));
  for (const Text_Search::Match& match : matches) {
    const qsizetype start = match.mStart - begin + dots.size();
    if (start + match.mLength <= excerpt.mText.size()) {
      excerpt.mMatches.append({start, match.mLength});
    }
  }
  return excerpt;
}

QString Project_Search_Model::textOf(const Hit& hit, int column) const {
  switch (column) {
  case cKind:
    return Project_Search_Labels::kind(hit.mKind);
  case cPlace:
    return Project_Search_Labels::place(mDatabase, mResult, hit, mTypeName);
  case cField:
    return Project_Search_Labels::field(hit);
  default:
    return excerptOf(hit).mText;
  }
}

QVariant Project_Search_Model::sortKeyOf(const Hit& hit, int column) const {
  return column == cKind ? QVariant(static_cast<int>(hit.mKind)) : textOf(hit, column);
}

QVariant Project_Search_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const Hit& shown = hit(index.row());
  const int column = index.column();
  switch (role) {
  case Qt::DisplayRole:
    return textOf(shown, column);
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(column == cText ? wholeText(shown) : textOf(shown, column));
  case Model_Roles::cIconName:
    return column == cKind ? Project_Search_Labels::icon(mDatabase, shown) : QVariant();
  case Model_Roles::cSortKey:
    return sortKeyOf(shown, column);
  case Model_Roles::cIdentity:
    return QVariantList{shown.mId, static_cast<int>(shown.mField), shown.mIndex};
  case Model_Roles::cMatches:
    return column == cText ? QVariant::fromValue(excerptOf(shown).mMatches) : QVariant();
  default:
    return {};
  }
}

QVariant Project_Search_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  switch (section) {
  case cKind:
    return tr("Art");
  case cPlace:
    return tr("Ort");
  case cField:
    return tr("Feld");
  case cText:
    return tr("Text");
  default:
    return {};
  }
}
