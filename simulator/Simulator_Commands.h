#pragma once

#include <QByteArrayView>

#include <span>

class Simulator_Controller;
class Simulator_Server;
class Simulator_Session;

/// What the stand-in does on each command: one row each.
namespace Simulator_Commands {

/// A message that came.
struct Request {
  Simulator_Server& mServer;
  Simulator_Controller& mController;
  Simulator_Session& mSession;
  quint32 mCommand = 0;
  QByteArrayView mPayload;
};

enum class Access { Everyone, Logged_On };

struct Row {
  quint32 mCommand = 0;
  Access mAccess = Access::Logged_On;
  void (*mAnswer)(const Request& request) = nullptr;
};

/// Null for a command that it does not know.
[[nodiscard]] const Row* find(quint32 command);

[[nodiscard]] std::span<const Row> linkRows();
[[nodiscard]] std::span<const Row> projectRows();
[[nodiscard]] std::span<const Row> backupRows();
[[nodiscard]] std::span<const Row> serviceRows();

} // namespace Simulator_Commands
