#include "services/host/TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <random>
#include <string_view>

#include "services/host/HostError.h"

namespace tagsmith {
namespace {

std::string RandomName() {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr int kLength = 32;
  std::random_device source;
  std::string name = ".tagsmith-";
  for (int i = 0; i < kLength; ++i) name += kDigits[source() % kDigits.size()];
  return name;
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& folder, mode_t mode)
    : path_(folder + '/' + RandomName()),
      file_(OpenFile(path_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode)) {}

TemporaryFile::~TemporaryFile() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

void TemporaryFile::RenameTo(const std::string& hostPath) {
  if (std::rename(path_.c_str(), hostPath.c_str()) != 0) throw FileError(errno, hostPath);
  path_.clear();
}

}  // namespace tagsmith
