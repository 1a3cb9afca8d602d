#include "db/Address_Import_Notes.h"

#include "base/Decimal_Text.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Import", text);
}

} // namespace

QString Address_Import_Notes::uses(int uses) {
  switch (uses) {
  case 0:
    return tr("Nicht verwendet.");
  case 1:
    return tr("In 1 Verknüpfung verwendet.");
  default:
    return tr("In %1 Verknüpfungen verwendet.").arg(uses);
  }
}

void Address_Import_Notes::add(QString& note, const QString& further) {
  note += (note.isEmpty() || further.isEmpty() ? QString() : QStringLiteral(" ")) + further;
}

QString Address_Import_Notes::variant(const Ets_Groups::Address& entry, const std::vector<int>& lines) {
  constexpr qsizetype cShownLines = 5;
  QStringList others;
  for (const int line : lines) {
    if (line == entry.mLine) {
      continue;
    }
    if (others.size() == cShownLines) {
      others.append(QStringLiteral("…"));
      break;
    }
    others.append(QString::number(line));
  }
  return tr("Zeile %1, anders in Zeile %2.").arg(entry.mLine).arg(others.join(QStringLiteral(", ")));
}

QString Address_Import_Notes::further(qsizetype count) {
  return count == 1 ? tr("… und 1 weiterer verschiedener Eintrag.")
                    : tr("… und %1 weitere verschiedene Einträge.").arg(Decimal_Text::count(count));
}

QString Address_Import_Notes::flags(const Address_Import_Row& row) {
  const auto word = [](bool isSet) { return isSet ? tr("ja") : tr("nein"); };
  QString note;
  if (row.mDiffering.testFlag(Address_Import_Row::Field::Central)) {
    add(note, tr("Zentral: %1 statt %2.").arg(word(row.mIncoming.mCentral), word(row.mPresent.mCentral)));
  }
  if (row.mDiffering.testFlag(Address_Import_Row::Field::Unfiltered)) {
    add(note, tr("Ungefiltert: %1 statt %2.").arg(word(row.mIncoming.mUnfiltered), word(row.mPresent.mUnfiltered)));
  }
  if (row.mDiffering.testFlag(Address_Import_Row::Field::Security)) {
    const QString present = row.mPresent.mSecurity.isEmpty() ? tr("ohne Angabe") : row.mPresent.mSecurity;
    add(note, tr("Sicherheit: %1 statt %2.").arg(row.mIncoming.mSecurity, present));
  }
  return note;
}
