#pragma once

#include "db/History.h"

#include <QString>
#include <QUuid>

/// Every change of a project's records happens inside an edit scope. It refuses in the operating mode, before anything
/// is changed, and it is the only way to record what undo needs.
///
///     Edit_Scope scope(history, tr("Umbenennen"));
///     if (!scope) { return scope.refusal(); }
///     scope.modified(adapter, key);   // before the change
///     ... change the record ...
///
/// Scopes may be nested: the outermost decides the grouping and names the step. A scope is never open across a wait,
/// and all questions are asked before the first change.
class Edit_Scope {
public:
  enum class Grouping {
    Turn, ///< joins what else this turn of the event loop changes
    Own,  ///< a step of its own, closed when the scope is left
  };

  /// The edits of one field belong together as long as their token is the same: see History.
  struct Merge {
    quint64 mToken = 0; ///< 0: with nothing
  };

  Edit_Scope(History& history, const QString& text, Grouping grouping = Grouping::Turn);
  /// Around the edit of a field, which names the step.
  Edit_Scope(History& history, Merge merge);
  Edit_Scope(const Edit_Scope&) = delete;
  Edit_Scope& operator=(const Edit_Scope&) = delete;
  Edit_Scope(Edit_Scope&&) = delete;
  Edit_Scope& operator=(Edit_Scope&&) = delete;
  ~Edit_Scope();

  explicit operator bool() const { return mIsAllowed; }
  /// Why nothing may be edited now (German); empty when it may.
  [[nodiscard]] QString refusal() const { return mRefusal; }

  /// Before the record with that id is changed.
  void modified(Undo_Adapter& owner, const QUuid& id);
  /// Before each move of the record to another place of its list.
  void moved(Undo_Adapter& owner, const QUuid& id);
  /// After a record was made.
  void created(Undo_Adapter& owner, const QUuid& id);
  /// Before a record is deleted.
  void deleted(Undo_Adapter& owner, const QUuid& id);

  /// Takes back what was changed since the outermost scope was entered, as if nothing had been: for an edit of several
  /// parts of which a later one is refused. Of a scope of its own only.
  void revert();

private:
  History& mHistory;
  QString mRefusal;
  bool mIsAllowed;
};
