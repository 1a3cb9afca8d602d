#pragma once

#include "db/Edit_Result.h"

#include <QJsonObject>
#include <QString>

/// What a tool answers: an object, or one with the member `error`, a German sentence.
struct MCP_Result {
  QJsonObject mObject;
  bool mIsError = false;

  [[nodiscard]] static MCP_Result done(const QJsonObject& object = {}) { return {object, false}; }
  [[nodiscard]] static MCP_Result failed(const QString& error) { return {{{QStringLiteral("error"), error}}, true}; }
  /// Of an edit: its refusal, else the object.
  [[nodiscard]] static MCP_Result of(const Edit_Result& edit, const QJsonObject& object = {}) {
    return edit ? done(object) : failed(edit.mError);
  }

  explicit operator bool() const { return !mIsError; }
};
