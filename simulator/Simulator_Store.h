#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class QLockFile;

/// The stand-in's disk: named files in a folder, each at every moment whole, or in memory where there is no folder.
/// Names are letters, digits, "-", "." only. One store at a time has a folder; a process that ended in whatever way has
/// none.
class Simulator_Store {
public:
  /// Makes the folder; an empty name keeps everything in memory.
  explicit Simulator_Store(QString folder = {});
  ~Simulator_Store();

  /// Why the folder cannot be used (German); empty when it can. Then nothing is written.
  [[nodiscard]] const QString& fault() const { return mFault; }
  /// Empty for a file that is not there.
  [[nodiscard]] QByteArray read(const QString& name) const;
  bool write(const QString& name, const QByteArray& bytes);
  bool remove(const QString& name);
  /// Those with this ending, in the order of their names.
  [[nodiscard]] QStringList names(const QString& ending) const;

private:
  [[nodiscard]] QString path(const QString& name) const;

  QString mFolder;
  QString mFault;
  std::unique_ptr<QLockFile> mLock;
  QHash<QString, QByteArray> mMemory;
};
