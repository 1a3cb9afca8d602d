#pragma once

struct lua_State;

/// Keeps a running script from never coming to an end: bounds the instructions and the time of a call, and takes away
/// or bounds what the language would do for long without counting instructions.
namespace Simulator_Script_Guards {

/// Once for a new state, whose libraries are open.
void open(lua_State* lua);
/// Before each call.
void begin(lua_State* lua);

/// A whole number as the language's whole number. Takes no memory.
void pushNumber(lua_State* lua, double number);

} // namespace Simulator_Script_Guards
