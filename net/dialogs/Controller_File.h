#pragma once

#include "net/dialogs/Controller_Access.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QWidget;

/// Files that come from the controller or go to it.
namespace Controller_File {

struct Kind {
  QString mTitle;  ///< of the file dialog
  QString mFilter; ///< as the toolkit takes it
  QString mSuffix; ///< with its point; added to a name without one
};

/// A project, persistent values, a backup as the controller keeps it.
[[nodiscard]] Kind project();
[[nodiscard]] Kind values();
[[nodiscard]] Kind backup();

/// `text` without what may not stand in the name of a file; never empty.
[[nodiscard]] QString nameOf(const QString& text);

/// Asks where to store, in the folder of the open project, and whether to replace what is there. Empty when the user
/// cancels. A project that is open, here or in another studio, cannot be chosen.
[[nodiscard]] QString chooseToSave(const Controller_Access& access, QWidget* parent, const Kind& kind,
                                   const QString& name);
[[nodiscard]] QString chooseToOpen(const Controller_Access& access, QWidget* parent, const Kind& kind);

/// Replaces the file at the end only. False with a German error.
[[nodiscard]] bool write(const QString& path, const QByteArray& bytes, QString* error);
/// Empty with a German error when the file cannot be read or is too long to be sent.
[[nodiscard]] std::optional<QByteArray> read(const QString& path, QString* error);

} // namespace Controller_File
