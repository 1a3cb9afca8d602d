#pragma once

#include "db/Address_Usage.h"
#include "db/DB_FB_Page.h"
#include "db/DB_Page_List.h"
#include "db/DB_Widget_Page.h"

#include <QAbstractItemModel>
#include <QList>
#include <QSet>
#include <QString>
#include <QTimer>
#include <QUuid>

#include <functional>
#include <map>
#include <optional>

class ProjectDatabase;
class Project_Session;

/// The pages of the open project as a tree of one column with two branches: "Programm" lists the logic pages with their
/// blocks, "Visualisierung" the visualisation pages.
///
/// A page's caption can be edited, each time one undo step, and a logic page dragged to another place, unless the
/// operating mode is on. Which blocks stand on a page is followed once in a turn of the event loop. The session
/// outlives the model.
class Page_Tree_Model : public QAbstractItemModel {
  Q_OBJECT

public:
  static constexpr int cLogicBranch = 0;
  static constexpr int cVisuBranch = 1;
  static constexpr int cBranchCount = 2;

  /// What there is to say about a page, ready to be shown.
  struct Details {
    QUuid mGuid;
    QString mCaption;
    QString mKind;       ///< "Programmseite", "Visualisierungsseite, Querformat"
    QString mSize;       ///< "2000 × 1400 Pixel"
    QString mContent;    ///< "12 Bausteine", "1 Element"
    QString mController; ///< that executes it: "Hauptsteuerung", "2 (Keller)"; empty for a visualisation page
  };

  /// What the model cannot know of a block.
  struct Block_Texts {
    std::function<QString(const DB_FB_Control& block)> mTitle; ///< as it stands on the page
    Address_Usage::Type_Name mType;                            ///< display name of its type
    /// As the how-many-th it is executed; 0 for never.
    std::function<int(const ProjectDatabase& database, const QUuid& block)> mExecution;
  };

  Page_Tree_Model(Project_Session& session, Block_Texts texts, QObject* parent = nullptr);

  /// Of a page; null for a branch, a block or an invalid index.
  [[nodiscard]] QUuid guidOf(const QModelIndex& index) const;
  /// Of a block; null for anything else.
  [[nodiscard]] QUuid blockOf(const QModelIndex& index) const;
  /// The page itself, or that of the block.
  [[nodiscard]] QUuid pageOf(const QModelIndex& index) const;
  [[nodiscard]] bool isLogicPage(const QModelIndex& index) const { return logicPage(index) != nullptr; }
  /// Invalid when there is no such page.
  [[nodiscard]] QModelIndex indexOf(const QUuid& guid) const;
  /// Invalid when there is no such block.
  [[nodiscard]] QModelIndex indexOfBlock(const QUuid& guid) const;
  [[nodiscard]] std::optional<Details> detailsOf(const QUuid& guid) const;
  /// Name of the icon of a page; empty when there is no such page.
  [[nodiscard]] static QString pageIcon(const ProjectDatabase& database, const QUuid& guid);

  /// Brings the rows of the blocks up to date now, and not at the end of the turn.
  void followBlocks();

  /// Also for the caption shown elsewhere than in the tree; false, after `refused`, when it was not done.
  bool rename(const QUuid& guid, const QString& caption);

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                     const QModelIndex& parent) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

signals:
  /// A logic page was dropped at that place among the logic pages, 0 for the first.
  void moveRequested(const QUuid& page, qsizetype place);
  /// An edit was not done; the German text tells why.
  void refused(const QString& text);

private:
  void listenTo(const DB_Page_List_Signals& list);
  [[nodiscard]] const DB_FB_Page* logicPage(const QModelIndex& index) const;
  [[nodiscard]] const DB_Widget_Page* visuPage(const QModelIndex& index) const;
  [[nodiscard]] QString captionOf(const QModelIndex& index) const;
  [[nodiscard]] QString controllerText(int number) const;

  /// In the order in which the tree shows them.
  [[nodiscard]] const QList<QUuid>& blocksOf(const DB_FB_Page& page) const;
  [[nodiscard]] const DB_FB_Control* block(const QModelIndex& index) const;
  [[nodiscard]] QString blockText(const DB_FB_Control& block) const;
  [[nodiscard]] QString blockToolTip(const DB_FB_Control& block) const;
  [[nodiscard]] QUuid draggedPage(const QMimeData* data) const;

  void onPageChanged(const QUuid& guid);
  void onBlockChanged(const QUuid& guid);
  void onStructureChanged();
  void followBlocksOf(const DB_FB_Page& page, QList<QUuid>& shown);
  void removeBlocks(const QModelIndex& page, QList<QUuid>& shown, const QSet<QUuid>& wanted);
  void orderBlocks(const QModelIndex& page, QList<QUuid>& shown, const QList<QUuid>& wanted);
  void insertBlocks(const QModelIndex& page, QList<QUuid>& shown, const QList<QUuid>& wanted);
  void tellChanged(const QModelIndex& page, const QList<QUuid>& shown);

  Project_Session& mSession;
  Block_Texts mTexts;
  mutable std::map<QUuid, QList<QUuid>> mShown; ///< the blocks of the pages of which somebody asked, by page
  QSet<QUuid> mChanged;                         ///< blocks that came, went or changed in this turn
  QTimer mFollow;
};
