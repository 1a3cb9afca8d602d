#include "fb/lua/FB_Lua_Word_Model.h"

#include "fb/model/FB_Lua_Functions.h"
#include "ui/Theme.h"

#include <algorithm>

FB_Lua_Word_Model::FB_Lua_Word_Model(QObject* parent) : QAbstractTableModel(parent) {
  for (const FB_Lua_Group& group : FB_Lua_Functions::groups()) {
    for (const FB_Lua_Function& function : group.mFunctions) {
      mFixed.push_back({QString::fromLatin1(function.mName), FB_Lua_Functions::signature(function),
                        FB_Lua_Functions::text(function.mText)});
    }
  }
  for (const FB_Lua_Callback& callback : FB_Lua_Functions::callbacks()) {
    mFixed.push_back({FB_Lua_Functions::name(callback), QString::fromLatin1(callback.mSignature),
                      tr("Wird aufgerufen %1").arg(FB_Lua_Functions::text(callback.mText))});
  }
  for (const char* const word : FB_Lua_Functions::keywords()) {
    mFixed.push_back({QString::fromLatin1(word), QString::fromLatin1(word), {}});
  }
}

void FB_Lua_Word_Model::setScriptWords(const QStringList& words) {
  QStringList more = words;
  more.removeIf([this](const QString& word) { return std::ranges::find(mFixed, word, &Row::mName) != mFixed.end(); });
  std::ranges::sort(more);
  if (more != mWords) {
    beginResetModel();
    mWords = more;
    endResetModel();
  }
}

int FB_Lua_Word_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mFixed.size()) + static_cast<int>(mWords.size());
}

int FB_Lua_Word_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 2;
}

QVariant FB_Lua_Word_Model::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const auto at = static_cast<size_t>(index.row());
  const bool isFixed = at < mFixed.size();
  const QString name = isFixed ? mFixed[at].mName : mWords.at(static_cast<qsizetype>(at - mFixed.size()));
  switch (role) {
  case cNameRole:
    return name;
  case Qt::DisplayRole:
    return !isFixed ? (index.column() == 0 ? name : QString())
                    : (index.column() == 0 ? mFixed[at].mSignature : mFixed[at].mText);
  case Qt::ToolTipRole:
    return isFixed ? FB_Lua_Functions::toolTip(name) : QString();
  case Qt::ForegroundRole:
    return index.column() == 1 ? QVariant(Theme::color(Theme::Role::SecondaryText)) : QVariant();
  default:
    return {};
  }
}
