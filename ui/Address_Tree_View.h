#pragma once

#include "base/Group_Address.h"
#include "db/Address_Clipboard.h"
#include "ui/Project_Tree_View.h"

#include <QItemSelection>
#include <QList>
#include <QSet>
#include <QUuid>

#include <vector>

class Address_Tree_Model;
class Address_Value_Menu;
class Project_Session;
class QMenu;
struct Edit_Result;

/// The tree of group addresses with its commands: make, rename, copy, cut, paste, delete, move by dragging, set a field
/// of all selected. What is expanded, the selection and the part that is seen survive a new building of the model;
/// while a filter is set every hit is seen, and afterwards the tree is expanded as it was before.
class Address_Tree_View : public Project_Tree_View {
  Q_OBJECT

public:
  /// Session and model outlive the view.
  Address_Tree_View(Project_Session& session, Address_Tree_Model& model, QWidget* parent = nullptr);

  /// The commands that bring something new, which work in an empty tree, too.
  [[nodiscard]] QList<QAction*> newCommands() const { return {mAddSub, mAddMiddle, mAddMain, mPaste}; }

  /// Selects the address or group and brings it into view; nothing when it is filtered out.
  void showKey(const QUuid& key);
  /// While a filter is set only what passes it, not the groups around.
  void selectAll() override;
  /// The groups, addresses and variables of the selected rows, in the order of the rows.
  [[nodiscard]] QList<QUuid> selectedKeys() const;

signals:
  /// Something was made and may be filtered out.
  void added(const QUuid& key);
  /// What a command did, in a sentence.
  void info(const QString& text);
  /// A use of a variable was chosen: the page it stands on.
  void pageChosen(const QUuid& pageGuid);

protected:
  void updateCommands() override;
  void onCopy() override;
  void startDrag(Qt::DropActions actions) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
  /// In the order of the rows; those that are not shown are left out.
  void selectKeys(const QList<QUuid>& keys);
  [[nodiscard]] std::vector<QItemSelectionRange> selectedRanges() const;
  [[nodiscard]] QModelIndex besideSelection() const;
  [[nodiscard]] qsizetype shownInSelection() const;
  void addHits(const QModelIndex& parent, QItemSelection& hits) const;
  /// The next cell to the right, or left, of the row that can be edited; invalid without one.
  [[nodiscard]] QModelIndex besideCell(const QModelIndex& cell, int step) const;
  void selectOnly(const QModelIndex& index);
  /// While nothing is being typed.
  void restoreOrder();
  void addCommands();
  [[nodiscard]] QMenu* makeSetMenu();
  void onAboutToBeReset();
  void onReset();
  void onActivated(const QModelIndex& index);
  void onValuesChanged(const QSet<QUuid>& keys);
  /// The addresses of the selected rows and, of selected groups, those below that pass the filter.
  [[nodiscard]] QList<QUuid> selectedAddresses() const;
  void onHeaderMenu(const QPoint& at);

  /// What the commands work on: selected groups and addresses without variables and uses.
  [[nodiscard]] QList<QUuid> editedKeys() const;
  /// Invalid numbers (-1) without a selection.
  [[nodiscard]] Group_Address currentAddress() const;
  /// The same, or the first main group when nothing is selected.
  [[nodiscard]] Group_Address placeForNew() const;
  void toClipboard(Address_Clipboard::Use use);
  bool tell(const Edit_Result& result);
  void tellAdded(const Edit_Result& result, const QUuid& key);
  void onAddMainGroup();
  void onAddMiddleGroup();
  void onAddAddress();
  void onCut();
  void onPaste();
  void onDelete();
  void onSetText(int column);
  void onSetFlag(int column, bool isOn);
  void setForSelected(int column, const QVariant& value);

  Project_Session& mSession;
  Address_Tree_Model& mModel;
  QAction* mAddMain = nullptr;
  QAction* mAddMiddle = nullptr;
  QAction* mAddSub = nullptr;
  QAction* mCut = nullptr;
  QAction* mPaste = nullptr;
  QAction* mDelete = nullptr;
  QAction* mSet = nullptr; ///< the menu with a field for all selected
  Address_Value_Menu* mValueMenu = nullptr;
  QSet<QUuid> mExpanded; ///< without a filter
  QList<QUuid> mSelected;
  QUuid mCurrent;
  bool mWasFiltered = false;
  int mScroll = 0; ///< without a filter
};
