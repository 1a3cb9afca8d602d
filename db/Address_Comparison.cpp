#include "db/Address_Comparison.h"

#include "base/Datapoint_Types.h"
#include "db/Address_Import_Limits.h"
#include "db/Address_Import_Notes.h"
#include "db/DB_Text.h"
#include "db/Ets_Esf_Types.h"
#include "db/ProjectDatabase.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

using Kind = Address_Import_Row::Kind;
namespace Notes = Address_Import_Notes;

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Import", text);
}

/// The size that an ESF tells of such a type; 0 when it tells none.
int esfBitsOf(const Datapoint_Id& type) {
  return Datapoint_Types::bitsOf(Ets_Esf_Types::typeOf(Ets_Esf_Types::textOf(type), {}));
}

/// Where the table of types does not know the size, that of an ESF. 0 when neither does.
int bitsOf(const Datapoint_Id& type) {
  const int bits = Datapoint_Types::bitsOf(type);
  return bits > 0 ? bits : esfBitsOf(type);
}

/// Whether an ESF that tells so much of an address leaves open that it has the present type.
bool fitsGuess(const Datapoint_Id& guess, const Datapoint_Id& present) {
  return bitsOf(present) == 0 || bitsOf(guess) == bitsOf(present) || bitsOf(guess) == esfBitsOf(present);
}

bool changesSize(const Datapoint_Id& from, const Datapoint_Id& to) {
  return bitsOf(from) > 0 && bitsOf(to) > 0 && bitsOf(from) != bitsOf(to);
}

/// Central and unfiltered: XML leaves them out where they are not set.
bool tellsFlags(const Ets_Groups& groups) {
  const auto isFlagged = [](const Ets_Groups::Address& entry) { return entry.mCentral || entry.mUnfiltered; };
  return groups.mFormat == Ets_Groups::Format::Xml ||
         std::any_of(groups.mAddresses.begin(), groups.mAddresses.end(), isFlagged);
}

/// Of an address that a broken file names over and over; nobody decides between more.
constexpr size_t cVariantLimit = 20;

/// For finding what an earlier entry told already.
struct Content {
  Address_Import_Row::Values mValues;

  friend bool operator==(const Content& a, const Content& b) { return !a.mValues.differenceTo(b.mValues); }
  friend size_t qHash(const Content& content, size_t seed = 0) {
    const Address_Import_Row::Values& values = content.mValues;
    return qHashMulti(seed, values.mName, values.mDescription, values.mDpt.mMain, values.mDpt.mSub, values.mDptGuessed,
                      values.mCentral, values.mUnfiltered, values.mSecurity);
  }
};

/// For finding what only its number tells apart.
std::pair<QString, int> nameAndFormat(const Address_Import_Row::Values& values) {
  return {values.mName, values.mDpt.mMain};
}

} // namespace

Address_Comparison::Address_Comparison(const ProjectDatabase& database, const Ets_Groups& groups,
                                       const Address_Import::Options& options)
    : mDatabase(database),
      mGroups(groups),
      mOptions(options),
      mTellsFlags(tellsFlags(groups)),
      mGroupComparison(database, groups, options),
      mUsage(database) {}

Address_Import_Plan Address_Comparison::plan() {
  compareAddresses();
  if (!mOptions.mImportNewOnly) {
    addVanished();
    noteRenumbered();
  }
  mGroupComparison.addRows(mRows, mUnchanged);
  return Address_Import_Plan(std::move(mRows), mUnchanged, mRepeated);
}

void Address_Comparison::compareAddresses() {
  std::vector<const Ets_Groups::Address*> entries;
  entries.reserve(mGroups.mAddresses.size());
  for (const Ets_Groups::Address& entry : mGroups.mAddresses) {
    entries.push_back(&entry);
  }
  const auto less = [](const auto* a, const auto* b) { return a->mAddress < b->mAddress; };
  std::stable_sort(entries.begin(), entries.end(), less);
  mRows.reserve(entries.size());
  for (auto first = entries.begin(); first != entries.end();) {
    const auto last = std::upper_bound(first, entries.end(), *first, less);
    compareAddress({first, last});
    first = last;
  }
}

