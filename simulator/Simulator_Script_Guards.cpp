#include "simulator/Simulator_Script_Guards.h"

#include <QByteArrayView>

#include <lua.hpp>

#include <chrono>
#include <cmath>
#include <cstddef>
#include <new>

// An error of the language leaves a function without its destructors: no function here has objects that need them.

namespace {

using Clock = std::chrono::steady_clock;

constexpr int cStep = 1000; // instructions from one look at the clock to the next
constexpr int cMostSteps = 5000;
constexpr Clock::duration cMostTime = std::chrono::seconds(2);
constexpr double cMostComparisons = 2e8;
constexpr QByteArrayView cRepetitions = "*+-?";
constexpr lua_Integer cMostRepeated = 1 << 25;  // more than the memory holds anyway
constexpr lua_Integer cMostEntries = 4'000'000; // the same
constexpr const char* cTooMany = "Die Tabelle ist zu lang.";
constexpr const char* cTooLong = "Das Script rechnet zu lange an einem Stück.";

struct Call {
  Clock::time_point mBegin;
  int mSteps = 0;
};

/// The state has room for it; it lives as long.
const char cCallKey = 0;

Call& callOf(lua_State* lua) {
  lua_rawgetp(lua, LUA_REGISTRYINDEX, &cCallKey);
  auto* const call = static_cast<Call*>(lua_touserdata(lua, -1));
  lua_pop(lua, 1);
  return *call;
}

void onSteps(lua_State* lua, lua_Debug*) {
  Call& call = callOf(lua);
  if (++call.mSteps >= cMostSteps || Clock::now() - call.mBegin > cMostTime) {
    call.mSteps = cMostSteps;
    // From now on at every step, so that a script that catches errors does not go on.
    lua_sethook(lua, onSteps, LUA_MASKCOUNT, 1);
    luaL_error(lua, cTooLong);
  }
}

int callGuarded(lua_State* lua) {
  if (Clock::now() - callOf(lua).mBegin > cMostTime) {
    return luaL_error(lua, cTooLong);
  }
  lua_pushvalue(lua, lua_upvalueindex(1));
  lua_insert(lua, 1);
  lua_call(lua, lua_gettop(lua) - 1, LUA_MULTRET);
  return lua_gettop(lua);
}

/// A pattern of many repetitions takes a time that grows with a power of the text's length.
int matching(lua_State* lua) {
  std::size_t size = 0;
  std::size_t patternSize = 0;
  luaL_checklstring(lua, 1, &size);
  const char* const pattern = luaL_checklstring(lua, 2, &patternSize);
  double comparisons = static_cast<double>(size) + 1;
  for (std::size_t i = 0; i < patternSize && comparisons <= cMostComparisons; ++i) {
    if (cRepetitions.contains(pattern[i])) {
      comparisons *= static_cast<double>(size) + 1;
    }
  }
  if (comparisons > cMostComparisons) {
    return luaL_error(lua, "Das Muster ist für einen so langen Text zu aufwendig.");
  }
  return callGuarded(lua);
}

int repeating(lua_State* lua) {
  if (luaL_checkinteger(lua, 2) > cMostRepeated) {
    return luaL_error(lua, "not enough memory");
  }
  return callGuarded(lua);
}

/// What it returns is called again and again.
int matchingAll(lua_State* lua) {
  matching(lua);
  lua_settop(lua, 1);
  lua_pushcclosure(lua, callGuarded, 1);
  return 1;
}

/// A table may say that it is longer than any memory, or look so with entries that are far apart.
int ofPlainTable(lua_State* lua) {
  for (int i = 1; i <= lua_gettop(lua); ++i) {
    if (lua_istable(lua, i) && luaL_getmetafield(lua, i, "__len") != LUA_TNIL) {
      return luaL_error(lua, "Das geht mit einer Tabelle nicht, die ihre Länge selbst nennt.");
    }
    if (lua_istable(lua, i) && lua_rawlen(lua, i) > static_cast<lua_Unsigned>(cMostEntries)) {
      return luaL_error(lua, cTooMany);
    }
  }
  return callGuarded(lua);
}

/// From argument `first` to the next one, where they are given.
void checkRange(lua_State* lua, int first) {
  for (int i = first; i <= first + 1; ++i) {
    const lua_Integer at = luaL_optinteger(lua, i, 0);
    if (at < -cMostEntries || at > cMostEntries) {
      luaL_error(lua, cTooMany);
    }
  }
}

int moving(lua_State* lua) {
  checkRange(lua, 2);
  return callGuarded(lua);
}

int joining(lua_State* lua) {
  checkRange(lua, 3);
  return ofPlainTable(lua);
}

/// While a table is cleared away nothing is counted.
int settingMetatable(lua_State* lua) {
  if (lua_istable(lua, 2)) {
    lua_pushstring(lua, "__gc");
    if (lua_rawget(lua, 2) != LUA_TNIL) {
      return luaL_error(lua, "__gc gibt es im Simulator nicht.");
    }
    lua_pop(lua, 1);
  }
  return callGuarded(lua);
}

struct Guard {
  const char* mTable;
  const char* mName;
  lua_CFunction mFunction;
};
constexpr Guard cGuards[] = {
    {LUA_STRLIBNAME, "find", matching},       {LUA_STRLIBNAME, "match", matching},
    {LUA_STRLIBNAME, "gmatch", matchingAll},  {LUA_STRLIBNAME, "gsub", matching},
    {LUA_STRLIBNAME, "rep", repeating},       {LUA_TABLIBNAME, "insert", ofPlainTable},
    {LUA_TABLIBNAME, "remove", ofPlainTable}, {LUA_TABLIBNAME, "sort", ofPlainTable},
    {LUA_TABLIBNAME, "concat", joining},      {LUA_TABLIBNAME, "unpack", ofPlainTable},
    {LUA_TABLIBNAME, "move", moving},         {LUA_GNAME, "setmetatable", settingMetatable},
};

/// The handler of the language's own runs where nothing is counted; here it runs behind the error.
constexpr const char* cHandling = R"(
local pcall, pack, unpack = pcall, table.pack, table.unpack
function xpcall(call, handler, ...)
  local results = pack(pcall(call, ...))
  if results[1] then return unpack(results, 1, results.n) end
  return false, handler(results[2])
end
)";

} // namespace

void Simulator_Script_Guards::open(lua_State* lua) {
  new (lua_newuserdatauv(lua, sizeof(Call), 0)) Call;
  lua_rawsetp(lua, LUA_REGISTRYINDEX, &cCallKey);
  begin(lua);
  if (luaL_dostring(lua, cHandling) != LUA_OK) {
    lua_pushnil(lua);
    lua_setglobal(lua, "xpcall");
  }
  for (const Guard& guard : cGuards) {
    lua_getglobal(lua, guard.mTable);
    lua_getfield(lua, -1, guard.mName);
    lua_pushcclosure(lua, guard.mFunction, 1);
    lua_setfield(lua, -2, guard.mName);
    lua_pop(lua, 1);
  }
}

void Simulator_Script_Guards::begin(lua_State* lua) {
  callOf(lua) = {Clock::now(), 0};
  lua_sethook(lua, onSteps, LUA_MASKCOUNT, cStep);
}

void Simulator_Script_Guards::pushNumber(lua_State* lua, double number) {
  lua_Integer whole = 0;
  if (lua_numbertointeger(std::floor(number), &whole) && std::floor(number) == number) {
    lua_pushinteger(lua, whole);
  } else {
    lua_pushnumber(lua, number);
  }
}
