#pragma once

#include <string>

#include "services/host/FileStatus.h"

namespace tagsmith {

/// Gives the open file `to` what the file at `from`, whose status is `status`, has besides its
/// bytes: owner, group, access list, extended attributes, mode. Throws kPermissionDenied when one
/// of them cannot be given.
void CopyAttributes(const std::string& from, const FileStatus& status, const FileDescriptor& to);

}  // namespace tagsmith
