#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "services/host/TemporaryFolder.h"

namespace tagsmith::test {

/// A pipe called "report" in a folder: what a program there writes into it until it has ended.
class Report {
 public:
  explicit Report(const TemporaryFolder& folder) : path_(folder / "report") {
    EXPECT_EQ(::mkfifo(path_.c_str(), 0666), 0);
  }

  /// Waits for the writer and its end; without one the test runs into its time limit.
  std::string Read() const { return GetFile(path_); }

 private:
  std::string path_;
};

/// Makes a program, and its folder: a script, with `here` for the folder that it lies in.
inline void PutProgram(const std::string& path, std::string_view script) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  PutFile(path, std::string("#!/bin/sh\nhere=${0%/*}\n").append(script));
  std::filesystem::permissions(path, std::filesystem::perms::all);
}

/// Whether a child of this process is running or has not been waited for.
inline bool HasChildren() { return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD; }

}  // namespace tagsmith::test
