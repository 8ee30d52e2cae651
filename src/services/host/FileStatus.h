#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "services/host/FileDescriptor.h"

namespace tagsmith {

using FileStatus = struct stat;

/// What is at `hostPath`, symbolic links followed; nothing when nothing is there. Throws when it
/// cannot be known.
std::optional<FileStatus> FindStatus(const std::string& hostPath);

/// The same of the entry itself, which may be a symbolic link; any error counts as nothing.
std::optional<FileStatus> FindEntry(const std::string& hostPath) noexcept;

FileStatus StatusOf(const FileDescriptor& file);

/// Throws kNotARegularFile for a directory, a pipe, a socket or a device.
void RequireRegularFile(const FileStatus& status);

}  // namespace tagsmith
