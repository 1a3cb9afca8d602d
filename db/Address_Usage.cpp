#include "db/Address_Usage.h"

#include "db/DB_Bindings.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Usage", text);
}

QString pinText(const std::vector<DB_FB_Pin>& pins, int index, const char* numbered) {
  const bool isThere = index >= 0 && index < static_cast<int>(pins.size());
  const QString name = isThere ? pins[static_cast<size_t>(index)].mLongName.simplified() : QString();
  return name.isEmpty() ? tr(numbered).arg(index + 1) : name;
}

QString placeText(const DB_FB_Control& block, const Address_Use& use) {
  switch (use.mPlace) {
  case Address_Use::Place::Input:
    return pinText(block.mInputs, use.mIndex, QT_TRANSLATE_NOOP("Address_Usage", "Eingang %1"));
  case Address_Use::Place::Output:
    return pinText(block.mOutputs, use.mIndex, QT_TRANSLATE_NOOP("Address_Usage", "Ausgang %1"));
  default:
    return tr("Deaktivieren");
  }
}

QString firstOf(const QString& first, const QString& second, const QString& third) {
  const QString own = first.simplified().isEmpty() ? second.simplified() : first.simplified();
  return own.isEmpty() ? third : own;
}

} // namespace

Address_Usage::Address_Usage(const ProjectDatabase& database) {
  std::vector<Found> found;
  const qsizetype owners = database.mFbPages.childCount() + database.mWidgetPages.childCount();
  mRangeByKey.reserve(owners);
  found.reserve(static_cast<size_t>(2 * owners));
  DB_Bindings::visit(database, [this, &database, &found](const DB_Address_Binding& binding, const Address_Use& use) {
    if (binding.mKind != DB_Address_Binding::Kind::None) {
      add(database, binding, use, found);
    }
  });
  sort(found);
}

void Address_Usage::add(const ProjectDatabase& database, const DB_Address_Binding& binding, const Address_Use& use,
                        std::vector<Found>& found) {
  const bool isGroup = binding.mKind == DB_Address_Binding::Kind::GroupAddress;
  if (isGroup && !database.mAddresses.subGroup(binding.mKey)) {
    mInvalid.push_back({use, binding.mKey, {binding.mMain, binding.mMiddle, binding.mSub}, binding.mName});
  }
  if (binding.mKey.isNull()) {
    return;
  }
  const auto known = mRangeByKey.constFind(binding.mKey);
  const bool isNew = known == mRangeByKey.cend();
  const size_t range = isNew ? mRanges.size() : *known;
  if (isNew) {
    mRangeByKey.insert(binding.mKey, range);
    mRanges.emplace_back();
    if (!isGroup) {
      mVariables.push_back({binding.mKey, binding.mName, binding.mDpt});
    }
  }
  ++mRanges[range].mCount;
  found.push_back({range, use});
}

void Address_Usage::sort(const std::vector<Found>& found) {
  std::vector<size_t> next;
  next.reserve(mRanges.size());
  size_t first = 0;
  for (Range& range : mRanges) {
    range.mFirst = first;
    next.push_back(first);
    first += range.mCount;
  }
  mUses.resize(found.size());
  for (const Found& one : found) {
    mUses[next[one.mRange]++] = one.mUse;
  }
}

std::span<const Address_Use> Address_Usage::uses(const QUuid& key) const {
  const auto found = mRangeByKey.constFind(key);
  if (found == mRangeByKey.cend()) {
    return {};
  }
  const Range& range = mRanges[*found];
  return std::span(mUses).subspan(range.mFirst, range.mCount);
}

const Address_Usage::Variable* Address_Usage::variable(const QUuid& key) const {
  const auto found = std::find_if(mVariables.cbegin(), mVariables.cend(),
                                  [&key](const Variable& variable) { return variable.mKey == key; });
  return found == mVariables.cend() ? nullptr : &*found;
}

Address_Usage::Use_Text Address_Usage::text(const ProjectDatabase& database, const Address_Use& use,
                                            const Type_Name& blockType) {
  if (use.mPlace == Address_Use::Place::Element) {
    const DB_Widget_Page* const page = database.mWidgetPages.page(use.mPageGuid);
    const DB_Widget* const element = database.mWidgetPages.child(use.mOwnerGuid);
    if (!page || !element) {
      return {};
    }
    return {page->mCaption, firstOf(element->mName, {}, tr("Element")), tr("Adresse %1").arg(use.mIndex + 1)};
  }
  const DB_FB_Page* const page = database.mFbPages.page(use.mPageGuid);
  const DB_FB_Control* const block = database.mFbPages.child(use.mOwnerGuid);
  if (!page || !block) {
    return {};
  }
  const QString type = blockType ? blockType(block->mType) : QString();
  return {page->mCaption, firstOf(block->ownTitle(), block->mName, type.isEmpty() ? tr("Baustein") : type),
          placeText(*block, use)};
}

QString Address_Usage::Use_Text::toString() const {
  return mPage.isEmpty() && mOwner.isEmpty() ? QString() : QStringLiteral("%1 / %2: %3").arg(mPage, mOwner, mPlace);
}
