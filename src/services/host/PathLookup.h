#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/host/FileStatus.h"

namespace tagsmith {

/// The components of a host path; empty ones and "." are left out.
std::vector<std::string_view> PathComponents(std::string_view hostPath);

/// The folder and the name of a full host path other than "/"; a slash behind the name is dropped.
struct FolderAndName {
  std::string folder;
  std::string name;
};
FolderAndName SplitPath(const std::string& hostPath);

/// The full host path `hostPath` in the spelling that is on the disk: each component is the one of
/// that exact name, or else one that differs in case only (the first by their bytes), or else, as
/// for a file that is yet to be made, as given. "." and ".." are worked out; a slash at the end
/// stays. Never throws for what the disk holds.
std::string SpellAsOnDisk(std::string_view hostPath);

/// A path as `SpellAsOnDisk` gives it, and what is there, symbolic links not followed; nothing
/// where that is not known.
struct FoundPath {
  std::string path;
  std::optional<FileStatus> entry;
};
FoundPath LookUp(std::string_view hostPath);

}  // namespace tagsmith
