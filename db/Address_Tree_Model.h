#pragma once

#include "db/DB_Data_Base.h"

#include <QAbstractItemModel>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <vector>

class Project_Session;

/// The group addresses of the open project as a tree of three levels: main groups, middle groups, group addresses.
///
/// The name can be edited, each time one undo step, unless the operating mode is on. The model keeps its own tree of
/// the rows that pass the filter, so a row, its parent and its number are found without a search; it is built anew when
/// the structure of the addresses or the filter changes. The session outlives the model.
class Address_Tree_Model : public QAbstractItemModel {
  Q_OBJECT

public:
  static constexpr int cAddress = 0;       ///< "1/*", "1/2/*", "1/2/3"
  static constexpr int cName = 1;          ///< editable
  static constexpr int cDescription = 2;   ///< in one line
  static constexpr int cDatapointType = 3; ///< "9.001", "9", empty for none
  static constexpr int cColumnCount = 4;

  explicit Address_Tree_Model(Project_Session& session, QObject* parent = nullptr);

  /// Shows only rows in which every word stands, in whatever column and case, and the groups around them. What is then
  /// renamed stays where it is until the filter or the structure changes.
  void setFilter(const QString& text);
  [[nodiscard]] bool isFiltered() const { return !mWords.isEmpty(); }
  /// Group addresses (third level) that pass the filter.
  [[nodiscard]] qsizetype shownSubGroupCount() const { return mShownSubGroups; }

  /// Null for an invalid index.
  [[nodiscard]] QUuid keyOf(const QModelIndex& index) const;
  /// In the first column; invalid when the group is not there or filtered out.
  [[nodiscard]] QModelIndex indexOf(const QUuid& key) const;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

signals:
  /// An edit was not done; the German text tells why.
  void refused(const QString& text);

private:
  enum class Level { Main, Middle, Sub };

  struct Node {
    const Node* mParent = nullptr; ///< null for main groups
    int mRow = 0;
    int mNumber = 0;
    const DB_Data_Base* mRecord = nullptr;
    std::vector<Node> mChildren;
  };
  using Nodes = std::vector<Node>;

  [[nodiscard]] static Level levelOf(const Node& node);
  [[nodiscard]] static QString textOf(const Node& node, int column);
  [[nodiscard]] static const Node* nodeOf(const QModelIndex& index);
  [[nodiscard]] static const Node* find(const Nodes& nodes, int number, const DB_Data_Base* record);
  [[nodiscard]] const Node* find(const QUuid& key) const;
  [[nodiscard]] bool passes(const Node& node) const;
  template <class Group>
  void build(Nodes& nodes, const Node* parent, const Group& groups);
  void rebuild();

  void onStructureAboutToChange();
  void onStructureChanged();
  void onRecordChanged(const QUuid& key);

  Project_Session& mSession;
  Nodes mMainNodes;
  QStringList mWords;
  qsizetype mShownSubGroups = 0;
  bool mIsResetting = false;
};
