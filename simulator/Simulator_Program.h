#pragma once

#include "db/DB_FB_Control.h"
#include "simulator/Simulator_Values.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QUuid>

/// What the stand-in understands of a program: its group addresses and its script blocks.
struct Simulator_Program {
  QList<Simulator_Values::Address> mAddresses; ///< in the order of the project
  QHash<QUuid, DB_FB_Control> mScripts;        ///< by the GUIDs of their blocks

  /// Of an image that is none nothing is understood.
  [[nodiscard]] static Simulator_Program read(const QByteArray& bytes);
};
