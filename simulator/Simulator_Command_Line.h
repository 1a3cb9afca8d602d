#pragma once

#include "simulator/Simulator_Options.h"

#include <QString>
#include <QStringList>

/// What the arguments of the program ask for.
struct Simulator_Command_Line {
  /// Without the program's own name.
  [[nodiscard]] static Simulator_Command_Line parse(const QStringList& arguments);
  [[nodiscard]] static QString helpText();
  [[nodiscard]] static QString versionText();

  Simulator_Options mOptions;
  bool mHelp = false;
  bool mVersion = false;
  QString mError; ///< German text about the first wrong argument; empty when all are right
};
