#include "services/host/TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string_view>

#include "services/host/HostError.h"

namespace tagsmith {
namespace {

std::string RandomDigits() {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr int kLength = 32;
  std::random_device source;
  std::string digits;
  for (int i = 0; i < kLength; ++i) digits += kDigits[source() % kDigits.size()];
  return digits;
}

// Random numbers are dear: the process draws once and counts on. Its own number stands in the name
// as well, since a fork has drawn with its parent.
std::string FreshName() {
  static const std::string kDrawn = RandomDigits();
  static std::uint64_t count = 0;
  return ".tagsmith-" + kDrawn + '-' + std::to_string(::getpid()) + '-' + std::to_string(++count);
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& folder, mode_t mode)
    : path_(folder + '/' + FreshName()),
      file_(OpenFile(path_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode)) {}

TemporaryFile::~TemporaryFile() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

void TemporaryFile::RenameTo(const std::string& hostPath) {
  if (std::rename(path_.c_str(), hostPath.c_str()) != 0) throw FileError(errno, hostPath);
  path_.clear();
}

}  // namespace tagsmith
