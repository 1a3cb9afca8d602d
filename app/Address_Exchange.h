#pragma once

#include <QObject>
#include <QString>

class App_Settings;
class Lifecycle_Dialogs;
class Project_Session;
class QWidget;

/// Group addresses into the project and out of it: which file, what the user is asked and what is told afterwards. All
/// of what it is given outlives it.
class Address_Exchange : public QObject {
  Q_OBJECT

public:
  Address_Exchange(Project_Session& session, App_Settings& settings, Lifecycle_Dialogs& dialogs, QWidget& window);

  void importAddresses();
  void exportAddresses();

signals:
  void imported();
  /// For the status bar.
  void info(const QString& text);

private:
  [[nodiscard]] QString folder() const;
  [[nodiscard]] QString chooseExportFile();

  Project_Session& mSession;
  App_Settings& mSettings;
  Lifecycle_Dialogs& mDialogs;
  QWidget& mWindow;
  QString mFolder; ///< of the last import or export in this run
};
