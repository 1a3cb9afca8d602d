#include "db/DB_Sqlite.h"

#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

#include <cstdio>
#include <utility>

DB_Statement::DB_Statement(DB_Statement&& other) noexcept : mStatement(std::exchange(other.mStatement, nullptr)) {}

DB_Statement& DB_Statement::operator=(DB_Statement&& other) noexcept {
  std::swap(mStatement, other.mStatement);
  return *this;
}

DB_Statement::~DB_Statement() {
  sqlite3_finalize(mStatement);
}

bool DB_Statement::bindText(int parameter, QByteArrayView text) {
  return sqlite3_bind_text64(mStatement, parameter, text.data() ? text.data() : "",
                             static_cast<sqlite3_uint64>(text.size()), SQLITE_STATIC, SQLITE_UTF8) == SQLITE_OK;
}

bool DB_Statement::bindBlob(int parameter, QByteArrayView bytes) {
  return sqlite3_bind_blob64(mStatement, parameter, bytes.data(), static_cast<sqlite3_uint64>(bytes.size()),
                             SQLITE_STATIC) == SQLITE_OK;
}

bool DB_Statement::bindNumber(int parameter, qint64 value) {
  return sqlite3_bind_int64(mStatement, parameter, value) == SQLITE_OK;
}

DB_Statement::Step DB_Statement::step() {
  switch (sqlite3_step(mStatement)) {
  case SQLITE_ROW:
    return Step::Row;
  case SQLITE_DONE:
    return Step::Done;
  default:
    return Step::Error;
  }
}

void DB_Statement::reset() {
  sqlite3_reset(mStatement);
}

QByteArrayView DB_Statement::text(int column) const {
  const unsigned char* const text = sqlite3_column_text(mStatement, column);
  return {reinterpret_cast<const char*>(text), text ? sqlite3_column_bytes(mStatement, column) : 0};
}

QByteArrayView DB_Statement::blob(int column) const {
  const void* const bytes = sqlite3_column_blob(mStatement, column);
  return {static_cast<const char*>(bytes), bytes ? sqlite3_column_bytes(mStatement, column) : 0};
}

qint64 DB_Statement::number(int column) const {
  return sqlite3_column_int64(mStatement, column);
}

int DB_Statement::columnCount() const {
  return sqlite3_column_count(mStatement);
}

QByteArray DB_Statement::columnName(int column) const {
  return {sqlite3_column_name(mStatement, column)};
}

bool DB_Sqlite::open(const QString& path, Mode mode) {
  close();
  QByteArray name = path.toUtf8();
  int flags = SQLITE_OPEN_READWRITE;
  if (mode == Mode::Immutable) {
    name = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded() + "?immutable=1";
    flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
  } else if (mode == Mode::Create) {
    flags |= SQLITE_OPEN_CREATE;
  }
  const int result = sqlite3_open_v2(name.constData(), &mHandle, flags, nullptr);
  if (result == SQLITE_OK) {
    return true;
  }
  mOpenError = QString::fromUtf8(mHandle ? sqlite3_errmsg(mHandle) : sqlite3_errstr(result));
  if (!mHandle) {
    std::printf("sqlite3_open: %s\n", qPrintable(mOpenError));
  }
  close();
  return false;
}

void DB_Sqlite::close() {
  sqlite3_close_v2(mHandle);
  mHandle = nullptr;
}

bool DB_Sqlite::execute(const QByteArray& sql) {
  return mHandle && sqlite3_exec(mHandle, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

DB_Statement DB_Sqlite::prepare(const QByteArray& sql) {
  sqlite3_stmt* statement = nullptr;
  if (mHandle) {
    sqlite3_prepare_v2(mHandle, sql.constData(), static_cast<int>(sql.size()) + 1, &statement, nullptr);
  }
  return DB_Statement(statement);
}

bool DB_Sqlite::isInTransaction() const {
  return mHandle && sqlite3_get_autocommit(mHandle) == 0;
}

int DB_Sqlite::changedRows() const {
  return sqlite3_changes(mHandle);
}

QString DB_Sqlite::errorText() const {
  return mHandle ? QString::fromUtf8(sqlite3_errmsg(mHandle)) : mOpenError;
}
