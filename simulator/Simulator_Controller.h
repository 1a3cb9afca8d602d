#pragma once

#include "base/Group_Address.h"
#include "db/DB_Controller_Informations.h"
#include "simulator/Simulator_Options.h"
#include "simulator/Simulator_Program.h"
#include "simulator/Simulator_Project.h"
#include "simulator/Simulator_Settings.h"
#include "simulator/Simulator_Store.h"
#include "simulator/Simulator_Values.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>

/// What the stand-in is and keeps, whoever asks: project, values, settings, backups, clock. Knows no socket.
class Simulator_Controller : public QObject {
  Q_OBJECT

public:
  explicit Simulator_Controller(Simulator_Options options, QObject* parent = nullptr);

  [[nodiscard]] const Simulator_Options& options() const { return mOptions; }
  /// Why it cannot work with its folder (German); empty when it can. What is damaged there stays as it is.
  [[nodiscard]] const QString& fault() const { return mFault; }
  /// Forgets what is in memory alone and reads what is kept: a restart. False when that is damaged.
  bool load();
  /// Brings the values to the disk.
  bool storeValues();

  [[nodiscard]] bool isLogOnRight(const QString& user, const QString& password) const;
  [[nodiscard]] DB_Controller_Informations informations() const;
  /// Milliseconds since 1970 (UTC) on its own clock.
  [[nodiscard]] qint64 now() const;
  void setClock(qint64 msecs);
  [[nodiscard]] qint64 tickCount() const { return mSinceStart.elapsed(); }

  [[nodiscard]] Simulator_Settings& settings() { return mSettings; }
  bool storeSettings();

  [[nodiscard]] const Simulator_Project& project() const { return mProject; }
  /// The project may be changed as resources are; `storeProject` keeps it.
  [[nodiscard]] Simulator_Project& changeProject() { return mProject; }
  bool storeProject();
  /// Makes this the project, with its own count and identification, and runs it. False when it cannot be stored; then
  /// the old one stays.
  bool startProject(Simulator_Project project);
  /// Runs another program until the next restart; what is stored stays.
  void startProgram(const QByteArray& program);
  /// Takes back what a backup holds; null for what stays.
  bool restore(const Simulator_Project* project, const QByteArray* values);
  /// Forgets project and persistent values.
  void reset();
  /// A controller whose project is being written stands still.
  void setStopped(bool isStopped) { mIsStopped = isStopped; }
  [[nodiscard]] bool isStopped() const { return mIsStopped; }
  [[nodiscard]] bool isRunning() const { return !mIsStopped && !mProject.isEmpty(); }

  [[nodiscard]] const Simulator_Program& program() const { return mProgram; }
  [[nodiscard]] Simulator_Values& values() { return mValues; }
  /// Keeps the value and tells it to everyone, as sent by the device with this physical address on the bus.
  void writeValue(const Group_Address& address, const QByteArray& payload, int area, int line, int device);
  /// The same with the controller's own physical address.
  void writeValue(const Group_Address& address, const QByteArray& payload);

  /// What scripts keep over a restart, by the names that they gave it.
  [[nodiscard]] const QMap<QString, QString>& scriptValues() const { return mScriptValues; }
  void setScriptValue(const QString& name, const QString& value);

  [[nodiscard]] Simulator_Store& store() { return mStore; }

signals:
  /// To everyone who is logged on.
  void told(const DB_Address_Network_Telegram& telegram);
  /// Another program runs.
  void programStarted();

private:
  /// What is kept in a file, read; nothing where it is not there. Notes a fault when it is damaged.
  template <class Content, class Read>
  [[nodiscard]] Content kept(const QString& name, Read read);
  void readProgram();

  Simulator_Options mOptions;
  Simulator_Store mStore;
  QString mFault;
  Simulator_Settings mSettings;
  Simulator_Project mProject;
  Simulator_Program mProgram;
  Simulator_Values mValues;
  QMap<QString, QString> mScriptValues;
  QElapsedTimer mSinceStart;
  bool mIsStopped = false;
};
