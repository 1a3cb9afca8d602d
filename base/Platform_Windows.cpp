#include "base/Platform.h"

#include <QtGlobal>

#ifdef Q_OS_WIN

// NTFS journals a rename by itself; a folder handle cannot be flushed without administrator rights.
bool Platform::flushFolder(const QString&) {
  return true;
}

#endif
