#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class Project_List;
class QAction;
class QLabel;
class QPushButton;
class QHBoxLayout;

/// What the window shows without a project: how to begin, the favourite and the recently opened projects, and the first
/// steps with a new one.
class Start_Page : public QWidget {
  Q_OBJECT

public:
  /// One of the first steps: what to do, and the action that does it.
  struct Step {
    QString mText;
    QAction* mAction;
  };

  /// A button for each of the actions, which belong to someone else.
  Start_Page(const QList<QAction*>& actions, const QList<Step>& steps, QWidget* parent);

  /// Paths, most recent first, and the favourites in their order.
  void setProjects(const QStringList& recent, const QStringList& favorites);
  /// Name of the open project, to which a button leads back; empty when none is open.
  void setOpenProject(const QString& name);
  /// Takes the keyboard focus: to the first button.
  void enter();

signals:
  void projectChosen(const QString& path);
  void favoriteWanted(const QString& path, bool isFavorite);
  /// From the list of recent projects, or from the favourites.
  void removeRecentWanted(const QString& path);
  void removeFavoriteWanted(const QString& path);
  void backRequested();

private:
  [[nodiscard]] QWidget* makeLists();
  [[nodiscard]] QWidget* makeSteps(const QList<Step>& steps);
  void connectList(Project_List& list);

  QPushButton* mBack;
  QHBoxLayout* mButtons;
  QLabel* mFavoriteTitle;
  Project_List* mFavorites;
  QLabel* mRecentHint;
  Project_List* mRecent;
};
