#pragma once

#include "db/Edit_Result.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QList>

#include <vector>

/// An edit of blocks while it is made: its scope in the history, and changes that are recorded before they are made.
class FB_Edit {
public:
  FB_Edit(Project_Session& session, const QString& step, Edit_Scope::Grouping grouping = Edit_Scope::Grouping::Turn)
      : mSession(session),
        mScope(session.history(), step, grouping) {}

  explicit operator bool() const { return bool(mScope); }
  [[nodiscard]] Edit_Result refusal() const { return Edit_Result::refused(mScope.refusal()); }

  [[nodiscard]] const ProjectDatabase& database() const { return std::as_const(mSession).database(); }

  /// Null when there is none.
  [[nodiscard]] const DB_FB_Control* block(const QUuid& guid) const { return database().mFbPages.child(guid); }
  [[nodiscard]] const DB_FB_Pin* pin(const FB_Pin_Ref& pin) const;
  /// The blocks of that name, each once, in the order of pages and blocks: what is done in their order is quick. False,
  /// with `missing` told, when one of them is not there.
  [[nodiscard]] static bool find(const ProjectDatabase& database, const QList<QUuid>& guids,
                                 std::vector<const DB_FB_Control*>& blocks, Edit_Result& missing);
  /// Refuses a block or pin that is not there, by name.
  [[nodiscard]] Edit_Result check(const QUuid& block) const;
  [[nodiscard]] Edit_Result check(const FB_Pin_Ref& pin) const;

  /// Takes the copy that undo needs, also where nothing will be changed.
  void record(const QUuid& block) { mScope.modified(mSession.blockUndo(), block); }
  template <class Change>
  void change(const QUuid& block, Change&& change) {
    record(block);
    mSession.database().mFbPages.changeChild(block, std::forward<Change>(change));
  }
  void setBinding(const FB_Pin_Ref& pin, const DB_Address_Binding& binding);
  /// At the end of the page that its record names.
  QUuid append(std::unique_ptr<DB_FB_Control> block);
  void remove(const QUuid& block);

private:
  Project_Session& mSession;
  Edit_Scope mScope;
};
