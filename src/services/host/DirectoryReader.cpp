#include "services/host/DirectoryReader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string_view>

#include "services/host/HostError.h"

namespace tagsmith {

DirectoryReader::DirectoryReader(const std::string& hostPath)
    : directory_(::opendir(hostPath.c_str())) {
  if (!directory_) throw FileError(errno, hostPath);
}

const dirent* DirectoryReader::Next() {
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(directory_.get());
    if (entry == nullptr && errno != 0) throw SystemError(errno);
    if (entry == nullptr) return nullptr;
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") return entry;
  }
}

bool DirectoryReader::IsDirectory(const dirent& entry) const {
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
  struct stat status {};
  return ::fstatat(::dirfd(directory_.get()), entry.d_name, &status, 0) == 0 &&
         S_ISDIR(status.st_mode);
}

bool DirectoryReader::IsLink(const dirent& entry) const {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_LNK;
  struct stat status {};
  return ::fstatat(::dirfd(directory_.get()), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISLNK(status.st_mode);
}

}  // namespace tagsmith
