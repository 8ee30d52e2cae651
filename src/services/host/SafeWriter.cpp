#include "services/host/SafeWriter.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "services/Error.h"
#include "services/host/FileAttributes.h"
#include "services/host/FileStatus.h"
#include "services/host/HostError.h"
#include "services/host/PathLookup.h"
#include "services/host/TemporaryFile.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

bool HasFileSizeLimit() {
  rlimit limit{};
  return ::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur != RLIM_INFINITY;
}

// While it lives, a write past the process's file size limit fails with EFBIG and no more: the
// signal that comes with it would end the program.
class FileSizeSignalBlock {
 public:
  FileSizeSignalBlock() {
    ::sigemptyset(&signal_);
    ::sigaddset(&signal_, SIGXFSZ);
    ::pthread_sigmask(SIG_BLOCK, &signal_, &before_);
  }
  FileSizeSignalBlock(const FileSizeSignalBlock&) = delete;
  FileSizeSignalBlock& operator=(const FileSizeSignalBlock&) = delete;
  ~FileSizeSignalBlock() {
    const timespec now{};
    ::sigtimedwait(&signal_, nullptr, &now);
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t signal_{};
  sigset_t before_{};
};

// The path that remains when all symbolic links on it are followed, also the last one when its
// target is yet to be made.
std::string FollowLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    if (!error) return real;
    if (error.value() != ENOENT) throw FileError(error.value(), path);
    const fs::path target = fs::read_symlink(path, error);
    if (error) return path;
    path = path.parent_path() / target;
  }
  throw SystemError(ELOOP);
}

// As far as it goes: the file itself has been flushed and stands under its name, so nothing that
// fails here is a failure of the writing.
void FlushFolder(const std::string& folder) {
  const int number = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (number < 0) return;
  try {
    FileDescriptor(number).Finish(Durability::kFlushed);
  } catch (const Error&) {
  }
}

// Throws kPermissionDenied when the file, of status `old`, cannot be replaced by another with all
// its properties; without `old` there is none yet.
void Replace(const std::string& path, const std::optional<FileStatus>& old, std::string_view bytes,
             Durability durability) {
  constexpr mode_t kUsualMode = 0666;
  constexpr mode_t kPrivateMode = 0600;
  const std::string folder = SplitPath(path).folder;
  TemporaryFile temporary(folder, old ? kPrivateMode : kUsualMode);
  temporary.File().WriteAll(bytes);
  if (old) CopyAttributes(path, *old, temporary.File());
  temporary.File().Finish(durability);
  temporary.RenameTo(path);
  if (durability == Durability::kFlushed) FlushFolder(folder);
}

// Sees that the first `size` bytes of the file have their place on the disk, or throws and leaves
// the file as it was.
void Reserve(const FileDescriptor& file, off_t size) {
  const off_t oldSize = StatusOf(file).st_size;
  if (size == 0 || ::fallocate(file.Number(), 0, 0, size) == 0) return;
  int error = errno;
  if (error == EOPNOTSUPP) {
    if (size <= oldSize) return;
    error = ::posix_fallocate(file.Number(), oldSize, size - oldSize);
    if (error == 0) return;
  }
  const int cut = ::ftruncate(file.Number(), oldSize);
  static_cast<void>(cut);  // The first error is the one to tell.
  throw SystemError(error);
}

void Overwrite(const std::string& path, std::string_view bytes, Durability durability) {
  FileDescriptor file = OpenFile(path, O_WRONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
  RequireRegularFile(StatusOf(file));
  const auto size = static_cast<off_t>(bytes.size());
  Reserve(file, size);
  file.WriteAll(bytes);
  if (::ftruncate(file.Number(), size) != 0) throw SystemError(errno);
  file.Finish(durability);
}

void RequireWritable(const std::string& path, const FileStatus& status) {
  const bool isOwners = (status.st_mode & S_IWUSR) != 0 && status.st_uid == ::geteuid();
  if (!isOwners && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
    throw FileError(errno, path);
  }
}

bool ReplaceIfPossible(const std::string& path, const FileStatus& old, std::string_view bytes,
                       Durability durability) {
  if (old.st_nlink > 1) return false;
  try {
    Replace(path, old, bytes, durability);
    return true;
  } catch (const Error& error) {
    if (error.Code() != ErrorCode::kPermissionDenied) throw;
    return false;
  }
}

}  // namespace

void WriteSafely(const FoundPath& found, std::string_view bytes, Durability durability) {
  std::optional<FileSizeSignalBlock> block;
  if (HasFileSizeLimit()) block.emplace();
  const std::optional<FileStatus> entry = found.entry ? found.entry : FindEntry(found.path);
  const bool isPlain = entry && !S_ISLNK(entry->st_mode);
  const std::string path = isPlain ? found.path : FollowLinks(found.path);
  const std::optional<FileStatus> old = isPlain ? entry : FindStatus(path);
  if (!old) return Replace(path, old, bytes, durability);

  RequireRegularFile(*old);
  RequireWritable(path, *old);
  if (!ReplaceIfPossible(path, *old, bytes, durability)) Overwrite(path, bytes, durability);
}

}  // namespace tagsmith
