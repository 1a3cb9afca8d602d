#pragma once

struct lua_State;
class Simulator_Script;

/// The functions that a running script may call: the harmless part of the language's own, and the controller's.
struct Simulator_Script_Library {
  static void open(lua_State* lua, Simulator_Script& script);

  /// What a call was given. Reading it never fails: the texts are made beforehand.
  class Arguments;
  /// What it returns, without memory of its own; a text lies in the script's `mResult`.
  struct Result {
    enum class Kind { Nothing, Flag, Number, Text };
    Kind mKind = Kind::Nothing;
    double mNumber = 0;
  };
  using Do = Result (*)(const Arguments& given, Simulator_Script& script);

  static Result print(const Arguments& given, Simulator_Script& script);
  static Result watch(const Arguments& given, Simulator_Script& script);
  static Result alias(const Arguments& given, Simulator_Script& script);
  static Result tickCount(const Arguments& given, Simulator_Script& script);
  static Result getValue(const Arguments& given, Simulator_Script& script);
  static Result setValue(const Arguments& given, Simulator_Script& script);
  static Result getPersistent(const Arguments& given, Simulator_Script& script);
  static Result setPersistent(const Arguments& given, Simulator_Script& script);
  static Result getGlobal(const Arguments& given, Simulator_Script& script);
  static Result setGlobal(const Arguments& given, Simulator_Script& script);
  static Result timerCreate(const Arguments& given, Simulator_Script& script);
  static Result timerStart(const Arguments& given, Simulator_Script& script);
  static Result timerStop(const Arguments& given, Simulator_Script& script);
  static Result timerElapsed(const Arguments& given, Simulator_Script& script);
  static Result timerFinished(const Arguments& given, Simulator_Script& script);
  static Result missing(const Arguments& given, Simulator_Script& script);

private:
  /// A function of Lua takes the state and returns how many results it left there.
  static int call(lua_State* lua);
};
