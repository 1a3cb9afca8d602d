#pragma once

#include <QImage>
#include <QString>

#include <vector>

/// One picture that shows the whole icon set on the ground of the tool bars: each drawing in the sizes of the program,
/// disabled, and its name.
namespace Icon_Sheet {

/// Needs a QGuiApplication for the names. Files that are no drawings stay empty.
[[nodiscard]] QImage make(const std::vector<QString>& drawings);

} // namespace Icon_Sheet
