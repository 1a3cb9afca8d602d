#pragma once

#include <QString>

/// The few services that differ between operating systems and that the toolkit does not offer. One source per platform.
namespace Platform {

/// Brings a folder's entries (a rename just made in it) to the disk, where the system offers that; false where it
/// fails.
bool flushFolder(const QString& folder);

} // namespace Platform
