#pragma once

#include <QObject>

class App_Settings;
class QActionGroup;
class QMenu;

/// Lists the languages of the studio's texts in a menu, the chosen one checked; the code is the data of each action.
class Language_Menu : public QObject {
  Q_OBJECT

public:
  Language_Menu(QMenu& menu, const App_Settings& settings);

  /// Tells the language that is chosen by `triggered(QAction*)`.
  [[nodiscard]] QActionGroup& group() { return *mGroup; }

private:
  QActionGroup* mGroup;
};
