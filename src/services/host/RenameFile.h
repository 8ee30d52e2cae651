#pragma once

#include <string>

#include "services/host/FileDescriptor.h"

namespace tagsmith {

/// Gives the entry at `from` the name `to` (host paths), without replacing another as far as
/// the file system can see to it: false
/// when `to` is taken, unless that is the same entry, as when only the case of a name changes on a
/// file system that tells no case apart. A symbolic link is renamed itself.
bool RenameFile(const std::string& from, const std::string& to);

/// The same for two names in the folder at `folderPath`, which is open as `folder`.
bool RenameInFolder(const FileDescriptor& folder, const std::string& folderPath,
                    const std::string& from, const std::string& to);

}  // namespace tagsmith
