#pragma once

#include <QString>

class QWidget;

/// Asks for a file, with labels in German whatever language the toolkit speaks. Each answers an empty text when the
/// user cancels. `filter` is as the toolkit takes it.
namespace File_Dialog {

[[nodiscard]] QString chooseOpenFile(QWidget* parent, const QString& title, const QString& folder,
                                     const QString& filter);

/// The caller asks whether an existing file shall be replaced. `suggestion` is a path.
[[nodiscard]] QString chooseSaveFile(QWidget* parent, const QString& title, const QString& suggestion,
                                     const QString& filter);

} // namespace File_Dialog
