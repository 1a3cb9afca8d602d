#pragma once

#include <QString>

/// What became of an edit: done, or refused with a German text that names the thing, the value and what is allowed.
struct Edit_Result {
  QString mError;

  [[nodiscard]] static Edit_Result done() { return {}; }
  [[nodiscard]] static Edit_Result refused(const QString& error) { return {error}; }
  explicit operator bool() const { return mError.isEmpty(); }
};
