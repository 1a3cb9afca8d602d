#pragma once

#include "net/dialogs/Controller_Access.h"
#include "net/dialogs/Controller_Boxes.h"

#include <QObject>
#include <QPointer>
#include <QString>

class DB_Controller_Project;
class Exchange_Runner;
class QDialog;

/// What the window's commands about the controller do, a function each: asks, runs the exchange in its dialog, tells
/// how it ended. Without a link each says so at once and opens nothing. Nothing waits: a command returns when its
/// dialog is open. A second command while one runs does nothing.
class Controller_Commands : public QObject {
  Q_OBJECT

public:
  /// All of them outlive the commands, `questions` too; without one the program's own boxes ask. The window owns what
  /// is opened; deleting the commands closes it.
  Controller_Commands(Project_Session& session, App_Settings& settings, Controller_Link& link, QWidget& window,
                      Controller_Questions* questions = nullptr, QObject* parent = nullptr);
  ~Controller_Commands() override;

  /// How long a reply is waited for.
  void setTimeout(int ms) { mAccess.mTimeoutMs = ms; }
  /// An exchange runs, or a dialog about the controller is open.
  [[nodiscard]] bool isBusy() const;
  /// Cancels and closes; also done when the project is closed.
  void closeAll();

  void writeProject();    ///< "Bootprojekt erzeugen"; asks before, unless setting or assistant say otherwise
  void downloadProject(); ///< into a file, see `projectLoaded`
  void compare();
  void backup();
  void restoreBackup();
  void storePersistentValues();    ///< on the controller's disk
  void downloadPersistentValues(); ///< into a file
  void uploadPersistentValues();   ///< from a file
  void showInformation();
  void showClock();
  void reboot();
  void factoryReset();

signals:
  /// A project of the controller lies in that file; the window opens it.
  void projectLoaded(const QString& path);
  /// The project was written to the controller, which gave it that count.
  void projectWritten(int generation);
  /// The controller closes the link next, as the user wanted: nothing to report.
  void restarting();

private:
  /// Says so without a link.
  [[nodiscard]] bool isReady();
  /// Whether to go on; also false when that is no longer possible.
  [[nodiscard]] bool ask(const QString& text);
  void tell(const QString& text);
  void openDialog(QDialog* dialog);
  void showComparison(const DB_Controller_Project& controller);
  void storeProject(const QString& path, const QByteArray& bytes);

  Controller_Boxes mBoxes;
  Controller_Access mAccess;
  QWidget& mWindow;
  QPointer<Exchange_Runner> mRunner;
  QPointer<QDialog> mDialog;
};
