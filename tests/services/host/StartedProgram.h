#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>

#include "services/host/FileDescriptor.h"
#include "services/host/TemporaryFolder.h"

namespace tagsmith::test {

/// A pipe called "report" in a folder: what a program there writes into it until it has ended.
class Report {
 public:
  explicit Report(const TemporaryFolder& folder) : path_(folder / "report") {
    EXPECT_EQ(::mkfifo(path_.c_str(), 0666), 0);
  }

  /// Waits for the writer and its end; fails the test after a minute without a sign of it.
  std::string Read() const {
    constexpr int kPatience = 60000;
    const FileDescriptor pipe = OpenFile(path_, O_RDONLY | O_NONBLOCK);
    std::string text;
    std::array<char, 4096> buffer{};
    for (;;) {
      pollfd event{.fd = pipe.Number(), .events = POLLIN, .revents = 0};
      if (::poll(&event, 1, kPatience) != 1) {
        ADD_FAILURE() << "nothing reported";
        return text;
      }
      const ssize_t count = ::read(pipe.Number(), buffer.data(), buffer.size());
      if (count == 0) return text;
      if (count > 0) text.append(buffer.data(), static_cast<std::size_t>(count));
    }
  }

 private:
  std::string path_;
};

/// Makes a program: a script, with `here` for the folder that it lies in.
inline void PutProgram(const std::string& path, std::string_view script) {
  PutFile(path, std::string("#!/bin/sh\nhere=${0%/*}\n").append(script));
  std::filesystem::permissions(path, std::filesystem::perms::all);
}

/// Whether a child of this process is running or has not been waited for.
inline bool HasChildren() { return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD; }

}  // namespace tagsmith::test
