#pragma once

#include "db/Address_Undo.h"
#include "db/Address_Values.h"
#include "db/Child_Undo.h"
#include "db/FB_Page_Undo.h"
#include "db/History.h"
#include "db/New_Project.h"
#include "db/Page_Undo.h"
#include "db/ProjectDatabase.h"
#include "db/Single_Record_Undo.h"
#include "db/Value_Service.h"
#include "db/Working_Copy.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

/// The project that is open in the studio: the store with its history, and the way between the project file and its
/// working copy. It asks nobody: what needs a question is told by a state, and the caller asks before it calls.
class Project_Session : public QObject {
  Q_OBJECT

public:
  explicit Project_Session(Session_State& state, QObject* parent = nullptr);
  ~Project_Session() override;

  [[nodiscard]] bool isOpen() const { return !mPath.isEmpty(); }
  /// Absolute path of the project file; empty when none is open.
  [[nodiscard]] QString path() const { return mPath; }
  /// What the session is doing: whether edits are refused.
  [[nodiscard]] Session_State& state() const { return mState; }
  [[nodiscard]] ProjectDatabase& database() { return mDatabase; }
  [[nodiscard]] const ProjectDatabase& database() const { return mDatabase; }
  [[nodiscard]] History& history() { return mHistory; }
  /// What the controller last told of the project's addresses; forgotten with the project.
  [[nodiscard]] Address_Values& values() { return mValues; }
  [[nodiscard]] const Address_Values& values() const { return mValues; }
  /// Who reads and sends these values; null while nobody can. Forgotten when it goes.
  [[nodiscard]] Value_Service* valueService() const { return mValueService; }
  void setValueService(Value_Service* service);
  [[nodiscard]] bool isModified() const { return isOpen() && mHistory.isModified(); }

  /// Closes what is open, copies the file to a working copy and loads that, converting an older layout. On failure
  /// nothing is open and `lastError` tells why. `others` is what becomes of what a crash left of the project.
  bool open(const QString& path, Working_Copy::Others others = Working_Copy::Others::Remove);
  /// The same with a working file that was left behind, as it stands there; the project file is not read. The project
  /// is modified then. On failure, and when it is closed before `acceptRecovered`, the working file stays.
  bool recover(const QString& path, Working_Copy adopted);
  void acceptRecovered();
  /// Closes what is open and makes a new project file, replacing one of that name at the end only.
  bool create(const QString& path, const New_Project::Options& options);
  /// Deletes working copy and lock; what was not saved is gone.
  void close();

  enum class Save_Result {
    Saved,
    WriteFailed,   ///< the working copy could not be written; `lastError` holds the engine's text
    PublishFailed, ///< the project file could not be replaced; `lastError` holds the system's text
  };
  /// The project file is at every moment the whole old or the whole new project. A failure loses no edit.
  Save_Result save();
  /// Saves under another name and goes on with that; the old file stays as last saved.
  Save_Result saveAs(const QString& path);

  /// Brings the records as they are into the working file; the project file, the history and the modified mark stay.
  /// On failure the working file holds what it held before, and `lastError` tells why. Fails while `mayAutosave` does.
  bool autosave();
  /// False inside a step, an edit scope or a write: the records are on their way from one state to another.
  [[nodiscard]] bool mayAutosave() const;
  /// True when the records are not those that the working file holds, also when undoing has led back to what is saved.
  [[nodiscard]] bool isAutosaveDue() const;

  /// True when the project file is not what it was when opened or last saved.
  [[nodiscard]] bool isChangedOnDisk() const;

  [[nodiscard]] QString lastError() const { return mLastError; }

  [[nodiscard]] Undo_Adapter& addressUndo() { return mAddressUndo; }
  [[nodiscard]] Undo_Adapter& fbPageUndo() { return mFbPageUndo; }
  [[nodiscard]] Undo_Adapter& widgetPageUndo() { return mWidgetPageUndo; }
  /// Of the blocks of all logic pages, and of the elements of all visualisation pages.
  [[nodiscard]] Undo_Adapter& blockUndo() { return mBlockUndo; }
  [[nodiscard]] Undo_Adapter& elementUndo() { return mElementUndo; }
  [[nodiscard]] Undo_Adapter& projectUndo() { return mProjectUndo; }
  [[nodiscard]] Undo_Adapter& connectionsUndo() { return mConnectionsUndo; }
  [[nodiscard]] Undo_Adapter& statisticUndo() { return mStatisticUndo; }

signals:
  /// The records of the old project are still there; views let go of them.
  void aboutToClose();
  void opened();
  void closed();
  void pathChanged();
  void valueServiceChanged();

private:
  void onAddressChanged(const QUuid& key);
  void onAddressesChanged();
  bool fail(const QString& text);
  bool claim(Working_Copy& copy, const QString& path, Working_Copy::Others others = Working_Copy::Others::Remove);
  bool keepWorkingFile();
  bool copyToWorkingFile(const QString& path, Working_Copy::Others others);
  bool failOpening(const QString& error);
  void finishOpening(const QString& path);
  [[nodiscard]] Save_Result writeTo(const QString& path);
  void setPath(const QString& path);
  void setFileState(const File_State& state);

  Session_State& mState;
  ProjectDatabase mDatabase;
  Address_Values mValues;
  History mHistory;
  Address_Undo mAddressUndo;
  Page_Undo<DB_FB_Page> mFbPageUndo;
  Page_Undo<DB_Widget_Page> mWidgetPageUndo;
  FB_Page_Undo mBlockUndo;
  Child_Undo<DB_Widget_Page> mElementUndo;
  Single_Record_Undo mProjectUndo;
  Single_Record_Undo mConnectionsUndo;
  Single_Record_Undo mStatisticUndo;
  Working_Copy mWorkingCopy;
  QString mPath;
  File_State mFileState; ///< of the project file when its content was last read or written
  std::optional<History::State>
      mWorkingState; ///< what the working file holds; none when that is no state of the history
  QString mLastError;
  QPointer<Value_Service> mValueService;
};
