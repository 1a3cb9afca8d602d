#pragma once

#include <QByteArray>
#include <QString>

/// A script of a script block as a file of its own, "*.zscr": one record of five fields, each closed by ";", in UTF-8.
/// `docs/script-files.md` describes the fields and what a password protects.
namespace FB_Lua_Script_File {

/// What a file carries. The script's lines end with "\n".
struct Script {
  QString mText;
  int mInputs = 1; ///< pins that it is written for
  int mOutputs = 1;
};

/// Larger files are no script files.
inline constexpr qint64 cSizeLimit = qint64{16} * 1024 * 1024;

enum class State {
  Read,
  Needs_Password, ///< it is protected, and no password was given
  Open_Failed,
  Read_Failed, ///< broken, cut, too large, or no script file
  Unknown_Version,
  Wrong_Password, ///< or the protected script was changed
};

struct Reading {
  State mState = State::Read_Failed;
  Script mScript; ///< empty in any state but Read
};

/// Without a password when that is empty.
[[nodiscard]] QByteArray write(const Script& script, const QString& password);
[[nodiscard]] Reading read(const QByteArray& bytes, const QString& password);

/// What tells the user of that state (German); empty for Read and Needs_Password.
[[nodiscard]] QString message(State state);

[[nodiscard]] Reading readFile(const QString& path, const QString& password);
/// False when it could not be written; a file of that name is then what it was.
[[nodiscard]] bool writeFile(const QString& path, const Script& script, const QString& password);
[[nodiscard]] QString writeFailure();

} // namespace FB_Lua_Script_File
