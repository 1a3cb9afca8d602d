#pragma once

#include <QString>

/// Files that an assistant names: what is wrong with them is told before anything is done. All texts are German;
/// empty when nothing is wrong.
namespace Project_Tools_Path {

/// An empty path stays empty.
[[nodiscard]] QString withExtension(const QString& path);
/// Of any file: empty, with characters that no name has, or relative.
[[nodiscard]] QString fault(const QString& path);
/// Of a file that is to be written: the same, and its folder is missing or cannot be written to.
[[nodiscard]] QString faultOfTarget(const QString& path);
/// Of what a new project begins with; an empty text stands for the default.
[[nodiscard]] QString faultOfOptions(const QString& pageCaption, const QString& connectionName,
                                     const QString& connectionAddress);

} // namespace Project_Tools_Path
