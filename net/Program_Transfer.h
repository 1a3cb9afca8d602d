#pragma once

#include "net/Controller_Exchange.h"
#include "net/Controller_Records.h"

class Project_Session;

/// Brings the program (pages, blocks, addresses, elements) to the controller, where it waits staged, and, when asked
/// to, starts it there: what F5 does. A program that the controller holds already is not sent again unless forced.
class Program_Transfer : public Controller_Exchange {
  Q_OBJECT

public:
  struct Options {
    bool mStart = true;  ///< start it without a project write
    bool mForce = false; ///< send it also when the controller's is the same
  };
  /// The session outlives the transfer.
  Program_Transfer(Main_Network_Client& client, Project_Session& session, Options options, QObject* parent = nullptr);

  /// Whether it was sent, once it is done; false when the controller held it already.
  [[nodiscard]] bool wasSent() const { return mWasSent; }

protected:
  void begin() override;
  bool take(quint32 command, QByteArrayView payload) override;
  void abort() override;

private:
  Project_Session& mSession;
  Options mOptions;
  bool mWasSent = false;
};
