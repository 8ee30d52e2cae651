#pragma once

#include <string>
#include <string_view>

#include "services/FileSystem.h"
#include "services/host/PathLookup.h"

namespace tagsmith {

/// Makes `bytes` the contents of the file at `found`, or makes the file, as
/// `FileSystem::WriteFile` says.
///
/// The bytes go into a temporary file beside it, which then takes its name, with the same mode,
/// owner, group, access list and extended attributes. So the old file is there, untouched, until
/// the new one is complete. A symbolic link stays, and what it points to is written or made. The
/// file is written in place where it has several hard links, where those properties cannot be given
/// to another file, or where its folder takes none; then room for the new bytes is made before the
/// first old one goes.
///
/// Throws `Error`: kPermissionDenied also for a file that the user may not write in a folder that
/// he may, kDiskFull, kNotARegularFile, kPathNotFound.
void WriteSafely(const FoundPath& found, std::string_view bytes, Durability durability);

}  // namespace tagsmith
