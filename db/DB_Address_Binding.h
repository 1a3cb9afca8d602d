#pragma once

#include "base/Datapoint_Id.h"
#include "db/DB_Fields.h"

#include <QString>
#include <QUuid>

class DB_Address_Sub_Group;
class Group_Address;

/// What a pin or an element is bound to, with a cached copy of the bound address.
///
/// The key decides; the other fields are a copy for drawing and for the controller, refreshed from the address tree. An
/// internal variable has no record of its own: it lives in the bindings that carry its key.
struct DB_Address_Binding {
  enum class Kind { None = 0, GroupAddress = 1, Internal = 2 };

  Kind mKind = Kind::None;
  QUuid mKey;
  int mMain = 0;
  int mMiddle = 0;
  int mSub = 0;
  QString mName;
  QString mDescription;
  Datapoint_Id mDpt;
  QString mDptRaw;
  bool mReadAtStart = false;
  bool mReadCyclic = false;
  bool mWrite = true;
  bool mActive = true;

  /// Takes over kind, key and everything that is cached of a group address.
  void bindTo(const DB_Address_Sub_Group& group, const Group_Address& address);

  void fields(DB_Fields& fields);
};
