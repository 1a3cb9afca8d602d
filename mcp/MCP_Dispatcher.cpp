#include "mcp/MCP_Dispatcher.h"

#include "base/Session_State.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"
#include "mcp/Ascii_Json.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Log.h"
#include "mcp/MCP_Studio.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace {

constexpr int cMethodNotFound = -32601;
constexpr qsizetype cLoggedArguments = 200;
constexpr qsizetype cNamedUnknown = 5;
constexpr qsizetype cLongestMessage = 2000;

QByteArray compact(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

qint64 idOf(const QJsonObject& request) {
  return request.value(QStringLiteral("id")).toInteger(-1);
}

/// An id that is no whole number from 0 up is left out.
QJsonObject response(qint64 id, const QString& member, const QJsonValue& value) {
  QJsonObject object{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")}, {member, value}};
  if (id >= 0) {
    object.insert(QStringLiteral("id"), id);
  }
  return object;
}

/// Failures and warnings quote what was sent, which may be huge: an assistant has to read the answer.
QJsonObject withShortMessages(const MCP_Result& result) {
  QJsonObject object = result.mObject;
  for (auto member = object.begin(); member != object.end(); ++member) {
    const QString text = member.value().toString();
    if (text.size() > cLongestMessage && (result.mIsError || member.key() == u"warning")) {
      member.value() = text.first(cLongestMessage) + QStringLiteral("...");
    }
  }
  return object;
}

QJsonObject wrapped(const MCP_Result& result) {
  const QJsonObject text{{QStringLiteral("type"), QStringLiteral("text")},
                         {QStringLiteral("text"), QString::fromUtf8(compact(withShortMessages(result)))}};
  return {{QStringLiteral("content"), QJsonArray{text}}, {QStringLiteral("isError"), result.mIsError}};
}

QJsonObject initializeResult() {
  return {{QStringLiteral("protocolVersion"), QStringLiteral("2024-11-05")},
          {QStringLiteral("capabilities"), QJsonObject{{QStringLiteral("tools"), QJsonObject()}}},
          {QStringLiteral("serverInfo"), QJsonObject{{QStringLiteral("name"), QStringLiteral("RZ8800-Studio-MCP")},
                                                     {QStringLiteral("version"), QStringLiteral("1.0")}}}};
}

void addWarnings(QJsonObject& object, QStringList warnings) {
  const QString present = object.value(QStringLiteral("warning")).toString();
  if (!present.isEmpty()) {
    warnings.prepend(present);
  }
  if (!warnings.isEmpty()) {
    object.insert(QStringLiteral("warning"), warnings.join(u' '));
  }
}

QString unknownText(const QStringList& names) {
  QString text = QStringLiteral("Unbekannte Parameter ignoriert: ") +
                 names.first(qMin(names.size(), cNamedUnknown)).join(QStringLiteral(", "));
  if (names.size() > cNamedUnknown) {
    text += QStringLiteral(" und %1 weitere").arg(names.size() - cNamedUnknown);
  }
  return text + u'.';
}

/// Marks the tool call while it lives.
class Running {
public:
  explicit Running(Session_State& state) : mState(state) { mState.beginToolCall(QDateTime::currentMSecsSinceEpoch()); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;
  ~Running() { mState.endToolCall(QDateTime::currentMSecsSinceEpoch()); }

private:
  Session_State& mState;
};

} // namespace

MCP_Dispatcher::MCP_Dispatcher(MCP_Studio& studio, Session_State& state, MCP_Catalogue catalogue)
    : mStudio(studio),
      mState(state),
      mCatalogue(std::move(catalogue)),
      mListBytes(Ascii_Json::write(mCatalogue.list())) {}

QByteArray MCP_Dispatcher::answer(const QJsonObject& request) {
  if (request.value(QStringLiteral("method")).toString() != u"tools/list") {
    const QJsonObject response = dispatch(request);
    return response.isEmpty() ? QByteArray() : Ascii_Json::write(response);
  }
  log(QStringLiteral("tools/list"), {}, {});
  QByteArray frame = Ascii_Json::write(response(idOf(request), QStringLiteral("result"), QJsonObject()));
  constexpr QByteArrayView cEmptyResult = "{}}";
  Q_ASSERT(frame.endsWith(cEmptyResult));
  frame.chop(cEmptyResult.size());
  return frame + mListBytes + '}';
}

QJsonObject MCP_Dispatcher::dispatch(const QJsonObject& request) {
  const QString method = request.value(QStringLiteral("method")).toString();
  const qint64 id = idOf(request);
  const QJsonObject parameters = request.value(QStringLiteral("params")).toObject();
  const QString tool = parameters.value(QStringLiteral("name")).toString();
  const QJsonObject arguments = parameters.value(QStringLiteral("arguments")).toObject();
  log(method, tool, arguments);
  if (method == u"initialize") {
    return response(id, QStringLiteral("result"), initializeResult());
  }
  if (method == u"notifications/initialized") {
    return {};
  }
  if (method == u"tools/list") {
    return response(id, QStringLiteral("result"), mCatalogue.list());
  }
  if (method == u"tools/call") {
    return response(id, QStringLiteral("result"), callTool(tool, arguments));
  }
  const QJsonObject error{{QStringLiteral("code"), cMethodNotFound},
                          {QStringLiteral("message"), QStringLiteral("Methode nicht gefunden: %1").arg(method)}};
  return response(id, QStringLiteral("error"), error);
}

QJsonObject MCP_Dispatcher::callTool(const QString& name, const QJsonObject& arguments) {
  return wrapped(run(name, arguments));
}

MCP_Result MCP_Dispatcher::run(const QString& name, const QJsonObject& arguments) {
  const MCP_Tool* const tool = mCatalogue.find(name);
  const bool needsProject = !tool || tool->mNeeds == MCP_Tool::Needs::Project;
  if (needsProject && !mStudio.session().isOpen()) {
    return MCP_Result::failed(QStringLiteral("Kein Projekt geoeffnet"));
  }
  if (mState.toolCallRunning()) {
    return MCP_Result::failed(QStringLiteral("Es laeuft bereits ein Werkzeugaufruf — bitte dessen Antwort abwarten"));
  }
  const Running running(mState);
  if (!tool) {
    return MCP_Result::failed(QStringLiteral("Unbekanntes Werkzeug: %1").arg(name));
  }
  const QString fault = tool->faultOf(arguments);
  if (!fault.isEmpty()) {
    return MCP_Result::failed(fault);
  }
  MCP_Result result = runHandler(*tool, arguments);
  const QString suppressed = mState.suppressedMessage();
  if (!suppressed.isEmpty()) {
    result.mObject.insert(QStringLiteral("suppressed_message"), suppressed);
  }
  return result;
}

MCP_Result MCP_Dispatcher::runHandler(const MCP_Tool& tool, const QJsonObject& arguments) {
  const QStringList unknown = tool.unknownIn(arguments);
  QJsonObject known = arguments;
  for (const QString& name : unknown) {
    known.remove(name); // a handler shared by several tools may know it
  }
  MCP_Call call(mStudio, mStudio.session(), known);
  if (!unknown.isEmpty()) {
    call.warn(unknownText(unknown));
  }
  MCP_Result result;
  if (tool.mStep.isEmpty()) {
    result = tool.mHandler(call);
  } else {
    Edit_Scope scope(mStudio.session().history(), tool.mStep, Edit_Scope::Grouping::Own);
    result = scope ? tool.mHandler(call) : MCP_Result::failed(scope.refusal());
    if (scope && !result) {
      scope.revert();
    }
  }
  addWarnings(result.mObject, call.warnings());
  return result;
}

void MCP_Dispatcher::log(const QString& method, const QString& tool, const QJsonObject& arguments) const {
  if (!mIsDebug || method == u"notifications/initialized") {
    return;
  }
  if (method != u"tools/call") {
    MCP_Log::write(method);
    return;
  }
  QString text = QString::fromUtf8(compact(arguments));
  if (text.size() > cLoggedArguments) {
    text = text.first(cLoggedArguments) + QStringLiteral("...");
  }
  MCP_Log::write(QStringLiteral("tools/call: %1  args: %2").arg(tool, text));
}
