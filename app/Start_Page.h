#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QAction;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// What the window shows without a project: the first steps and the recently opened projects.
class Start_Page : public QWidget {
  Q_OBJECT

public:
  /// A button for each of the actions, which belong to someone else.
  Start_Page(const QList<QAction*>& actions, QWidget* parent);

  /// Paths, most recent first.
  void setRecentProjects(const QStringList& paths);
  /// Name of the open project, to which a button leads back; empty when none is open.
  void setOpenProject(const QString& name);

signals:
  void recentChosen(const QString& path);
  void backRequested();

private:
  void onItemChosen(QTreeWidgetItem* item);

  QPushButton* mBack;
  QLabel* mRecentHint;
  QTreeWidget* mRecent;
  bool mIsChosen = false; ///< a click may come as two signals
};
