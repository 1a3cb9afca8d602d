#pragma once

#include "db/DB_Children.h"
#include "db/DB_Widget.h"

/// A visualisation page: what of it is stored, and its elements in drawing order.
class DB_Widget_Page : public DB_Record<DB_Widget_Page> {
public:
  using Child = DB_Widget;

  enum class Orientation { Landscape = 0, PortraitScroll = 1, Portrait = 2 };

  static constexpr int cLongSide = 1280;
  static constexpr int cShortSide = 800;

  void fields(DB_Fields& fields) override;

  QUuid mGuid;
  QString mCaption;
  QString mComment;
  Orientation mOrientation = Orientation::Landscape;
  int mWidth = cLongSide;   ///< pixels
  int mHeight = cShortSide; ///< pixels
  QString mBackgroundColor; ///< "#rrggbb", empty for the style's
  QString mBackgroundImage; ///< name of a project resource
  QUuid mBackPageGuid;      ///< where "back" leads, null for the page shown before
  bool mUseHouseState = false;
  std::vector<int> mGuidesHorizontal; ///< pixels from the top
  std::vector<int> mGuidesVertical;   ///< pixels from the left
  DB_Children<DB_Widget> mChildren;
};
