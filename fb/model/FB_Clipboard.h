#pragma once

#include "fb/model/FB_Page_Edits.h"

#include <QByteArray>
#include <QString>

/// Blocks on the clipboard: within a page, between pages and between studios. What is read comes from outside and is
/// checked.
///
/// Pasted blocks have identifiers of their own. Wires between them stay, through variables of their own. Inputs keep
/// their group address; outputs lose what they write, lest two blocks write the same, unless the settings say that they
/// keep it.
namespace FB_Clipboard {

[[nodiscard]] QString mimeType();

/// Blocks of a page, in its order.
[[nodiscard]] QByteArray pack(const Project_Session& session, const QList<QUuid>& blocks);

/// True when this is the beginning of packed blocks; quick.
[[nodiscard]] bool isPacked(const QByteArray& packed);

/// Onto a page, with the upper left corner of what was copied there. One undo step; refuses all when one may not be.
[[nodiscard]] FB_Page_Edits::Result paste(Project_Session& session, const QUuid& page, const QByteArray& packed,
                                          const QPointF& position, bool keepOutputs);
/// Copies on the same page, moved by `offset`.
[[nodiscard]] FB_Page_Edits::Result duplicate(Project_Session& session, const QList<QUuid>& blocks,
                                              const QPointF& offset, bool keepOutputs);

} // namespace FB_Clipboard
