#pragma once

#include "db/Edit_Result.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QHash>
#include <QList>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QUuid>

class Project_Session;

/// The edits of the blocks on the logic pages, each one undo step (or part of the one that is open). Mouse, menu,
/// property panel, assistant and test call these. All of them refuse in the operating mode, and before the first change
/// what names a block, pin or page that is not there (any more). Positions are pixels of the unzoomed page.
namespace FB_Page_Edits {

/// A position is a finite number of pixels, at most so far from the page's upper left corner.
inline constexpr double cPositionLimit = 1'000'000;
/// Longest title, text of a comment block, and value of a parameter, in characters.
inline constexpr qsizetype cTitleLimit = 255;
inline constexpr qsizetype cCommentLimit = 20'000;
inline constexpr qsizetype cParameterLimit = 1'000'000;

/// What became of an edit that makes blocks.
struct Result : Edit_Result {
  QList<QUuid> mBlocks; ///< those that were made, in order
  QString mNote;        ///< German, what could not be taken along; empty when everything was
};

/// A block of that type, with its upper left corner there. Refuses a second one of a type that may be in a project only
/// once.
[[nodiscard]] Result create(Project_Session& session, const QUuid& page, int type, const QPointF& position);
/// Empty when a block of that type may be inserted; else why not (German).
[[nodiscard]] QString whyNot(const Project_Session& session, int type);
/// What tells that a type may be in a project only once.
[[nodiscard]] QString onceRefusal();

/// Blocks with what they hang on: an internal variable that nothing reads any more, or that a single input is left of,
/// is taken off the pins that stay.
Edit_Result remove(Project_Session& session, const QList<QUuid>& blocks);

/// To these upper left corners.
Edit_Result move(Project_Session& session, const QHash<QUuid, QPointF>& positions);
/// Rounds x and y to multiples of the grid, halves away from zero. A grid of 0 or less leaves them.
Edit_Result alignToGrid(Project_Session& session, const QList<QUuid>& guids, int grid);
enum class Edge { Left, Top, Right, Bottom };
/// To their common outermost edge.
Edit_Result align(Project_Session& session, const QList<QUuid>& guids, Edge edge);
/// Makes the gaps between them equal, in the order of their centres; the outermost two stay. Fewer than three stay too.
Edit_Result distribute(Project_Session& session, const QList<QUuid>& guids, Qt::Orientation orientation);

/// Connects the pin at which dragging began with the other one: an output with an input of another block. The other
/// gets the binding of the first; when that has none, the first the other's; when none has one, both a new internal
/// variable. As in all edits of bindings, an internal variable that nothing reads any more then is taken off its
/// outputs; an element of a visualisation page that shows it reads it too.
Edit_Result connectPins(Project_Session& session, const FB_Pin_Ref& from, const FB_Pin_Ref& to);
/// Takes the binding off the input. An internal variable that then no input of the project reads is taken off the
/// output too; a group address stays there. A connection that is no more is left alone, without a refusal.
Edit_Result removeConnection(Project_Session& session, const FB_Connection& connection);
/// Takes an end of the connection to another pin of its side, with the variable where nothing else hangs on it. An
/// output that is bound already keeps its binding, and the input gets that.
Edit_Result moveConnection(Project_Session& session, const FB_Connection& connection, FB_Side end,
                           const FB_Pin_Ref& to);

/// To the group address of that key.
Edit_Result bind(Project_Session& session, const FB_Pin_Ref& pin, const QUuid& address);
/// To the internal variable of that key, which is used somewhere in the project.
Edit_Result bindVariable(Project_Session& session, const FB_Pin_Ref& pin, const QUuid& variable);
/// To a new internal variable. Refuses a name that one has already.
Edit_Result bindNewVariable(Project_Session& session, const FB_Pin_Ref& pin, const QString& name);
Edit_Result unbind(Project_Session& session, const FB_Pin_Ref& pin);
/// Each of the pins, or with one that is not there none.
Edit_Result unbind(Project_Session& session, const QList<FB_Pin_Ref>& pins);

/// The block's own title; of a comment block its text, of several lines.
Edit_Result setTitle(Project_Session& session, const QUuid& block, const QString& title);
/// One parameter; the pins follow. What the type declares for it is kept to, but for a number of pins that is too small
/// or no number: that is corrected.
Edit_Result setParameter(Project_Session& session, const QUuid& block, int index, const QString& value);
/// What `setParameter` would take off the blocks with that value: a bound pin each, "Und: Eingang 3"; of a single block
/// only the pins' names. To ask about before the edit, which undo takes back with the bindings.
[[nodiscard]] QStringList lostBindings(const Project_Session& session, const QList<QUuid>& blocks, int index,
                                       const QString& value);
/// The same parameter of each of the blocks; of none when one refuses it.
Edit_Result setParameter(Project_Session& session, const QList<QUuid>& blocks, int index, const QString& value);

} // namespace FB_Page_Edits
