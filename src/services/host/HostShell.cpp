#include "services/host/HostShell.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <string>

#include "services/host/DriveMap.h"
#include "services/host/FileDescriptor.h"
#include "services/host/FileStatus.h"
#include "services/host/HostError.h"
#include "services/host/HostFiles.h"

namespace tagsmith {
namespace {

// A piece of a command line that leads to a program, and what stands behind the blank after it.
struct Command {
  std::string_view program;
  std::string_view argument;
};

// Tries the pieces that end before a blank, the longest first.
template <class Names>
std::optional<Command> FindCommand(std::string_view line, Names namesProgram) {
  for (std::size_t end = line.size();;) {
    const std::string_view piece = line.substr(0, end);
    if (namesProgram(piece)) {
      return Command{piece, line.substr(std::min(end + 1, line.size()))};
    }
    end = piece.rfind(' ');
    if (end == std::string_view::npos) return std::nullopt;
  }
}

[[noreturn]] void Fail(std::string_view program, ErrorCode code, std::string_view text) {
  throw Error(code, std::string(program).append(": ").append(text));
}

[[noreturn]] void Fail(std::string_view program, int errorNumber) {
  const Error error = SystemError(errorNumber);
  Fail(program, error.Code(), error.what());
}

[[noreturn]] void FailWithoutProgram(const HostFiles& files, std::string_view line) {
  const auto folder = FindCommand(line, [&files](std::string_view piece) {
    try {
      const auto status = FindStatus(files.ToHostPath(piece));
      return status && S_ISDIR(status->st_mode);
    } catch (const Error&) {
      return false;
    }
  });
  if (folder) Fail(folder->program, EISDIR);
  Fail(line, ENOENT);
}

// Where a program that belongs to no folder works: it must not keep a stick or a folder of the
// user's busy.
std::string WorkingFolder() {
  const char* home = std::getenv("HOME");
  if (home == nullptr) return "/";
  const std::string inside = std::string(home) + "/.";
  return ::eaccess(inside.c_str(), X_OK) == 0 ? home : "/";
}

// How a new process differs from this one.
class SpawnPlan {
 public:
  explicit SpawnPlan(const std::string& folder) {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawnattr_init(&attributes_);
    ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
    ::posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
    // The toolkit, or what has started this program, may ignore these; a program would inherit it.
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGPIPE);
    ::sigaddset(&signals, SIGCHLD);
    ::posix_spawnattr_setsigdefault(&attributes_, &signals);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;
  ~SpawnPlan() {
    ::posix_spawnattr_destroy(&attributes_);
    ::posix_spawn_file_actions_destroy(&actions_);
  }

  // The error number of a failed start, 0 for a program that runs.
  int Run(char* const* arguments) const {
    pid_t ignored = 0;
    return ::posix_spawn(&ignored, arguments[0], &actions_, &attributes_, arguments, environ);
  }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

// Starts the program by way of a process in between that ends at once, so that it is no child of
// this one, which would have to wait for its end. The error number comes through a pipe: where
// SIGCHLD is ignored, there is no exit status.
int StartDetached(std::string program, std::string argument) {
  const std::string folder = WorkingFolder();
  const SpawnPlan plan(folder);
  std::array<char*, 3> arguments = {program.data(), argument.empty() ? nullptr : argument.data(),
                                    nullptr};
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return errno;
  const FileDescriptor readEnd(ends[0]);
  FileDescriptor writeEnd(ends[1]);
  const pid_t between = ::fork();
  if (between < 0) return errno;
  int errorNumber = ECHILD;  // Stays where the process in between is ended by force.
  if (between == 0) {
    errorNumber = plan.Run(arguments.data());
    ::_exit(::write(writeEnd.Number(), &errorNumber, sizeof errorNumber) < 0 ? 1 : 0);
  }
  writeEnd = FileDescriptor(-1);
  while (::read(readEnd.Number(), &errorNumber, sizeof errorNumber) < 0 && errno == EINTR) {
  }
  while (::waitpid(between, nullptr, 0) < 0 && errno == EINTR) {
  }
  return errorNumber;
}

}  // namespace

void HostShell::Start(std::string_view commandLine) {
  if (commandLine.find('\0') != std::string_view::npos) throw SystemError(EINVAL);
  const auto command =
      FindCommand(commandLine, [this](std::string_view piece) { return files_.FileExists(piece); });
  if (!command) FailWithoutProgram(files_, commandLine);

  const bool isFile =
      DriveMap::IsFullPath(command->argument) && files_.FileExists(command->argument);
  const std::string program = files_.ToHostPath(command->program);
  const int errorNumber = StartDetached(
      program, isFile ? files_.ToHostPath(command->argument) : std::string(command->argument));
  if (errorNumber == 0) return;
  if (errorNumber == ENOENT && FindStatus(program)) {
    Fail(command->program, ErrorCode::kFileNotFound,
         std::string("bad interpreter: ") + SystemError(ENOENT).what());
  }
  Fail(command->program, errorNumber);
}

}  // namespace tagsmith
