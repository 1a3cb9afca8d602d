#pragma once

#include <QList>
#include <QTimer>
#include <QWidget>

class Project_Session;
class QAction;
class QFormLayout;
class QLabel;

/// What the open project is and holds, and what to do next. Follows every change.
class Project_Overview : public QWidget {
  Q_OBJECT

public:
  /// The session must outlive this widget; the actions, the next steps, belong to someone else.
  Project_Overview(Project_Session& session, const QList<QAction*>& actions, QWidget* parent);

  void refresh();

private:
  [[nodiscard]] QLabel* addRow(QFormLayout& form, const QString& caption);
  void addRow(QFormLayout& form, const QString& caption, QLabel* value);

  Project_Session& mSession;
  QTimer mTimer; ///< many changes of one turn are shown once
  QLabel* mName;
  QLabel* mFile;
  QLabel* mSaved = nullptr;
  QLabel* mLogicPages = nullptr;
  QLabel* mVisuPages = nullptr;
  QLabel* mAddresses = nullptr;
  QLabel* mPosition = nullptr;
};
