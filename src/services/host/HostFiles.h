#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "services/FileSystem.h"
#include "services/host/DriveMap.h"
#include "services/host/PathLookup.h"

namespace tagsmith {

/// The files and folders of this computer. Symbolic links are followed, by the lists too. For one
/// thread.
class HostFiles : public FileSystem {
 public:
  /// Tells the mount points of now, as host paths.
  using Mounts = std::function<std::vector<std::string>()>;

  explicit HostFiles(Mounts mounts = MountPoints);

  std::vector<Drive> Drives() const override;
  std::string CurrentDirectory() const override;
  std::string ResolveDirectory(std::string_view path, std::string_view base) const override;
  std::vector<std::string> DirectoryNames(std::string_view directory) const override;
  std::vector<std::string> FileNames(std::string_view directory) const override;
  std::vector<DirectoryEntry> Entries(std::string_view directory) const override;
  bool FileExists(std::string_view path) const noexcept override;
  std::optional<std::string> ReadFile(std::string_view path, std::size_t limit) const override;
  void WriteFile(std::string_view path, std::string_view bytes, Durability durability) override;
  void CopyFile(std::string_view from, std::string_view to) override;
  std::vector<std::string> RenameEntries(std::string_view directory,
                                         std::span<const NewName> names) override;

  /// The host path of a system path that may be relative, in the spelling that is on the disk. What
  /// is not there yet keeps the name given. Throws kDeviceUnavailable, and kFileNotFound for an
  /// empty path.
  std::string ToHostPath(std::string_view path) const;

 private:
  std::string HostPathAsGiven(std::string_view path) const;
  FoundPath Find(std::string_view path) const { return LookUp(HostPathAsGiven(path)); }
  std::vector<std::string> ListNames(std::string_view directory, bool directories) const;

  Mounts mounts_;
  mutable DriveMap drives_;  ///< Brought up to date whenever a drive letter past "c" matters.
};

}  // namespace tagsmith
