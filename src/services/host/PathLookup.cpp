#include "services/host/PathLookup.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "services/CaseFold.h"
#include "services/Error.h"
#include "services/host/DirectoryReader.h"
#include "services/host/FileStatus.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

// Behind a symbolic link ".." is the folder above its target, as for every program of the host.
std::string FolderAbove(const std::string& path) {
  std::error_code error;
  fs::path real = path;
  if (fs::is_symlink(path, error)) real = fs::canonical(path, error);
  if (real.empty() && !path.empty()) return path + "/..";
  const std::string folder = real.parent_path();
  return folder == "/" ? std::string() : folder;
}

// The entry of `folder` that differs from `name` in case only, or `name`.
std::string FindWithoutCase(const std::string& folder, std::string_view name) {
  std::string found;
  try {
    DirectoryReader reader(folder);
    while (const dirent* entry = reader.Next()) {
      const std::string_view candidate = entry->d_name;
      if ((found.empty() || candidate < found) && EqualWithoutCase(candidate, name)) {
        found = candidate;
      }
    }
  } catch (const Error&) {
    // A folder that cannot be listed gives exact names only.
  }
  return found.empty() ? std::string(name) : found;
}

// Whether the path is full and made of `components` alone, without a way up.
bool IsPlain(std::string_view path, const std::vector<std::string_view>& components) {
  std::size_t length = path.ends_with('/') ? 1 : 0;
  for (const std::string_view component : components) {
    if (component == "..") return false;
    length += 1 + component.size();
  }
  return path.starts_with('/') && length == path.size();
}

}  // namespace

std::vector<std::string_view> PathComponents(std::string_view hostPath) {
  std::vector<std::string_view> components;
  while (!hostPath.empty()) {
    const std::string_view component = hostPath.substr(0, hostPath.find('/'));
    if (!component.empty() && component != ".") components.push_back(component);
    hostPath.remove_prefix(std::min(component.size() + 1, hostPath.size()));
  }
  return components;
}

FolderAndName SplitPath(const std::string& hostPath) {
  const std::size_t end = hostPath.find_last_not_of('/') + 1;
  const std::size_t start = hostPath.rfind('/', end - 1) + 1;
  return {hostPath.substr(0, start), hostPath.substr(start, end - start)};
}

std::string SpellAsOnDisk(std::string_view hostPath) { return LookUp(hostPath).path; }

FoundPath LookUp(std::string_view hostPath) {
  const std::vector<std::string_view> components = PathComponents(hostPath);
  // One look is enough where everything has the name given: that is nearly always.
  if (IsPlain(hostPath, components)) {
    std::string given(hostPath);
    if (const auto entry = FindEntry(given)) return {std::move(given), entry};
  }

  std::string found;
  for (const std::string_view component : components) {
    if (component == "..") {
      found = FolderAbove(found);
      continue;
    }
    const std::string folder = found + '/';
    found = folder + std::string(component);
    if (!FindEntry(found)) found = folder + FindWithoutCase(folder, component);
  }
  if (hostPath.ends_with('/') || found.empty()) found += '/';
  return {std::move(found), std::nullopt};
}

}  // namespace tagsmith
