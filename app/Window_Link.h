#pragma once

#include "net/Controller_Link.h"

#include <QObject>
#include <QString>

#include <optional>

class App_Settings;
class Controller_Commands;
class Controller_Values;
class FB_Block_Editors;
class Lifecycle_Dialogs;
class Link_Status;
class Program_Play;
class Project_Write;
class QMainWindow;
class Script_Debug;
class Status_Progress;

/// The window's side of the link to the controller, which it owns with all that lives on it: dials and ends it, shows
/// in the status bar how it stands, tells refusals and losses, hands scripts over, and keeps the live values.
///
/// It dials only when the user asks for it. A project that is closed ends the link. On a kiosk no box is opened.
class Window_Link : public QObject {
  Q_OBJECT

public:
  /// All of them outlive it.
  struct Parts {
    Project_Session& mSession;
    App_Settings& mSettings;
    Lifecycle_Dialogs& mDialogs;
    FB_Block_Editors& mEditors;
    QMainWindow& mWindow;
    bool mIsKiosk = false;
  };
  explicit Window_Link(const Parts& parts);

  [[nodiscard]] Controller_Link& link() { return *mLink; }
  [[nodiscard]] Program_Play& play() { return *mPlay; }
  [[nodiscard]] Project_Write& write() { return *mWrite; }
  [[nodiscard]] Controller_Commands& commands() { return *mCommands; }

  /// Dials with the project's selected connection, or ends the link, whether it stands or not yet.
  void toggle();
  /// Dials for an assistant: no dialog, and no box when it is refused. False with a German `error` without connection.
  bool dialQuietly(QString* error);
  /// A program or project is on its way to the controller, beside what `commands` do.
  [[nodiscard]] bool isSending() const;
  /// Gives up what is on its way and ends the link.
  void end();
  [[nodiscard]] bool isWanted() const { return mLink->state() != Controller_Link::State::Offline; }
  [[nodiscard]] bool isOnline() const { return mLink->isOnline(); }
  /// The connected controller's own number; none without a link, and for one that has none.
  [[nodiscard]] std::optional<int> controllerNumber() const;
  /// How it stands, with the connection's name.
  [[nodiscard]] QString stateText() const;
  /// Asks when something is on its way to the controller or from it.
  [[nodiscard]] bool mayEnd();
  /// Ends everything without a word; the window goes.
  void shutDown();

signals:
  /// The link or what runs on it.
  void changed();
  /// For the status bar.
  void info(const QString& text);

private:
  void connectLink();
  void connectScripts();
  void connectPlay();
  void connectWrite();
  void onRefused(const QString& text);
  void onStateChanged();
  void onLost();
  void tell(const QString& text);

  Parts mParts;
  Controller_Link* mLink;
  Controller_Values* mValues;
  Script_Debug* mScripts;
  Program_Play* mPlay;
  Project_Write* mWrite;
  Controller_Commands* mCommands;
  Link_Status* mStatus;
  Status_Progress* mProgress;
  QString mConnection;     ///< the last one, as it is shown
  bool mIsLost = false;    ///< since then no other was dialled
  bool mIsQuiet = false;   ///< it is dialled for an assistant
  bool mIsAwaited = false; ///< the controller restarts and closes the link, as the user wanted
};
