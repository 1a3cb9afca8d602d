#pragma once

#include "db/Edit_Result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>

class Project_Session;
class QMimeData;

/// Group addresses on the clipboard and while they are dragged: packed with all their fields, and with everything below
/// them. What is read comes from outside and is checked.
namespace Address_Clipboard {

[[nodiscard]] QString mimeType();

enum class Use {
  Copy, ///< pasting makes new addresses with keys of their own
  Move, ///< pasting in the same project moves the addresses, so bindings follow; elsewhere it copies. No main groups.
};

struct Result {
  qsizetype mAdded = 0;   ///< new addresses and groups
  qsizetype mChanged = 0; ///< of those that were there
  qsizetype mMoved = 0;
  QStringList mFaults; ///< one German sentence for each line that was left out
  QList<QUuid> mKeys;  ///< what was pasted, without what lies below it
};

[[nodiscard]] QByteArray pack(Project_Session& session, const QList<QUuid>& keys, Use use);
/// The same as data of the clipboard and of dragging.
void fill(QMimeData& data, Project_Session& session, const QList<QUuid>& keys, Use use);

/// The key of the one address that is dragged; null when it is none, several or a group.
[[nodiscard]] QUuid singleAddress(const QMimeData& data);

/// Whether `paste` would find a place for the data; quick, for it is asked with every move of the mouse.
[[nodiscard]] bool fits(Project_Session& session, const QMimeData& data, const QUuid& target);

/// Brings what was packed into the group of that key, or beside the group or address of that key: addresses into its
/// middle group, middle groups into its main group; main groups need no target. They keep their number where it is
/// free, else get the next free one. One undo step; without room for all of them nothing is pasted.
Edit_Result paste(Project_Session& session, const QByteArray& packed, const QUuid& target, Result& result);

} // namespace Address_Clipboard
