#pragma once

#include "base/Datapoint_Id.h"
#include "db/DB_Children.h"
#include "db/DB_Data_Base.h"

#include <QString>
#include <QUuid>

/// A group address (third level). Its key stays the same through every rename, move, renumbering and import; bindings
/// follow the key.
class DB_Address_Sub_Group : public DB_Record<DB_Address_Sub_Group> {
public:
  void fields(DB_Fields& fields) override;

  QUuid mKey;
  QUuid mMiddleKey; ///< the middle group it belongs to
  int mNumber = 0;  ///< 0..255
  QString mName;
  QString mDescription;
  Datapoint_Id mDpt;
  QString mDptRaw;          ///< the type as an import told it, such as "DPST-9-1" or a list of several
  bool mDptGuessed = false; ///< the type follows from the size alone
  bool mReadAtStart = false;
  bool mReadCyclic = false;
  bool mWrite = true;
  bool mActive = true;
  bool mCentral = false;
  bool mUnfiltered = false;
  QString mSecurity; ///< of an import: "Auto", "On", "Off"
  QString mOrigin;   ///< of an import: the address and its ranges as written there, where the tree tells it otherwise
};

class DB_Address_Middle_Group : public DB_Record<DB_Address_Middle_Group> {
public:
  void fields(DB_Fields& fields) override;

  QUuid mKey;
  QUuid mMainKey;  ///< the main group it belongs to
  int mNumber = 0; ///< 0..7
  QString mName;
  QString mDescription;
  DB_Children<DB_Address_Sub_Group> mSubGroups;
};

class DB_Address_MainGroup : public DB_Record<DB_Address_MainGroup> {
public:
  void fields(DB_Fields& fields) override;

  QUuid mKey;
  int mNumber = 0; ///< 0..31 on the bus; a record may hold more
  QString mName;
  QString mDescription;
  DB_Children<DB_Address_Middle_Group> mMiddleGroups;
};