void Address_Comparison::compareAddress(const std::vector<const Ets_Groups::Address*>& entries) {
  const DB_Address_Sub_Group* const present = mDatabase.mAddresses.subGroup(entries.front()->mAddress);
  if (present && mOptions.mImportNewOnly) {
    ++mUnchanged;
    mRepeated += static_cast<int>(entries.size()) - 1;
    return;
  }
  const Values was = present ? Values::of(*present) : Values();
  std::vector<Variant> variants;
  std::vector<int> lines;
  QSet<Content> told;
  for (const Ets_Groups::Address* const entry : entries) {
    Variant variant = incoming(*entry, present ? &was : nullptr);
    if (entries.size() > 1) {
      const qsizetype before = told.size();
      told.insert({variant.mValues});
      if (told.size() == before) {
        ++mRepeated;
        continue;
      }
    }
    if (variants.size() < cVariantLimit) {
      variants.push_back(std::move(variant));
      lines.push_back(entry->mLine);
    }
  }
  const qsizetype further = told.size() - static_cast<qsizetype>(variants.size());
  for (const Variant& variant : variants) {
    QString note = variants.size() > 1 ? Notes::variant(*variant.mEntry, lines) : QString();
    if (further > 0 && &variant == &variants.back()) {
      Notes::add(note, Notes::further(further));
    }
    if (present) {
      addPresent(variant, *present, note);
    } else {
      addNew(variant, note);
    }
  }
}

Address_Comparison::Variant Address_Comparison::incoming(const Ets_Groups::Address& entry,
                                                         const Values* present) const {
  Values values{DB_Text::singleLine(entry.mName),
                DB_Text::clean(entry.mDescription),
                entry.mDpt,
                entry.mDptGuessed,
                DB_Text::singleLine(entry.mDpts),
                entry.mCentral,
                entry.mUnfiltered,
                DB_Text::singleLine(entry.mSecurity)};
  if (present) {
    keepPresent(values, *present);
  }
  const Values was = present ? *present : Values();
  QString note = Address_Import_Limits::shorten(values, was);
  if (!present || (!mOptions.mKeepComment && values.differenceTo(was))) {
    addConnected(values.mDescription, entry.mConnected);
    if (const QString cut = Address_Import_Limits::shorten(values, was); !note.endsWith(cut)) {
      Notes::add(note, cut);
    }
  }
  return {values, &entry, note};
}

void Address_Comparison::keepPresent(Values& values, const Values& present) const {
  if (mOptions.mKeepComment || values.mName.isEmpty() || DB_Text::isSameLine(values.mName, present.mName)) {
    values.mName = present.mName;
  }
  // Descriptions are often written here, and an export without one does not tell that it was removed.
  if (mOptions.mKeepComment || values.mDescription.isEmpty() ||
      DB_Text::isSameLine(values.mDescription, present.mDescription)) {
    values.mDescription = present.mDescription;
  }
  if (keepsType(values, present)) {
    values.mDpt = present.mDpt;
    values.mDptGuessed = present.mDptGuessed;
    values.mDptRaw = present.mDptRaw;
  }
  if (!mTellsFlags) {
    values.mCentral = present.mCentral;
    values.mUnfiltered = present.mUnfiltered;
  }
  // Without a setting of its own an address is "Auto".
  if (values.mSecurity.isEmpty() || (present.mSecurity.isEmpty() && values.mSecurity == u"Auto")) {
    values.mSecurity = present.mSecurity;
  }
}

bool Address_Comparison::keepsType(const Values& incoming, const Values& present) const {
  if (incoming.mDpt.isNone()) {
    return true;
  }
  if (present.mDpt.isNone()) {
    return false;
  }
  const bool isSame = incoming.mDpt == present.mDpt && incoming.mDptGuessed == present.mDptGuessed;
  const bool isOnlyGuess = incoming.mDptGuessed && fitsGuess(incoming.mDpt, present.mDpt);
  return mOptions.mKeepType || isSame || isOnlyGuess;
}

/// The line of an earlier import gives way.
void Address_Comparison::addConnected(QString& description, const QStringList& connected) const {
  if (mOptions.mConnected != Address_Import::Connected::Describe || connected.isEmpty()) {
    return;
  }
  const QString title = tr("Verbunden mit: ");
  static const QRegularExpression earlier(QStringLiteral("\n?^%1.*$").arg(QRegularExpression::escape(title)),
                                          QRegularExpression::MultilineOption);
  description.remove(earlier);
  description += (description.isEmpty() ? QString() : QStringLiteral("\n")) + title +
                 DB_Text::singleLine(connected.join(QStringLiteral(", ")));
}

