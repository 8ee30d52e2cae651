#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "services/Error.h"
#include "services/host/DriveMap.h"

namespace tagsmith::test {

/// An empty folder of its own for one test, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder()
      : path_((std::filesystem::temp_directory_path() / "host-test-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
    std::filesystem::permissions(path_, std::filesystem::perms::all);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& Path() const { return path_; }
  /// The host path and the system path of something in the folder.
  std::string operator/(std::string_view name) const { return path_ + '/' + std::string(name); }
  std::string System(std::string_view name) const { return DriveMap::ToSystemPath(*this / name); }

 private:
  std::string path_;
};

inline void PutFile(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string GetFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

using Names = std::set<std::string>;

/// The names of all that is in a folder, hidden or not.
inline Names NamesIn(const std::string& folder) {
  Names names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.insert(entry.path().filename());
  }
  return names;
}

/// The code that `action` throws, or nothing. An error without a text is a fault.
template <class Action>
std::optional<ErrorCode> CodeThrownBy(Action action) {
  try {
    action();
    return std::nullopt;
  } catch (const Error& error) {
    EXPECT_STRNE(error.what(), "");
    return error.Code();
  }
}

/// The text of the error that `action` throws, or nothing.
template <class Action>
std::string TextThrownBy(Action action) {
  try {
    action();
    return {};
  } catch (const Error& error) {
    return error.what();
  }
}

}  // namespace tagsmith::test
