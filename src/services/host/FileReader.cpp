#include "services/host/FileReader.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>

#include "services/host/FileStatus.h"
#include "services/host/HostError.h"

namespace tagsmith {
namespace {

std::size_t ReadSome(const FileDescriptor& file, char* into, std::size_t most) {
  ssize_t count = -1;
  do {
    count = ::read(file.Number(), into, most);
  } while (count < 0 && errno == EINTR);
  if (count < 0) throw SystemError(errno);
  return static_cast<std::size_t>(count);
}

// The size that the file claims is a first guess only: it may change, and some files claim 0.
std::optional<std::string> ReadAll(const FileDescriptor& file, std::size_t claimedSize,
                                   std::size_t limit) {
  std::string bytes;
  std::size_t filled = 0;
  std::size_t room = claimedSize + 1;
  while (filled < limit) {
    if (filled == bytes.size()) bytes.resize(std::min(std::max(room, 2 * filled), limit));
    const std::size_t asked = bytes.size() - filled;
    const std::size_t count = ReadSome(file, bytes.data() + filled, asked);
    filled += count;
    // Where all that was claimed has come, a short answer is the end.
    if (count == 0 || (filled == claimedSize && count < asked)) {
      bytes.resize(filled);
      return bytes;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ReadRegularFile(const FoundPath& found, std::size_t limit) {
  if (!found.entry || !S_ISREG(found.entry->st_mode)) {
    if (const auto status = FindStatus(found.path)) RequireRegularFile(*status);
  }
  // Should a pipe have taken the file's place by now, opening it does not wait for a writer.
  const FileDescriptor file = OpenFile(found.path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
  const FileStatus status = StatusOf(file);
  RequireRegularFile(status);
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size >= limit) return std::nullopt;
  try {
    return ReadAll(file, size, limit);
  } catch (const std::bad_alloc&) {
    throw SystemError(ENOMEM);
  } catch (const std::length_error&) {
    throw SystemError(ENOMEM);
  }
}

}  // namespace tagsmith
