#pragma once

#include "db/DB_Address_Binding.h"
#include "db/DB_Data_Base.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <vector>

/// An element of a visualisation page. Its place in the page's list is its place in the drawing order, lowest first.
class DB_Widget : public DB_Record<DB_Widget> {
public:
  void fields(DB_Fields& fields) override;

  QUuid mGuid;
  QUuid mPageGuid; ///< the visualisation page it belongs to
  int mType = 0;
  QString mName;
  int mX = 0; ///< pixels of the unzoomed page, as the three below
  int mY = 0;
  int mWidth = 0;
  int mHeight = 0;
  int mTabOrder = 0;
  bool mVisible = true;
  bool mLocked = false;
  QString mComment;
  QStringList mParams;
  std::vector<DB_Address_Binding> mAddresses;
};
