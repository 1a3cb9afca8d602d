#pragma once

#include "db/DB_Data_Base.h"

#include <QString>
#include <QUuid>

#include <vector>

/// How one style draws one visualisation page.
struct DB_Style_Page {
  QUuid mPageGuid;
  bool mEnabled = true;
  QString mBackgroundColor;
  QString mImageBackground;
  QString mImageOverlay;

  void fields(DB_Fields& fields);
};

/// Font and background of one area of the visualisation. Colours are "#rrggbb", empty for the area's own default;
/// images are names of project resources or built-in ones.
struct DB_Style_Area {
  QString mColorFont;
  QString mColorBackground;
  QString mBackgroundImage;
  int mTransparency = 0; ///< percent

  void fields(DB_Fields& fields);
};

/// One of the project's styles.
struct DB_Style_Slot {
  QString mName;
  bool mActive = false; ///< the slot is in use
  int mIconTheme = 0;
  DB_Style_Area mCommon;
  int mPopupIconThemeDialog = 0;
  int mPopupIconThemeTitle = 0;
  DB_Style_Area mPopupTitle;
  DB_Style_Area mPopup;
  DB_Style_Area mBlock;
  DB_Style_Area mBlockHeader;
  DB_Style_Area mBlockFooter;
  DB_Style_Area mHouseCommon;
  DB_Style_Area mHouseHeader;
  DB_Style_Area mHouseFooter;
  QString mHouseFooterColorOn;
  QString mHouseFooterColorOff;
  DB_Style_Area mHouseChangePageButton;
  int mImageFrameTheme = 0;
  DB_Style_Area mImageFrame;
  std::vector<DB_Style_Page> mPages;

  void fields(DB_Fields& fields);
};

/// The style table of the visualisation: always 20 slots.
class DB_Style : public DB_Record<DB_Style> {
public:
  static constexpr size_t cSlotCount = 20;

  DB_Style();
  void fields(DB_Fields& fields) override;

  int mCurrent = -1; ///< index of the style in force, -1 for the look without one
  std::vector<DB_Style_Slot> mSlots;
};
