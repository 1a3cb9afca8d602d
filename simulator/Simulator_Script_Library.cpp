#include "simulator/Simulator_Script_Library.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "fb/model/FB_Lua_Functions.h"
#include "simulator/Simulator_Controller.h"
#include "simulator/Simulator_Script.h"

#include <lua.hpp>

#include <algorithm>
#include <optional>

namespace {

Simulator_Script& scriptOf(lua_State* lua) {
  return *static_cast<Simulator_Script*>(lua_touserdata(lua, lua_upvalueindex(1)));
}

/// Any value as a text, as the language writes it.
QString textAt(lua_State* lua, int index) {
  std::size_t length = 0;
  const char* const text = luaL_tolstring(lua, index, &length);
  QString copy = QString::fromUtf8(text, static_cast<qsizetype>(length));
  lua_pop(lua, 1);
  return copy;
}

QString allTexts(lua_State* lua, int first) {
  QString text;
  for (int i = first; i <= lua_gettop(lua); ++i) {
    text += textAt(lua, i);
  }
  return text;
}

int pushText(lua_State* lua, const QString& text) {
  lua_pushstring(lua, text.toUtf8().constData());
  return 1;
}

/// The payload of a value that a script gives; none for one that the type cannot hold.
std::optional<QByteArray> payloadOf(lua_State* lua, int index, Datapoint_Id id) {
  const Datapoint_Type* const type = Datapoint_Types::find(id);
  if (!type) {
    return QByteArray(
        1, static_cast<char>(lua_isboolean(lua, index) ? lua_toboolean(lua, index) : lua_tointeger(lua, index)));
  }
  std::optional<Datapoint_Value> value;
  if (lua_isboolean(lua, index)) {
    value = Datapoint_Value::ofWhole(lua_toboolean(lua, index));
  } else if (lua_isnumber(lua, index)) {
    value.emplace();
    value->mScalar = static_cast<double>(lua_tonumber(lua, index));
  } else {
    value = Datapoint_Codec::fromText(*type, textAt(lua, index));
  }
  return value ? Datapoint_Codec::encode(*type, *value) : std::nullopt;
}

struct Function {
  const char* mName;
  lua_CFunction mFunction;
};
using Library = Simulator_Script_Library;
constexpr Function cFunctions[] = {
    {"print", Library::print},
    {"sys_debug_print", Library::print},
    {"sys_debug_watch", Library::watch},
    {"sys_alias", Library::alias},
    {"sys_get_tick_count", Library::tickCount},
    {"sys_get_value", Library::getValue},
    {"sys_set_value", Library::setValue},
    {"sys_get_persistent_value", Library::getPersistent},
    {"sys_set_persistent_value", Library::setPersistent},
    {"sys_get_global_value", Library::getGlobal},
    {"sys_set_global_value", Library::setGlobal},
    {"sys_timer_create", Library::timerCreate},
    {"sys_timer_start", Library::timerStart},
    {"sys_timer_stop", Library::timerStop},
    {"sys_timer_elapsed", Library::timerElapsed},
    {"sys_timer_finished", Library::timerFinished},
};

} // namespace

void Simulator_Script_Library::open(lua_State* lua, Simulator_Script& script) {
  luaL_requiref(lua, LUA_GNAME, luaopen_base, 1);
  luaL_requiref(lua, LUA_STRLIBNAME, luaopen_string, 1);
  luaL_requiref(lua, LUA_TABLIBNAME, luaopen_table, 1);
  luaL_requiref(lua, LUA_MATHLIBNAME, luaopen_math, 1);
  luaL_requiref(lua, LUA_UTF8LIBNAME, luaopen_utf8, 1);
  for (const char* const name : {"load", "loadfile", "dofile", "collectgarbage"}) {
    lua_pushnil(lua);
    lua_setglobal(lua, name);
  }
  lua_getglobal(lua, LUA_STRLIBNAME);
  lua_pushnil(lua);
  lua_setfield(lua, -2, "dump");
  const auto add = [&](const char* name, lua_CFunction function) {
    lua_pushlightuserdata(lua, &script);
    lua_pushstring(lua, name);
    lua_pushcclosure(lua, function, 2);
    lua_setglobal(lua, name);
  };
  for (const FB_Lua_Group& group : FB_Lua_Functions::groups()) {
    for (const FB_Lua_Function& function : group.mFunctions) {
      add(function.mName, missing);
    }
  }
  for (const Function& function : cFunctions) {
    add(function.mName, function.mFunction);
  }
  lua_settop(lua, 0);
}

int Simulator_Script_Library::print(lua_State* lua) {
  Simulator_Script& script = scriptOf(lua);
  emit script.wrote(script.mBlock.mGuid, allTexts(lua, 1));
  return 0;
}

int Simulator_Script_Library::watch(lua_State* lua) {
  Simulator_Script& script = scriptOf(lua);
  emit script.watched(script.mBlock.mGuid, textAt(lua, 1), allTexts(lua, 2));
  return 0;
}

