#pragma once

#include "db/DB_Sqlite.h"
#include "db/DB_Tables.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QUuid>

#include <optional>
#include <vector>

/// Writes the rows of one table, inside a transaction that the caller has begun. Where it is known what stands in the
/// table, rows that are there already are left alone: in a large project few of them ever change.
///
/// Of a table only the order among the rows of one parent means something, so that a row that comes or goes moves none
/// but its siblings. Without parents, all rows are siblings.
class DB_Table_Writer {
public:
  struct Row {
    qint64 mNumber = 0;
    quint64 mDigest = 0; ///< of the DATA text
  };

  /// What stands in a table.
  class Content {
  public:
    /// In the order of the row numbers.
    void add(const QUuid& parent, qint64 number, QByteArrayView data);

  private:
    friend class DB_Table_Writer;
    QHash<QUuid, std::vector<Row>> mRows; ///< by parent
    qint64 mHighest = 0;
  };

  /// Without `present` the table is emptied first.
  DB_Table_Writer(DB_Sqlite& database, DB_Table table, const std::optional<Content>& present);
  ~DB_Table_Writer() = default;
  DB_Table_Writer(const DB_Table_Writer&) = delete;
  DB_Table_Writer& operator=(const DB_Table_Writer&) = delete;

  /// The parent's next row as DATA text, in clear. False when it could not be written.
  bool write(const QUuid& parent, const QByteArray& data);
  /// Deletes what has no place in the table any more.
  bool finish();

  /// What was written so far: what the table holds once the transaction is committed.
  [[nodiscard]] Content& content() { return mWritten; }
  /// The engine's text for the first failure.
  [[nodiscard]] QString errorText() const { return mErrorText; }

private:
  bool fail();
  [[nodiscard]] bool isReady() const { return mIsReady && mDatabase.isInTransaction(); }
  bool put(DB_Statement& statement, const char* sql, const QByteArray& data, qint64 number);

  DB_Sqlite& mDatabase;
  DB_Table mTable;
  const Content mPresent;
  Content mWritten;
  DB_Statement mInsert;
  DB_Statement mUpdate;
  QString mErrorText;
  bool mIsReady;
};
