#include "base/File_Copy.h"

#include "base/Platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

namespace {
constexpr qint64 cChunk = 1 << 20;
} // namespace

bool File_Copy::replace(const QString& from, const QString& to, QString& error) {
  QFile source(from);
  QSaveFile target(to);
  target.setDirectWriteFallback(false);
  const auto fail = [&error](const QFileDevice& file) {
    error = file.errorString();
    return false;
  };
  if (!source.open(QIODevice::ReadOnly)) {
    return fail(source);
  }
  if (!target.open(QIODevice::WriteOnly)) {
    return fail(target);
  }
  while (!source.atEnd()) {
    const QByteArray chunk = source.read(cChunk);
    if (chunk.isEmpty()) {
      return fail(source);
    }
    if (target.write(chunk) != chunk.size()) {
      return fail(target);
    }
  }
  if (!target.commit()) {
    return fail(target);
  }
  Platform::flushFolder(QFileInfo(to).absolutePath());
  return true;
}

bool File_Copy::renameOver(const QString& from, const QString& to) {
  std::error_code error;
  std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
  return !error;
}

bool File_Copy::isSame(const QString& one, const QString& other) {
  QFile first(one);
  QFile second(other);
  if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly) || first.size() != second.size()) {
    return false;
  }
  while (!first.atEnd()) {
    const QByteArray chunk = first.read(cChunk);
    if (chunk.isEmpty() || chunk != second.read(chunk.size())) {
      return false;
    }
  }
  return true;
}

bool File_Copy::isSamePath(const QString& one, const QString& other) {
  const QFileInfo first(one);
  const QFileInfo second(other);
  // Two files that are not there count as equal to the toolkit: neither has a canonical path.
  return QDir::cleanPath(first.absoluteFilePath()) == QDir::cleanPath(second.absoluteFilePath()) ||
         (first.exists() && second.exists() && first == second);
}