void Address_Comparison::addNew(const Variant& variant, const QString& note) {
  const Ets_Groups::Address& entry = *variant.mEntry;
  Row row;
  row.mKind = note.isEmpty() ? Kind::New : Kind::Conflict;
  row.mAddress = entry.mAddress;
  row.mLine = entry.mLine;
  row.mIncoming = variant.mValues;
  row.mNote = note;
  if (row.mIncoming.mDpt.isNone() && !row.mIncoming.mDptRaw.isEmpty()) {
    Notes::add(row.mNote, tr("Der Typ ist in der Datei unbekannt."));
  }
  Notes::add(row.mNote, variant.mNote);
  row.mTicked = row.mKind == Kind::New;
  row.mForeignText = entry.mStyle != Ets_Groups::Style::ThreeLevel ? DB_Text::singleLine(entry.mText) : QString();
  row.mRangePath = DB_Text::singleLine(entry.mRangePath);
  mGroupComparison.need(row.mAddress, row.mTicked);
  mRows.push_back(std::move(row));
}

void Address_Comparison::addPresent(const Variant& variant, const DB_Address_Sub_Group& present, const QString& note) {
  Row row;
  row.mAddress = variant.mEntry->mAddress;
  row.mLine = variant.mEntry->mLine;
  row.mKey = present.mKey;
  row.mPresent = Values::of(present);
  row.mIncoming = variant.mValues;
  row.mDiffering = row.mPresent.differenceTo(row.mIncoming);
  row.mUses = static_cast<int>(mUsage.count(present.mKey));
  row.mNote = note;
  if (!row.mDiffering && note.isEmpty()) {
    ++mUnchanged;
    return;
  }
  const bool isResized = changesSize(row.mPresent.mDpt, row.mIncoming.mDpt);
  if (isResized) {
    Notes::add(
        row.mNote,
        tr("Der Typ wechselt von %1 auf %2 Bit.").arg(bitsOf(row.mPresent.mDpt)).arg(bitsOf(row.mIncoming.mDpt)));
    Notes::add(row.mNote, Notes::uses(row.mUses));
  } else if (row.mDiffering.testFlag(Row::Field::Type) && row.mPresent.mDpt == row.mIncoming.mDpt) {
    Notes::add(row.mNote, tr("Der vermutete Typ ist bestätigt."));
  }
  if (!row.mDiffering) {
    Notes::add(row.mNote, tr("So steht es im Projekt."));
  }
  Notes::add(row.mNote, variant.mNote);
  Notes::add(row.mNote, Notes::flags(row));
  row.mKind = !note.isEmpty() || (isResized && row.mUses > 0) ? Kind::Conflict : Kind::Changed;
  row.mTicked = row.mKind == Kind::Changed;
  mRows.push_back(std::move(row));
}

void Address_Comparison::addVanished() {
  QSet<Group_Address> named;
  named.reserve(static_cast<qsizetype>(mGroups.mAddresses.size()));
  for (const Ets_Groups::Address& entry : mGroups.mAddresses) {
    named.insert(entry.mAddress);
  }
  for (const auto& main : mDatabase.mAddresses.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        Row row;
        row.mKind = Kind::Vanished;
        row.mAddress = {main->mNumber, middle->mNumber, sub->mNumber};
        if (!named.contains(row.mAddress)) {
          row.mKey = sub->mKey;
          row.mPresent = Values::of(*sub);
          row.mUses = static_cast<int>(mUsage.count(sub->mKey));
          row.mNote = Notes::uses(row.mUses);
          mRows.push_back(std::move(row));
        }
      }
    }
  }
}

/// Whoever renumbers in ETS sees here where an address went.
void Address_Comparison::noteRenumbered() {
  const auto firstOf = [this](Kind kind) {
    QHash<std::pair<QString, int>, QString> first;
    for (const Row& row : mRows) {
      const Values& values = kind == Kind::Vanished ? row.mPresent : row.mIncoming;
      if (row.mKind == kind && !values.mName.isEmpty() && !first.contains(nameAndFormat(values))) {
        first.insert(nameAndFormat(values), row.addressText());
      }
    }
    return first;
  };
  const auto added = firstOf(Kind::New);
  const auto vanished = firstOf(Kind::Vanished);
  for (Row& row : mRows) {
    if (row.mKind == Kind::New && vanished.contains(nameAndFormat(row.mIncoming))) {
      Notes::add(row.mNote,
                 tr("Heißt wie %1, das in der Datei fehlt.").arg(vanished.value(nameAndFormat(row.mIncoming))));
    } else if (row.mKind == Kind::Vanished && added.contains(nameAndFormat(row.mPresent))) {
      Notes::add(row.mNote, tr("Heißt wie %1, das neu ist.").arg(added.value(nameAndFormat(row.mPresent))));
    }
  }
}
