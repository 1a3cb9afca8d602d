#pragma once

#include "db/DB_Tables.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

class ProjectDatabase;

/// The rows of a project as bytes that can travel: what the controller gets of the program, and what a controller gives
/// back. Written one after another:
///
///     0  table    u8    number of the table, in the order of DB_Table
///     1  length   u32   little-endian
///     5  content        the row's DATA text (UTF-8, in clear); of a resource its name, a zero byte, the file
///
/// Rows keep the order of the project. The tables that the studio only creates are in no image. Pure; reading checks
/// lengths before it takes memory.
class Project_Image {
public:
  struct Row {
    DB_Table mTable = DB_Table::Project;
    QByteArray mContent;
    friend bool operator==(const Row&, const Row&) = default;
  };
  static constexpr qsizetype cRowHead = 5;

  /// The program: generator, addresses, pages, elements and blocks, orphaned rows included. What a project write sends
  /// as records and resources is not in it.
  [[nodiscard]] static Project_Image program(const ProjectDatabase& database);
  /// Everything: the records, the program, the resources. Empty with a German error when a resource cannot be read.
  [[nodiscard]] static std::optional<Project_Image> whole(ProjectDatabase& database, QString* error = nullptr);

  [[nodiscard]] QByteArray toBytes() const;
  /// Empty with a German error for bytes that are no image.
  [[nodiscard]] static std::optional<Project_Image> fromBytes(QByteArrayView bytes, QString* error = nullptr);

  /// A resource's name without the rest of a character that was cut at its end, as a project can keep it.
  [[nodiscard]] static QByteArray wholeName(QByteArrayView name);

  /// Makes a project file of a whole image, replacing one of that name at the end only. False with a German error.
  [[nodiscard]] bool writeFile(const QString& path, QString* error = nullptr) const;
  /// The same from bytes, such as a controller sends.
  [[nodiscard]] static bool writeFile(QByteArrayView bytes, const QString& path, QString* error = nullptr);

  std::vector<Row> mRows;
};
