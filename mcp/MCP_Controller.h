#pragma once

#include "mcp/MCP_Result.h"

#include <QByteArray>
#include <QString>

#include <chrono>

class MCP_Studio;

/// What tools ask the connected controller, and how long they wait for it.
namespace MCP_Controller {

/// "Keine Verbindung zur Steuerung"
[[nodiscard]] QString noLink();
/// Of a wait that an assistant asks for: at least 1 and at most 60 s.
[[nodiscard]] std::chrono::milliseconds waitOf(double seconds);

/// A command and the one reply to it.
struct Question {
  quint32 mCommand = 0;
  QByteArray mPayload;
  quint32 mReply = 0;
};
enum class Outcome { Answered, NoLink, Late, Refused };
struct Answer {
  Outcome mOutcome = Outcome::NoLink;
  QByteArray mPayload;
  QString mError; ///< German; empty when it is answered

  explicit operator bool() const { return mOutcome == Outcome::Answered; }
  [[nodiscard]] QString text() const;
};
/// Asks and waits in a local event loop: afterwards everything is to be looked up anew.
[[nodiscard]] Answer ask(MCP_Studio& studio, const Question& question,
                         std::chrono::milliseconds most = std::chrono::seconds(10));

} // namespace MCP_Controller
