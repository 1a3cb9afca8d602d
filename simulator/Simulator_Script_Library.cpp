#include "simulator/Simulator_Script_Library.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "fb/model/FB_Lua_Functions.h"
#include "simulator/Simulator_Controller.h"
#include "simulator/Simulator_Script.h"
#include "simulator/Simulator_Script_Guards.h"

#include <lua.hpp>

#include <algorithm>
#include <optional>

using Library = Simulator_Script_Library;
using Kind = Library::Result::Kind;

/// Argument i stands at i, its text at count + i.
class Library::Arguments {
public:
  Arguments(lua_State* lua, int count, const char* name) : mLua(lua), mCount(count), mName(name) {}

  /// As the script called it.
  [[nodiscard]] QString name() const { return QString::fromUtf8(mName); }
  /// As the language writes it; empty for one that was not given.
  [[nodiscard]] QString text(int index) const {
    std::size_t length = 0;
    const char* const text = index <= mCount ? lua_tolstring(mLua, mCount + index, &length) : nullptr;
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
  }
  [[nodiscard]] QString texts(int first) const {
    QString all;
    for (int i = first; i <= mCount; ++i) {
      all += text(i);
    }
    return all;
  }
  [[nodiscard]] bool isFlag(int index) const { return index <= mCount && lua_isboolean(mLua, index); }
  [[nodiscard]] bool isNumber(int index) const { return index <= mCount && lua_isnumber(mLua, index) != 0; }
  [[nodiscard]] bool flag(int index) const { return index <= mCount && lua_toboolean(mLua, index) != 0; }
  [[nodiscard]] lua_Integer whole(int index) const { return index <= mCount ? lua_tointeger(mLua, index) : 0; }
  [[nodiscard]] double number(int index) const { return index <= mCount ? lua_tonumber(mLua, index) : 0; }

private:
  lua_State* mLua;
  int mCount;
  const char* mName;
};

