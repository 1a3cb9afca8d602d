#pragma once

#include <QString>

/// Whether a script is one that Lua 5.4 understands. It is only compiled, never run, and takes bounded memory.
namespace FB_Lua_Check {

struct Result {
  int mLine = 0;    ///< of the first error, from 1; 0 when there is none
  QString mMessage; ///< German; empty when there is no error

  explicit operator bool() const { return mMessage.isEmpty(); }
};

[[nodiscard]] Result check(const QString& script);

/// The compiler's message in German; as it is when there is no translation for it.
[[nodiscard]] QString translated(const QString& message);

} // namespace FB_Lua_Check
