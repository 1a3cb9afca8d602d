#pragma once

#include <QStandardItemModel>
#include <QStringList>
#include <QTimer>
#include <QWidget>

class QLabel;
class QStackedWidget;
class QTableView;
class QToolButton;

/// A titled table of what a running script tells: lines of its console, or values of its variables. As long as it is
/// empty a text says where its rows come from.
class FB_Lua_Trace_View : public QWidget {
  Q_OBJECT

public:
  /// Rows above that number push out the first ones.
  static constexpr int cMostRows = 10'000;

  FB_Lua_Trace_View(const QString& title, const QStringList& columns, QWidget* parent);

  void setHint(const QString& text);
  /// Shown a little later, together with what comes until then. The end stays in sight unless the user has left it.
  void append(const QStringList& cells);
  /// The row that begins with the first cell, or a new one.
  void set(const QStringList& cells);
  void clear();
  /// The selected rows, or all, as tab-separated text, to the clipboard.
  void copy();
  [[nodiscard]] int rowCount() const { return mModel.rowCount(); }

signals:
  void clearRequested();
  void copyRequested();

private:
  void update();
  void showWaiting();

  QStandardItemModel mModel;
  QList<QStringList> mWaiting; ///< rows that are not shown yet
  QTimer mShow;
  QTableView* mTable;
  QLabel* mHint;
  QLabel* mCount;
  QStackedWidget* mStack;
  QToolButton* mClear;
  QToolButton* mCopy;
};
