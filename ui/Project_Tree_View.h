#pragma once

#include <QAction>
#include <QTreeView>

#include <vector>

class Session_State;

/// A tree of project records: in-place renaming of one column by double click or F2, Ctrl+C for the selected rows as
/// tab-separated text in the order of rows and columns that is seen, a context menu with both.
class Project_Tree_View : public QTreeView {
  Q_OBJECT

public:
  /// `state` tells whether edits are refused; it outlives the view.
  explicit Project_Tree_View(const Session_State& state, QWidget* parent = nullptr);

  void setModel(QAbstractItemModel* model) override;
  /// The column whose items can be renamed; 0 unless set, -1 for none.
  void setRenameColumn(int column);
  /// The selected rows as tab-separated text, one a line.
  [[nodiscard]] QString selectedText() const;
  /// The titles of the same columns.
  [[nodiscard]] QString titleText() const;

signals:
  /// A command was not done; the German text tells why.
  void refused(const QString& text);

protected:
  /// Adds a command to the context menu and to the keyboard. `keys` may be empty.
  template <class Function>
  QAction* addCommand(const QString& text, const QKeySequence& keys, Function&& function) {
    QAction* const action = addCommand(text, keys);
    connect(action, &QAction::triggered, this, [this, run = std::forward<Function>(function)]() mutable {
      finishEditing();
      run();
    });
    return action;
  }
  /// Rows from the top level down: comparing them compares what stands higher in the tree.
  [[nodiscard]] static std::vector<int> placeOf(QModelIndex index);
  /// Opens the editor of the column that can be renamed, which is shown for it.
  void rename(const QModelIndex& index);
  /// Hands over what is being typed in a cell.
  void finishEditing();
  /// Which commands are enabled now; called whenever the selection, the current row or the operating mode changes.
  virtual void updateCommands();
  /// Puts the selected rows on the clipboard.
  virtual void onCopy();

  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
  QAction* addCommand(const QString& text, const QKeySequence& keys);
  /// Of those that are enabled, or of the others.
  [[nodiscard]] QAction* commandOf(const QKeyEvent& event, bool isEnabled = true) const;
  [[nodiscard]] QModelIndex renameIndex() const;
  /// As they stand from left to right.
  [[nodiscard]] QList<int> shownColumns() const;
  void onRename();

  const Session_State& mState;
  QAction* mRename = nullptr;
  QAction* mCopy = nullptr;
  int mRenameColumn = 0;
};
