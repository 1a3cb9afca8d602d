#pragma once

#include "net/Controller_Exchange.h"

#include <QStringList>

class Project_Session;

/// Writes the open project to the controller: saves it, brings the program over, stops the controller, sends records
/// and resources, starts it, compacts both sides. Progress is told with the labels that the user sees, 0 to 100 for the
/// main steps and the number of files while resources travel.
///
/// Whoever gives up, or loses the link, leaves the controller with its old project and the local one saved.
class Project_Transfer : public Controller_Exchange {
  Q_OBJECT

public:
  struct Options {
    bool mClearFirst = false; ///< the controller forgets the resources of its project before
  };
  /// The session outlives the transfer.
  Project_Transfer(Main_Network_Client& client, Project_Session& session, Options options, QObject* parent = nullptr);

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
  Project_Session& mSession;
  Options mOptions;
  int mGeneration = 0;
};
