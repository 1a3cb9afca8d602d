#pragma once

#include "db/Project_Session.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class MCP_Studio;

/// One call of a tool while its handler runs: the arguments, which are as the tool declares them, and what it works on.
/// Valid until the handler returns. After every wait a handler looks up anew what it works on, by GUID.
class MCP_Call {
public:
  MCP_Call(MCP_Studio& studio, Project_Session& session, QJsonObject arguments)
      : mStudio(studio),
        mSession(session),
        mArguments(std::move(arguments)) {}

  [[nodiscard]] MCP_Studio& studio() const { return mStudio; }
  [[nodiscard]] Project_Session& session() const { return mSession; }
  [[nodiscard]] const ProjectDatabase& database() const { return std::as_const(mSession).database(); }

  [[nodiscard]] const QJsonObject& arguments() const { return mArguments; }
  /// An argument that is null counts as none.
  [[nodiscard]] bool has(const char* name) const { return !value(name).isNull(); }
  [[nodiscard]] QString text(const char* name, const QString& otherwise = {}) const {
    return value(name).toString(otherwise);
  }
  /// True and false are 1 and 0.
  [[nodiscard]] int integer(const char* name, int otherwise = 0) const {
    const QJsonValue found = value(name);
    return found.isBool() ? int(found.toBool()) : int(found.toDouble(otherwise));
  }
  [[nodiscard]] double number(const char* name, double otherwise = 0) const { return value(name).toDouble(otherwise); }
  [[nodiscard]] bool flag(const char* name, bool otherwise = false) const {
    const QJsonValue found = value(name);
    return found.isDouble() ? found.toDouble() != 0 : found.toBool(otherwise);
  }
  [[nodiscard]] QJsonArray list(const char* name) const { return value(name).toArray(); }
  [[nodiscard]] QJsonObject object(const char* name) const { return value(name).toObject(); }
  /// Null when it is not there.
  [[nodiscard]] QJsonValue value(const char* name) const {
    const QJsonValue found = mArguments.value(QLatin1String(name));
    return found.isUndefined() ? QJsonValue(QJsonValue::Null) : found;
  }

  /// Told in the result's member `warning`, with what else is warned of (German).
  void warn(const QString& text) { mWarnings.append(text); }
  [[nodiscard]] const QStringList& warnings() const { return mWarnings; }

private:
  MCP_Studio& mStudio;
  Project_Session& mSession;
  QJsonObject mArguments;
  QStringList mWarnings;
};
