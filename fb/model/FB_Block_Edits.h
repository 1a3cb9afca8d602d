#pragma once

#include "db/Edit_Result.h"

#include <QList>
#include <QString>
#include <QUuid>

class DB_FB_Control;
class Project_Session;

/// The edits of what blocks of every type have, each for all blocks of a list and one undo step (or part of the one
/// that is open). Property panel, assistant and test call these. All of them refuse in the operating mode, and before
/// the first change when one of the blocks is not there. Parameters are edited by `FB_Page_Edits::setParameter`.
namespace FB_Block_Edits {

/// Longest name, in characters.
inline constexpr qsizetype cNameLimit = 255;
/// Longest start delay, in seconds: one day.
inline constexpr int cStartDelayMaximum = 86'400;

Edit_Result setName(Project_Session& session, const QList<QUuid>& blocks, const QString& name);
/// Gives each block the name that fits it, see `fittingName`.
Edit_Result takeNames(Project_Session& session, const QList<QUuid>& blocks);
Edit_Result setComment(Project_Session& session, const QList<QUuid>& blocks, const QString& comment);
/// Whether the comment is shown as the block's title.
Edit_Result setCommentAsCaption(Project_Session& session, const QList<QUuid>& blocks, bool isCaption);
/// A block that is disabled is not executed.
Edit_Result setDisabled(Project_Session& session, const QList<QUuid>& blocks, bool isDisabled);
/// Whether the outputs are sent when the controller starts.
Edit_Result setUpdateAtStart(Project_Session& session, const QList<QUuid>& blocks, bool isUpdated);
/// Whether the outputs are sent again and again.
Edit_Result setUpdateCyclic(Project_Session& session, const QList<QUuid>& blocks, bool isUpdated);
/// Seconds, 0 to `cStartDelayMaximum`.
Edit_Result setStartDelay(Project_Session& session, const QList<QUuid>& blocks, int seconds);
/// The key of the group address that rests the blocks while its value is set; null for none.
Edit_Result setDisableAddress(Project_Session& session, const QList<QUuid>& blocks, const QUuid& address);

/// What the first bound output is bound to, else the first bound input, else what the block is called anyway.
[[nodiscard]] QString fittingName(const DB_FB_Control& block);

} // namespace FB_Block_Edits
