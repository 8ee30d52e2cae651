#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {

/// One entry of a drive list.
struct Drive {
  char letter = 'c';
  std::string label;  ///< What stands in brackets behind the letter: "root", "USB STICK".
  std::string
      root;  ///< The directory that opening the drive shows: "c:\", "c:\media\ann\USB STICK".
};

/// One entry of a directory.
struct DirectoryEntry {
  std::string name;
  bool isDirectory = false;  ///< A directory, or a symbolic link that leads to one.
  bool isLink = false;
};

/// An entry of a directory and the name it is to have.
struct NewName {
  std::string from;
  std::string to;
};

/// How far a written file must have got before the call returns.
enum class Durability {
  kWritten,  ///< With the operating system.
  kFlushed,  ///< On the disk: the document's own Save.
};

/// Files and folders, by the system's own paths: UTF-8, a drive letter and backslashes
/// ("c:\home\ann\page.html"). A path that is not full is taken in `CurrentDirectory()`. Every
/// look-up takes the exact name first and then one that differs in case only. What fails throws
/// `Error` with the platform's text, unless a function says otherwise.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// The drives that can be opened now. "c" is always there and stands first.
  virtual std::vector<Drive> Drives() const = 0;

  /// The full path of the process's current directory; the first drive's root when that has gone.
  virtual std::string CurrentDirectory() const = 0;

  /// The full path, in the spelling that is on the disk and without a backslash behind it (but for
  /// the root of a drive), of the directory that `path` names when `base` is open: a full path, a
  /// path without a drive ("\dir\", taken on the drive of `base`), a relative one, or a bare drive
  /// ("d:", which gives the drive's root as in `Drives`). Throws kDeviceUnavailable for a drive
  /// that is not there and kPathNotFound for a directory that is not there or cannot be read.
  virtual std::string ResolveDirectory(std::string_view path, std::string_view base) const = 0;

  /// The names of the directories in `directory`, hidden ones left out, in no order.
  virtual std::vector<std::string> DirectoryNames(std::string_view directory) const = 0;

  /// The names of everything in `directory` that is not a directory, hidden ones left out, in no
  /// order. A symbolic link counts as what it points to.
  virtual std::vector<std::string> FileNames(std::string_view directory) const = 0;

  /// The files and directories in `directory`, hidden ones left out, in no order.
  virtual std::vector<DirectoryEntry> Entries(std::string_view directory) const = 0;

  /// Whether `path` names something that is there and is not a directory. Never throws: an empty
  /// path and any error give false.
  virtual bool FileExists(std::string_view path) const noexcept = 0;

  /// The bytes of the file, or nothing when it has `limit` bytes or more. Throws for what cannot
  /// be opened or read, and kNotARegularFile for a directory, a pipe, a socket or a device, which
  /// are never opened: the call does not hang.
  virtual std::optional<std::string> ReadFile(std::string_view path, std::size_t limit) const = 0;

  /// Puts `bytes` in place of the file's contents, or makes the file. Either the old file or the
  /// whole new one is there afterwards, but for a file that cannot be replaced by another, as one
  /// with several hard links: it is written in place. Permissions, owner, symbolic and hard links
  /// stay. Refuses a file that the user may not write, also where the folder would allow it to be
  /// replaced.
  virtual void WriteFile(std::string_view path, std::string_view bytes, Durability durability) = 0;

  /// Copies the file's bytes as `WriteFile` writes them. Replaces a file of the name `to`.
  virtual void CopyFile(std::string_view from, std::string_view to) = 0;

  /// Gives entries of `directory` other names, in order; both names are taken exactly. An entry
  /// whose new name another one has already stays as it is; gives the names of those. Throws at the
  /// first that cannot be renamed for another reason; those before it keep their new names.
  virtual std::vector<std::string> RenameEntries(std::string_view directory,
                                                 std::span<const NewName> names) = 0;
};

}  // namespace tagsmith