int Simulator_Script_Library::alias(lua_State* lua) {
  scriptOf(lua).mAliases.insert(textAt(lua, 2), textAt(lua, 1));
  return 0;
}

int Simulator_Script_Library::tickCount(lua_State* lua) {
  lua_pushinteger(lua, scriptOf(lua).mController.tickCount());
  return 1;
}

int Simulator_Script_Library::getValue(lua_State* lua) {
  Simulator_Script& script = scriptOf(lua);
  const QString name = textAt(lua, 1);
  const QString pin = script.mAliases.value(name, name);
  const Group_Address address = script.addressOf(pin);
  if (address == Group_Address()) {
    return pushText(lua, script.mPins.value(pin, QStringLiteral("0")));
  }
  script.push(address, script.mController.values().value(address));
  return 1;
}

int Simulator_Script_Library::setValue(lua_State* lua) {
  Simulator_Script& script = scriptOf(lua);
  const QString name = textAt(lua, 1);
  const QString pin = script.mAliases.value(name, name);
  const Group_Address address = script.addressOf(pin);
  if (address == Group_Address()) {
    script.mPins.insert(pin, textAt(lua, 2));
    return 0;
  }
  const std::optional<QByteArray> payload = payloadOf(lua, 2, script.mController.values().typeOf(address));
  if (!payload) {
    emit script.wrote(
        script.mBlock.mGuid,
        Simulator_Script::tr("Der Wert \"%1\" passt nicht zu %2.").arg(textAt(lua, 2), address.toString()));
  } else if (lua_toboolean(lua, 3) || script.mController.values().value(address) != *payload) {
    script.mController.writeValue(address, *payload);
  }
  return 0;
}

int Simulator_Script_Library::getPersistent(lua_State* lua) {
  return pushText(lua, scriptOf(lua).mController.scriptValues().value(textAt(lua, 1), textAt(lua, 2)));
}

int Simulator_Script_Library::setPersistent(lua_State* lua) {
  scriptOf(lua).mController.setScriptValue(textAt(lua, 1), textAt(lua, 2));
  return 0;
}

int Simulator_Script_Library::getGlobal(lua_State* lua) {
  return pushText(lua, scriptOf(lua).mGlobals.value(textAt(lua, 1), textAt(lua, 2)));
}

int Simulator_Script_Library::setGlobal(lua_State* lua) {
  Simulator_Script& script = scriptOf(lua);
  const QString name = textAt(lua, 1);
  const QString value = textAt(lua, 2);
  if (lua_toboolean(lua, 3) || !script.mGlobals.contains(name) || script.mGlobals.value(name) != value) {
    script.mGlobals.insert(name, value);
    emit script.globalChanged(name, value);
  }
  return 0;
}

namespace {

/// The timer of that number, from 1.
template <class Timers>
auto* timerAt(lua_State* lua, Timers& timers) {
  const auto index = static_cast<std::size_t>(lua_tointeger(lua, 1)) - 1;
  return index < timers.size() ? &timers[index] : nullptr;
}

} // namespace

int Simulator_Script_Library::timerCreate(lua_State* lua) {
  constexpr std::size_t cMostTimers = 1000;
  Simulator_Script& script = scriptOf(lua);
  if (script.mTimers.size() < cMostTimers) {
    script.mTimers.emplace_back();
  }
  lua_pushinteger(lua, static_cast<lua_Integer>(script.mTimers.size()));
  return 1;
}

int Simulator_Script_Library::timerStart(lua_State* lua) {
  if (auto* const timer = timerAt(lua, scriptOf(lua).mTimers)) {
    timer->mSince.start();
    timer->mPeriod = std::max<qint64>(0, lua_tointeger(lua, 2));
  }
  return 0;
}

int Simulator_Script_Library::timerStop(lua_State* lua) {
  if (auto* const timer = timerAt(lua, scriptOf(lua).mTimers)) {
    timer->mPeriod = -1;
  }
  return 0;
}

int Simulator_Script_Library::timerElapsed(lua_State* lua) {
  const auto* const timer = timerAt(lua, scriptOf(lua).mTimers);
  lua_pushinteger(lua, timer && timer->mPeriod >= 0 ? timer->mSince.elapsed() : 0);
  return 1;
}

int Simulator_Script_Library::timerFinished(lua_State* lua) {
  auto* const timer = timerAt(lua, scriptOf(lua).mTimers);
  const bool isFinished = timer && timer->mPeriod >= 0 && timer->mSince.hasExpired(timer->mPeriod - 1);
  if (isFinished) {
    timer->mPeriod = -1; // told once
  }
  lua_pushboolean(lua, isFinished);
  return 1;
}

int Simulator_Script_Library::missing(lua_State* lua) {
  Simulator_Script& script = scriptOf(lua);
  emit script.wrote(
      script.mBlock.mGuid,
      Simulator_Script::tr("%1: Diese Funktion hat der Simulator nicht.").arg(textAt(lua, lua_upvalueindex(2))));
  return 0;
}
