#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

/// A compiled SQL statement; finalised with the object. Texts in and out are UTF-8.
class DB_Statement {
public:
  enum class Step { Row, Done, Error };

  DB_Statement() = default;
  explicit DB_Statement(sqlite3_stmt* statement) : mStatement(statement) {}
  DB_Statement(const DB_Statement&) = delete;
  DB_Statement& operator=(const DB_Statement&) = delete;
  DB_Statement(DB_Statement&& other) noexcept;
  DB_Statement& operator=(DB_Statement&& other) noexcept;
  ~DB_Statement();

  [[nodiscard]] bool isValid() const { return mStatement != nullptr; }

  /// Parameters count from 1. The bytes must stay as they are until the next `reset` or bind.
  bool bindText(int parameter, QByteArrayView text);
  bool bindBlob(int parameter, QByteArrayView bytes);
  bool bindNumber(int parameter, qint64 value);
  Step step();
  void reset();

  /// Columns count from 0. The view is valid until the next step.
  [[nodiscard]] QByteArrayView text(int column) const;
  [[nodiscard]] QByteArrayView blob(int column) const;
  [[nodiscard]] qint64 number(int column) const;
  [[nodiscard]] int columnCount() const;
  [[nodiscard]] QByteArray columnName(int column) const;

private:
  sqlite3_stmt* mStatement = nullptr;
};

/// An open SQLite database; closed with the object.
class DB_Sqlite {
public:
  enum class Mode {
    Immutable, ///< only read, and nothing is written beside the file either: nobody may change it meanwhile
    ReadWrite,
    Create, ///< as ReadWrite, and a missing file is made
  };

  DB_Sqlite() = default;
  DB_Sqlite(const DB_Sqlite&) = delete;
  DB_Sqlite& operator=(const DB_Sqlite&) = delete;
  DB_Sqlite(DB_Sqlite&&) = delete;
  DB_Sqlite& operator=(DB_Sqlite&&) = delete;
  ~DB_Sqlite() { close(); }

  bool open(const QString& path, Mode mode);
  void close();
  [[nodiscard]] bool isOpen() const { return mHandle != nullptr; }

  /// Runs one statement, or several divided by ";", without result rows.
  bool execute(const QByteArray& sql);
  /// Not valid when the text cannot be compiled.
  [[nodiscard]] DB_Statement prepare(const QByteArray& sql);

  /// Rows that the last statement inserted, changed or deleted.
  [[nodiscard]] int changedRows() const;
  /// True while a transaction is open, also after a failed commit.
  [[nodiscard]] bool isInTransaction() const;

  /// The engine's text for the last failure.
  [[nodiscard]] QString errorText() const;

private:
  sqlite3* mHandle = nullptr;
  QString mOpenError;
};
