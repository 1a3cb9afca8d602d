#pragma once

#include "db/DB_Tables.h"

#include <QString>
#include <QStringList>

#include <array>

/// What could not be read when a project was opened, counted per table, and how that reads for the user.
class DB_Load_Report {
public:
  /// A finding about the file as a whole, a German sentence.
  void addFinding(const QString& text) { mFindings.append(text); }
  void addLostRow(DB_Table table) { ++count(table).mLost; }
  void addPartialRow(DB_Table table) { ++count(table).mPartial; }
  void addOrphan(DB_Table table) { ++count(table).mOrphans; }
  void setUnreadable(DB_Table table, const QString& reason) { count(table).mUnreadable = reason; }
  void setMissing(DB_Table table) { count(table).mMissing = true; }
  void setWrongLayout(DB_Table table) { count(table).mWrongLayout = true; }

  [[nodiscard]] bool isMissing(DB_Table table) const { return mCounts[static_cast<size_t>(table)].mMissing; }
  [[nodiscard]] bool isUnreadable(DB_Table table) const {
    return !mCounts[static_cast<size_t>(table)].mUnreadable.isEmpty();
  }
  [[nodiscard]] int lostRows(DB_Table table) const { return mCounts[static_cast<size_t>(table)].mLost; }

  /// True when something of the file is not in memory, so that saving over it would lose it for good.
  [[nodiscard]] bool isDamaged() const;
  /// One German sentence for each finding, in the order of the tables.
  [[nodiscard]] QStringList lines() const;

private:
  struct Count {
    int mLost = 0;
    int mPartial = 0;
    int mOrphans = 0;
    bool mMissing = false;
    bool mWrongLayout = false;
    QString mUnreadable;
  };
  Count& count(DB_Table table) { return mCounts[static_cast<size_t>(table)]; }

  QStringList mFindings;
  std::array<Count, DB_Tables::cCount> mCounts;
};
