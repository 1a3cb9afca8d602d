#pragma once

#include "net/Controller_Records.h"
#include "simulator/Simulator_Project.h"

#include <QByteArray>
#include <QString>

#include <optional>

class Simulator_Controller;

/// The backups that a stand-in keeps: each a copy of its project and of its values as they were.
class Simulator_Backups {
public:
  struct Content {
    Simulator_Project mProject;
    QByteArray mValues; ///< as Persistent_Values travel
  };

  /// The controller outlives it.
  explicit Simulator_Backups(Simulator_Controller& controller) : mController(controller) {}

  /// The oldest first.
  [[nodiscard]] DB_Backup_List list() const;
  /// The new one alone; empty when it cannot be written.
  [[nodiscard]] DB_Backup_List make(const QString& description);
  /// The file of a backup; empty for an id that is none.
  [[nodiscard]] QByteArray file(const QString& id) const;
  [[nodiscard]] std::optional<Content> content(const QString& id) const;
  bool remove(const QString& id);

private:
  [[nodiscard]] static QString nameOf(const QString& id);

  Simulator_Controller& mController;
};
