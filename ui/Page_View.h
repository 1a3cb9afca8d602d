#pragma once

#include <QSet>
#include <QTimer>
#include <QUuid>
#include <QWidget>

#include <array>

class Empty_Hint;
class Page_Details_View;
class Page_Tree_Model;
class Page_Tree_View;
class Project_Session;
class QModelIndex;
class QSplitter;
class QStackedWidget;
class QTabWidget;

/// The pages of the open project with their blocks: above their tree, below what there is to say about the selected
/// page. What is expanded and selected survives new, moved and deleted pages. The session outlives the view.
class Page_View : public QWidget {
  Q_OBJECT

public:
  explicit Page_View(Project_Session& session, QWidget* parent = nullptr);

  /// Selects a page and scrolls to it; nothing when there is no such page.
  void showPage(const QUuid& guid);
  /// Selects a block in the tree, at the end of the turn, so that showing many costs no more than showing the last one.
  /// The keyboard focus stays where it is.
  void showBlock(const QUuid& page, const QUuid& block);
  /// No block is selected any more: its page is, instead.
  void leaveBlock();
  /// Takes the keyboard focus.
  void enter();
  /// A further panel below the tree, before what there is to say about the page, and shown at first.
  void addPanel(QWidget* panel, const QString& title);
  /// Brings it to the front; the keyboard focus stays where it is.
  void showPanel(QWidget* panel);

  /// Between tree and details; its object name is "ui:mSplitterRight".
  [[nodiscard]] QSplitter* splitter() { return mSplitter; }

signals:
  /// A page shall be shown in its tab: by double click, Enter or the context menu.
  void pageChosen(const QUuid& guid);
  /// The same of a block on a logic page.
  void childChosen(const QUuid& page, const QUuid& block);

  // What the user wants done with a logic page; see Page_Tree_View.
  void newPageRequested(const QUuid& after);
  void duplicateRequested(const QUuid& page);
  void removeRequested(const QUuid& page);
  void propertiesRequested(const QUuid& page);
  void moveRequested(const QUuid& page, qsizetype place);

  /// An edit was not done; the German text tells why. Comes from the event loop, so a box may be shown.
  void refused(const QString& text);

private:
  void onCurrentChanged(const QModelIndex& current);
  void onShowBlock();
  void onAboutToBeReset();
  [[nodiscard]] QModelIndex besideDeleted() const;
  void onReset();
  void updateState();

  Project_Session& mSession;
  Page_Tree_Model* mModel;
  QSplitter* mSplitter;
  QStackedWidget* mTreeOrHint;
  QTabWidget* mPanels;
  Page_Tree_View* mTree;
  Page_Details_View* mDetails;
  QUuid mCurrent;      ///< page
  QUuid mCurrentBlock; ///< null while the page itself is selected
  int mRow = -1;       ///< of the page, before the tree is made anew
  QUuid mWanted;       ///< block that shall be selected
  QTimer mShowWanted;
  std::array<bool, 2> mIsCollapsed = {}; ///< by branch
  QSet<QUuid> mExpanded;                 ///< logic pages
};
