#include "fb/properties/FB_Dev_Properties_Editor.h"

#include <QCoreApplication>

QString FB_Dev_Properties_Editor::mixedText() {
  return QCoreApplication::translate("FB_Dev_Properties_Editor", "verschieden");
}