namespace {

constexpr int cMostArguments = 100;
constexpr qsizetype cMostNames = 1000; // that scripts may give to values
constexpr qsizetype cMostText = 4000;  // characters of such a value

/// The payload of a value that a script gives; none for one that the type cannot hold.
std::optional<QByteArray> payloadOf(const Library::Arguments& given, int index, Datapoint_Id id) {
  const Datapoint_Type* const type = Datapoint_Types::find(id);
  if (!type) {
    return QByteArray(1, static_cast<char>(given.isFlag(index) ? given.flag(index) : given.whole(index)));
  }
  std::optional<Datapoint_Value> value;
  if (given.isFlag(index)) {
    value = Datapoint_Value::ofWhole(given.flag(index));
  } else if (given.isNumber(index)) {
    value.emplace();
    value->mScalar = given.number(index);
  } else {
    value = Datapoint_Codec::fromText(*type, given.text(index));
  }
  return value ? Datapoint_Codec::encode(*type, *value) : std::nullopt;
}

template <class Names>
bool isRoomFor(const Names& names, const QString& name, const QString& value) {
  return (names.size() < cMostNames || names.contains(name)) && name.size() <= cMostText && value.size() <= cMostText;
}

struct Function {
  const char* mName;
  Library::Do mDo;
};
constexpr Function cMissing = {"", Library::missing};
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

/// An error of the language leaves it without destructors: what can fail comes before and behind what has any.
int Library::call(lua_State* lua) {
  auto* const script = static_cast<Simulator_Script*>(lua_touserdata(lua, lua_upvalueindex(1)));
  const auto* const function = static_cast<const Function*>(lua_touserdata(lua, lua_upvalueindex(2)));
  const auto* const name = static_cast<const char*>(lua_touserdata(lua, lua_upvalueindex(3)));
  const int count = std::min(lua_gettop(lua), cMostArguments);
  lua_settop(lua, count);
  luaL_checkstack(lua, count + LUA_MINSTACK, nullptr);
  for (int i = 1; i <= count; ++i) {
    luaL_tolstring(lua, i, nullptr);
  }
  const Result result = function->mDo(Arguments(lua, count, name), *script);
  switch (result.mKind) {
  case Kind::Nothing:
    return 0;
  case Kind::Flag:
    lua_pushboolean(lua, result.mNumber != 0);
    break;
  case Kind::Number:
    Simulator_Script_Guards::pushNumber(lua, result.mNumber);
    break;
  case Kind::Text:
    lua_pushlstring(lua, script->mResult.constData(), static_cast<std::size_t>(script->mResult.size()));
    break;
  }
  return 1;
}

void Library::open(lua_State* lua, Simulator_Script& script) {
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
  Simulator_Script_Guards::open(lua);
  const auto add = [&](const char* name, const Function& function) {
    lua_pushlightuserdata(lua, &script);
    lua_pushlightuserdata(lua, const_cast<Function*>(&function));
    lua_pushlightuserdata(lua, const_cast<char*>(name));
    lua_pushcclosure(lua, call, 3);
    lua_setglobal(lua, name);
  };
  for (const FB_Lua_Group& group : FB_Lua_Functions::groups()) {
    for (const FB_Lua_Function& function : group.mFunctions) {
      add(function.mName, cMissing);
    }
  }
  for (const Function& function : cFunctions) {
    add(function.mName, function);
  }
  lua_settop(lua, 0);
}

Library::Result Library::print(const Arguments& given, Simulator_Script& script) {
  script.write(given.texts(1));
  return {};
}

Library::Result Library::watch(const Arguments& given, Simulator_Script& script) {
  script.writeWatched(given.text(1), given.texts(2));
  return {};
}

Library::Result Library::alias(const Arguments& given, Simulator_Script& script) {
  if (isRoomFor(script.mAliases, given.text(2), given.text(1))) {
    script.mAliases.insert(given.text(2), given.text(1));
  }
  return {};
}

Library::Result Library::tickCount(const Arguments&, Simulator_Script& script) {
  return {Kind::Number, static_cast<double>(script.mController.tickCount())};
}

Library::Result Library::getValue(const Arguments& given, Simulator_Script& script) {
  const QString pin = script.mAliases.value(given.text(1), given.text(1));
  const Group_Address address = script.addressOf(pin);
  if (address == Group_Address()) {
    script.mResult = script.mPins.value(pin, QStringLiteral("0")).toUtf8();
    return {Kind::Text};
  }
  const std::optional<double> number = script.numberOf(address, script.mController.values().value(address));
  return {number ? Kind::Number : Kind::Text, number.value_or(0)};
}

Library::Result Library::setValue(const Arguments& given, Simulator_Script& script) {
  const QString pin = script.mAliases.value(given.text(1), given.text(1));
  const Group_Address address = script.addressOf(pin);
  if (address == Group_Address()) {
    if (isRoomFor(script.mPins, pin, given.text(2))) {
      script.mPins.insert(pin, given.text(2));
    }
    return {};
  }
  const std::optional<QByteArray> payload = payloadOf(given, 2, script.mController.values().typeOf(address));
  if (!payload) {
    script.write(Simulator_Script::tr("Der Wert \"%1\" passt nicht zu %2.").arg(given.text(2), address.toString()));
  } else if (given.flag(3) || script.mController.values().value(address) != *payload) {
    script.writeValue(address, *payload);
  }
  return {};
}

Library::Result Library::getPersistent(const Arguments& given, Simulator_Script& script) {
  script.mResult = script.mController.scriptValues().value(given.text(1), given.text(2)).toUtf8();
  return {Kind::Text};
}

Library::Result Library::setPersistent(const Arguments& given, Simulator_Script& script) {
  if (isRoomFor(script.mController.scriptValues(), given.text(1), given.text(2))) {
    script.mController.setScriptValue(given.text(1), given.text(2));
  }
  return {};
}

Library::Result Library::getGlobal(const Arguments& given, Simulator_Script& script) {
  script.mResult = script.mGlobals.value(given.text(1), given.text(2)).toUtf8();
  return {Kind::Text};
}

Library::Result Library::setGlobal(const Arguments& given, Simulator_Script& script) {
  const QString name = given.text(1);
  const QString value = given.text(2);
  const bool isNew = !script.mGlobals.contains(name) || script.mGlobals.value(name) != value;
  if (isRoomFor(script.mGlobals, name, value) && (given.flag(3) || isNew)) {
    script.mGlobals.insert(name, value);
    script.tellGlobal(name, value);
  }
  return {};
}

namespace {

/// The timer of that number, from 1.
template <class Timers>
auto* timerAt(const Library::Arguments& given, Timers& timers) {
  const auto index = static_cast<std::size_t>(given.whole(1)) - 1;
  return index < timers.size() ? &timers[index] : nullptr;
}

} // namespace

Library::Result Library::timerCreate(const Arguments&, Simulator_Script& script) {
  constexpr std::size_t cMostTimers = 1000;
  if (script.mTimers.size() < cMostTimers) {
    script.mTimers.emplace_back();
  }
  return {Kind::Number, static_cast<double>(script.mTimers.size())};
}

Library::Result Library::timerStart(const Arguments& given, Simulator_Script& script) {
  if (auto* const timer = timerAt(given, script.mTimers)) {
    timer->mSince.start();
    timer->mPeriod = std::max<qint64>(0, given.whole(2));
  }
  return {};
}

Library::Result Library::timerStop(const Arguments& given, Simulator_Script& script) {
  if (auto* const timer = timerAt(given, script.mTimers)) {
    timer->mPeriod = -1;
  }
  return {};
}

Library::Result Library::timerElapsed(const Arguments& given, Simulator_Script& script) {
  const auto* const timer = timerAt(given, script.mTimers);
  return {Kind::Number, timer && timer->mPeriod >= 0 ? static_cast<double>(timer->mSince.elapsed()) : 0};
}

Library::Result Library::timerFinished(const Arguments& given, Simulator_Script& script) {
  auto* const timer = timerAt(given, script.mTimers);
  const bool isFinished = timer && timer->mPeriod >= 0 && timer->mSince.hasExpired(timer->mPeriod - 1);
  if (isFinished) {
    timer->mPeriod = -1; // told once
  }
  return {Kind::Flag, isFinished ? 1.0 : 0.0};
}

Library::Result Library::missing(const Arguments& given, Simulator_Script& script) {
  script.write(Simulator_Script::tr("%1: Diese Funktion hat der Simulator nicht.").arg(given.name()));
  return {};
}
