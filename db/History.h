#pragma once

#include "base/Session_State.h"
#include "db/Undo_Adapter.h"

#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <deque>
#include <memory>
#include <utility>
#include <vector>

/// The one undo history of a project.
///
/// A step is a list of entries: owner, kind, place in its list, copy of the record. Entries are recorded through an
/// `Edit_Scope` only. Those of one turn of the event loop are one step, closed by a zero-delay timer; a scope of its
/// own closes its step when it is left. Steps with the same token that follow each other, with no other step, saving,
/// undo or redo between them, become one: what is typed into a field until the focus leaves it.
///
/// At most `cLimit` steps are kept. A copy of a block takes about 2 kB of memory; the oldest steps go earlier when all
/// of them hold more than `cEntryLimit` copies.
class History : public QObject {
  Q_OBJECT

public:
  static constexpr size_t cLimit = 1000;
  static constexpr size_t cEntryLimit = 1'000'000;

  explicit History(Session_State& state, QObject* parent = nullptr);

  [[nodiscard]] bool canUndo() const { return !mPending.empty() || mPosition > 0; }
  [[nodiscard]] bool canRedo() const { return mPending.empty() && mPosition < mSteps.size(); }
  /// What the step that would be undone or redone is called; empty when there is none.
  [[nodiscard]] QString undoText() const;
  [[nodiscard]] QString redoText() const;

  /// Both refuse in the operating mode, then `refusal`, if given, tells why; and, without a word, inside an edit scope.
  bool undo(QString* refusal = nullptr);
  bool redo(QString* refusal = nullptr);

  /// Closes the step of the present turn now.
  void commit();
  /// A token that was never given before, for `Edit_Scope::Merge`.
  [[nodiscard]] quint64 newMerge() { return ++mLastMerge; }

  /// The present state is the saved one.
  void setSaved();
  /// Something outside the history differs from what was saved.
  void setChangedOutside();
  [[nodiscard]] bool isModified() const;

  /// The records as they are between two steps. Undoing and redoing lead back to a state that was there before.
  struct State {
    quint64 mStep = 0;
    quint64 mOutside = 0;
    friend bool operator==(const State&, const State&) = default;
  };
  [[nodiscard]] State state() const;
  /// Between the first change of a step and its end: the records are on their way from one state to the next.
  [[nodiscard]] bool isStepOpen() const { return mScopeDepth > 0 || !mPending.empty(); }

  /// Forgets every step; the present state counts as saved.
  void clear();

  /// Number of committed steps that can be undone; for tests and displays.
  [[nodiscard]] size_t position() const { return mPosition; }

  /// A record that undo or redo has changed, made or deleted.
  struct Applied {
    Undo_Adapter* mOwner = nullptr;
    QUuid mId;
    QUuid mPage; ///< on which it is, or was; of a page itself; null for a record that belongs to none
  };

signals:
  /// A step was taken back or done again. Once for each, after all of it; `records` in the order in which it was done,
  /// so that the window can go to the page that changed and select what is there.
  void stepApplied(const std::vector<History::Applied>& records);
  /// Steps, texts or the modified mark changed.
  void changed();

private:
  friend class Edit_Scope;

  enum class Kind { Modified = 1, Deleted = 2, Created = 3 };

  struct Entry {
    Undo_Adapter* mOwner = nullptr;
    Kind mKind = Kind::Modified;
    QUuid mId;
    qsizetype mPlace = -1;
    std::shared_ptr<const DB_Data_Base> mRecord; ///< none for Created: undoing takes the copy
  };
  using Entries = std::vector<Entry>;

  struct Step {
    QString mText;
    Entries mEntries;
    quint64 mId = 0;
  };

  static constexpr qsizetype cSavedGone = -1;

  [[nodiscard]] bool mayEdit(QString* refusal) const;
  void record(Entry entry, bool isAgain = false);
  void enterScope(const QString& text, bool isOwn, quint64 merge);
  void leaveScope();
  void revertScope();
  [[nodiscard]] static bool isWithoutEffect(const Entry& entry);
  static void dropWithoutEffect(Entries& entries);
  [[nodiscard]] static bool isOnlyModified(const Entries& entries);
  /// Whether entries with that token go on with the latest step.
  [[nodiscard]] bool continuesStep(const Entries& entries, quint64 merge) const;
  /// Puts the entries of the latest step before these and takes it away.
  void joinStep(Entries& entries);
  void keepToLimits();
  [[nodiscard]] static Entry applyEntry(const Entry& entry);
  [[nodiscard]] static std::vector<Applied> applyStep(Step& step);

  Session_State& mState;
  QTimer mTimer;
  std::deque<Step> mSteps;
  size_t mPosition = 0;
  size_t mEntryCount = 0; ///< of all steps
  qsizetype mSavedPosition = 0;
  bool mChangedOutside = false;
  quint64 mLastId = 0; ///< of steps, never given twice
  quint64 mFirstState = 0;
  quint64 mOutsideChanges = 0;
  Entries mPending;
  QSet<std::pair<Undo_Adapter*, QUuid>> mPendingKnown; ///< records of the open step whose copy is taken
  QString mPendingText;
  quint64 mPendingMerge = 0; ///< token of the open step, 0 for none
  quint64 mOpenMerge = 0;    ///< token of the latest step while it may be gone on with, 0 for none
  quint64 mLastMerge = 0;
  int mScopeDepth = 0;
  bool mOwnScope = false;
};
