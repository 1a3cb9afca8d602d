#pragma once

#include <QObject>

class Project_Lifecycle;
class QDropEvent;
class QWidget;

/// Opens the project file that is dropped on a window. Window and lifecycle outlive it.
class Project_Drop : public QObject {
  Q_OBJECT

public:
  Project_Drop(QWidget& window, Project_Lifecycle& lifecycle);

protected:
  bool eventFilter(QObject* object, QEvent* event) override;

private:
  void drop(QDropEvent& event);

  Project_Lifecycle& mLifecycle;
};
