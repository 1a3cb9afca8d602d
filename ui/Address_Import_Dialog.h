#pragma once

#include "db/Address_Import.h"
#include "db/Address_Import_Choices.h"

#include <QDialog>

#include <memory>

class Address_Import_Faults;
class Address_Import_Message;
class Address_Import_Preview;
class Address_Import_Progress;
class Address_Import_Settings;
class App_Settings;
class Ets_Reading;
class Project_Session;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

/// The import of an ETS export: the file, how it is compared, what it would change, and the button that applies what is
/// ticked. Files can be dropped on it. It is accepted when something was imported; it closes itself when the project
/// closes. Session and settings outlive it.
class Address_Import_Dialog : public QDialog {
  Q_OBJECT

public:
  /// `folder` is where the search for a file begins.
  Address_Import_Dialog(Project_Session& session, App_Settings& settings, const QString& folder,
                        QWidget* parent = nullptr);
  ~Address_Import_Dialog() override;

  /// Reads and compares a file, as if it had been chosen.
  void load(const QString& path);

  /// Folder of the last chosen file, else the one it was made with.
  [[nodiscard]] QString folder() const { return mFolder; }
  [[nodiscard]] const Address_Import::Result& importResult() const { return mResult; }

  void done(int result) override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  [[nodiscard]] QWidget* makeFileRow();
  [[nodiscard]] QWidget* makeButtons();

  void onBrowse();
  void onPathEdited();
  void onRead(const std::shared_ptr<const Ets_Groups>& groups, const QString& error);
  void onCancelReading();
  /// Ends the reading; null when it led to nothing.
  void showGroups(const std::shared_ptr<const Ets_Groups>& groups);
  void onImport();
  void onOptionsChanged();
  void read();
  void noteChoices();
  void compare();
  void showEmpty();
  void updateButtons();

  Project_Session& mSession;
  App_Settings& mSettings;
  Ets_Reading* mReading;
  QString mFolder;
  QString mLoaded;                           ///< path of the file that is or was read last
  std::shared_ptr<const Ets_Groups> mGroups; ///< null when none is read
  Address_Import_Choices mChoices;           ///< of that file
  Address_Import::Result mResult;

  QLineEdit* mPath;
  QLabel* mFileInfo;
  Address_Import_Message* mMessage;
  Address_Import_Settings* mOptions;
  QStackedWidget* mPages;
  Address_Import_Preview* mPreview;
  Address_Import_Progress* mProgress;
  Address_Import_Faults* mFaults;
  QLabel* mTicked;
  QPushButton* mBrowse = nullptr;
  QPushButton* mImport = nullptr;
  QPushButton* mCancel = nullptr;
};
