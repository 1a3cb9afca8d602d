#include "db/File_State.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

File_State File_State::of(const QString& path) {
  const QFileInfo info(path);
  return info.exists() ? File_State{true, info.size(), info.lastModified().toMSecsSinceEpoch()} : File_State{};
}

bool File_State::write(const QString& path) const {
  QFile file(path);
  const QByteArray text = QByteArray::number(mExists ? 1 : 0) + ' ' + QByteArray::number(mSize) + ' ' +
                          QByteArray::number(mModified) + '\n';
  return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

std::optional<File_State> File_State::read(const QString& path) {
  constexpr qint64 cLongest = 100; // bytes
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return std::nullopt;
  }
  const QByteArrayList parts = file.read(cLongest).trimmed().split(' ');
  if (parts.size() != 3) {
    return std::nullopt;
  }
  bool isSizeOk = false;
  bool isTimeOk = false;
  const File_State state{parts[0] == "1", parts[1].toLongLong(&isSizeOk), parts[2].toLongLong(&isTimeOk)};
  return isSizeOk && isTimeOk ? std::optional(state) : std::nullopt;
}
