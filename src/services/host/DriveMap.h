#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/FileSystem.h"

namespace tagsmith {

/// The mount points of all mounted volumes, as host paths, in the order of their mounting.
std::vector<std::string> MountPoints();

/// The map between the host's paths ("/home/ann/page.html", any bytes) and the system's
/// ("c:\home\ann\page.html", UTF-8). Pure text: nothing of it looks at the disk.
///
/// "c:" is the host's root directory. Volumes mounted in /media, /run/media or /mnt are drives of
/// their own, "d:" and on, which lead to their mount points; a name is nevertheless always formed
/// with "c:". Characters of a host's name that a system path cannot hold have stand-ins: U+F05C for
/// a backslash, U+F03A for a colon, U+F780 plus the byte for a byte that is no UTF-8.
class DriveMap {
 public:
  explicit DriveMap(const std::vector<std::string>& mountPoints = {}) { Update(mountPoints); }

  /// Takes over what is mounted now. A volume that was there before keeps its letter.
  void Update(const std::vector<std::string>& mountPoints);

  /// All drives, "c" first, the others by their letters.
  std::vector<Drive> Drives() const;

  /// The system path of `hostPath`. A relative path, such as a bare name, gives a relative one.
  static std::string ToSystemPath(std::string_view hostPath);

  /// Whether `path` begins with a drive letter: "c:\page.html", "C:/page.html", "d:".
  static bool IsFullPath(std::string_view path);

  /// The host path of a full system path; a slash counts as a backslash. Nothing when the path has
  /// no drive letter or the drive is not there.
  std::optional<std::string> ToHostPath(std::string_view systemPath) const;

  /// The host's own name of an entry that the system calls `name`. Nothing for what is no name of
  /// an entry: an empty text, a path, "." and "..".
  static std::optional<std::string> ToHostName(std::string_view name);

 private:
  struct Volume {
    char letter;
    std::string mountPoint;
  };

  const Volume* FindMountPoint(std::string_view mountPoint) const;
  const Volume* FindLetter(char letter) const;
  void Add(const std::string& mountPoint);

  std::vector<Volume> volumes_;
};

}  // namespace tagsmith
