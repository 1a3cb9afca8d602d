#pragma once

#include "app/Lifecycle_Dialogs.h"
#include "db/Project_Session.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class App_Settings;
class Session_State;

/// New, open, save, save as, close and quit: in which order a project's user is asked what, and what then happens.
///
/// One operation runs at a time; what comes in meanwhile (a file dropped while a question is open) is refused quietly.
/// None starts while an assistant's tool call runs. Every operation answers whether it was carried out.
class Project_Lifecycle : public QObject {
  Q_OBJECT

public:
  /// All of them must outlive this object.
  Project_Lifecycle(Project_Session& session, App_Settings& settings, Session_State& state, Lifecycle_Dialogs& dialogs,
                    QObject* parent = nullptr);

  bool newProject();
  /// Without a file dialog.
  bool newProject(const QString& path, const New_Project::Options& options);
  bool open();
  bool open(const QString& path);
  /// The demo project in its place in the user's data folder, built there when it is missing or cannot be read.
  bool openDemo();
  bool save();
  bool saveAs();
  /// Without a file dialog; the extension is added when it is missing.
  bool saveAs(const QString& path);
  /// For who saves without this: hands over what is typed and asks what `save` asks before. False calls it off.
  bool maySave();
  bool close();
  /// Asks about unsaved changes; the project stays open.
  bool mayQuit();

  /// False while an assistant's tool call runs: the user is told that it must end first.
  [[nodiscard]] bool isFreeOfAssistant();
  /// Runs an operation for an assistant's tool call, which else keeps every operation from starting. Unsaved changes
  /// are saved; what else would be asked is answered with its default then, see Message_Box.
  bool asAssistant(const std::function<bool()>& operation);

  /// Asked at the beginning of each operation, before anything else: whoever edits in a window of its own hands over
  /// what is typed there. False calls the operation off.
  void setMayBegin(const std::function<bool()>& mayBegin) { mMayBegin = mayBegin; }
  /// Nobody is there who could decide what becomes of a working state that was left behind: it stays where it is.
  void setKiosk() { mIsKiosk = true; }

  [[nodiscard]] bool isBusy() const { return mIsBusy; }

signals:
  /// An operation begins: whoever holds a text that is still being typed makes it part of the project now.
  void beginning();
  /// The project is loaded; whoever shows editors builds them now. Comes at 40, 60 and 80 percent.
  void buildEditors(int percent);
  /// For the status bar.
  void info(const QString& text);

private:
  class Operation;

  bool settleUnsaved();
  bool openFile(const QString& path);

  /// What the user wants of what a crash left, and the working file that goes with it.
  struct Opening {
    bool mIsAccepted = false;
    Working_Copy::Others mOthers = Working_Copy::Others::Keep;
    Working_Copy mRecovered; ///< adopted; without path when the project file is to be opened
  };
  [[nodiscard]] Opening askHowToOpen(const QString& path);
  bool openRecords(const QString& target, Opening& opening);
  [[nodiscard]] bool askBeforeOpening(const QString& path, const QString& target);
  [[nodiscard]] bool isAlreadyOpenAccepted(const QString& path);
  /// As above, for a project that another one takes the place of.
  [[nodiscard]] bool isOverwritingAccepted(const QString& path);
  [[nodiscard]] bool isReplacingAccepted(const QString& path);
  bool load(const QString& target, Opening opening);
  void afterLoading(bool isRemembered);
  void tellDamage();
  /// As many lines as a message can show.
  [[nodiscard]] static QStringList shortened(QStringList lines);
  void reportMissing(const QString& path);
  [[nodiscard]] bool mayOverwrite();
  bool saveFile();
  bool finishSaving(Project_Session::Save_Result result);
  bool create(const QString& path, New_Project::Options options);
  bool saveCopy(const QString& path);
  void remember(const QString& path);
  [[nodiscard]] QString folder() const;

  Project_Session& mSession;
  App_Settings& mSettings;
  Session_State& mState;
  Lifecycle_Dialogs& mDialogs;
  std::function<bool()> mMayBegin;
  bool mIsBusy = false;
  bool mIsKiosk = false;
  bool mIsAssistant = false; ///< the operation that starts is the tool call's own
  bool mIsDamaged = false;   ///< the project file holds what could not be read and would be lost by saving
};
