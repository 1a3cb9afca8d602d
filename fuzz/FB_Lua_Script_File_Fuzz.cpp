// Reads arbitrary bytes as a script file; what could be read is written and read alike, and checked. The first byte
// chooses whether a password is given, and whether a valid head is put before the rest.
#include "fb/model/FB_Lua_Check.h"
#include "fb/model/FB_Lua_Script_File.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool isTrue, const char* what) {
  if (!isTrue) {
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  if (data[0] & 2) {
    bytes.prepend("zscr 1;;1;1;");
  }
  const QString password = data[0] & 1 ? QStringLiteral("Passwort") : QString();
  using State = FB_Lua_Script_File::State;
  const FB_Lua_Script_File::Reading reading = FB_Lua_Script_File::read(bytes, password);
  require((reading.mState == State::Read || reading.mState == State::Needs_Password) ==
              FB_Lua_Script_File::message(reading.mState).isEmpty(),
          "a failure has a text");
  if (reading.mState != State::Read) {
    require(reading.mScript.mText.isEmpty(), "a failure brings no script");
    return 0;
  }
  const FB_Lua_Script_File::Reading again =
      FB_Lua_Script_File::read(FB_Lua_Script_File::write(reading.mScript, {}), {});
  require(again.mState == State::Read && again.mScript.mText == reading.mScript.mText &&
              again.mScript.mInputs == reading.mScript.mInputs && again.mScript.mOutputs == reading.mScript.mOutputs,
          "it is written and read alike");
  const FB_Lua_Check::Result check = FB_Lua_Check::check(reading.mScript.mText);
  require(check.mMessage.isEmpty() == (check.mLine == 0), "an error has a line");
  return 0;
}
