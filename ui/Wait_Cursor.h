#pragma once

#include <QGuiApplication>

/// Shows the cursor of waiting as long as it lives: around work of which one cannot know whether it is short.
class Wait_Cursor {
public:
  Wait_Cursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  Wait_Cursor(const Wait_Cursor&) = delete;
  Wait_Cursor& operator=(const Wait_Cursor&) = delete;
  Wait_Cursor(Wait_Cursor&&) = delete;
  Wait_Cursor& operator=(Wait_Cursor&&) = delete;
  ~Wait_Cursor() { QGuiApplication::restoreOverrideCursor(); }
};
