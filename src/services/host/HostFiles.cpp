#include "services/host/HostFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "services/host/DirectoryReader.h"
#include "services/host/FileDescriptor.h"
#include "services/host/FileReader.h"
#include "services/host/FileStatus.h"
#include "services/host/HostError.h"
#include "services/host/PathLookup.h"
#include "services/host/RenameFile.h"
#include "services/host/SafeWriter.h"

namespace tagsmith {
namespace {

bool IsOnRootDrive(std::string_view path) { return path.starts_with('c') || path.starts_with('C'); }

// What `path` means when the directory `base` (a full path) is open.
std::string TakenIn(std::string_view base, std::string_view path) {
  if (DriveMap::IsFullPath(path)) return std::string(path);
  const bool fromRoot = path.starts_with('\\') || path.starts_with('/');
  std::string full(fromRoot ? base.substr(0, 2) : base);
  if (!fromRoot) full += '\\';
  return full.append(path);
}

// Whatever is wrong with a directory that is to be opened, it is the path that is no good.
void RequireDirectory(const std::string& hostPath) {
  try {
    DirectoryReader(hostPath).Next();
  } catch (const Error& error) {
    if (error.Code() == ErrorCode::kDeviceUnavailable) throw;
    throw Error(ErrorCode::kPathNotFound, error.what());
  }
}

std::string ToHostName(std::string_view name) {
  std::optional<std::string> hostName = DriveMap::ToHostName(name);
  if (!hostName) throw SystemError(EINVAL);
  return *std::move(hostName);
}

// Opens a folder by its path as given, which nearly always is that on the disk, or else as spelt
// there.
template <class Open>
auto OpenFolder(const std::string& given, Open open) {
  try {
    return open(given);
  } catch (const Error&) {
    return open(SpellAsOnDisk(given));
  }
}

std::string WithoutSlashBehind(std::string hostPath) {
  while (hostPath.size() > 1 && hostPath.ends_with('/')) hostPath.pop_back();
  return hostPath;
}

}  // namespace

HostFiles::HostFiles(Mounts mounts) : mounts_(std::move(mounts)) {}

std::vector<Drive> HostFiles::Drives() const {
  drives_.Update(mounts_());
  std::vector<Drive> drives = drives_.Drives();
  std::erase_if(drives, [this](const Drive& drive) {
    const std::string root = drives_.ToHostPath(drive.root).value_or(std::string());
    return drive.letter != 'c' && ::eaccess(root.c_str(), R_OK | X_OK) != 0;
  });
  return drives;
}

std::string HostFiles::CurrentDirectory() const {
  std::error_code error;
  const std::string directory = std::filesystem::current_path(error);
  return DriveMap::ToSystemPath(error ? "/" : directory);
}

std::string HostFiles::HostPathAsGiven(std::string_view path) const {
  if (path.empty() || path.find('\0') != std::string_view::npos) throw SystemError(ENOENT);
  if (!DriveMap::IsFullPath(path)) return HostPathAsGiven(TakenIn(CurrentDirectory(), path));
  if (!IsOnRootDrive(path)) drives_.Update(mounts_());
  std::optional<std::string> hostPath = drives_.ToHostPath(path);
  if (!hostPath) throw SystemError(ENODEV);
  return *std::move(hostPath);
}

std::string HostFiles::ToHostPath(std::string_view path) const {
  return SpellAsOnDisk(HostPathAsGiven(path));
}

std::string HostFiles::ResolveDirectory(std::string_view path, std::string_view base) const {
  const std::string hostPath = WithoutSlashBehind(ToHostPath(TakenIn(base, path)));
  RequireDirectory(hostPath);
  return DriveMap::ToSystemPath(hostPath);
}

std::vector<std::string> HostFiles::ListNames(std::string_view directory, bool directories) const {
  std::vector<std::string> names;
  DirectoryReader reader(ToHostPath(directory));
  while (const dirent* entry = reader.Next()) {
    if (entry->d_name[0] != '.' && reader.IsDirectory(*entry) == directories) {
      names.push_back(DriveMap::ToSystemPath(entry->d_name));
    }
  }
  return names;
}

std::vector<std::string> HostFiles::DirectoryNames(std::string_view directory) const {
  return ListNames(directory, true);
}

std::vector<std::string> HostFiles::FileNames(std::string_view directory) const {
  return ListNames(directory, false);
}

std::vector<DirectoryEntry> HostFiles::Entries(std::string_view directory) const {
  std::vector<DirectoryEntry> entries;
  DirectoryReader reader = OpenFolder(
      HostPathAsGiven(directory), [](const std::string& path) { return DirectoryReader(path); });
  while (const dirent* entry = reader.Next()) {
    if (entry->d_name[0] == '.') continue;
    entries.push_back(
        {DriveMap::ToSystemPath(entry->d_name), reader.IsDirectory(*entry), reader.IsLink(*entry)});
  }
  return entries;
}

bool HostFiles::FileExists(std::string_view path) const noexcept {
  try {
    const auto status = FindStatus(ToHostPath(path));
    return status && !S_ISDIR(status->st_mode);
  } catch (const std::exception&) {
    return false;
  }
}

std::optional<std::string> HostFiles::ReadFile(std::string_view path, std::size_t limit) const {
  return ReadRegularFile(Find(path), limit);
}

void HostFiles::WriteFile(std::string_view path, std::string_view bytes, Durability durability) {
  WriteSafely(Find(path), bytes, durability);
}

void HostFiles::CopyFile(std::string_view from, std::string_view to) {
  constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
  if (const auto bytes = ReadRegularFile(Find(from), kNoLimit)) {
    WriteSafely(Find(to), *bytes, Durability::kWritten);
  }
}

std::vector<std::string> HostFiles::RenameEntries(std::string_view directory,
                                                  std::span<const NewName> names) {
  std::string path;
  const FileDescriptor folder =
      OpenFolder(HostPathAsGiven(directory), [&path](const std::string& candidate) {
        path = candidate;
        return OpenFile(path, O_PATH | O_DIRECTORY);
      });
  std::vector<std::string> left;
  for (const NewName& name : names) {
    if (name.from == name.to) continue;
    if (!RenameInFolder(folder, path, ToHostName(name.from), ToHostName(name.to))) {
      left.push_back(name.from);
    }
  }
  return left;
}

}  // namespace tagsmith
