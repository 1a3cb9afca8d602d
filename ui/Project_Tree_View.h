#pragma once

#include <QTreeView>

class Session_State;
class QAction;

/// A tree of project records: in-place renaming of one column by double click or F2, Ctrl+C for the selected rows as
/// tab-separated text in the order of rows and columns that is seen, a context menu with both.
class Project_Tree_View : public QTreeView {
  Q_OBJECT

public:
  /// `state` tells whether edits are refused; it outlives the view.
  explicit Project_Tree_View(const Session_State& state, QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;
  /// The column whose items can be renamed; 0 unless set.
  void setRenameColumn(int column) { mRenameColumn = column; }
  /// The selected rows as tab-separated text, one a line.
  [[nodiscard]] QString selectedText() const;

protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
  QAction* addCommand(const QString& text, const QKeySequence& keys, void (Project_Tree_View::*slot)());
  [[nodiscard]] QAction* commandOf(const QKeyEvent& event) const;
  [[nodiscard]] QModelIndex renameIndex() const;
  void updateCommands();
  void onRename();
  void onCopy();

  QAction* mRename = nullptr;
  QAction* mCopy = nullptr;
  int mRenameColumn = 0;
};
