#pragma once

#include "net/Controller_Exchange.h"
#include "net/Paced_Sender.h"
#include "net/Stream_Out.h"

#include <QByteArray>
#include <QStringList>

#include <array>
#include <optional>

class Project_Session;

/// Writes the open project to the controller: saves it, brings the program over, stops the controller, sends records
/// and resources, starts it, compacts both sides. Progress is told with the labels that the user sees, 0 to 100 for the
/// main steps and the number of files while resources travel.
///
/// Whoever gives up, or loses the link, leaves the local project saved and the controller with its old project; once
/// the new one has started only resources are missing. In between, while its start is not answered yet, nobody here
/// knows which of the two runs.
class Project_Transfer : public Controller_Exchange {
  Q_OBJECT

public:
  struct Options {
    bool mClearFirst = false; ///< the controller forgets the resources of its project before
  };
  /// The session outlives the transfer.
  Project_Transfer(Main_Network_Client& client, Project_Session& session, Options options, QObject* parent = nullptr);
  /// While it runs, the controller is told to forget what has not started yet.
  ~Project_Transfer() override;

  /// The controller runs the new project: giving up stops the resources only.
  [[nodiscard]] bool hasStarted() const { return mHasStarted; }
  /// The start was sent and not answered.
  [[nodiscard]] bool isStarting() const { return mStep == Step::Starting; }
  /// The count that the controller gave this write, once its project has started; 0 before.
  [[nodiscard]] int generation() const { return mGeneration; }

signals:
  /// The controller runs the new project; resources and compacting follow.
  void projectStarted(int generation);

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;
  void abort() override;

private:
  enum class Step { Saving, Staging, Writing, Starting, Resources, Compacting, Waiting };
  /// Soon, so that the label before is seen; not when it has ended meanwhile.
  void later(void (Project_Transfer::*step)());
  void saveFirst();
  [[nodiscard]] bool checkResources();
  void stopController();
  void sendRecords();
  void startController();
  void takeStarted(QByteArrayView payload);
  void beginResources();
  [[nodiscard]] bool sendNextResource();
  void countResource();
  void compact();

  Project_Session& mSession;
  Options mOptions;
  Step mStep = Step::Saving;
  Paced_Sender mSender;
  std::optional<Stream_Out> mProgram;
  std::array<QByteArray, 7> mRecords; ///< texts as they were saved, in the order of their commands
  QStringList mFiles;                 ///< resources that are not empty
  qsizetype mFilesTaken = 0;          ///< of these, read and sent
  qsizetype mOutstanding = 0;         ///< of these, not yet stored by the controller
  bool mMustForget = false;           ///< something may be staged with the controller
  bool mHasStarted = false;
  int mGeneration = 0;
};
