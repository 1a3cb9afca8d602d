#pragma once

#include <QWidget>

class Address_Tree_Model;
class Address_Tree_View;
class App_Settings;
class Empty_Hint;
class Filter_Edit;
class Project_Session;
class QLabel;
class QStackedLayout;
class QStackedWidget;
class QUuid;

/// The group addresses of the open project: a filter field, the tree, and a line that counts. Without addresses, or
/// without a project, a text says what belongs here. The session outlives the view.
class Address_View : public QWidget {
  Q_OBJECT

public:
  explicit Address_View(Project_Session& session, QWidget* parent = nullptr);
  ~Address_View() override;

  /// Brings an address, group or variable into view and selects it; a filter that hides it is cleared.
  void showAddress(const QUuid& key);
  /// Takes the keyboard focus: to the addresses, or the step that leads to them.
  void enter();

  /// Width, order and sorting of the columns, and which are hidden.
  void saveState(App_Settings& settings) const;
  void restoreState(const App_Settings& settings);

signals:
  /// The button of the empty project.
  void importRequested();
  /// An edit was not done; the German text tells why. Comes from the event loop, so a box may be shown.
  void refused(const QString& text);
  /// What a command did, in a sentence.
  void info(const QString& text);
  /// A use of a variable was chosen: the page it stands on.
  void pageChosen(const QUuid& pageGuid);

private:
  [[nodiscard]] QWidget* makeListPage();
  [[nodiscard]] QWidget* makeAddButton();
  void setUpColumns();
  void clearFilter();
  void enterTree();
  void updateState();

  Project_Session& mSession;
  Address_Tree_Model* mModel;
  QStackedLayout* mPages;
  Empty_Hint* mEmpty;
  Filter_Edit* mFilter;
  QStackedWidget* mTreeOrHint;
  Address_Tree_View* mTree;
  Empty_Hint* mNoHit;
  Empty_Hint* mNoAddress;
  QLabel* mCount;
};
