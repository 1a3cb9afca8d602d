#pragma once

#include "db/DB_Data_Base.h"
#include "db/DB_Project.h"

#include <QString>

#include <vector>

// The records that only travel; none is stored in a project.

/// Who logs on to the controller.
class DB_Log_On : public DB_Record<DB_Log_On> {
public:
  void fields(DB_Fields& fields) override;
  QString mUser;
  QString mPassword;
};

/// Why the controller does not do what a command asked for.
class DB_Refusal : public DB_Record<DB_Refusal> {
public:
  void fields(DB_Fields& fields) override;
  int mCommand = 0;
  QString mReason; ///< a sentence for the user
};

/// The project that a controller holds. Digests are SHA-256 as 64 hexadecimal digits, empty where there is nothing.
class DB_Controller_Project : public DB_Record<DB_Controller_Project> {
public:
  void fields(DB_Fields& fields) override;
  DB_Project mProject;    ///< as it was written, with generation and identification; its mProjectId is null without one
  QString mProgramDigest; ///< of the program's image, as its stream begins with
  QString mRecordsDigest; ///< of the texts of 105, 104, 350, 210, 106, 107, in this order, each with its zero byte
  QString mResourcesDigest; ///< of all resources in the order of the bytes of their names: name, zero byte, file
  int mResources = 0;
  bool mIsRunning = false;
};

/// A backup that the controller keeps.
class DB_Backup_List : public DB_Record<DB_Backup_List> {
public:
  struct Backup {
    QString mId;      ///< letters, digits and "-" only
    qint64 mTime = 0; ///< seconds since 1970 (UTC)
    QString mDescription;
    QString mProjectName;
    qint64 mSize = 0; ///< bytes
    friend bool operator==(const Backup&, const Backup&) = default;
    void fields(DB_Fields& fields);
  };
  void fields(DB_Fields& fields) override;
  std::vector<Backup> mBackups;
};

/// The states of the controllers of a group, as the connected one knows them.
class DB_Group_Status : public DB_Record<DB_Group_Status> {
public:
  struct Member {
    int mIndex = 0;         ///< the controller's own number
    int mState = 0;         ///< 0 not reachable, 1 connected, 2 standby, 3 another controller than expected, 4 this one
    int mSecondsSince = -1; ///< since the last message of it; -1 for never
    QString mVersion;
    int mGeneration = 0;
    int mDistribution = 0; ///< 0 nothing to do, 1 under way, 2 done, 3 failed
    void fields(DB_Fields& fields);
  };
  void fields(DB_Fields& fields) override;
  int mOwnIndex = 0;
  std::vector<Member> mMembers;
};

/// How the controller stands in its network.
class DB_Network_Settings : public DB_Record<DB_Network_Settings> {
public:
  void fields(DB_Fields& fields) override;
  bool mIsDhcp = false;
  QString mAddress;
  QString mMask;
  QString mGateway;
  QString mNameServer;
};
