#pragma once

#include <QStackedWidget>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

class Address_Filter_Model;
class App_Settings;
class Empty_Hint;
class Project_Tree_View;
class QAbstractItemDelegate;
class QAbstractItemModel;
class QHeaderView;
class Session_State;

/// A list of results from a table of addresses: sorted by its headers, filtered, copied by Ctrl+C; a text while it is
/// empty. The current row and the part that is seen survive a new building of the table.
class Result_List : public QStackedWidget {
  Q_OBJECT

public:
  /// `addressColumn` holds texts like "1/2/3". Table and state outlive the list.
  Result_List(QAbstractItemModel& table, int addressColumn, const Session_State& state);

  /// For screen readers, and the key under which the columns are remembered.
  void setNames(const QString& accessibleName, const QString& settingsName);
  void setFilter(const QString& text);
  /// What stands here while there are no rows.
  void setHint(const QString& text);
  /// A command of the context menu that is about the current row; `onRow` gets its number in the table.
  void addCommand(const QString& text, const std::function<void(int row)>& onRow);
  [[nodiscard]] QHeaderView& header();
  /// What takes the keyboard focus.
  [[nodiscard]] QWidget& view();
  /// Draws the cells in place of the usual one; the list takes it over.
  void setDelegate(QAbstractItemDelegate* delegate);
  /// Shows the texts of the rows anew.
  void updateTexts();

  [[nodiscard]] bool isFiltered() const;
  [[nodiscard]] qsizetype shownCount() const;
  /// Of the table, in its order.
  [[nodiscard]] std::vector<int> selectedRows() const;
  /// Takes the keyboard focus, to the first row when none is current.
  void enter();
  /// Selects a row of the table and scrolls to it; false when the filter hides it.
  bool showRow(int row);
  /// The current row as it stands in the list, from 0; -1 when there is none.
  [[nodiscard]] int current() const;
  /// Makes that row, or the last one when there are fewer, the current and the only selected one.
  void setCurrent(int shownRow);
  /// Goes on to the next or previous row, from the last to the first, and chooses it.
  void chooseNext();
  void choosePrevious();

  /// Width and order of the columns, and what they are sorted by.
  void saveState(App_Settings& settings) const;
  void restoreState(const App_Settings& settings);

signals:
  /// By Enter or double click; the row's number in the table.
  void chosen(int row);
  void selectionChanged();

private:
  [[nodiscard]] int rowOf(const QModelIndex& index) const;
  void choose(int shownRow);
  void updatePage();
  void onAboutToBeReset();
  void onReset();

  Address_Filter_Model* mModel;
  Project_Tree_View* mTree;
  Empty_Hint* mHint;
  QVariant mCurrent; ///< identity of the current row
  bool mIsCurrentSelected = false;
  int mScroll = 0;
};
