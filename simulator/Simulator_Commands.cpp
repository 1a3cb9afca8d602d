#include "simulator/Simulator_Commands.h"

#include <algorithm>

const Simulator_Commands::Row* Simulator_Commands::find(quint32 command) {
  for (const std::span<const Row> rows : {linkRows(), projectRows(), backupRows(), serviceRows()}) {
    const auto row = std::ranges::find(rows, command, &Row::mCommand);
    if (row != rows.end()) {
      return &*row;
    }
  }
  return nullptr;
}
