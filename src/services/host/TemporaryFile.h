#pragma once

#include <sys/types.h>

#include <string>

#include "services/host/FileDescriptor.h"

namespace tagsmith {

/// A new, empty, hidden file of a name that cannot be guessed, open for writing. It is removed with
/// the object, unless it has been given its lasting name before.
class TemporaryFile {
 public:
  /// Makes it in `folder` (a host path), of `mode` less the user's mask. Throws `Error`.
  TemporaryFile(const std::string& folder, mode_t mode);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  FileDescriptor& File() { return file_; }

  /// Gives the file the name `hostPath`, in the same folder, in one step: whoever looks sees the
  /// file that was there before or this one. Throws `Error`.
  void RenameTo(const std::string& hostPath);

 private:
  std::string path_;
  FileDescriptor file_;
};

}  // namespace tagsmith
