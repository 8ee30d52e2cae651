#include "services/host/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "services/host/HostError.h"

namespace tagsmith {

FileDescriptor::~FileDescriptor() {
  if (number_ >= 0) ::close(number_);
}

void FileDescriptor::WriteAll(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(number_, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      throw SystemError(errno);
    }
  }
}

void FileDescriptor::Finish(Durability durability) {
  // Where a file system knows no flushing, it says EINVAL.
  if (durability == Durability::kFlushed && ::fsync(number_) != 0 && errno != EINVAL) {
    throw SystemError(errno);
  }
  // After EINTR the descriptor is gone all the same.
  if (::close(std::exchange(number_, -1)) != 0 && errno != EINTR) throw SystemError(errno);
}

FileDescriptor OpenFile(const std::string& hostPath, int flags, mode_t mode) {
  int number = -1;
  do {
    number = ::open(hostPath.c_str(), flags | O_CLOEXEC, mode);
  } while (number < 0 && errno == EINTR);
  if (number < 0) throw FileError(errno, hostPath);
  return FileDescriptor(number);
}

}  // namespace tagsmith
