#pragma once

#include "net/Controller_Exchange.h"
#include "net/Controller_Records.h"
#include "net/Paced_Sender.h"
#include "net/Stream_Out.h"

#include <optional>

class Project_Session;

/// Brings the program (pages, blocks, addresses, elements) to the controller, where it waits staged, and, when asked
/// to, starts it there: what F5 does. A program that the controller runs already is not sent again unless forced.
/// Whoever gives up before it runs leaves the controller with the old one.
class Program_Transfer : public Controller_Exchange {
  Q_OBJECT

public:
  struct Options {
    bool mStart = true;  ///< start it without a project write
    bool mForce = false; ///< send it also when the controller's is the same
  };
  /// The session outlives the transfer.
  Program_Transfer(Main_Network_Client& client, Project_Session& session, Options options, QObject* parent = nullptr);
  /// While it runs, the controller is told to forget it.
  ~Program_Transfer() override;

  /// Whether it was sent, once it is done; false when the controller held it already.
  [[nodiscard]] bool wasSent() const { return mWasSent; }
  /// What the controller told of its project last; of defaults when it was not asked.
  [[nodiscard]] const DB_Controller_Project& controllerProject() const { return mControllerProject; }

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;
  void abort() override;

private:
  enum class Step { Comparing, Staging, Starting };
  void makeProgram();
  void stage();
  void takeProject(QByteArrayView payload);

  Project_Session& mSession;
  Options mOptions;
  Step mStep = Step::Comparing;
  Paced_Sender mSender;
  std::optional<Stream_Out> mProgram;
  DB_Controller_Project mControllerProject;
  bool mMustForget = false; ///< something of the program may be with the controller
  bool mWasSent = false;
};
