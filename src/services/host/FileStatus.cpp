#include "services/host/FileStatus.h"

#include <cerrno>

#include "services/host/HostError.h"

namespace tagsmith {

std::optional<FileStatus> FindStatus(const std::string& hostPath) {
  FileStatus status{};
  if (::stat(hostPath.c_str(), &status) == 0) return status;
  if (errno != ENOENT) throw FileError(errno, hostPath);
  return std::nullopt;
}

std::optional<FileStatus> FindEntry(const std::string& hostPath) noexcept {
  FileStatus status{};
  if (::lstat(hostPath.c_str(), &status) != 0) return std::nullopt;
  return status;
}

FileStatus StatusOf(const FileDescriptor& file) {
  FileStatus status{};
  if (::fstat(file.Number(), &status) != 0) throw SystemError(errno);
  return status;
}

void RequireRegularFile(const FileStatus& status) {
  if (S_ISREG(status.st_mode)) return;
  throw Error(ErrorCode::kNotARegularFile,
              SystemError(S_ISDIR(status.st_mode) ? EISDIR : EOPNOTSUPP).what());
}

}  // namespace tagsmith
