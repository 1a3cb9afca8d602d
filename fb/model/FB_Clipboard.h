#pragma once

#include "fb/model/FB_Page_Edits.h"

#include <QByteArray>
#include <QString>

/// Blocks on the clipboard: within a page, between pages and between studios. What is read comes from outside and is
/// checked.
///
/// Pasted blocks have identifiers of their own. Wires between them stay, through variables of their own. Inputs keep
/// their group address, found by its key, else by its numbers, and a variable from elsewhere that the project has;
/// outputs lose what they write, lest two blocks write the same, unless the settings say that they keep it. What the
/// project does not have is left unbound.
///
/// The bytes, with numbers of 32 bits in network order: "QSBLOCKS", version 1, number of blocks, then of each the
/// length of its DATA text and the text.
namespace FB_Clipboard {

/// More is refused, when copied and when pasted.
[[nodiscard]] QString limitRefusal();
inline constexpr quint32 cBlockLimit = 20'000;
inline constexpr qsizetype cSizeLimit = qsizetype{64} * 1024 * 1024; ///< bytes of all

[[nodiscard]] QString mimeType();

/// Blocks of a page, in its order; empty when that are more than could be pasted.
[[nodiscard]] QByteArray pack(const Project_Session& session, const QList<QUuid>& blocks);

/// True when this is the beginning of packed blocks; quick.
[[nodiscard]] bool isPacked(const QByteArray& packed);

/// Onto a page, with the upper left corner of what was copied there, but with nothing left of or above the page. One
/// undo step; refuses all when one may not be.
[[nodiscard]] FB_Page_Edits::Result paste(Project_Session& session, const QUuid& page, const QByteArray& packed,
                                          const QPointF& position, bool keepOutputs);
/// Copies on the same page, moved by `offset`.
[[nodiscard]] FB_Page_Edits::Result duplicate(Project_Session& session, const QList<QUuid>& blocks,
                                              const QPointF& offset, bool keepOutputs);

} // namespace FB_Clipboard
