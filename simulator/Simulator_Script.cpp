#include "simulator/Simulator_Script.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "fb/model/FB_Lua_Check.h"
#include "simulator/Simulator_Controller.h"
#include "simulator/Simulator_Script_Guards.h"
#include "simulator/Simulator_Script_Library.h"

#include <lua.hpp>

#include <cstdlib>
#include <optional>
#include <utility>

namespace {

constexpr std::size_t cMostMemory = std::size_t{32} * 1024 * 1024;
constexpr std::size_t cReserve = std::size_t{1024} * 1024;
constexpr int cMostTold = 1000;
constexpr qsizetype cMostCharacters = 4000; // of a line

QString errorOf(lua_State* lua) {
  std::size_t length = 0;
  const char* const text = lua_tolstring(lua, -1, &length);
  return text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : QStringLiteral("?");
}

int pinNumber(const QString& name) {
  return name.mid(1).toInt();
}

} // namespace

void* Simulator_Script::allocate(void* budget, void* block, std::size_t oldSize, std::size_t newSize) {
  auto& memory = *static_cast<Budget*>(budget);
  const std::size_t before = block ? oldSize : 0; // of a new block it is no size
  if (newSize == 0) {
    memory.mUsed -= before;
    std::free(block);
    return nullptr;
  }
  if (newSize > before && memory.mUsed + (newSize - before) > memory.mMost) {
    return nullptr;
  }
  void* const moved = std::realloc(block, newSize);
  if (moved) {
    memory.mUsed = memory.mUsed - before + newSize;
  }
  return moved;
}

void Simulator_Script::Closes::operator()(lua_State* state) const {
  lua_close(state);
}

Simulator_Script::Simulator_Script(Simulator_Controller& controller, Globals& globals, DB_FB_Control block,
                                   QObject* parent)
    : QObject(parent),
      mController(controller),
      mGlobals(globals),
      mBlock(std::move(block)) {}

Simulator_Script::~Simulator_Script() = default;

QString Simulator_Script::run(const QString& script) {
  if (const FB_Lua_Check::Result wrong = FB_Lua_Check::check(script); !wrong) {
    return tr("Zeile %1: %2").arg(wrong.mLine).arg(wrong.mMessage);
  }
  mBudget.mMost = cMostMemory + cReserve;
  mLua.reset(lua_newstate(allocate, &mBudget));
  if (!mLua) {
    return tr("Für das Script ist kein Speicher da.");
  }
  Simulator_Script_Library::open(mLua.get(), *this);
  const QByteArray bytes = script.toUtf8();
  QString error;
  const bool isLoaded =
      luaL_loadbufferx(mLua.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()), "=script", "t") == LUA_OK;
  if (!isLoaded || !callWith(0, &error)) {
    error = isLoaded ? error : errorOf(mLua.get());
    mLua.reset();
    return error;
  }
  if (lua_getglobal(mLua.get(), "onCreate") != LUA_TFUNCTION) {
    lua_settop(mLua.get(), 0);
    return {};
  }
  if (!callWith(0, &error)) {
    mLua.reset();
  }
  return error;
}

bool Simulator_Script::callWith(int arguments, QString* error) {
  mTold = 0;
  Simulator_Script_Guards::begin(mLua.get());
  mBudget.mMost = cMostMemory;
  const bool isDone = lua_pcall(mLua.get(), arguments, 0, 0) == LUA_OK;
  mBudget.mMost = cMostMemory + cReserve;
  if (isDone) {
    lua_settop(mLua.get(), 0);
    return true;
  }
  const QString text = errorOf(mLua.get());
  if (error) {
    *error = text;
  } else {
    fail(text);
  }
  return false;
}

void Simulator_Script::fail(const QString& error) {
  mLua.reset();
  mTold = 0;
  write(tr("Das Script ist angehalten: %1").arg(error));
}

/// A script that tells without end must not take the link with it.
bool Simulator_Script::mayTell() {
  if (++mTold == cMostTold) {
    emit wrote(mBlock.mGuid, tr("Das Script schreibt zu viel; der Rest dieses Aufrufs fehlt."));
  }
  return mTold < cMostTold;
}

