#pragma once

struct lua_State;
class Simulator_Script;

/// The functions that a running script may call: the harmless part of the language's own, and the controller's.
struct Simulator_Script_Library {
  static void open(lua_State* lua, Simulator_Script& script);

  // A function of Lua takes the state and returns how many results it left there.
  static int print(lua_State* lua);
  static int watch(lua_State* lua);
  static int alias(lua_State* lua);
  static int tickCount(lua_State* lua);
  static int getValue(lua_State* lua);
  static int setValue(lua_State* lua);
  static int getPersistent(lua_State* lua);
  static int setPersistent(lua_State* lua);
  static int getGlobal(lua_State* lua);
  static int setGlobal(lua_State* lua);
  static int timerCreate(lua_State* lua);
  static int timerStart(lua_State* lua);
  static int timerStop(lua_State* lua);
  static int timerElapsed(lua_State* lua);
  static int timerFinished(lua_State* lua);
  static int missing(lua_State* lua);
};
