#pragma once

#include <filesystem>

namespace tagsmith {

/// Makes the folder at a host path, and those above it, for the user alone, where they are missing.
/// Throws `Error`, whose text names the folder that could not be made.
void MakeFolder(const std::filesystem::path& folder);

}  // namespace tagsmith
