#pragma once

#include <QUuid>
#include <QWidget>

#include <array>

class Empty_Hint;
class Page_Details_View;
class Page_Tree_Model;
class Project_Session;
class Project_Tree_View;
class QSplitter;
class QStackedWidget;

/// The pages of the open project: above their tree, below what there is to say about the selected one. The session
/// outlives the view.
class Page_View : public QWidget {
  Q_OBJECT

public:
  explicit Page_View(Project_Session& session, QWidget* parent = nullptr);

  /// Selects a page and scrolls to it; nothing when there is no such page.
  void showPage(const QUuid& guid);
  /// Takes the keyboard focus.
  void enter();

  /// Between tree and details; its object name is "ui:mSplitterRight".
  [[nodiscard]] QSplitter* splitter() { return mSplitter; }

signals:
  /// A page shall be shown in its tab: by double click, Enter or the context menu.
  void pageChosen(const QUuid& guid);
  /// An edit was not done; the German text tells why. Comes from the event loop, so a box may be shown.
  void refused(const QString& text);

private:
  void makeOpenCommand();
  void onAboutToBeReset();
  void onReset();
  void updateState();

  Project_Session& mSession;
  Page_Tree_Model* mModel;
  QSplitter* mSplitter;
  QStackedWidget* mTreeOrHint;
  Project_Tree_View* mTree;
  Page_Details_View* mDetails;
  QUuid mCurrent;
  std::array<bool, 2> mIsCollapsed = {}; ///< by branch
};
