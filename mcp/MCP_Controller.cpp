#include "mcp/MCP_Controller.h"

#include "mcp/MCP_Studio.h"
#include "mcp/MCP_Wait.h"
#include "net/Controller_Link.h"
#include "net/Controller_Request.h"

#include <algorithm>

namespace {

constexpr double cShortest = 1;
constexpr double cLongest = 60;
constexpr double cMsOfSecond = 1000;

} // namespace

QString MCP_Controller::noLink() {
  return QStringLiteral("Keine Verbindung zur Steuerung");
}

std::chrono::milliseconds MCP_Controller::waitOf(double seconds) {
  return std::chrono::milliseconds(qRound(std::clamp(seconds, cShortest, cLongest) * cMsOfSecond));
}

QString MCP_Controller::Answer::text() const {
  const qsizetype end = mPayload.indexOf('\0');
  return QString::fromUtf8(end < 0 ? mPayload : mPayload.first(end));
}

MCP_Controller::Answer MCP_Controller::ask(MCP_Studio& studio, const Question& question,
                                           std::chrono::milliseconds most) {
  Controller_Link* const link = studio.link();
  if (!link || !link->isOnline()) {
    return {Outcome::NoLink, {}, noLink()};
  }
  Controller_Request request(link->client(), question.mCommand, question.mPayload, question.mReply, {});
  MCP_Wait wait(most);
  QObject::connect(&request, &Controller_Exchange::finished, &wait, &MCP_Wait::done);
  request.setTimeout(static_cast<int>(most.count()));
  request.start();
  if (!wait.run()) {
    request.cancel();
    return {Outcome::Late, {}, QStringLiteral("Keine Antwort der Steuerung innerhalb der Wartezeit")};
  }
  switch (request.end()) {
  case Controller_Exchange::End::Done:
    return {Outcome::Answered, request.reply(), {}};
  case Controller_Exchange::End::NoLink:
    return {Outcome::NoLink, {}, noLink()};
  case Controller_Exchange::End::NoAnswer:
    return {Outcome::Late, {}, QStringLiteral("Keine Antwort der Steuerung innerhalb der Wartezeit")};
  default:
    return {Outcome::Refused, {}, request.errorText()};
  }
}