void Simulator_Script::write(const QString& line) {
  if (mayTell()) {
    emit wrote(mBlock.mGuid, line.left(cMostCharacters));
  }
}

void Simulator_Script::writeWatched(const QString& name, const QString& value) {
  if (mayTell()) {
    emit watched(mBlock.mGuid, name.left(cMostCharacters), value.left(cMostCharacters));
  }
}

void Simulator_Script::writeValue(const Group_Address& address, const QByteArray& payload) {
  if (mayTell()) {
    mController.writeValue(address, payload);
  }
}

void Simulator_Script::tellGlobal(const QString& name, const QString& value) {
  if (mayTell()) {
    emit globalChanged(name, value);
  }
}

void Simulator_Script::call(const char* function) {
  if (mLua && lua_getglobal(mLua.get(), function) == LUA_TFUNCTION) {
    [[maybe_unused]] const bool isDone = callWith(0);
  } else if (mLua) {
    lua_settop(mLua.get(), 0);
  }
}

void Simulator_Script::callGlobalChanged(const QString& name, const QString& value) {
  if (mLua && lua_getglobal(mLua.get(), "onGlobalChanged") == LUA_TFUNCTION) {
    lua_pushstring(mLua.get(), name.toUtf8().constData());
    lua_pushstring(mLua.get(), value.toUtf8().constData());
    [[maybe_unused]] const bool isDone = callWith(2);
  } else if (mLua) {
    lua_settop(mLua.get(), 0);
  }
}

void Simulator_Script::callEvent(const DB_Address_Network_Telegram& telegram) {
  const Group_Address address = telegram.address();
  if (mLua && lua_getglobal(mLua.get(), "onEvent") == LUA_TFUNCTION) {
    const QString source =
        QStringLiteral("%1.%2.%3").arg(telegram.mSourceArea).arg(telegram.mSourceLine).arg(telegram.mSourceDevice);
    push(address, telegram.mData);
    lua_pushstring(mLua.get(), source.toUtf8().constData());
    lua_pushstring(mLua.get(), address.toString().toUtf8().constData());
    lua_pushinteger(mLua.get(), telegram.mService);
    if (!callWith(4)) {
      return;
    }
  } else if (mLua) {
    lua_settop(mLua.get(), 0);
  }
  for (const DB_FB_Pin& pin : mBlock.mInputs) {
    const DB_Address_Binding& binding = pin.mBinding;
    if (binding.mKind == DB_Address_Binding::Kind::GroupAddress &&
        Group_Address(binding.mMain, binding.mMiddle, binding.mSub) == address) {
      call("onInputChanged");
      return;
    }
  }
}

Group_Address Simulator_Script::addressOf(const QString& name) const {
  if (const std::optional<Group_Address> address = Group_Address::parse(name); address && name.contains(u'/')) {
    return *address;
  }
  const std::vector<DB_FB_Pin>& pins = name.startsWith(u'A') ? mBlock.mOutputs : mBlock.mInputs;
  const auto index = static_cast<std::size_t>(pinNumber(name)) - 1;
  if (index >= pins.size() || pins[index].mBinding.mKind != DB_Address_Binding::Kind::GroupAddress) {
    return {};
  }
  return {pins[index].mBinding.mMain, pins[index].mBinding.mMiddle, pins[index].mBinding.mSub};
}

std::optional<double> Simulator_Script::numberOf(const Group_Address& address, const QByteArray& payload) {
  mResult.clear();
  const Datapoint_Type* const type = Datapoint_Types::find(mController.values().typeOf(address));
  const std::optional<Datapoint_Value> value = type ? Datapoint_Codec::decode(*type, payload) : std::nullopt;
  if (value && !value->number()) {
    mResult = Datapoint_Codec::toText(*type, *value).toUtf8();
    return std::nullopt;
  }
  return value ? value->number() : static_cast<double>(payload.toHex().toULongLong(nullptr, 16));
}

void Simulator_Script::push(const Group_Address& address, const QByteArray& payload) {
  if (const std::optional<double> number = numberOf(address, payload)) {
    Simulator_Script_Guards::pushNumber(mLua.get(), *number);
  } else {
    lua_pushlstring(mLua.get(), mResult.constData(), static_cast<std::size_t>(mResult.size()));
  }
}
