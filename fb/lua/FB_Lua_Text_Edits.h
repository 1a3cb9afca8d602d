#pragma once

#include <QTextCursor>

#include <optional>

/// What the keys of a code editor do with a script: each one step of the document's own history.
namespace FB_Lua_Text_Edits {

inline constexpr int cIndent = 2; // blanks

/// A new line, as deep as the present one; deeper behind what opens a block, and the closing word on a line of its own.
void newLine(QTextCursor& cursor);
/// The selected lines one step deeper; without a selection blanks up to the next step.
void indent(QTextCursor& cursor);
void unindent(QTextCursor& cursor);
/// The selected lines become comments; when all of them are, they are none any more.
void toggleComment(QTextCursor& cursor);
/// After a word like "end" was typed at the beginning of a line: as deep as the block it closes.
void alignClosing(QTextCursor& cursor);

/// The bracket that belongs to the one at that position of the document; none for any other character.
[[nodiscard]] std::optional<int> partner(const QTextDocument& document, int position);

/// The identifier around that position of a line: letters, digits, "_".
[[nodiscard]] QString wordAt(const QString& line, qsizetype position);
/// The part of it in front of the position.
[[nodiscard]] QString wordBefore(const QString& line, qsizetype position);
[[nodiscard]] bool isOfWord(QChar c);
/// Whether what stands in front of the position is neither comment nor string, as far as its line tells.
[[nodiscard]] bool isCode(const QString& line, qsizetype position);

} // namespace FB_Lua_Text_Edits
