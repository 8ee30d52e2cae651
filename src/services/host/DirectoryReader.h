#pragma once

#include <dirent.h>

#include <memory>
#include <string>

namespace tagsmith {

/// Walks the entries of a directory once, in no order, without "." and "..".
class DirectoryReader {
 public:
  /// Throws what opening reports.
  explicit DirectoryReader(const std::string& hostPath);

  /// The next entry, good until the next call; null at the end. Throws when reading fails.
  const dirent* Next();

  /// Whether `entry`, read by this object, is a directory or a symbolic link to one.
  bool IsDirectory(const dirent& entry) const;

  /// Whether `entry`, read by this object, is a symbolic link.
  bool IsLink(const dirent& entry) const;

 private:
  struct Close {
    void operator()(DIR* directory) const { ::closedir(directory); }
  };

  std::unique_ptr<DIR, Close> directory_;
};

}  // namespace tagsmith
