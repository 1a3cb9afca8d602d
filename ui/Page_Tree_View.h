#pragma once

#include "ui/Project_Tree_View.h"

#include <QUuid>

class Page_Tree_Model;

/// The tree of pages and blocks with the commands of its logic pages, which others carry out. A logic page is dragged
/// to another place among them.
class Page_Tree_View : public Project_Tree_View {
  Q_OBJECT

public:
  /// State and model outlive the view.
  Page_Tree_View(const Session_State& state, Page_Tree_Model& model, QWidget* parent = nullptr);

signals:
  void pageChosen(const QUuid& page);
  void childChosen(const QUuid& page, const QUuid& block);

  // Requests; `page` is the selected logic page.
  /// A new one behind that page; null for the end.
  void newPageRequested(const QUuid& after);
  void duplicateRequested(const QUuid& page);
  void removeRequested(const QUuid& page);
  void propertiesRequested(const QUuid& page);
  /// To that place among the logic pages, 0 for the first.
  void moveRequested(const QUuid& page, qsizetype place);

protected:
  void updateCommands() override;

private:
  void addPageCommands();
  void open(const QModelIndex& index);
  /// The logic page that is selected, or on which the selected block stands; invalid for none.
  [[nodiscard]] QModelIndex logicPage() const;
  void moveBy(int step);

  const Session_State& mState;
  Page_Tree_Model& mModel;
  QAction* mOpen = nullptr;
  QAction* mNew = nullptr;
  QAction* mDuplicate = nullptr;
  QAction* mRemove = nullptr;
  QAction* mUp = nullptr;
  QAction* mDown = nullptr;
  QAction* mProperties = nullptr;
};
