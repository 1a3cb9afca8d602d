#pragma once

#include <QObject>

class App_Settings;
class QMenu;

/// Fills a menu with the recently opened projects each time it is shown. Ones whose file is gone are marked; choosing
/// such a one is told like any other.
class Recent_Projects_Menu : public QObject {
  Q_OBJECT

public:
  Recent_Projects_Menu(QMenu& menu, const App_Settings& settings);

signals:
  void chosen(const QString& path);

private:
  void fill();

  QMenu& mMenu;
  const App_Settings& mSettings;
};
