#pragma once

#include "db/Edit_Result.h"

#include <QHash>
#include <QString>
#include <QUuid>

class Project_Session;

/// The edits of internal variables, each one undo step. A variable lives only in the bindings that carry its key, so an
/// edit changes every block and element that is bound to it. All of them refuse in the operating mode.
namespace Variable_Edits {

/// A name of 1 to 255 characters in one line.
[[nodiscard]] Edit_Result checkName(const QString& name);
Edit_Result rename(Project_Session& session, const QUuid& key, const QString& name);
/// Several, by their keys; refuses all when one may not be.
Edit_Result rename(Project_Session& session, const QHash<QUuid, QString>& names);

/// `type` as `Datapoint_Id::parse` reads it, empty for none.
Edit_Result setType(Project_Session& session, const QUuid& key, const QString& type);

} // namespace Variable_Edits
