#pragma once

#include "net/Sha256.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <optional>

class ProjectDatabase;

/// What tells two copies of a project apart without sending them: SHA-256 as 64 hexadecimal digits. Studio and
/// controller reckon them alike.
struct Project_Digests {
  /// So many bytes of a resource's name travel, and are reckoned in.
  static constexpr qsizetype cNameBytes = 255;

  QString mProgram;   ///< of the bytes of the program's image
  QString mRecords;   ///< of the records that a project write sends behind the project record
  QString mResources; ///< empty without any
  int mResourceCount = 0;

  [[nodiscard]] static QString program(QByteArrayView image) { return Sha256::hexOf(image); }
  /// The DATA texts of connections, styles, module bus, mail, statistics and telegram monitor, in this order and
  /// without the zero bytes with which they travel: these are reckoned in.
  [[nodiscard]] static QString records(const QList<QByteArray>& texts);

  /// Takes the resources in the order of the bytes of their names: the name, a zero byte, the file. Of a character that
  /// was cut at the end of a name nothing is reckoned in. Empty files are no resources.
  class Resources {
  public:
    void add(QByteArrayView name, QByteArrayView file);
    [[nodiscard]] int count() const { return mCount; }
    /// Once, behind the last one; empty without any.
    [[nodiscard]] QString digest() { return mCount == 0 ? QString() : mHash.hex(); }

  private:
    Sha256 mHash;
    int mCount = 0;
  };

  /// Of the open project as it is in memory. None with a German error when a resource cannot be read.
  [[nodiscard]] static std::optional<Project_Digests> of(ProjectDatabase& database, QString* error = nullptr);
};
