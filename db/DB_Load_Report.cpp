#include "db/DB_Load_Report.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("DB_Load_Report", text);
}

} // namespace

bool DB_Load_Report::isDamaged() const {
  return !mFindings.isEmpty() || std::any_of(mCounts.cbegin(), mCounts.cend(), [](const Count& count) {
    return count.mLost > 0 || count.mPartial > 0 || count.mMissing || count.mWrongLayout ||
           !count.mUnreadable.isEmpty();
  });
}

QStringList DB_Load_Report::lines() const {
  QStringList lines = mFindings;
  for (const DB_Table_Row& row : DB_Tables::all()) {
    const Count& count = mCounts[static_cast<size_t>(row.mTable)];
    const QString name = DB_Tables::germanName(row.mTable);
    if (count.mMissing) {
      lines.append(tr("%1: Die Tabelle fehlt.").arg(name));
    }
    if (count.mWrongLayout) {
      lines.append(tr("%1: Die Tabelle hat andere Spalten als erwartet.").arg(name));
    }
    if (!count.mUnreadable.isEmpty()) {
      lines.append(tr("%1: Nicht alle Zeilen sind lesbar (%2).").arg(name, count.mUnreadable));
    }
    if (count.mLost > 0) {
      lines.append(tr("%1: Nicht lesbare Einträge: %2.").arg(name).arg(count.mLost));
    }
    if (count.mPartial > 0) {
      lines.append(tr("%1: Nur teilweise lesbare Einträge: %2.").arg(name).arg(count.mPartial));
    }
    if (count.mOrphans > 0) {
      lines.append(
          tr("%1: Einträge ohne übergeordneten Eintrag: %2 (bleiben erhalten).").arg(name).arg(count.mOrphans));
    }
  }
  return lines;
}
