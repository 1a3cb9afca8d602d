#pragma once

#include "net/Controller_Records.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <array>
#include <optional>

/// A project as the stand-in holds it: what was written to it, unread.
struct Simulator_Project {
  /// The commands whose records make a project, as their digest goes over them behind that of DB_Project.
  static constexpr std::array<quint32, 6> cDigested = {105, 104, 350, 210, 106, 107};

  QMap<quint32, QByteArray> mRecords;      ///< DATA texts by the command that brought them
  QByteArray mProgram;                     ///< a Project_Image
  QMap<QByteArray, QByteArray> mResources; ///< by name

  [[nodiscard]] bool isEmpty() const { return mRecords.isEmpty() && mProgram.isEmpty(); }
  [[nodiscard]] DB_Project header() const;
  void setHeader(const DB_Project& header);
  /// What is wrong with the records (German); empty when they make a project.
  [[nodiscard]] QString fault() const;
  [[nodiscard]] DB_Controller_Project told(bool isRunning) const;

  /// Everything as one Project_Image, which a studio makes a project file of.
  [[nodiscard]] QByteArray image() const;

  [[nodiscard]] QByteArray toBytes() const;
  [[nodiscard]] static std::optional<Simulator_Project> fromBytes(const QByteArray& bytes);
};
