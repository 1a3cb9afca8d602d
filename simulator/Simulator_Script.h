#pragma once

#include "db/DB_FB_Control.h"
#include "net/DB_Address_Network_Telegram.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QUuid>

#include <memory>
#include <optional>
#include <vector>

class Simulator_Controller;
struct lua_State;

/// A script block's script while it runs: Lua 5.4 without files, processes and bytecode, with bounded memory and a
/// bounded time for each call: a number of instructions, and of seconds. Not all functions of a controller's scripts
/// are there; one that is not says so on the console.
class Simulator_Script : public QObject {
  Q_OBJECT

public:
  /// What all scripts share.
  using Globals = QMap<QString, QString>;

  /// Controller and globals outlive it. A block that the program lacks has no bound pins.
  Simulator_Script(Simulator_Controller& controller, Globals& globals, DB_FB_Control block, QObject* parent = nullptr);
  ~Simulator_Script() override;

  /// Compiles and runs it and its onCreate; what is wrong with it, in German or as the language says it.
  [[nodiscard]] QString run(const QString& script);
  [[nodiscard]] bool isRunning() const { return mLua != nullptr; }

  /// These call the script's function of that name, if it has one. An error ends the script and is told.
  void call(const char* function);
  void callGlobalChanged(const QString& name, const QString& value);
  /// onEvent, and onInputChanged for a telegram to the address of an input.
  void callEvent(const DB_Address_Network_Telegram& telegram);

signals:
  void wrote(const QUuid& block, const QString& line);
  void watched(const QUuid& block, const QString& name, const QString& value);
  void globalChanged(const QString& name, const QString& value);

private:
  struct Closes {
    void operator()(lua_State* state) const;
  };
  struct Timer {
    QElapsedTimer mSince;
    qint64 mPeriod = -1; ///< milliseconds; -1 while it does not run
  };
  friend struct Simulator_Script_Library;

  /// What the memory may come to. Beyond what a script gets there is a reserve for what is done outside of its calls,
  /// where nobody could catch the language's error.
  struct Budget {
    std::size_t mUsed = 0; ///< bytes
    std::size_t mMost = 0;
  };
  static void* allocate(void* budget, void* block, std::size_t oldSize, std::size_t newSize);
  // What a call tells others, each cut and only so often: the events wait in memory until the call is over.
  void write(const QString& line);
  void writeWatched(const QString& name, const QString& value);
  void writeValue(const Group_Address& address, const QByteArray& payload);
  void tellGlobal(const QString& name, const QString& value);
  [[nodiscard]] bool mayTell();
  [[nodiscard]] bool callWith(int arguments, QString* error = nullptr);
  void fail(const QString& error);
  [[nodiscard]] Group_Address addressOf(const QString& name) const;
  /// What a script gets to see of a value: a number, or none and a text in `mResult`.
  [[nodiscard]] std::optional<double> numberOf(const Group_Address& address, const QByteArray& payload);
  void push(const Group_Address& address, const QByteArray& payload);

  Simulator_Controller& mController;
  Globals& mGlobals;
  DB_FB_Control mBlock;
  Budget mBudget;
  QByteArray mResult; ///< a text that a function returns
  int mTold = 0;      ///< by the present call
  std::unique_ptr<lua_State, Closes> mLua;
  QHash<QString, QString> mAliases;
  QHash<QString, QString> mPins; ///< values of pins that are bound to nothing
  std::vector<Timer> mTimers;
};
