#include "base/Platform.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

bool Platform::flushFolder(const QString& folder) {
  const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) {
    return false;
  }
  const bool ok = ::fsync(handle) == 0;
  ::close(handle);
  return ok;
}

#endif
