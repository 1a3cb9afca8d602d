#pragma once

#include "db/DB_FB_Page.h"
#include "db/DB_Page_List.h"
#include "db/DB_Widget_Page.h"

#include <QAbstractItemModel>
#include <QString>
#include <QUuid>

#include <optional>

class ProjectDatabase;
class Project_Session;

/// The pages of the open project as a tree of one column with two branches: "Programm" lists the logic pages,
/// "Visualisierung" the visualisation pages.
///
/// A page's caption can be edited, each time one undo step, unless the operating mode is on. The session outlives the
/// model.
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

  explicit Page_Tree_Model(Project_Session& session, QObject* parent = nullptr);

  /// Null for a branch or an invalid index.
  [[nodiscard]] QUuid guidOf(const QModelIndex& index) const;
  /// Invalid when there is no such page.
  [[nodiscard]] QModelIndex indexOf(const QUuid& guid) const;
  [[nodiscard]] std::optional<Details> detailsOf(const QUuid& guid) const;
  /// Name of the icon of a page; empty when there is no such page.
  [[nodiscard]] static QString pageIcon(const ProjectDatabase& database, const QUuid& guid);

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

signals:
  /// An edit was not done; the German text tells why.
  void refused(const QString& text);

private:
  void listenTo(const DB_Page_List_Signals& list);
  [[nodiscard]] const DB_FB_Page* logicPage(const QModelIndex& index) const;
  [[nodiscard]] const DB_Widget_Page* visuPage(const QModelIndex& index) const;
  [[nodiscard]] QString captionOf(const QModelIndex& index) const;
  [[nodiscard]] QString controllerText(int number) const;

  void onPageChanged(const QUuid& guid);

  Project_Session& mSession;
};
