#pragma once

#include "db/Address_Edits.h"
#include "db/Address_Rows.h"

#include <QAbstractItemModel>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUuid>

#include <functional>

class Project_Session;

/// The group addresses of the open project as a tree of three levels (main groups, middle groups, group addresses) and
/// behind it the branch of internal variables with their uses.
///
/// Texts are edited in their cells and flags by their check boxes, each time one undo step, unless the operating mode
/// is on. The rows are built anew when the structure of the addresses, the filter or the order changes; what is edited
/// in a cell stays where it is until then or until `restoreOrder`. The session outlives the model.
class Address_Tree_Model : public QAbstractItemModel {
  Q_OBJECT

public:
  using Kind = Address_Rows::Kind;

  explicit Address_Tree_Model(Project_Session& session, QObject* parent = nullptr);

  /// Shows only rows in which every word stands, in whatever column and case, and the groups around them.
  void setFilter(const QString& text);
  [[nodiscard]] bool isFiltered() const { return !mWords.isEmpty(); }
  /// Group addresses (third level) that pass the filter.
  [[nodiscard]] qsizetype shownSubGroupCount() const { return mRows.subCount(); }
  /// Of a group or address; 0 for other rows.
  [[nodiscard]] qsizetype shownSubGroupCount(const QModelIndex& index) const;
  [[nodiscard]] qsizetype variableCount() const { return static_cast<qsizetype>(mUsage.variables().size()); }

  /// Brings records whose cells changed to where the order wants them. Rebuilds the rows, which ends an open editor.
  void restoreOrder();

  /// The pins and elements that are bound to an address or variable, as they were when the rows were built.
  [[nodiscard]] const Address_Usage& usage() const { return mUsage; }

  /// Null for an invalid index and for rows that are no group, address or variable.
  [[nodiscard]] QUuid keyOf(const QModelIndex& index) const;
  [[nodiscard]] Kind kindOf(const QModelIndex& index) const;
  /// Of a row that is a use.
  [[nodiscard]] const Address_Use& useOf(const QModelIndex& index) const;
  /// In the first column; invalid when the group is not there or filtered out.
  [[nodiscard]] QModelIndex indexOf(const QUuid& key) const;

  /// The branch of internal variables; invalid when it is not shown.
  [[nodiscard]] QModelIndex variablesIndex() const;

  /// What is edited in a column; empty for the address and its origin.
  [[nodiscard]] static std::optional<Address_Edits::Field> fieldOf(int column);

  /// Which groups an edit of the cell of that key means; the key alone unless set. So a view with several selected
  /// rows has a check box set for all of them.
  void setTargets(std::function<QList<QUuid>(const QUuid& key)> targets) { mTargets = std::move(targets); }

  /// What the uses call a block without a name of its own.
  void setBlockTypeName(const Address_Usage::Type_Name& name) { mRows.setBlockTypeName(name); }

  /// Of these rows those whose live values changed are told to have changed. Values come by the thousand, so who shows
  /// the model asks for the rows that are seen; order and filter stay as they are.
  void tellValues(const QSet<QUuid>& changed, const QModelIndexList& seen);

  /// Why that text may not stand in the cell (German); empty when it may.
  [[nodiscard]] QString whyNot(const QModelIndex& index, const QString& text) const;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  void sort(int column, Qt::SortOrder order) override;

  [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  /// Whoever else takes addresses refers to them.
  [[nodiscard]] Qt::DropActions supportedDragActions() const override { return Qt::MoveAction | Qt::LinkAction; }
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                     const QModelIndex& parent) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

signals:
  /// An edit was not done; the German text tells why.
  void refused(const QString& text);
  /// An edit of the address succeeded; the row may stand elsewhere now.
  void renumbered(const QUuid& key);

private:
  using Row = Address_Rows::Row;

  [[nodiscard]] static const Row* rowOf(const QModelIndex& index);
  [[nodiscard]] QVariant displayText(const Row& row, int column) const;
  [[nodiscard]] QString toolTip(const Row& row, int column) const;
  [[nodiscard]] QVariant checkState(const Row& row, int column) const;
  [[nodiscard]] QList<QUuid> targetsOf(const QUuid& key) const;
  bool tell(const Edit_Result& result);
  void rebuild();
  void reset();

  void onStructureAboutToChange();
  void onStructureChanged();
  void onRecordChanged(const QUuid& key);
  void onPagesChanged();

  Project_Session& mSession;
  Address_Usage mUsage;
  Address_Rows mRows;
  Address_Rows::Order mOrder;
  QStringList mWords;
  QTimer mPagesTimer;
  std::function<QList<QUuid>(const QUuid&)> mTargets;
  bool mIsResetting = false;
  bool mIsOrderStale = false; ///< what a record is sorted by may have changed
};
