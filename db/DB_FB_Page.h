#pragma once

#include "db/DB_Children.h"
#include "db/DB_FB_Control.h"

/// A logic page: what of it is stored, and its function blocks in the order of their creation.
class DB_FB_Page : public DB_Record<DB_FB_Page> {
public:
  using Child = DB_FB_Control;

  static constexpr int cDefaultWidth = 2000;
  static constexpr int cDefaultHeight = 1400;

  void fields(DB_Fields& fields) override;

  QUuid mGuid;
  QString mCaption;
  QString mComment;
  bool mActive = true;          ///< a page that is switched off is not executed
  int mControllerIndex = 0;     ///< number of the executing controller, 0 for the main one
  int mWidth = cDefaultWidth;   ///< pixels, unzoomed
  int mHeight = cDefaultHeight; ///< pixels, unzoomed
  DB_Children<DB_FB_Control> mChildren;
};
