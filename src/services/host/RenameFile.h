#pragma once

#include <string>

namespace tagsmith {

/// Gives the entry at `from` the name `to` (host paths), without ever replacing another: false
/// when `to` is taken, unless that is the same entry, as when only the case of a name changes on a
/// file system that tells no case apart. A symbolic link is renamed itself.
bool RenameFile(const std::string& from, const std::string& to);

}  // namespace tagsmith
